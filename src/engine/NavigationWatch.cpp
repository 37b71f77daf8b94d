#include "engine/NavigationWatch.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds betweenLooks{4};
constexpr std::chrono::seconds limitOfAnswer{2};
constexpr int breakOffsAtMost = 3;

} // namespace

NavigationWatch::NavigationWatch(DevToolsConnection &connection, QString session)
    : mConnection(connection), mSession(std::move(session))
{
    mTimer.setSingleShot(true);
    QObject::connect(&mTimer, &QTimer::timeout, this, &NavigationWatch::look);
}

void NavigationWatch::begin()
{
    mUnanswered = false;
    mBrokenOff = 0;
    mTimer.start(betweenLooks);
}

void NavigationWatch::end()
{
    ++mLook;
    mTimer.stop();
}

// A page that answers is not what holds the navigation up: its server is slow, and that is no business of ours.
void NavigationWatch::look()
{
    if (mUnanswered && ++mBrokenOff > breakOffsAtMost) {
        end();
        mConnection.send(mSession, "Page.crash"_L1);
        Q_EMIT pageEnded();
        return;
    }
    if (mUnanswered)
        mConnection.send(mSession, "Runtime.terminateExecution"_L1);
    mUnanswered = true;
    mTimer.start(limitOfAnswer);
    const QPointer<NavigationWatch> self(this);
    mConnection.send(mSession, "Runtime.evaluate"_L1, {{u"expression"_s, u"0"_s}, {u"silent"_s, true}},
                     [self, look = ++mLook](const DevToolsConnection::Answer &) {
                         if (!self || look != self->mLook)
                             return;
                         self->mUnanswered = false;
                         self->mBrokenOff = 0;
                         self->mTimer.start(betweenLooks);
                     });
}
