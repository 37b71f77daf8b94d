// Reads the values of a set's rows: no column that is not asked for, if it may be long, and rows that follow each other
// in blocks of a megabyte at most, so that a walk costs little more than what it takes. A block holds the rows as they
// stood when it was read; a change through the same connection is seen at once, one of another program with the next
// block. Inside store/ only.
#pragma once

#include "store/rows/KeySet.h"

class RowReader
{
  public:
    explicit RowReader(std::shared_ptr<KeySet> keys);

    /// The value of a column of the set in the row at `place`, which the set has. Valid until the next call.
    /// Error AdoError::RowDeleted where the row has gone.
    [[nodiscard]] const QVariant &value(qint64 place, int column);
    /// The first `count` characters of a text, of which no more is read; "" for every other value and a row that has
    /// gone.
    [[nodiscard]] QString beginning(qint64 place, int column, qsizetype count) const;

  private:
    [[nodiscard]] bool holds(qint64 place) const { return place >= mFirst && place < mFirst + mRows; }
    [[nodiscard]] bool isLong(int column) const;
    [[nodiscard]] const ColumnInfo &info(int column) const;
    void forgetWhatChanged();
    [[nodiscard]] bool isWalked(qint64 place, int column) const
    {
        return place == mAskedAt[static_cast<std::size_t>(column)] + 1;
    }
    void chooseColumns(qint64 first);
    [[nodiscard]] qint64 rowsToRead(qint64 place) const;
    void read(qint64 place);
    void takeRows(Statement &statement, qint64 count);
    [[nodiscard]] QVariant valueOf(const Statement &statement, int place, int column) const;
    [[nodiscard]] const QVariant &longValue(qint64 place, int column);

    std::shared_ptr<KeySet> mKeys;
    // The columns of the block; where in its rows each column of the set stands, -1 for one that was not read; which of
    // them were wanted so far.
    std::vector<int> mColumns;
    std::vector<int> mSlots;
    std::vector<bool> mWanted;
    // The block: rows one behind the other, and for each whether it is still there.
    std::vector<QVariant> mValues;
    std::vector<bool> mPresent;
    qint64 mFirst = 0;
    qint64 mRows = 0;
    // Where each column was asked for last: a long one goes into the block of a walk that asks for it row by row.
    std::vector<qint64> mAskedAt;
    // One long value.
    QVariant mLongValue;
    qint64 mLongPlace = -1;
    int mLongColumn = -1;
    // The table's state when all this was read.
    quint64 mRevision = 0;
    quint64 mRollBacks = 0;
};
