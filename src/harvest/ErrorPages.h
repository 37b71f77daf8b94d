// Recognises a server's error page and falls back to the server's front page. Knows driver.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "driver/PageVisit.h"

class ErrorPages
{
  public:
    ErrorPages(const Context &context, const Limits &limits, const AutoPanel &pace, PageVisit &visit)
        : mContext(context), mLimits(limits), mPace(pace), mVisit(visit)
    {
    }

    /// The page on show gives way to its server's front page where it is an error page; the wait for that one, as long
    /// as the Auto run's for a link, is in here.
    void PageNotFound();
    /// The user wants that test.
    [[nodiscard]] bool areLookedFor() const { return mLimits.incNotFoundMinSize.value() >= 1; }

  private:
    Context mContext;
    const Limits &mLimits;
    const AutoPanel &mPace;
    PageVisit &mVisit;
};
