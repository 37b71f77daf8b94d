// Decides what happens to the page on show: wanted or not; has a wanted one stored and shows the outcome. Knows lists.
#pragma once

#include "harvest/PageKeeping.h"
#include "harvest/PageTests.h"

class PageScreening
{
  public:
    PageScreening(const Context &context, Outputs &outputs, PictureBox &picANEnd, const Limits &limits,
                  PageTests &tests, PageKeeping &keeping, Runs &runs)
        : mContext(context), mOutputs(outputs), mEndMark(picANEnd), mLimits(limits), mTests(tests), mKeeping(keeping),
          mRuns(runs)
    {
    }

    /// Tests the page and, if it passes, stores what it holds. All rows of one page go into the database together.
    /// False for a page that should have been stored and could not be: the run has to come back to it.
    bool CollectData(PageReading &page);
    /// The page is neither tested nor stored; `status` says why.
    void leaveOut(const QString &status);

  private:
    [[nodiscard]] KeepingOrder order() const;
    [[nodiscard]] bool screen(PageReading &page);
    [[nodiscard]] Colour passed();
    void showOutcome(const KeepingOrder &order, const Kept &kept);

    Context mContext;
    Outputs &mOutputs;
    PictureBox &mEndMark;
    const Limits &mLimits;
    PageTests &mTests;
    PageKeeping &mKeeping;
    Runs &mRuns;
};
