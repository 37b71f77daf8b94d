#include "util/TextSet.h"

#include "util/Text.h"

#include <algorithm>

TextSet::TextSet(const QStringList &texts, Qt::CaseSensitivity sensitivity) : mTexts(texts), mSensitivity(sensitivity)
{
}

bool TextSet::anyIn(QStringView page) const
{
    return firstFound(page) >= 0;
}

qsizetype TextSet::firstFound(QStringView page) const
{
    for (qsizetype index = 0; index < mTexts.size(); ++index)
        if (cUtility::indexIn(page, mTexts[index], 0, mSensitivity) >= 0)
            return index;
    return -1;
}

qsizetype TextSet::firstMissing(QStringView page) const
{
    for (qsizetype index = 0; index < mTexts.size(); ++index)
        if (cUtility::indexIn(page, mTexts[index], 0, mSensitivity) < 0)
            return index;
    return -1;
}
