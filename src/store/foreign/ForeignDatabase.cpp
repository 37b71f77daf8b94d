#include "store/foreign/ForeignDatabase.h"
#include "store/AdoErrors.h"
#include "store/StoredText.h"
#include "store/foreign/ReaderProcess.h"
#include "store/rows/Catalog.h"
#include "store/rows/TableFiller.h"
#include "store/sqlite/DatabaseFiles.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {
std::vector<ForeignDatabase::Table> ownCatalog(const QString &path)
{
    const auto connection = Connection::open(path, Connection::Access::Read);
    std::vector<ForeignDatabase::Table> tables;
    for (const QString &name : connection->tableNames(true)) {
        const bool mine = Catalog::isUserTable(name);
        tables.push_back({name, mine, connection->columnNames(name)});
    }
    return tables;
}

TableFiller::Column columnIn(const QByteArray &bytes)
{
    const qsizetype blank = bytes.indexOf(' ');
    return {QString::fromUtf8(bytes.mid(blank + 1)), bytes.left(blank).toInt()};
}

std::vector<ForeignDatabase::Table> otherCatalog(const QString &path)
{
    ReaderProcess reader({u"catalog"_s, path});
    std::vector<ForeignDatabase::Table> tables;
    while (const auto frame = reader.next()) {
        if (frame->kind == Frames::Table) {
            const QString name = QString::fromUtf8(frame->bytes.mid(1));
            tables.push_back({name, frame->bytes.startsWith('u') && Catalog::isUserTable(name), {}});
        } else if (!tables.empty()) {
            tables.back().columns.append(columnIn(frame->bytes).name);
        }
    }
    return tables;
}

QVariant valueIn(const ReaderProcess::Frame &frame)
{
    switch (frame.kind) {
    case Frames::Null:
        return {};
    case Frames::Integer:
        return frame.bytes.toLongLong();
    case Frames::Number:
        return frame.bytes.toDouble();
    case Frames::Bytes:
        return frame.bytes;
    default:
        return storedText(frame.bytes);
    }
}

// The reader's answer: a table, its columns, and for each row as many values.
class TableCopy
{
  public:
    explicit TableCopy(Connection &target) : mTarget(target) {}

    void take(const ReaderProcess::Frame &frame)
    {
        switch (frame.kind) {
        case Frames::Table:
            mName = QString::fromUtf8(frame.bytes.mid(1));
            break;
        case Frames::Column:
            mColumns.push_back(columnIn(frame.bytes));
            break;
        case Frames::Row:
            storeRow();
            mInRow = true;
            break;
        default:
            mRow.push_back(valueIn(frame));
        }
    }

    /// False where the file has no such table.
    [[nodiscard]] bool finish()
    {
        if (mName.isEmpty())
            return false;
        storeRow();
        table().finish();
        return true;
    }

  private:
    TableFiller &table()
    {
        if (!mTable)
            mTable.emplace(mTarget, mName, mColumns);
        return *mTable;
    }

    void storeRow()
    {
        if (!mInRow)
            return;
        if (mRow.size() != mColumns.size())
            throw RuntimeError(AdoError::Engine, u"The reader's answer is damaged."_s);
        table().addRow(mRow);
        mRow.clear();
    }

    Connection &mTarget;
    QString mName;
    std::vector<TableFiller::Column> mColumns;
    std::vector<QVariant> mRow;
    std::optional<TableFiller> mTable;
    bool mInRow = false;
};

std::shared_ptr<Connection> copyOfTable(const QString &path, const QString &table)
{
    auto connection = Connection::open(QString(), Connection::Access::Temporary);
    ReaderProcess reader({u"rows"_s, path, table});
    TableCopy copy(*connection);
    while (const auto frame = reader.next())
        copy.take(*frame);
    if (!copy.finish())
        throw AdoError::error(AdoError::NoSuchTable);
    return connection;
}
} // namespace

std::vector<ForeignDatabase::Table> ForeignDatabase::catalog(const QString &path)
{
    return DatabaseFiles::isSqlite(path) ? ownCatalog(path) : otherCatalog(QFileInfo(path).absoluteFilePath());
}

std::shared_ptr<KeySet> ForeignDatabase::query(const QString &path, const QString &statement)
{
    const SqlStatement parsed = parseStatement(statement);
    if (parsed.verb != SqlStatement::Verb::Select)
        throw AdoError::error(AdoError::BadSql);
    auto connection = DatabaseFiles::isSqlite(path) ? Connection::open(path, Connection::Access::Read)
                                                    : copyOfTable(QFileInfo(path).absoluteFilePath(), parsed.table);
    return std::make_shared<KeySet>(prepareQuery(std::move(connection), parsed));
}
