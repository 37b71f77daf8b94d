#include "window/side/PictureMenu.h"

#include "app/SettingKeys.h"
#include "window/side/PictureFolder.h"

using namespace Qt::StringLiterals;

PictureMenu::PictureMenu(frmFoto &form, PictureBrowser &browser, UserDialogs &dialogs, Desktop &desktop,
                         SettingsStore &settings, SideWindows &side)
    : mForm(form), mBrowser(browser), mDialogs(dialogs), mDesktop(desktop), mSettings(settings), mSide(side)
{
    connectPopUp();
    connectMore();
}

void PictureMenu::onClick(const MenuItem &item, std::function<void()> command)
{
    connect(&item, &MenuItem::Click, this, std::move(command));
}

void PictureMenu::connectPopUp()
{
    const Menu &menu = mForm.mnuFotoPopUpAction;
    onClick(menu.item("mnuRefresh"_L1), [this] { mBrowser.LoadDirectory(mForm.activeDirectory()); });
    onClick(menu.item("mnuFileSourceDirectory"_L1), [this] { Explore(mForm.activeDirectory()); });
    onClick(menu.item("mnuMoveToDirectory"_L1), [this] { Explore(mForm.moveToDirectory()); });
    onClick(menu.item("mnuNewDirectory"_L1), [this] { mnuNewDirectory_Click(); });
    onClick(menu.item("mnuSetMoveToDir"_L1), [this] { mnuSetMoveToDir_Click(); });
    onClick(menu.item("mnuFotoMoveIt"_L1), [this] { mBrowser.MoveIt(); });
    onClick(menu.item("mnuFotoDeleteIt"_L1), [this] { mBrowser.DeleteIt(); });
    onClick(menu.item("mnuFotoExit"_L1), [this] { mForm.unload(); });
}

void PictureMenu::connectMore()
{
    const Menu &menu = mForm.mnuFotoMore;
    onClick(menu.item("mnuFotoUndo"_L1), [this] { mBrowser.undo(); });
    MenuItem &actualSize = menu.item("mnuFotoActualSize"_L1);
    onClick(actualSize, [&actualSize] { actualSize.setChecked(!actualSize.isChecked()); });
    keepChoice(menu.item("mnuFotoThumbnails"_L1), Keys::Thumbnails);
    keepChoice(menu.item("mnuFotoToTrash"_L1), Keys::DeleteToTrash);
}

void PictureMenu::keepChoice(MenuItem &item, const QString &key)
{
    item.restore(mSettings.GetSetting(Sections::Foto, key));
    onClick(item, [this, &item, key] {
        item.setChecked(!item.isChecked());
        mSettings.SaveSetting(Sections::Foto, key, item.stored());
    });
}

void PictureMenu::Explore(const QString &directory)
{
    if (!directory.isEmpty())
        mDesktop.open(directory);
}

void PictureMenu::mnuNewDirectory_Click()
{
    const QString file = mDialogs.chooseFile(mForm.activeDirectory(), u"All Files (*.*)|*.*|"_s, u"Select File"_s);
    if (!file.isEmpty())
        mBrowser.LoadDirectory(file);
}

void PictureMenu::mnuSetMoveToDir_Click()
{
    mSide.chooseDirectory(mSettings.GetSetting(Sections::Foto, Keys::MoveToDir),
                          [this](const QString &directory) { mobjDirSel_DirSelectionChanged(directory); });
}

void PictureMenu::mobjDirSel_DirSelectionChanged(const QString &sNewDir)
{
    if (sNewDir.isEmpty())
        return;
    if (PictureFolder::isSameDirectory(sNewDir, mForm.activeDirectory()))
        mDialogs.tell(u"Trawlex"_s, u"Move to Dir can not be the same as Active Dir"_s);
    else
        mBrowser.setMoveToDirectory(sNewDir);
}
