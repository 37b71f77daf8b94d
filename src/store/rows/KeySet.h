// A query made ready for a connection, and the keys of the rows that it gives. Inside store/ only.
#pragma once

#include "store/sql/SqlTranslator.h"
#include "store/sqlite/Connection.h"

/// A statement made ready for one connection: its table is there and its columns are.
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
    void fetch(qint64 count);
    void fetchSorted();

    Query mQuery;
    std::vector<qint64> mKeys;
    // Places of rows that were removed through the set, in order.
    std::vector<qint64> mDeleted;
    qint64 mLastKey = 0;
    bool mComplete = false;
};
