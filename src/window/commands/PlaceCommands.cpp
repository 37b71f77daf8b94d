#include "window/commands/PlaceCommands.h"

#include "app/SettingKeys.h"
#include "store/Schema.h"
#include "util/FileNames.h"
#include "util/Text.h"
#include "window/DatabaseLoader.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;

QString withSeparator(const QString &folder)
{
    return folder.endsWith(u'/') ? folder : folder + u'/';
}
} // namespace

PlaceCommands::PlaceCommands(const Context &context, FilePlaces &places, const RunFlags &runs, DatabaseHolder &database,
                             DatabaseLoader &loader, Desktop &desktop, SideWindows &side)
    : mContext(context), mPlaces(places), mRuns(runs), mDatabase(database), mLoader(loader), mDesktop(desktop),
      mSide(side)
{
    connect(&places.cmdSFDBDirBrowse, &Button::Click, this, [this] { browse(Folder::Database); });
    connect(&places.cmdSFMNDirBrowse, &Button::Click, this, [this] { browse(Folder::Files); });
    connect(&places.cmdSFDBFileBrowse, &Button::Click, this, &PlaceCommands::cmdSFDBFileBrowse_Click);
    connect(&places.cmdSFAutoDBFile, &Button::Click, this, &PlaceCommands::cmdSFAutoDBFile_Click);
    connect(&places.cmdSFEditorSel, &Button::Click, this, &PlaceCommands::cmdSFEditorSel_Click);
    connectLabel(places.lblSaveDir, places.txtSFDBDir);
    connectLabel(places.lblMNSaveDir, places.txtSFMNDir);
    connectDrops();
}

/// What is dropped on a box is assigned as if it had been chosen. The one who drags it waits until the drop is taken,
/// so questions come after it.
void PlaceCommands::connectDrops()
{
    const auto onDrop = [this](const TextBox &box, auto assign) {
        connect(&box, &TextBox::textDropped, this, assign, Qt::QueuedConnection);
    };
    onDrop(mPlaces.txtSFDBDir, [this](const QString &path) { dropFolder(path, Folder::Database); });
    onDrop(mPlaces.txtSFMNDir, [this](const QString &path) { dropFolder(path, Folder::Files); });
    onDrop(mPlaces.txtSFDBFile, [this](const QString &path) { dropDatabase(path); });
    onDrop(mPlaces.txtSFEditor, [this](const QString &path) { dropEditor(path); });
}

void PlaceCommands::connectLabel(const Label &label, const TextBox &folder)
{
    connect(&label, &Label::mousePressed, this, [this, &folder](MouseButton button) {
        if (button == MouseButton::Right)
            mDesktop.open(folder.text());
    });
}

/// One choice at a time: while the window is open a second press does nothing.
void PlaceCommands::browse(Folder folder)
{
    const TextBox &box = folder == Folder::Database ? mPlaces.txtSFDBDir : mPlaces.txtSFMNDir;
    mSide.chooseDirectory(box.text(),
                          [this, folder](const QString &chosen) { mobjDirSel_DirSelectionChanged(chosen, folder); });
}

void PlaceCommands::mobjDirSel_DirSelectionChanged(const QString &chosen, Folder folder)
{
    guarded(mContext.log, {module, "Sub mobjDirSel_DirSelectionChanged"_L1}, [&] {
        // A run or an import that was begun meanwhile keeps its database and its folder.
        if (chosen.isEmpty() || !mRuns.idle() || !mPlaces.cmdSFDBDirBrowse.isEnabled())
            return mContext.status.UpDateStatus(u"Canceled"_s);
        if (folder == Folder::Database) {
            assignDatabaseFolder(withSeparator(chosen));
        } else {
            mPlaces.txtSFMNDir.setText(withSeparator(chosen));
            mContext.settings.SaveSetting(Sections::Main, Keys::FileSaveDir, mPlaces.txtSFMNDir.text());
        }
        mContext.status.UpDateStatus(u"Directory set"_s);
    });
}

void PlaceCommands::assignDatabaseFolder(const QString &folder)
{
    mPlaces.txtSFDBDir.setText(folder);
    mContext.settings.SaveSetting(Sections::Main, Keys::DatabaseDir, folder);
    reload(false);
    mContext.status.UpDateStatus(u"New directory assigned"_s);
    mContext.states.SetStateOfControls();
}

bool PlaceCommands::reload(bool useFileBox)
{
    if (mDatabase.isSet())
        mDatabase->CloseConnection();
    return mLoader.LoadDBData(useFileBox);
}

void PlaceCommands::cmdSFDBFileBrowse_Click()
{
    guarded(mContext.log, {module, "Sub cmdSFDBFileBrowse_Click"_L1}, [&] {
        const QString chosen = mContext.dialogs.chooseFile(mPlaces.txtSFDBDir.text() + firstDatabaseName,
                                                           u"Access DB (*.mdb)|*.mdb|"_s, u"Select File"_s);
        if (chosen.isEmpty())
            return mContext.status.UpDateStatus(u"Canceled"_s);
        assignDatabase(chosen);
    });
}

/// A database that cannot be opened ends the program.
void PlaceCommands::assignDatabase(const QString &chosen)
{
    guarded(mContext.log, {module, "Sub cmdSFDBFileBrowse_Click"_L1}, [&] {
        const auto cut = chosen.lastIndexOf(u'/') + 1;
        mPlaces.txtSFDBFile.setText(chosen.mid(cut));
        if (cut > 0)
            mPlaces.txtSFDBDir.setText(chosen.left(cut));
        if (!reload(true)) {
            Q_EMIT unloadRequested();
            return;
        }
        mContext.settings.SaveSetting(Sections::StartUp, Keys::DatabaseName, mPlaces.txtSFDBFile.text());
        mContext.settings.SaveSetting(Sections::Main, Keys::DatabaseDir, mPlaces.txtSFDBDir.text());
        mContext.states.SetStateOfControls();
        mContext.status.UpDateStatus(u"Database assigned"_s);
    });
}

void PlaceCommands::cmdSFAutoDBFile_Click()
{
    mPlaces.cmdSFAutoDBFile.setEnabled(false);
    guarded(mContext.log, {module, "Sub cmdSFAutoDBFile_Click"_L1}, [&] {
        const QString vacant = cUtility::GetVacantFileSpecs(mPlaces.txtSFDBDir.text() + firstDatabaseName);
        mPlaces.txtSFDBFile.setText(vacant.mid(vacant.lastIndexOf(u'/') + 1));
        mContext.settings.SaveSetting(Sections::StartUp, Keys::DatabaseName, mPlaces.txtSFDBFile.text());
        reload(false);
        mContext.status.UpDateStatus(u"New database assigned"_s);
    });
    mContext.states.SetStateOfControls();
}

void PlaceCommands::cmdSFEditorSel_Click()
{
    guarded(mContext.log, {module, "Sub cmdSFEditorSel_Click"_L1}, [&] {
        const QString chosen =
            mContext.dialogs.chooseFile(mPlaces.txtSFEditor.text(), u"All Files (*.*)|*|"_s, u"Select Editor"_s);
        if (chosen.isEmpty())
            return mContext.status.UpDateStatus(u"Canceled"_s);
        tryEditor(chosen);
    });
}

/// An editor that the user has not seen at work stays in the box for this time, and is not stored.
void PlaceCommands::tryEditor(const QString &chosen)
{
    guarded(mContext.log, {module, "Sub cmdSFEditorSel_Click"_L1}, [&] {
        mPlaces.txtSFEditor.setText(chosen);
        Q_EMIT editorTestWanted(u"Testing"_s);
        const auto answer = mContext.dialogs.ask(u"Editor test"_s, u"Did editor open with Testing?"_s,
                                                 UserDialogs::Icon::Question, UserDialogs::Answer::No);
        if (answer != UserDialogs::Answer::Yes)
            return mContext.status.UpDateStatus(u"Editor not set"_s);
        mContext.settings.SaveSetting(Sections::Main, Keys::Editor, cUtility::Trim(chosen).toString());
        mContext.status.UpDateStatus(u"Editor set"_s);
    });
}

void PlaceCommands::dropFolder(const QString &path, Folder folder)
{
    if (!QFileInfo(path).isDir())
        return mContext.status.UpDateStatus("Not a directory: "_L1 + path);
    mobjDirSel_DirSelectionChanged(path, folder);
}

/// What is not even named like a database is passed over, as the file window does.
void PlaceCommands::dropDatabase(const QString &path)
{
    if (!QFileInfo(path).isFile() || !path.endsWith(".mdb"_L1, Qt::CaseInsensitive))
        return mContext.status.UpDateStatus("Not a database: "_L1 + path);
    assignDatabase(path);
}

void PlaceCommands::dropEditor(const QString &path)
{
    if (!QFileInfo(path).isExecutable() || QFileInfo(path).isDir())
        return mContext.status.UpDateStatus("Not a program: "_L1 + path);
    tryEditor(path);
}
