// One page of a run: what came of it, and what the run is told.
#include "WalkFixture.h"

using namespace Qt::StringLiterals;
using Outcome = SiteVisit::Outcome;

namespace {
constexpr qint64 second = 1000;
const QString tea = u"http://www.tea.com/green.html"_s;
const QString server = u"http://www.tea.com"_s;

class SiteVisitTest : public WalkTest
{
  protected:
    SiteVisitTest()
    {
        form.outputs.chkSaveSummary.setValue(1);
        form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
        window().pages[tea].html = u"<p>green tea, and enough of it"_s;
        window().pages[server].html = u"<p>all our kinds of tea"_s;
        runs.begin(Runs::Kind::Auto);
        statuses.clear();
    }
    [[nodiscard]] Outcome visitPage(const SiteVisit::Order &order) { return siteVisit.visit(Runs::Kind::Auto, order); }
};
} // namespace

TEST_F(SiteVisitTest, APageIsGivenItsTimeAndScreened)
{
    const qint64 start = pump.tickCount();
    EXPECT_EQ(visitPage({.url = tea, .seconds = 3}), Outcome::Visited);
    EXPECT_EQ(pump.tickCount() - start, 3 * second);
    EXPECT_EQ(visited, QStringList{tea});
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{tea});
}

TEST_F(SiteVisitTest, WhatIsNoLinkIsRefusedAndTakesNoTime)
{
    const qint64 start = pump.tickCount();
    EXPECT_EQ(visitPage({.url = u"nonsense"_s, .seconds = 3, .status = u"1/1"_s}), Outcome::Refused);
    EXPECT_EQ(pump.tickCount(), start);
    EXPECT_TRUE(visited.isEmpty());
    EXPECT_EQ(statuses, QStringList{u"Invalid url nonsense"_s}) << "its own status is for a page on its way";
}

TEST_F(SiteVisitTest, TheStatusOfAPageIsToldAsSoonAsItIsOnItsWay)
{
    qint64 told = 0;
    QObject::connect(&status, &StatusLine::told, &form, [&](const QString &text) {
        if (text == "1/3 green"_L1)
            told = pump.tickCount();
    });
    const qint64 start = pump.tickCount();
    EXPECT_EQ(visitPage({.url = tea, .seconds = 3, .status = u"1/3 green"_s}), Outcome::Visited);
    EXPECT_EQ(told, start);
}

TEST_F(SiteVisitTest, APageThatDoesNotComeIsLeftOutAndTheRunGoesOn)
{
    window().pages[tea].loadTime = 10 * second;
    EXPECT_EQ(visitPage({.url = tea, .seconds = 3}), Outcome::Visited);
    EXPECT_EQ(lastStatus(), u"Not reached"_s);
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
}

TEST_F(SiteVisitTest, AStopInTheWaitLeavesThePageUnscreened)
{
    pump.after(second, [this] { runs.cancel(Runs::Kind::Auto); });
    EXPECT_EQ(visitPage({.url = tea, .seconds = 3}), Outcome::Stopped);
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
}

TEST_F(SiteVisitTest, AStopOfTheOtherRunDoesNotStopThisOne)
{
    pump.after(second, [this] { form.runs.mbMNCancel = true; });
    EXPECT_EQ(visitPage({.url = tea, .seconds = 3}), Outcome::Visited);
}

TEST_F(SiteVisitTest, APageThatCannotBeStoredIsWhereTheRunStands)
{
    form.outputs.chkSavePages.setValue(1);
    form.outputs.chkSaveToFile.setValue(1);
    form.places.txtSFMNDir.setText(folder.path() + u"/gone/"_s);
    EXPECT_EQ(visitPage({.url = tea, .seconds = 1}), Outcome::Stopped);
    EXPECT_EQ(runs.reason(), u"Stopped (ERROR, FOLDER FOR PAGES IS MISSING)"_s);
}

TEST_F(SiteVisitTest, AnErrorPageGivesWayToItsServerWhereThatIsWanted)
{
    form.limits.incNotFoundMinSize.setText(u"000100"_s);
    window().pages[tea].html = u"<p>not found"_s;
    EXPECT_EQ(visitPage({.url = tea, .seconds = 1}), Outcome::Visited);
    EXPECT_EQ(window().navigated, (QStringList{tea, server}));
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{server});
    window().navigated.clear();
    EXPECT_EQ(visitPage({.url = tea, .seconds = 1, .fallBack = false}), Outcome::Visited);
    EXPECT_EQ(window().navigated, QStringList{tea});
    EXPECT_EQ(rows(u"SiteSummary"_s), (QStringList{server, tea}));
}

TEST_F(SiteVisitTest, APageOnWhichTheBrowserDiesIsVisitedOnce)
{
    reviver.onRevival = [this] {
        auto next = std::make_shared<FakeBrowser>(pump);
        next->pages = window().pages;
        connectBrowser(next);
        return true;
    };
    pump.after(second, [this] {
        window().die();
        reviver.died = true;
        runs.endWait();
    });
    EXPECT_EQ(visitPage({.url = tea, .seconds = 3}), Outcome::Visited);
    EXPECT_EQ(visited, QStringList{tea});
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{tea});
}

TEST_F(SiteVisitTest, APageThatIsShownIsNotScreened)
{
    EXPECT_TRUE(siteVisit.show(tea, 2));
    EXPECT_EQ(siteVisit.siteUrl(), tea);
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
    EXPECT_TRUE(visited.isEmpty());
    EXPECT_FALSE(siteVisit.show(u"nonsense"_s, 2));
}

TEST_F(SiteVisitTest, TheStartIsOpenedAtTheEndWhereThatIsWanted)
{
    form.options.chkSMA(SMA::ReturnToStart).setValue(0);
    siteVisit.returnTo(tea);
    EXPECT_TRUE(window().navigated.isEmpty());
    form.options.chkSMA(SMA::ReturnToStart).setValue(1);
    const qint64 start = pump.tickCount();
    siteVisit.returnTo(tea);
    EXPECT_EQ(window().navigated, QStringList{tea});
    EXPECT_EQ(pump.tickCount(), start) << "nobody waits for it";
}
