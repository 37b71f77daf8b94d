#include "store/rows/Query.h"
#include "store/AdoErrors.h"
#include "store/rows/GrowthMarks.h"
#include "store/rows/SummaryKeys.h"

#include <numeric>

namespace {
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
