#include "engine/PageLoading.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

int PageLoading::begin()
{
    mOutdated = {mCurrent};
    if (!mRequested.isEmpty())
        mOutdated.insert(mRequested);
    mRequested.clear();
    mStarted.clear();
    mComplete.clear();
    mStep = Step::Asked;
    mArrival = Arrival::Pending;
    mMoved = false;
    mBusy = false;
    return ++mNumber;
}

void PageLoading::issued(bool busy)
{
    mStarted.clear();
    mBusy = busy;
}

PageLoading::Verdict PageLoading::answered(int number, const QString &loader, const QString &error)
{
    if (number != mNumber || !isLoading()) {
        if (!loader.isEmpty() && number != mNumber)
            mOutdated.insert(loader);
        return Verdict::Outdated;
    }
    mRequested = loader;
    const bool moving = loader.isEmpty() && error.isEmpty();
    if (isWaitingForDocument() && !error.isEmpty())
        mStep = Step::Refused;
    else if (isWaitingForDocument() && moving)
        mStep = Step::Moving;
    if (error == "net::ERR_ABORTED"_L1)
        return Verdict::Aborted;
    if (!loader.isEmpty() || (moving && !mMoved))
        return Verdict::Wait;
    end();
    if (moving)
        mArrival = mStanding;
    return moving ? Verdict::Moved : Verdict::Ended;
}

PageLoading::Verdict PageLoading::endTold(End how, bool sameAddress)
{
    const bool taken = !mStarted.isEmpty() && (how == End::Stopped || !mBusy);
    if (!isLoading() || (isWaitingForDocument() && !taken && !sameAddress))
        return Verdict::Outdated;
    if (how == End::Loaded && (mComplete.isEmpty() || mComplete != mCurrent))
        return Verdict::Wait;
    end();
    return Verdict::Ended;
}

// A later request of the top frame has taken the place of ours: its document is awaited.
bool PageLoading::settle(int number)
{
    const bool replaced = !mStarted.isEmpty() && mStarted != mRequested;
    return number == mNumber && !replaced && isWaitingForDocument() && end();
}

void PageLoading::committed(const QString &loader, Document document)
{
    mCurrent = loader;
    mStanding = document == Document::Page ? Arrival::Arrived : Arrival::Failed;
    const bool byItself = mStep == Step::Idle || mStep == Step::Resumed;
    if (!byItself && !mOutdated.contains(loader)) {
        mStep = Step::Committed;
        mArrival = mStanding;
    } else if (byItself && mStanding == Arrival::Failed) {
        mArrival = Arrival::Failed;
    }
}

void PageLoading::resumed()
{
    if (!isLoading())
        mStep = Step::Resumed;
}

// The answer to the request and the word of the move come in either order.
bool PageLoading::movedWithinPage()
{
    mMoved = true;
    if (!isMoving())
        return false;
    end();
    mArrival = mStanding;
    return true;
}

bool PageLoading::documentLoaded(const QString &loader)
{
    return mStep == Step::Committed && loader == mCurrent && end();
}

bool PageLoading::documentFound()
{
    const bool found = isWaitingForDocument();
    const bool ended = end();
    if (found)
        mArrival = mStanding = Arrival::Arrived;
    return ended;
}

// Also the end of a page whose load was broken off and of a request that came to nothing.
bool PageLoading::stopped()
{
    return (mStep == Step::Committed || mStep == Step::Refused) && end();
}

bool PageLoading::processLost()
{
    mStanding = Arrival::Failed;
    if (isWaitingForDocument())
        return false;
    mArrival = Arrival::Failed;
    return end();
}

bool PageLoading::cancel()
{
    return end();
}

bool PageLoading::end()
{
    if (isWaitingForDocument())
        mArrival = Arrival::Failed;
    return std::exchange(mStep, Step::Idle) != Step::Idle;
}
