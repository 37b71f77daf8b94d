// The labels and menus through which the user chooses what is collected while browsing by hand.
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
class CollectCommandsTest : public RunTest
{
  protected:
    CollectCommandsTest()
    {
        form().frame.sstSearch.setTab(Tab::Manual);
        form().manual.cboFilesSites.setListIndex(1);
        browser().show(u"http://www.seek.com/?q=tea"_s); // a page whose address may be saved
        statuses.clear();
    }
    [[nodiscard]] MenuItem &item(const QString &name) { return *qobject_cast<MenuItem *>(form().control(name)); }
    [[nodiscard]] int state() { return program->collectChoice.state(); }
};
} // namespace

TEST_F(CollectCommandsTest, AListIsToggledAndReplacesAnotherOneOfItsMenu)
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

TEST_F(CollectCommandsTest, TheTwoMenusOfPagesReplaceEachOther)
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

TEST_F(CollectCommandsTest, GoOnTheAutoTabEndsCollectingIntoTheSavedUrls)
{
    program->collectChoice.SetAutoCollectPgUrlsAN(1);
    form().frame.sstSearch.setTab(Tab::Auto);
    showResults({});
    clickStart();
    EXPECT_EQ(state(), 0);
    EXPECT_FALSE(item(u"mnuANStatusACList(1)"_s).isEnabled());
}

TEST_F(CollectCommandsTest, OnTheManualTabTheLabelOfTheLinksTogglesAndWalksThroughTheLists)
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

TEST_F(CollectCommandsTest, TheLabelOfThePagesFollowsItsTab)
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

TEST_F(CollectCommandsTest, TheRightButtonOnThePositionStepsThroughMailAddressesAndNumbers)
{
    program->collectChoice.SetAutoCollectLinks(0);
    form().collect.lblAutoIncrPos.mouseDown(MouseButton::Right);
    EXPECT_EQ(state(), 2);
    EXPECT_TRUE(item(u"mnuMNUseAutoBase"_s).isChecked());
    item(u"mnuMNUseAutoBase"_s).click();
    EXPECT_EQ(state(), 1) << "without the base only links are collected";
}

TEST_F(CollectCommandsTest, TheRightButtonOnThePositionOfASeriesStepsThroughNothing)
{
    program->collectChoice.SetAutoCollectLinks(0);
    form().series.cboMNAutoUrl.setText(u"www.a.com/1/2/3/4/5/6/7/8/9/10"_s); // one number more than there are positions
    item(u"mnuMNStatusAutoIncrPos(3)"_s).click();
    ASSERT_TRUE(item(u"mnuMNStatusAutoIncrPos(3)"_s).isChecked());
    form().collect.lblAutoIncrPos.setCaption(u"0"_s);
    form().collect.lblAutoIncrPos.mouseDown(MouseButton::Right);
    EXPECT_EQ(state(), 1);
}

TEST_F(CollectCommandsTest, TheLabelShowsAtOnceThatAServerIsBlocked)
{
    Label &label = form().collect.lblAutoCollect;
    form().frame.sstSearch.setTab(Tab::Auto);
    label.mouseDown(MouseButton::Left);
    ASSERT_EQ(form().blocking.mastrQB, QStringList{u"seek"_s});
    EXPECT_EQ(label.backColor(), Colours::Yellow);
    label.mouseDown(MouseButton::Right);
    EXPECT_EQ(label.backColor(), Colours::ButtonFace);
}
