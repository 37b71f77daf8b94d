// The procedures of the database object that read other databases.
#include "store/cAdoMdb.h"
#include "store/foreign/ForeignDatabase.h"
#include "util/Text.h"

#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr Place listing{"cAdoMdb"_L1, "Function GetExternalTablesFields"_L1};
constexpr Place reading{"cAdoMdb"_L1, "Function GetRecordSetFromExternalDB"_L1};

QStringList tableList(const std::vector<ForeignDatabase::Table> &tables)
{
    QStringList names;
    for (const auto &table : tables)
        names.append(table.isUserTable ? table.name : QString());
    return names;
}

// As long as the widest table's columns and one more; empty where no table has the name.
QStringList fieldList(const std::vector<ForeignDatabase::Table> &tables, const QString &name)
{
    qsizetype widest = 0;
    QStringList fields;
    for (const auto &table : tables) {
        widest = std::max(widest, table.columns.size());
        if (table.isUserTable && cUtility::equalIgnoringCase(table.name, name))
            fields = table.columns;
    }
    fields.resize(widest + 1);
    return fields;
}

bool isFile(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isFile();
}
} // namespace

QStringList cAdoMdb::GetExternalTablesFields(const QString &sFileName, ExternalList eReturnType,
                                             const QString &sTableNameOfFields)
{
    return guardedResult(mLog, listing, QStringList{QString()}, [&](QStringList &list) {
        const QString path = cUtility::Trim(sFileName).toString();
        if (!isFile(path) || (eReturnType == ExternalList::FieldsOfTable && sTableNameOfFields.isEmpty()))
            return;
        const auto tables = ForeignDatabase::catalog(path);
        list = eReturnType == ExternalList::Tables ? tableList(tables) : fieldList(tables, sTableNameOfFields);
    });
}

QList<QStringList> cAdoMdb::GetExternalTablesFields(const QString &sFileName)
{
    return guardedResult(mLog, listing, QList<QStringList>(), [&](QList<QStringList> &list) {
        const QString path = cUtility::Trim(sFileName).toString();
        if (!isFile(path))
            return;
        for (const auto &table : ForeignDatabase::catalog(path))
            list.append(QStringList{table.name} + table.columns);
    });
}

Recordset cAdoMdb::GetRecordSetFromExternalDB(const QString &sDatabaseNameWithPath, const QString &sSQLString)
{
    return guardedResult(mLog, reading, Recordset(), [&](Recordset &set) {
        if (isFile(sDatabaseNameWithPath) && !sSQLString.isEmpty())
            set = Recordset(
                std::make_shared<RecordsetState>(ForeignDatabase::query(sDatabaseNameWithPath, sSQLString), true));
    });
}
