// What stands behind a Recordset: the rows' keys, the current row, the pending edit. Inside store/ only.
#pragma once

#include "store/rows/RowBuffer.h"
#include "store/sql/SqlTranslator.h"

#include <optional>

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
};

/// Errors: AdoError::BadSql, AdoError::NoSuchTable.
[[nodiscard]] Query prepareQuery(std::shared_ptr<Connection> connection, const SqlStatement &statement);

/// Removes the rows that the query names.
void runDelete(const Query &query);

/// The keys of a query's rows in table order, fetched as far as they are asked for. Rows that are added to the table
/// after the set was made do not belong to it.
class KeySet
{
  public:
    explicit KeySet(Query query);

    [[nodiscard]] const Query &query() const { return mQuery; }

    /// True if the set has a row at `place`, from 0. Fetches keys up to it.
    [[nodiscard]] bool reach(qint64 place);
    /// The row's key. `place` must have been reached.
    [[nodiscard]] qint64 key(qint64 place) const { return mKeys[static_cast<std::size_t>(place)]; }
    [[nodiscard]] bool isDeleted(qint64 place) const;
    void markDeleted(qint64 place);
    /// Fetches the rest. The number of places, deleted ones among them.
    [[nodiscard]] qint64 size();
    [[nodiscard]] qint64 deleted() const { return static_cast<qint64>(mDeleted.size()); }
    /// Puts a row that was added through the set behind the others.
    qint64 append(qint64 key);

  private:
    void fetch(qint64 count);

    Query mQuery;
    std::vector<qint64> mKeys;
    // Places of rows that were removed through the set, in order.
    std::vector<qint64> mDeleted;
    qint64 mLastKey = 0;
    bool mComplete = false;
};

class RecordsetState
{
  public:
    /// A set that was never opened.
    RecordsetState() = default;
    RecordsetState(std::shared_ptr<KeySet> keys, bool readOnly);

    [[nodiscard]] bool isOpen() const { return static_cast<bool>(mKeys); }
    /// Error 3704.
    void requireOpen() const;
    [[nodiscard]] const Query &query() const { return mKeys->query(); }
    [[nodiscard]] const std::shared_ptr<KeySet> &keys() const { return mKeys; }
    [[nodiscard]] bool isReadOnly() const { return mReadOnly; }
    [[nodiscard]] const ColumnInfo &column(int column) const;
    /// The place of the column of that name, or -1.
    [[nodiscard]] int columnOf(QStringView name) const;

    [[nodiscard]] bool atStart() const { return mPlace < 0; }
    [[nodiscard]] bool atEnd() const { return mAtEnd; }
    [[nodiscard]] qint64 place() const { return mPlace; }
    void moveFirst();
    void moveLast();
    void moveNext();
    void movePrevious();
    void moveTo(qint64 place);
    [[nodiscard]] qint64 recordCount();

    [[nodiscard]] QVariant value(int column);
    /// What the edit under way has set; Null where it has set nothing.
    [[nodiscard]] QVariant pendingValue(int column) const;
    void setValue(int column, const QVariant &value);

    void addNew();
    void update();
    void cancelUpdate() { mEdit.reset(); }
    void remove();
    void close();

    /// The current row's values in the order of the columns. Error 3021 without a row.
    [[nodiscard]] const std::vector<QVariant> &row();

  private:
    void requireRow() const;
    void requireWritable() const;
    void settle(qint64 place, int step);

    std::shared_ptr<KeySet> mKeys;
    bool mReadOnly = false;
    // -1 stands before the first row.
    qint64 mPlace = -1;
    bool mAtEnd = true;
    bool mOnDeleted = false;
    std::optional<RowBuffer> mEdit;
    bool mAdding = false;
    std::optional<std::vector<QVariant>> mRow;
};
