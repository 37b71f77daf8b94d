#include "ui/windows/ScreenScale.h"

#include <QtGlobal>

namespace {
/// Edge by edge, so that rectangles that touch still do.
QRect scaled(const QRect &rect, double factor)
{
    const auto edge = [factor](int position) { return qRound(position * factor); };
    const QPoint first(edge(rect.left()), edge(rect.top()));
    return {first, QSize(edge(rect.left() + rect.width()) - first.x(), edge(rect.top() + rect.height()) - first.y())};
}
} // namespace

double ScreenScale::ofOurs()
{
    const double factor = qgetenv("QT_SCALE_FACTOR").toDouble();
    return factor > 0 ? factor : 1.0;
}

QRect ScreenScale::toOthers(const QRect &ours)
{
    return scaled(ours, ofOurs());
}

QRect ScreenScale::toOurs(const QRect &others)
{
    return scaled(others, 1 / ofOurs());
}
