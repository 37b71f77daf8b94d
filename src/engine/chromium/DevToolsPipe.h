// The line to one browser that is driven over a pipe: messages as they are written there, one JSON object after the
// other, each ended by a zero byte. Knows none of their meanings. All connections to the browser share it.
//
// What it reads from is one end of a socket: the other end is the browser itself, or the process that holds it.
#pragma once

#include <QJsonObject>
#include <QLocalSocket>
#include <QObject>
#include <memory>

class DevToolsPipe : public QObject
{
    Q_OBJECT

  public:
    /// Takes a socket that is connected. A browser that is just starting answers later.
    explicit DevToolsPipe(std::unique_ptr<QLocalSocket> socket);
    ~DevToolsPipe() override;

    virtual void send(const QJsonObject &message);
    /// Numbers for commands: the answer to each goes to the connection that has sent it.
    [[nodiscard]] virtual qint64 nextId() { return ++mLastId; }

    [[nodiscard]] virtual bool isOpen() const { return mSocket && mSocket->state() == QLocalSocket::ConnectedState; }
    /// The process that holds its other end, where that is not the browser itself.
    [[nodiscard]] qint64 holder() const;
    /// True once the browser has said anything.
    [[nodiscard]] bool isAwake() const { return mAwake; }

  Q_SIGNALS:
    void received(const QJsonObject &message);
    /// The browser has gone, or whoever holds it.
    void ended();

  private:
    void read();

    std::unique_ptr<QLocalSocket> mSocket;
    QByteArray mUnread;
    qsizetype mSearched = 0; // so far there is no end of a message in mUnread
    qint64 mLastId = 0;
    bool mAwake = false;
};
