// The few shapes that the window is drawn with, and the rule when one of them is wanted.
#pragma once

#include "ui/look/Shades.h"

#include <QPainter>
#include <QRectF>
#include <QWidget>

namespace Drawing {
/// A rounded box with a border inside `rect`; an invalid border colour draws none.
void box(QPainter &painter, const QRectF &rect, const QColor &fill, const QColor &border, double width = 1.0);
/// True if `widget` has the focus and the user works with the keyboard: the mouse shows by itself where it is.
[[nodiscard]] bool showsFocus(const QWidget &widget);
/// The ring that says where the keyboard is.
void focusRing(QPainter &painter, const QRectF &rect, const Shades &shades);
/// An arrow head as wide as `size`, its point down (or up).
enum class Points { Down, Up };
void chevron(QPainter &painter, const QPointF &centre, double size, const QColor &ink, Points points);

/// The signs of lamps and marks, drawn, so that no font decides how they look.
enum class Sign { Dash, Tick, Cross, Equals, Square };
void sign(QPainter &painter, const QRectF &rect, Sign sign, const QColor &ink);
} // namespace Drawing
