#include "app/cTimer.h"

#include <algorithm>

void cTimer::TimeIt(qint64 seconds)
{
    mCancel = false;
    mInProgress = true;
    Q_EMIT started();
    qint64 next = 1;
    qint64 elapsed = 0;
    const qint64 start = mPump.tickCount();
    for (;;) {
        mPump.doEvents();
        const qint64 passed = mPump.tickCount() - start;
        if (passed >= next * 1000) {
            elapsed = (passed + 500) / 1000;
            ++next;
            Q_EMIT TimeCount(elapsed);
        }
        if (mCancel || elapsed >= seconds) {
            mCancel = false;
            mInProgress = false;
            return;
        }
        if (const qint64 left = next * 1000 - (mPump.tickCount() - start); left > 0)
            mPump.waitForEvents(left);
    }
}

void cTimer::CancelTimer()
{
    mCancel = true;
    mPump.wakeUp();
}
