#include "app/LongWork.h"

#include <chrono>
#include <future>

using namespace Qt::StringLiterals;

namespace {
constexpr std::chrono::milliseconds besideTurn(10);
}

void LongWork::begin(const QString &text)
{
    mUnderWay = true;
    mText = text;
    mStatus.UpDateStatus(text);
    mPump.doEvents();
    mNextTurn = mPump.tickCount() + turn;
}

bool LongWork::goOn(qint64 done, qint64 all)
{
    if (!mUnderWay || mCancelled || mPump.tickCount() < mNextTurn)
        return !mCancelled;
    Q_EMIT progressed(all > 0 ? done : 0, all);
    mStatus.UpDateStatus(all > 0 ? u"%1 %2%"_s.arg(mText).arg(done * 100 / all) : u"%1 %2"_s.arg(mText).arg(done));
    mPump.doEvents();
    mNextTurn = mPump.tickCount() + turn;
    return !mCancelled;
}

void LongWork::beside(const std::function<void()> &body)
{
    if (!mUnderWay)
        return body();
    std::future<void> done = std::async(std::launch::async, body);
    do
        mPump.doEvents();
    while (done.wait_for(besideTurn) != std::future_status::ready);
    done.get();
}
