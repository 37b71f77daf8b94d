#include "app/LongWork.h"

using namespace Qt::StringLiterals;

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
