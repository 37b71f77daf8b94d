// A web server on loopback whose answers are bytes, so that they can be as wrong as real ones: cut off, slow, endless,
// with a length that is not theirs. It lives in the test's own event loop and serves while a transfer waits in it.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QTcpServer>
#include <functional>

class QTcpSocket;

struct RawReply
{
    QByteArray bytes = {}; ///< everything that is sent, the status line included
    bool closes = false;   ///< behind the last byte
    int piece = 0;         ///< bytes sent at a time; 0 for all at once
    int pause = 0;         ///< milliseconds before each piece
    bool repeats = false;  ///< begins again at `repeatFrom` and never ends
    qsizetype repeatFrom = 0;
};

/// A reply with its right length. `headers` are whole lines, each with its end.
[[nodiscard]] RawReply okReply(const QByteArray &body, const QByteArray &headers = {},
                               const QByteArray &status = "200 OK");
[[nodiscard]] RawReply redirectReply(const QString &target, const QByteArray &status = "302 Found",
                                     const QByteArray &body = {});

struct RawRequest
{
    QByteArray head; ///< request line and headers
    [[nodiscard]] QByteArray target() const { return head.split(' ').value(1); }
    /// The value of a header, "" when it was not sent.
    [[nodiscard]] QByteArray header(const QByteArray &name) const;
};

class RawServer : public QObject
{
    Q_OBJECT

  public:
    RawServer();

    [[nodiscard]] QString address(const QString &path, const QString &host = QStringLiteral("127.0.0.1")) const;
    [[nodiscard]] quint16 port() const { return mServer.serverPort(); }
    void route(const QByteArray &target, const RawReply &reply) { mRoutes.insert(target, reply); }

    QList<RawRequest> requests;
    int connections = 0;
    std::function<void()> onRequest; ///< called for each request, before it is answered

  private:
    void accept();
    void read(QTcpSocket *socket);
    void send(QTcpSocket *socket, const RawReply &reply, qsizetype from);

    QHash<QByteArray, RawReply> mRoutes;
    QHash<QTcpSocket *, QByteArray> mUnread;
    QTcpServer mServer; ///< last: its sockets tell of their end while they go
};
