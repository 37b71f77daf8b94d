#include "driver/PageVisit.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int mostDeaths = 3;
}

bool PageVisit::open(const QString &url)
{
    mPage.forget();
    mUrl = url;
    mDeaths = 0;
    mPassedOver = false;
    if (mReviver.hasDied() && !revive())
        return false;
    return mNavigation.OpenSite(url);
}

void PageVisit::wait(qint64 seconds)
{
    do {
        mTimer.TimeIt(seconds);
        mPage.forget();
    } while (mReviver.hasDied() && openAgain());
}

bool PageVisit::hasArrived() const
{
    return !mPassedOver && mBrowser.isSet() && mBrowser->arrival() == BrowserEngine::Arrival::Arrived;
}

bool PageVisit::comesAgain()
{
    if (mPage.isAsked() && !mPage.isReadable())
        mPump.doEvents(); // the news of a death comes behind the reading that failed
    return mPage.isAsked() && !mPage.isReadable() && mReviver.hasDied() && openAgain();
}

bool PageVisit::openAgain()
{
    const bool mayOpen = ++mDeaths < mostDeaths;
    if (!revive())
        return false;
    mPage.forget();
    mPassedOver = !mayOpen;
    if (mPassedOver)
        mContext.status.UpDateStatus("Passed over "_L1 + mUrl);
    return mayOpen && mNavigation.OpenSite(mUrl);
}

/// False also when the run has been stopped meanwhile.
bool PageVisit::revive()
{
    if (!mRuns.mayGoOn()) {
        mReviver.leaveDead();
        return false;
    }
    mContext.status.UpDateStatus(u"Browser has ended. Starting it again"_s);
    if (mReviver.revive())
        return true;
    mRuns.stopFor(u"Stopped (ERROR, NO BROWSER)"_s);
    return false;
}
