// The picture browser: walks the pictures of a directory, moves them on to another one or deletes them, and takes that
// back. The window shows what the form holds.
#pragma once

#include "app/PictureScreen.h"
#include "app/Ports.h"
#include "app/frmFoto.h"
#include "util/Errors.h"

class PictureBrowser : public QObject
{
    Q_OBJECT

  public:
    /// Moves that can be taken back.
    static constexpr int mostUndone = 1000;

    PictureBrowser(ErrorReceiver &log, frmFoto &form, PictureScreen &screen, EventPump &pump, SettingsStore &settings,
                   PopUpMenus &menus);

    /// Opens the window, if it is not, with the pictures of a directory; for a file with those beside it. The last one
    /// is on show. Nothing for what is not there.
    void LoadDirectory(const QString &sDirectory);
    /// Adds a file, given by its path, to the open window's list.
    void addPicture(const QString &path);
    /// Takes a directory as target of the moves.
    void setMoveToDirectory(const QString &directory);
    void MoveIt();
    void DeleteIt();
    /// Takes back the last move, or the last deletion through the trash.
    void undo();

  private:
    /// No control can be used while it lives.
    class Bracket;
    /// The list has another colour while it lives.
    class Flash;
    /// A picture and where it stands in the list. The path holds whatever a flash lets in; the index may not.
    struct Item
    {
        int index;
        QString path;
    };
    struct Done
    {
        Item from;
        QString to;
        bool inTrash;
    };

    /// Runs `body` as one procedure; what it throws is logged and told in the window.
    template <class Body> void procedure(QLatin1StringView location, Body &&body);
    void Form_Load();
    void lstFoto_Click();
    void lstFoto_KeyDown(EditKey key);
    void EnableDisable(bool enabled);
    [[nodiscard]] Item chosen() const;
    void demandFile(const Item &item);
    void moveFile(const Item &item, const QString &directory);
    void deleteFile(const Item &item);
    [[nodiscard]] bool isListed(const Item &item) const;
    void leave(const Item &item, frmFoto::Leaves how);
    void takeOff(const Item &item);
    void keep(const Done &done);
    [[nodiscard]] bool canMove() const;

    ErrorReceiver &mLog;
    frmFoto &mForm;
    PictureScreen &mScreen;
    EventPump &mPump;
    SettingsStore &mSettings;
    QList<Done> mDone;
};
