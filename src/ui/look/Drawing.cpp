#include "ui/look/Drawing.h"

#include "ui/look/Style.h"

#include <QPainterPath>

namespace {
QPen inkPen(const QColor &ink, double width)
{
    return {ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}
} // namespace

void Drawing::box(QPainter &painter, const QRectF &rect, const QColor &fill, const QColor &border, double width)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double inset = border.isValid() ? width / 2 : 0;
    painter.setPen(border.isValid() ? QPen(border, width) : QPen(Qt::NoPen));
    painter.setBrush(fill);
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), Style::radius, Style::radius);
    painter.restore();
}

bool Drawing::showsFocus(const QWidget &widget)
{
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void Drawing::focusRing(QPainter &painter, const QRectF &rect, const Shades &shades)
{
    box(painter, rect, Qt::transparent, shades.accent, 2.0);
}

void Drawing::chevron(QPainter &painter, const QPointF &centre, double size, const QColor &ink, Points points)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(inkPen(ink, 1.4));
    const double half = size / 2;
    const double rise = (points == Points::Down ? size : -size) / 4;
    painter.drawPolyline(QPolygonF{{centre.x() - half, centre.y() - rise},
                                   {centre.x(), centre.y() + rise},
                                   {centre.x() + half, centre.y() - rise}});
    painter.restore();
}

void Drawing::sign(QPainter &painter, const QRectF &rect, Sign sign, const QColor &ink)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const auto at = [&rect](double x, double y) {
        return QPointF(rect.x() + rect.width() * x, rect.y() + rect.height() * y);
    };
    painter.setPen(inkPen(ink, rect.width() / 9.0));
    painter.setBrush(Qt::NoBrush);
    switch (sign) {
    case Sign::Dash:
        painter.drawLine(at(0.32, 0.5), at(0.68, 0.5));
        break;
    case Sign::Tick:
        painter.drawPolyline(QPolygonF{at(0.28, 0.52), at(0.44, 0.68), at(0.73, 0.34)});
        break;
    case Sign::Cross:
        painter.drawLine(at(0.33, 0.33), at(0.67, 0.67));
        painter.drawLine(at(0.67, 0.33), at(0.33, 0.67));
        break;
    case Sign::Equals:
        painter.drawLine(at(0.32, 0.41), at(0.68, 0.41));
        painter.drawLine(at(0.32, 0.59), at(0.68, 0.59));
        break;
    case Sign::Square:
        painter.fillRect(QRectF(at(0.34, 0.34), at(0.66, 0.66)), ink);
        break;
    }
    painter.restore();
}
