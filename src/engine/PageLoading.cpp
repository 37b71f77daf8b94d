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
    mLoading = true;
    mAnswered = false;
    mCommitted = false;
    mMoving = false;
    mMoved = false;
    return ++mNumber;
}

PageLoading::Verdict PageLoading::answered(int number, const QString &loader, const QString &error)
{
    if (number != mNumber || !mLoading) {
        if (!loader.isEmpty() && number != mNumber)
            mOutdated.insert(loader);
        return Verdict::Outdated;
    }
    mRequested = loader;
    mAnswered = !error.isEmpty();
    mMoving = loader.isEmpty() && error.isEmpty();
    if (error == "net::ERR_ABORTED"_L1)
        return Verdict::Aborted;
    if (!loader.isEmpty() || (mMoving && !mMoved))
        return Verdict::Wait;
    end();
    return mMoving ? Verdict::Moved : Verdict::Ended;
}

// A later request of the top frame has taken the place of ours: its document is awaited.
bool PageLoading::settle(int number)
{
    const bool replaced = !mStarted.isEmpty() && mStarted != mRequested;
    return number == mNumber && !replaced && !mCommitted && end();
}

bool PageLoading::committed(const QString &loader)
{
    mCurrent = loader;
    if (mLoading && !mOutdated.contains(loader))
        mCommitted = true;
    return !mLoading || loader != mRequested || mStarted.isEmpty() || mStarted == loader;
}

// The answer to the request and the word of the move come in either order.
bool PageLoading::movedWithinPage()
{
    mMoved = true;
    return mMoving && end();
}

bool PageLoading::documentLoaded(const QString &loader)
{
    return mCommitted && loader == mCurrent && end();
}

// Also the end of a page whose load was broken off and of a request that came to nothing.
bool PageLoading::stopped()
{
    return (mCommitted || mAnswered) && end();
}

bool PageLoading::processLost()
{
    return mCommitted && end();
}

bool PageLoading::cancel()
{
    return end();
}

bool PageLoading::end()
{
    return std::exchange(mLoading, false);
}
