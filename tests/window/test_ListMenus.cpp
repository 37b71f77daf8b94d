// The menus of the Auto side's lists: what they offer when, what they do, and that keys and drops do the same.
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
class ListMenuTest : public ProgramTest
{
  protected:
    ListMenuTest()
    {
        load();
        form().outputs.chkSaveSummary.setValue(1);
        form().criteria.mustContain.on.setValue(1);
        form().criteria.mustNotContain.on.setValue(1);
        dialogs.inputAnswers = {u"Tea"_s};
        form().criteria.cmdANMCMaskAdd.click();
        for (ListBox *list : lists())
            list->dropText(u"one\r\ntwo\r\nthree"_s);
        statuses.clear();
    }
    std::vector<ListBox *> lists()
    {
        return {&form().criteria.mustContain.items, &form().criteria.mustNotContain.items, &form().blocking.urls.items,
                &form().blocking.email.items};
    }
    void select(ListBox &list, const std::vector<bool> &which) { list.choose(0, which); }
    /// What the menu offers on the list: "Remove" and "Clear".
    QString offered(ListBox &list)
    {
        QString states;
        menus.choice = [&states](Menu &menu) {
            for (const MenuItem *item : menu.children())
                states += item->isEnabled() ? item->caption().at(0) : u'-';
        };
        list.mouseDown(MouseButton::Right);
        return states;
    }
    void command(ListBox &list, QLatin1StringView item)
    {
        menus.choice = [item](Menu &menu) { menu.item(item).click(); };
        list.mouseDown(MouseButton::Right);
    }
    QStringList storedOf(std::size_t list)
    {
        const char *const places[][2] = {
            {"MC", "Item-"}, {"MNC", "Item-"}, {"Block", "UrlsContent"}, {"Block", "EmailContent"}};
        const QString table = QLatin1StringView(places[list][0]);
        const QString field = QLatin1StringView(places[list][1]);
        QStringList found;
        if (field == u"Item-"_s) {
            for (int i = 1; i <= 40; ++i)
                found += rows(table, u"Item-%1"_s.arg(i));
        } else {
            found = rows(table, field);
        }
        found.removeAll(QString());
        return found;
    }
};
} // namespace

TEST_F(ListMenuTest, RemoveNeedsASelectionAndClearNeedsItems)
{
    for (ListBox *list : lists()) {
        select(*list, {false, false, false});
        EXPECT_EQ(offered(*list), u"-C"_s) << qPrintable(list->name());
        select(*list, {false, true, false});
        EXPECT_EQ(offered(*list), u"RC"_s) << qPrintable(list->name());
        list->clear();
        EXPECT_EQ(offered(*list), u"--"_s) << qPrintable(list->name());
    }
}

TEST_F(ListMenuTest, RemoveTakesTheSelectedItemsOfItsOwnListAlone)
{
    for (std::size_t i = 0; i < lists().size(); ++i) {
        ListBox &list = *lists()[i];
        select(list, {true, false, true});
        command(list, "mnuANMCMNCRemove"_L1);
        EXPECT_EQ(list.items(), QStringList{u"two"_s}) << qPrintable(list.name());
        EXPECT_EQ(storedOf(i), QStringList{u"two"_s}) << qPrintable(list.name());
    }
}

TEST_F(ListMenuTest, ClearEmptiesItsOwnListAlone)
{
    for (std::size_t i = 0; i < lists().size(); ++i) {
        ListBox &list = *lists()[i];
        EXPECT_EQ(list.listCount(), 3);
        command(list, "mnuANMCMNCClear"_L1);
        EXPECT_EQ(list.listCount(), 0) << qPrintable(list.name());
        EXPECT_TRUE(storedOf(i).isEmpty()) << qPrintable(list.name());
    }
}

TEST_F(ListMenuTest, DeleteRemovesAndInsertAdds)
{
    for (std::size_t i = 0; i < lists().size(); ++i) {
        ListBox &list = *lists()[i];
        select(list, {false, false, true});
        list.keyDown(EditKey::Delete);
        EXPECT_EQ(list.items(), (QStringList{u"one"_s, u"two"_s})) << qPrintable(list.name());
        dialogs.inputAnswers = {u"four"_s};
        list.keyDown(EditKey::Insert);
        EXPECT_EQ(storedOf(i), (QStringList{u"one"_s, u"two"_s, u"four"_s})) << qPrintable(list.name());
        select(list, {false, false, false});
        list.keyDown(EditKey::Delete);
        EXPECT_EQ(list.listCount(), 3) << qPrintable(list.name());
    }
}

TEST_F(ListMenuTest, TheButtonsOfTheBlockingListsAddAndRemove)
{
    form().frame.sstSearch.setTab(Tab::Settings);
    dialogs.inputAnswers = {u"ads"_s};
    form().blocking.urls.buttons(0).click();
    EXPECT_EQ(form().blocking.urls.items.items().constLast(), u"ads"_s);
    select(form().blocking.urls.items, {true, true, true, false});
    form().blocking.urls.buttons(1).click();
    EXPECT_EQ(form().blocking.urls.items.items(), QStringList{u"ads"_s});
    EXPECT_EQ(lastStatus(), u"three removed"_s);
}

TEST_F(ListMenuTest, WithoutABrowserNoMenuOpens)
{
    form().browser.mbInitialized = false;
    form().criteria.mustContain.items.mouseDown(MouseButton::Right);
    EXPECT_TRUE(menus.shown.isEmpty());
    EXPECT_EQ(lastStatus(), u"Not initialized"_s);
}

namespace {
class PassUrlsMenuTest : public ProgramTest
{
  protected:
    PassUrlsMenuTest() { load(); }
    void fill(int passUrls, int savedUrls)
    {
        for (int i = 0; i < passUrls; ++i)
            addSaved(u"PassUrl-%1"_s.arg(100 + i), u"http://www.pass%1.com/"_s.arg(i), u"PassUrlsA"_s);
        for (int i = 0; i < savedUrls; ++i)
            addSaved(u"Results-%1"_s.arg(100 + i), u"http://www.seek.com/%1"_s.arg(i));
        program->savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
        statuses.clear();
    }
    void open() { form().collect.lblAutoIncrPos.mouseDown(MouseButton::Right); }
    QString offered()
    {
        QString states;
        menus.choice = [&states](Menu &menu) {
            for (const MenuItem *item : menu.children())
                states += item->isEnabled() ? u'1' : u'0';
        };
        open();
        return states;
    }
    void command(QLatin1StringView item)
    {
        menus.choice = [item](Menu &menu) { menu.item(item).click(); };
        open();
    }
    const ComboBox &box() { return form().saved.cboANSavedUrls; }
};
} // namespace

TEST_F(PassUrlsMenuTest, WhatIsOfferedFollowsWhatThereIs)
{
    EXPECT_EQ(offered(), u"0000"_s);
    fill(0, 1);
    EXPECT_EQ(offered(), u"0001"_s);
    fill(2, 0);
    EXPECT_EQ(offered(), u"1011"_s);
    command("mnuPULoadPassUrls"_L1);
    EXPECT_EQ(offered(), u"1110"_s);
}

TEST_F(PassUrlsMenuTest, LoadShowsThePassUrlsAndUnLoadTheSavedUrlsAtTheirPlace)
{
    form().options.chkSMV(0).setValue(1);
    fill(2, 3);
    form().saved.cboANSavedUrls.setListIndex(2);
    command("mnuPULoadPassUrls"_L1);
    EXPECT_TRUE(form().saved.mbPassUrlsLoaded);
    EXPECT_EQ(box().items(), (QStringList{u"PassUrl-100"_s, u"PassUrl-101"_s}));
    EXPECT_EQ(box().listIndex(), 0);
    EXPECT_EQ(box().toolTipText(), u"PassUrlsA (Saved from search)"_s);
    command("mnuPUUnLoadPassUrls"_L1);
    EXPECT_FALSE(form().saved.mbPassUrlsLoaded);
    EXPECT_EQ(box().text(), u"Results-102"_s);
    EXPECT_EQ(box().toolTipText(), u"Saved Urls"_s);
}

TEST_F(PassUrlsMenuTest, ADeletedListIsKeptUntilTheNextOne)
{
    fill(2, 3);
    command("mnuPUDeletePassUrls"_L1);
    EXPECT_EQ(lastStatus(), u"PassUrlsA deleted"_s);
    EXPECT_TRUE(rows(u"PassUrlsA"_s).isEmpty());
    EXPECT_EQ(rows(u"UrlsCache"_s), (QStringList{u"http://www.pass0.com/"_s, u"http://www.pass1.com/"_s}));
    EXPECT_EQ(box().listCount(), 3);
    form().saved.cboANSavedUrls.setListIndex(1);
    program->savedUrls.SaveSavedUrlPos();
    command("mnuPUDeleteSaveUrls"_L1);
    EXPECT_EQ(lastStatus(), u"RPgUrlsA deleted"_s);
    EXPECT_EQ(rows(u"UrlsCache"_s).size(), 3);
    EXPECT_EQ(box().listCount(), 0);
    EXPECT_EQ(form().saved.mastrSavedUrlIds, emptyList());
    EXPECT_EQ(settings.of("ANListIndexA"), u"0"_s);
}

TEST_F(PassUrlsMenuTest, DeleteSaveOnAnEmptyBoxDoesNothing)
{
    form().menus.mnuPopUpPassUrls.item("mnuPUDeleteSaveUrls"_L1).setEnabled(true);
    statuses.clear();
    form().menus.mnuPopUpPassUrls.item("mnuPUDeleteSaveUrls"_L1).click();
    EXPECT_TRUE(statuses.isEmpty());
}

TEST_F(PassUrlsMenuTest, PassUrlsAreOpenedOneAfterTheOther)
{
    fill(3, 1);
    form().options.chkSMA(5).setValue(1);
    command("mnuPULoadPassUrls"_L1);
    browser().navigated.clear();
    for (int i = 0; i < 3; ++i)
        form().saved.cmdANSavedGo.click();
    EXPECT_EQ(browser().navigated,
              (QStringList{u"http://www.pass0.com/"_s, u"http://www.pass1.com/"_s, u"http://www.pass2.com/"_s}));
    EXPECT_EQ(box().listIndex(), 2);
}

TEST_F(PassUrlsMenuTest, LinksAreNotSavedWhileTheirListIsOpen)
{
    fill(1, 0);
    form().outputs.chkSaveUrl.setValue(1);
    command("mnuPULoadPassUrls"_L1);
    EXPECT_EQ(form().outputs.chkSaveUrl.value(), 0);
    EXPECT_FALSE(form().outputs.chkSaveUrl.isEnabled());
}

TEST_F(PassUrlsMenuTest, TheAddressOfTheChosenItemCanBeDraggedOff)
{
    fill(0, 2);
    EXPECT_EQ(form().saved.cboANSavedUrls.textToDrag(), QString());
    form().saved.cboANSavedUrls.setListIndex(1);
    EXPECT_EQ(form().saved.cboANSavedUrls.textToDrag(), u"http://www.seek.com/1"_s);
    EXPECT_EQ(form().saved.cmdANSavedGo.textToDrag(), u"http://www.seek.com/1"_s);
}

namespace {
class StatusMenuTest : public ProgramTest
{
  protected:
    StatusMenuTest()
    {
        load();
        statuses.clear();
    }
    void open() { form().frame.picStatus.mouseDown(MouseButton::Right); }
    MenuItem &item(QLatin1StringView name) { return form().menus.mnuPopUpANStatus.item(name); }
};
} // namespace

TEST_F(StatusMenuTest, EachTabOpensItsMenu)
{
    const char *const expected[] = {"mnuPopUpANStatus", "mnuPopUpMNStatus", "mnuPopUpANStatus", "mnuPopUpDBStatus"};
    for (int tab = 0; tab < 4; ++tab) {
        form().frame.sstSearch.setTab(tab);
        open();
        EXPECT_EQ(menus.shown.constLast(), QLatin1StringView(expected[tab]));
    }
    form().browser.mbInitialized = false;
    open();
    EXPECT_EQ(menus.shown.size(), 4);
    EXPECT_EQ(lastStatus(), u"Not initialized"_s);
}

TEST_F(StatusMenuTest, OnTheSettingsTabOnlyTheWindowsOwnCommandsWork)
{
    const auto states = [this] {
        open();
        return std::array{item("mnuANStatusReSet"_L1).isEnabled(), item("mnuANStatusAutoSave"_L1).isEnabled(),
                          item("mnuANStatusGetServer"_L1).isEnabled()};
    };
    EXPECT_EQ(states(), (std::array{false, true, true}));
    form().autoRun.mastrLinks = {u"http://a.com/"_s};
    EXPECT_EQ(states(), (std::array{true, true, true}));
    form().frame.sstSearch.setTab(Tab::Settings);
    EXPECT_EQ(states(), (std::array{false, false, false}));
}

TEST_F(StatusMenuTest, AutoSaveIsOffDuringARunAndOnAPageOfResults)
{
    using AutoSave = StatusMenu::AutoSave;
    EXPECT_EQ(StatusMenu::autoSaveFor({true, false, false}), AutoSave::Off);
    EXPECT_EQ(StatusMenu::autoSaveFor({false, false, true}), AutoSave::Off);
    EXPECT_EQ(StatusMenu::autoSaveFor({false, true, true}), AutoSave::Off);
    EXPECT_EQ(StatusMenu::autoSaveFor({false, true, false}), AutoSave::AsItIs);
    EXPECT_EQ(StatusMenu::autoSaveFor({false, false, false}), AutoSave::On);
}

TEST_F(StatusMenuTest, TheCommandsDoWhatTheySay)
{
    form().autoRun.mastrLinks = {u"http://a.com/"_s};
    browser().show(u"http://www.shop.com/a/b.html"_s);
    browser().navigated.clear();
    open();
    item("mnuANStatusGetServer"_L1).click();
    EXPECT_EQ(browser().navigated, QStringList{u"http://www.shop.com"_s});
    item("mnuANStatusReSet"_L1).click();
    EXPECT_EQ(form().autoRun.mastrLinks, emptyList());
    item("mnuANStatusMinimize"_L1).click();
    form().menus.mnuPopUpMNStatus.item("mnuMNStatusMinimize"_L1).click();
    EXPECT_EQ(place.minimized, 2);
    item("mnuANStatusEnd"_L1).click();
    EXPECT_EQ(ends, 1);
}
