// Time that passes only when a wait asks for it, and a list of things that happen in it: a wait of half a minute takes
// no time, and what happens in its middle happens at an exact moment.
#pragma once

#include "app/Ports.h"

#include <QCoreApplication>
#include <functional>
#include <map>
#include <stdexcept>

class FakePump : public EventPump
{
  public:
    using Action = std::function<void()>;

    void doEvents() override
    {
        count();
        runDue();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// Moves the clock to the next action, or by `milliseconds` where there is none before.
    void waitForEvents(qint64 milliseconds) override
    {
        count();
        ++waits;
        const qint64 limit = mNow + milliseconds;
        if (!mWoken)
            mNow = mActions.empty() ? limit : std::max(mNow, std::min(limit, mActions.begin()->first));
        mWoken = false;
        runDue();
        QCoreApplication::processEvents();
    }
    void wakeUp() override { mWoken = true; }
    [[nodiscard]] qint64 tickCount() const override { return mNow; }

    /// Does `action` once the clock has reached `milliseconds` from now; with 0 in the next turn.
    void after(qint64 milliseconds, Action action) { mActions.emplace(mNow + milliseconds, std::move(action)); }
    /// The clock jumps, as it does while something else keeps the thread busy.
    void jump(qint64 milliseconds) { mNow += milliseconds; }
    [[nodiscard]] qint64 seconds() const { return mNow / 1000; }
    /// Runs everything that is planned, with nobody waiting.
    void finish()
    {
        while (!mActions.empty())
            waitForEvents(std::max<qint64>(0, mActions.begin()->first - mNow));
        doEvents();
    }

    int waits = 0; ///< how often the program slept

  private:
    void runDue()
    {
        // What an action plans for the next turn is not for this one.
        for (auto due = std::distance(mActions.begin(), mActions.upper_bound(mNow));
             due > 0 && !mActions.empty() && mActions.begin()->first <= mNow; --due) {
            const Action action = std::move(mActions.begin()->second);
            mActions.erase(mActions.begin());
            action();
        }
    }
    /// A wait that never ends is a fault to be reported, not a test that hangs.
    void count()
    {
        if (++mTurns > 200'000)
            throw std::logic_error("the fake event loop turns for ever");
    }

    std::multimap<qint64, Action> mActions;
    qint64 mNow = 1'000'000;
    int mTurns = 0;
    bool mWoken = false;
};
