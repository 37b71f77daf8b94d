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

/// A text as a column holds and compares it: cut, and the case of A to Z does not count.
[[nodiscard]] inline QString columnKey(const QString &text)
{
    QString key = asColumnText(text);
    for (QChar &unit : key) {
        if (unit >= u'A' && unit <= u'Z')
            unit = QChar(unit.unicode() + (u'a' - u'A'));
    }
    return key;
}
} // namespace cUtility
