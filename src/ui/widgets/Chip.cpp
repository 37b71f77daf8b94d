#include "ui/widgets/Chip.h"

#include "ui/look/Drawing.h"
#include "ui/look/Icons.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int inset = 6;
constexpr int iconSize = 16;
constexpr int gap = 4;
} // namespace

Chip::Chip(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    setFont(small);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Chip::setIcon(const QString &name)
{
    mIcon = name;
    update();
}

void Chip::setWord(const QString &word)
{
    mWord = word;
    updateGeometry();
    update();
}

void Chip::setCaption(const QString &caption)
{
    if (mCaption == caption)
        return;
    mCaption = caption;
    updateGeometry();
    update();
}

void Chip::setCaptioned(bool captioned)
{
    mCaptioned = captioned;
    updateGeometry();
    update();
}

QString Chip::text() const
{
    if (mCaption.isEmpty() || !mCaptioned)
        return mWord;
    // A list is named by a letter, a position by a figure.
    return mWord + (mCaption.at(0).isLetter() ? u" in "_s : u" "_s) + mCaption;
}

QSize Chip::sizeHint() const
{
    return {2 * inset + iconSize + gap + fontMetrics().horizontalAdvance(text()), qMax(22, fontMetrics().height() + 4)};
}

void Chip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    const bool coloured = testAttribute(Qt::WA_SetPalette);
    QColor fill = coloured ? palette().color(QPalette::Active, QPalette::Base) : QColor(Qt::transparent);
    QColor ink = coloured ? palette().color(QPalette::Active, QPalette::WindowText) : shades.quiet;
    if (!isEnabled()) {
        fill = Qt::transparent;
        ink = shades.disabled;
    } else if (!coloured && underMouse()) {
        fill = mixed(shades.panel, shades.text, 0.07);
        ink = shades.text;
    }
    Drawing::box(painter, rect(), fill, QColor());
    const QRectF icon(inset, (height() - iconSize) / 2.0, iconSize, iconSize);
    Icons::paint(painter, icon, mIcon, ink);
    painter.setPen(ink);
    painter.setFont(font());
    painter.drawText(rect().adjusted(inset + iconSize + gap, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, text());
    if (Drawing::showsFocus(*this))
        Drawing::focusRing(painter, rect(), shades);
}

void Chip::enterEvent(QEnterEvent *)
{
    update();
}

void Chip::leaveEvent(QEvent *)
{
    update();
}
