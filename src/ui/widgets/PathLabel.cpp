#include "ui/widgets/PathLabel.h"

#include "ui/look/Shades.h"
#include "ui/look/Style.h"

#include <QPainter>

namespace {
constexpr int leastWidth = 120;
}

void PathLabel::setEmptyText(const QString &text)
{
    mEmptyText = text;
    update();
}

QSize PathLabel::sizeHint() const
{
    return {leastWidth, qMax(Style::rowHeight, fontMetrics().height() + 8)};
}

void PathLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    painter.setPen(text().isEmpty() ? shades.quiet : shades.text);
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     fontMetrics().elidedText(text().isEmpty() ? mEmptyText : text(), Qt::ElideMiddle, width()));
}
