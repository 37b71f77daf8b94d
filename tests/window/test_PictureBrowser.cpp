// The picture browser without a window: what is listed, shown, moved, deleted and taken back, by keys and menus.
#include "window/side/PictureBrowser.h"

#include "PictureFolderFixture.h"
#include "app/SettingKeys.h"
#include "support/FakePump.h"
#include "support/Fakes.h"
#include "window/side/PictureMenu.h"

using namespace Qt::StringLiterals;

class PictureBrowserTest : public PictureFolderTest
{
  protected:
    /// Opens the source folder with `files`, all moves going to the target folder.
    void open(const QStringList &files)
    {
        makeAll(files);
        settings.SaveSetting(Sections::Foto, Keys::MoveToDir, target());
        browser.LoadDirectory(source());
    }
    void press(EditKey key) { form.lstFoto.keyDown(key); }
    void click(const char *item) { form.mnuFotoPopUpAction.item(QLatin1StringView(item)).click(); }
    void clickMore(const char *item) { form.mnuFotoMore.item(QLatin1StringView(item)).click(); }
    [[nodiscard]] QStringList list() const { return form.lstFoto.items(); }
    [[nodiscard]] QString shownName() const { return screen.shown.value(screen.shown.size() - 1).section(u'/', -1); }
    [[nodiscard]] bool isEnabled(const char *item) const
    {
        return form.mnuFotoPopUpAction.item(QLatin1StringView(item)).isEnabled();
    }

    RecordingLog log;
    FakePictures screen;
    FakePump pump;
    FakeDialogs dialogs;
    FakeDesktop desktop;
    MemorySettings settings;
    FakeMenus menus;
    FakeSideWindows side;
    frmFoto form;
    PictureBrowser browser{log, form, screen, pump, settings, menus};
    PictureMenu menu{form, browser, dialogs, desktop, settings, side};
};

TEST_F(PictureBrowserTest, ADirectoryWithOtherFilesListsOnlyJpgGifAndBmpInLowerCaseAndShowsTheLast)
{
    open({u"Zoo.JPG"_s, u"a.txt"_s, u"b.gif"_s, u"C.Bmp"_s, u"d.png"_s, u"a.jpg"_s});
    EXPECT_EQ(list(), (QStringList{u"a.jpg"_s, u"zoo.jpg"_s, u"b.gif"_s, u"c.bmp"_s}));
    EXPECT_EQ(form.lstFoto.listIndex(), 3);
    EXPECT_EQ(screen.shown, QStringList{source() + u"C.Bmp"_s}) << "the file's own name";
    EXPECT_EQ(form.caption(), u"4 of 4"_s);
    EXPECT_EQ(form.lstFoto.toolTipText(), "Move to Dir = "_L1 + target());
    EXPECT_TRUE(form.isOpen());
}

TEST_F(PictureBrowserTest, AFileStandsForItsDirectoryAndWhatIsNotThereForNothing)
{
    open({u"a.jpg"_s, u"b.jpg"_s});
    make(target() + u"x.jpg"_s, "x");
    browser.LoadDirectory(target() + u"x.jpg"_s);
    EXPECT_EQ(list(), QStringList{u"x.jpg"_s});
    EXPECT_EQ(form.activeDirectory(), target());
    for (const QString &nothing : {QString(), source() + u"none"_s}) {
        browser.LoadDirectory(nothing);
        EXPECT_EQ(list(), QStringList{u"x.jpg"_s});
    }
}

TEST_F(PictureBrowserTest, AnEmptyDirectoryShowsNothing)
{
    open({});
    EXPECT_EQ(form.lstFoto.listIndex(), -1);
    EXPECT_EQ(screen.shown, QStringList());
    for (const EditKey key : {EditKey::Insert, EditKey::Delete})
        press(key);
    EXPECT_TRUE(log.entries.isEmpty());
    EXPECT_TRUE(form.lstFoto.isEnabled());
}

TEST_F(PictureBrowserTest, AChosenFileIsShownWithItsPosition)
{
    open({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    form.choosePicture(0);
    EXPECT_EQ(shownName(), u"a.jpg"_s);
    EXPECT_EQ(form.caption(), u"1 of 3"_s);
}

TEST_F(PictureBrowserTest, APictureThatCannotBeShownIsLoggedAndTheNextOneCanBeChosen)
{
    screen.refused = u"b.jpg"_s;
    open({u"a.jpg"_s, u"b.jpg"_s});
    ASSERT_EQ(log.entries.size(), 1);
    EXPECT_EQ(log.entries.first().number, ErrorNumber::InvalidPicture);
    EXPECT_EQ(log.locations(), QStringList{u"Sub lstFoto_Click"_s});
    EXPECT_EQ(list().size(), 2);
    EXPECT_EQ(form.caption(), u"2 of 2"_s);
    EXPECT_EQ(form.notice(), u"Invalid picture"_s);
    form.choosePicture(0);
    EXPECT_EQ(shownName(), u"a.jpg"_s);
    EXPECT_EQ(form.notice(), QString());
}

TEST_F(PictureBrowserTest, DelDeletesTheFileAndWalksTheListFromItsEndToItsStart)
{
    open({u"a.jpg"_s, u"b.jpg"_s, u"C.jpg"_s});
    press(EditKey::Delete);
    EXPECT_EQ(names(source()), (QStringList{u"a.jpg"_s, u"b.jpg"_s}));
    EXPECT_EQ(shownName(), u"b.jpg"_s);
    EXPECT_EQ(form.caption(), u"2 of 2"_s);
    press(EditKey::Delete);
    EXPECT_EQ(form.lstFoto.listIndex(), 0);
    EXPECT_TRUE(form.lstFoto.isSelected(0));
}

TEST_F(PictureBrowserTest, BehindTheFirstItemNothingIsChosen)
{
    open({u"a.jpg"_s, u"b.jpg"_s});
    form.choosePicture(0);
    press(EditKey::Delete);
    EXPECT_EQ(list(), QStringList{u"b.jpg"_s});
    EXPECT_EQ(form.lstFoto.listIndex(), -1);
    EXPECT_EQ(screen.shown.size(), 2) << "b, then a; b is not shown again";
    press(EditKey::Delete);
    EXPECT_EQ(names(source()), QStringList{u"b.jpg"_s});
}

TEST_F(PictureBrowserTest, DeleteItOnTheOnlyItemLeavesAnEmptyListAndAnUnchangedPicture)
{
    open({u"a.jpg"_s});
    click("mnuFotoDeleteIt");
    EXPECT_EQ(list(), QStringList());
    EXPECT_EQ(names(source()), QStringList());
    EXPECT_EQ(screen.shown.size(), 1);
    EXPECT_EQ(form.caption(), u"1 of 1"_s);
}

TEST_F(PictureBrowserTest, InsMovesTheFileAndWalksOn)
{
    open({u"a.jpg"_s, u"B.JPG"_s});
    press(EditKey::Insert);
    EXPECT_EQ(names(target()), QStringList{u"B.JPG"_s});
    EXPECT_EQ(names(source()), QStringList{u"a.jpg"_s});
    EXPECT_EQ(list(), QStringList{u"a.jpg"_s});
    EXPECT_EQ(shownName(), u"a.jpg"_s);
}

TEST_F(PictureBrowserTest, MoveItIntoADirectoryThatHasTheNameKeepsBoth)
{
    make(target() + u"a.jpg"_s, "other");
    open({u"a.jpg"_s});
    click("mnuFotoMoveIt");
    EXPECT_EQ(content(target() + u"a.jpg"_s), "other");
    EXPECT_EQ(content(target() + u"a-1.jpg"_s), "a.jpg");
    EXPECT_EQ(names(source()), QStringList());
}

TEST_F(PictureBrowserTest, InsWithNoMoveToDirectoryDoesNothingAndSaysNothing)
{
    makeAll({u"a.jpg"_s});
    for (const QString &stored : {QString(), source() + u"none/"_s}) {
        settings.SaveSetting(Sections::Foto, Keys::MoveToDir, stored);
        browser.LoadDirectory(source());
        EXPECT_EQ(form.moveToDirectory(), QString());
        EXPECT_FALSE(isEnabled("mnuFotoMoveIt"));
        press(EditKey::Insert);
        EXPECT_EQ(names(source()), QStringList{u"a.jpg"_s});
        EXPECT_TRUE(dialogs.told.isEmpty());
        EXPECT_TRUE(log.entries.isEmpty());
        form.unload();
    }
}

TEST_F(PictureBrowserTest, AMoveToDirectoryThatHasGoneMovesNothing)
{
    open({u"a.jpg"_s});
    ASSERT_TRUE(targetFolder.remove());
    press(EditKey::Insert);
    click("mnuFotoMoveIt");
    EXPECT_EQ(names(source()), QStringList{u"a.jpg"_s});
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(PictureBrowserTest, AMoveToDirectoryThatIsTheActiveOneIsClearedAtTheFirstMove)
{
    settings.SaveSetting(Sections::Foto, Keys::MoveToDir, source());
    makeAll({u"a.jpg"_s});
    browser.LoadDirectory(source());
    EXPECT_TRUE(isEnabled("mnuFotoMoveIt"));
    press(EditKey::Insert);
    EXPECT_EQ(names(source()), QStringList{u"a.jpg"_s});
    EXPECT_EQ(form.moveToDirectory(), QString());
    EXPECT_FALSE(isEnabled("mnuFotoMoveIt"));
    EXPECT_EQ(form.lstFoto.backColor(), Colours::Window);
}

TEST_F(PictureBrowserTest, TheListFlashesForAHundredAndOneTurnsInWhichNothingCanBeUsed)
{
    for (const auto &[key, colour] : {std::pair{EditKey::Delete, Colours::Red}, {EditKey::Insert, Colours::Green}}) {
        open({u"a.jpg"_s, u"b.jpg"_s});
        int coloured = 0;
        pump.after(0, [&] {
            coloured += form.lstFoto.backColor() == colour ? 1 : 0;
            EXPECT_FALSE(form.lstFoto.isEnabled());
            EXPECT_FALSE(form.picFoto.isEnabled());
            EXPECT_FALSE(isEnabled("mnuFotoDeleteIt"));
        });
        press(key);
        EXPECT_EQ(coloured, 1);
        EXPECT_EQ(form.lstFoto.backColor(), Colours::Window);
        EXPECT_TRUE(form.lstFoto.isEnabled());
        EXPECT_TRUE(isEnabled("mnuFotoMoveIt"));
        EXPECT_EQ(form.lstFoto.listCount(), 1);
        QFile::remove(source() + u"a.jpg"_s);
    }
}

namespace {
/// What happens during the flash of the key that takes "b.jpg" away, and what is on the list then.
struct Meanwhile
{
    const char *tag;
    bool closes;
    enum class Loads { Nothing, Others, Target, SameWithOneMore } loads;
    QStringList list;
};

void PrintTo(const Meanwhile &meanwhile, std::ostream *out)
{
    *out << meanwhile.tag;
}

const QStringList otherNames{u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s};
const Meanwhile meanwhiles[] = {
    {"the window is closed", true, Meanwhile::Loads::Nothing, {u"a.jpg"_s, u"b.jpg"_s}},
    {"another directory is loaded", false, Meanwhile::Loads::Others, otherNames},
    {"a download opens the window anew", true, Meanwhile::Loads::Others, otherNames},
    {"opened anew it has nowhere to move to", true, Meanwhile::Loads::Target, {}},
    {"its directory has another first file",
     false,
     Meanwhile::Loads::SameWithOneMore,
     {u"0.jpg"_s, u"a.jpg"_s, u"b.jpg"_s}},
};

class PictureBrowserFlash : public PictureBrowserTest, public testing::WithParamInterface<Meanwhile>
{
  protected:
    PictureBrowserFlash()
    {
        for (const QString &name : otherNames)
            make(otherFolder.filePath(name), "other");
        QDir::setCurrent(otherFolder.path()); // where a name without its directory leads to
    }
    ~PictureBrowserFlash() override { QDir::setCurrent(before); }
    void happen()
    {
        if (GetParam().closes)
            form.unload();
        switch (GetParam().loads) {
        case Meanwhile::Loads::Nothing:
            return;
        case Meanwhile::Loads::Others:
            return browser.LoadDirectory(otherFolder.path());
        case Meanwhile::Loads::Target:
            return browser.LoadDirectory(target());
        case Meanwhile::Loads::SameWithOneMore:
            make(u"0.jpg"_s);
            return browser.LoadDirectory(source());
        }
    }
    void pressDuringWhich(EditKey key)
    {
        open({u"a.jpg"_s, u"b.jpg"_s});
        pump.after(0, [this] { happen(); });
        press(key);
        EXPECT_EQ(names(otherFolder.path()), otherNames);
        EXPECT_FALSE(QFile::exists(source() + u"b.jpg"_s));
        EXPECT_TRUE(QFile::exists(source() + u"a.jpg"_s));
        EXPECT_EQ(list(), GetParam().list);
        EXPECT_TRUE(log.entries.isEmpty());
        EXPECT_TRUE(form.lstFoto.isEnabled());
    }

    QTemporaryDir otherFolder;
    const QString before = QDir::currentPath();
};
} // namespace

TEST_P(PictureBrowserFlash, DeletesThePictureThatTheKeyWasPressedFor)
{
    pressDuringWhich(EditKey::Delete);
}

TEST_P(PictureBrowserFlash, MovesThePictureThatTheKeyWasPressedFor)
{
    pressDuringWhich(EditKey::Insert);
    EXPECT_EQ(names(target()), QStringList{u"b.jpg"_s});
}

INSTANTIATE_TEST_SUITE_P(PictureBrowserTest, PictureBrowserFlash, testing::ValuesIn(meanwhiles));

TEST_F(PictureBrowserTest, AFileThatAnotherProgramHasTakenAwayLeavesTheListWithALogEntry)
{
    for (const EditKey key : {EditKey::Delete, EditKey::Insert}) {
        open({u"a.jpg"_s, u"b.jpg"_s});
        QFile::remove(source() + u"b.jpg"_s);
        press(key);
        ASSERT_FALSE(log.entries.isEmpty());
        EXPECT_EQ(log.entries.constLast().number, ErrorNumber::FileNotFound);
        EXPECT_EQ(list(), QStringList{u"a.jpg"_s});
        EXPECT_TRUE(form.lstFoto.isEnabled());
        EXPECT_EQ(form.lstFoto.backColor(), Colours::Window);
    }
}

TEST_F(PictureBrowserTest, TheLastMovesAreTakenBackInTheirOrder)
{
    open({u"a.jpg"_s, u"b.jpg"_s, u"C.jpg"_s});
    const QStringList all = list();
    make(target() + u"b.jpg"_s, "other");
    press(EditKey::Insert);
    press(EditKey::Insert);
    EXPECT_EQ(names(target()), (QStringList{u"b-1.jpg"_s, u"b.jpg"_s, u"C.jpg"_s}));
    clickMore("mnuFotoUndo");
    EXPECT_EQ(content(source() + u"b.jpg"_s), "b.jpg") << "under its old name";
    EXPECT_EQ(shownName(), u"b.jpg"_s);
    clickMore("mnuFotoUndo");
    EXPECT_EQ(list(), all);
    EXPECT_EQ(names(target()), QStringList{u"b.jpg"_s});
    EXPECT_EQ(form.caption(), u"3 of 3"_s);
    EXPECT_FALSE(form.mnuFotoMore.item("mnuFotoUndo"_L1).isEnabled());
    clickMore("mnuFotoUndo");
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(PictureBrowserTest, WhatCouldNotBeTakenBackCanBeTriedAgain)
{
    open({u"a.jpg"_s, u"b.jpg"_s});
    press(EditKey::Insert);
    ASSERT_TRUE(QDir().rename(source(), source().chopped(1) + u"-away"_s));
    clickMore("mnuFotoUndo");
    EXPECT_EQ(log.entries.size(), 1);
    EXPECT_EQ(names(target()), QStringList{u"b.jpg"_s});
    ASSERT_TRUE(QDir().rename(source().chopped(1) + u"-away"_s, source()));
    clickMore("mnuFotoUndo");
    EXPECT_EQ(names(target()), QStringList());
    EXPECT_EQ(content(source() + u"b.jpg"_s), "b.jpg");
}

TEST_F(PictureBrowserTest, WhatIsNoLongerThereDoesNotStandInTheWayOfEarlierMoves)
{
    open({u"a.jpg"_s, u"b.jpg"_s});
    press(EditKey::Insert);
    press(EditKey::Insert);
    ASSERT_TRUE(QFile::remove(target() + u"a.jpg"_s));
    clickMore("mnuFotoUndo");
    clickMore("mnuFotoUndo");
    EXPECT_EQ(names(source()), QStringList{u"b.jpg"_s});
}

TEST_F(PictureBrowserTest, OpenedAnewItComparesTheMoveToDirectoryWithTheOneOnShow)
{
    open({u"a.jpg"_s});
    make(target() + u"x.jpg"_s, "x");
    browser.LoadDirectory(target());
    click("mnuFotoExit");
    browser.LoadDirectory(source());
    EXPECT_EQ(form.moveToDirectory(), target());
}

TEST_F(PictureBrowserTest, WhatIsTakenBackIntoAnotherDirectoryIsNotListed)
{
    open({u"a.jpg"_s, u"b.jpg"_s});
    press(EditKey::Insert);
    browser.LoadDirectory(target());
    clickMore("mnuFotoUndo");
    EXPECT_EQ(names(source()), (QStringList{u"a.jpg"_s, u"b.jpg"_s}));
    EXPECT_EQ(list(), QStringList{u"b.jpg"_s}) << "of the target, until it is read again";
    click("mnuRefresh");
    EXPECT_EQ(list(), QStringList());
}

TEST_F(PictureBrowserTest, DeletionsGoToTheTrashOnlyWhereThatIsWanted)
{
    QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    open({u"a.jpg"_s, u"b.jpg"_s});
    clickMore("mnuFotoToTrash");
    EXPECT_EQ(settings.GetSetting(Sections::Foto, Keys::DeleteToTrash, {}), u"True"_s);
    press(EditKey::Delete);
    EXPECT_EQ(names(source()), QStringList{u"a.jpg"_s});
    clickMore("mnuFotoUndo");
    EXPECT_EQ(content(source() + u"b.jpg"_s), "b.jpg");
    EXPECT_EQ(list(), (QStringList{u"a.jpg"_s, u"b.jpg"_s}));
    clickMore("mnuFotoToTrash");
    press(EditKey::Delete);
    EXPECT_FALSE(form.mnuFotoMore.item("mnuFotoUndo"_L1).isEnabled()) << "what is deleted for good stays so";
    qunsetenv("XDG_DATA_HOME");
}

TEST_F(PictureBrowserTest, TheRightButtonOpensTheMenu)
{
    open({u"a.jpg"_s});
    form.lstFoto.mouseDown(MouseButton::Left);
    EXPECT_EQ(menus.shown, QStringList());
    form.lstFoto.mouseDown(MouseButton::Right);
    EXPECT_EQ(menus.shown, QStringList{u"mnuFotoPopUpAction"_s});
}

TEST_F(PictureBrowserTest, RefreshReadsTheDirectoryAgain)
{
    open({u"a.jpg"_s});
    make(u"b.jpg"_s);
    click("mnuRefresh");
    EXPECT_EQ(list(), (QStringList{u"a.jpg"_s, u"b.jpg"_s}));
    EXPECT_EQ(form.lstFoto.listIndex(), 1);
}

TEST_F(PictureBrowserTest, ExploreOpensTheDirectories)
{
    open({u"a.jpg"_s});
    click("mnuFileSourceDirectory");
    click("mnuMoveToDirectory");
    EXPECT_EQ(desktop.opened, (QStringList{source(), target()}));
    form.setMoveToDirectory({});
    click("mnuMoveToDirectory");
    EXPECT_EQ(desktop.opened.size(), 2);
}

TEST_F(PictureBrowserTest, ANewDirectoryIsChosenByOneOfItsFiles)
{
    open({u"a.jpg"_s});
    click("mnuNewDirectory");
    ASSERT_EQ(dialogs.files.size(), 1);
    EXPECT_EQ(dialogs.files.first().title, u"Select File"_s);
    EXPECT_EQ(dialogs.files.first().text, u"All Files (*.*)|*.*|"_s);
    EXPECT_EQ(list(), QStringList{u"a.jpg"_s}) << "nothing was chosen";
    dialogs.fileAnswer = make(target() + u"x.jpg"_s, "x");
    make(target() + u"y.gif"_s, "y");
    click("mnuNewDirectory");
    EXPECT_EQ(list(), (QStringList{u"x.jpg"_s, u"y.gif"_s}));
}

TEST_F(PictureBrowserTest, TheMoveToDirectoryIsChosenAndKept)
{
    makeAll({u"a.jpg"_s});
    browser.LoadDirectory(source());
    click("mnuSetMoveToDir");
    EXPECT_EQ(side.asked, QStringList{QString()});
    side.choose({});
    EXPECT_FALSE(isEnabled("mnuFotoMoveIt")) << "Cancel changes nothing";
    click("mnuSetMoveToDir");
    side.choose(target());
    EXPECT_EQ(form.moveToDirectory(), target());
    EXPECT_TRUE(isEnabled("mnuFotoMoveIt"));
    EXPECT_EQ(settings.GetSetting(Sections::Foto, Keys::MoveToDir, {}), target());
    click("mnuSetMoveToDir");
    EXPECT_EQ(side.asked.constLast(), target());
}

TEST_F(PictureBrowserTest, SettingTheMoveToDirectoryToTheActiveOneShowsTheMessageAndKeepsTheOldValue)
{
    open({u"a.jpg"_s});
    click("mnuSetMoveToDir");
    side.choose(source());
    ASSERT_EQ(dialogs.told.size(), 1);
    EXPECT_EQ(dialogs.told.first().text, u"Move to Dir can not be the same as Active Dir"_s);
    EXPECT_EQ(form.moveToDirectory(), target());
    EXPECT_EQ(settings.GetSetting(Sections::Foto, Keys::MoveToDir, {}), target());
}

TEST_F(PictureBrowserTest, ExitClosesTheWindow)
{
    open({u"a.jpg"_s});
    int closed = 0;
    QObject::connect(&form, &frmFoto::unloaded, &form, [&] { ++closed; });
    click("mnuFotoExit");
    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(form.isOpen());
}

TEST_F(PictureBrowserTest, ChoicesOfTheOtherMenuAreKept)
{
    clickMore("mnuFotoThumbnails");
    clickMore("mnuFotoActualSize");
    frmFoto next;
    PictureBrowser nextBrowser(log, next, screen, pump, settings, menus);
    const PictureMenu nextMenu(next, nextBrowser, dialogs, desktop, settings, side);
    EXPECT_TRUE(next.mnuFotoMore.item("mnuFotoThumbnails"_L1).isChecked());
    EXPECT_FALSE(next.mnuFotoMore.item("mnuFotoToTrash"_L1).isChecked());
    EXPECT_TRUE(form.mnuFotoMore.item("mnuFotoActualSize"_L1).isChecked());
    EXPECT_FALSE(next.mnuFotoMore.item("mnuFotoActualSize"_L1).isChecked()) << "for the moment only";
}
