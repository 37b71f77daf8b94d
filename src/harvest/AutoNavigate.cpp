#include "harvest/AutoNavigate.h"

#include "controls/cLstBx.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto kind = Runs::Kind::Manual;
}

AutoNavigate::AutoNavigate(MenuItem &item, ManualPanel &panel, const Limits &limits, Runs &runs, ManualWalk &walk,
                           SiteVisit &visit, DiscoveredLinks &links)
    : mItem(item), mPanel(panel), mLimits(limits), mRuns(runs), mWalk(walk), mVisit(visit), mLinks(links)
{
}

bool AutoNavigate::walk(const QString &url, qint64 item)
{
    const qint64 pause = mLimits.incSmRPPause.value();
    if (!mVisit.show(url, pause != 0 ? pause : mPanel.incMNTiming.value()))
        return true;
    if (!mRuns.mayGoOn(kind))
        return false;
    const QStringList links =
        mLinks.DiscoverLinks(mWalk.usesSiteData() ? DiscoveredLinks::Use::SiteData : DiscoveredLinks::Use::AllLinks);
    return links.value(0).isEmpty() || walkLinks(links, item);
}

bool AutoNavigate::walkLinks(const QStringList &links, qint64 item)
{
    cLstBx::PopulateListBox(mWalk.list(), links, true, true);
    const int last = upperBound(links);
    for (int link = mPanel.mlngMNLinkIndex; link <= last; ++link) {
        // The list has left out blank links, so that it may end before they do.
        if (link < mWalk.list().listCount() && !visit(link, last, item))
            return false;
    }
    if (!mRuns.isStopped(kind))
        mPanel.mlngMNLinkIndex = 0;
    return true;
}

bool AutoNavigate::visit(int link, int last, qint64 item)
{
    mWalk.select(link);
    mPanel.mlngMNLinkIndex = link;
    const QString status = u"%1/%2 | %3/%4"_s.arg(item).arg(mWalk.last()).arg(link).arg(last);
    const SiteVisit::Order order{
        .url = mWalk.list().list(link), .seconds = mPanel.incMNTiming.value(), .status = status};
    return mVisit.visit(kind, order) != SiteVisit::Outcome::Stopped;
}
