// The picture browser's state as a passive object: the list, the two directories, the menus. What the list shows are
// names in lower case; beside them stand the files' own names. Knows controls.
#pragma once

#include "app/MenuTables.h"
#include "controls/ListControls.h"
#include "controls/SimpleControls.h"

class frmFoto : public QObject
{
    Q_OBJECT

  public:
    ListBox lstFoto{QStringLiteral("lstFoto"), this};
    PictureBox picFoto{QStringLiteral("picFoto"), this};
    Menu mnuFotoPopUpAction{QStringLiteral("mnuFotoPopUpAction"), MenuTables::mnuFotoPopUpAction, this};
    Menu mnuFotoMore{QStringLiteral("mnuFotoMore"), MenuTables::mnuFotoMore, this};

    [[nodiscard]] bool isOpen() const { return mOpen; }
    /// Shows the window, in front of the others.
    void show();
    /// Closes it.
    void unload();

    [[nodiscard]] const QString &caption() const { return mCaption; }
    void setCaption(const QString &caption);

    /// What went wrong last; "" when nothing did.
    [[nodiscard]] const QString &notice() const { return mNotice; }
    void setNotice(const QString &notice);

    // Both end in the folder separator, or are empty.
    [[nodiscard]] const QString &activeDirectory() const { return mActiveDirectory; }
    [[nodiscard]] const QString &moveToDirectory() const { return mMoveToDirectory; }
    void setMoveToDirectory(const QString &directory);

    /// Puts the files of a directory on the list; none is chosen.
    void setPictures(const QString &directory, const QStringList &files);
    /// One file more at the end of the list, under the name as it is; one outside the directory is given by its path.
    void addPicture(const QString &file);
    /// A file comes back to its place in the list, or to its end; none is chosen.
    void insertPicture(int index, const QString &file);
    enum class Leaves { Moved, Deleted };
    /// The chosen picture has left the directory, and the list is about to lose it.
    void tellLeaves(Leaves how) { Q_EMIT leaves(how); }
    /// Takes an item off the list.
    void removePicture(int index);
    /// Chooses an item, or none with -1: the list's Click, if that is another one.
    void choosePicture(int index);
    /// The file's path; "" outside the list, and while the window is closed.
    [[nodiscard]] QString picturePath(int index) const;
    [[nodiscard]] QString chosenPath() const { return picturePath(lstFoto.listIndex()); }

  Q_SIGNALS:
    void shown();
    void unloaded();
    void leaves(frmFoto::Leaves how);
    /// Caption, notice or directories are other ones.
    void changed();

  private:
    QString mCaption, mNotice, mActiveDirectory, mMoveToDirectory;
    QStringList mFiles; ///< parallel to the list
    bool mOpen = false;
};
