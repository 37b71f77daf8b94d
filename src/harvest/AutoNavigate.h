// "Auto Navigate": each address of a series is a result page, whose links go to the list on show and are walked. Knows
// lists.
#pragma once

#include "harvest/ManualWalk.h"
#include "harvest/SiteVisit.h"
#include "sites/DiscoveredLinks.h"

class AutoNavigate
{
  public:
    AutoNavigate(MenuItem &item, ManualPanel &panel, const Limits &limits, Runs &runs, ManualWalk &walk,
                 SiteVisit &visit, DiscoveredLinks &links);

    [[nodiscard]] bool isOn() const { return mItem.isChecked(); }
    void switchOff() { mItem.setChecked(false); }
    /// Opens result page `item`, gives it its pause, and visits its links from where the last walk stood. False when
    /// the run has to stay where it stands.
    [[nodiscard]] bool walk(const QString &url, qint64 item);

  private:
    [[nodiscard]] bool walkLinks(const QStringList &links, qint64 item);
    [[nodiscard]] bool visit(int link, int last, qint64 item);

    MenuItem &mItem;
    ManualPanel &mPanel;
    const Limits &mLimits;
    Runs &mRuns;
    ManualWalk &mWalk;
    SiteVisit &mVisit;
    DiscoveredLinks &mLinks;
};
