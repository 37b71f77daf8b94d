#include "window/DatabaseLoader.h"

#include "store/Schema.h"
#include "util/FileNames.h"
#include "util/Incr.h"
#include "util/Text.h"
#include "window/options/Options.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto nameKey = "DatabaseName"_L1;
} // namespace

DatabaseLoader::DatabaseLoader(ErrorReceiver &log, frmSearch &form, UserDialogs &dialogs, SettingsStore &settings,
                               DatabaseHolder &database, CriteriaSets &criteria, Blocking &blocking,
                               SavedUrls &savedUrls)
    : mLog(log), mForm(form), mDialogs(dialogs), mSettings(settings), mDatabase(database), mCriteria(criteria),
      mBlocking(blocking), mSavedUrls(savedUrls)
{
}

QString DatabaseLoader::databasePath(bool useFileBox)
{
    const QString folder = mForm.places.txtSFDBDir.text();
    const QString name =
        useFileBox ? mForm.places.txtSFDBFile.text() : mSettings.GetSetting(Options::startSection, nameKey);
    if (!name.isEmpty() && QFile::exists(folder + name))
        return folder + name;
    QString vacant = cUtility::GetVacantFileSpecs(folder + firstDatabaseName);
    const QString vacantName = vacant.mid(vacant.lastIndexOf(u'/') + 1);
    mForm.places.txtSFDBFile.setText(vacantName);
    mSettings.SaveSetting(Options::startSection, nameKey, vacantName);
    return vacant;
}

void DatabaseLoader::fatal(const QString &path, const QString &text)
{
    mDialogs.tell(u"Fatal Database Test Error"_s, path + u"\r\n"_s + text);
}

/// The database object refuses a path that cannot be written, and keeps another file's; that one is not meant.
bool DatabaseLoader::isPathTaken(const QString &path) const
{
    return mDatabase->DatabasePath() == cUtility::Trim(path);
}

bool DatabaseLoader::testExisting(const QString &path, bool useFileBox)
{
    if (isPathTaken(path) && mDatabase->TestDatabase(true))
        return true;
    if (useFileBox) {
        fatal(path, u"You will need to restart Trawlex"_s);
        return false;
    }
    fatal(path, u"Delete the database and Trawlex will recreate it"_s);
    Q_EMIT unloadRequested();
    return true;
}

bool DatabaseLoader::LoadDatabase(bool useFileBox)
{
    return guardedResult(mLog, {module, "Sub LoadDatabase"_L1}, true, [&](bool &goOn) {
        const QString path = databasePath(useFileBox);
        mDatabase.set(std::make_unique<cAdoMdb>(mLog, [this](const QString &title, const QString &text) {
            return mDialogs.ask(title, text, UserDialogs::Icon::Question, UserDialogs::Answer::No) ==
                   UserDialogs::Answer::Yes;
        }));
        mDatabase->setDatabasePath(path);
        declareSchema(*mDatabase);
        if (QFile::exists(path)) {
            goOn = testExisting(path, useFileBox);
        } else if (!isPathTaken(path) || !mDatabase->CreateDatabase(false)) {
            fatal(path, u"Database could not be created."_s);
            Q_EMIT unloadRequested();
        }
    });
}

void DatabaseLoader::choose(ComboBox &combo, QLatin1StringView key)
{
    const int index = mSettings.GetSetting(Options::section, key, u"0"_s).toInt();
    if (index >= 0 && index < combo.listCount())
        combo.setListIndex(index);
}

void DatabaseLoader::restoreBlocking(CheckBox &box, ListBox &list, QLatin1StringView key)
{
    if (list.listCount() > 0)
        list.setListIndex(0);
    box.setValue(list.listCount() > 0 ? mSettings.GetSetting(Options::section, key, u"0"_s).toInt() : 0);
}

bool DatabaseLoader::LoadDBData(bool useFileBox)
{
    if (!LoadDatabase(useFileBox))
        return false;
    guarded(mLog, {module, "Sub LoadDBData"_L1}, [&] {
        mCriteria.LoadMCMNC();
        mBlocking.LoadBlocked();
        choose(mForm.saved.cboANList, "cboANList"_L1);
        mSavedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
        choose(mForm.criteria.cboANMCMNCMask, "cboMCMNCMask"_L1);
        choose(mForm.saved.cboANSavedUrls, "cboSavedUrl"_L1);
        const auto stored = [&](QLatin1StringView key) {
            return mSettings.GetSetting(Options::section, key, u"0"_s).toInt();
        };
        const int useSaved = mForm.saved.cboANSavedUrls.listCount() > 0 ? stored("chkUseSavedUrls"_L1) : 0;
        if (mForm.saved.chkUseSavedUrls.value() != useSaved)
            mForm.saved.chkUseSavedUrls.setValue(useSaved);
        else
            Q_EMIT mForm.saved.chkUseSavedUrls.Click(); // its logic runs in any case
        mForm.criteria.mustNotContain.on.setValue(stored("SearchKeyChkMustNotContain Value"_L1));
        mForm.criteria.mustContain.on.setValue(stored("SearchKeyChkMustContain Value"_L1));
        restoreBlocking(mForm.blocking.urls.on, mForm.blocking.urls.items, "chkUrlBlocking"_L1);
        restoreBlocking(mForm.blocking.email.on, mForm.blocking.email.items, "chkEmailBlocking"_L1);
    });
    return true;
}
