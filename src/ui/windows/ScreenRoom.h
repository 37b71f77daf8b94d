// Where windows come up: whole within the room of the screen, title bar and all. Knows no settings.
#pragma once

#include <QRect>

class QWidget;

namespace ScreenRoom {
/// The place of a frame in `room` that is nearest to the one wanted; smaller where the room is.
[[nodiscard]] QRect within(const QRect &room, const QRect &wanted);
/// What frame and title bar take around a window: a guess, rather too large, until they have been drawn.
[[nodiscard]] QSize frameAround(const QWidget &window);
/// Puts the frame's corner to `corner`, or as near as the whole window lies in `room`.
void place(QWidget &window, QPoint corner, const QRect &room);
/// Puts it in the middle of `room`.
void placeInMiddle(QWidget &window, const QRect &room);
/// A window that has grown stays on its screen.
void keepOnScreen(QWidget &window);
/// A window that is still to be shown, and placed by others, takes no more than the screen has.
void fitOnScreen(QWidget &window, QSize wanted);
} // namespace ScreenRoom
