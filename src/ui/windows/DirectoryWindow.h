// Chooses a directory: a list of drives, a tree of folders, the path in words. It is made for one choice.
#pragma once

#include "ui/look/FileIcons.h"

#include <QDialog>
#include <QFileSystemModel>
#include <memory>

namespace Ui {
class DirectoryWindow;
}

class DirectoryWindow : public QDialog
{
    Q_OBJECT

  public:
    explicit DirectoryWindow(QWidget *main);
    ~DirectoryWindow() override;

    /// Begins with `directory` if it is there, else with the home directory.
    void InitDir(const QString &directory);
    /// The directory at hand, with a separator behind it.
    [[nodiscard]] QString directory() const { return mDirectory; }
    /// Where folders can be chosen: home, the root, and what is mounted for users.
    [[nodiscard]] static QStringList drives();

  Q_SIGNALS:
    /// The choice; "" if there is none. Comes once, with the end of the window.
    void DirSelectionChanged(const QString &directory);

  private:
    void chooseDrive(int index);
    [[nodiscard]] int driveOf(const QString &directory) const;
    void takeDirectory(const QString &path);
    void showInTree();
    void keepInSight(const QString &loaded);
    void finish(int result);
    bool eventFilter(QObject *watched, QEvent *event) override;

    std::unique_ptr<Ui::DirectoryWindow> mUi;
    FileIcons mIcons; ///< of the folders, which go first
    QFileSystemModel mFolders;
    QString mDirectory;
    /// The directory to be shown and those above it, as far as they have not been read; none once the user has moved.
    QStringList mAwaited;
    int mGoodDrive = 0; ///< the last one that could be read
};
