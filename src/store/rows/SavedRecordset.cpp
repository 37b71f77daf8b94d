#include "store/rows/SavedRecordset.h"
#include "store/AdoErrors.h"
#include "store/rows/RecordsetXml.h"
#include "store/rows/TableFiller.h"
#include "store/sqlite/DatabaseFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {
constexpr QLatin1StringView tableName{"Recordset"};
constexpr qint32 savedSetId = 0x54525253;

std::vector<TableFiller::Column> columnsOf(const Query &query)
{
    std::vector<TableFiller::Column> columns;
    for (const int place : query.columns) {
        const ColumnInfo &column = query.table->columns[static_cast<std::size_t>(place)];
        columns.push_back({column.name, column.kind});
    }
    return columns;
}

/// Thrown through what is half written, so that it goes.
struct Stopped
{
};

template <class Take>
void forEachRow(const std::shared_ptr<KeySet> &rows, const SavedRecordset::GoOn &goOn, Take &&take)
{
    RecordsetState walk(rows, true);
    for (qint64 number = 0; !walk.atEnd(); walk.moveNext()) {
        if (!goOn(number++))
            throw Stopped();
        take(walk.row());
    }
}

template <class Write> bool unlessStopped(Write &&write)
{
    try {
        write();
        return true;
    } catch (const Stopped &) {
        return false;
    }
}

std::shared_ptr<KeySet> rowsOf(const std::shared_ptr<Connection> &connection)
{
    return std::make_shared<KeySet>(prepareQuery(connection, parseStatement("SELECT * FROM "_L1 + tableName)));
}

[[noreturn]] void refuse()
{
    throw RuntimeError(AdoError::Engine, u"The file is not a saved recordset."_s);
}
} // namespace

bool SavedRecordset::saveBinary(const std::shared_ptr<KeySet> &rows, const QString &filePath, const GoOn &goOn)
{
    const auto fill = [&](Connection &connection) {
        connection.administer("PRAGMA application_id=" + std::to_string(savedSetId));
        TableFiller table(connection, tableName, columnsOf(rows->query()));
        forEachRow(rows, goOn, [&](const std::vector<QVariant> &row) { table.addRow(row); });
        table.finish();
    };
    return unlessStopped([&] { DatabaseFiles::build(filePath, fill); });
}

bool SavedRecordset::saveXml(const std::shared_ptr<KeySet> &rows, const QString &filePath, const GoOn &goOn)
{
    return unlessStopped([&] {
        QSaveFile file(filePath);
        if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner))
            throw AdoError::error(ErrorNumber::PathAccessError);
        RecordsetXmlWriter xml(file, columnsOf(rows->query()));
        forEachRow(rows, goOn, [&](const std::vector<QVariant> &row) { xml.addRow(row); });
        if (!xml.finish() || !file.commit())
            throw AdoError::error(ErrorNumber::PathAccessError);
    });
}

std::shared_ptr<KeySet> SavedRecordset::open(const QString &filePath)
{
    QFile file(filePath);
    if (!QFileInfo(filePath).isFile() || !file.open(QIODevice::ReadOnly))
        throw AdoError::error(ErrorNumber::FileNotFound);
    if (DatabaseFiles::isSqlite(filePath)) {
        const auto connection = Connection::open(filePath, Connection::Access::Read);
        if (connection->administerTexts("PRAGMA application_id") != QStringList{QString::number(savedSetId)})
            refuse();
        // Rows that lie in the file: a view of somebody else's making could go on for ever.
        if (connection->administerTexts("SELECT name FROM sqlite_schema WHERE rootpage>0 AND name='Recordset'")
                .isEmpty())
            refuse();
        return rowsOf(connection);
    }
    const auto connection = Connection::open(QString(), Connection::Access::Temporary);
    if (!readRecordsetXml(file, *connection, tableName))
        refuse();
    return rowsOf(connection);
}
