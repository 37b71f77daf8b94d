#include "ui/look/Tones.h"

#include <algorithm>
#include <array>

namespace {
constexpr double readableText = 4.5;
/// How strongly a field is tinted, and how far a list that is not to be used goes towards its text.
constexpr double tint = 0.22;
constexpr double greyed = 0.12;

struct ReportTone
{
    Colour colour;
    QRgb light, dark;
};

constexpr std::array<ReportTone, 4> reportTones{{
    {Colours::Red, 0xFFC9281E, 0xFFF0685F},
    {Colours::Green, 0xFF14803C, 0xFF3CC56F},
    {Colours::Yellow, 0xFFF2B90C, 0xFFF2C335},
    {Colours::Blue, 0xFF2350C4, 0xFF6FA4FF},
}};

constexpr bool isSystemColour(Colour colour)
{
    return (colour & 0x80000000U) != 0;
}

QColor plain(Colour colour)
{
    return QColor(static_cast<int>(colour & 0xFFU), static_cast<int>(colour >> 8U & 0xFFU),
                  static_cast<int>(colour >> 16U & 0xFFU));
}

QColor fillOf(Colour colour, bool dark)
{
    const auto *const found = std::find_if(reportTones.begin(), reportTones.end(),
                                           [colour](const ReportTone &tone) { return tone.colour == colour; });
    if (found == reportTones.end())
        return plain(colour);
    return QColor(dark ? found->dark : found->light);
}
} // namespace

std::optional<Tone> Tones::of(Colour back, Colour fore, const Shades &shades)
{
    if (isSystemColour(back) && isSystemColour(fore))
        return std::nullopt;
    if (isSystemColour(back)) {
        const QColor ground = back == Colours::ButtonFace ? shades.panel : shades.field;
        const QColor ink = fillOf(fore, shades.dark);
        return Tone{ground, contrast(ground, ink) < readableText ? shades.text : ink};
    }
    if (isSystemColour(fore))
        return Tone{fillOf(back, shades.dark), inkOn(fillOf(back, shades.dark))};
    // A text colour that was asked for may want the other tone of its ground: white on red reads on the deeper red
    // only.
    for (const bool dark : {shades.dark, !shades.dark}) {
        if (contrast(fillOf(back, dark), plain(fore)) >= readableText)
            return Tone{fillOf(back, dark), plain(fore)};
    }
    const QColor fill = fillOf(back, shades.dark);
    return Tone{fill, inkOn(fill)};
}

Tone Tones::tinted(const Tone &tone, const Shades &shades)
{
    return {mixed(shades.field, tone.fill, tint), shades.text};
}

std::optional<Tone> Tones::ofList(Colour back, Colour fore, const Shades &shades)
{
    if (back == Colours::ButtonFace)
        return Tone{mixed(shades.field, shades.text, greyed), shades.text};
    // White is what the ground of a list is anyway; a dark desktop has its own.
    const auto tone = of(back == Colours::White ? Colours::Window : back, fore, shades);
    // Where one reads long, a light ground on a dark desktop is a lamp in the eye.
    return tone && shades.dark ? tinted(*tone, shades) : tone;
}
