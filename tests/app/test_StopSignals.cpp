// The system's wish that the program ends, as an event.
#include "app/QtEventPump.h"
#include "app/StopSignals.h"

#include <csignal>
#include <gtest/gtest.h>

TEST(StopSignals, EachOfThemIsToldFromTheEventLoop)
{
    QtEventPump pump;
    const StopSignals signals;
    int told = 0;
    QObject::connect(&signals, &StopSignals::stopRequested, [&] { ++told; });
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        const int before = told;
        std::raise(number);
        EXPECT_EQ(told, before) << "not in the handler";
        for (const qint64 end = pump.tickCount() + 5000; told == before && pump.tickCount() < end;)
            pump.waitForEvents(100);
        EXPECT_EQ(told, before + 1) << number;
    }
}

TEST(StopSignals, AnotherOneWorksAfterTheFirst)
{
    QtEventPump pump;
    for (int round = 0; round < 2; ++round) {
        const StopSignals signals;
        int told = 0;
        QObject::connect(&signals, &StopSignals::stopRequested, [&] { ++told; });
        std::raise(SIGTERM);
        for (const qint64 end = pump.tickCount() + 5000; told == 0 && pump.tickCount() < end;)
            pump.waitForEvents(100);
        EXPECT_EQ(told, 1);
    }
}
