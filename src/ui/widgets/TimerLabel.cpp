#include "ui/widgets/TimerLabel.h"

#include "ui/look/Drawing.h"
#include "ui/look/Style.h"

#include <QFontDatabase>

using namespace Qt::StringLiterals;

TimerLabel::TimerLabel(QWidget *parent) : QLabel(parent)
{
    QFont digits = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    digits.setPointSizeF(font().pointSizeF() * 2.0);
    digits.setBold(true);
    setFont(digits);
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
}

void TimerLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    const bool coloured = testAttribute(Qt::WA_SetPalette);
    const QColor fill = coloured ? palette().color(QPalette::Active, QPalette::Base) : shades.panel;
    Drawing::box(painter, rect(), fill, coloured ? fill : shades.edge);
    painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
    painter.setFont(font());
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (Drawing::showsFocus(*this))
        Drawing::focusRing(painter, rect(), shades);
}

QSize TimerLabel::sizeHint() const
{
    const QString longest = text().size() > 3 ? text() : u"000"_s;
    return (fontMetrics().size(Qt::TextSingleLine, longest) + QSize(16, 8)).expandedTo(Style::accentSize);
}
