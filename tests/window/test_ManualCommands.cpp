// The commands of the two menus of the Manual tab, in the whole program.
#include "app/MenuTables.h"
#include "window/ManualCommandsFixture.h"
#include "window/commands/ManualListRules.h"
#include "window/commands/ManualStatusRules.h"

#include <QDir>

using namespace Qt::StringLiterals;

TEST_F(ManualCommandsTest, ClearingEmptiesTheListAndNotItsTable)
{
    addUrl(u"MNUrlsA"_s, u"kept"_s);
    fill({u"a"_s});
    click("mnuMNClear"_L1);
    EXPECT_EQ(lastStatus(), u"Window cleared"_s);
    EXPECT_EQ(list().listCount(), 0);
    EXPECT_EQ(rows(u"MNUrlsA"_s), QStringList{u"kept"_s});
}

TEST_F(ManualCommandsTest, ASingleSelectedItemMakesRoomForTheNext)
{
    fill({u"a"_s, u"b"_s, u"c"_s}, {1}, 1);
    click("mnuMNClearSelected"_L1);
    EXPECT_EQ(list().items(), (QStringList{u"a"_s, u"c"_s}));
    EXPECT_EQ(list().listIndex(), 1);
    EXPECT_EQ(list().selection(), (std::vector<bool>{false, true}));
    EXPECT_EQ(lastStatus(), u"2 loaded"_s);
    click("mnuMNClearSelected"_L1);
    EXPECT_EQ(list().listIndex(), -1) << "there is none behind it";
    fill({u"a"_s, u"b"_s, u"c"_s}, {0, 2}, 0);
    click("mnuMNClearSelected"_L1);
    EXPECT_EQ(list().items(), QStringList{u"b"_s});
}

TEST_F(ManualCommandsTest, AllListsAreClearedAndThoseThatHeldItemsNamed)
{
    form().lists.lstMN(2).setItems({u"x"_s});
    fill({u"a"_s});
    click("mnuMNClearAllListWindows"_L1);
    EXPECT_EQ(lastStatus(), u"A,C cleared"_s);
    EXPECT_EQ(form().lists.lstMN(2).listCount(), 0);
}

TEST_F(ManualCommandsTest, SavedAddressesAreDeletedIntoTheCache)
{
    addUrl(u"MNUrlsA"_s, u"a"_s);
    click("mnuMNDeleteSaved"_L1);
    EXPECT_EQ(statuses, (QStringList{u"Deleting MNUrlsA"_s, u"MNUrlsA deleted"_s}));
    EXPECT_TRUE(rows(u"MNUrlsA"_s).isEmpty());
    EXPECT_EQ(rows(u"UrlsCache"_s), QStringList{u"a"_s});
}

TEST_F(ManualCommandsTest, SelectionCutAndCopy)
{
    fill({u"a"_s, u"b"_s});
    click("mnuMNSelectAll"_L1);
    EXPECT_EQ(lastStatus(), u"2 loaded. Selected"_s);
    click("mnuMNUnSelect"_L1);
    EXPECT_EQ(list().selCount(), 0);
    fill({u"a"_s, u"b"_s, u"c"_s}, {0, 2}, 2);
    click("mnuMNCopySelected"_L1);
    EXPECT_EQ(clipboard.held, u"a\r\nc\r\n"_s);
    EXPECT_EQ(lastStatus(), u"Copied c"_s);
    click("mnuMNCutSelected"_L1);
    EXPECT_EQ(list().items(), QStringList{u"b"_s});
    EXPECT_EQ(lastStatus(), u"1 loaded"_s);
}

TEST_F(ManualCommandsTest, PastedLinksJoinTheList)
{
    clipboard.held = u"http://a.com\r\nhttp://b.com"_s;
    click("mnuMNPasteLinks"_L1);
    EXPECT_EQ(list().items(), (QStringList{u"http://a.com"_s, u"http://b.com"_s}));
    EXPECT_EQ(lastStatus(), u"2 loaded.  2 added"_s);
}

TEST_F(ManualCommandsTest, ATextThatOnlyTheFirstItemHoldsIsSelectedAndReportedAsNotFound)
{
    fill({u"http://tea.com"_s, u"b"_s});
    dialogs.inputAnswers = {u"tea"_s};
    click("mnuMNFind(0)"_L1);
    EXPECT_EQ(lastStatus(), u"tea not found"_s);
    EXPECT_TRUE(list().isSelected(0));
    EXPECT_EQ(settings.of("mnuMNFindItem"), u"tea"_s);
}

TEST_F(ManualCommandsTest, FindNextGoesOnAndResetsAtTheEnd)
{
    fill({u"x"_s, u"tea1"_s, u"tea2"_s, u"tea3"_s});
    EXPECT_FALSE(offers("mnuMNFind(1)"_L1));
    dialogs.inputAnswers = {u"tea"_s};
    click("mnuMNFind(0)"_L1);
    EXPECT_EQ(lastStatus(), u"1 Sel. Item 2 Cnt 4"_s);
    click("mnuMNFind(1)"_L1);
    EXPECT_EQ(lastStatus(), u"1 Sel. Item 3 Cnt 4"_s);
    click("mnuMNFind(1)"_L1);
    EXPECT_EQ(lastStatus(), u"1 Sel. Item 4 Cnt 4"_s);
    EXPECT_FALSE(offers("mnuMNFind(1)"_L1)) << "the last item resets the search";
    dialogs.inputAnswers = {QString()};
    click("mnuMNFind(0)"_L1);
    EXPECT_TRUE(statuses.isEmpty()) << "cancelled";
}

TEST_F(ManualCommandsTest, AMissingTextOfFindNextIsToldWithoutIt)
{
    fill({u"x"_s, u"tea1"_s, u"y"_s, u"z"_s});
    dialogs.inputAnswers = {u"tea"_s};
    click("mnuMNFind(0)"_L1);
    click("mnuMNFind(1)"_L1);
    EXPECT_EQ(lastStatus(), u" not found"_s);
    EXPECT_FALSE(offers("mnuMNFind(1)"_L1));
}

TEST_F(ManualCommandsTest, TheListPositionIsSavedFoundAndLoaded)
{
    fill({u"a"_s, u"b"_s, u"c"_s}, {1}, 1);
    click("mnuMNSaveToDatabase"_L1);
    EXPECT_EQ(statuses, (QStringList{u"Saving MNUrlsA. Please Wait"_s, u"Saved To MNUrlsA"_s}));
    click("mnuMNSaveLast"_L1);
    EXPECT_TRUE(statuses.isEmpty());
    fill({u"c"_s, u"b"_s});
    click("mnuMNFind(2)"_L1);
    EXPECT_EQ(lastStatus(), u"1 Sel. Item 2 Cnt 2"_s);
    list().clear();
    click("mnuMNLoadLinksDB"_L1);
    EXPECT_EQ(statuses.constFirst(), u"Loading MNUrlsA"_s);
    EXPECT_EQ(lastStatus(), u"3 loaded"_s);
    EXPECT_EQ(list().listIndex(), 1);
}

TEST_F(ManualCommandsTest, LinksOfThePageAreLoadedWithOrWithoutSiteData)
{
    showResults({u"http://a.com/"_s, u"http://b.com/"_s});
    click("mnuMNLoadLinksIE"_L1);
    EXPECT_EQ(statuses, (QStringList{u"Please Wait"_s, u"Loading"_s, u"2 loaded. 2 loaded A"_s}));
    click("mnuMNUseSiteData"_L1);
    EXPECT_TRUE(item("mnuMNUseSiteData"_L1).isChecked());
    EXPECT_EQ(settings.of("mnuMNLoadLinksIEUnique"), u"True"_s);
    click("mnuMNUseSiteData"_L1);
    EXPECT_EQ(settings.of("mnuMNLoadLinksIEUnique"), u"False"_s);
}

TEST_F(ManualCommandsTest, OtherTablesAreLoadedUnderTheirCaptions)
{
    addUrl(u"ANSelectUrls"_s, u"an"_s);
    addUrl(u"MNSelectUrls"_s, u"mn"_s);
    addSaved(u"p"_s, u"pass"_s, u"PassUrlsB"_s);
    addSaved(u"r"_s, u"saved"_s, u"RPgUrlsB"_s);
    addUrl(u"UrlsCache"_s, u"deleted"_s);
    form().saved.cboANList.setListIndex(1);
    form().menus.mnuPopUpMN.prepare();
    EXPECT_EQ(item("mnuMNLSU(2)"_L1).caption(), u"Pass (Auto - B)"_s);
    EXPECT_EQ(item("mnuMNLSU(3)"_L1).caption(), u"Saved (Auto - B)"_s);
    for (const auto name : {"mnuMNLSU(0)"_L1, "mnuMNLSU(1)"_L1, "mnuMNLSU(2)"_L1, "mnuMNLSU(3)"_L1, "mnuMNLSU(4)"_L1})
        click(name);
    EXPECT_EQ(list().items(), (QStringList{u"an"_s, u"mn"_s, u"pass"_s, u"saved"_s, u"deleted"_s}));
    EXPECT_EQ(statuses, (QStringList{u"Loading"_s, u"5 loaded"_s}));
}

TEST_F(ManualCommandsTest, ItemsAreMagnifiedEditedNavigatedAndShownElsewhere)
{
    QString large;
    QStringList window;
    QObject::connect(&program->manual.edit, &ManualEdit::magnifyWanted, &form(), [&](const QString &t) { large = t; });
    QObject::connect(&program->manual.edit, &ManualEdit::windowWanted, &form(),
                     [&](const QStringList &items) { window = items; });
    fill({u"http://www.a.com/"_s, u"http://www.b.com/"_s}, {0, 1}, 1);
    click("mnuMNMagnify"_L1);
    EXPECT_EQ(large, u"http://www.a.com/\r\nhttp://www.b.com/\r\n"_s);
    click("mnuMNNewWindow"_L1);
    EXPECT_EQ(window, list().items());
    click("mnuMNNavigateTo"_L1);
    EXPECT_EQ(browser().navigated, QStringList{u"http://www.b.com/"_s});
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    click("mnuMNEdit"_L1);
    QDir::setCurrent(before);
    EXPECT_EQ(desktop.opened, QStringList{folder.filePath(u"TXTempF.txt"_s)});
    QFile file(folder.filePath(u"TXTempF.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("http://www.a.com/\r\nhttp://www.b.com/\r\n"));
}

TEST_F(ManualCommandsTest, MarkingAnItemKeepsItsStatusUntilTheNextChoice)
{
    form().options.chkSMD(5).setValue(0);
    fill({u"http://www.a.com/"_s}, {0}, 0);
    dialogs.inputAnswers = {u"note"_s};
    click("mnuMNStatusSaveListWindowUrl"_L1);
    EXPECT_EQ(lastStatus(), u"MNSelectUrls, Url Added"_s);
    list().endChoice();
    EXPECT_EQ(lastStatus(), u"MNSelectUrls, Url Added"_s);
    list().endChoice();
    EXPECT_EQ(lastStatus(), u"1 Sel. Item 1 Cnt 1"_s);
}

TEST_F(ManualCommandsTest, ARestrictedMenuDuringARunOnTheListStillCopiesAndMagnifies)
{
    fill({u"a"_s, u"b"_s}, {0}, 0);
    form().runs.mbMNRunning = true;
    form().manual.mintMNRunningList = 0;
    form().menus.mnuPopUpMN.prepare();
    QStringList enabled;
    for (const MenuRow &row : MenuTables::mnuPopUpMN) {
        if (item(row.name).isEnabled())
            enabled.append(row.name);
    }
    EXPECT_EQ(enabled, (QStringList{u"mnuMNMagnify"_s, u"mnuMNNavigateTo"_s, u"mnuMNCopySelected"_s}));
    form().manual.mintMNRunningList = 3;
    form().lists.lstMN(3).setItems({u"x"_s});
    EXPECT_FALSE(offers("mnuMNClearAllListWindows"_L1));
    for (const auto name : {"mnuMNClear"_L1, "mnuMNMainClear"_L1, "mnuMNRem(0)"_L1, "mnuMNSaveToDatabase"_L1})
        EXPECT_TRUE(offers(name)) << name.data();
    form().runs.mbMNRunning = false;
    EXPECT_TRUE(offers("mnuMNClearAllListWindows"_L1));
}

TEST_F(ManualCommandsTest, TheStatusBarMarksThePageOnShow)
{
    form().options.chkSMD(5).setValue(1);
    browser().pages[u"http://www.a.com/1"_s].title = u"A"_s;
    browser().show(u"http://www.a.com/1"_s);
    form().frame.picStatus.doubleClick();
    EXPECT_EQ(lastStatus(), u"MNSelectUrls, Url Added"_s);
    EXPECT_EQ(rows(u"MNSelectUrls"_s), QStringList{u"http://www.a.com/1"_s});
    fill({u"x"_s}, {0}, 0);
    list().endChoice();
    EXPECT_TRUE(statuses.isEmpty()) << "what was told stands";
    list().endChoice();
    EXPECT_EQ(lastStatus(), u"1 Sel. Item 1 Cnt 1"_s);
    form().frame.sstSearch.setTab(Tab::Auto);
    form().frame.picStatus.doubleClick();
    EXPECT_EQ(lastStatus(), u"ANSelectUrls, Url Added"_s);
    EXPECT_EQ(rows(u"ANSelectUrls"_s, u"Note"_s), QStringList{u"A"_s});
}

TEST_F(ManualCommandsTest, TheDataTabOffersTheTableOfTheListOnShow)
{
    form().lists.cboMNList.setListIndex(2);
    EXPECT_TRUE(form().data.cboDBTables.items().contains(u"MNUrlsC"_s));
    EXPECT_FALSE(form().data.cboDBTables.items().contains(u"MNUrlsA"_s));
}

TEST_F(ManualCommandsTest, ASeriesComesBackWithTheProgramWhicheverTabIsOnShow)
{
    form().series.cboMNAutoUrl.setText(u"www.a.com/7/009"_s);
    click("mnuMNStatusAutoIncrPos(2)"_L1);
    for (const int tab : {Tab::Auto, Tab::Manual}) {
        program.reset();
        load();
        form().frame.sstSearch.setTab(tab);
        EXPECT_TRUE(item("mnuMNStatusAutoIncrPos(2)"_L1).isChecked()) << tab;
        EXPECT_EQ(form().collect.lblAutoIncrPos.caption(), u"2"_s);
        EXPECT_EQ(form().series.incMNAutoUrl.text().toLongLong(), 9);
        EXPECT_EQ(settings.of("mnuMNStatusAutoIncrPos"), u"2"_s);
    }
    settings.preset("mnuMNStatusAutoIncrPos", u"17"_s);
    program.reset();
    load();
    EXPECT_EQ(program->manual.desk.GetAutoIncrChecked(), 0) << "no such position";
}

TEST_F(ManualCommandsTest, NoCommandRunsInsideALongOneOfAnotherTab)
{
    const QStringList links{u"http://www.a.com/1"_s, u"http://www.a.com/2"_s};
    fill(links);
    EXPECT_TRUE(program->longWork.run(u"Importing"_s, [this] { click("mnuMNReduceToServer"_L1); }));
    EXPECT_EQ(list().items(), links);
}

TEST_F(ManualCommandsTest, AnotherListIsShownWithItsAddressAndItsCount)
{
    settings.preset("txtMNGenerateUrlC", u"www.c.com/1"_s);
    addUrl(u"MNUrlsC"_s, u"http://www.tea.com/x"_s);
    form().lists.cboMNList.setListIndex(2);
    EXPECT_EQ(lastStatus(), u"1 saved: http://www.tea"_s);
    EXPECT_EQ(form().series.cboMNAutoUrl.text(), u"www.c.com/1"_s);
    EXPECT_EQ(settings.of("cboMNList"), u"2"_s);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(form().lists.lstMN(i).isVisible(), i == 2);
    form().lists.cboMNList.setListIndex(3);
    EXPECT_EQ(lastStatus(), u"MNUrlsD no saved"_s);
    EXPECT_EQ(form().series.cboMNAutoUrl.text(), u"www.c.com/1"_s) << "no address of its own";
}

TEST_F(ManualCommandsTest, TheListAnswersTheMouse)
{
    fill({u"http://www.a.com/"_s, u"http://www.b.com/"_s});
    list().choose(1, {false, true});
    list().endChoice();
    EXPECT_EQ(list().toolTipText(), u"http://www.b.com/"_s);
    EXPECT_EQ(lastStatus(), u"1 Sel. Item 2 Cnt 2"_s);
    list().doubleClick();
    EXPECT_EQ(browser().navigated, QStringList{u"http://www.b.com/"_s});
    form().runs.mbMNRunning = true;
    list().doubleClick();
    EXPECT_EQ(browser().navigated.size(), 1) << "not during a run";
    form().runs.mbMNRunning = false;
    list().mouseDown(MouseButton::Right);
    EXPECT_EQ(menus.shown.constLast(), u"mnuPopUpMN"_s);
    list().dropText(u"http://www.c.com/"_s);
    EXPECT_EQ(list().items().constLast(), u"http://www.c.com/"_s);
}

TEST_F(ManualCommandsTest, TheAddressBoxLosesItsProtocolAndIsKept)
{
    ComboBox &box = form().series.cboMNAutoUrl;
    box.setText(u"HTTP://www.a.com/7"_s);
    EXPECT_EQ(box.text(), u"www.a.com/7"_s);
    EXPECT_EQ(settings.of("txtMNGenerateUrlA"), u"www.a.com/7"_s);
    EXPECT_EQ(box.toolTipText(), u"www.a.com/7"_s);
    statuses.clear();
    box.validate();
    EXPECT_EQ(lastStatus(), u"(AutoIncr # Unknown)"_s);
    box.setText(u"bad one.com"_s);
    box.validate();
    EXPECT_EQ(lastStatus(), u"Invalid Url"_s);
    click("mnuMNUseAutoBase"_L1);
    box.setText({});
    box.validate();
    EXPECT_FALSE(item("mnuMNUseAutoBase"_L1).isChecked()) << "no base without an address";
    box.dropText(u"http://www.d.com/\r\nx"_s);
    EXPECT_EQ(box.text(), u"www.d.com/ x"_s);
}

TEST_F(ManualCommandsTest, TheSeriesMenuFollowsTheAddress)
{
    form().menus.mnuPopUpMNStatus.prepare();
    EXPECT_FALSE(item("mnuMNStatusMagnify"_L1).isEnabled());
    EXPECT_FALSE(item("mnuMNStatusAutoIncrPos(1)"_L1).isEnabled());
    form().series.cboMNAutoUrl.setText(u"www.a.com/7/9"_s);
    click("mnuMNStatusAutoIncrPos(2)"_L1);
    EXPECT_EQ(lastStatus(), u"(AutoIncr ON)"_s);
    click("mnuMNStatusSaveAutoTextUrl"_L1);
    EXPECT_EQ(rows(u"AutoTextA"_s), QStringList{u"www.a.com/7/9"_s});
    form().menus.mnuPopUpMNStatus.prepare();
    EXPECT_FALSE(item("mnuMNUseAutoBase"_L1).isEnabled()) << "not with a series";
    click("mnuMNStatusNavigateToAutoTextUrl"_L1);
    EXPECT_EQ(lastStatus(), u"Complete"_s);
    EXPECT_EQ(browser().navigated, QStringList{u"http://www.a.com/7/9"_s});
    form().options.chkSMD(5).setValue(0);
    dialogs.inputAnswers = {u"note"_s};
    click("mnuMNStatusSaveUrlMNSelect"_L1);
    EXPECT_EQ(rows(u"MNSelectUrls"_s), QStringList{u"www.a.com/7/9"_s});
    click("mnuMNStatusDeleteAutoTextUrl"_L1);
    EXPECT_EQ(lastStatus(), u"Auto Text Url Deleted"_s);
    EXPECT_TRUE(rows(u"AutoTextA"_s).isEmpty());
    EXPECT_FALSE(form().series.picMNShadow.isVisible());
    click("mnuMNStatusElongate"_L1);
    EXPECT_TRUE(form().series.picMNShadow.isVisible());
    EXPECT_EQ(settings.of("mnuMNStatusElongate"), u"1"_s);
    click("mnuMNStatusElongate"_L1);
    EXPECT_FALSE(form().series.picMNShadow.isVisible());
}

TEST_F(ManualCommandsTest, DuringARunTheSeriesCannotBeTouched)
{
    form().series.cboMNAutoUrl.setText(u"www.a.com/7"_s);
    form().runs.mbMNRunning = true;
    form().menus.mnuPopUpMNStatus.prepare();
    for (const auto name : {"mnuMNStatusAutoIncrementNumber"_L1, "mnuMNStatusAutoCollectPageUrls"_L1,
                            "mnuMNStatusAutoCollectLinks"_L1, "mnuMNStatusDeleteAutoTextUrl"_L1, "mnuMNUseAutoBase"_L1})
        EXPECT_FALSE(item(name).isEnabled()) << name.data();
    EXPECT_TRUE(item("mnuMNStatusMagnify"_L1).isEnabled());
    form().runs.mbMNRunning = false;
}

TEST_F(ManualCommandsTest, FiltersOfTheMenuWorkOnTheBoxes)
{
    form().urlFilter.cboMNMCMNCFilter.setText(u"tea"_s);
    form().urlFilter.cboMNMCMNC.setListIndex(1);
    fill({u"http://www.a.com/"_s}, {0}, 0);
    click("mnuMNAddFilter"_L1);
    EXPECT_EQ(lastStatus(), u"Filter added"_s);
    form().urlFilter.cboMNMCMNCFilter.setText({});
    click("mnuMNLocateFilter"_L1);
    EXPECT_EQ(form().urlFilter.cboMNMCMNCFilter.text(), u"tea"_s);
    click("mnuMNDeleteFilter"_L1);
    EXPECT_EQ(lastStatus(), u"Filter removed"_s);
}

TEST_F(ManualCommandsTest, ADatabaseFaultLeavesTheControlsUsable)
{
    fill({u"a"_s});
    database().CloseConnection();
    item("mnuMNSaveToDatabase"_L1).setEnabled(true);
    item("mnuMNSaveToDatabase"_L1).click();
    EXPECT_TRUE(lastStatus().startsWith(u"Not saved"_s)) << lastStatus().toStdString();
    EXPECT_TRUE(form().lists.cboMNList.isEnabled());
    EXPECT_EQ(list().listCount(), 1);
}
