#include "harvest/SiteVisit.h"

using namespace Qt::StringLiterals;

SiteVisit::SiteVisit(const Context &context, const OptionBoxes &options, Runs &runs, PageVisit &visit,
                     ErrorPages &errorPages, PageScreening &screening)
    : mContext(context), mOptions(options), mRuns(runs), mVisit(visit), mErrorPages(errorPages), mScreening(screening)
{
}

SiteVisit::Outcome SiteVisit::visit(Runs::Kind kind, const Order &order)
{
    if (!mVisit.open(order.url))
        return Outcome::Refused;
    if (!order.status.isEmpty())
        mContext.status.UpDateStatus(order.status);
    Q_EMIT visiting(order.url);
    do {
        mVisit.wait(order.seconds);
        if (!mRuns.mayGoOn(kind) || !screen(order.fallBack))
            return Outcome::Stopped;
    } while (mVisit.comesAgain());
    return mRuns.reason().isEmpty() ? Outcome::Visited : Outcome::Stopped;
}

/// False when the page could not be stored.
bool SiteVisit::screen(bool fallBack)
{
    if (mVisit.hasArrived() && fallBack && mErrorPages.areLookedFor())
        mErrorPages.PageNotFound();
    if (mVisit.hasArrived())
        return mScreening.CollectData(mVisit.page());
    mScreening.leaveOut(u"Not reached"_s);
    return true;
}

bool SiteVisit::show(const QString &url, qint64 seconds)
{
    if (!mVisit.open(url))
        return false;
    mVisit.wait(seconds);
    return true;
}

void SiteVisit::returnTo(const QString &start)
{
    if (mOptions.chkSMA(SMA::ReturnToStart).value() == 1)
        mVisit.open(start);
}
