#include "RawServer.h"

#include <QTcpSocket>
#include <QTimer>

RawReply okReply(const QByteArray &body, const QByteArray &headers, const QByteArray &status)
{
    return {.bytes = "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n" +
                     headers + "\r\n" + body};
}

RawReply redirectReply(const QString &target, const QByteArray &status, const QByteArray &body)
{
    return okReply(body, "Location: " + target.toUtf8() + "\r\n", status);
}

QByteArray RawRequest::header(const QByteArray &name) const
{
    for (const QByteArray &line : head.split('\n'))
        if (line.toLower().startsWith(name.toLower() + ':'))
            return line.mid(name.size() + 1).trimmed();
    return {};
}

RawServer::RawServer()
{
    connect(&mServer, &QTcpServer::newConnection, this, &RawServer::accept);
    // Any address of this machine's own net: 127.0.0.1 and 127.0.0.2 are two hosts to a client.
    mServer.listen(QHostAddress(QStringLiteral("127.0.0.1")));
}

QString RawServer::address(const QString &path, const QString &host) const
{
    return QStringLiteral("http://%1:%2%3").arg(host).arg(port()).arg(path);
}

void RawServer::accept()
{
    while (QTcpSocket *socket = mServer.nextPendingConnection()) {
        ++connections;
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            mUnread.remove(socket);
            socket->deleteLater();
        });
    }
}

void RawServer::read(QTcpSocket *socket)
{
    QByteArray &unread = mUnread[socket];
    unread += socket->readAll();
    const qsizetype end = unread.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    requests += RawRequest{unread.first(end)};
    unread.remove(0, end + 4);
    if (onRequest)
        onRequest();
    send(socket, mRoutes.value(requests.last().target(), okReply("nothing here", {}, "404 Not Found")), 0);
}

void RawServer::send(QTcpSocket *socket, const RawReply &reply, qsizetype from)
{
    if (reply.pause > 0 || from > 0) {
        QTimer::singleShot(reply.pause, socket, [this, socket, reply, from] {
            const qsizetype size = reply.piece > 0 ? reply.piece : reply.bytes.size();
            socket->write(reply.bytes.mid(from, size));
            const qsizetype next = from + size;
            if (next < reply.bytes.size())
                send(socket, reply, next);
            else if (reply.repeats)
                send(socket, reply, reply.repeatFrom);
            else if (reply.closes)
                socket->disconnectFromHost();
        });
        return;
    }
    socket->write(reply.bytes);
    if (reply.closes)
        socket->disconnectFromHost();
}
