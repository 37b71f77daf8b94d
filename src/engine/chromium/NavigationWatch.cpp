#include "engine/chromium/NavigationWatch.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace {

// Short: only the page that is being left suffers from them, and the next one has its own wait.
constexpr std::chrono::milliseconds betweenLooks{1000};
constexpr std::chrono::milliseconds limitOfAnswer{1000};
constexpr std::chrono::milliseconds limitOfDocument{1000};
constexpr std::chrono::milliseconds limitOfLoss{800};
constexpr int breakOffsAtMost = 1;

} // namespace

NavigationWatch::NavigationWatch(DevToolsConnection &connection) : mConnection(connection)
{
    mTimer.setSingleShot(true);
    QObject::connect(&mTimer, &QTimer::timeout, this, &NavigationWatch::look);
}

void NavigationWatch::begin(const QString &session)
{
    ++mLook;
    mSession = session;
    mUnanswered = false;
    mBrokenOff = 0;
    mTimer.start(betweenLooks);
}

void NavigationWatch::documentComing()
{
    expectWithin(limitOfDocument);
}

void NavigationWatch::processEnding()
{
    expectWithin(limitOfLoss);
}

void NavigationWatch::expectWithin(std::chrono::milliseconds limit)
{
    ++mLook;
    mUnanswered = true;
    mBrokenOff = breakOffsAtMost;
    mTimer.start(limit);
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
        Q_EMIT pageStuck();
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
