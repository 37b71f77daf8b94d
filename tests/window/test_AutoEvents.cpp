// What the Auto tab, the status bar and the tabs answer to the user.
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
class AutoTabTest : public ProgramTest
{
  protected:
    AutoTabTest()
    {
        load();
        statuses.clear();
    }
    void tabs(int search, int settingsTab = 0, int files = 0, int misc = 0)
    {
        form().frame.sstFiles.setTab(files);
        form().frame.sstMiscOptions.setTab(misc);
        form().frame.sstSettings.setTab(settingsTab);
        form().frame.sstSearch.setTab(search);
        statuses.clear();
    }
};

struct TabCase
{
    int search, settings, files, misc;
    const char *tip;
    const char *doubleClick; ///< the status after it, with a browser on no page
};

class Tabs : public AutoTabTest, public testing::WithParamInterface<TabCase>
{
};
} // namespace

TEST_P(Tabs, HaveTheirTipAndTheirDoubleClick)
{
    const TabCase &row = GetParam();
    tabs(row.search, row.settings, row.files, row.misc);
    const QString before = form().frame.picStatus.printed();
    form().frame.picStatus.mouseMove();
    EXPECT_EQ(form().frame.picStatus.toolTipText(),
              u"Double Click "_s + QString::fromLatin1(row.tip) + u" Right click for menu"_s);
    EXPECT_EQ(form().frame.picStatus.printed(), before);
    form().frame.picStatus.doubleClick();
    EXPECT_EQ(lastStatus(), QString::fromLatin1(row.doubleClick));
    form().browser.mbInitialized = false;
    form().frame.picStatus.doubleClick();
    EXPECT_EQ(lastStatus(), u"Not initialized"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Window, Tabs,
    testing::Values(TabCase{0, 0, 0, 0, "Add select Url [ANSelectUrls]", "Browser is not on a site"},
                    TabCase{1, 0, 0, 0, "Add select Url [MNSelectUrls]", "Browser is not on a site"},
                    TabCase{2, 0, 0, 0, "Settings/Blocking Not assigned", "Blocking double click, unassigned"},
                    TabCase{2, 1, 0, 0, "Settings/Files/Files Not assigned", "Directory double click, unassigned"},
                    TabCase{2, 1, 1, 0, "Settings/Files/Import Not assigned", "Import double click, unassigned"},
                    TabCase{2, 2, 0, 0, "Settings/Misc/A-M Not assigned", "A-M double click, unassigned"},
                    TabCase{2, 2, 0, 1, "Settings/Misc/Data Not assigned", "Save double click, unassigned"},
                    TabCase{2, 2, 0, 2, "Settings/Misc/View Not assigned", "View double click, unassigned"},
                    TabCase{2, 2, 0, 3, "Clear fields and add title and Url from web browser", ""},
                    TabCase{3, 0, 0, 0, "Data Not assigned", "DB double click, unassigned"}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_F(AutoTabTest, ChangingTheTabTellsWhereTheUserIs)
{
    form().frame.sstSearch.setTab(1);
    EXPECT_EQ(lastStatus(), u"Manual"_s);
    form().frame.sstSearch.setTab(2);
    EXPECT_EQ(lastStatus(), u"Settings - Blocking"_s);
    form().frame.sstSettings.setTab(1);
    EXPECT_EQ(lastStatus(), u"Settings - Files - Directory"_s);
    form().frame.sstFiles.setTab(1);
    EXPECT_EQ(lastStatus(), u"Settings - Files - Import"_s);
    form().frame.sstSettings.setTab(2);
    EXPECT_EQ(lastStatus(), u"Settings - Misc - A-M"_s);
    form().frame.sstMiscOptions.setTab(2);
    EXPECT_EQ(lastStatus(), u"Settings - Misc - View"_s);
    form().frame.sstSettings.setTab(0);
    EXPECT_EQ(lastStatus(), u"Settings - Blocking"_s);
    form().frame.sstSettings.setTab(2);
    form().frame.sstSearch.setTab(3);
    EXPECT_EQ(lastStatus(), u"Data"_s);
    form().frame.sstSearch.setTab(2);
    EXPECT_EQ(lastStatus(), u"Settings - Misc"_s);
}

TEST_F(AutoTabTest, TheTimersTipFollowsTheTab)
{
    const auto tip = [this](int tab) {
        form().frame.sstSearch.setTab(tab);
        form().browser.lblTrawlexTimer.mouseMove();
        return form().browser.lblTrawlexTimer.toolTipText();
    };
    EXPECT_EQ(tip(0), u"Left click cancels timer. Right click to magnify Saved Url"_s);
    EXPECT_EQ(tip(1), u"(Left click) - cancel timer. Right click to open file save directory"_s);
    form().options.chkSMA(8).setValue(0);
    EXPECT_EQ(tip(1), u"(Left click) - cancel timer. Right click to magnify active item"_s);
    EXPECT_EQ(tip(3), u"Trawlex Timer (Sec). Left click cancels timer"_s);
    form().options.chkSMV(0).setValue(0);
    EXPECT_EQ(tip(0), QString());
}

TEST_F(AutoTabTest, WithoutABrowserTheTimerDoesNotAnswer)
{
    form().browser.lblTrawlexTimer.setCaption(u"7"_s);
    form().browser.mbInitialized = false;
    form().browser.lblTrawlexTimer.mouseDown(MouseButton::Left);
    EXPECT_EQ(form().browser.lblTrawlexTimer.caption(), u"7"_s);
    form().browser.mbInitialized = true;
    form().browser.lblTrawlexTimer.mouseDown(MouseButton::Left);
    EXPECT_EQ(form().browser.lblTrawlexTimer.caption(), u"0"_s);
}

TEST_F(AutoTabTest, TheTimersRightButtonShowsTheSavedUrlLarge)
{
    const auto press = [this] { form().browser.lblTrawlexTimer.mouseDown(MouseButton::Right); };
    form().browser.lblTrawlexTimer.setCaption(u"7"_s);
    press();
    EXPECT_TRUE(side.magnified.isEmpty());
    addSaved(u"Results-100"_s, u"http://www.seek.com/1"_s);
    addSaved(u"Results-101"_s, QString());
    program->savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
    for (const int row : {0, 1}) {
        form().saved.cboANSavedUrls.setListIndex(row);
        press();
    }
    EXPECT_EQ(side.magnified, QStringList{u"http://www.seek.com/1"_s});
    EXPECT_EQ(form().browser.lblTrawlexTimer.caption(), u"7"_s);
    form().browser.mbInitialized = false;
    form().saved.cboANSavedUrls.setListIndex(0);
    press();
    EXPECT_EQ(side.magnified.size(), 1);
}

TEST_F(AutoTabTest, OnTheManualTabTheTimersRightButtonShowsTheFolderOrTheActiveItem)
{
    const auto press = [this] { form().browser.lblTrawlexTimer.mouseDown(MouseButton::Right); };
    tabs(Tab::Manual);
    form().options.chkSMA(SMA::OpenDirOnTimer).setValue(1);
    press();
    EXPECT_EQ(desktop.opened, QStringList{form().places.txtSFMNDir.text()});
    form().options.chkSMA(SMA::OpenDirOnTimer).setValue(0);
    press();
    EXPECT_TRUE(side.magnified.isEmpty());
    form().lists.lstMN(0).addItem(u"http://www.a.com/"_s);
    press();
    form().series.cboMNAutoUrl.setText(u"http://www.b.com/1"_s);
    form().menus.mnuPopUpMNStatus.item("mnuMNStatusAutoIncrPos"_L1, 1).setChecked(true);
    press();
    EXPECT_EQ(side.magnified, (QStringList{u"http://www.a.com/"_s, form().series.cboMNAutoUrl.text()}));
    tabs(3);
    press();
    EXPECT_EQ(side.magnified.size() + desktop.opened.size(), 3);
}

TEST_F(AutoTabTest, QuickBlockTakesTheServerOfThePageOnShow)
{
    browser().show(u"http://www.ads.com/banner"_s);
    form().collect.lblAutoCollect.mouseDown(MouseButton::Left);
    ASSERT_EQ(form().blocking.mastrQB.size(), 1);
    const QString server = form().blocking.mastrQB[0];
    EXPECT_EQ(lastStatus(), u"QB added "_s + server);
    EXPECT_TRUE(u"http://www.ads.com/banner"_s.contains(server));
    EXPECT_FALSE(server.contains(u"www"_s));
    form().collect.lblAutoCollect.mouseDown(MouseButton::Left);
    EXPECT_EQ(lastStatus(), u"Exists "_s + server);
    browser().show(u"http://www.more.com/"_s);
    form().collect.lblAutoCollect.mouseDown(MouseButton::Left);
    EXPECT_EQ(form().blocking.mastrQB.size(), 2);
    browser().show(u"about:blank"_s);
    form().collect.lblAutoCollect.mouseDown(MouseButton::Left);
    EXPECT_EQ(lastStatus(), u"Nothing to add"_s);
    form().collect.lblAutoCollect.mouseMove();
    EXPECT_EQ(form().collect.lblAutoCollect.toolTipText(),
              u"Left click Add Quick Block. Right click Clear Quick Block. 2 blocked"_s);
    form().collect.lblAutoCollect.mouseDown(MouseButton::Right);
    EXPECT_EQ(form().blocking.mastrQB, emptyList());
    EXPECT_EQ(lastStatus(), u"Quick Block Cleared"_s);
}

TEST_F(AutoTabTest, QuickBlockIsOfTheAutoTabAlone)
{
    browser().show(u"http://www.ads.com/"_s);
    form().frame.sstSearch.setTab(1);
    form().collect.lblAutoCollect.mouseDown(MouseButton::Left);
    EXPECT_EQ(form().blocking.mastrQB, emptyList());
}

TEST_F(AutoTabTest, ThePagesLabelOpensTheFolderOfFilesUnlessPagesGoIntoTheTable)
{
    form().outputs.chkSaveToFile.setValue(1);
    form().outputs.lblPageSaved.mouseDown(MouseButton::Left);
    EXPECT_TRUE(desktop.opened.isEmpty());
    form().outputs.chkSaveToSS.setValue(0);
    form().outputs.lblPageSaved.mouseDown(MouseButton::Right);
    EXPECT_TRUE(desktop.opened.isEmpty());
    form().outputs.lblPageSaved.mouseDown(MouseButton::Left);
    EXPECT_EQ(desktop.opened, QStringList{form().places.txtSFMNDir.text()});
}

// Runs that end each wait once the page is there.

namespace {
class UntilLoadedTest : public RunTest
{
  protected:
    UntilLoaded untilLoaded{program->timer, program->browser};
};
} // namespace

TEST_F(UntilLoadedTest, AWaitIsOverAsSoonAsThePageHasLoaded)
{
    form().outputs.chkSaveSummary.setValue(1);
    form().options.chkSMD(1).setValue(0);
    const QStringList links = makeSites(3);
    for (int i = 0; i < 3; ++i)
        browser().pages[links[i]].loadTime = 700 * (i + 1);
    showResults(links);
    const qint64 start = pump.tickCount();
    clickStart();
    EXPECT_EQ(pump.tickCount() - start, 700 + 1400 + 2100);
    EXPECT_EQ(rows(u"SiteSummary"_s), links);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(UntilLoadedTest, APageThatDoesNotComeIsWaitedForNoLongerThanTheTime)
{
    const QStringList links = makeSites(1);
    browser().pages[links[0]].loadTime = 60'000;
    showResults(links);
    const qint64 start = pump.tickCount();
    clickStart();
    EXPECT_EQ(pump.tickCount() - start, 5000);
}
