// The main window on top or not, files or sites, and the colours of the Manual tab.
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
class WindowCommandsTest : public ProgramTest
{
  protected:
    MenuItem &item(QLatin1StringView name) { return *qobject_cast<MenuItem *>(form().control(name)); }
};
} // namespace

TEST_F(WindowCommandsTest, TheWindowCanBeTakenOffTheTopAndStaysDownAtTheNextStart)
{
    load();
    program->startUp.settle();
    EXPECT_EQ(place.onTopCalls, QList<bool>{true});
    EXPECT_TRUE(item("mnuANStatusKeepOnTop"_L1).isChecked());
    item("mnuANStatusKeepOnTop"_L1).click();
    EXPECT_EQ(place.onTopCalls, (QList<bool>{true, false}));
    EXPECT_FALSE(item("mnuANStatusKeepOnTop"_L1).isChecked());
    EXPECT_EQ(settings.of("mnuANStatusKeepOnTop"), u"False"_s);
    EXPECT_EQ(settings.values.value(u"Window Position/frmSearch"_s), u"0"_s);
    program->lifeCycle.end();
    program.reset();
    place.onTopCalls.clear();
    load();
    program->startUp.settle();
    EXPECT_TRUE(place.onTopCalls.isEmpty());
    EXPECT_FALSE(item("mnuANStatusKeepOnTop"_L1).isChecked());
}

TEST_F(WindowCommandsTest, BothStatusMenusMakeTheWindowSmallerAndEndTheProgram)
{
    load();
    form().options.chkSMA(SMA::PromptBeforeEnd).setValue(0);
    item("mnuANStatusMinimize"_L1).click();
    item("mnuMNStatusMinimize"_L1).click();
    EXPECT_EQ(place.minimized, 2);
    item("mnuANStatusAbout"_L1).click();
    item("mnuMNStatusAbout"_L1).click();
    item("mnuMNStatusHelp"_L1).click();
    EXPECT_EQ(side.shown, (QStringList{u"about"_s, u"about"_s, u"help"_s}));
    item("mnuMNStatusEnd"_L1).click();
    EXPECT_EQ(ends, 1);
}

TEST_F(WindowCommandsTest, SwitchingToFilesAndBackBringsBothCollectingListsBack)
{
    load();
    item("mnuMNStatusListCL(2)"_L1).click();
    item("mnuMNStatusListCP(4)"_L1).click();
    form().manual.cboFilesSites.setListIndex(0);
    EXPECT_FALSE(item("mnuMNStatusListCL(2)"_L1).isChecked());
    EXPECT_FALSE(item("mnuMNStatusListCP(4)"_L1).isChecked());
    EXPECT_EQ(settings.of("nLinkList"), u"2"_s);
    EXPECT_EQ(settings.of("nPageList"), u"4"_s);
    EXPECT_EQ(settings.of("optFilesSites"), u"0"_s);
    form().manual.cboFilesSites.setListIndex(1);
    EXPECT_TRUE(item("mnuMNStatusListCL(2)"_L1).isChecked());
    EXPECT_TRUE(item("mnuMNStatusListCP(4)"_L1).isChecked());
    EXPECT_EQ(settings.of("optFilesSites"), u"1"_s);
}

TEST_F(WindowCommandsTest, WithNothingCollectingNothingComesBack)
{
    load();
    form().manual.cboFilesSites.setListIndex(0);
    EXPECT_EQ(settings.of("nLinkList"), u"-1"_s);
    form().manual.cboFilesSites.setListIndex(1);
    for (int list = 0; list < 5; ++list)
        EXPECT_FALSE(form().menus.mnuPopUpMNStatus.item("mnuMNStatusListCL"_L1, list).isChecked());
}

TEST_F(WindowCommandsTest, EachManualListHasItsColour)
{
    load();
    const Colour colours[] = {rgb(255, 255, 255), rgb(158, 255, 159), rgb(185, 228, 255), rgb(255, 184, 186),
                              rgb(255, 255, 0)};
    for (int list = 0; list < 5; ++list)
        EXPECT_EQ(form().lists.lstMN(list).backColor(), colours[list]) << list;
}

TEST_F(WindowCommandsTest, AListThatASeriesStandsForIsNotToBeUsedByHand)
{
    load();
    form().lists.cboMNList.setListIndex(1);
    item("mnuMNStatusAutoIncrPos(3)"_L1).setChecked(true);
    program->manualColours.SetMNColors();
    EXPECT_EQ(form().lists.lstMN(1).backColor(), Colours::ButtonFace);
    EXPECT_EQ(form().lists.lstMN(2).backColor(), rgb(185, 228, 255));
    EXPECT_EQ(form().collect.lblAutoIncrPos.caption(), u"3"_s);
    EXPECT_EQ(form().collect.lblAutoIncrPos.backColor(), Colours::Blue);
    EXPECT_EQ(form().collect.lblAutoIncrPos.foreColor(), Colours::White);
    EXPECT_EQ(form().series.cboMNAutoUrl.foreColor(), Colours::Blue);
    item("mnuMNStatusAutoIncrPos(3)"_L1).setChecked(false);
    program->manualColours.SetMNColors();
    EXPECT_EQ(form().lists.lstMN(1).backColor(), rgb(158, 255, 159));
    EXPECT_EQ(form().series.cboMNAutoUrl.foreColor(), Colours::WindowText);
    EXPECT_EQ(form().collect.lblAutoIncrPos.backColor(), Colours::ButtonFace);
}

TEST_F(WindowCommandsTest, TheCollectingLabelTellsItsListAndWhatIsBlocked)
{
    load();
    const Label &label = form().collect.lblAutoCollect;
    const auto colours = [&] { return std::pair(label.backColor(), label.foreColor()); };
    EXPECT_EQ(colours(), std::pair(Colours::ButtonFace, Colours::WindowText));
    form().blocking.mastrQB = {u"ads.com"_s};
    program->manualColours.SetMNColors();
    EXPECT_EQ(colours(), std::pair(Colours::Yellow, Colours::Black));
    item("mnuMNStatusListCL(3)"_L1).click();
    program->manualColours.SetMNColors();
    EXPECT_EQ(label.caption(), u"D"_s);
    EXPECT_EQ(colours(), std::pair(Colours::Black, Colours::White));
    form().blocking.mastrQB = emptyList();
    program->manualColours.SetMNColors();
    EXPECT_EQ(colours(), std::pair(Colours::Blue, Colours::White));
}

TEST_F(WindowCommandsTest, ThePositionsLabelTellsWhatIsCollectedOnSites)
{
    load();
    const Label &label = form().collect.lblAutoIncrPos;
    for (const auto &[state, back] : {std::pair(2, Colours::Yellow),
                                      {6, Colours::Yellow},
                                      {10, Colours::Yellow},
                                      {3, rgb(0, 255, 255)},
                                      {7, rgb(0, 255, 255)},
                                      {11, rgb(0, 255, 255)},
                                      {1, Colours::ButtonFace}}) {
        form().collect.mlngAutoCollectState = state;
        program->manualColours.SetMNColors();
        EXPECT_EQ(label.backColor(), back) << state;
        if (back != Colours::ButtonFace) {
            EXPECT_EQ(form().collect.lblAutoCollect.foreColor(), back) << state;
        }
    }
}
