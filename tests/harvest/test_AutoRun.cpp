// The walk of an Auto run over the links of one result page: order, pace, statuses, stops, and where Go resumes.
#include "WalkFixture.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 second = 1000;

using AutoRunTest = WalkTest;
} // namespace

TEST_F(AutoRunTest, VisitsEveryLinkInOrderAtThePaceOfTheCountdown)
{
    showResults(makeSites(3));
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(window().navigated, site({1, 2, 3}));
    EXPECT_EQ(pump.seconds() - start, 15);
    EXPECT_EQ(statuses, (QStringList{u"1/3 http://www.site1.com/"_s, u"2/3 http://www.site2.com/"_s,
                                     u"3/3 http://www.site3.com/"_s, u"Stopped (FINISHED)"_s}));
    EXPECT_EQ(form.autoRun.mlngANLinkIndex, 0);
    EXPECT_EQ(form.autoRun.cmdANStart.caption(), u"Go"_s);
    EXPECT_FALSE(form.runs.mbANRunning);
    EXPECT_EQ(ended, 1);
}

TEST_F(AutoRunTest, SleepsBetweenTheSecondsOfAWait)
{
    form.autoRun.incANTiming.setText(u"030"_s);
    showResults(makeSites(1));
    clickStart();
    EXPECT_LE(pump.waits, 40);
}

TEST_F(AutoRunTest, WithoutARecordOfTheSiteNoRunTakesPlace)
{
    window().pages[u"http://www.other.com/"_s].links = makeSites(2);
    window().show(u"http://www.other.com/"_s);
    clickStart();
    EXPECT_EQ(statuses, QStringList{u"No data saved for site"_s});
    EXPECT_EQ(ended, 0);
    EXPECT_EQ(form.autoRun.cmdANStart.caption(), u"Go"_s);
    EXPECT_TRUE(window().navigated.isEmpty());
}

TEST_F(AutoRunTest, APageWithoutLinksIsFinishedAtOnce)
{
    showResults({});
    clickStart();
    EXPECT_EQ(statuses, QStringList{u"Stopped (FINISHED)"_s});
}

TEST_F(AutoRunTest, EachSecondOfAWaitIsTold)
{
    showResults(makeSites(1));
    QList<qint64> told;
    QObject::connect(&timer, &cTimer::TimeCount, &form, [&](qint64 count) { told.append(count); });
    clickStart();
    EXPECT_EQ(told, (QList<qint64>{1, 2, 3, 4, 5}));
}

TEST_F(AutoRunTest, AWaitThatIsEndedHasItsPageScreenedAtOnceAndTheRunGoesOn)
{
    form.outputs.chkSaveSummary.setValue(1);
    form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
    showResults(makeSites(2));
    pump.after(2 * second, [&] { runs.endWait(); });
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(pump.seconds() - start, 2 + 5);
    EXPECT_EQ(rows(u"SiteSummary"_s), site({1, 2}));
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(AutoRunTest, XStopsInTheMiddleOfAWaitAndGoOpensTheSameLinkAgain)
{
    showResults(makeSites(4));
    pump.after(7300, [&] { clickStart(); }); // the second link is being waited for
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(pump.seconds() - start, 7);
    EXPECT_EQ(form.autoRun.mlngANLinkIndex, 1);
    EXPECT_EQ(form.browser.lblTrawlexTimer.caption(), u"0"_s);
    window().navigated.clear();
    clickStart();
    EXPECT_EQ(window().navigated, site({2, 3, 4}));
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(AutoRunTest, ThePageThatWasWaitedForWhenXCameIsNotScreened)
{
    form.outputs.chkSaveSummary.setValue(1);
    form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
    showResults(makeSites(2));
    pump.after(7 * second, [&] { clickStart(); });
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), site({1}));
}

TEST_F(AutoRunTest, GoAfterFinishedTakesTheLinksOfThePageOnShowAfresh)
{
    showResults(makeSites(2));
    clickStart();
    window().pages[u"http://www.seek.com/more"_s].links = site({2});
    window().show(u"http://www.seek.com/more"_s);
    window().navigated.clear();
    clickStart();
    EXPECT_EQ(window().navigated, site({2}));
}

TEST_F(AutoRunTest, ATimeOfZeroDoesNotTakeThePageThatStandsThereForTheOneAskedFor)
{
    form.autoRun.incANTiming.setText(u"0"_s);
    form.outputs.chkSaveSummary.setValue(1);
    form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
    const QStringList links = makeSites(2);
    for (const QString &link : links)
        window().pages[link].loadTime = 10 * second;
    showResults(links);
    const qint64 start = pump.tickCount();
    clickStart();
    EXPECT_EQ(pump.tickCount(), start);
    EXPECT_EQ(window().navigated, links);
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
}

TEST_F(AutoRunTest, APageThatIsSlowerThanTheCountdownIsScreenedAsItStands)
{
    form.outputs.chkSaveSummary.setValue(1);
    form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
    const QStringList links = makeSites(2);
    window().pages[links[1]].loadTime = 60 * second;
    showResults(links);
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), site({1})); // the first page stood there at both times
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(AutoRunTest, WhatIsNoLinkIsPassedOverWithAStatusAndWithoutAWait)
{
    showResults({u"javascript:void(0)"_s, u"http://www.site1.com/"_s});
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(window().navigated, site({1}));
    EXPECT_EQ(pump.seconds() - start, 5);
    EXPECT_TRUE(statuses.contains(u"Invalid url javascript:void(0)"_s));
    EXPECT_EQ(visited, site({1}));
}

TEST_F(AutoRunTest, QuickBlockedLinksArePassedOverWithoutStatusAndWait)
{
    form.blocking.mastrQB = {u"SITE2"_s, u"site3."_s};
    showResults(makeSites(4));
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(window().navigated, site({1, 4}));
    EXPECT_EQ(pump.seconds() - start, 10);
    EXPECT_EQ(statuses,
              (QStringList{u"1/4 http://www.site1.com/"_s, u"4/4 http://www.site4.com/"_s, u"Stopped (FINISHED)"_s}));
}

TEST_F(AutoRunTest, ServersOnlyOpensTheServersOfTheLinks)
{
    form.options.chkSMA(SMA::ServersOnly).setValue(1);
    showResults({u"http://www.site1.com/deep/page.html"_s, u"http://www.site2.com/x"_s});
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{u"http://www.site1.com"_s, u"http://www.site2.com"_s}));
}

TEST_F(AutoRunTest, ReturnsToThePageItBeganOnWhenItHasFinished)
{
    form.options.chkSMA(SMA::ReturnToStart).setValue(1);
    showResults(makeSites(1));
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{u"http://www.site1.com/"_s, u"http://www.seek.com/?q=tea"_s}));
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(AutoRunTest, DoesNotReturnToTheStartPageWhenTheUserStops)
{
    form.options.chkSMA(SMA::ReturnToStart).setValue(1);
    showResults(makeSites(2));
    pump.after(second, [&] { clickStart(); });
    clickStart();
    EXPECT_EQ(window().navigated, site({1}));
}

TEST_F(AutoRunTest, ResetInTheMiddleStopsAndTheNextGoStartsAfresh)
{
    showResults(makeSites(3));
    pump.after(7 * second, [&] { autoRun.ResetProcessAN(); });
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(form.autoRun.mlngANLinkIndex, 0);
    EXPECT_EQ(form.autoRun.mastrLinks, emptyList());
    window().show(u"http://www.seek.com/?q=tea"_s);
    window().navigated.clear();
    clickStart();
    EXPECT_EQ(window().navigated, site({1, 2, 3}));
}

TEST_F(AutoRunTest, AGoClickedBeforeTheStoppedRunHasUnwoundStartsNoSecondRun)
{
    showResults(makeSites(3));
    int running = 0;
    pump.after(2 * second, [&] {
        clickStart(); // X
        clickStart(); // Go, in the same moment
        running = ended;
    });
    clickStart();
    EXPECT_EQ(running, 0);
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(window().navigated, site({1}));
}

TEST_F(AutoRunTest, ALinkListThatWasNeverDimensionedEndsTheRunWithAnUnknownError)
{
    addSaved(u"Results-100"_s, u"http://www.seek.com/?q=tea"_s);
    savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
    form.saved.chkUseSavedUrls.setValue(1);
    // A driver that has never had a browser gives no list at all.
    browser.set(std::make_unique<cIEObject>(log, desktop, clipboard, browsers));
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (ERROR, UNKNOWN)"_s);
    EXPECT_EQ(form.autoRun.cmdANStart.caption(), u"Go"_s);
    EXPECT_FALSE(form.runs.mbANRunning);
}

TEST_F(AutoRunTest, APageThatCannotBeReadIsLeftAndTheRunGoesOn)
{
    form.outputs.chkSaveSummary.setValue(1);
    form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
    const QStringList links = makeSites(2);
    window().pages[links[0]].readingFails = RuntimeError(50'001, u"took too long"_s);
    showResults(links);
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), site({2}));
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

// A page that passes, with "stop on MCMNC" on, stops the run. The loop has moved on by one when it sees that, and one
// more is passed over; near the end the position stays and no status is told; after the very last link it comes out
// as 1.
namespace {
struct McmncCase
{
    const char *tag;
    int links;
    int stopsOn; ///< number of the link, from 1
    int index;
    QLatin1StringView status; ///< "": none is told
    int nextLink;             ///< number of the first link that the next Go opens; 0: the list is read afresh
};

class McmncStop : public AutoRunTest, public testing::WithParamInterface<McmncCase>
{
};
} // namespace

TEST_P(McmncStop, LeavesThePositionAsTold)
{
    const McmncCase &row = GetParam();
    form.outputs.chkMCMNCStop.setValue(1);
    wantOnly(u"site %1,"_s.arg(row.stopsOn));
    showResults(makeSites(row.links));
    clickStart();
    EXPECT_EQ(form.autoRun.mlngANLinkIndex, row.index);
    const QString last = u"%1/%2 http://www.site%1.com/"_s.arg(row.stopsOn).arg(row.links);
    EXPECT_EQ(lastStatus(), row.status.isEmpty() ? last : QString(row.status));
    EXPECT_EQ(form.browser.picANEnd.backColor(), Colours::Red);
    window().navigated.clear();
    clickStart();
    EXPECT_EQ(window().navigated.value(0),
              row.nextLink == 0 ? QString() : u"http://www.site%1.com/"_s.arg(row.nextLink));
}

INSTANTIATE_TEST_SUITE_P(AutoRun, McmncStop,
                         testing::Values(McmncCase{"first of five", 5, 1, 2, "Stopped (MCMNC)"_L1, 3},
                                         McmncCase{"second of five", 5, 2, 3, "Stopped (MCMNC)"_L1, 4},
                                         McmncCase{"third of five: near the end", 5, 3, 3, {}, 4},
                                         McmncCase{"fourth of five: near the end", 5, 4, 4, {}, 5},
                                         McmncCase{"the very last of five", 5, 5, 1, "Stopped (MCMNC)"_L1, 2},
                                         McmncCase{"the very last of two", 2, 2, 0, {}, 0},
                                         McmncCase{"the only one", 1, 1, 0, {}, 0}),
                         [](const auto &row) {
                             return u"stop_%1_of_%2"_s.arg(row.param.stopsOn).arg(row.param.links).toStdString();
                         });

TEST_F(AutoRunTest, TheWritersRunBeforeTheMcmncStop)
{
    form.outputs.chkMCMNCStop.setValue(1);
    form.outputs.chkSaveSummary.setValue(1);
    form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
    wantOnly(u"site 1,"_s);
    showResults(makeSites(5));
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), site({1}));
    EXPECT_EQ(lastStatus(), u"Stopped (MCMNC)"_s);
}

TEST_F(AutoRunTest, ANewGoForgetsAnEarlierMcmncStop)
{
    form.outputs.chkMCMNCStop.setValue(1);
    wantOnly(u"site 1,"_s);
    showResults(makeSites(6));
    clickStart();
    ASSERT_EQ(lastStatus(), u"Stopped (MCMNC)"_s);
    pump.after(2 * second, [&] { clickStart(); });
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
}
