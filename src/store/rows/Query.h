// A statement made ready for one connection: its table is there and its columns are. Inside store/ only.
#pragma once

#include "store/sql/SqlTranslator.h"
#include "store/sqlite/Connection.h"

struct Query
{
    std::shared_ptr<Connection> connection;
    std::shared_ptr<const TableInfo> table;
    /// The columns of the result, as places in the table.
    std::vector<int> columns;
    qint64 top = -1;
    /// "" or " AND ([Url]=?1)"; `value` is bound to ?1.
    std::string condition;
    QString value;
    /// What comes before table order: "" or a column in brackets, with its direction.
    std::string order;
};

/// Errors: AdoError::BadSql, AdoError::NoSuchTable.
[[nodiscard]] Query prepareQuery(std::shared_ptr<Connection> connection, const SqlStatement &statement);

/// Removes the rows that the query names.
void runDelete(const Query &query);
