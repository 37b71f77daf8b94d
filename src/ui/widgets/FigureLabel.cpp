#include "ui/widgets/FigureLabel.h"

#include "ui/look/Shades.h"

#include <QFontDatabase>
#include <QPainter>

using namespace Qt::StringLiterals;

FigureLabel::FigureLabel(QWidget *parent) : QLabel(parent)
{
    QFont digits = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    digits.setPointSizeF(font().pointSizeF() * 0.9);
    setFont(digits);
    setCursor(Qt::PointingHandCursor); // a press shows what it counts
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize FigureLabel::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(u"0000"_s), fontMetrics().height()};
}

void FigureLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    painter.setPen(hasFocus() ? shades.accent : shades.quiet);
    painter.setFont(font());
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, text());
}
