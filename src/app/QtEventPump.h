// The event pump over Qt's own event loop.
#pragma once

#include "app/Ports.h"

#include <QElapsedTimer>

class QtEventPump : public EventPump
{
  public:
    QtEventPump() { mClock.start(); }
    void doEvents() override;
    void waitForEvents(qint64 milliseconds) override;
    void wakeUp() override;
    [[nodiscard]] qint64 tickCount() const override { return mClock.elapsed(); }

  private:
    QElapsedTimer mClock;
};
