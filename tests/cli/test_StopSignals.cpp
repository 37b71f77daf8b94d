// Ctrl+C and its like come as events, never in the middle of anything.
#include "cli/StopSignals.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <csignal>
#include <gtest/gtest.h>

namespace {
/// Turns the event loop until `done`, at most two seconds.
template <class Done> bool turnUntil(Done &&done)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < 2000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    return done();
}
} // namespace

TEST(StopSignals, EachIsToldFromTheEventLoop)
{
    StopSignals signals;
    int told = 0;
    QObject::connect(&signals, &StopSignals::stopRequested, &signals, [&] { ++told; });
    int expected = 0;
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        ASSERT_EQ(std::raise(number), 0);
        EXPECT_EQ(told, expected) << "not before the next turn";
        ++expected;
        EXPECT_TRUE(turnUntil([&] { return told == expected; })) << number;
    }
}

TEST(StopSignals, WithoutThemASignalIsTheSystemsAgain)
{
    {
        const StopSignals signals;
    }
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        const auto before = std::signal(number, SIG_IGN);
        EXPECT_EQ(before, SIG_DFL) << number;
        std::signal(number, SIG_DFL);
    }
}
