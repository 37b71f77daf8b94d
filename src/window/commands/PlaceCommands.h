// The page of folders, database and editor: what its buttons choose, what is dropped on its boxes, and what of it is
// assigned.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "app/SideWindows.h"
#include "store/DatabaseHolder.h"

class DatabaseLoader;

class PlaceCommands : public QObject
{
    Q_OBJECT

  public:
    PlaceCommands(const Context &context, FilePlaces &places, const RunFlags &runs, DatabaseHolder &database,
                  DatabaseLoader &loader, Desktop &desktop, SideWindows &side);

  Q_SIGNALS:
    /// The database that was chosen cannot be used; the main window has to go.
    void unloadRequested();
    /// To be written to a file and opened with the editor.
    void editorTestWanted(const QString &text);

  private:
    enum class Folder { Database = 1, Files = 2 };

    void browse(Folder folder);
    void mobjDirSel_DirSelectionChanged(const QString &chosen, Folder folder);
    void assignDatabaseFolder(const QString &folder);
    void cmdSFDBFileBrowse_Click();
    void cmdSFAutoDBFile_Click();
    void cmdSFEditorSel_Click();
    void assignDatabase(const QString &chosen);
    void tryEditor(const QString &chosen);
    void dropFolder(const QString &path, Folder folder);
    void dropDatabase(const QString &path);
    void dropEditor(const QString &path);
    bool reload(bool useFileBox);
    void connectDrops();
    void connectLabel(const Label &label, const TextBox &folder);

    Context mContext;
    FilePlaces &mPlaces;
    const RunFlags &mRuns;
    DatabaseHolder &mDatabase;
    DatabaseLoader &mLoader;
    Desktop &mDesktop;
    SideWindows &mSide;
};
