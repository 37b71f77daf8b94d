#include "ui/look/Shades.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {
constexpr double readableText = 4.5;
constexpr double visibleShape = 3.0;

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// The faintest mixture of `ground` and `ink` that keeps `ratio` on all of `grounds`.
QColor faintest(const QColor &ground, const QColor &ink, double share, double ratio,
                std::initializer_list<QColor> grounds)
{
    QColor colour = mixed(ground, ink, share);
    const auto tooFaint = [&](const QColor &behind) { return contrast(colour, behind) < ratio; };
    while (share < 1.0 && std::any_of(grounds.begin(), grounds.end(), tooFaint)) {
        share = std::min(1.0, share + 0.02);
        colour = mixed(ground, ink, share);
    }
    return colour;
}
} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor mixed(const QColor &from, const QColor &to, double share)
{
    const auto between = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(between(from.redF(), to.redF()), between(from.greenF(), to.greenF()),
                            between(from.blueF(), to.blueF()));
}

QColor inkOn(const QColor &fill)
{
    return contrast(fill, Qt::white) >= contrast(fill, Qt::black) ? Qt::white : Qt::black;
}

Shades Shades::of(const QPalette &palette)
{
    constexpr auto group = QPalette::Active;
    Shades shades;
    shades.window = palette.color(group, QPalette::Window);
    shades.text = palette.color(group, QPalette::WindowText);
    shades.dark = luminance(shades.window) < luminance(shades.text);
    shades.field = palette.color(group, QPalette::Base);
    shades.strip = mixed(shades.window, shades.dark ? Qt::black : shades.text, shades.dark ? 0.22 : 0.05);
    shades.panel = shades.dark ? mixed(shades.window, shades.text, 0.045) : shades.field;
    shades.quiet = faintest(shades.window, shades.text, 0.55, readableText,
                            {shades.window, shades.strip, shades.panel, shades.field});
    shades.disabled = mixed(shades.panel, shades.text, 0.40);
    shades.line = mixed(shades.panel, shades.text, 0.12);
    shades.edge = faintest(shades.panel, shades.text, 0.24, visibleShape, {shades.panel, shades.window, shades.field});
    shades.mark = mixed(shades.edge, shades.text, 0.3);
    shades.accent = palette.color(group, QPalette::Highlight);
    shades.onAccent = palette.color(group, QPalette::HighlightedText);
    if (contrast(shades.accent, shades.onAccent) < readableText)
        shades.onAccent = inkOn(shades.accent);
    return shades;
}
