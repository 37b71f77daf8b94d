// What a page holds of mail addresses and telephone numbers, as the user wants them: each once, what is blocked left
// out. Knows driver.
#pragma once

#include "app/FormGroups.h"
#include "driver/PageReading.h"
#include "util/Errors.h"
#include "util/search/KeptTextSet.h"

class Findings
{
  public:
    Findings(ErrorReceiver &log, const BlockedTexts &blocking, const AreaCodeBoxes &areaCodes,
             const OptionBoxes &options)
        : mLog(log), mBlocking(blocking), mAreaCodes(areaCodes), mOptions(options)
    {
    }

    /// In the order of the page; the empty list when there is none. A page of a few characters is error 9.
    [[nodiscard]] QStringList emails(PageReading &page) const;
    [[nodiscard]] QStringList phones(PageReading &page) const;
    /// Numbers are looked for as fax numbers alone.
    [[nodiscard]] bool faxOnly() const;

  private:
    ErrorReceiver &mLog;
    const BlockedTexts &mBlocking;
    const AreaCodeBoxes &mAreaCodes;
    const OptionBoxes &mOptions;
    mutable KeptTextSet mBlocked;
};
