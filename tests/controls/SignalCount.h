// Counts how often a control raises an event.
#pragma once

#include "support/ErrorOf.h"

#include <QObject>

template <class Sender, class Signal> class SignalCount
{
  public:
    SignalCount(Sender &sender, Signal signal)
        : mConnection(QObject::connect(&sender, signal, &sender, [this] { ++mCount; }))
    {
    }
    ~SignalCount() { QObject::disconnect(mConnection); }
    Q_DISABLE_COPY_MOVE(SignalCount)

    [[nodiscard]] int times() const { return mCount; }

  private:
    int mCount = 0;
    QMetaObject::Connection mConnection;
};
