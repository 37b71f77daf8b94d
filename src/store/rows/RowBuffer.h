// The values that a new or changed row is going to have, each tested against its column when it is set, and the
// statements that write them. Inside store/ only.
#pragma once

#include "store/sqlite/Connection.h"

class RowBuffer
{
  public:
    /// Both outlive the buffer.
    RowBuffer(Connection &connection, std::shared_ptr<const TableInfo> table);

    [[nodiscard]] const TableInfo &table() const { return *mTable; }

    /// Errors: AdoError::TypeMismatch and AdoError::MultipleStep for a value that the column refuses.
    void set(int column, const QVariant &value);
    /// The same for a value that is in the column's form already.
    void setStored(int column, QVariant value);
    [[nodiscard]] bool isSet(int column) const { return mSet[static_cast<std::size_t>(column)]; }
    /// Null where nothing is set.
    [[nodiscard]] const QVariant &value(int column) const { return mValues[static_cast<std::size_t>(column)]; }
    [[nodiscard]] bool isEmpty() const;

    /// Writes the row and gives its key. Columns that are not set take their default.
    qint64 insert();
    /// Writes the columns that are set. Error AdoError::RowDeleted where the row has gone.
    void update(qint64 key);

  private:
    Connection &mConnection;
    std::shared_ptr<const TableInfo> mTable;
    std::vector<QVariant> mValues;
    std::vector<bool> mSet;
};
