// The length that a text column holds. What a user types, drops or pastes as an item is cut to it at entry, so that an
// item and its row are equal. Knows nobody.
#pragma once

#include <QString>

namespace cUtility {
inline constexpr qsizetype columnLength = 255;

/// `text`, cut to what a text column holds; a pair of surrogates is not split.
[[nodiscard]] inline QString asColumnText(const QString &text)
{
    if (text.size() <= columnLength)
        return text;
    return text.left(text[columnLength - 1].isHighSurrogate() ? columnLength - 1 : columnLength);
}
} // namespace cUtility
