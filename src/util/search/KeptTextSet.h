// A set of texts that is looked for in page after page: made anew only when the texts are others than the last time.
// Knows nobody.
#pragma once

#include "util/search/TextSet.h"

class KeptTextSet
{
  public:
    /// The set of these texts, good until the next call. Telling that the same list came again costs next to nothing.
    [[nodiscard]] const TextSet &of(const QStringList &texts, Qt::CaseSensitivity sensitivity)
    {
        if (!mSet || mSensitivity != sensitivity || mTexts != texts) {
            mTexts = texts;
            mSensitivity = sensitivity;
            mSet.emplace(texts, sensitivity);
        }
        return *mSet;
    }

  private:
    QStringList mTexts;
    Qt::CaseSensitivity mSensitivity = Qt::CaseInsensitive;
    std::optional<TextSet> mSet;
};
