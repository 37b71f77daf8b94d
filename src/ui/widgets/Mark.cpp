#include "ui/widgets/Mark.h"

#include "ui/look/Tones.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
struct Report
{
    Colour colour;
    Drawing::Sign sign;
    QLatin1StringView meaning;
};

/// The first stands for any colour that is not told.
constexpr std::array<Report, 5> reports{{
    {Colours::ButtonFace, Drawing::Sign::Dash, "nothing to report"_L1},
    {Colours::Green, Drawing::Sign::Tick, "yes"_L1},
    {Colours::Red, Drawing::Sign::Cross, "no"_L1},
    {Colours::Yellow, Drawing::Sign::Equals, "there already"_L1},
    {Colours::Blue, Drawing::Sign::Square, "stopped"_L1},
}};

const Report &reportOf(Colour colour)
{
    const auto *const found = std::find_if(reports.begin(), reports.end(),
                                           [colour](const Report &report) { return report.colour == colour; });
    return found == reports.end() ? reports.front() : *found;
}
} // namespace

void Mark::setColour(Colour colour)
{
    mColour = colour;
    setAccessibleDescription(meaning());
    update();
}

Drawing::Sign Mark::sign() const
{
    return reportOf(mColour).sign;
}

QString Mark::meaning() const
{
    return reportOf(mColour).meaning;
}

QColor Mark::fill() const
{
    const Shades shades = Shades::of(palette());
    const auto tone = Tones::of(mColour, Colours::ButtonText, shades);
    return tone ? tone->fill : mixed(shades.panel, shades.text, 0.16);
}

QColor Mark::ink() const
{
    const Shades shades = Shades::of(palette());
    const auto tone = Tones::of(mColour, Colours::ButtonText, shades);
    return tone ? tone->ink : shades.text;
}

Lamp::Lamp(QWidget *parent) : Mark(parent)
{
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
}

void Lamp::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF disc(0, 0, 16, 16);
    disc.moveCenter(QRectF(rect()).center());
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill());
    painter.drawEllipse(disc);
    Drawing::sign(painter, disc, sign(), ink());
    if (Drawing::showsFocus(*this)) {
        painter.setPen(QPen(Shades::of(palette()).accent, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(disc.adjusted(-1.2, -1.2, 1.2, 1.2));
    }
}

EndMark::EndMark(QWidget *parent) : Mark(parent)
{
    setFocusPolicy(Qt::ClickFocus);
}

void EndMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    const bool neutral = sign() == Drawing::Sign::Dash;
    QColor ground = neutral ? shades.strip : fill();
    if (underMouse())
        ground = mixed(ground, shades.text, 0.14);
    QRectF square(0, 0, 24, 24);
    square.moveCenter(QRectF(rect()).center());
    Drawing::box(painter, square, ground, QColor());
    // Who comes near sees what a click does, everybody else the last page's outcome.
    const bool ends = neutral || underMouse() || Drawing::showsFocus(*this);
    Drawing::sign(painter, square, ends ? Drawing::Sign::Cross : sign(), neutral ? shades.text : ink());
    if (Drawing::showsFocus(*this))
        Drawing::focusRing(painter, square, shades);
}

void EndMark::enterEvent(QEnterEvent *)
{
    update();
}

void EndMark::leaveEvent(QEvent *)
{
    update();
}
