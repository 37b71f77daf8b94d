#include "ui/widgets/TabStrip.h"

#include "ui/look/Drawing.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

namespace {
constexpr int sidePadding = 16;
constexpr int stripHeight = 40;
} // namespace

TabStrip::TabStrip(QWidget *parent) : QTabBar(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setFocusPolicy(Qt::ClickFocus);
    setMouseTracking(true);
}

QSize TabStrip::tabSizeHint(int index) const
{
    QFont bold = font();
    bold.setBold(true);
    return {QFontMetrics(bold).horizontalAdvance(tabText(index)) + 2 * sidePadding,
            qMax(stripHeight, fontMetrics().height() + 16)};
}

void TabStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    const QPoint mouse = mapFromGlobal(QCursor::pos());
    for (int i = 0; i < count(); ++i) {
        const QRect tab = tabRect(i);
        const bool current = i == currentIndex();
        if (current) {
            // The rounding below the strip is cut off, so that the tab and its page are one sheet.
            const QRect sheet = tab.adjusted(0, 6, 0, 8);
            Drawing::box(painter, sheet, shades.window, QColor());
            painter.fillRect(QRectF(tab.x() + sidePadding, tab.y() + 6, tab.width() - 2 * sidePadding, 2),
                             shades.accent);
        }
        QFont face = font();
        face.setBold(current);
        painter.setFont(face);
        const bool lit = current || (underMouse() && tab.contains(mouse));
        painter.setPen(lit ? shades.text : shades.quiet);
        painter.drawText(tab.adjusted(0, 6, 0, 0), Qt::AlignCenter | Qt::TextShowMnemonic, tabText(i));
        if (current && Drawing::showsFocus(*this))
            Drawing::focusRing(painter, tab.adjusted(4, 11, -4, -5), shades);
    }
}

void TabStrip::mousePressEvent(QMouseEvent *event)
{
    QTabBar::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    mDrag = Drag::Ready;
    mGrabbed = mapTo(window(), event->position().toPoint());
}

void TabStrip::mouseMoveEvent(QMouseEvent *event)
{
    QTabBar::mouseMoveEvent(event);
    update();
    if (event->buttons().testFlag(Qt::LeftButton))
        drag(*event);
    else
        mDrag = Drag::None;
}

void TabStrip::mouseReleaseEvent(QMouseEvent *event)
{
    QTabBar::mouseReleaseEvent(event);
    mDrag = Drag::None;
}

void TabStrip::drag(QMouseEvent &event)
{
    const QPoint here = mapTo(window(), event.position().toPoint());
    if (mDrag == Drag::Ready && (here - mGrabbed).manhattanLength() >= QApplication::startDragDistance()) {
        QWindow *const handle = window()->windowHandle();
        mDrag = handle != nullptr && handle->startSystemMove() ? Drag::BySystem : Drag::ByUs;
    }
    // Where the desktop cannot move windows for us, the window goes along with the pointer.
    if (mDrag == Drag::ByUs)
        window()->move(event.globalPosition().toPoint() - mGrabbed);
}
