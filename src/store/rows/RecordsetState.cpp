#include "store/rows/RecordsetState.h"
#include "store/AdoErrors.h"
#include "store/rows/ColumnKinds.h"
#include "store/rows/GrowthMarks.h"
#include "store/rows/SummaryKeys.h"

#include <algorithm>
#include <numeric>

namespace {
// Keys fetched at once: few for the first look, since most sets are asked only whether they have a row.
constexpr qint64 firstFetch = 16;
constexpr qint64 laterFetch = 2048;

std::string conditionText(const TableInfo &table, const SqlStatement::Condition &condition)
{
    const int column = table.columnOf(condition.field);
    if (column < 0)
        throw AdoError::error(AdoError::BadSql);
    const bool like = condition.comparison == SqlStatement::Comparison::Like;
    return " AND (" + table.columns[static_cast<std::size_t>(column)].quoted + (like ? " LIKE ?1)" : "=?1)");
}

std::string columnList(const Query &query)
{
    std::string list;
    for (const int column : query.columns)
        list.append(list.empty() ? "" : ",").append(query.table->columns[static_cast<std::size_t>(column)].quoted);
    return list;
}

// What is kept beside the table goes first: less than there is of it is never wrong.
void removeAllRows(Connection &connection, const TableInfo &table)
{
    GrowthMarks(connection, table).removeAll();
    if (SummaryKeys keys(connection, table); keys.exist())
        keys.removeAll();
    connection.empty(table);
}
} // namespace

Query prepareQuery(std::shared_ptr<Connection> connection, const SqlStatement &statement)
{
    Query query;
    query.table = connection->requireTable(statement.table);
    query.connection = std::move(connection);
    query.top = statement.top;
    if (statement.fields.isEmpty()) {
        query.columns.resize(query.table->columns.size());
        std::iota(query.columns.begin(), query.columns.end(), 0);
    }
    for (const QString &field : statement.fields) {
        query.columns.push_back(query.table->columnOf(field));
        if (query.columns.back() < 0)
            throw AdoError::error(AdoError::BadSql);
    }
    if (statement.condition) {
        query.condition = conditionText(*query.table, *statement.condition);
        query.value = statement.condition->value;
    }
    return query;
}

void runDelete(const Query &query)
{
    ++query.table->changes->revision;
    if (query.condition.empty()) {
        removeAllRows(*query.connection, *query.table);
        return;
    }
    Statement statement =
        query.connection->prepare("DELETE FROM " + query.table->quoted + " WHERE 1" + query.condition);
    query.connection->change(statement.bind(1, query.value));
}

KeySet::KeySet(Query query) : mQuery(std::move(query)) {}

bool KeySet::reach(qint64 place)
{
    while (!mComplete && place >= static_cast<qint64>(mKeys.size()))
        fetch(mKeys.empty() ? firstFetch : laterFetch);
    return place >= 0 && place < static_cast<qint64>(mKeys.size());
}

void KeySet::fetch(qint64 count)
{
    const bool first = mKeys.empty();
    if (mQuery.top >= 0)
        count = std::min(count, mQuery.top - static_cast<qint64>(mKeys.size()));
    const TableInfo &table = *mQuery.table;
    const std::string range = first ? "" : " AND " + table.key + ">?2 AND " + table.key + "<=?3";
    Statement keys = mQuery.connection->prepare("SELECT " + table.key + " FROM " + table.quoted + " WHERE 1" +
                                                mQuery.condition + range + " ORDER BY " + table.key + " LIMIT ?4");
    if (!mQuery.condition.empty())
        keys.bind(1, mQuery.value);
    if (!first)
        keys.bind(2, mKeys.back()).bind(3, mLastKey);
    keys.bind(4, count);
    const std::size_t before = mKeys.size();
    while (keys.step())
        mKeys.push_back(keys.integer(0));
    const auto fetched = static_cast<qint64>(mKeys.size() - before);
    mComplete = fetched < count || (mQuery.top >= 0 && static_cast<qint64>(mKeys.size()) >= mQuery.top);
    if (first && !mComplete) {
        Statement last = mQuery.connection->prepare("SELECT max(" + table.key + ") FROM " + table.quoted);
        mLastKey = last.step() ? last.integer(0) : 0;
    }
}

qint64 KeySet::size()
{
    static_cast<void>(reach(std::numeric_limits<qint64>::max()));
    return static_cast<qint64>(mKeys.size());
}

bool KeySet::isDeleted(qint64 place) const
{
    return std::binary_search(mDeleted.begin(), mDeleted.end(), place);
}

void KeySet::markDeleted(qint64 place)
{
    mDeleted.insert(std::lower_bound(mDeleted.begin(), mDeleted.end(), place), place);
}

qint64 KeySet::append(qint64 key)
{
    const qint64 place = size();
    mKeys.push_back(key);
    return place;
}

RecordsetState::RecordsetState(std::shared_ptr<KeySet> keys, bool readOnly)
    : mKeys(std::move(keys)), mReadOnly(readOnly)
{
    settle(0, 1);
    if (mAtEnd)
        mPlace = -1;
}

void RecordsetState::requireOpen() const
{
    if (!mKeys)
        throw AdoError::error(AdoError::ObjectClosed);
}

void RecordsetState::requireRow() const
{
    requireOpen();
    if (mPlace < 0 || mAtEnd)
        throw AdoError::error(AdoError::NoCurrentRow);
    if (mOnDeleted)
        throw AdoError::error(AdoError::RowDeleted);
}

void RecordsetState::requireWritable() const
{
    requireOpen();
    if (mReadOnly)
        throw AdoError::error(AdoError::NoReadWrite);
}

const ColumnInfo &RecordsetState::column(int column) const
{
    const int place = query().columns[static_cast<std::size_t>(column)];
    return query().table->columns[static_cast<std::size_t>(place)];
}

int RecordsetState::columnOf(QStringView name) const
{
    const auto count = static_cast<int>(query().columns.size());
    for (int place = 0; place < count; ++place) {
        if (name.compare(column(place).name, Qt::CaseInsensitive) == 0)
            return place;
    }
    return -1;
}

// Stands on the first row at or beyond `place`, in the direction of `step`, that has not been removed.
void RecordsetState::settle(qint64 place, int step)
{
    while (place >= 0 && mKeys->reach(place) && mKeys->isDeleted(place))
        place += step;
    mRow.reset();
    mOnDeleted = false;
    mPlace = place;
    mAtEnd = place >= 0 && !mKeys->reach(place);
}

void RecordsetState::moveFirst()
{
    requireOpen();
    update();
    settle(0, 1);
    if (!mAtEnd)
        return;
    mPlace = -1;
    throw AdoError::error(AdoError::NoCurrentRow);
}

void RecordsetState::moveLast()
{
    requireOpen();
    update();
    settle(mKeys->size() - 1, -1);
    if (mPlace >= 0)
        return;
    mAtEnd = true;
    throw AdoError::error(AdoError::NoCurrentRow);
}

void RecordsetState::moveNext()
{
    requireOpen();
    update();
    if (mAtEnd)
        throw AdoError::error(AdoError::NoCurrentRow);
    settle(mPlace + 1, 1);
}

void RecordsetState::movePrevious()
{
    requireOpen();
    update();
    if (mPlace < 0)
        throw AdoError::error(AdoError::NoCurrentRow);
    settle((mAtEnd ? mKeys->size() : mPlace) - 1, -1);
}

void RecordsetState::moveTo(qint64 place)
{
    requireOpen();
    update();
    if (!mKeys->reach(place))
        throw AdoError::error(AdoError::NoCurrentRow);
    mRow.reset();
    mPlace = place;
    mAtEnd = false;
    mOnDeleted = mKeys->isDeleted(place);
}

qint64 RecordsetState::recordCount()
{
    requireOpen();
    return mKeys->size() - mKeys->deleted();
}

const std::vector<QVariant> &RecordsetState::row()
{
    requireRow();
    if (mRow)
        return *mRow;
    Statement statement = query().connection->prepare("SELECT " + columnList(query()) + " FROM " +
                                                      query().table->quoted + " WHERE " + query().table->key + "=?1");
    if (!statement.bind(1, mKeys->key(mPlace)).step())
        throw AdoError::error(AdoError::RowDeleted);
    std::vector<QVariant> values;
    const auto count = static_cast<int>(query().columns.size());
    values.reserve(query().columns.size());
    for (int place = 0; place < count; ++place) {
        QVariant value = statement.value(place);
        const bool flag = column(place).kind == ColumnKind::Boolean && value.isValid();
        values.push_back(flag ? QVariant(value.toLongLong() != 0) : std::move(value));
    }
    return mRow.emplace(std::move(values));
}

QVariant RecordsetState::value(int column)
{
    requireOpen();
    const int place = query().columns[static_cast<std::size_t>(column)];
    if (mEdit && (mAdding || mEdit->isSet(place)))
        return mEdit->value(place);
    return row()[static_cast<std::size_t>(column)];
}

QVariant RecordsetState::pendingValue(int column) const
{
    requireOpen();
    return mEdit ? mEdit->value(query().columns[static_cast<std::size_t>(column)]) : QVariant();
}

void RecordsetState::setValue(int column, const QVariant &value)
{
    requireWritable();
    if (!mEdit) {
        requireRow();
        mEdit.emplace(*query().connection, query().table);
        mAdding = false;
    }
    mEdit->set(query().columns[static_cast<std::size_t>(column)], value);
}

void RecordsetState::addNew()
{
    requireWritable();
    update();
    mEdit.emplace(*query().connection, query().table);
    mAdding = true;
}

void RecordsetState::update()
{
    requireOpen();
    if (!mEdit)
        return;
    if (mAdding) {
        const qint64 key = mEdit->insert();
        mEdit.reset();
        settle(mKeys->append(key), 1);
    } else {
        mEdit->update(mKeys->key(mPlace));
        mEdit.reset();
        mRow.reset();
    }
}

void RecordsetState::remove()
{
    requireWritable();
    if (mEdit && mAdding)
        throw AdoError::error(AdoError::NotAllowed);
    requireRow();
    const Query &from = query();
    Statement statement =
        from.connection->prepare("DELETE FROM " + from.table->quoted + " WHERE " + from.table->key + "=?1");
    statement.bind(1, mKeys->key(mPlace));
    ++from.table->changes->revision;
    from.connection->change(statement);
    mEdit.reset();
    mKeys->markDeleted(mPlace);
    mOnDeleted = true;
    mRow.reset();
}

void RecordsetState::close()
{
    requireOpen();
    if (mEdit)
        throw AdoError::error(AdoError::NotAllowed);
    mRow.reset();
    mKeys.reset();
}
