// The real event pump and the countdown over it, in real time: short waits, no busy processor, events handled at once.
#include "app/QtEventPump.h"
#include "app/cTimer.h"

#include <QObject>
#include <QTimer>
#include <ctime>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

namespace {
class PumpTest : public testing::Test
{
  protected:
    qint64 passed(const std::function<void()> &body)
    {
        const qint64 start = pump.tickCount();
        body();
        return pump.tickCount() - start;
    }
    QtEventPump pump;
};
} // namespace

TEST_F(PumpTest, SleepsNoLongerThanItIsAllowedTo)
{
    pump.doEvents();
    qint64 slept = 0;
    // Something of the system may end a sleep early, and the caller sleeps again.
    while (slept < 100)
        slept += passed([&] { pump.waitForEvents(100 - slept); });
    EXPECT_LT(slept, 400);
}

TEST_F(PumpTest, AnEventEndsTheSleepAndIsHandled)
{
    bool handled = false;
    QTimer::singleShot(30, [&] { handled = true; });
    const qint64 slept = passed([&] {
        while (!handled)
            pump.waitForEvents(10'000);
    });
    EXPECT_LT(slept, 1000);
}

TEST_F(PumpTest, WakeUpEndsTheSleepFromAnywhere)
{
    pump.doEvents();
    std::thread waker([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        pump.wakeUp();
    });
    EXPECT_LT(passed([&] { pump.waitForEvents(10'000); }), 1000);
    waker.join();
}

TEST_F(PumpTest, ObjectsThatAskToGoAreGoneAfterATurn)
{
    auto *object = new QObject;
    bool gone = false;
    QObject::connect(object, &QObject::destroyed, [&] { gone = true; });
    object->deleteLater();
    pump.doEvents();
    EXPECT_TRUE(gone);
}

TEST_F(PumpTest, AWaitCostsAlmostNoProcessorTime)
{
    cTimer timer(pump);
    const std::clock_t before = std::clock();
    const qint64 waited = passed([&] { timer.TimeIt(1); });
    const double processor = double(std::clock() - before) / CLOCKS_PER_SEC;
    EXPECT_GE(waited, 1000);
    EXPECT_LT(processor, 0.1);
}

TEST_F(PumpTest, ACancelInTheMiddleOfAWaitIsHandledAtOnce)
{
    cTimer timer(pump);
    qint64 cancelled = 0;
    QTimer::singleShot(300, [&] {
        cancelled = pump.tickCount();
        timer.CancelTimer();
    });
    timer.TimeIt(30);
    EXPECT_LT(pump.tickCount() - cancelled, 50);
}
