// The Import page: which file, what of it, and the import itself. Each box refuses to stay on while something is
// missing that it needs, and what cannot go together switches each other off.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "data/Imports.h"

class DataImport : public QObject
{
    Q_OBJECT

  public:
    DataImport(const Context &context, ImportPage &page, DatabaseHolder &database, Imports &imports, LongWork &work);

  Q_SIGNALS:
    /// The options are not to be stored from now on, and again.
    void formReady(bool ready);
    /// From now on the import is alone with the database, and no longer.
    void importing(bool begins);
    /// The database has other rows: everything that shows it is to be loaded anew.
    void reloadWanted();

  private:
    struct Outcome
    {
        QString failure;
        bool cancelled = false;
    };
    void connectBoxes();
    void cmdSFISelDatabase_Click();
    [[nodiscard]] QString take(const QString &path);
    void cboSFITableIn_Click();
    void cboSFITableExisting_Click();
    void allBox_Click(CheckBox &box, const QString &name);
    void chkSFIImportTable_Click();
    void chkSFIImportField_Click();
    void refuse(CheckBox &box, const QString &why);
    void cmdSFIImport_Click();
    [[nodiscard]] QString import(const QString &path);
    [[nodiscard]] QString importChosen(const QString &path);
    [[nodiscard]] QString importField(const QString &path);
    [[nodiscard]] QString importTable(const QString &path);
    [[nodiscard]] QString importAll(const QString &path);
    template <class Import> [[nodiscard]] Outcome run(const QString &text, const Import &import);

    Context mContext;
    ImportPage &mPage;
    DatabaseHolder &mDatabase;
    Imports &mImports;
    LongWork &mWork;
};
