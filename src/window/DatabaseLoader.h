// Finds or makes the database file, tests it, and loads from it what the window shows.
#pragma once

#include "app/Ports.h"
#include "app/frmSearch.h"
#include "lists/Blocking.h"
#include "lists/CriteriaSets.h"
#include "lists/SavedUrls.h"

class DatabaseLoader : public QObject
{
    Q_OBJECT

  public:
    DatabaseLoader(ErrorReceiver &log, frmSearch &form, UserDialogs &dialogs, SettingsStore &settings,
                   DatabaseHolder &database, CriteriaSets &criteria, Blocking &blocking, SavedUrls &savedUrls);

    /// True if the caller may go on. With `useFileBox` the name is that of txtSFDBFile, else the stored one; where no
    /// such file exists a new one is made under a vacant name.
    [[nodiscard]] bool LoadDatabase(bool useFileBox);
    /// LoadDatabase, then all that depends on the database's content.
    bool LoadDBData(bool useFileBox);

  Q_SIGNALS:
    /// The database cannot be used; the main window has to go.
    void unloadRequested();

  private:
    [[nodiscard]] QString databasePath(bool useFileBox);
    [[nodiscard]] bool isPathTaken(const QString &path) const;
    [[nodiscard]] bool testExisting(const QString &path, bool useFileBox);
    void fatal(const QString &path, const QString &text);
    void choose(ComboBox &combo, QLatin1StringView key);
    void restoreBlocking(CheckBox &box, ListBox &list, QLatin1StringView key);

    ErrorReceiver &mLog;
    frmSearch &mForm;
    UserDialogs &mDialogs;
    SettingsStore &mSettings;
    DatabaseHolder &mDatabase;
    CriteriaSets &mCriteria;
    Blocking &mBlocking;
    SavedUrls &mSavedUrls;
};
