#include "store/rows/RowBuffer.h"
#include "store/AdoErrors.h"
#include "store/rows/ColumnKinds.h"

#include <algorithm>

RowBuffer::RowBuffer(Connection &connection, std::shared_ptr<const TableInfo> table)
    : mConnection(connection), mTable(std::move(table)), mValues(mTable->columns.size()), mSet(mTable->columns.size())
{
}

void RowBuffer::set(int column, const QVariant &value)
{
    const ColumnInfo &info = mTable->columns[static_cast<std::size_t>(column)];
    if (info.autoIncrement)
        throw AdoError::error(AdoError::MultipleStep);
    setStored(column, valueForColumn(info.kind, value));
}

void RowBuffer::setStored(int column, QVariant value)
{
    mValues[static_cast<std::size_t>(column)] = std::move(value);
    mSet[static_cast<std::size_t>(column)] = true;
}

bool RowBuffer::isEmpty() const
{
    return std::none_of(mSet.begin(), mSet.end(), [](bool set) { return set; });
}

qint64 RowBuffer::insert()
{
    std::string names;
    std::string places;
    for (std::size_t column = 0; column < mSet.size(); ++column) {
        if (!mSet[column])
            continue;
        names.append(names.empty() ? "" : ",").append(mTable->columns[column].quoted);
        places.append(places.empty() ? "?" : ",?");
    }
    const std::string head = "INSERT INTO " + mTable->quoted;
    Statement statement =
        mConnection.prepare(names.empty() ? head + " DEFAULT VALUES" : head + "(" + names + ") VALUES(" + places + ")");
    int place = 0;
    for (std::size_t column = 0; column < mSet.size(); ++column) {
        if (mSet[column])
            statement.bind(++place, mValues[column]);
    }
    mConnection.change(statement);
    ++mTable->changes->additions;
    return mConnection.lastRow();
}

void RowBuffer::update(qint64 key)
{
    if (isEmpty())
        return;
    std::string changes;
    for (std::size_t column = 0; column < mSet.size(); ++column) {
        if (mSet[column])
            changes.append(changes.empty() ? "" : ",").append(mTable->columns[column].quoted).append("=?");
    }
    Statement statement =
        mConnection.prepare("UPDATE " + mTable->quoted + " SET " + changes + " WHERE " + mTable->key + "=?");
    int place = 0;
    for (std::size_t column = 0; column < mSet.size(); ++column) {
        if (mSet[column])
            statement.bind(++place, mValues[column]);
    }
    statement.bind(++place, key);
    ++mTable->changes->revision;
    if (mConnection.change(statement) == 0)
        throw AdoError::error(AdoError::RowDeleted);
}
