// One conversation with a browser over its DevTools protocol: commands with their answers, and the browser's events. Of
// the messages' meanings it knows what keeps conversations apart: each has a session of the browser's own, and with it
// end all sessions that came from it.
//
// Everything that comes in is handled from the event loop, one message at a time and in order, never inside the
// pipe's own signals: a handler may start a wait of its own. Held by a shared_ptr, because a wait keeps the object
// alive that it waits on.
#pragma once

#include "engine/chromium/DevToolsPipe.h"

#include <QDeadlineTimer>
#include <QJsonObject>
#include <QObject>
#include <QSet>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>

class DevToolsConnection : public QObject, public std::enable_shared_from_this<DevToolsConnection>
{
    Q_OBJECT

  public:
    struct Answer
    {
        QJsonObject result;
        QString error; ///< the browser's own text; empty when the command succeeded

        [[nodiscard]] bool failed() const { return !error.isEmpty(); }
    };
    using Then = std::function<void(const Answer &)>;

    /// Begins a conversation and waits for it; nothing when the browser does not answer within `limit`.
    [[nodiscard]] static std::shared_ptr<DevToolsConnection> open(std::shared_ptr<DevToolsPipe> pipe,
                                                                  std::chrono::milliseconds limit);
    ~DevToolsConnection() override;

    /// Sends a command to `session` ("" is the browser itself). `then` is called once, from the event loop, also with
    /// an error when the connection ends first; never after abandon().
    void send(const QString &session, QLatin1StringView method, const QJsonObject &params = {}, Then then = {});
    /// Sends and waits. Raises a RuntimeError: the browser's refusal, no answer within `limit`, or no connection.
    QJsonObject call(const QString &session, QLatin1StringView method, const QJsonObject &params,
                     std::chrono::milliseconds limit);
    /// Runs the event loop without user input until `done`, the deadline, or the end of the connection; gives `done()`.
    bool waitUntil(const std::function<bool()> &done, QDeadlineTimer deadline);

    [[nodiscard]] bool isOpen() const { return mOpen; }
    /// True inside waitUntil.
    [[nodiscard]] bool isWaiting() const { return mWaits > 0; }
    /// Ends the connection without a further word: no event, no answer, and every wait ends.
    void abandon();

  Q_SIGNALS:
    void event(const QString &session, const QString &method, const QJsonObject &params);
    /// The browser has gone, or has thrown us out.
    void closed();
    /// The last of the nested waits has ended.
    void idle();

  private:
    explicit DevToolsConnection(std::shared_ptr<DevToolsPipe> pipe);
    void write(const QString &session, QLatin1StringView method, const QJsonObject &params, Then then);
    void enqueue(std::optional<QJsonObject> message);
    void handleNext();
    void handle(const QJsonObject &message);
    void handleEvent(const QJsonObject &message);
    void end();

    const std::shared_ptr<DevToolsPipe> mPipe;
    QString mRoot;           // our session of the browser itself
    QSet<QString> mSessions; // that one and all that came from it
    bool mOpen = false;
    int mWaits = 0;
    std::unordered_map<qint64, Then> mPending;
    std::deque<std::optional<QJsonObject>> mInbox; // nothing stands for the end of the pipe
};
