#include "store/rows/RowReader.h"
#include "store/AdoErrors.h"
#include "store/rows/ColumnKinds.h"

#include <algorithm>
#include <array>

namespace {
// Most sets are asked for one row; a set that is walked gets more rows with each block.
constexpr qint64 blockGrowth = 16;
constexpr qint64 largestBlock = 256;
constexpr qint64 mostBytes = 1'048'576;
// A block may read over so many rows for each one that belongs to the set.
constexpr qint64 mostStrangers = 3;
constexpr qint64 notAsked = -2;

constexpr std::array longKinds{ColumnKind::LongVarWChar, ColumnKind::LongVarChar, ColumnKind::LongVarBinary,
                               ColumnKind::Binary};

qint64 bytesOf(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString().size() * 2;
    return value.typeId() == QMetaType::QByteArray ? value.toByteArray().size() : 0;
}
} // namespace

RowReader::RowReader(std::shared_ptr<KeySet> keys)
    : mKeys(std::move(keys)), mSlots(mKeys->query().columns.size(), -1), mWanted(mSlots.size()),
      mAskedAt(mSlots.size(), notAsked)
{
}

const ColumnInfo &RowReader::info(int column) const
{
    const Query &query = mKeys->query();
    return query.table->columns[static_cast<std::size_t>(query.columns[static_cast<std::size_t>(column)])];
}

bool RowReader::isLong(int column) const
{
    return std::find(longKinds.begin(), longKinds.end(), info(column).kind) != longKinds.end();
}

void RowReader::forgetWhatChanged()
{
    const quint64 revision = mKeys->query().table->changes->revision;
    const quint64 rollBacks = mKeys->query().connection->rollBacks();
    if (revision == mRevision && rollBacks == mRollBacks)
        return;
    mRevision = revision;
    mRollBacks = rollBacks;
    mRows = 0;
    mLongPlace = -1;
}

const QVariant &RowReader::value(qint64 place, int column)
{
    forgetWhatChanged();
    const auto asked = static_cast<std::size_t>(column);
    const bool inBlock = holds(place) && mSlots[asked] >= 0;
    const bool walked = isWalked(place, column);
    mWanted[asked] = true;
    if (!inBlock && (walked || !isLong(column)))
        read(place);
    mAskedAt[asked] = place;
    if (!inBlock && !walked && isLong(column))
        return longValue(place, column);
    const auto row = static_cast<std::size_t>(place - mFirst);
    if (!mPresent[row])
        throw AdoError::error(AdoError::RowDeleted);
    return mValues[row * mColumns.size() + static_cast<std::size_t>(mSlots[asked])];
}

/// A first row is read with all its short columns, the rows behind it with those that were wanted so far, and with the
/// long ones of a walk.
void RowReader::chooseColumns(qint64 first)
{
    const bool all = mRows == 0;
    mColumns.clear();
    for (int column = 0; column < static_cast<int>(mSlots.size()); ++column) {
        const auto place = static_cast<std::size_t>(column);
        const bool taken = isLong(column) ? isWalked(first, column) : all || mWanted[place];
        mSlots[place] = taken ? static_cast<int>(mColumns.size()) : -1;
        if (taken)
            mColumns.push_back(column);
    }
}

qint64 RowReader::rowsToRead(qint64 place) const
{
    if (holds(place))
        return mFirst + mRows - place;
    if (!mKeys->query().order.empty())
        return 1;
    qint64 count = mRows > 0 && place == mFirst + mRows ? std::min(mRows * blockGrowth, largestBlock) : 1;
    count = std::min(count, mKeys->fetched() - place);
    while (count > 1 && mKeys->key(place + count - 1) - mKeys->key(place) > count * (mostStrangers + 1))
        count /= 2;
    return count;
}

void RowReader::read(qint64 place)
{
    const qint64 count = rowsToRead(place);
    chooseColumns(place);
    const TableInfo &table = *mKeys->query().table;
    std::string text = "SELECT " + table.key;
    for (const int column : mColumns)
        text.append(",").append(info(column).quoted);
    text.append(" FROM ").append(table.quoted).append(" WHERE ").append(table.key);
    text.append(count == 1 ? "=?1" : ">=?1 AND " + table.key + "<=?2 ORDER BY " + table.key);
    mRows = 0;
    mFirst = place;
    mValues.clear();
    mPresent.clear();
    Statement statement = mKeys->query().connection->prepare(text);
    statement.bind(1, mKeys->key(place));
    if (count > 1)
        statement.bind(2, mKeys->key(place + count - 1));
    takeRows(statement, count);
}

/// The statement gives rows in the order of the keys; a key that it passes over is a row that has gone, a key that is
/// not the set's a row that was put in between.
void RowReader::takeRows(Statement &statement, qint64 count)
{
    const auto width = mColumns.size();
    bool more = statement.step();
    for (qint64 bytes = 0; mRows < count && bytes < mostBytes; ++mRows) {
        const qint64 key = mKeys->key(mFirst + mRows);
        while (more && statement.integer(0) < key)
            more = statement.step();
        const bool present = more && statement.integer(0) == key;
        mPresent.push_back(present);
        for (std::size_t column = 0; present && column < width; ++column) {
            mValues.push_back(valueOf(statement, static_cast<int>(column) + 1, mColumns[column]));
            bytes += bytesOf(mValues.back());
        }
        mValues.resize(mPresent.size() * width);
    }
}

QVariant RowReader::valueOf(const Statement &statement, int place, int column) const
{
    QVariant value = statement.value(place);
    const bool flag = info(column).kind == ColumnKind::Boolean && value.isValid();
    return flag ? QVariant(value.toLongLong() != 0) : value;
}

const QVariant &RowReader::longValue(qint64 place, int column)
{
    if (mLongPlace == place && mLongColumn == column)
        return mLongValue;
    const TableInfo &table = *mKeys->query().table;
    mLongPlace = -1;
    Statement statement = mKeys->query().connection->prepare("SELECT " + info(column).quoted + " FROM " + table.quoted +
                                                             " WHERE " + table.key + "=?1");
    if (!statement.bind(1, mKeys->key(place)).step())
        throw AdoError::error(AdoError::RowDeleted);
    mLongValue = valueOf(statement, 0, column);
    mLongPlace = place;
    mLongColumn = column;
    return mLongValue;
}

QString RowReader::beginning(qint64 place, int column, qsizetype count) const
{
    const Query &query = mKeys->query();
    return query.connection->textBeginning(*query.table, info(column), mKeys->key(place), count);
}
