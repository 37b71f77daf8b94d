#include "store/cAdoMdb.h"
#include "store/AdoErrors.h"
#include "store/TableListFile.h"
#include "store/rows/Catalog.h"
#include "store/rows/ColumnKinds.h"
#include "store/rows/RecordWriter.h"
#include "store/rows/RecordsetState.h"
#include "store/sqlite/DatabaseFiles.h"
#include "util/Text.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
constexpr Place place(QLatin1StringView location)
{
    return {"cAdoMdb"_L1, location};
}

// A query that fails in one of these ways gives a set that was never opened, and its reader finds out.
constexpr std::array leftToTheReader{AdoError::BadSql, AdoError::NoSuchTable, AdoError::ConnectionClosed};

} // namespace

// A procedure's work, of which is remembered what the file did to it.
template <class Work> void cAdoMdb::watched(Work &&work)
{
    mFault = StoreFault::None;
    try {
        work();
    } catch (const StoreError &error) {
        mFault = error.fault();
        throw;
    }
}

cAdoMdb::cAdoMdb(ErrorReceiver &log, AskYesNo ask) : mLog(log), mAsk(std::move(ask)) {}

cAdoMdb::~cAdoMdb() = default;

QString cAdoMdb::DatabasePath()
{
    if (mDatabasePath.isEmpty())
        mDatabasePath = u"Default.mdb"_s;
    return mDatabasePath;
}

void cAdoMdb::setDatabasePath(const QString &sNewDatabasePathValue)
{
    const QString path = cUtility::Trim(sNewDatabasePathValue).toString();
    if (path.isEmpty())
        return;
    guarded(mLog, place("Let DatabasePath"_L1), [&] {
        bool possible = false;
        watched([&] { possible = DatabaseFiles::isFileOrCanBeOne(path); });
        if (!possible) {
            mFault = StoreFault::Gone;
            return;
        }
        mDatabasePath = path;
        Q_EMIT DatabasePathChanged(path);
    });
}

int cAdoMdb::ConnectionType()
{
    constexpr int usualType = 4;
    if (mConnectionType == 0)
        mConnectionType = usualType;
    return mConnectionType;
}

void cAdoMdb::setConnectionType(int eNewConnectionTypeValue)
{
    if (eNewConnectionTypeValue < 4 || eNewConnectionTypeValue > 8)
        return;
    mConnectionType = eNewConnectionTypeValue;
    Q_EMIT ConnectionTypeChanged(mConnectionType);
}

void cAdoMdb::Fields_AddItem(const QString &sNewField, int nTableIndex, const QString &strTableName)
{
    guarded(mLog, place("Sub Fields_AddItem"_L1), [&] { mMatrix.addField(sNewField, nTableIndex, strTableName); });
}

QString cAdoMdb::Fields_ListItem(int nIndex, const QString &strFieldName, int nTableIndex,
                                 const QString &strTableName) const
{
    return guardedResult(mLog, place("Function Fields_ListItem"_L1), QString(), [&](QString &item) {
        item = mMatrix.fieldItem(nIndex, strFieldName, nTableIndex, strTableName);
    });
}

int cAdoMdb::Fields_Count(int nTableIndex, const QString &strTableName) const
{
    return guardedResult(mLog, place("Function Fields_Count"_L1), 0,
                         [&](int &count) { count = mMatrix.fieldCount(nTableIndex, strTableName); });
}

bool cAdoMdb::Tables_AddItem(const QString &strTableName)
{
    return guardedResult(mLog, place("Sub Tables_AddItem"_L1), false,
                         [&](bool &added) { added = mMatrix.addTable(strTableName); });
}

QString cAdoMdb::Tables_ListItem(int nIndex, const QString &strTableName) const
{
    return guardedResult(mLog, place("Function Tables_ListItem"_L1), QString(),
                         [&](QString &item) { item = mMatrix.tableItem(nIndex, strTableName); });
}

int cAdoMdb::Tables_Count() const
{
    return guardedResult(mLog, place("Function Tables_Count"_L1), 0, [&](int &count) { count = mMatrix.tableCount(); });
}

void cAdoMdb::Tables_Clear()
{
    guarded(mLog, place("Sub Tables_Clear"_L1), [&] { mMatrix.clear(); });
}

void cAdoMdb::LoadTableFieldListFile(const QString &sFileName)
{
    guarded(mLog, place("Sub LoadTableFieldListFile"_L1), [&] {
        mMatrix.clear();
        const auto tables = readTableListFile(sFileName);
        if (!tables.empty())
            mMatrix.replace(tables);
    });
}

bool cAdoMdb::mayReplaceFile(bool bOverWriteExisting)
{
    if (bOverWriteExisting || !QFileInfo::exists(DatabasePath()))
        return true;
    return mAsk && mAsk(u"FILE EXISTS"_s, u"\"%1\" exists.\r\n Overwrite existing file?"_s.arg(DatabasePath()));
}

bool cAdoMdb::CreateDatabase(bool bOverWriteExisting)
{
    return guardedResult(mLog, place("CreateDatabase"_L1), false, [&](bool &made) {
        if (!mayReplaceFile(bOverWriteExisting))
            return;
        watched([&] {
            DatabaseFiles::create(DatabasePath(), mMatrix);
            made = true;
            openToWrite();
        });
    });
}

bool cAdoMdb::TestDatabase(bool bOpenConnection)
{
    return guardedResult(mLog, place("TestDatabase"_L1), false, [&](bool &passed) {
        watched([&] {
            const auto connection = Connection::open(DatabasePath(), Connection::Access::Write);
            if (!Catalog::matches(*connection, mMatrix))
                return;
            if (bOpenConnection) {
                connection->prepareForWriting();
                mobjAdoConn = connection;
            }
            passed = true;
        });
    });
}

bool cAdoMdb::LoadDatabase(const QString &sNewDatabasePath)
{
    return guardedResult(mLog, place("Function LoadDatabase"_L1), false, [&](bool &loaded) {
        const QString path = cUtility::Trim(sNewDatabasePath).toString();
        if (!QFileInfo(DatabasePath()).isFile() && !QFileInfo(path).isFile())
            return;
        if (!path.isEmpty())
            setDatabasePath(path);
        Tables_Clear();
        mobjAdoConn.reset();
        watched([&] { openToWrite(); });
        for (const QString &table : Catalog::userTables(*mobjAdoConn)) {
            Tables_AddItem(table);
            for (const QString &column : mobjAdoConn->columnNames(table))
                Fields_AddItem(column, -1, LetterAndNumbersOnly(table, true));
        }
        loaded = true;
    });
}

QString cAdoMdb::CompactDatabase()
{
    return guardedResult(mLog, place("CompactDatabase"_L1), QString(), [&](QString &report) {
        const qint64 before = QFileInfo(DatabasePath()).size();
        DatabaseFiles::compact(DatabasePath());
        const qint64 after = QFileInfo(DatabasePath()).size();
        report = DatabasePath() + u" original size %1\r\nCompact size %2"_s.arg(before).arg(after);
    });
}

void cAdoMdb::openToWrite()
{
    mobjAdoConn = Connection::open(DatabasePath(), Connection::Access::Write);
    mobjAdoConn->prepareForWriting();
}

QStringList cAdoMdb::lockHolders()
{
    return DatabaseFiles::lockHolders(DatabasePath());
}

Connection &cAdoMdb::openConnection() const
{
    if (!mobjAdoConn)
        throw AdoError::error(AdoError::ConnectionClosed);
    return *mobjAdoConn;
}

QString cAdoMdb::tableName(int nTableIndex, const QString &sTableName) const
{
    if (!sTableName.isEmpty())
        return sTableName;
    if (nTableIndex < 0 || nTableIndex > mMatrix.tableCount())
        throw RuntimeError(AdoError::NoSuchTableIndex, u"Table Index %1 doesn't exist!"_s.arg(nTableIndex));
    return mMatrix.tableItem(nTableIndex, QString());
}

bool cAdoMdb::AddRecord(const QStringList &sNewFieldData, int nTableIndex, const QString &sTableName,
                        const QString &sDelimiter)
{
    return guardedResult(mLog, place("Function AddRecord"_L1), false, [&](bool &written) {
        watched([&] {
            const QString table = tableName(nTableIndex, sTableName);
            const int row = mMatrix.rowOf(-1, table);
            RecordWriter record(openConnection(), table, row < 0 ? QStringList() : mMatrix.fieldsOf(row));
            const RecordDelimiter delimiter(sDelimiter);
            for (const QString &element : sNewFieldData)
                record.take(element, delimiter);
            record.write();
            written = true;
        });
    });
}

void cAdoMdb::DeleteRecords(const QString &sTableName, const QString &sFieldName, const QString &sCriteria,
                            bool bCriteriaIsNumeric)
{
    guarded(mLog, place("Sub DeleteRecords"_L1), [&] {
        QString statement = "DELETE * FROM "_L1 + sTableName;
        const QLatin1StringView quote = bCriteriaIsNumeric ? ""_L1 : "'"_L1;
        if (!sCriteria.isEmpty())
            statement += " WHERE "_L1 + sFieldName + "="_L1 + quote + sCriteria + quote;
        static_cast<void>(GetRecordset(statement));
    });
}

bool cAdoMdb::AddTable(const QString &sTableName)
{
    return guardedResult(mLog, place("AddTable"_L1), false, [&](bool &added) {
        const int row = mMatrix.rowOf(-1, sTableName);
        if (row < 0)
            throw RuntimeError(AdoError::TableNotInMatrix, u"Table %1 doesn't exist!"_s.arg(sTableName));
        std::vector<Catalog::NewField> fields;
        for (const QString &field : mMatrix.fieldsOf(row))
            fields.push_back({field, field == "Date"_L1 ? ColumnKind::Date : ColumnKind::WChar});
        Catalog::createTable(openConnection(), mMatrix.at(row, 0), fields);
        added = true;
    });
}

bool cAdoMdb::RemoveTable(const QString &sTableName)
{
    return guardedResult(mLog, place("RemoveTable"_L1), false, [&](bool &removed) {
        const int row = mMatrix.rowOf(-1, sTableName);
        if (row < 0)
            return;
        const QString name = mMatrix.at(row, 0);
        Catalog::dropTable(openConnection(), name);
        removed = guardedResult(mLog, place("Function Tables_ListItem"_L1), false,
                                [&](bool &taken) { taken = mMatrix.removeTable(name); });
    });
}

Recordset cAdoMdb::run(const QString &sSQLString)
{
    const SqlStatement statement = parseStatement(sSQLString);
    static_cast<void>(openConnection());
    Query query = prepareQuery(mobjAdoConn, statement);
    if (statement.verb == SqlStatement::Verb::Delete) {
        runDelete(query);
        return Recordset::unopened();
    }
    const bool readOnly = mobjAdoConn->isReadOnly();
    return Recordset(std::make_shared<RecordsetState>(std::make_shared<KeySet>(std::move(query)), readOnly));
}

Recordset cAdoMdb::GetRecordset(const QString &sSQLString)
{
    return guardedResult(mLog, place("Function GetRecordset"_L1), Recordset(), [&](Recordset &set) {
        try {
            watched([&] { set = run(sSQLString); });
        } catch (const RuntimeError &error) {
            if (std::find(leftToTheReader.begin(), leftToTheReader.end(), error.number()) == leftToTheReader.end())
                throw;
            set = Recordset::unopened();
        }
    });
}

QStringList cAdoMdb::GetFieldData(const QString &sField, const QString &sTable)
{
    QStringList values = guardedResult(mLog, place("Function GetFieldData"_L1), QStringList(), [&](QStringList &found) {
        if (sField.isEmpty())
            return;
        Recordset rows = GetRecordset("SELECT "_L1 + sField + " FROM "_L1 + sTable);
        for (; !rows.Eof(); rows.MoveNext()) {
            const QString value = valueText(rows.Fields()[0].Value());
            if (!value.isEmpty())
                found.append(value);
        }
    });
    return values.isEmpty() ? QStringList{QString()} : values;
}

void cAdoMdb::CloseConnection()
{
    guarded(mLog, place("Sub CloseConnection"_L1), [&] {
        if (!mobjAdoConn)
            throw AdoError::error(AdoError::ObjectClosed);
        mobjAdoConn.reset();
    });
}
