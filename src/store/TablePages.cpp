#include "store/TablePages.h"
#include "store/AdoErrors.h"
#include "store/Transaction.h"
#include "store/cAdoMdb.h"
#include "store/rows/ColumnKinds.h"
#include "store/rows/RowReader.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr Place removing{"cAdoMdb"_L1, "Sub DeleteRecords"_L1};

// The filter goes the way of all statements, so that it takes and refuses what they do.
Query queryFor(const cAdoMdb &database, const QString &table, const TablePages::Filter &filter)
{
    if (!database.connection())
        throw AdoError::error(AdoError::ConnectionClosed);
    QString statement = u"SELECT * FROM [%1]"_s.arg(table);
    if (!filter.text.isEmpty())
        statement += u" WHERE [%1] LIKE '"_s.arg(filter.column) + filter.pattern() + '\''_L1;
    return prepareQuery(database.connection(), parseStatement(statement));
}

void sort(Query &query, const TablePages::Sorting &sorting)
{
    query.order.clear();
    if (sorting.column.isEmpty())
        return;
    const int column = query.table->columnOf(sorting.column);
    if (column < 0)
        throw AdoError::error(AdoError::BadSql);
    query.order = query.table->columns[static_cast<std::size_t>(column)].quoted;
    if (sorting.order == Qt::DescendingOrder)
        query.order += " DESC";
}
} // namespace

QString TablePages::Filter::pattern() const
{
    const QLatin1StringView any = "%"_L1, nothing;
    return (place == Place::Anywhere ? any : nothing) + text + (place == Place::Whole ? nothing : any);
}

TablePages::TablePages(const cAdoMdb &database, const QString &table) : TablePages(database, table, {}, {}) {}

TablePages::TablePages(const cAdoMdb &database, const QString &table, const Filter &filter, const Sorting &sorting)
    : TablePages(queryFor(database, table, filter), sorting)
{
}

TablePages::TablePages(Query query, const Sorting &sorting) : mSorting(sorting)
{
    sort(query, sorting);
    mKeys = std::make_shared<KeySet>(std::move(query));
    mReader = std::make_unique<RowReader>(mKeys);
    if (isCounted())
        static_cast<void>(mKeys->reach(0));
}

TablePages TablePages::sorted(const Sorting &sorting) const
{
    return {mKeys->query(), sorting};
}

/// The whole table in its own order: nothing has to be looked at.
bool TablePages::isCounted() const
{
    return mKeys->query().condition.empty() && mKeys->query().order.empty();
}

bool TablePages::advance(int milliseconds) const
{
    return isCounted() || mKeys->advance(milliseconds);
}

qint64 TablePages::knownRows() const
{
    return isCounted() ? rowCount() : mKeys->fetched();
}

TablePages::~TablePages() = default;
TablePages::TablePages(TablePages &&) noexcept = default;
TablePages &TablePages::operator=(TablePages &&) noexcept = default;

QStringList TablePages::columns() const
{
    QStringList names;
    for (const ColumnInfo &column : mKeys->query().table->columns)
        names.append(column.name);
    return names;
}

int TablePages::kind(int column) const
{
    return mKeys->query().table->columns.at(static_cast<std::size_t>(column)).kind;
}

qint64 TablePages::rowCount() const
{
    if (mCount < 0)
        mCount = mKeys->query().condition.empty() ? mKeys->tableSize() : mKeys->size();
    return mCount;
}

std::optional<qint64> TablePages::key(qint64 row) const
{
    return mKeys->reach(row) ? std::optional(mKeys->key(row)) : std::nullopt;
}

bool TablePages::hasCell(qint64 row, int column) const
{
    return column >= 0 && column < static_cast<int>(mKeys->query().columns.size()) && mKeys->reach(row);
}

QVariant TablePages::value(qint64 row, int column) const
{
    if (!hasCell(row, column))
        return {};
    try {
        return mReader->value(row, column);
    } catch (const RuntimeError &error) {
        if (error.number() != AdoError::RowDeleted)
            throw;
        return {};
    }
}

QString TablePages::cell(qint64 row, int column) const
{
    if (!hasCell(row, column))
        return {};
    switch (kind(column)) {
    case ColumnKind::LongVarWChar:
    case ColumnKind::LongVarChar:
        return mReader->beginning(row, column, longestCell);
    case ColumnKind::LongVarBinary:
    case ColumnKind::Binary:
        return {};
    default:
        return valueText(value(row, column));
    }
}

qint64 removeRows(cAdoMdb &database, const QString &table, const QList<qint64> &keys)
{
    return guardedResult(database.log(), removing, qint64(-1), [&](qint64 &removed) {
        Transaction transaction(database);
        const std::shared_ptr<Connection> &connection = database.connection();
        if (!connection || !transaction.isActive())
            return;
        const auto info = connection->requireTable(table);
        qint64 gone = 0;
        ++info->changes->revision;
        for (const qint64 key : keys) {
            Statement statement = connection->prepare("DELETE FROM " + info->quoted + " WHERE " + info->key + "=?1");
            gone += connection->change(statement.bind(1, key));
        }
        if (transaction.commit())
            removed = gone;
    });
}
