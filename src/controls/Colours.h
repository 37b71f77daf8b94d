// 32-bit colour values as the rules write them: 0x00BBGGRR, or a system colour with the top bit set.
#pragma once

#include <QtGlobal>

using Colour = quint32;

/// A colour from its parts, each 0 to 255.
constexpr Colour rgb(Colour red, Colour green, Colour blue)
{
    return red | green << 8U | blue << 16U;
}

namespace Colours {
constexpr Colour Red = 255;
constexpr Colour Green = 65280;
constexpr Colour Yellow = 65535;
constexpr Colour Blue = 16711680;
constexpr Colour Black = 0;
constexpr Colour White = 16777215;
constexpr Colour Window = 0x80000005;     ///< the neutral colour of a text box
constexpr Colour WindowText = 0x80000008; ///< text on a window
constexpr Colour ButtonFace = 0x8000000F; ///< the neutral colour of a label
constexpr Colour ButtonText = 0x80000012;
} // namespace Colours
