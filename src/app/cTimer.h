// The countdown that paces a run. A wait keeps the event loop turning, so that buttons, browser events and the ending
// of the program are handled in it; between the ticks it sleeps.
#pragma once

#include "app/Ports.h"

#include <QObject>

class cTimer : public QObject
{
    Q_OBJECT

  public:
    explicit cTimer(EventPump &pump) : mPump(pump) {}

    /// Waits `seconds`, raising TimeCount at each full one. 0 returns after one turn of the event loop.
    void TimeIt(qint64 seconds);
    [[nodiscard]] bool InProgress() const { return mInProgress; }
    /// Ends the wait under way; the caller goes on at once.
    void CancelTimer();

  Q_SIGNALS:
    /// A wait begins.
    void started();
    /// Seconds that have passed, from 1.
    void TimeCount(qint64 count);

  private:
    EventPump &mPump;
    bool mInProgress = false;
    bool mCancel = false;
};
