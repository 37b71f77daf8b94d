#include "engine/chromium/DevToolsConnection.h"
#include "engine/BrowserErrors.h"
#include "util/Errors.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QNetworkProxy>
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

DevToolsConnection::DevToolsConnection()
{
    mSocket.setProxy(QNetworkProxy::NoProxy); // the endpoint is on this machine
    QObject::connect(&mSocket, &QWebSocket::connected, this, [this] { mOpen = true; });
    QObject::connect(&mSocket, &QWebSocket::textMessageReceived, this, &DevToolsConnection::enqueue);
    QObject::connect(&mSocket, &QWebSocket::disconnected, this, [this] { enqueue(QString()); });
}

DevToolsConnection::~DevToolsConnection()
{
    mSocket.disconnect(this);
}

std::shared_ptr<DevToolsConnection> DevToolsConnection::open(const QUrl &endpoint, std::chrono::milliseconds limit)
{
    const std::shared_ptr<DevToolsConnection> connection(new DevToolsConnection);
    bool failed = false;
    QObject::connect(&connection->mSocket, QOverload<QAbstractSocket::SocketError>::of(&QWebSocket::error),
                     connection.get(), [&failed] { failed = true; });
    connection->mSocket.open(endpoint);
    turnLoop([&] { return connection->mOpen || failed; }, QDeadlineTimer(limit));
    QObject::disconnect(&connection->mSocket, QOverload<QAbstractSocket::SocketError>::of(&QWebSocket::error), nullptr,
                        nullptr);
    return connection->mOpen ? connection : nullptr;
}

void DevToolsConnection::send(const QString &session, QLatin1StringView method, const QJsonObject &params, Then then)
{
    const qint64 id = ++mLastId;
    QJsonObject message{{u"id"_s, id}, {u"method"_s, method}};
    if (!params.isEmpty())
        message.insert(u"params"_s, params);
    if (!session.isEmpty())
        message.insert(u"sessionId"_s, session);
    if (then)
        mPending.emplace(id, std::move(then));
    if (mOpen)
        mSocket.sendTextMessage(QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)));
    else
        QMetaObject::invokeMethod(this, &DevToolsConnection::end, Qt::QueuedConnection);
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
    QObject::disconnect(&mSocket, nullptr, this, nullptr);
    QObject::disconnect(this, nullptr, nullptr, nullptr);
    mPending.clear();
    mInbox.clear();
    mOpen = false;
    mSocket.abort();
}

void DevToolsConnection::enqueue(const QString &message)
{
    mInbox.push_back(message);
    QMetaObject::invokeMethod(this, &DevToolsConnection::handleNext, Qt::QueuedConnection);
}

// One call for each message in the box: a handler that waits leaves the rest to the calls that are posted already.
void DevToolsConnection::handleNext()
{
    if (mInbox.empty())
        return;
    const auto self = shared_from_this();
    const QString message = std::exchange(mInbox.front(), QString());
    mInbox.pop_front();
    if (message.isNull())
        end();
    else
        handle(QJsonDocument::fromJson(message.toUtf8()).object());
}

void DevToolsConnection::handle(const QJsonObject &message)
{
    const QJsonValue id = message[u"id"];
    if (id.isUndefined()) {
        Q_EMIT event(message[u"sessionId"].toString(), message[u"method"].toString(), message[u"params"].toObject());
        return;
    }
    const auto pending = mPending.find(id.toInteger());
    if (pending == mPending.end())
        return;
    const Then then = std::move(pending->second);
    mPending.erase(pending);
    then({.result = message[u"result"].toObject(), .error = message[u"error"][u"message"].toString()});
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
