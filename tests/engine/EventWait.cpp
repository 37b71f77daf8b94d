#include "EventWait.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

bool waitFor(const std::function<bool()> &done, int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    QEventLoop loop;
    QTimer tick; // `done` may depend on what happens outside of this loop
    QObject::connect(&tick, &QTimer::timeout, &loop, &QEventLoop::quit);
    tick.start(5);
    while (!done() && !deadline.hasExpired())
        loop.exec();
    return done();
}

void idle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}
