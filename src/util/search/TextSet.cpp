#include "util/search/TextSet.h"

#include "util/Text.h"

#include <algorithm>

TextSet::TextSet(const QStringList &texts, Qt::CaseSensitivity sensitivity) : mTexts(texts), mSensitivity(sensitivity)
{
    if (sensitivity == Qt::CaseInsensitive)
        std::transform(mTexts.begin(), mTexts.end(), mTexts.begin(), cUtility::lowered);
    constexpr qsizetype mostScanned = 8 * LiteralScanner::mostTexts;
    if (mTexts.size() > mostScanned || !LiteralScanner::isSupported()) {
        mAutomaton.emplace(mTexts, sensitivity);
        return;
    }
    for (qsizetype first = 0; first < mTexts.size(); first += LiteralScanner::mostTexts)
        mScanners.emplace_back(mTexts.mid(first, LiteralScanner::mostTexts), sensitivity, first);
}

/// Reads `page` with the scanners; false when one of them gives it up.
bool TextSet::scan(QStringView page, OpenTexts &open) const
{
    return std::all_of(mScanners.begin(), mScanners.end(),
                       [&](const LiteralScanner &scanner) { return open.isDecided() || scanner.scan(page, open); });
}

qsizetype TextSet::look(QStringView page, Wanted wanted) const
{
    OpenTexts open(mTexts.size(), wanted);
    if (page.isEmpty())
        return open.answer();
    for (qsizetype index = 0; index < mTexts.size(); ++index)
        if (mTexts[index].isEmpty() && open.isOpen(index))
            open.close(index);
    if (open.isDecided())
        return open.answer();
    if (mAutomaton)
        mAutomaton->scan(page, open);
    else if (!scan(page, open))
        WordAutomaton(mTexts, mSensitivity).scan(page, open);
    return open.answer();
}

bool TextSet::anyIn(QStringView page) const
{
    return look(page, Wanted::Any) >= 0;
}

qsizetype TextSet::firstFound(QStringView page) const
{
    return look(page, Wanted::FirstFound);
}

qsizetype TextSet::firstMissing(QStringView page) const
{
    return look(page, Wanted::FirstMissing);
}
