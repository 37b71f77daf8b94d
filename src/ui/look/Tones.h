// What the logic's 32-bit colours look like on this desktop: system colours are the palette's, the report colours have
// tuned tones for light and dark, any other is shown as it is, always with an ink that reads.
#pragma once

#include "controls/Colours.h"
#include "ui/look/Shades.h"

#include <optional>

/// A colour to fill with and the ink to write on it.
struct Tone
{
    QColor fill, ink;
};

namespace Tones {
/// The fill of a control's back colour and the ink for its text; nothing where both are the desktop's own. A text
/// colour that does not read on its ground gives way to black or white.
[[nodiscard]] std::optional<Tone> of(Colour back, Colour fore, const Shades &shades);
/// The same for a list: white is the desktop's own ground, the grey of buttons says that it is not to be used by hand,
/// and on a dark desktop any other colour is a tint.
[[nodiscard]] std::optional<Tone> ofList(Colour back, Colour fore, const Shades &shades);
/// A field with a tint of the tone, and the desktop's own text.
[[nodiscard]] Tone tinted(const Tone &tone, const Shades &shades);
} // namespace Tones
