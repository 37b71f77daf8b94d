#include "cli/HarvestSettings.h"

#include "app/SettingKeys.h"
#include "util/Incr.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString newestDatabase(const QString &folder)
{
    QString newest;
    qlonglong highest = -1;
    for (const QString &name : QDir(folder).entryList({u"Trawlex-*.mdb"_s}, QDir::Files)) {
        const qlonglong number = cUtility::GetNumberInString(true, name).toLongLong();
        if (number > highest) {
            highest = number;
            newest = name;
        }
    }
    return newest;
}

HarvestSettings::HarvestSettings(SettingsStore &store, const QString &databaseDir, std::optional<int> browser)
    : BorrowedSettings(store), mStore(store), mRemembersDatabase(databaseDir.isEmpty())
{
    if (!databaseDir.isEmpty()) {
        const QString stored = store.GetSetting(Sections::StartUp, Keys::DatabaseName);
        const bool isThere = !stored.isEmpty() && QFile::exists(databaseDir + stored);
        BorrowedSettings::SaveSetting(Sections::Main, Keys::DatabaseDir, databaseDir);
        BorrowedSettings::SaveSetting(Sections::StartUp, Keys::DatabaseName,
                                      isThere ? stored : newestDatabase(databaseDir));
    }
    if (browser)
        BorrowedSettings::SaveSetting(Sections::Main, Keys::Browser, QString::number(*browser));
}

void HarvestSettings::SaveSetting(const QString &section, const QString &key, const QString &value)
{
    if (mRemembersDatabase && section == Sections::StartUp)
        mStore.SaveSetting(section, key, value);
    else
        BorrowedSettings::SaveSetting(section, key, value);
}
