#include "data/Imports.h"

#include "data/ImportLists.h"
#include "data/RowCopy.h"
#include "store/Schema.h"
#include "store/Transaction.h"
#include "util/Text.h"

#include <QDate>
#include <QFileInfo>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {
constexpr auto form = "frmSearch"_L1, object = "cAdoMdb"_L1;
constexpr int bytesKind = 205;

bool isIndex(const QString &field)
{
    return cUtility::equalIgnoringCase(field, u"index");
}

/// A table's columns that go with it.
QStringList importable(const Recordset &rows)
{
    const Fields fields = rows.Fields();
    QStringList names;
    for (int column = 0; column < fields.Count(); ++column) {
        if (const Field field = fields[column]; !isIndex(field.Name()) && field.Type() != bytesKind)
            names.append(field.Name());
    }
    return names;
}
} // namespace

bool Imports::TestImportDatabase(const QString &path)
{
    return guardedResult(mLog, {form, "Function TestImportDatabase"_L1}, false, [&](bool &ours) {
        if (!QFileInfo(path).isFile())
            return;
        cAdoMdb tested(mLog);
        tested.setDatabasePath(path);
        declareSchema(tested);
        ours = tested.TestDatabase(false);
    });
}

bool Imports::isOpenDatabase(const QString &path)
{
    if (!mDatabase.isSet())
        return false;
    const QString open = mDatabase->DatabasePath();
    std::error_code noMatter;
    return cUtility::equalIgnoringCase(path, open) ||
           std::filesystem::equivalent(path.toStdString(), open.toStdString(), noMatter);
}

QString Imports::run(Place place, const std::function<void(cAdoMdb &)> &copy)
{
    cAdoMdb target(mLog);
    target.setDatabasePath(mDatabase->DatabasePath());
    declareSchema(target);
    if (!target.TestDatabase(true))
        return "Nothing imported. "_L1 + StoreFaults::text(target.fault());
    Transaction transaction(target);
    if (!transaction.isActive())
        return "Nothing imported. "_L1 + StoreFaults::text(transaction.fault());
    QString ending;
    guarded(mLog, place, [&] {
        try {
            copy(target);
        } catch (...) {
            ending = currentError().description();
            throw;
        }
    });
    if (mWork.isCancelled())
        return u"Import cancelled, nothing imported"_s;
    if (!transaction.commit([this](const auto &writing) { mWork.beside(writing); }))
        return "Nothing imported. "_L1 + StoreFaults::text(transaction.fault());
    return ending.isEmpty() ? ending : "Import ended: "_L1 + ending;
}

/// All rows of a table of the file. Raises the error that the reading has met.
Recordset Imports::source(const QString &path, const QString &table)
{
    Recordset rows = mDatabase->GetRecordSetFromExternalDB(path, "SELECT * FROM ["_L1 + table + ']'_L1);
    if (rows.isNothing())
        throw RuntimeError(ErrorNumber::ObjectNotSet, table + " cannot be read"_L1);
    return rows;
}

QString Imports::ImportAllData(const QString &path)
{
    return run({form, "Sub ImportAllData"_L1}, [&](cAdoMdb &target) {
        for (const ImportedTable &table : ImportLists::data())
            RowCopy(target, table.name, rowMarker, mWork).run(source(path, table.name), table.columns, table.testField);
    });
}

QString Imports::ImportAllSettings(const QString &path)
{
    return run({form, "Sub ImportAllSettings"_L1}, [&](cAdoMdb &target) {
        for (const ImportedTable &table : ImportLists::settings())
            RowCopy(target, table.name, rowMarker, mWork).run(source(path, table.name), table.columns, {});
    });
}

QString Imports::ImportTable(const QString &sImportDB, const QString &sImportTable)
{
    if (sImportDB.isEmpty() || sImportTable.isEmpty())
        return u"Import table not select"_s;
    return run({object, "Sub ImportTable"_L1}, [&](cAdoMdb &target) {
        Recordset rows = source(sImportDB, sImportTable);
        RowCopy(target, sImportTable, ","_L1, mWork).run(rows, importable(rows), {});
    });
}

QString Imports::ImportField(const QString &sImportDB, const QString &sImportTable, const QString &sImportField,
                             const QString &sExistingTable, const QString &sExistingField)
{
    if (sImportDB.isEmpty())
        return u"No import database"_s;
    if (sImportTable.isEmpty() || sImportField.isEmpty())
        return u"import table, field is missing"_s;
    if (sExistingTable.isEmpty() || sExistingField.isEmpty())
        return u"Existing table, field is missing"_s;
    QString refused;
    const QString ending = run({object, "Function ImportField"_L1}, [&](cAdoMdb &target) {
        Recordset from = source(sImportDB, sImportTable);
        const Field value = from.Fields()[sImportField];
        Recordset to = target.GetRecordset("SELECT * FROM ["_L1 + sExistingTable + ']'_L1);
        const Fields fields = to.Fields();
        const Field taken = fields[sExistingField];
        if (value.Type() != taken.Type()) {
            refused = u"Field data types do not match"_s;
            return;
        }
        std::optional<Field> date;
        for (int column = 0; column < fields.Count(); ++column) {
            if (cUtility::equalIgnoringCase(fields[column].Name(), u"date"))
                date = fields[column];
        }
        const QString today = QDate::currentDate().toString(Qt::ISODate);
        for (qint64 row = 0; !from.Eof() && mWork.goOn(row); from.MoveNext(), ++row) {
            to.AddNew();
            if (date)
                date->setValue(today);
            taken.setValue(value.Value());
            to.Update();
        }
    });
    return refused.isEmpty() ? ending : refused;
}
