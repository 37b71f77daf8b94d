#include "window/side/PictureBrowser.h"

#include "app/SettingKeys.h"
#include "util/FileNames.h"
#include "window/side/PictureFolder.h"
#include "window/side/PictureMoves.h"

#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using PictureFolder::isSameDirectory;

namespace {
constexpr auto module = "frmFoto"_L1;
constexpr int flashTurns = 101;
} // namespace

class PictureBrowser::Bracket
{
  public:
    explicit Bracket(PictureBrowser &browser) : mBrowser(browser) { mBrowser.EnableDisable(false); }
    ~Bracket() { mBrowser.EnableDisable(true); }
    Q_DISABLE_COPY_MOVE(Bracket)

  private:
    PictureBrowser &mBrowser;
};

class PictureBrowser::Flash
{
  public:
    Flash(PictureBrowser &browser, Colour colour) : mList(browser.mForm.lstFoto)
    {
        mList.setBackColor(colour);
        for (int turn = 0; turn < flashTurns; ++turn)
            browser.mPump.doEvents();
    }
    ~Flash() { mList.setBackColor(Colours::Window); }
    Q_DISABLE_COPY_MOVE(Flash)

  private:
    ListBox &mList;
};

PictureBrowser::PictureBrowser(ErrorReceiver &log, frmFoto &form, PictureScreen &screen, EventPump &pump,
                               SettingsStore &settings, PopUpMenus &menus)
    : mLog(log), mForm(form), mScreen(screen), mPump(pump), mSettings(settings)
{
    connect(&form.lstFoto, &ListBox::Click, this, &PictureBrowser::lstFoto_Click);
    connect(&form.lstFoto, &Control::keyPressed, this, &PictureBrowser::lstFoto_KeyDown);
    connect(&form.lstFoto, &Control::mousePressed, this, [&form, &menus](MouseButton button) {
        if (button == MouseButton::Right)
            menus.popUp(form.mnuFotoPopUpAction);
    });
    EnableDisable(true);
}

template <class Body> void PictureBrowser::procedure(QLatin1StringView location, Body &&body)
{
    guarded(mLog, {module, location}, [&] {
        try {
            body();
        } catch (const RuntimeError &error) {
            mForm.setNotice(error.description());
            throw;
        }
    });
}

void PictureBrowser::Form_Load()
{
    const QString stored = mSettings.GetSetting(Sections::Foto, Keys::MoveToDir);
    const bool usable = QFileInfo(stored).isDir() && !isSameDirectory(stored, mForm.activeDirectory());
    mForm.setMoveToDirectory(usable ? PictureFolder::directoryOf(stored) : QString());
    EnableDisable(true);
}

void PictureBrowser::LoadDirectory(const QString &sDirectory)
{
    procedure("Sub LoadDirectory"_L1, [&] {
        const QString directory = PictureFolder::directoryOf(sDirectory);
        if (directory.isEmpty())
            return;
        if (!mForm.isOpen())
            Form_Load();
        mForm.setPictures(directory, PictureFolder::pictures(directory));
        mForm.show();
        mForm.choosePicture(mForm.lstFoto.listCount() - 1);
    });
}

void PictureBrowser::addPicture(const QString &path)
{
    const QFileInfo file(path);
    const bool isBeside = isSameDirectory(file.path(), mForm.activeDirectory());
    mForm.addPicture(isBeside ? file.fileName() : file.absoluteFilePath());
}

void PictureBrowser::setMoveToDirectory(const QString &directory)
{
    mForm.setMoveToDirectory(directory);
    EnableDisable(true);
    mSettings.SaveSetting(Sections::Foto, Keys::MoveToDir, directory);
}

/// A picture that cannot be shown is logged; where the walk stands is told all the same.
void PictureBrowser::lstFoto_Click()
{
    const int index = mForm.lstFoto.listIndex();
    if (index < 0)
        return;
    mForm.setNotice({});
    procedure("Sub lstFoto_Click"_L1, [&] { mScreen.LoadPicture(mForm.chosenPath()); });
    mForm.setCaption(u"%1 of %2"_s.arg(index + 1).arg(mForm.lstFoto.listCount()));
    mForm.lstFoto.setToolTipText("Move to Dir = "_L1 + mForm.moveToDirectory());
}

void PictureBrowser::lstFoto_KeyDown(EditKey key)
{
    if (key == EditKey::Delete)
        DeleteIt();
    else if (canMove())
        MoveIt();
}

bool PictureBrowser::canMove() const
{
    return !mForm.moveToDirectory().isEmpty() && QFileInfo(mForm.moveToDirectory()).isDir();
}

/// What is enabled again are the commands that can do something.
void PictureBrowser::EnableDisable(bool enabled)
{
    for (Control *const control : mForm.findChildren<Control *>(Qt::FindDirectChildrenOnly))
        control->setEnabled(enabled);
    mForm.mnuFotoPopUpAction.item("mnuFotoMoveIt"_L1).setEnabled(enabled && !mForm.moveToDirectory().isEmpty());
    mForm.mnuFotoMore.item("mnuFotoUndo"_L1).setEnabled(enabled && !mDone.isEmpty());
}

void PictureBrowser::DeleteIt()
{
    procedure("Sub DeleteIt"_L1, [&] {
        const Bracket bracket(*this);
        const Item item = chosen();
        if (item.index < 0)
            return;
        const Flash flash(*this, Colours::Red);
        deleteFile(item);
    });
}

PictureBrowser::Item PictureBrowser::chosen() const
{
    return {mForm.lstFoto.listIndex(), mForm.chosenPath()};
}

/// What another program has taken away leaves the list.
void PictureBrowser::demandFile(const Item &item)
{
    if (QFileInfo(item.path).isFile())
        return;
    takeOff(item);
    throw RuntimeError(ErrorNumber::FileNotFound, u"File not found: "_s + item.path);
}

void PictureBrowser::deleteFile(const Item &item)
{
    demandFile(item);
    if (mForm.mnuFotoMore.item("mnuFotoToTrash"_L1).isChecked())
        keep({item, PictureMoves::toTrash(item.path), true});
    else
        PictureMoves::kill(item.path);
    leave(item, frmFoto::Leaves::Deleted);
}

void PictureBrowser::MoveIt()
{
    procedure("Sub MoveIt"_L1, [&] {
        const Bracket bracket(*this);
        const Item item = chosen();
        const QString directory = mForm.moveToDirectory();
        if (item.index < 0 || !canMove())
            return;
        if (isSameDirectory(directory, mForm.activeDirectory()))
            return mForm.setMoveToDirectory({});
        const Flash flash(*this, Colours::Green);
        moveFile(item, directory);
    });
}

void PictureBrowser::moveFile(const Item &item, const QString &directory)
{
    demandFile(item);
    keep({item, PictureMoves::move(item.path, directory + QFileInfo(item.path).fileName()), false});
    leave(item, frmFoto::Leaves::Moved);
}

/// During a flash the window may be closed, and a directory loaded.
bool PictureBrowser::isListed(const Item &item) const
{
    return mForm.picturePath(item.index) == item.path;
}

void PictureBrowser::leave(const Item &item, frmFoto::Leaves how)
{
    if (isListed(item))
        mForm.tellLeaves(how);
    takeOff(item);
}

/// The walk goes from the end of the list to its start.
void PictureBrowser::takeOff(const Item &item)
{
    if (!isListed(item))
        return;
    mForm.removePicture(item.index);
    if (item.index >= 1)
        mForm.choosePicture(item.index - 1);
}

void PictureBrowser::keep(const Done &done)
{
    mDone.append(done);
    if (mDone.size() > mostUndone)
        mDone.removeFirst();
}

void PictureBrowser::undo()
{
    procedure("Sub mnuFotoUndo_Click"_L1, [&] {
        const Bracket bracket(*this);
        if (mDone.isEmpty())
            return;
        const Done done = mDone.takeLast();
        // What could not be taken back can be tried again, unless it is no longer there.
        auto again = qScopeGuard([&] {
            if (cUtility::isNameTaken(done.to))
                mDone.append(done);
        });
        const QString path = done.inTrash ? PictureMoves::fromTrash(done.to, done.from.path)
                                          : PictureMoves::move(done.to, done.from.path);
        again.dismiss();
        const QFileInfo file(path);
        if (!isSameDirectory(file.path(), mForm.activeDirectory()))
            return;
        const int index = std::min(done.from.index, mForm.lstFoto.listCount());
        mForm.insertPicture(index, file.fileName());
        mForm.choosePicture(index);
    });
}
