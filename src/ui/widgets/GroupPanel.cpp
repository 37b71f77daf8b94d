#include "ui/widgets/GroupPanel.h"

#include "ui/look/Drawing.h"

void GroupPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    Drawing::box(painter, rect(), shades.panel, shades.line);
}

GroupHeading::GroupHeading(QWidget *parent) : QWidget(parent)
{
    QFont heading = font();
    heading.setPointSizeF(heading.pointSizeF() * 0.86);
    heading.setBold(true);
    heading.setCapitalization(QFont::AllUppercase);
    heading.setLetterSpacing(QFont::AbsoluteSpacing, 0.5);
    setFont(heading);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void GroupHeading::setText(const QString &text)
{
    mText = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize GroupHeading::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(mText.toUpper()) + 4, qMax(20, fontMetrics().height())};
}

void GroupHeading::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Shades::of(palette()).quiet);
    painter.setFont(font());
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft, mText);
}
