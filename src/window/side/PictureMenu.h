// The picture browser's menus: what their items do, and which of their choices are kept.
#pragma once

#include "app/SideWindows.h"
#include "window/side/PictureBrowser.h"

class PictureMenu : public QObject
{
    Q_OBJECT

  public:
    /// The ways out of the program that the commands take.
    PictureMenu(frmFoto &form, PictureBrowser &browser, UserDialogs &dialogs, Desktop &desktop, SettingsStore &settings,
                SideWindows &side);

  private:
    void connectPopUp();
    void connectMore();
    void onClick(const MenuItem &item, std::function<void()> command);
    void keepChoice(MenuItem &item, const QString &key);
    void mnuNewDirectory_Click();
    void mnuSetMoveToDir_Click();
    void mobjDirSel_DirSelectionChanged(const QString &sNewDir);
    void Explore(const QString &directory);

    frmFoto &mForm;
    PictureBrowser &mBrowser;
    UserDialogs &mDialogs;
    Desktop &mDesktop;
    SettingsStore &mSettings;
    SideWindows &mSide;
};
