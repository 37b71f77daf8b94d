#include "engine/chromium/DevToolsConnection.h"
#include "engine/BrowserErrors.h"
#include "util/Errors.h"

#include <QEventLoop>
#include <QScopeGuard>
#include <QTimer>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString goneText = u"The browser is no longer there."_s;

// Handles events, but nothing that the user does, until `done` or the deadline.
void turnLoop(const std::function<bool()> &done, QDeadlineTimer deadline)
{
    QEventLoop loop;
    QTimer alarm; // its only job is to wake the loop
    alarm.setTimerType(Qt::PreciseTimer);
    alarm.start(int(deadline.remainingTime()) + 1);
    while (!done() && !deadline.hasExpired())
        loop.processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
}

} // namespace

DevToolsConnection::DevToolsConnection(std::shared_ptr<DevToolsPipe> pipe) : mPipe(std::move(pipe))
{
    QObject::connect(mPipe.get(), &DevToolsPipe::received, this, &DevToolsConnection::enqueue);
    QObject::connect(mPipe.get(), &DevToolsPipe::ended, this, [this] { enqueue(std::nullopt); });
}

DevToolsConnection::~DevToolsConnection()
{
    abandon();
}

std::shared_ptr<DevToolsConnection> DevToolsConnection::open(std::shared_ptr<DevToolsPipe> pipe,
                                                             std::chrono::milliseconds limit)
{
    const std::shared_ptr<DevToolsConnection> connection(new DevToolsConnection(std::move(pipe)));
    DevToolsConnection *self = connection.get();
    self->write({}, "Target.attachToBrowserTarget"_L1, {}, [self](const Answer &answer) {
        self->mRoot = answer.result[u"sessionId"].toString();
        self->mSessions.insert(self->mRoot);
        self->mOpen = !self->mRoot.isEmpty();
    });
    turnLoop([&] { return self->mOpen || !self->mPipe->isOpen(); }, QDeadlineTimer(limit));
    return self->mOpen ? connection : nullptr;
}

void DevToolsConnection::send(const QString &session, QLatin1StringView method, const QJsonObject &params, Then then)
{
    write(session.isEmpty() ? mRoot : session, method, params, std::move(then));
    if (!mOpen)
        QMetaObject::invokeMethod(this, &DevToolsConnection::end, Qt::QueuedConnection);
}

void DevToolsConnection::write(const QString &session, QLatin1StringView method, const QJsonObject &params, Then then)
{
    const qint64 id = mPipe->nextId();
    QJsonObject message{{u"id"_s, id}, {u"method"_s, method}};
    if (!params.isEmpty())
        message.insert(u"params"_s, params);
    if (!session.isEmpty())
        message.insert(u"sessionId"_s, session);
    if (then)
        mPending.emplace(id, std::move(then));
    mPipe->send(message);
}

QJsonObject DevToolsConnection::call(const QString &session, QLatin1StringView method, const QJsonObject &params,
                                     std::chrono::milliseconds limit)
{
    if (!mOpen)
        throw RuntimeError(EngineError::BrowserGone, goneText);
    const auto answer = std::make_shared<std::optional<Answer>>();
    send(session, method, params, [answer](const Answer &given) { *answer = given; });
    waitUntil([&] { return answer->has_value(); }, QDeadlineTimer(limit));
    if (!mOpen)
        throw RuntimeError(EngineError::BrowserGone, goneText);
    if (!answer->has_value())
        throw RuntimeError(EngineError::NoAnswer, u"The browser did not answer %1 in time."_s.arg(method));
    if ((*answer)->failed())
        throw RuntimeError(EngineError::CannotRead, (*answer)->error);
    return (*answer)->result;
}

bool DevToolsConnection::waitUntil(const std::function<bool()> &done, QDeadlineTimer deadline)
{
    const auto self = shared_from_this();
    ++mWaits;
    const auto leave = qScopeGuard([this] {
        if (--mWaits == 0)
            Q_EMIT idle();
    });
    turnLoop([&] { return done() || !mOpen; }, deadline);
    return done();
}

void DevToolsConnection::abandon()
{
    if (std::exchange(mOpen, false) && mPipe->isOpen())
        write({}, "Target.detachFromTarget"_L1, {{u"sessionId"_s, mRoot}}, {});
    QObject::disconnect(mPipe.get(), nullptr, this, nullptr);
    QObject::disconnect(this, nullptr, nullptr, nullptr);
    mPending.clear();
    mInbox.clear();
}

void DevToolsConnection::enqueue(std::optional<QJsonObject> message)
{
    mInbox.push_back(std::move(message));
    QMetaObject::invokeMethod(this, &DevToolsConnection::handleNext, Qt::QueuedConnection);
}

// One call for each message in the box: a handler that waits leaves the rest to the calls that are posted already.
void DevToolsConnection::handleNext()
{
    if (mInbox.empty())
        return;
    const auto self = shared_from_this();
    const std::optional<QJsonObject> message = std::exchange(mInbox.front(), std::nullopt);
    mInbox.pop_front();
    if (!message)
        end();
    else if (message->contains(u"id"))
        handle(*message);
    else
        handleEvent(*message);
}

void DevToolsConnection::handle(const QJsonObject &message)
{
    const auto pending = mPending.find(message[u"id"].toInteger());
    if (pending == mPending.end())
        return;
    const Then then = std::move(pending->second);
    mPending.erase(pending);
    then({.result = message[u"result"].toObject(), .error = message[u"error"][u"message"].toString()});
}

// What is told to sessions of other conversations is none of ours.
void DevToolsConnection::handleEvent(const QJsonObject &message)
{
    const QString session = message[u"sessionId"].toString();
    if (!mSessions.contains(session))
        return;
    const QString method = message[u"method"].toString();
    const QJsonObject params = message[u"params"].toObject();
    if (method == "Target.attachedToTarget"_L1)
        mSessions.insert(params[u"sessionId"].toString());
    else if (method == "Target.detachedFromTarget"_L1)
        mSessions.remove(params[u"sessionId"].toString());
    Q_EMIT event(session == mRoot ? QString() : session, method, params);
}

// Whoever still waits for an answer gets one.
void DevToolsConnection::end()
{
    const auto self = shared_from_this();
    const bool wasOpen = std::exchange(mOpen, false);
    for (const auto &[id, then] : std::exchange(mPending, {}))
        then({.result = {}, .error = goneText});
    if (wasOpen)
        Q_EMIT closed();
}
