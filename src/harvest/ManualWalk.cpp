#include "harvest/ManualWalk.h"

#include "controls/cLstBx.h"
#include "pages/Series.h"
#include "util/Text.h"

namespace {
constexpr int itemOfList = 1;
}

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
    mIsSeries = !mAddress.isEmpty() && mDesk.GetAutoIncrChecked() > 0;
    if (mIsSeries)
        beginSeries();
    else
        beginList(behindStop);
}

void ManualWalk::beginSeries()
{
    mFirst = mSeries.incMNAutoUrl.value();
    mLast = mFirst + Series(mAddress, mDesk.GetAutoIncrChecked()).lengthOfRun() - 1;
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
    if (!mIsSeries) {
        select(item);
        return mDesk.GetUseBaseUrl(itemOfList);
    }
    if (item != mFirst) {
        const QString step = mSeries.incMNStep.text();
        mAddress = Series(mAddress, mDesk.GetAutoIncrChecked()).next(step).address();
        mAutoIncr.showReached(mAddress, mSeries.incMNAutoUrl.value() + step.toLongLong());
    }
    return mAddress;
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
    if (mOptions.chkSMD(SMD::SaveAutoTextOnStop).value() == 1)
        mAutoIncr.MaintainAutoIncr();
}

void ManualWalk::savePosition()
{
    static_cast<void>(mTables.SaveMNLastUrl(list(), mDesk.table(), true));
}
