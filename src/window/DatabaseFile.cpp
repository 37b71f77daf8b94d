#include "window/DatabaseFile.h"

#include "app/SettingKeys.h"
#include "store/Schema.h"
#include "util/FileNames.h"
#include "util/Text.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {
constexpr auto lineEnd = "\r\n"_L1;
constexpr auto deleteIt = "Delete the database and Trawlex will recreate it"_L1;
constexpr auto restart = "You will need to restart Trawlex"_L1;
constexpr auto notCreated = "Database could not be created."_L1;

/// What the user can do about a fault of the file; "" where its name says it all.
QLatin1StringView advice(StoreFault fault)
{
    switch (fault) {
    case StoreFault::Locked:
        return "Close the program that uses it, then try again"_L1;
    case StoreFault::Full:
        return "Make room on the disk, then try again"_L1;
    case StoreFault::ReadOnly:
    case StoreFault::Unreadable:
        return "Change the rights of the file and its folder, or choose another folder"_L1;
    case StoreFault::Gone:
    case StoreFault::Failed:
        return "See to the disk and its folder, then try again"_L1;
    default:
        return {};
    }
}
} // namespace

DatabaseFile::DatabaseFile(const Context &context, FilePlaces &places, ComboBox &tables, DatabaseHolder &database)
    : mContext(context), mPlaces(places), mTables(tables), mDatabase(database)
{
}

QString DatabaseFile::path(bool useFileBox)
{
    const QString folder = mPlaces.txtSFDBDir.text();
    const QString name =
        useFileBox ? mPlaces.txtSFDBFile.text() : mContext.settings.GetSetting(Sections::StartUp, Keys::DatabaseName);
    if (!name.isEmpty() && QFileInfo(folder + name).isFile())
        return folder + name;
    QString vacant = cUtility::GetVacantFileSpecs(folder + firstDatabaseName);
    const QString vacantName = vacant.mid(vacant.lastIndexOf(u'/') + 1);
    mPlaces.txtSFDBFile.setText(vacantName);
    mContext.settings.SaveSetting(Sections::StartUp, Keys::DatabaseName, vacantName);
    return vacant;
}

void DatabaseFile::fatal(const QString &path, const QString &text)
{
    mContext.dialogs.tell(u"Fatal Database Test Error"_s, path + lineEnd + text);
}

/// The database object refuses a path that cannot be written, and keeps another file's; that one is not meant.
bool DatabaseFile::isPathTaken(const QString &path) const
{
    return mDatabase->DatabasePath() == cUtility::Trim(path);
}

void DatabaseFile::open(const QString &path)
{
    mDatabase.set(std::make_unique<cAdoMdb>(mContext.log, [this](const QString &title, const QString &text) {
        return mContext.dialogs.ask(title, text, UserDialogs::Icon::Question, UserDialogs::Answer::No) ==
               UserDialogs::Answer::Yes;
    }));
    mDatabase->setDatabasePath(path);
    declareSchema(*mDatabase);
    QStringList names;
    for (int table = 0; table <= mDatabase->Tables_Count(); ++table) {
        if (const QString name = mDatabase->Tables_ListItem(table, {}); !name.isEmpty())
            names.append(name);
    }
    mTables.setItems(names);
}

/// A file that is in use, full or not readable is told as that; `otherwise` is for one whose content is at fault.
QString DatabaseFile::reason(QLatin1StringView otherwise) const
{
    const StoreFault fault = mDatabase->fault();
    if (advice(fault).isEmpty())
        return otherwise;
    QString text = StoreFaults::text(fault);
    if (const QStringList holders = mDatabase->lockHolders(); fault == StoreFault::Locked && !holders.isEmpty())
        text += " by "_L1 + holders.join(", "_L1);
    return text + lineEnd + advice(fault);
}

bool DatabaseFile::testExisting(const QString &path, bool useFileBox)
{
    if (isPathTaken(path) && mDatabase->TestDatabase(true))
        return true;
    fatal(path, reason(useFileBox ? restart : deleteIt));
    if (useFileBox)
        return false;
    Q_EMIT unloadRequested();
    return true;
}

void DatabaseFile::make(const QString &path)
{
    if (isPathTaken(path) && mDatabase->CreateDatabase(false)) {
        Q_EMIT created();
        return;
    }
    const StoreFault fault = StoreFaults::ofFolder(QFileInfo(path).path());
    const QString text = StoreFaults::text(fault);
    fatal(path, text.isEmpty() ? QString(notCreated) : text + lineEnd + notCreated);
    Q_EMIT unloadRequested();
}

bool DatabaseFile::LoadDatabase(bool useFileBox)
{
    return guardedResult(mContext.log, {"frmSearch"_L1, "Sub LoadDatabase"_L1}, true, [&](bool &goOn) {
        const QString file = path(useFileBox);
        open(file);
        if (QFile::exists(file))
            goOn = testExisting(file, useFileBox);
        else
            make(file);
    });
}
