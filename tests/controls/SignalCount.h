// Counts how often a control raises an event, and tells which error a call raises.
#pragma once

#include "util/Errors.h"

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

/// The number of the error that `body` raises; 0 if it raises none.
template <class Body> qint64 errorOf(Body &&body)
{
    try {
        body();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}
