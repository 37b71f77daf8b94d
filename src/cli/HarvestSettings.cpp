#include "cli/HarvestSettings.h"

#include "util/Incr.h"
#include "window/options/Options.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {
constexpr auto nameKey = "DatabaseName"_L1;
}

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
        const QString stored = store.GetSetting(Options::startSection, nameKey);
        const bool isThere = !stored.isEmpty() && QFile::exists(databaseDir + stored);
        BorrowedSettings::SaveSetting(Options::section, u"SearchKeyTxtSaveLocation Text"_s, databaseDir);
        BorrowedSettings::SaveSetting(Options::startSection, nameKey, isThere ? stored : newestDatabase(databaseDir));
    }
    if (browser)
        BorrowedSettings::SaveSetting(Options::section, u"lstDCoTmr"_s, QString::number(*browser));
}

void HarvestSettings::SaveSetting(const QString &section, const QString &key, const QString &value)
{
    if (mRemembersDatabase && section == Options::startSection)
        mStore.SaveSetting(section, key, value);
    else
        BorrowedSettings::SaveSetting(section, key, value);
}
