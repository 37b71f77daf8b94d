// Collecting while the user browses by hand: what each state takes from a page, how the choices are made by menu and
// label, and what is shown of them.
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
const QString address = u"http://www.seek.com/?q=tea"_s;

class CollectTest : public RunTest
{
  protected:
    CollectTest()
    {
        form().frame.sstSearch.setTab(Tab::Manual);
        form().manual.cboFilesSites.setListIndex(1);
        FakePage &page = browser().pages[address];
        page.links = {u"http://www.a.com/"_s, u"http://www.b.com/"_s};
        page.html = u"<body> ann@tea.com bob@tea.com, or call 212-555-0100 whenever you like</body>"_s;
        browser().show(address);
        statuses.clear();
    }
    [[nodiscard]] MenuItem &item(const QString &name) { return *qobject_cast<MenuItem *>(form().control(name)); }
    void toLinks(int list) { program->collectChoice.SetAutoCollectLinks(list); }
    void toManualPages(int list) { program->collectChoice.SetAutoCollectPgUrlsMN(list); }
    void toSavedPages(int list) { program->collectChoice.SetAutoCollectPgUrlsAN(list); }
    [[nodiscard]] int state() { return program->collectChoice.state(); }
    /// A page has finished loading in the browser.
    void complete()
    {
        Q_EMIT browser().DocumentComplete(address, true);
        pump.doEvents();
    }
    [[nodiscard]] QStringList items(int list) { return form().lists.lstMN(list).items(); }

    const QStringList links{u"http://www.a.com/"_s, u"http://www.b.com/"_s};
    const QStringList emails{u"ann@tea.com"_s, u"bob@tea.com"_s};
};
} // namespace

TEST_F(CollectTest, NothingIsCollectedInStateZeroAndTheStatusStaysAsItWas)
{
    complete();
    EXPECT_TRUE(items(0).isEmpty());
    EXPECT_TRUE(statuses.isEmpty());
}

TEST_F(CollectTest, LinksGoToTheirList)
{
    toLinks(1);
    EXPECT_EQ(lastStatus(), u"Urls On Sites [(Manual)-B]"_s);
    complete();
    EXPECT_EQ(items(1), links);
    EXPECT_EQ(lastStatus(), u"2 loaded B"_s);
}

TEST_F(CollectTest, APageWithThreeFramesCollectsThreeTimesAndRepeatsDoNotMultiply)
{
    toLinks(0);
    for (int frame = 0; frame < 3; ++frame)
        complete();
    EXPECT_EQ(items(0), links);
    EXPECT_EQ(statuses.count(u"2 loaded A"_s), 3);
}

TEST_F(CollectTest, MailAddressesAndNumbersGoToTheListOfTheLinks)
{
    toLinks(2);
    program->collectChoice.SetAutoCollectState(CollectState::Kind::EmailPhone, false);
    complete();
    EXPECT_EQ(items(2), emails);
    EXPECT_EQ(lastStatus(), u"2 loaded C"_s);
    program->collectChoice.SetAutoCollectState(CollectState::Kind::EmailPhone, false);
    complete();
    EXPECT_EQ(items(2), emails + QStringList{u"2125550100"_s});
}

TEST_F(CollectTest, BlockedTextsKeepAddressesOutOfTheLists)
{
    form().blocking.email.items.addItem(u"bob@"_s);
    form().blocking.email.on.setValue(1);
    EXPECT_EQ(program->pageCollecting.CollectEmailMN(0), u"1 loaded A"_s);
    EXPECT_EQ(items(0), QStringList{u"ann@tea.com"_s});
}

TEST_F(CollectTest, APageWithoutAnyTellsNothing)
{
    browser().pages[address].html = u"<body>nothing of interest stands here</body>"_s;
    browser().show(address);
    EXPECT_EQ(program->pageCollecting.CollectEmailMN(0), QString());
    EXPECT_EQ(program->pageCollecting.CollectPhoneMN(0), QString());
}

TEST_F(CollectTest, TheAddressOfAPageStandsInItsListOnce)
{
    toManualPages(3);
    complete();
    complete();
    EXPECT_EQ(items(3), QStringList{address});
    EXPECT_EQ(lastStatus(), u"1 loaded"_s);
}

TEST_F(CollectTest, AddressAndContentGoToTheirListsTogether)
{
    toManualPages(0);
    toLinks(1);
    EXPECT_EQ(state(), 5);
    complete();
    EXPECT_EQ(items(0), QStringList{address});
    EXPECT_EQ(items(1), links);
    EXPECT_EQ(lastStatus(), u"1 loaded. 2 loaded B"_s);
}

TEST_F(CollectTest, SavedPagesGoToTheSavedUrlsOfTheirList)
{
    toSavedPages(1);
    EXPECT_EQ(state(), 8);
    complete();
    EXPECT_EQ(rows(u"RPgUrlsB"_s), QStringList{address});
}

TEST_F(CollectTest, SavedPagesOfASiteWithoutARecordSwitchThemselvesOff)
{
    toSavedPages(0);
    browser().pages[u"http://www.other.com/"_s] = {};
    browser().show(u"http://www.other.com/"_s);
    complete();
    EXPECT_EQ(state(), 0);
    EXPECT_EQ(lastStatus(), u"No data saved for site"_s);
    EXPECT_TRUE(rows(u"RPgUrlsA"_s).isEmpty());
}

TEST_F(CollectTest, WithoutATargetNothingIsCollectedAndTheStateStays)
{
    form().collect.mlngAutoCollectState = 2;
    complete();
    EXPECT_EQ(state(), 2);
    for (int list = 0; list < 5; ++list)
        EXPECT_TRUE(items(list).isEmpty());
}

TEST_F(CollectTest, AThousandPagesInARowKeepWhatTheyFound)
{
    toLinks(0);
    for (int page = 0; page < 1000; ++page) {
        browser().pages[address].links = {u"http://www.site%1.com/"_s.arg(page)};
        browser().show(address);
        complete();
    }
    EXPECT_EQ(items(0).size(), 1000);
}

// The choices.

TEST_F(CollectTest, AListIsToggledAndReplacesAnotherOneOfItsMenu)
{
    item(u"mnuMNStatusListCL(1)"_s).click();
    EXPECT_EQ(program->collectChoice.GetAutoCollectLinksChecked(), 1);
    item(u"mnuMNStatusListCL(3)"_s).click();
    EXPECT_EQ(program->collectChoice.GetAutoCollectLinksChecked(), 3);
    EXPECT_EQ(state(), 1);
    item(u"mnuMNStatusListCL(3)"_s).click();
    EXPECT_EQ(program->collectChoice.GetAutoCollectLinksChecked(), -1);
    EXPECT_EQ(state(), 0);
}

TEST_F(CollectTest, TheTwoMenusOfPagesReplaceEachOther)
{
    item(u"mnuMNStatusListCP(2)"_s).click();
    EXPECT_EQ(form().collect.lblAutoPgUrls.caption(), u"C"_s);
    EXPECT_EQ(form().collect.lblAutoPgUrls.backColor(), Colours::Blue);
    EXPECT_EQ(form().collect.lblAutoPgUrls.foreColor(), Colours::White);
    item(u"mnuANStatusACList(0)"_s).click();
    EXPECT_EQ(program->collectChoice.GetAutoCollectPgUrlsCheckedMN(), -1);
    EXPECT_EQ(program->collectChoice.GetAutoCollectPgUrlsCheckedAN(), 0);
    EXPECT_EQ(state(), 8);
    item(u"mnuANStatusACList(0)"_s).click();
    EXPECT_EQ(form().collect.lblAutoPgUrls.caption(), QString());
    EXPECT_EQ(form().collect.lblAutoPgUrls.backColor(), Colours::ButtonFace);
    EXPECT_EQ(form().collect.lblAutoPgUrls.foreColor(), Colours::WindowText);
}

TEST_F(CollectTest, GoOnTheAutoTabEndsCollectingIntoTheSavedUrls)
{
    toSavedPages(1);
    form().frame.sstSearch.setTab(Tab::Auto);
    showResults({});
    clickStart();
    EXPECT_EQ(state(), 0);
    EXPECT_FALSE(item(u"mnuANStatusACList(1)"_s).isEnabled());
}

TEST_F(CollectTest, OnTheManualTabTheLabelOfTheLinksTogglesAndWalksThroughTheLists)
{
    Label &label = form().collect.lblAutoCollect;
    label.mouseDown(MouseButton::Left);
    EXPECT_EQ(program->collectChoice.GetAutoCollectLinksChecked(), form().lists.cboMNList.listIndex());
    label.mouseDown(MouseButton::Left);
    EXPECT_EQ(program->collectChoice.GetAutoCollectLinksChecked(), -1);
    for (const int list : {0, 1, 2, 3, 4, 0}) {
        label.mouseDown(MouseButton::Right);
        EXPECT_EQ(program->collectChoice.GetAutoCollectLinksChecked(), list);
    }
    form().manual.cboFilesSites.setListIndex(0);
    label.mouseDown(MouseButton::Left);
    EXPECT_EQ(lastStatus(), u"No Auto for type File"_s);
    EXPECT_EQ(program->collectChoice.GetAutoCollectLinksChecked(), -1);
}

TEST_F(CollectTest, TheLabelOfThePagesFollowsItsTab)
{
    Label &label = form().collect.lblAutoPgUrls;
    label.mouseDown(MouseButton::Left);
    EXPECT_EQ(program->collectChoice.GetAutoCollectPgUrlsCheckedMN(), 0);
    form().frame.sstSearch.setTab(Tab::Auto);
    label.mouseDown(MouseButton::Right);
    EXPECT_EQ(program->collectChoice.GetAutoCollectPgUrlsCheckedMN(), -1);
    EXPECT_EQ(program->collectChoice.GetAutoCollectPgUrlsCheckedAN(), 0);
    form().frame.sstSearch.setTab(Tab::Settings);
    label.mouseDown(MouseButton::Left);
    EXPECT_EQ(state(), 0);
}

TEST_F(CollectTest, TheRightButtonOnThePositionStepsThroughMailAddressesAndNumbers)
{
    toLinks(0);
    form().collect.lblAutoIncrPos.mouseDown(MouseButton::Right);
    EXPECT_EQ(state(), 2);
    EXPECT_TRUE(item(u"mnuMNUseAutoBase"_s).isChecked());
    item(u"mnuMNUseAutoBase"_s).click();
    EXPECT_EQ(state(), 1) << "without the base only links are collected";
}

TEST_F(CollectTest, APlainListNameDoesNotRefuseGo)
{
    toLinks(form().lists.cboMNList.listIndex());
    EXPECT_FALSE(form().collect.mbNavListCollecting);
}
