#include "ui/binding/Binder.h"

#include "ui/binding/DragAndDrop.h"
#include "ui/look/Tones.h"
#include "ui/widgets/CardView.h"
#include "ui/widgets/Chip.h"
#include "ui/widgets/DropDown.h"
#include "ui/widgets/GridTable.h"
#include "ui/widgets/ItemList.h"
#include "ui/widgets/Mark.h"
#include "ui/widgets/NumberEdit.h"
#include "ui/widgets/StatusBarLine.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTabBar>

using namespace Qt::StringLiterals;
using Bindings::ReturnKey;

namespace {
/// What stands behind a widget's name when its control has another widget elsewhere.
constexpr QLatin1StringView place = "_on"_L1;
/// A line of a tool tip is no longer.
constexpr int tipLine = 60;
/// Of a designed line: it is locked, not disabled, so that it can be read and copied at any time.
constexpr const char *readable = "readable";

QString withoutMnemonic(QString text)
{
    return text.remove(u'&');
}

/// `tip` in lines that the eye takes in, with nothing in it taken for markup.
QString shownTip(const QString &tip)
{
    QStringList lines;
    QString line;
    for (const QString &word : tip.split(u' ')) {
        if (!line.isEmpty() && line.size() + 1 + word.size() > tipLine)
            lines.append(std::exchange(line, QString()));
        line += (line.isEmpty() ? QString() : u" "_s) + word;
    }
    lines.append(line);
    const QString broken = lines.join(u'\n');
    return Qt::mightBeRichText(broken) ? u"<p style='white-space:pre'>"_s + broken.toHtmlEscaped() + u"</p>"_s : broken;
}

/// The menu key of keyboards that have none.
bool isMenuKey(const QEvent &event)
{
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier;
}

void pressMenuKey(QWidget &widget)
{
    const QPoint middle = widget.rect().center();
    QContextMenuEvent press(QContextMenuEvent::Keyboard, middle, widget.mapToGlobal(middle));
    QCoreApplication::sendEvent(&widget, &press);
}

QPalette toned(const Tone &tone)
{
    QPalette palette;
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        palette.setColor(role, tone.fill);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, tone.ink);
    return palette;
}
} // namespace

Binding::Binding(Control &control, QWidget &widget, Bindings::Bound bound)
    : QObject(&widget), mControl(control), mWidget(widget), mBound(std::move(bound)),
      mDesignedName(widget.accessibleName())
{
    connect(&control, &Control::changed, this, [this] {
        if (!std::exchange(mOutdated, true))
            Q_EMIT outdated(this);
    });
    widget.installEventFilter(this);
    if (auto *const view = qobject_cast<QAbstractItemView *>(&widget))
        view->viewport()->installEventFilter(this);
    else
        widget.setMouseTracking(true);
    // Where one types into a combo, the line inside gets the mouse.
    if (const auto *const combo = qobject_cast<QComboBox *>(&widget); combo != nullptr && combo->isEditable())
        combo->lineEdit()->installEventFilter(this);
}

void Binding::show()
{
    mOutdated = false;
    mBound.show();
    auto *const line = qobject_cast<QLineEdit *>(&mWidget);
    if (line != nullptr && line->property(readable).toBool())
        line->setReadOnly(!mControl.isEnabled());
    else
        mWidget.setEnabled(mControl.isEnabled());
    if (mWidget.isHidden() == mControl.isVisible())
        mWidget.setVisible(mControl.isVisible());
    showColours();
    showWords();
}

void Binding::showColours()
{
    if (qobject_cast<Mark *>(&mWidget) != nullptr)
        return;
    const Shades shades = Shades::of(QApplication::palette());
    const bool list = qobject_cast<QAbstractItemView *>(&mWidget) != nullptr;
    auto tone = (list ? Tones::ofList : Tones::of)(mControl.backColor(), mControl.foreColor(), shades);
    if (tone && qobject_cast<QLineEdit *>(&mWidget) != nullptr)
        tone = Tones::tinted(*tone, shades);
    const bool coloured = mWidget.testAttribute(Qt::WA_SetPalette);
    if (!tone && coloured)
        mWidget.setPalette(QPalette());
    else if (tone && (!coloured || mWidget.palette() != toned(*tone).resolve(mWidget.palette())))
        mWidget.setPalette(toned(*tone));
}

void Binding::showWords()
{
    const QString tip = shownTip(mControl.toolTipText());
    if (mWidget.toolTip() != tip) {
        mWidget.setToolTip(tip);
        // The description of a mark, and of the status line, is what it reports.
        if (qobject_cast<Mark *>(&mWidget) == nullptr && qobject_cast<StatusBarLine *>(&mWidget) == nullptr)
            mWidget.setAccessibleDescription(mControl.toolTipText());
    }
    QString name = ownWords();
    for (const QString &other : {mControl.toolTipText(), mDesignedName}) {
        if (name.isEmpty())
            name = other;
    }
    name = withoutMnemonic(name);
    if (mWidget.accessibleName() != name)
        mWidget.setAccessibleName(name);
    if (QWidget *const inner = mWidget.focusProxy(); inner != nullptr && inner->accessibleName() != name)
        inner->setAccessibleName(name);
}

QString Binding::ownWords() const
{
    if (const auto *const status = qobject_cast<StatusBarLine *>(&mWidget))
        return status->text();
    if (const auto *const chip = qobject_cast<Chip *>(&mWidget))
        return chip->text();
    const auto *const button = qobject_cast<QAbstractButton *>(&mWidget);
    return mControl.caption().isEmpty() && button != nullptr ? button->text() : mControl.caption();
}

bool Binding::eventFilter(QObject *watched, QEvent *event)
{
    if (!mControl.isEnabled() || !mWidget.isEnabled())
        return QObject::eventFilter(watched, event);
    const bool inner = watched != &mWidget && qobject_cast<QLineEdit *>(watched) != nullptr;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return mousePressed(*event);
    case QEvent::MouseMove:
        mControl.mouseMove();
        return false;
    case QEvent::KeyPress:
        if (isMenuKey(*event)) {
            pressMenuKey(*qobject_cast<QWidget *>(watched));
            return true;
        }
        return !inner && keyPressed(*event);
    case QEvent::ContextMenu:
        if (static_cast<QContextMenuEvent *>(event)->reason() != QContextMenuEvent::Keyboard)
            return false;
        mControl.mouseDown(MouseButton::Right);
        return !inner && qobject_cast<QLineEdit *>(&mWidget) == nullptr;
    case QEvent::FocusOut: {
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        auto *const box = qobject_cast<TextBox *>(&mControl);
        if (box != nullptr && reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            box->validate();
        return false;
    }
    default:
        return false;
    }
}

bool Binding::mousePressed(const QEvent &event)
{
    const auto button = static_cast<const QMouseEvent &>(event).button();
    const QPointer<QWidget> alive(&mWidget);
    Control &control = mControl;
    const bool second = event.type() == QEvent::MouseButtonDblClick;
    // The second press of two quick ones is a press of its own on a label, which steps through choices.
    if (!second || qobject_cast<Label *>(&control) != nullptr) {
        if (button == Qt::LeftButton)
            control.mouseDown(MouseButton::Left);
        else if (button == Qt::RightButton)
            control.mouseDown(MouseButton::Right);
    }
    if (second && button == Qt::LeftButton)
        control.doubleClick();
    // A press may end the program: nothing is left then that could take the event.
    return alive.isNull();
}

bool Binding::keyPressed(const QEvent &event)
{
    const auto &key = static_cast<const QKeyEvent &>(event);
    const bool wanted = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (mBound.returnKey == ReturnKey::PressesLeft && (wanted || key.key() == Qt::Key_Space)) {
        mControl.mouseDown(MouseButton::Left);
        return true;
    }
    if (mBound.returnKey == ReturnKey::DoubleClicks && wanted) {
        mControl.doubleClick();
        return true;
    }
    const bool edits =
        key.modifiers() == Qt::NoModifier && (key.key() == Qt::Key_Insert || key.key() == Qt::Key_Delete);
    const auto *const combo = qobject_cast<ComboBox *>(&mControl);
    const bool typed = combo != nullptr && combo->style() == ComboBox::Style::DropDownCombo;
    if (edits && !typed && qobject_cast<ListControl *>(&mControl) != nullptr) {
        mControl.keyDown(key.key() == Qt::Key_Insert ? EditKey::Insert : EditKey::Delete);
        return true;
    }
    return false;
}

QString Binder::widgetName(const QString &controlName)
{
    QString name = controlName;
    return name.replace(u'(', u'_').remove(u')');
}

template <class SomeControl, class SomeWidget> bool Binder::tryBind(Control &control, QWidget &widget)
{
    auto *const someControl = qobject_cast<SomeControl *>(&control);
    auto *const someWidget = qobject_cast<SomeWidget *>(&widget);
    if (someControl == nullptr || someWidget == nullptr)
        return false;
    take(control, widget, Bindings::bind(*someControl, *someWidget));
    return true;
}

void Binder::bindAll(const QObject &form, QWidget &root)
{
    QMultiHash<QString, QWidget *> widgets;
    for (QWidget *const widget : root.findChildren<QWidget *>())
        widgets.insert(widget->objectName().section(place, 0, 0), widget);
    for (Control *const control : form.findChildren<Control *>(Qt::FindDirectChildrenOnly)) {
        for (QWidget *const widget : widgets.values(widgetName(control->name())))
            bindOne(*control, *widget);
    }
}

void Binder::bindOne(Control &control, QWidget &widget)
{
    const bool done = tryBind<CheckBox, QAbstractButton>(control, widget) ||
                      tryBind<Button, QAbstractButton>(control, widget) ||
                      tryBind<ComboBox, DropDown>(control, widget) || tryBind<ListBox, ItemList>(control, widget) ||
                      tryBind<TextBox, QLineEdit>(control, widget) || tryBind<NumberBox, NumberEdit>(control, widget) ||
                      tryBind<Grid, GridTable>(control, widget) || tryBind<Card, CardView>(control, widget) ||
                      tryBind<Label, Mark>(control, widget) || tryBind<Label, Chip>(control, widget) ||
                      tryBind<Label, QLabel>(control, widget) || tryBind<PictureBox, StatusBarLine>(control, widget) ||
                      tryBind<PictureBox, Mark>(control, widget) || tryBind<PictureBox, QFrame>(control, widget) ||
                      tryBind<TabControl, QTabBar>(control, widget);
    if (!done)
        qWarning("%s: no binding for a widget of class %s", qUtf8Printable(control.name()),
                 widget.metaObject()->className());
}

void Binder::take(Control &control, QWidget &widget, Bindings::Bound bound)
{
    auto *const binding = new Binding(control, widget, std::move(bound));
    new DragAndDrop(control, widget);
    connect(binding, &Binding::outdated, this, &Binder::noteOutdated);
    mBindings.emplace_back(binding);
    binding->show();
}

void Binder::noteOutdated(Binding *binding)
{
    mOutdated.emplace_back(binding);
    if (mOutdated.size() == 1)
        QMetaObject::invokeMethod(this, &Binder::flush, Qt::QueuedConnection);
}

void Binder::flush()
{
    const auto outdated = std::exchange(mOutdated, {});
    for (const QPointer<Binding> &binding : outdated) {
        if (binding)
            binding->show();
    }
}

void Binder::showAll()
{
    for (const QPointer<Binding> &binding : mBindings) {
        if (binding)
            binding->show();
    }
}

QStringList Binder::boundControls() const
{
    QStringList names;
    for (const QPointer<Binding> &binding : mBindings) {
        if (binding)
            names.append(binding->control().name());
    }
    return names;
}
