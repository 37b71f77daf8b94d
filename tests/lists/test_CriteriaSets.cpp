// Sets of criteria: their names, their texts, and what the commands answer.
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
using List = CriteriaSets::List;

class CriteriaTest : public ProgramTest
{
  protected:
    CriteriaTest()
    {
        load();
        form().outputs.chkSaveSummary.setValue(1);
        form().criteria.mustContain.on.setValue(1);
        form().criteria.mustNotContain.on.setValue(1);
    }
    CriteriaSets &sets() { return program->criteria; }
    void addSet(const QString &name)
    {
        dialogs.inputAnswers = {name};
        ASSERT_EQ(sets().AddMCMNCSet(), u"Group Added"_s);
        dialogs.inputs.clear();
    }
    void addItems(List list, const QStringList &items)
    {
        for (const QString &item : items)
            ASSERT_EQ(sets().AddMC(list, item), item + u" Added"_s);
    }
    /// The program as it comes up again on the same database.
    void restart()
    {
        program->lifeCycle.end();
        program.reset();
        load();
    }
};
} // namespace

TEST_F(CriteriaTest, ANewDatabaseHasNoSets)
{
    EXPECT_EQ(form().criteria.cboANMCMNCMask.listCount(), 0);
    EXPECT_EQ(form().criteria.mustContain.items.listCount(), 0);
}

TEST_F(CriteriaTest, ANewSetIsTheChosenOneWithTwoEmptyLists)
{
    dialogs.inputAnswers = {u"Tea"_s};
    form().criteria.cmdANMCMaskAdd.click();
    ASSERT_EQ(dialogs.inputs.size(), 1);
    EXPECT_EQ(dialogs.inputs[0].title, u"New MC - MNC Set"_s);
    EXPECT_EQ(dialogs.inputs[0].text, u"Enter New (Must Contain - Must Not Contain) Group Name"_s);
    EXPECT_EQ(dialogs.inputs[0].prompt, u"Criteria-0"_s);
    EXPECT_EQ(lastStatus(), u"Group Added"_s);
    EXPECT_EQ(form().criteria.cboANMCMNCMask.text(), u"Tea"_s);
    EXPECT_EQ(rows(u"MC"_s, u"MaskName"_s), QStringList{u"Tea"_s});
    EXPECT_EQ(rows(u"MNC"_s, u"MaskName"_s), QStringList{u"Tea"_s});
    EXPECT_TRUE(form().criteria.mustContain.add.isEnabled());
}

TEST_F(CriteriaTest, TheProposedNameIsTheNextFreeOne)
{
    addSet(u"Criteria-0"_s);
    addSet(u"Criteria-1"_s);
    static_cast<void>(sets().AddMCMNCSet());
    EXPECT_EQ(dialogs.inputs[0].prompt, u"Criteria-2"_s);
}

TEST_F(CriteriaTest, CommasAreTakenOutOfAName)
{
    addSet(u"a,b"_s);
    EXPECT_EQ(form().criteria.cboANMCMNCMask.items(), QStringList{u"ab"_s});
}

TEST_F(CriteriaTest, ANameThatExistsIsAskedForAgain)
{
    addSet(u"Tea"_s);
    dialogs.inputAnswers = {u"tea"_s, u"Tea"_s, u"Coffee"_s};
    EXPECT_EQ(sets().AddMCMNCSet(), u"Group Added"_s);
    ASSERT_EQ(dialogs.inputs.size(), 3);
    EXPECT_EQ(dialogs.inputs[1].title, u"Item Exists"_s);
    EXPECT_EQ(dialogs.inputs[1].prompt, u"tea"_s);
    EXPECT_EQ(form().criteria.cboANMCMNCMask.items(), (QStringList{u"Tea"_s, u"Coffee"_s}));
}

TEST_F(CriteriaTest, AnEmptyAnswerAddsNothing)
{
    EXPECT_EQ(sets().AddMCMNCSet(), u"Nothing Added"_s);
    addSet(u"Tea"_s);
    dialogs.inputAnswers = {u"Tea"_s, u""_s};
    EXPECT_EQ(sets().AddMCMNCSet(), u"Nothing Added"_s);
    EXPECT_EQ(rows(u"MC"_s, u"MaskName"_s).size(), 1);
}

TEST_F(CriteriaTest, AQuoteInANameIsAnErrorAndAddsNothing)
{
    dialogs.inputAnswers = {u"o'clock"_s};
    EXPECT_EQ(sets().AddMCMNCSet(), QString());
    EXPECT_TRUE(rows(u"MC"_s, u"MaskName"_s).isEmpty());
}

TEST_F(CriteriaTest, SetsAndItemsComeBackAtTheNextStart)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"green"_s, u"black"_s});
    addItems(List::MustNotContain, {u"iced"_s});
    addSet(u"Coffee"_s);
    restart();
    EXPECT_EQ(form().criteria.cboANMCMNCMask.items(), (QStringList{u"Tea"_s, u"Coffee"_s}));
    EXPECT_EQ(form().criteria.cboANMCMNCMask.text(), u"Coffee"_s); // the position was kept
    EXPECT_EQ(form().criteria.mustContain.items.listCount(), 0);
    form().criteria.cboANMCMNCMask.setListIndex(0);
    EXPECT_EQ(form().criteria.mustContain.items.items(), (QStringList{u"green"_s, u"black"_s}));
    EXPECT_EQ(form().criteria.mustNotContain.items.items(), QStringList{u"iced"_s});
}

TEST_F(CriteriaTest, RemovingASetMovesToTheOneBefore)
{
    addSet(u"One"_s);
    addItems(List::MustContain, {u"first"_s});
    addSet(u"Two"_s);
    addSet(u"Three"_s);
    form().criteria.cboANMCMNCMask.setListIndex(1);
    form().criteria.cmdANMCMaskMinus.click();
    EXPECT_EQ(lastStatus(), u"Two Removed"_s);
    EXPECT_EQ(form().criteria.cboANMCMNCMask.items(), (QStringList{u"One"_s, u"Three"_s}));
    EXPECT_EQ(form().criteria.cboANMCMNCMask.listIndex(), 0);
    EXPECT_EQ(form().criteria.mustContain.items.items(), QStringList{u"first"_s});
    EXPECT_EQ(rows(u"MC"_s, u"MaskName"_s), (QStringList{u"One"_s, u"Three"_s}));
    EXPECT_EQ(rows(u"MNC"_s, u"MaskName"_s), (QStringList{u"One"_s, u"Three"_s}));
}

TEST_F(CriteriaTest, RemovingTheFirstOfTwoSetsLeavesTheOtherWithinReach)
{
    addSet(u"One"_s);
    addSet(u"Two"_s);
    ComboBox &masks = form().criteria.cboANMCMNCMask;
    masks.setListIndex(0);
    form().criteria.cmdANMCMaskMinus.click();
    EXPECT_EQ(masks.items(), QStringList{u"Two"_s});
    EXPECT_TRUE(masks.isEnabled());
    masks.choose(0);
    EXPECT_EQ(masks.text(), u"Two"_s);
}

TEST_F(CriteriaTest, RemovingTheOnlySetLeavesNothingChosen)
{
    addSet(u"One"_s);
    addItems(List::MustContain, {u"first"_s});
    EXPECT_EQ(sets().RemoveMCMNCSet(), u"One Removed"_s);
    EXPECT_EQ(form().criteria.cboANMCMNCMask.listIndex(), -1);
    EXPECT_EQ(form().criteria.cboANMCMNCMask.listCount(), 0);
    EXPECT_EQ(form().criteria.mustContain.items.listCount(), 0);
    EXPECT_EQ(sets().RemoveMCMNCSet(), u"Nothing Selected"_s);
}

TEST_F(CriteriaTest, WithoutASetNothingCanBeAddedRemovedOrCleared)
{
    EXPECT_EQ(sets().AddMC(List::MustContain, u"x"_s), QString());
    EXPECT_EQ(sets().RemoveMC(List::MustContain, u"x"_s), QString());
    EXPECT_EQ(sets().ClearMC(List::MustContain), QString());
    EXPECT_TRUE(dialogs.inputs.isEmpty());
}

TEST_F(CriteriaTest, TheButtonAsksForAnItemAndTellsNothing)
{
    addSet(u"Tea"_s);
    dialogs.inputAnswers = {u"green"_s, u"iced"_s};
    statuses.clear();
    form().criteria.mustContain.add.click();
    form().criteria.mustNotContain.add.click();
    ASSERT_EQ(dialogs.inputs.size(), 2);
    EXPECT_EQ(dialogs.inputs[0].title, u"New Item"_s);
    EXPECT_EQ(dialogs.inputs[0].text, u"Enter new Must Contain text"_s);
    EXPECT_EQ(dialogs.inputs[1].text, u"Enter new Must Not Contain text"_s);
    EXPECT_EQ(form().criteria.mustContain.items.items(), QStringList{u"green"_s});
    EXPECT_EQ(form().criteria.mustNotContain.items.items(), QStringList{u"iced"_s});
    EXPECT_TRUE(statuses.isEmpty());
    EXPECT_EQ(sets().AddMC(List::MustContain), u"Add Canceled"_s);
}

TEST_F(CriteriaTest, AnItemIsAddedOnceWhateverItsCase)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"foo"_s});
    EXPECT_EQ(sets().AddMC(List::MustContain, u"FOO"_s), u"FOO Exists"_s);
    EXPECT_EQ(form().criteria.mustContain.items.items(), QStringList{u"foo"_s});
}

TEST_F(CriteriaTest, FortyItemsAreTheLimit)
{
    addSet(u"Tea"_s);
    for (int i = 1; i <= 40; ++i)
        ASSERT_EQ(sets().AddMC(List::MustContain, u"item %1."_s.arg(i)), u"item %1. Added"_s.arg(i));
    EXPECT_EQ(sets().AddMC(List::MustContain, u"one more"_s), u"Not Added. Max 40"_s);
    EXPECT_EQ(form().criteria.mustContain.items.listCount(), 40);
}

TEST_F(CriteriaTest, ARemovedItemLeavesAGapThatTheNextOneTakes)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s});
    EXPECT_EQ(sets().RemoveMC(List::MustContain, u"3"_s), u"3 Removed"_s);
    addItems(List::MustContain, {u"new"_s});
    EXPECT_EQ(form().criteria.mustContain.items.items(), (QStringList{u"1"_s, u"2"_s, u"4"_s, u"5"_s, u"new"_s}));
    sets().AssignMaskElements();
    EXPECT_EQ(form().criteria.mustContain.items.items(), (QStringList{u"1"_s, u"2"_s, u"new"_s, u"4"_s, u"5"_s}));
}

TEST_F(CriteriaTest, RemovesTheSelectedItem)
{
    addSet(u"Tea"_s);
    addItems(List::MustNotContain, {u"a"_s, u"b"_s});
    EXPECT_EQ(sets().RemoveMC(List::MustNotContain), u"Nothing Selected"_s);
    form().criteria.mustNotContain.items.choose(1, {false, true});
    EXPECT_EQ(sets().RemoveMC(List::MustNotContain), u"b Removed"_s);
    EXPECT_EQ(sets().RemoveMC(List::MustNotContain, u"zzz"_s), u"Not Removed. Didn't exist"_s);
    EXPECT_EQ(form().criteria.mustNotContain.items.items(), QStringList{u"a"_s});
}

TEST_F(CriteriaTest, RemovesAllThatIsSelected)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    form().criteria.mustContain.items.choose(3, {true, false, true, true});
    sets().RemoveMCMNC(List::MustContain);
    EXPECT_EQ(form().criteria.mustContain.items.items(), QStringList{u"b"_s});
    sets().AssignMaskElements();
    EXPECT_EQ(form().criteria.mustContain.items.items(), QStringList{u"b"_s});
}

TEST_F(CriteriaTest, ClearingTakesTheItemsAndKeepsTheSet)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"a"_s, u"b"_s});
    addItems(List::MustNotContain, {u"c"_s});
    EXPECT_EQ(sets().ClearMC(List::MustContain), u"Tea (MC) Cleared"_s);
    EXPECT_EQ(form().criteria.mustContain.items.listCount(), 0);
    EXPECT_EQ(form().criteria.mustNotContain.items.items(), QStringList{u"c"_s});
    sets().AssignMaskElements();
    EXPECT_EQ(form().criteria.mustContain.items.listCount(), 0);
}

TEST_F(CriteriaTest, ASetWithoutItsMncRowShowsAnEmptyListAndTakesNothing)
{
    addSaved(u"Half"_s, {}, u"MC"_s);
    program->loader.LoadDBData(false);
    form().criteria.cboANMCMNCMask.setListIndex(0);
    EXPECT_EQ(sets().AddMC(List::MustNotContain, u"x"_s), QString());
    EXPECT_EQ(sets().ClearMC(List::MustNotContain), u"No Data Exists"_s);
    EXPECT_EQ(form().criteria.mustNotContain.items.listCount(), 0);
}

// Dropped texts.

TEST_F(CriteriaTest, ADroppedLineCountsAsOneWhateverBecameOfIt)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"foo"_s});
    sets().drop(List::MustContain, u"FOO"_s);
    EXPECT_EQ(lastStatus(), u"1 Added"_s);
    EXPECT_EQ(form().criteria.mustContain.items.items(), QStringList{u"foo"_s});
}

TEST_F(CriteriaTest, DroppedLinesThatStandThereDoNotCount)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"foo"_s});
    sets().drop(List::MustContain, u"FOO\r\nbar\r\n\r\nbaz\r\n"_s);
    EXPECT_EQ(lastStatus(), u"2 Added"_s);
    EXPECT_EQ(form().criteria.mustContain.items.items(), (QStringList{u"foo"_s, u"bar"_s, u"baz"_s}));
}

TEST_F(CriteriaTest, ADroppedLineWithItsLineEndDoesNotCountWhereItStandsAlready)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"foo"_s});
    sets().drop(List::MustContain, u"FOO\r\n"_s);
    EXPECT_EQ(lastStatus(), u"0 Added"_s);
}

// How a list is applied.

TEST_F(CriteriaTest, SelectWithAnEmptyListFallsBackToAll)
{
    form().criteria.mustContain.demand.setListIndex(2);
    EXPECT_EQ(form().criteria.mustContain.demand.listIndex(), 0);
    EXPECT_EQ(lastStatus(), u"MC Not selected"_s);
    EXPECT_EQ(settings.of("optMCAllAny"), u"0"_s);
    form().criteria.mustNotContain.demand.setListIndex(2);
    EXPECT_EQ(lastStatus(), u"MNC Not selected"_s);
}

TEST_F(CriteriaTest, SelectWithNothingSelectedSelectsTheFirst)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"a"_s, u"b"_s});
    form().criteria.mustContain.demand.setListIndex(2);
    EXPECT_TRUE(form().criteria.mustContain.items.isSelected(0));
    EXPECT_FALSE(form().criteria.mustContain.items.isSelected(1));
    EXPECT_EQ(settings.of("optMCAllAny"), u"2"_s);
}

TEST_F(CriteriaTest, SelectKeepsWhatTheUserHasSelected)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"a"_s, u"b"_s});
    form().criteria.mustContain.items.setSelected(1, true);
    form().criteria.mustContain.demand.setListIndex(2);
    EXPECT_FALSE(form().criteria.mustContain.items.isSelected(0));
    EXPECT_TRUE(form().criteria.mustContain.items.isSelected(1));
}

TEST_F(CriteriaTest, SelectComesBackAsAllSinceASelectionIsNotKept)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"green"_s});
    form().criteria.mustContain.demand.setListIndex(2);
    statuses.clear();
    restart();
    EXPECT_EQ(form().criteria.cboANMCMNCMask.text(), u"Tea"_s);
    EXPECT_EQ(form().criteria.mustContain.demand.listIndex(), 0);
    EXPECT_FALSE(statuses.contains(u"MC Not selected"_s)) << "silent before the form is ready";
    browser().pages[u"http://www.site1.com/"_s].html = u"<body>a page about coffee, of some length</body>"_s;
    browser().show(u"http://www.site1.com/"_s);
    PageReading page(program->browser);
    EXPECT_FALSE(program->pageTests.IsMCGo(page));
}

TEST_F(CriteriaTest, TheListsTipIsItsOneSelectedItem)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"a"_s, u"b %1"_s});
    form().criteria.mustContain.items.setSelected(1, true);
    EXPECT_EQ(form().criteria.mustContain.items.toolTipText(), u"b %1, 2 items"_s);
    form().criteria.mustContain.items.setSelected(0, true);
    EXPECT_EQ(form().criteria.mustContain.items.toolTipText(), u"Must Contain (MC) list"_s);
}

TEST_F(CriteriaTest, AChangeBetweenTwoPagesActsFromTheNextPageOn)
{
    addSite();
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"site 1,"_s});
    form().criteria.mustNotContain.on.setValue(0);
    form().options.chkSMD(1).setValue(0);
    form().autoRun.incANTiming.setText(u"005"_s);
    form().options.chkSMA(2).setValue(0);
    showResults(makeSites(2));
    pump.after(7000, [&] {
        form().criteria.mustContain.items.choose(0, {true});
        sets().RemoveMCMNC(List::MustContain);
    });
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), (QStringList{u"http://www.site1.com/"_s, u"http://www.site2.com/"_s}));
}

TEST_F(CriteriaTest, TextsAreCutAtEntryAndOneLine)
{
    addSet(QString(300, u's'));
    EXPECT_EQ(form().criteria.cboANMCMNCMask.text().size(), 255);
    sets().AddMC(List::MustContain, QString(300, u'a'));
    const QString cut(255, u'a');
    EXPECT_EQ(form().criteria.mustContain.items.items(), QStringList{cut});
    EXPECT_EQ(sets().RemoveMC(List::MustContain, cut), cut + u" Removed"_s);
    dialogs.inputAnswers = {u"two\nlines"_s};
    EXPECT_EQ(sets().AddMC(List::MustContain), u"two lines Added"_s);
    EXPECT_EQ(sets().RemoveMCMNCSet(), QString(255, u's') + u" Removed"_s);
    EXPECT_TRUE(rows(u"MC"_s, u"MaskName"_s).isEmpty());
}

TEST_F(CriteriaTest, ADropTakesLinesOfEitherEnd)
{
    addSet(u"Tea"_s);
    sets().drop(List::MustContain, u"one\r\ntwo\nthree\n"_s);
    EXPECT_EQ(form().criteria.mustContain.items.items(), (QStringList{u"one"_s, u"two"_s, u"three"_s}));
    EXPECT_EQ(lastStatus(), u"3 Added"_s);
}

TEST_F(CriteriaTest, WhatTheTableRefusesIsNotReportedAsDone)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"green"_s});
    database().CloseConnection();
    EXPECT_EQ(sets().RemoveMC(List::MustContain, u"green"_s), QString());
    EXPECT_EQ(sets().RemoveMCMNCSet(), u"Tea Not Removed"_s);
    EXPECT_EQ(sets().ClearMC(List::MustContain), QString());
    sets().drop(List::MustContain, u"black"_s);
    EXPECT_EQ(lastStatus(), u"0 Added"_s);
    EXPECT_EQ(form().criteria.cboANMCMNCMask.text(), u"Tea"_s);
    EXPECT_EQ(form().criteria.mustContain.items.items(), QStringList{u"green"_s});
}

TEST_F(CriteriaTest, SelectGoesBackToAllWhenNothingIsSelectedAnyMore)
{
    addSet(u"Tea"_s);
    addItems(List::MustContain, {u"green"_s, u"black"_s});
    ComboBox &demand = form().criteria.mustContain.demand;
    demand.setListIndex(2);
    EXPECT_EQ(form().criteria.mustContain.items.selCount(), 1);
    sets().RemoveMCMNC(List::MustContain);
    EXPECT_EQ(demand.listIndex(), 0);
    demand.setListIndex(2);
    sets().AssignMaskElements();
    EXPECT_EQ(demand.listIndex(), 0);
    demand.setListIndex(2);
    sets().ClearMC(List::MustContain);
    EXPECT_EQ(demand.listIndex(), 0);
}
