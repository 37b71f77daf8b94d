#include "ui/windows/ScreenRoom.h"

#include <QScreen>
#include <QWidget>

namespace {
constexpr QSize usualFrame(8, 40);
}

QRect ScreenRoom::within(const QRect &room, const QRect &wanted)
{
    const QSize size = wanted.size().boundedTo(room.size());
    return {QPoint(qBound(room.left(), wanted.left(), room.right() + 1 - size.width()),
                   qBound(room.top(), wanted.top(), room.bottom() + 1 - size.height())),
            size};
}

QSize ScreenRoom::frameAround(const QWidget &window)
{
    const QSize drawn = window.frameGeometry().size() - window.size();
    return drawn.isNull() ? usualFrame : drawn;
}

void ScreenRoom::place(QWidget &window, QPoint corner, const QRect &room)
{
    const QSize around = frameAround(window);
    const QRect whole = within(room, QRect(corner, window.size() + around));
    window.resize(whole.size() - around);
    window.move(whole.topLeft());
}

void ScreenRoom::placeInMiddle(QWidget &window, const QRect &room)
{
    QRect whole(QPoint(), window.size() + frameAround(window));
    whole.moveCenter(room.center());
    place(window, whole.topLeft(), room);
}

void ScreenRoom::keepOnScreen(QWidget &window)
{
    place(window, window.pos(), window.screen()->availableGeometry());
}

void ScreenRoom::fitOnScreen(QWidget &window, QSize wanted)
{
    window.resize(wanted.boundedTo(window.screen()->availableSize() - frameAround(window)));
}
