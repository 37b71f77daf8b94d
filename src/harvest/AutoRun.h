// The Auto run: takes the result links of a page, or of one saved result page after the other, visits them at the pace
// of the countdown and screens each page. One synchronous loop; buttons, browser events and the end of the program run
// inside its waits and reach it through Runs alone. Knows lists.
#pragma once

#include "harvest/ResultPages.h"
#include "harvest/SiteVisit.h"

class AutoRun
{
  public:
    AutoRun(const Context &context, AutoPanel &panel, const OptionBoxes &options, Runs &runs, ResultPages &pages,
            PageTests &tests, SiteVisit &visit);

    /// Go starts or resumes, X stops.
    void cmdANStart_Click();
    /// The run itself; returns when it has ended.
    void StartProcessAN();
    /// Forgets the walk, and stops a run.
    void ResetProcessAN();

  private:
    /// What one call of StartProcessAN keeps.
    struct Walk
    {
        bool serversOnly = false;
        int lastLink = 0; ///< highest index of the links of the page being walked
        bool lastEmpty = false;
        int emptyCount = 0;
        bool noUrls = false;
    };
    enum class Next { GoOn, LeaveMainLoop };

    void run();
    [[nodiscard]] Next walkPage(Walk &walk);
    [[nodiscard]] Next walkLinks(const Walk &walk);
    [[nodiscard]] Next visit(const Walk &walk, int index);
    [[nodiscard]] QString end(const Walk &walk);
    [[nodiscard]] QString endOnPass(const Walk &walk);

    Context mContext;
    AutoPanel &mPanel;
    const OptionBoxes &mOptions;
    Runs &mRuns;
    ResultPages &mPages;
    PageTests &mTests;
    SiteVisit &mVisit;
};
