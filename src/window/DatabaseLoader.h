// Opens a database and loads from it what the window shows, in the order in which one thing depends on another.
#pragma once

#include "app/FormGroups.h"
#include "window/DatabaseFile.h"
#include "window/options/Options.h"

class DatabaseLoader : public QObject
{
    Q_OBJECT

  public:
    DatabaseLoader(ErrorReceiver &log, DatabaseFile &file, Options &options, SavedAddresses &saved, Criteria &criteria,
                   BlockingLists &blocking);

    /// Opens the database, as DatabaseFile::LoadDatabase() has it, and loads all that depends on its content.
    bool LoadDBData(bool useFileBox);

  Q_SIGNALS:
    // To whom the content belongs, in this order.
    /// Lists that depend on the database alone.
    void listsWanted();
    /// The letter of the start addresses has been chosen: search sites, start addresses.
    void addressesWanted();

  private:
    void restoreUse();
    void restoreBlocking(BlockedTexts &texts);

    ErrorReceiver &mLog;
    DatabaseFile &mFile;
    Options &mOptions;
    SavedAddresses &mSaved;
    Criteria &mCriteria;
    BlockingLists &mBlocking;
};
