#include "harvest/ResultPages.h"

#include "pages/Addresses.h"

using namespace Qt::StringLiterals;

ResultPages::ResultPages(const Context &context, AutoPanel &run, SavedAddresses &saved, const Limits &limits,
                         PageVisit &visit, ResultLinks &links, SavedUrls &savedUrls)
    : mContext(context), mRun(run), mSaved(saved), mLimits(limits), mVisit(visit), mLinks(links), mSavedUrls(savedUrls)
{
}

bool ResultPages::begin(bool serversOnly)
{
    mUseSaved = mSaved.chkUseSavedUrls.isOn();
    mServersOnly = serversOnly;
    mPage = 0;
    mLastPage = 0;
    if (mUseSaved || mRun.mlngANLinkIndex != 0)
        return true;
    mRun.mstrANStartUrl = mVisit.siteUrl();
    if (!mLinks.IsSiteDataSaved())
        return false;
    readLinks();
    return true;
}

void ResultPages::goToChosen()
{
    if (!mUseSaved)
        return;
    mLastPage = mSaved.cboANSavedUrls.listCount() - 1;
    mPage = std::max(mSaved.cboANSavedUrls.listIndex(), 0);
    if (mSaved.mbPassUrlsLoaded)
        mRun.mastrLinks = emptyList();
}

bool ResultPages::open()
{
    if (!mUseSaved)
        return true;
    if (!mSaved.mbPassUrlsLoaded)
        return mRun.mlngANLinkIndex != 0 || openSaved();
    // A PassUrl is itself the page to visit: the walk has that one link.
    mSaved.cboANSavedUrls.setListIndex(mPage);
    static_cast<void>(firstOf(mRun.mastrLinks));
    mRun.mastrLinks[0] = savedUrl();
    return true;
}

bool ResultPages::openSaved()
{
    mSaved.cboANSavedUrls.setListIndex(mPage);
    mContext.status.UpDateStatus(mSaved.cboANSavedUrls.list(mPage));
    mVisit.letEventsIn();
    // Where it is no link, the links of the page before stay.
    if (!mVisit.open(savedUrl()))
        return true;
    const qint64 pause = mLimits.incSmRPPause.value();
    mVisit.wait(pause != 0 ? pause : mRun.incANTiming.value());
    if (!mVisit.hasBrowser())
        return false;
    readLinks();
    mRun.mstrANStartUrl = mVisit.siteUrl();
    return true;
}

void ResultPages::readLinks()
{
    mRun.mastrLinks = mLinks.GetLinks();
    // What stands in the window in the place of a page that did not come has no result links.
    if (!mRun.mastrLinks.isEmpty() && !mVisit.hasArrived()) {
        mContext.status.UpDateStatus(u"Not reached"_s);
        mRun.mastrLinks = emptyList();
    }
    if (mServersOnly)
        mRun.mastrLinks = cIEText::GetBaseUrls(mRun.mastrLinks);
}

QString ResultPages::savedUrl()
{
    return mSavedUrls.GetSavedUrl(SavedUrls::Answer::Url, -1, mSaved.mastrSavedUrlIds.value(mPage), {}, {});
}
