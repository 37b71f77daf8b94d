#include "app/QtEventPump.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimer>
#include <limits>

void QtEventPump::doEvents()
{
    QCoreApplication::processEvents();
    // Objects that ask to be deleted would otherwise wait for the main loop, which a run holds up for hours.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtEventPump::waitForEvents(qint64 milliseconds)
{
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.setTimerType(Qt::PreciseTimer);
    deadline.start(static_cast<int>(std::min<qint64>(milliseconds, std::numeric_limits<int>::max())));
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtEventPump::wakeUp()
{
    // The application's own: it may be asked from any thread.
    if (auto *dispatcher = QCoreApplication::eventDispatcher())
        dispatcher->wakeUp();
}
