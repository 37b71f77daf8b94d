#include "store/rows/KeySet.h"
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
        if (mQuery.order.empty())
            fetch(mKeys.empty() ? firstFetch : laterFetch);
        else
            fetchSorted();
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

void KeySet::fetchSorted()
{
    const TableInfo &table = *mQuery.table;
    Statement keys = mQuery.connection->prepare("SELECT " + table.key + " FROM " + table.quoted + " WHERE 1" +
                                                mQuery.condition + " ORDER BY " + mQuery.order + "," + table.key);
    if (!mQuery.condition.empty())
        keys.bind(1, mQuery.value);
    while (keys.step())
        mKeys.push_back(keys.integer(0));
    mComplete = true;
}

qint64 KeySet::tableSize() const
{
    Statement count = mQuery.connection->prepare("SELECT count(*) FROM " + mQuery.table->quoted);
    return count.step() ? count.integer(0) : 0;
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
