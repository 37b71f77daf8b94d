#include "store/sql/LikePattern.h"
#include "store/StoredText.h"
#include "util/Text.h"

#include <algorithm>

namespace {
constexpr QChar anyText = u'%';
constexpr QChar anyCharacter = u'_';

bool fits(QChar expected, QChar unit)
{
    return expected == anyCharacter || expected == unit;
}

bool fitsAt(QStringView text, qsizetype place, QStringView piece)
{
    return std::equal(piece.begin(), piece.end(), text.begin() + place, fits);
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char unit) { return static_cast<signed char>(unit) >= 0; });
}

bool fitsAscii(char unit, char expected)
{
    const char lower = unit >= 'A' && unit <= 'Z' ? static_cast<char>(unit + ('a' - 'A')) : unit;
    return expected == '_' || expected == lower;
}

bool fitsAt(std::string_view text, std::size_t place, std::string_view piece)
{
    return std::equal(piece.begin(), piece.end(), text.begin() + std::ptrdiff_t(place),
                      [](char expected, char unit) { return fitsAscii(unit, expected); });
}

// The first place at or behind `from` where the piece fits, or -1.
qsizetype placeOf(QStringView text, QStringView piece, qsizetype from)
{
    if (!piece.contains(anyCharacter))
        return text.indexOf(piece, from);
    const auto *const found = std::search(text.begin() + from, text.end(), piece.begin(), piece.end(),
                                          [](QChar unit, QChar expected) { return fits(expected, unit); });
    return found == text.end() ? -1 : found - text.begin();
}
} // namespace

LikePattern::LikePattern(QStringView pattern) : mPieces(cUtility::lowered(pattern).split(anyText))
{
    for (const QString &piece : mPieces)
        mAscii.push_back(piece.toStdString());
    if (!std::all_of(mAscii.begin(), mAscii.end(), isAscii))
        mAscii.clear();
}

bool LikePattern::matchesUtf8(std::string_view text) const
{
    return isAscii(text) ? matchesAscii(text) : matches(storedText(text));
}

bool LikePattern::matches(QStringView text) const
{
    const QString lower = cUtility::lowered(text);
    const QString &first = mPieces.constFirst();
    const QString &last = mPieces.constLast();
    if (mPieces.size() == 1)
        return lower.size() == first.size() && fitsAt(lower, 0, first);
    if (lower.size() < first.size() + last.size() || !fitsAt(lower, 0, first))
        return false;
    // Each piece at the first place that is left for it: a later one never leaves more to the pieces behind it.
    const qsizetype end = lower.size() - last.size();
    const QStringView middle = QStringView(lower).first(end);
    qsizetype place = first.size();
    for (qsizetype piece = 1; piece + 1 < mPieces.size(); ++piece) {
        place = placeOf(middle, mPieces[piece], place);
        if (place < 0)
            return false;
        place += mPieces[piece].size();
    }
    return fitsAt(lower, end, last);
}

/// As above, unit for unit.
bool LikePattern::matchesAscii(std::string_view text) const
{
    if (mAscii.empty())
        return false;
    const std::string &first = mAscii.front(), &last = mAscii.back();
    if (mAscii.size() == 1)
        return text.size() == first.size() && fitsAt(text, 0, first);
    if (text.size() < first.size() + last.size() || !fitsAt(text, 0, first))
        return false;
    const auto *const end = text.data() + text.size() - last.size();
    const auto *place = text.data() + first.size();
    for (std::size_t piece = 1; piece + 1 < mAscii.size(); ++piece) {
        place = std::search(place, end, mAscii[piece].begin(), mAscii[piece].end(), fitsAscii);
        if (place == end && !mAscii[piece].empty())
            return false;
        place += mAscii[piece].size();
    }
    return fitsAt(text, text.size() - last.size(), last);
}
