// What a Manual run takes one after the other: the items of the list that was on show when it began, or the addresses
// of a series; the user may look at other lists meanwhile. Says where the run begins and ends, brings each item into
// the boxes that show it, and remembers where the run stood. Knows lists.
#pragma once

#include "harvest/Downloads.h"
#include "lists/AutoIncr.h"
#include "lists/ManualTables.h"

class ManualWalk
{
  public:
    ManualWalk(ManualPanel &panel, SeriesPanel &series, const OptionBoxes &options, const CollectLabels &collecting,
               const ManualDesk &desk, AutoIncr &autoIncr, ManualTables &tables);

    /// False while the list on show is being collected into.
    [[nodiscard]] bool mayBegin() const { return !mCollecting.mbNavListCollecting; }
    /// A new walk. `behindStop`: the item at which the last one stopped is done with.
    void begin(bool behindStop);
    [[nodiscard]] bool isSeries() const { return mIsSeries; }
    /// First and last item: places in the list, from 0, or numbers of the series.
    [[nodiscard]] qint64 first() const { return mFirst; }
    [[nodiscard]] qint64 last() const { return mLast; }
    /// What statuses of files give as the last one.
    [[nodiscard]] qint64 shownLast() const { return mIsSeries ? mLast - mFirst : mLast; }
    /// The address of `item`, which the tab then shows as the one in turn.
    [[nodiscard]] QString take(qint64 item);
    /// The list that is walked.
    [[nodiscard]] ListBox &list() const { return mDesk.list(mPanel.mintMNRunningList); }
    /// Again for the first item of a walk that goes on where an earlier one stood: in this session, or as the database
    /// remembers it.
    [[nodiscard]] Downloads::Turn turn(qint64 item);
    /// Shows that place of the list as the one in turn.
    void select(qint64 place);
    [[nodiscard]] bool usesSiteData() const { return mDesk.usesSiteData(); }
    /// The user has stopped the run: a series is kept as far as it came, where that is wanted.
    void keepSeries();
    /// The walk is over. The table of a list remembers where it stood.
    void end(bool stopped);

  private:
    void beginSeries();
    void beginList(bool behindStop);
    [[nodiscard]] bool isOnShow() const { return mDesk.index() == mPanel.mintMNRunningList; }
    [[nodiscard]] QString takeOfList(qint64 item);
    [[nodiscard]] QString takeOfSeries(qint64 item);

    ManualPanel &mPanel;
    SeriesPanel &mSeries;
    const OptionBoxes &mOptions;
    const CollectLabels &mCollecting;
    const ManualDesk &mDesk;
    AutoIncr &mAutoIncr;
    ManualTables &mTables;
    bool mIsSeries = false;
    qint64 mFirst = 0;
    qint64 mLast = 0;
    QString mBase; ///< that the list's items are pieces of, as it was when the list was last on show
    // Of the series, as far as it has come.
    QString mAddress;
    int mPosition = 0;
    qint64 mNumber = 0;
    QString mTaken;     ///< last
    QString mStoppedAt; ///< in the walk before, where that was stopped
};
