// The user's settings as a harvest from the terminal sees them: read from the window program's store, with the folder
// and the browser of the command line in their place. Nothing of the user's options is changed.
#pragma once

#include "app/IniSettings.h"

#include <optional>

class HarvestSettings : public BorrowedSettings
{
  public:
    /// With a folder of its own the database is the stored one if it lies there, else the one of the highest number;
    /// without one a database that had to be made is remembered in `store`.
    HarvestSettings(SettingsStore &store, const QString &databaseDir, std::optional<int> browser);
    void SaveSetting(const QString &section, const QString &key, const QString &value) override;

  private:
    SettingsStore &mStore;
    bool mRemembersDatabase;
};

/// The database file of the highest number in `folder` ("Trawlex-7.mdb"); "" if there is none.
[[nodiscard]] QString newestDatabase(const QString &folder);
