#include "harvest/ManualRun.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto kind = Runs::Kind::Manual;
constexpr int itemOfList = 1;
constexpr qint64 pauseForMessage = 2;
const QString goCaption = u"Go"_s;
} // namespace

void ManualRun::cmdMNStart_Click()
{
    if (mPanel.cmdMNStart.caption() != goCaption) {
        mRuns.cancel(kind);
        return mWalk.keepSeries();
    }
    if (!mWalk.mayBegin())
        return mContext.status.UpDateStatus(u"Can't Collect in Navigate List"_s);
    // A run that was told to stop unwinds first.
    if (!mRuns.idle())
        return;
    mRuns.showStop(kind);
    StartProcessMN();
}

void ManualRun::StartProcessMN()
{
    try {
        run();
    } catch (...) {
        const RuntimeError error = currentError();
        mRuns.FinalizeProcess(u"Stopped (ERROR)"_s);
        mContext.log.ErrorLogger(error.number(), error.description(), u"frmSearch"_s, u"Sub StartProcessMN"_s);
    }
}

void ManualRun::run()
{
    mRuns.begin(kind);
    mPanel.mstrMNStartUrl = mVisit.siteUrl();
    mWalk.begin(mRuns.isStoppedOnPass(kind));
    mRuns.forgetPass(kind);
    const qint64 zeroth = mWalk.isSeries() ? mWalk.first() : 0;
    Q_EMIT mRuns.walking(mWalk.first() > zeroth ? u"the first item starts anew"_s : QString());
    for (qint64 item = mWalk.first(); item <= mWalk.last(); ++item) {
        Q_EMIT mRuns.progress(static_cast<int>(item - zeroth + 1), static_cast<int>(mWalk.last() - zeroth + 1));
        if (!take(item, mWalk.take(item)) || !mRuns.mayGoOn(kind))
            break;
    }
    const QString status = end();
    mWalk.end(mRuns.isStopped(kind));
    mRuns.FinalizeProcess(status);
}

/// False when the run has to stay on this item.
bool ManualRun::take(qint64 item, const QString &url)
{
    if (navigates())
        return mNavigate.walk(url, item);
    if (!mRuns.mayGoOn(kind))
        return false;
    bool isFile = false;
    if (!fetch(item, url, isFile))
        return false;
    if (isFile || mItems.areFiles())
        return true;
    mContext.status.UpDateStatus(u"%1/%2 "_s.arg(item + 1).arg(mWalk.last() + 1) + url);
    return mVisit.visit(kind, {.url = url, .seconds = mPanel.incMNTiming.value()}) != SiteVisit::Outcome::Stopped;
}

bool ManualRun::navigates()
{
    if (!mWalk.isSeries() || !mNavigate.isOn())
        return false;
    if (!mItems.areFiles())
        return true;
    mNavigate.switchOff();
    mContext.status.UpDateStatus(u"Type = File. No Full Auto"_s);
    mVisit.wait(pauseForMessage);
    return false;
}

/// Fetches the item where it is a file. False when the run was stopped meanwhile.
bool ManualRun::fetch(qint64 item, const QString &url, bool &isFile)
{
    const QString name = url.isEmpty() ? QString() : mItems.NavFileOrSite(itemOfList, url, true, mWalk.turn(item));
    isFile = !name.isEmpty();
    if (!isFile)
        return true;
    if (!mRuns.mayGoOn(kind))
        return false;
    mContext.status.UpDateStatus(mItems.hasArrived() ? u"%1/%2 "_s.arg(item + 1).arg(mWalk.shownLast()) + name
                                                     : u"Size < %1"_s.arg(mItems.leastSize()));
    const qint64 pause = mPanel.incMNDLTiming.value();
    mVisit.wait(pause != 0 ? pause : mPanel.incMNTiming.value());
    return true;
}

QString ManualRun::end()
{
    if (!mRuns.isStopped(kind)) {
        mVisit.returnTo(mPanel.mstrMNStartUrl);
        return u"Stopped (FINISHED)"_s;
    }
    if (!mRuns.reason().isEmpty())
        return mRuns.reason();
    return mRuns.isStoppedOnPass(kind) ? u"Stopped (MCMNC)"_s : u"Stopped (USER)"_s;
}
