#include "ui/look/Style.h"

#include "ui/look/Drawing.h"
#include "ui/look/Shades.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace {
constexpr int chevronRoom = 24;
constexpr int textInset = 8;

bool has(const QStyleOption &option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

/// A line that is locked looks like what cannot be used now; its text can be read all the same.
bool isUsable(const QStyleOption &option)
{
    return has(option, QStyle::State_Enabled) && !has(option, QStyle::State_ReadOnly);
}

QColor edgeOf(const QStyleOption &option, const Shades &shades)
{
    if (!isUsable(option))
        return shades.line;
    return has(option, QStyle::State_MouseOver) ? shades.mark : shades.edge;
}

/// A field's own base colour, as the logic may have set it, paler when it cannot be used.
QColor fieldFill(const QStyleOption &option, const Shades &shades)
{
    const QColor base = option.palette.color(QPalette::Active, QPalette::Base);
    return isUsable(option) ? base : mixed(base, shades.window, 0.6);
}

/// Where one types shows its focus always, other widgets only while the user works with the keyboard.
bool showsFocus(const QStyleOption &option, const QWidget *widget)
{
    if (!has(option, QStyle::State_HasFocus) || !has(option, QStyle::State_Enabled))
        return false;
    return qobject_cast<const QLineEdit *>(widget) != nullptr || has(option, QStyle::State_KeyboardFocusChange);
}

void drawField(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    const Shades shades = Shades::of(option.palette);
    const bool focused = showsFocus(option, widget);
    Drawing::box(painter, option.rect, fieldFill(option, shades), focused ? shades.accent : edgeOf(option, shades),
                 focused ? 2.0 : 1.0);
}

void drawLineEdit(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    const auto *const frame = qstyleoption_cast<const QStyleOptionFrame *>(&option);
    if (frame != nullptr && frame->lineWidth > 0)
        drawField(option, painter, widget);
}

bool isAccent(const QWidget *widget)
{
    return widget != nullptr && widget->isEnabled() &&
           (widget->property(Style::accentProperty).toBool() || widget->property(Style::callingProperty).toBool());
}

void drawButton(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    const Shades shades = Shades::of(option.palette);
    const bool enabled = has(option, QStyle::State_Enabled);
    const bool accent = isAccent(widget);
    const bool on = has(option, QStyle::State_On);
    const bool pointed = has(option, QStyle::State_MouseOver) || showsFocus(option, widget);
    if (widget != nullptr && widget->property(Style::quietProperty).toBool() && !pointed)
        return;
    QColor fill = accent ? shades.accent : option.palette.color(QPalette::Button);
    if (on)
        fill = mixed(fill, shades.accent, 0.16);
    if (enabled && has(option, QStyle::State_Sunken))
        fill = mixed(fill, accent ? Qt::black : shades.text, 0.18);
    else if (enabled && has(option, QStyle::State_MouseOver))
        fill = mixed(fill, accent ? shades.onAccent : shades.text, 0.07);
    QColor border = edgeOf(option, shades);
    if (accent)
        border = fill;
    else if (on && enabled)
        border = shades.accent;
    Drawing::box(painter, option.rect, enabled ? fill : mixed(shades.panel, shades.window, 0.5), border);
    if (!showsFocus(option, widget))
        return;
    if (accent)
        Drawing::box(painter, QRectF(option.rect).adjusted(2, 2, -2, -2), Qt::transparent, shades.onAccent, 1.5);
    else
        Drawing::focusRing(painter, option.rect, shades);
}

void drawCheckMark(const QStyleOption &option, QPainter &painter)
{
    const Shades shades = Shades::of(option.palette);
    const bool enabled = has(option, QStyle::State_Enabled);
    const bool marked = has(option, QStyle::State_On) || has(option, QStyle::State_NoChange);
    QColor fill = enabled ? shades.field : mixed(shades.panel, shades.window, 0.5);
    QColor border = enabled ? shades.edge : shades.line;
    QColor ink = shades.onAccent;
    if (marked) {
        fill = enabled ? shades.accent : shades.disabled;
        border = fill;
        ink = enabled ? shades.onAccent : shades.panel;
    } else if (enabled && has(option, QStyle::State_MouseOver)) {
        border = shades.accent;
    }
    Drawing::box(painter, option.rect, fill, border, marked ? 1.0 : 1.2);
    if (marked)
        Drawing::sign(painter, option.rect, has(option, QStyle::State_On) ? Drawing::Sign::Tick : Drawing::Sign::Square,
                      ink);
}

void drawComboBox(const QStyleOptionComplex &option, QPainter &painter, const QWidget *widget)
{
    drawField(option, painter, widget);
    const Shades shades = Shades::of(option.palette);
    const QColor ink = has(option, QStyle::State_Enabled) ? shades.quiet : shades.disabled;
    const QRect rect = option.rect;
    Drawing::chevron(painter, QPointF(rect.right() - chevronRoom / 2.0, rect.center().y() + 0.5), 8, ink,
                     Drawing::Points::Down);
}

/// A text that is too long for its box loses its middle, as it does in the list below.
QStyleOptionComboBox elided(const QStyleOptionComboBox &combo, int room)
{
    QStyleOptionComboBox result = combo;
    result.currentText = combo.fontMetrics.elidedText(combo.currentText, Qt::ElideMiddle, room);
    return result;
}

void drawScrollBar(const QStyleOptionComplex &option, QPainter &painter, const QRect &slider)
{
    const auto *const bar = qstyleoption_cast<const QStyleOptionSlider *>(&option);
    if (bar == nullptr || bar->maximum <= bar->minimum)
        return;
    const Shades shades = Shades::of(option.palette);
    QRectF thumb = slider;
    thumb.adjust(2, 2, -2, -2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(has(option, QStyle::State_MouseOver) ? shades.mark : shades.edge);
    const double round = qMin(thumb.width(), thumb.height()) / 2;
    painter.drawRoundedRect(thumb, round, round);
    painter.restore();
}
/// The head of a grid's column: flat, with a line below.
void drawHeaderSection(const QStyleOption &option, QPainter &painter)
{
    const Shades shades = Shades::of(option.palette);
    painter.fillRect(option.rect, shades.strip);
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1), shades.line);
    painter.fillRect(QRect(option.rect.right(), option.rect.top() + 5, 1, option.rect.height() - 10), shades.line);
}

/// The selection of a list that cannot be used now is there, and pale.
QStyleOptionViewItem paled(const QStyleOptionViewItem &item)
{
    QStyleOptionViewItem result = item;
    const Shades shades = Shades::of(item.palette);
    result.palette.setColor(QPalette::Disabled, QPalette::Highlight, mixed(shades.field, shades.text, 0.13));
    result.palette.setColor(QPalette::Disabled, QPalette::HighlightedText, shades.quiet);
    return result;
}

/// A bar without buttons at its ends: all of it is the way of the thumb.
QRect scrollBarPart(const QStyleOptionSlider &bar, QStyle::SubControl part)
{
    const bool vertical = bar.orientation == Qt::Vertical;
    const int room = vertical ? bar.rect.height() : bar.rect.width();
    const int range = bar.maximum - bar.minimum;
    const qint64 whole = static_cast<qint64>(range) + bar.pageStep;
    const int shown = range == 0 ? room : static_cast<int>(static_cast<qint64>(room) * bar.pageStep / whole);
    const int length = qMin(room, qMax(24, shown));
    const int start =
        QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, room - length, bar.upsideDown);
    const auto stretch = [&](int from, int size) {
        return vertical ? QRect(bar.rect.x(), bar.rect.y() + from, bar.rect.width(), size)
                        : QRect(bar.rect.x() + from, bar.rect.y(), size, bar.rect.height());
    };
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    case QStyle::SC_ScrollBarSlider:
        return stretch(start, length);
    case QStyle::SC_ScrollBarSubPage:
        return stretch(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return stretch(start + length, room - start - length);
    default:
        return {};
    }
}
} // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    switch (element) {
    case PE_PanelLineEdit:
        return drawLineEdit(*option, *painter, widget);
    case PE_PanelButtonCommand:
    case PE_PanelButtonBevel:
    case PE_PanelButtonTool:
        return drawButton(*option, *painter, widget);
    case PE_IndicatorCheckBox:
        return drawCheckMark(*option, *painter);
    case PE_Frame:
        if (qobject_cast<const QAbstractItemView *>(widget) != nullptr ||
            qobject_cast<const QTextBrowser *>(widget) != nullptr)
            return drawField(*option, *painter, widget);
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    case PE_FrameFocusRect:
        if (qobject_cast<const QCheckBox *>(widget) != nullptr && showsFocus(*option, widget))
            Drawing::focusRing(*painter, option->rect.adjusted(-3, -1, 3, 1) & widget->rect(),
                               Shades::of(option->palette));
        return;
    default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const
{
    if (const auto *const combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        combo != nullptr && element == CE_ComboBoxLabel) {
        const int room = proxy()->subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget).width() - 2;
        const QStyleOptionComboBox shown = elided(*combo, room);
        return QProxyStyle::drawControl(element, &shown, painter, widget);
    }
    if (element == CE_HeaderSection)
        return drawHeaderSection(*option, *painter);
    const auto *const header = qstyleoption_cast<const QStyleOptionHeaderV2 *>(option);
    if (element == CE_HeaderLabel && header != nullptr) {
        QStyleOptionHeaderV2 inset = *header;
        inset.rect.adjust(textInset - 2, 0, 2 - textInset, 0);
        return QProxyStyle::drawControl(element, &inset, painter, widget);
    }
    const auto *const item = qstyleoption_cast<const QStyleOptionViewItem *>(option);
    if (element == CE_ItemViewItem && item != nullptr && !has(*option, State_Enabled)) {
        const QStyleOptionViewItem pale = paled(*item);
        return QProxyStyle::drawControl(element, &pale, painter, widget);
    }
    const auto *const button = qstyleoption_cast<const QStyleOptionButton *>(option);
    const bool ownInk = element == CE_PushButtonLabel && button != nullptr && widget != nullptr;
    if (!ownInk || !has(*option, State_Enabled))
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionButton inked = *button;
    const Shades shades = Shades::of(option->palette);
    if (isAccent(widget))
        inked.palette.setColor(QPalette::ButtonText, shades.onAccent);
    else if (has(*option, State_On) && contrast(shades.accent, shades.panel) >= 4.5)
        inked.palette.setColor(QPalette::ButtonText, shades.accent);
    QProxyStyle::drawControl(element, &inked, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const
{
    if (control == CC_ComboBox)
        drawComboBox(*option, *painter, widget);
    else if (control == CC_ScrollBar)
        drawScrollBar(*option, *painter, proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget));
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        return 16;
    case PM_CheckBoxLabelSpacing:
        return 8;
    case PM_ScrollBarExtent:
        return 10;
    case PM_DefaultFrameWidth:
        return 1;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_ToolTipLabelFrameWidth:
        return 5;
    case PM_FocusFrameHMargin:
        return 6;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                              const QWidget *widget) const
{
    QSize needed = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
        needed = size + QSize(2 * textInset, 6);
        if (widget != nullptr && widget->property(accentProperty).toBool())
            return needed.expandedTo(accentSize);
        return needed.expandedTo(QSize(rowHeight, rowHeight));
    case CT_ComboBox:
        needed = size + QSize(textInset + chevronRoom, 6);
        return needed.expandedTo(QSize(0, rowHeight));
    case CT_LineEdit:
        return needed.expandedTo(QSize(0, rowHeight));
    case CT_ItemViewItem:
        return needed.expandedTo(QSize(0, 23));
    default:
        return needed;
    }
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                            const QWidget *widget) const
{
    const QRect rect = option->rect;
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return rect.adjusted(textInset - 2, 2, -chevronRoom, -2);
    if (control == CC_ComboBox && part == SC_ComboBoxArrow)
        return QRect(rect.right() - chevronRoom, rect.top(), chevronRoom, rect.height());
    const auto *const bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && bar != nullptr)
        return scrollBarPart(*bar, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect Style::subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    const auto *const frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (element == SE_LineEditContents && frame != nullptr && frame->lineWidth > 0)
        return option->rect.adjusted(textInset - 2, 2, 2 - textInset, -2);
    return QProxyStyle::subElementRect(element, option, widget);
}

int Style::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *data) const
{
    if (hint == SH_UnderlineShortcut)
        return mUnderlines ? 1 : 0;
    if (hint == SH_ComboBox_Popup || hint == SH_EtchDisabledText || hint == SH_DitherDisabledText ||
        hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    if (hint == SH_ItemView_ArrowKeysNavigateIntoChildren)
        return 1; // a folder that is open is gone into by the key that opens it
    return QProxyStyle::styleHint(hint, option, widget, data);
}

void Style::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QAbstractItemView *>(widget) != nullptr)
        widget->setAttribute(Qt::WA_Hover);
}
