// The Manual run: walks the list on show, or a series, at the pace of the countdown. Each item is a file to be fetched,
// a site to be opened and screened, or with "Auto Navigate" a result page whose links are walked. One synchronous loop
// like the Auto run, of which it shares everything behind the opening of a page. Knows lists.
#pragma once

#include "harvest/AutoNavigate.h"
#include "harvest/ManualItems.h"

class ManualRun
{
  public:
    ManualRun(const Context &context, ManualPanel &panel, Runs &runs, ManualWalk &walk, ManualItems &items,
              AutoNavigate &navigate, SiteVisit &visit)
        : mContext(context), mPanel(panel), mRuns(runs), mWalk(walk), mItems(items), mNavigate(navigate), mVisit(visit)
    {
    }

    /// Go starts or resumes, X stops.
    void cmdMNStart_Click();
    /// The run itself; returns when it has ended.
    void StartProcessMN();

  private:
    void run();
    [[nodiscard]] bool take(qint64 item, const QString &url);
    [[nodiscard]] bool navigates();
    [[nodiscard]] bool fetch(qint64 item, const QString &url, bool &isFile);
    [[nodiscard]] QString end();

    Context mContext;
    ManualPanel &mPanel;
    Runs &mRuns;
    ManualWalk &mWalk;
    ManualItems &mItems;
    AutoNavigate &mNavigate;
    SiteVisit &mVisit;
};
