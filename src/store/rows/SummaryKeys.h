// The index that finds summary rows by their address and its server: for each row the keys of both texts, kept in the
// database under a name that does not count as the user's. A key is a hash: different texts can have the same one, so a
// row that is found has to be looked at. Triggers keep the index free of rows that were removed, and cut it off at a
// row that was changed or put in between; the rows behind its last one are to be added by its user. Inside store/ only.
#pragma once

#include "store/sqlite/Connection.h"

class SummaryKeys
{
  public:
    static constexpr qint64 noRow = std::numeric_limits<qint64>::max();

    /// Connection and table outlive the object.
    SummaryKeys(Connection &connection, const TableInfo &summary) : mConnection(connection), mSummary(summary) {}

    /// The key of a text, the same on every machine.
    [[nodiscard]] static quint32 keyOf(const QString &text);

    /// False for every other table too.
    [[nodiscard]] bool exist();
    /// The following four are for an index that exists.
    /// The last row that it knows; all before it are known too. The least number where it knows none.
    [[nodiscard]] qint64 lastRow();
    /// Adds a row, unless another program has done so.
    void add(qint64 row, quint32 urlKey, quint32 serverKey);
    /// The first row behind `after` with one of the keys, or noRow.
    [[nodiscard]] qint64 firstRow(quint32 key, quint32 otherKey, qint64 after);
    void removeAll();

    /// Makes an index that knows no row, inside a transaction; `finish` makes it fast once the rows that are there have
    /// been added.
    void make();
    void finish();
    /// Removes the index with its table.
    void drop();

  private:
    Connection &mConnection;
    const TableInfo &mSummary;
};
