// The keys of the rows that a query gives. Inside store/ only.
#pragma once

#include "store/rows/SortedKeys.h"

#include <QDeadlineTimer>
#include <memory>

/// The keys of a query's rows in its order, fetched as far as they are asked for; all at once where that is not the
/// table's. Rows that are added to the table after the set was made do not belong to it.
class KeySet
{
  public:
    explicit KeySet(Query query);

    [[nodiscard]] const Query &query() const { return mQuery; }

    /// True if the set has a row at `place`, from 0. Fetches keys up to it.
    [[nodiscard]] bool reach(qint64 place);
    /// The row's key. `place` must have been reached.
    [[nodiscard]] qint64 key(qint64 place) const { return mKeys[static_cast<std::size_t>(place)]; }
    /// Goes on fetching for about so many milliseconds. True once all keys are there.
    [[nodiscard]] bool advance(int milliseconds);
    /// How many keys have been fetched.
    [[nodiscard]] qint64 fetched() const { return static_cast<qint64>(mKeys.size()); }
    [[nodiscard]] bool isDeleted(qint64 place) const;
    void markDeleted(qint64 place);
    /// Fetches the rest. The number of places, deleted ones among them.
    [[nodiscard]] qint64 size();
    /// How many rows the table has now, quickly.
    [[nodiscard]] qint64 tableSize() const;
    [[nodiscard]] qint64 deleted() const { return static_cast<qint64>(mDeleted.size()); }
    /// Puts a row that was added through the set behind the others.
    qint64 append(qint64 key);

  private:
    [[nodiscard]] bool isFull() const { return mQuery.top >= 0 && fetched() >= mQuery.top; }
    void begin();
    void fetch(qint64 count);
    void look(const QDeadlineTimer &time);
    [[nodiscard]] SortedKeys &beginSorting();
    void takeSorted();

    Query mQuery;
    std::vector<qint64> mKeys;
    // Places of rows that were removed through the set, in order.
    std::vector<qint64> mDeleted;
    std::unique_ptr<SortedKeys> mSorted;
    // The last key that was looked at, and the table's last one when the first was.
    qint64 mLookedAt = 0, mLastKey = 0;
    bool mBegun = false, mComplete = false;
};
