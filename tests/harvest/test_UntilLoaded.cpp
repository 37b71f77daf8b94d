// A wait that ends with the page's loading and not with its time.
#include "harvest/UntilLoaded.h"

#include "support/FormFixture.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 second = 1000;
const QString tea = u"http://www.tea.com/"_s;

class UntilLoadedTest : public FormTest
{
  protected:
    /// How long a wait of ten seconds takes, in milliseconds.
    qint64 wait()
    {
        const qint64 start = pump.tickCount();
        timer.TimeIt(10);
        return pump.tickCount() - start;
    }

    cTimer timer{pump};
    const UntilLoaded untilLoaded{timer, browser};
};
} // namespace

TEST_F(UntilLoadedTest, TheWaitIsOverInTheMomentThePageIsThere)
{
    window().pages[tea].loadTime = 2300;
    navigation.OpenSite(tea);
    EXPECT_EQ(wait(), 2300);
}

TEST_F(UntilLoadedTest, APageThatStandsThereIsNotWaitedFor)
{
    EXPECT_EQ(wait(), 0);
}

TEST_F(UntilLoadedTest, APageThatDoesNotComeHasItsTimeAndNoMore)
{
    window().pages[tea].loadTime = 60 * second;
    navigation.OpenSite(tea);
    EXPECT_EQ(wait(), 10 * second);
}

TEST_F(UntilLoadedTest, APageThatFailsIsOverToo)
{
    window().pages[tea].fails = true;
    window().pages[tea].loadTime = second;
    navigation.OpenSite(tea);
    EXPECT_EQ(wait(), second);
}

TEST_F(UntilLoadedTest, WithoutABrowserNothingIsWaitedFor)
{
    browser.release();
    EXPECT_EQ(wait(), 0);
}

TEST_F(UntilLoadedTest, AnEndOfLoadingBetweenTwoWaitsEndsNone)
{
    window().pages[tea].loadTime = second;
    navigation.OpenSite(tea);
    pump.waitForEvents(2 * second);
    window().pages[u"http://www.milk.com/"_s].loadTime = 3 * second;
    navigation.OpenSite(u"http://www.milk.com/"_s);
    EXPECT_EQ(wait(), 3 * second);
}
