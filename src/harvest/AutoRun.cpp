#include "harvest/AutoRun.h"

#include "pages/Addresses.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr int serversOnlyOption = 0;
constexpr int returnToStartOption = 2;
const QString goCaption = u"Go"_s;
const QString stopCaption = u"X"_s;
} // namespace

AutoRun::AutoRun(ErrorReceiver &log, frmSearch &form, StatusLine &status, ControlStates &states, EventPump &pump,
                 cTimer &timer, BrowserHolder &browser, Navigation &navigation, SiteRecords &records,
                 ResultLinks &links, SavedUrls &savedUrls, PageScreening &screening)
    : mLog(log), mForm(form), mStatus(status), mStates(states), mPump(pump), mTimer(timer), mBrowser(browser),
      mNavigation(navigation), mRecords(records), mLinks(links), mSavedUrls(savedUrls), mScreening(screening)
{
}

void AutoRun::cmdANStart_Click()
{
    if (mForm.autoRun.cmdANStart.caption() == goCaption) {
        // A run that was told to stop unwinds first; a second one on top of it would take its waits and its flags away.
        if (mForm.runs.mbANRunning)
            return;
        mForm.autoRun.cmdANStart.setCaption(stopCaption);
        mForm.runs.mbANCancel = false;
        StartProcessAN();
        return;
    }
    mForm.autoRun.cmdANStart.setCaption(goCaption);
    mForm.browser.lblTrawlexTimer.setCaption(u"0"_s);
    mForm.runs.mbANCancel = true;
    mTimer.CancelTimer();
}

void AutoRun::StartProcessAN()
{
    try {
        run();
    } catch (...) {
        const RuntimeError error = currentError();
        FinalizeProcess(u"Stopped (ERROR, UNKNOWN)"_s);
        mLog.ErrorLogger(error.number(), error.description(), module, u"Sub StartProcessAN"_s);
    }
}

void AutoRun::run()
{
    Walk walk;
    if (!prepare(walk))
        return;
    while (walkSavedPage(walk) == Next::GoOn) {
        mForm.autoRun.mlngANLinkIndex = 0;
        if (++walk.saved > walk.lastSaved)
            break;
    }
    FinalizeProcess(end(walk));
}

/// False when there is nothing to walk: no run takes place then.
bool AutoRun::prepare(Walk &walk)
{
    walk.useSaved = mForm.saved.chkUseSavedUrls.isOn();
    walk.serversOnly = mForm.options.chkSMA(serversOnlyOption).isOn();
    if (!walk.useSaved && mForm.autoRun.mlngANLinkIndex == 0 && !takeLinksOfPage(walk)) {
        mForm.autoRun.cmdANStart.setCaption(goCaption);
        mStatus.UpDateStatus(u"No data saved for site"_s);
        return false;
    }
    mForm.runs.mbANRunning = true;
    mStates.SetStateOfControls();
    if (walk.useSaved) {
        walk.lastSaved = mForm.saved.cboANSavedUrls.listCount() - 1;
        walk.saved = std::max(mForm.saved.cboANSavedUrls.listIndex(), 0);
        if (mForm.saved.mbPassUrlsLoaded)
            mForm.autoRun.mastrLinks = emptyList();
    }
    mForm.runs.mbANMCMNCStopped = false;
    return true;
}

bool AutoRun::takeLinksOfPage(const Walk &walk)
{
    mForm.autoRun.mstrANStartUrl = mBrowser->GetSiteUrl();
    if (!mRecords.IsSiteDataSaved())
        return false;
    readLinks(walk);
    return true;
}

void AutoRun::readLinks(const Walk &walk)
{
    mForm.autoRun.mastrLinks = mLinks.GetLinks();
    if (walk.serversOnly)
        mForm.autoRun.mastrLinks = cIEText::GetBaseUrls(mForm.autoRun.mastrLinks);
}

QString AutoRun::savedUrl(int row)
{
    const QString element = mForm.saved.mastrSavedUrlIds.value(row);
    return mSavedUrls.GetSavedUrl(SavedUrls::Answer::Url, -1, element, {}, {});
}

/// One turn of the main loop: a saved result page, a PassUrl, or the page that the run began on.
AutoRun::Next AutoRun::walkSavedPage(Walk &walk)
{
    if (walk.useSaved && mForm.autoRun.mlngANLinkIndex == 0 && !mForm.saved.mbPassUrlsLoaded &&
        openResultPage(walk) == Next::LeaveMainLoop)
        return Next::LeaveMainLoop;
    if (walk.useSaved && mForm.saved.mbPassUrlsLoaded)
        takePassUrl(walk);
    walk.lastLink = upperBound(mForm.autoRun.mastrLinks);
    if (walk.lastLink == 0 && mForm.autoRun.mastrLinks.constFirst().isEmpty()) {
        walk.emptyCount = walk.lastEmpty ? walk.emptyCount + 1 : 1;
        walk.lastEmpty = true;
        walk.noUrls = walk.emptyCount >= 2;
        return walk.noUrls ? Next::LeaveMainLoop : Next::GoOn;
    }
    walk.lastEmpty = false;
    return walkLinks(walk);
}

AutoRun::Next AutoRun::openResultPage(const Walk &walk)
{
    mForm.saved.cboANSavedUrls.setListIndex(walk.saved);
    mStatus.UpDateStatus(mForm.saved.cboANSavedUrls.list(walk.saved));
    mPump.doEvents();
    if (!mNavigation.OpenSite(savedUrl(walk.saved)))
        return Next::GoOn;
    const qint64 pause = mForm.limits.incSmRPPause.value();
    mTimer.TimeIt(pause != 0 ? pause : mForm.autoRun.incANTiming.value());
    // Without a browser there is nothing to read; the user who has closed it has stopped the run.
    if (!mForm.browser.mbInitialized)
        return Next::LeaveMainLoop;
    readLinks(walk);
    mForm.autoRun.mstrANStartUrl = mBrowser->GetSiteUrl();
    return Next::GoOn;
}

/// A PassUrl is itself the page to visit: the walk has that one link.
void AutoRun::takePassUrl(const Walk &walk)
{
    mForm.saved.cboANSavedUrls.setListIndex(walk.saved);
    static_cast<void>(firstOf(mForm.autoRun.mastrLinks));
    mForm.autoRun.mastrLinks[0] = savedUrl(walk.saved);
}

AutoRun::Next AutoRun::walkLinks(const Walk &walk)
{
    for (int i = mForm.autoRun.mlngANLinkIndex; i <= walk.lastLink; ++i) {
        mForm.autoRun.mlngANLinkIndex = i;
        if (!mayGoOn() || visit(walk, i) == Next::LeaveMainLoop)
            return Next::LeaveMainLoop;
    }
    return Next::GoOn;
}

AutoRun::Next AutoRun::visit(const Walk &walk, int index)
{
    const QString link = mForm.autoRun.mastrLinks.value(index);
    if (!mScreening.NotQB(link))
        return Next::GoOn;
    mStatus.UpDateStatus(u"%1/%2 "_s.arg(index + 1).arg(walk.lastLink + 1) + link);
    if (!mNavigation.OpenSite(link))
        return Next::GoOn;
    Q_EMIT visiting(index + 1, walk.lastLink + 1, link);
    mTimer.TimeIt(mForm.autoRun.incANTiming.value());
    if (!mayGoOn())
        return Next::LeaveMainLoop;
    PageReading page(mBrowser);
    if (mForm.limits.incNotFoundMinSize.value() >= 1 && !walk.serversOnly)
        mScreening.PageNotFound(page);
    mScreening.CollectData(page);
    return Next::GoOn;
}

QString AutoRun::end(const Walk &walk)
{
    if (walk.noUrls)
        return u"Stopped (ERROR, NO URLS)"_s;
    if (!mForm.runs.mbANCancel) {
        if (mForm.options.chkSMA(returnToStartOption).value() == 1)
            mNavigation.OpenSite(mForm.autoRun.mstrANStartUrl);
        return u"Stopped (FINISHED)"_s;
    }
    if (!mForm.runs.mbANMCMNCStopped)
        return u"Stopped (USER)"_s;
    // The loop has moved on by one before it saw the stop; one more is passed over, and near the end no text is given.
    if (mForm.autoRun.mlngANLinkIndex + 1 >= walk.lastLink)
        return {};
    ++mForm.autoRun.mlngANLinkIndex;
    return u"Stopped (MCMNC)"_s;
}

void AutoRun::ResetProcessAN()
{
    mForm.runs.mbANCancel = true;
    mForm.autoRun.mlngANLinkIndex = 0;
    mForm.autoRun.mastrLinks = emptyList();
    mTimer.CancelTimer();
    mForm.autoRun.cmdANStart.setCaption(goCaption);
    mForm.browser.lblTrawlexTimer.setCaption(u"0"_s);
}

void AutoRun::FinalizeProcess(const QString &status)
{
    mForm.autoRun.cmdANStart.setCaption(goCaption);
    mForm.manual.cmdMNStart.setCaption(goCaption);
    mForm.runs.mbANRunning = false;
    mForm.runs.mbMNRunning = false;
    mForm.runs.mbANCancel = false;
    mForm.runs.mbMNCancel = false;
    mStatus.UpDateStatus(status);
    mStates.SetStateOfControls();
    Q_EMIT finalized(status);
}
