#include "store/sql/LikePattern.h"
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

LikePattern::LikePattern(QStringView pattern) : mPieces(cUtility::lowered(pattern).split(anyText)) {}

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
