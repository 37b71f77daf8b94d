#include "ui/widgets/SegmentStrip.h"

#include "ui/look/Drawing.h"
#include "ui/look/Style.h"

namespace {
constexpr int sidePadding = 12;
}

SegmentStrip::SegmentStrip(QWidget *parent) : QTabBar(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setFocusPolicy(Qt::ClickFocus);
}

QSize SegmentStrip::tabSizeHint(int index) const
{
    QFont bold = font();
    bold.setBold(true);
    return {QFontMetrics(bold).horizontalAdvance(tabText(index)) + 2 * sidePadding,
            qMax(Style::rowHeight, fontMetrics().height() + 8)};
}

void SegmentStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    for (int i = 0; i < count(); ++i) {
        const QRect tab = tabRect(i);
        const bool current = i == currentIndex();
        if (current && mUnderlined)
            painter.fillRect(tab.adjusted(sidePadding, tab.height() - 2, -sidePadding, 0), shades.accent);
        else if (current)
            Drawing::box(painter, tab, mixed(shades.window, shades.accent, 0.16), QColor());
        QFont face = font();
        face.setBold(current);
        painter.setFont(face);
        painter.setPen(current ? shades.text : shades.quiet);
        painter.drawText(tab, Qt::AlignCenter | Qt::TextShowMnemonic, tabText(i));
        if (current && Drawing::showsFocus(*this))
            Drawing::focusRing(painter, tab, shades);
    }
}
