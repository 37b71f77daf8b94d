// The Manual run over a list and over a series of sites, with and without Auto Navigate: order, pace, statuses, stops,
// and where Go resumes.
#include "ManualRunFixture.h"
#include "store/Transaction.h"

// Sites of a list.

TEST_F(ManualRunTest, AListOfSitesIsVisitedInOrderAtThePaceOfTheCountdown)
{
    fill(makeSites(3));
    form.outputs.chkSaveSummary.setValue(1);
    const qint64 start = pump.seconds();
    statuses.clear();
    clickGo();
    EXPECT_EQ(window().navigated, site({1, 2, 3}));
    EXPECT_EQ(pump.seconds() - start, 15);
    EXPECT_EQ(statuses, (QStringList{u"1/3 http://www.site1.com/"_s, u"2/3 http://www.site2.com/"_s,
                                     u"3/3 http://www.site3.com/"_s, u"Stopped (FINISHED)"_s}));
    EXPECT_EQ(rows(u"SiteSummary"_s), site({1, 2, 3}));
    EXPECT_EQ(form.manual.cmdMNStart.caption(), u"Go"_s);
    EXPECT_FALSE(form.runs.mbMNRunning);
}

TEST_F(ManualRunTest, WithNothingChosenTheWalkBeginsAtTheFirstItemOnce)
{
    fill(makeSites(2));
    ASSERT_EQ(list().listIndex(), -1);
    clickGo();
    EXPECT_EQ(window().navigated, site({1, 2}));
}

TEST_F(ManualRunTest, TheWalkBeginsAtTheChosenItemAndShowsTheOneInTurn)
{
    fill(makeSites(3));
    list().setListIndex(1);
    std::vector<bool> during;
    pump.after(second, [&] { during = list().selection(); });
    QStringList told;
    QObject::connect(&runs, &Runs::walking, &form, [&](const QString &anew) { told.append(anew); });
    QObject::connect(&runs, &Runs::progress, &form,
                     [&](int number, int count) { told.append(u"%1/%2"_s.arg(number).arg(count)); });
    clickGo();
    EXPECT_EQ(window().navigated, site({2, 3}));
    EXPECT_EQ(told, (QStringList{u"the first item starts anew"_s, u"2/3"_s, u"3/3"_s}));
    EXPECT_EQ(during, (std::vector<bool>{false, true, false}));
    EXPECT_EQ(list().listIndex(), 2);
}

TEST_F(ManualRunTest, XStopsInAWaitAndGoOpensTheSameItemAgain)
{
    fill(makeSites(3));
    pump.after(7 * second, [&] { clickX(); });
    clickGo();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(list().listIndex(), 1);
    window().navigated.clear();
    clickGo();
    EXPECT_EQ(window().navigated, site({2, 3}));
}

TEST_F(ManualRunTest, AfterAStopOnAMatchTheWalkResumesBehindIt)
{
    form.outputs.chkMCMNCStop.setValue(1);
    wantOnly(u"site 2,"_s);
    fill(makeSites(4));
    clickGo();
    EXPECT_EQ(lastStatus(), u"Stopped (MCMNC)"_s);
    EXPECT_EQ(form.browser.picANEnd.backColor(), Colours::Blue);
    window().navigated.clear();
    clickGo();
    EXPECT_EQ(window().navigated, site({3, 4}));
}

TEST_F(ManualRunTest, AnEmptyListHasOneTurnWithNothingInIt)
{
    manualRun.StartProcessMN();
    EXPECT_TRUE(window().navigated.isEmpty());
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(ManualRunTest, WhatIsNoLinkIsPassedOver)
{
    fill({u"nonsense"_s, u"http://www.site1.com/"_s});
    clickGo();
    EXPECT_EQ(window().navigated, site({1}));
    EXPECT_TRUE(statuses.contains(u"Invalid url nonsense"_s));
}

TEST_F(ManualRunTest, ReturnsToThePageItBeganOnWhenItHasFinished)
{
    form.options.chkSMA(SMA::ReturnToStart).setValue(1);
    fill(makeSites(1));
    clickGo();
    EXPECT_EQ(window().navigated, (QStringList{u"http://www.site1.com/"_s, u"http://www.start.com/"_s}));
}

TEST_F(ManualRunTest, AnErrorPageGivesWayToItsServer)
{
    form.limits.incNotFoundMinSize.setText(u"000900"_s);
    fill({u"http://www.site1.com/gone.html"_s});
    window().pages[u"http://www.site1.com/gone.html"_s].html = u"<p>not found</p>"_s;
    clickGo();
    EXPECT_EQ(window().navigated, (QStringList{u"http://www.site1.com/gone.html"_s, u"http://www.site1.com"_s}));
}

TEST_F(ManualRunTest, APageThatCannotBeStoredKeepsTheWalkOnItsItem)
{
    form.outputs.chkSaveSummary.setValue(1);
    fill(makeSites(3));
    cAdoMdb other(log);
    ASSERT_TRUE(other.LoadDatabase(database->DatabasePath()));
    auto lock = std::make_unique<Transaction>(other);
    clickGo();
    EXPECT_EQ(lastStatus(), u"Stopped (ERROR, DATABASE IS LOCKED)"_s);
    EXPECT_EQ(list().listIndex(), 0);
    lock.reset();
    clickGo();
    EXPECT_EQ(rows(u"SiteSummary"_s), site({1, 2, 3}));
}

TEST_F(ManualRunTest, GoIsRefusedWhileTheListOnShowIsCollectedInto)
{
    fill(makeSites(1));
    form.collect.mbNavListCollecting = true;
    clickGo();
    EXPECT_EQ(statuses, QStringList{u"Can't Collect in Navigate List"_s});
    EXPECT_EQ(form.manual.cmdMNStart.caption(), u"Go"_s);
}

TEST_F(ManualRunTest, TheBaseTakesTheItemInEveryPlaceThatIsMarked)
{
    form.series.cboMNAutoUrl.setText(u"www.~ins~.com/~ins~.html"_s);
    item(u"mnuMNUseAutoBase"_s).setChecked(true);
    fill({u"tea"_s, u"milk"_s});
    clickGo();
    EXPECT_EQ(window().navigated, (QStringList{u"http://www.tea.com/tea.html"_s, u"http://www.milk.com/milk.html"_s}));
}

TEST_F(ManualRunTest, AnEmptyBaseGivesTheItemAlone)
{
    item(u"mnuMNUseAutoBase"_s).setChecked(true);
    fill({u"http://www.site1.com/"_s});
    clickGo();
    EXPECT_EQ(window().navigated, site({1}));
}

// A series.

TEST_F(ManualRunTest, ASeriesOfOneDigitEndsAtNine)
{
    setSeries(u"www.pics.com/page1.html"_s);
    clickGo();
    ASSERT_EQ(window().navigated.size(), 9);
    EXPECT_EQ(window().navigated.constFirst(), u"http://www.pics.com/page1.html"_s);
    EXPECT_EQ(window().navigated.constLast(), u"http://www.pics.com/page9.html"_s);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
    EXPECT_EQ(form.series.cboMNAutoUrl.text(), u"www.pics.com/page9.html"_s);
    EXPECT_EQ(form.series.incMNAutoUrl.value(), 9);
}

TEST_F(ManualRunTest, ASeriesKeepsItsZerosAndResumesWhereItStood)
{
    setSeries(u"www.pics.com/a2/page008.html"_s, 2);
    pump.after(17 * second, [&] { clickX(); });
    clickGo();
    EXPECT_EQ(window().navigated,
              (QStringList{u"http://www.pics.com/a2/page008.html"_s, u"http://www.pics.com/a2/page009.html"_s,
                           u"http://www.pics.com/a2/page010.html"_s, u"http://www.pics.com/a2/page011.html"_s}));
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(form.series.cboMNAutoUrl.text(), u"www.pics.com/a2/page011.html"_s);
    window().navigated.clear();
    pump.after(2 * second, [&] { clickX(); });
    clickGo();
    EXPECT_EQ(window().navigated, QStringList{u"http://www.pics.com/a2/page011.html"_s});
}

TEST_F(ManualRunTest, TheStepOfASeriesIsTheBoxs)
{
    form.series.incMNStep.setText(u"003"_s);
    setSeries(u"www.pics.com/page1.html"_s);
    pump.after(12 * second, [&] { clickX(); });
    clickGo();
    EXPECT_EQ(window().navigated, (QStringList{u"http://www.pics.com/page1.html"_s, u"http://www.pics.com/page4.html"_s,
                                               u"http://www.pics.com/page7.html"_s}));
}

TEST_F(ManualRunTest, AStoppedSeriesIsKeptWhereThatIsWanted)
{
    form.options.chkSMD(SMD::SaveAutoTextOnStop).setValue(1);
    setSeries(u"www.pics.com/page1.html"_s);
    pump.after(7 * second, [&] { clickX(); });
    clickGo();
    EXPECT_EQ(rows(u"AutoTextA"_s), QStringList{u"www.pics.com/page2.html"_s});
}

// Auto Navigate.

TEST_F(ManualRunTest, AutoNavigateWalksTheLinksOfEachPageOfTheSeries)
{
    form.outputs.chkSaveSummary.setValue(1);
    const QStringList sites = makeSites(4);
    window().pages[u"http://www.pics.com/list8"_s].links = {sites[0], sites[1]};
    window().pages[u"http://www.pics.com/list9"_s].links = {sites[2]};
    setSeries(u"www.pics.com/list8"_s);
    item(u"mnuMNStatusAutoNavigate"_s).setChecked(true);
    pump.after(22 * second, [&] { clickX(); });
    const qint64 start = pump.seconds();
    clickGo();
    EXPECT_EQ(window().navigated.mid(0, 5), (QStringList{u"http://www.pics.com/list8"_s, sites[0], sites[1],
                                                         u"http://www.pics.com/list9"_s, sites[2]}));
    EXPECT_EQ(pump.seconds() - start, 22) << "2 of pause and 5 a link";
    EXPECT_EQ(statuses.value(0), u"8/16 | 0/1"_s);
    EXPECT_EQ(statuses.value(1), u"8/16 | 1/1"_s);
    EXPECT_EQ(rows(u"SiteSummary"_s), (QStringList{sites[0], sites[1], sites[2]}));
}

TEST_F(ManualRunTest, AutoNavigateResumesOnTheLinkWhereItStood)
{
    const QStringList sites = makeSites(3);
    window().pages[u"http://www.pics.com/list8"_s].links = sites;
    setSeries(u"www.pics.com/list8"_s);
    item(u"mnuMNStatusAutoNavigate"_s).setChecked(true);
    pump.after(8 * second, [&] { clickX(); }); // 2 of pause, 5 of the first link
    clickGo();
    EXPECT_EQ(form.manual.mlngMNLinkIndex, 1);
    window().navigated.clear();
    pump.after(8 * second, [&] { clickX(); });
    clickGo();
    EXPECT_EQ(window().navigated, (QStringList{u"http://www.pics.com/list8"_s, sites[1], sites[2]}));
}

TEST_F(ManualRunTest, WithFilesAutoNavigateIsSwitchedOffWithAMessageAndTheRunGoesOn)
{
    form.manual.cboFilesSites.setListIndex(File);
    setSeries(u"www.pics.com/nofile8"_s);
    QObject::connect(&runs, &Runs::progress, &form, [this](int number, int) {
        if (number == 1)
            item(u"mnuMNStatusAutoNavigate"_s).setChecked(true); // the tab does not offer it for files
    });
    const qint64 start = pump.seconds();
    clickGo();
    EXPECT_EQ(statuses, (QStringList{u"Type = File. No Full Auto"_s, u"Stopped (FINISHED)"_s}));
    EXPECT_FALSE(item(u"mnuMNStatusAutoNavigate"_s).isChecked());
    EXPECT_EQ(pump.seconds() - start, 2);
    EXPECT_TRUE(window().navigated.isEmpty()) << "what is no file is passed over in a list of files";
}
