// The text of a page that is stored: its markup, its text or its links, cut to the part between two tags.
#pragma once

#include "app/FormGroups.h"
#include "driver/PageReading.h"
#include "util/Errors.h"

class PageData
{
  public:
    enum class Target { File = 0, SiteSummary = 1 };

    PageData(ErrorReceiver &log, Outputs &outputs, const Limits &limits) : mLog(log), mOutputs(outputs), mLimits(limits)
    {
    }

    /// What is stored for `target`; "" where nothing is to be stored there, or the text is too short.
    [[nodiscard]] QString GetPageData(PageReading &page, Target target);
    /// The part of `text` between the texts of the two boxes, which take the colours of what was found.
    [[nodiscard]] QString GetStringSegment(const QString &text);

  private:
    [[nodiscard]] QString whole(PageReading &page);
    [[nodiscard]] bool goesTo(Target target) const;

    ErrorReceiver &mLog;
    Outputs &mOutputs;
    const Limits &mLimits;
};
