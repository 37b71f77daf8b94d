// The program's own icons: SVG line drawings on grids of 16 and 24, drawn in the text colour of the palette in force at
// the moment of painting, at whatever size and scale is asked for.
#pragma once

#include <QIcon>

namespace Icons {
/// The icon `name` of the resource folder, inked by palette; an icon that is not there is empty.
[[nodiscard]] QIcon inked(const QString &name);
/// The same in one fixed colour.
[[nodiscard]] QIcon inked(const QString &name, const QColor &ink);
/// Draws icon `name` into `rect` with `ink`.
void paint(QPainter &painter, const QRectF &rect, const QString &name, const QColor &ink);
/// The program's icon, in its own colours.
[[nodiscard]] QIcon application();
} // namespace Icons
