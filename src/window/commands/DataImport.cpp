#include "window/commands/DataImport.h"

#include "app/SettingKeys.h"
#include "store/Schema.h"
#include "util/FileNames.h"
#include "util/Text.h"

#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {
constexpr auto form = "frmSearch"_L1;
constexpr auto openDatabase = "Can't import loaded database"_L1;

QString chosen(const ComboBox &box)
{
    return box.list(box.listIndex());
}

bool isIndex(const QString &field)
{
    return cUtility::equalIgnoringCase(field, u"index");
}

void fill(ComboBox &box, QStringList names)
{
    names.removeAll(QString());
    box.setItems(names);
}

void clear(std::initializer_list<CheckBox *> boxes)
{
    for (CheckBox *const box : boxes)
        box->setValue(0);
}
} // namespace

DataImport::DataImport(const Context &context, ImportPage &page, DatabaseHolder &database, Imports &imports,
                       LongWork &work)
    : mContext(context), mPage(page), mDatabase(database), mImports(imports), mWork(work)
{
    const auto onClick = [this](auto &control, QLatin1StringView location, auto action) {
        using ControlType = std::remove_reference_t<decltype(control)>;
        connect(&control, &ControlType::Click, this, [this, location, action] {
            guarded(mContext.log, {form, location}, [&] { (this->*action)(); });
        });
    };
    onClick(page.cmdSFISelDatabase, "Sub cmdSFISelDatabase_Click"_L1, &DataImport::cmdSFISelDatabase_Click);
    onClick(page.cmdSFIImport, "Sub cmdSFIImport_Click"_L1, &DataImport::cmdSFIImport_Click);
    onClick(page.cboSFITableIn, "Sub cboSFITableIn_Click"_L1, &DataImport::cboSFITableIn_Click);
    onClick(page.cboSFITableExisting, "Sub cboSFITableExisting_Click"_L1, &DataImport::cboSFITableExisting_Click);
    onClick(page.chkSFIImportTable, "Sub chkSFIImportTable_Click"_L1, &DataImport::chkSFIImportTable_Click);
    onClick(page.chkSFIImportField, "Sub chkSFIImportField_Click"_L1, &DataImport::chkSFIImportField_Click);
    connectBoxes();
}

void DataImport::connectBoxes()
{
    connect(&mPage.chkSFIAllData, &CheckBox::Click, this,
            [this] { allBox_Click(mPage.chkSFIAllData, u"Import all data"_s); });
    connect(&mPage.chkSFIAllSettings, &CheckBox::Click, this,
            [this] { allBox_Click(mPage.chkSFIAllSettings, u"Import all settings"_s); });
    // What is chosen decides what can be done next.
    for (ComboBox *const box : {&mPage.cboSFIFieldIn, &mPage.cboSFIFieldExisting})
        connect(box, &ComboBox::Click, this, [this] { mContext.states.SetStateOfControls(); });
}

void DataImport::cmdSFISelDatabase_Click()
{
    const QString folder = mContext.settings.GetSetting(Sections::Main, Keys::LastImportDir);
    const QString path = mContext.dialogs.chooseFile(folder, u"Access DB (*.mdb)|*.mdb|Access DB (*.accdb)|*.accdb|"_s,
                                                     u"Select File"_s);
    QString told;
    if (!path.isEmpty() && QFileInfo(path).isFile()) {
        if (mImports.isOpenDatabase(path))
            return mContext.status.UpDateStatus(openDatabase);
        told = take(path);
    }
    mContext.states.SetStateOfControls();
    mContext.status.UpDateStatus(told);
}

QString DataImport::take(const QString &path)
{
    const bool ours = mImports.TestImportDatabase(path);
    for (CheckBox *const box : {&mPage.chkSFIAllSettings, &mPage.chkSFIAllData, &mPage.chkSFIImportTable}) {
        if (!ours)
            box->setValue(0);
        box->setEnabled(ours);
    }
    mContext.settings.SaveSetting(Sections::Main, Keys::LastImportDir,
                                  cUtility::InStrRevGetBeginning(path, cUtility::FolderSeparator) +
                                      cUtility::FolderSeparator.toString());
    mPage.lblSFIImportDatabase.setCaption(path);
    mPage.cboSFIFieldIn.clear();
    fill(mPage.cboSFITableIn, mDatabase->GetExternalTablesFields(path, cAdoMdb::ExternalList::Tables, {}));
    return ours ? u"Trawlex database selected"_s : u"Not an Trawlex database"_s;
}

void DataImport::cboSFITableIn_Click()
{
    const QString table = chosen(mPage.cboSFITableIn);
    if (!table.isEmpty())
        fill(mPage.cboSFIFieldIn, mDatabase->GetExternalTablesFields(mPage.lblSFIImportDatabase.caption(),
                                                                     cAdoMdb::ExternalList::FieldsOfTable, table));
    mContext.states.SetStateOfControls();
}

void DataImport::cboSFITableExisting_Click()
{
    const QString table = chosen(mPage.cboSFITableExisting);
    if (table.isEmpty())
        return;
    for (const QStringList &row : LoadTblFldNames()) {
        if (row.constFirst() == table)
            fill(mPage.cboSFIFieldExisting, row.mid(1));
    }
    mContext.states.SetStateOfControls();
}

/// The box goes off again; that is told last.
void DataImport::refuse(CheckBox &box, const QString &why)
{
    box.setValue(0);
    mContext.status.UpDateStatus(why);
}

void DataImport::allBox_Click(CheckBox &box, const QString &name)
{
    if (box.value() != 1) {
        mContext.status.UpDateStatus(name + " OFF"_L1);
        return mContext.states.SetStateOfControls();
    }
    clear({&mPage.chkSFIImportTable, &mPage.chkSFIImportField});
    if (mPage.lblSFIImportDatabase.caption().isEmpty()) {
        refuse(box, u"Import database not selected"_s);
    } else if (!QFileInfo::exists(mPage.lblSFIImportDatabase.caption())) {
        mPage.lblSFIImportDatabase.setCaption({});
        refuse(box, u"Import database doesn't exist"_s);
    } else {
        mContext.status.UpDateStatus(name + " ON"_L1);
    }
    mContext.states.SetStateOfControls();
}

void DataImport::chkSFIImportTable_Click()
{
    if (mPage.chkSFIImportTable.value() == 1) {
        if (chosen(mPage.cboSFITableIn).isEmpty())
            refuse(mPage.chkSFIImportTable, u"Import table not select"_s);
        else
            clear({&mPage.chkSFIImportField, &mPage.chkSFIAllSettings, &mPage.chkSFIAllData});
    }
    mContext.states.SetStateOfControls();
}

void DataImport::chkSFIImportField_Click()
{
    CheckBox &box = mPage.chkSFIImportField;
    if (box.value() == 1) {
        const QString existing = chosen(mPage.cboSFIFieldExisting), in = chosen(mPage.cboSFIFieldIn);
        if (existing.isEmpty())
            refuse(box, u"Existing field not selected"_s);
        else if (in.isEmpty())
            refuse(box, u"Import field not selected"_s);
        else if (isIndex(existing) || isIndex(in))
            refuse(box, u"Index fields can not be imported"_s);
        else
            clear({&mPage.chkSFIImportTable, &mPage.chkSFIAllSettings, &mPage.chkSFIAllData});
    }
    mContext.states.SetStateOfControls();
}

void DataImport::cmdSFIImport_Click()
{
    const auto enable = [this](bool enabled) {
        mPage.cmdSFIImport.setEnabled(enabled);
        mPage.cmdSFISelDatabase.setEnabled(enabled);
    };
    enable(false);
    const QString path = mPage.lblSFIImportDatabase.caption();
    // It may have been opened since it was selected.
    if (!path.isEmpty() && mImports.isOpenDatabase(path)) {
        mContext.status.UpDateStatus(openDatabase);
    } else if (!path.isEmpty() && QFileInfo(path).isFile() && !mWork.isUnderWay()) {
        Q_EMIT formReady(false);
        QString told;
        guarded(mContext.log, {form, "Sub cmdSFIImport_Click"_L1}, [&] {
            told = import(path);
            mDatabase->CloseConnection();
            Q_EMIT reloadWanted();
        });
        Q_EMIT formReady(true);
        mContext.states.SetStateOfControls();
        mContext.status.UpDateStatus(told);
    }
    enable(true);
}

QString DataImport::import(const QString &path)
{
    Q_EMIT importing(true);
    const auto ended = qScopeGuard([this] { Q_EMIT importing(false); });
    return importChosen(path);
}

QString DataImport::importChosen(const QString &path)
{
    if (mPage.chkSFIAllSettings.isOn() || mPage.chkSFIAllData.isOn())
        return importAll(path);
    QString told;
    if (mPage.chkSFIImportField.isOn())
        told = importField(path);
    if (mPage.chkSFIImportTable.isOn() && !chosen(mPage.cboSFITableIn).isEmpty())
        told = importTable(path);
    return told;
}

QString DataImport::importField(const QString &path)
{
    const QString tableIn = chosen(mPage.cboSFITableIn), fieldIn = chosen(mPage.cboSFIFieldIn);
    const QString table = chosen(mPage.cboSFITableExisting), field = chosen(mPage.cboSFIFieldExisting);
    QString told;
    if (tableIn.isEmpty() || table.isEmpty())
        told = u"Tables not selected"_s;
    else if (fieldIn.isEmpty() || field.isEmpty())
        told = u"Fields not selected"_s;
    else
        mWork.run("Importing "_L1 + fieldIn,
                  [&] { told = mImports.ImportField(path, tableIn, fieldIn, table, field); });
    clear({&mPage.chkSFIImportField});
    return told.isEmpty() ? u"Data imported"_s : told;
}

QString DataImport::importTable(const QString &path)
{
    const QString table = chosen(mPage.cboSFITableIn);
    QString told;
    mWork.run("Importing "_L1 + table, [&] { told = mImports.ImportTable(path, table); });
    clear({&mPage.chkSFIImportTable});
    return told.isEmpty() ? table + " Imported"_L1 : told;
}

template <class Import> DataImport::Outcome DataImport::run(const QString &text, const Import &import)
{
    Outcome outcome;
    mWork.run(text, [&] {
        outcome.failure = import();
        outcome.cancelled = mWork.isCancelled();
    });
    return outcome;
}

/// The last message wins, but what went wrong with either of both is told. The user may cancel when the settings are
/// about to stand: the data does not follow then.
QString DataImport::importAll(const QString &path)
{
    Outcome settings, data;
    QStringList told;
    if (mPage.chkSFIAllSettings.isOn()) {
        settings = run(u"Importing all settings"_s, [&] { return mImports.ImportAllSettings(path); });
        told.append(settings.failure.isEmpty() ? u"Settings Imported"_s : settings.failure);
    }
    if (mPage.chkSFIAllData.isOn() && !settings.cancelled) {
        data = run(u"Importing all data"_s, [&] { return mImports.ImportAllData(path); });
        if (data.failure.isEmpty() && settings.failure.isEmpty())
            told.clear();
        const QLatin1StringView of = told.isEmpty() ? ""_L1 : "Data: "_L1;
        told.append(data.failure.isEmpty() ? u"Data Imported"_s : of + data.failure);
    } else if (mPage.chkSFIAllData.isOn() && settings.failure.isEmpty()) {
        told.append(u"Data: Import cancelled, nothing imported"_s);
    }
    clear({&mPage.chkSFIAllSettings, &mPage.chkSFIAllData});
    return told.join("; "_L1);
}
