#include "util/TextSet.h"

#include "util/Text.h"

#include <algorithm>

TextSet::TextSet(const QStringList &texts, Qt::CaseSensitivity sensitivity) : mTexts(texts), mSensitivity(sensitivity)
{
    if (sensitivity == Qt::CaseInsensitive)
        std::transform(mTexts.begin(), mTexts.end(), mTexts.begin(), cUtility::lowered);
    if (mTexts.size() <= LiteralScanner::mostTexts && LiteralScanner::isSupported())
        mScanner.emplace(mTexts, sensitivity);
    else
        mAutomaton.emplace(mTexts, sensitivity);
}

qsizetype TextSet::look(QStringView page, Wanted wanted) const
{
    OpenTexts open(mTexts.size(), wanted);
    if (page.isEmpty())
        return open.answer();
    for (qsizetype index = 0; index < mTexts.size(); ++index)
        if (mTexts[index].isEmpty() && open.isOpen(index))
            open.close(index);
    if (open.isDecided() || (mScanner && mScanner->scan(page, open)))
        return open.answer();
    if (mAutomaton)
        mAutomaton->scan(page, open);
    else // the page is one that the scanner gives up on
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
