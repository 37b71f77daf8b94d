// One page after the other as a run meets it: opened, given its time, read; and browsers that die on the way.
#include "driver/PageVisit.h"

#include "support/FakeReviver.h"
#include "support/FormFixture.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 second = 1000;
const QString tea = u"http://www.tea.com/"_s;
const QString milk = u"http://www.milk.com/"_s;

class PageVisitTest : public FormTest
{
  protected:
    PageVisitTest()
    {
        window().pages[tea].html = u"<p>tea</p>"_s;
        window().pages[milk].html = u"<p>milk</p>"_s;
        reviver.onRevival = [this] {
            auto next = std::make_shared<FakeBrowser>(pump);
            next->pages = window().pages;
            connectBrowser(next);
            return true;
        };
        runs.begin(Runs::Kind::Auto);
    }
    /// The browser ends by itself; whoever connects browsers has heard of it.
    void die()
    {
        window().die();
        reviver.died = true;
        runs.endWait();
    }

    cTimer timer{pump};
    Runs runs{context, form.runs, form.browser, form.autoRun.cmdANStart, form.manual.cmdMNStart, timer};
    FakeReviver reviver;
    PageVisit visit{context, navigation, browser, timer, pump, runs, reviver};
};
} // namespace

TEST_F(PageVisitTest, APageThatComesInItsTimeHasArrived)
{
    window().pages[tea].loadTime = 2 * second;
    ASSERT_TRUE(visit.open(tea));
    EXPECT_FALSE(visit.hasArrived());
    visit.wait(5);
    EXPECT_TRUE(visit.hasArrived());
    EXPECT_EQ(visit.page().html(), u"<p>tea</p>"_s);
    EXPECT_EQ(visit.siteUrl(), tea);
}

TEST_F(PageVisitTest, APageThatIsLateHasNot)
{
    window().pages[tea].loadTime = 6 * second;
    ASSERT_TRUE(visit.open(tea));
    visit.wait(5);
    EXPECT_FALSE(visit.hasArrived());
}

TEST_F(PageVisitTest, WhatIsNoLinkIsNotOpened)
{
    EXPECT_FALSE(visit.open(u"nonsense"_s));
    EXPECT_EQ(statuses, QStringList{u"Invalid url nonsense"_s});
    EXPECT_TRUE(window().navigated.isEmpty());
}

TEST_F(PageVisitTest, EachPageIsReadAnew)
{
    ASSERT_TRUE(visit.open(tea));
    visit.wait(1);
    EXPECT_EQ(visit.page().html(), u"<p>tea</p>"_s);
    ASSERT_TRUE(visit.open(milk));
    visit.wait(1);
    EXPECT_EQ(visit.page().html(), u"<p>milk</p>"_s);
}

TEST_F(PageVisitTest, AWaitForgetsWhatWasReadBeforeIt)
{
    ASSERT_TRUE(visit.open(tea));
    visit.wait(1);
    EXPECT_EQ(visit.page().html(), u"<p>tea</p>"_s);
    window().pages[tea].html = u"<p>more tea</p>"_s;
    window().show(tea);
    EXPECT_EQ(visit.page().html(), u"<p>tea</p>"_s) << "one page, one text";
    visit.wait(1);
    EXPECT_EQ(visit.page().html(), u"<p>more tea</p>"_s);
}

TEST_F(PageVisitTest, ABrowserThatDiesInTheWaitIsStartedAgainAndThePageHasItsWholeTime)
{
    ASSERT_TRUE(visit.open(tea));
    pump.after(3 * second, [this] { die(); });
    const qint64 start = pump.tickCount();
    visit.wait(5);
    EXPECT_EQ(pump.tickCount() - start, 8 * second);
    EXPECT_EQ(window().navigated, QStringList{tea});
    EXPECT_TRUE(visit.hasArrived());
    EXPECT_EQ(statuses, QStringList{u"Browser has ended. Starting it again"_s});
}

TEST_F(PageVisitTest, ThreeDeathsOnOnePageAreEnough)
{
    ASSERT_TRUE(visit.open(tea));
    for (int death = 1; death <= 3; ++death)
        pump.after(death * second, [this] { die(); });
    visit.wait(5);
    EXPECT_EQ(reviver.revivals, 3) << "the browser is there for the next page";
    EXPECT_FALSE(visit.hasArrived());
    EXPECT_EQ(lastStatus(), u"Passed over "_s + tea);
    ASSERT_TRUE(visit.open(milk));
    pump.after(second, [this] { die(); });
    visit.wait(5);
    EXPECT_TRUE(visit.hasArrived()) << "deaths are counted for each page";
}

TEST_F(PageVisitTest, ADeathBetweenTwoPagesIsSeenWhenTheNextIsOpened)
{
    die();
    EXPECT_TRUE(visit.open(tea));
    EXPECT_EQ(reviver.revivals, 1);
    EXPECT_EQ(window().navigated, QStringList{tea});
}

TEST_F(PageVisitTest, ABrowserThatCannotBeStartedAgainStopsTheRun)
{
    reviver.onRevival = [] { return false; };
    ASSERT_TRUE(visit.open(tea));
    pump.after(second, [this] { die(); });
    visit.wait(5);
    EXPECT_FALSE(visit.hasArrived());
    EXPECT_TRUE(runs.isStopped(Runs::Kind::Auto));
    EXPECT_EQ(runs.reason(), u"Stopped (ERROR, NO BROWSER)"_s);
}

TEST_F(PageVisitTest, AStoppedRunLeavesADeadBrowserDead)
{
    ASSERT_TRUE(visit.open(tea));
    pump.after(second, [this] {
        die();
        runs.cancel(Runs::Kind::Auto);
    });
    visit.wait(5);
    EXPECT_EQ(reviver.revivals, 0);
    EXPECT_EQ(reviver.leftDead, 1);
    EXPECT_TRUE(statuses.isEmpty());
}

TEST_F(PageVisitTest, APageOnWhoseReadingTheBrowserDiesComesAgain)
{
    ASSERT_TRUE(visit.open(tea));
    visit.wait(1);
    EXPECT_FALSE(visit.comesAgain()) << "nobody has asked for it yet";
    window().die();
    EXPECT_FALSE(visit.page().isReadable());
    pump.after(0, [this] { reviver.died = true; }); // the news comes behind the reading
    EXPECT_TRUE(visit.comesAgain());
    visit.wait(1);
    EXPECT_TRUE(visit.page().isReadable());
    EXPECT_FALSE(visit.comesAgain());
}

TEST_F(PageVisitTest, APageThatCannotBeReadInABrowserThatLivesDoesNotComeAgain)
{
    window().pages[tea].readingFails = RuntimeError(50'001, u"took too long"_s);
    ASSERT_TRUE(visit.open(tea));
    visit.wait(1);
    EXPECT_FALSE(visit.page().isReadable());
    EXPECT_FALSE(visit.comesAgain());
    EXPECT_EQ(reviver.revivals, 0);
}
