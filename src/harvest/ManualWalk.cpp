#include "harvest/ManualWalk.h"

#include "controls/cLstBx.h"
#include "pages/Series.h"
#include "util/Text.h"

ManualWalk::ManualWalk(ManualPanel &panel, SeriesPanel &series, const OptionBoxes &options,
                       const CollectLabels &collecting, const ManualDesk &desk, AutoIncr &autoIncr,
                       ManualTables &tables)
    : mPanel(panel), mSeries(series), mOptions(options), mCollecting(collecting), mDesk(desk), mAutoIncr(autoIncr),
      mTables(tables)
{
}

void ManualWalk::begin(bool behindStop)
{
    mPanel.mintMNRunningList = mDesk.index();
    mAddress = cUtility::Trim(mSeries.cboMNAutoUrl.text()).toString();
    mPosition = mDesk.GetAutoIncrChecked();
    mIsSeries = !mAddress.isEmpty() && mPosition > 0;
    if (mIsSeries)
        beginSeries();
    else
        beginList(behindStop);
}

void ManualWalk::beginSeries()
{
    mFirst = mNumber = mSeries.incMNAutoUrl.value();
    mLast = mFirst + Series(mAddress, mPosition).lengthOfRun() - 1;
}

void ManualWalk::beginList(bool behindStop)
{
    mLast = list().listCount() - 1;
    // Without a chosen item the first one is meant; an empty list has one turn with nothing in it.
    mFirst = mLast < 0 ? mLast : std::max(list().listIndex(), 0);
    if (behindStop && mFirst + 1 <= mLast)
        ++mFirst;
}

QString ManualWalk::take(qint64 item)
{
    mTaken = mIsSeries ? takeOfSeries(item) : takeOfList(item);
    return mTaken;
}

/// Another list on show has a base of its own.
QString ManualWalk::takeOfList(qint64 item)
{
    select(item);
    if (isOnShow())
        mBase = mDesk.usesBase() ? mSeries.cboMNAutoUrl.text() : QString();
    return ManualDesk::withBase(mBase, list().list(static_cast<int>(item)));
}

QString ManualWalk::takeOfSeries(qint64 item)
{
    if (item != mFirst) {
        const QString step = mSeries.incMNStep.text();
        mAddress = Series(mAddress, mPosition).next(step).address();
        mNumber += step.toLongLong();
        mAutoIncr.showReached(mAddress, mNumber);
    }
    return mAddress;
}

Downloads::Turn ManualWalk::turn(qint64 item)
{
    const auto isRemembered = [&] {
        return mIsSeries ? mAutoIncr.isRemembered()
                         : list().list(static_cast<int>(item)) ==
                               mTables.SaveMNLastUrl(list(), mDesk.table(mPanel.mintMNRunningList), false);
    };
    const bool again = item == mFirst && (mTaken == mStoppedAt || isRemembered());
    return again ? Downloads::Turn::Again : Downloads::Turn::First;
}

void ManualWalk::select(qint64 place)
{
    cLstBx::UnSelect(list());
    list().setListIndex(static_cast<int>(place));
    if (place >= 0)
        list().setSelected(static_cast<int>(place), true);
}

void ManualWalk::keepSeries()
{
    // Another list on show has series of its own.
    if (isOnShow() && mOptions.chkSMD(SMD::SaveAutoTextOnStop).value() == 1)
        mAutoIncr.MaintainAutoIncr();
}

void ManualWalk::end(bool stopped)
{
    mStoppedAt = stopped ? mTaken : QString();
    if (!mIsSeries)
        mTables.SaveMNLastUrl(list(), mDesk.table(mPanel.mintMNRunningList), true);
}
