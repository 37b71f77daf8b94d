// The countdown: what it counts, when it returns, and what ends it early.
#include "app/cTimer.h"
#include "support/FakePump.h"

#include <gtest/gtest.h>

namespace {
class TimerTest : public testing::Test
{
  protected:
    TimerTest()
    {
        QObject::connect(&timer, &cTimer::TimeCount, &timer, [this](qint64 count) { counts.push_back(count); });
    }
    /// Milliseconds that a wait took.
    qint64 wait(qint64 seconds)
    {
        const qint64 start = pump.tickCount();
        timer.TimeIt(seconds);
        return pump.tickCount() - start;
    }

    FakePump pump;
    cTimer timer{pump};
    std::vector<qint64> counts;
};
} // namespace

TEST_F(TimerTest, CountsUpFromOne)
{
    EXPECT_EQ(wait(3), 3000);
    EXPECT_EQ(counts, (std::vector<qint64>{1, 2, 3}));
}

TEST_F(TimerTest, ZeroReturnsAfterOneTurnOfTheEventLoop)
{
    bool handled = false;
    pump.after(0, [&] { handled = true; });
    EXPECT_EQ(wait(0), 0);
    EXPECT_TRUE(handled);
    EXPECT_TRUE(counts.empty());
}

TEST_F(TimerTest, IsInProgressWhileItWaits)
{
    bool inProgress = false;
    pump.after(500, [&] { inProgress = timer.InProgress(); });
    wait(1);
    EXPECT_TRUE(inProgress);
    EXPECT_FALSE(timer.InProgress());
}

TEST_F(TimerTest, CancelEndsTheWaitAtOnce)
{
    pump.after(1300, [&] { timer.CancelTimer(); });
    EXPECT_EQ(wait(30), 1300);
    EXPECT_EQ(counts, (std::vector<qint64>{1}));
    EXPECT_FALSE(timer.InProgress());
}

TEST_F(TimerTest, ACancelWithNobodyWaitingDoesNotTouchTheNextWait)
{
    timer.CancelTimer();
    EXPECT_EQ(wait(2), 2000);
}

TEST_F(TimerTest, ACancelInTheFirstTurnEndsAWaitOfAnyLength)
{
    pump.after(0, [&] { timer.CancelTimer(); });
    EXPECT_EQ(wait(999), 0);
}

TEST_F(TimerTest, EventsBetweenTheSecondsDoNotShortenTheWait)
{
    for (int i = 1; i < 20; ++i)
        pump.after(i * 97, [] {});
    EXPECT_EQ(wait(2), 2000);
    EXPECT_EQ(counts, (std::vector<qint64>{1, 2}));
}

TEST_F(TimerTest, TimeThatSomethingElseTookCountsAndIsTold)
{
    pump.after(500, [&] { pump.jump(4200); });
    EXPECT_EQ(wait(3), 4700);
    EXPECT_EQ(counts, (std::vector<qint64>{5})); // to the nearest second
}

TEST_F(TimerTest, SleepsOncePerSecond)
{
    wait(30);
    EXPECT_LE(pump.waits, 31);
}
