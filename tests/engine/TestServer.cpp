#include "TestServer.h"

#include <QTcpSocket>
#include <QTimer>

TestServer::TestServer()
{
    QObject::connect(&mServer, &QTcpServer::newConnection, this, &TestServer::accept);
    mServer.listen(QHostAddress::LocalHost);
}

QString TestServer::address(const QString &path, const QString &host) const
{
    return QStringLiteral("http://%1:%2%3").arg(host).arg(port()).arg(path);
}

int TestServer::requestCount(const QByteArray &path) const
{
    int count = 0;
    for (const TestRequest &request : mRequests)
        count += request.path == path ? 1 : 0;
    return count;
}

void TestServer::accept()
{
    while (QTcpSocket *socket = mServer.nextPendingConnection()) {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        QObject::connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        QObject::connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            mUnread.remove(socket);
            socket->deleteLater();
        });
    }
}

// Requests without a body only; a connection may bring several, one after the other.
void TestServer::read(QTcpSocket *socket)
{
    QByteArray &unread = mUnread[socket];
    unread += socket->readAll();
    for (qsizetype end = unread.indexOf("\r\n\r\n"); end >= 0; end = unread.indexOf("\r\n\r\n")) {
        const QList<QByteArray> lines = unread.left(end).split('\n');
        unread.remove(0, end + 4);
        TestRequest request;
        const QList<QByteArray> first = lines.front().trimmed().split(' ');
        request.method = first.value(0);
        request.path = first.value(1);
        for (const QByteArray &line : lines.mid(1)) {
            const qsizetype colon = line.indexOf(':');
            request.headers.insert(line.left(colon).trimmed().toLower(), line.mid(colon + 1).trimmed());
        }
        mRequests.append(request);
        answer(socket, request);
    }
}

TestReply TestServer::replyTo(const QByteArray &path) const
{
    const auto exact = mRoutes.constFind(path);
    if (exact != mRoutes.constEnd())
        return *exact;
    const TestReply missing{.body = "<title>missing</title>no such page", .status = 404};
    return mRoutes.value(path.left(path.indexOf('?')), missing);
}

void TestServer::answer(QTcpSocket *socket, const TestRequest &request)
{
    const TestReply reply = replyTo(request.path);
    if (reply.delay < 0)
        return;
    QByteArray message = "HTTP/1.1 " + QByteArray::number(reply.status) + " Status\r\n";
    if (reply.status != 204 && reply.status != 304)
        message += "Content-Type: " + reply.contentType +
                   "\r\nContent-Length: " + QByteArray::number(reply.body.size()) + "\r\n";
    for (const QByteArray &line : reply.headers)
        message += line + "\r\n";
    message += "Cache-Control: no-store\r\n\r\n" + reply.body;
    if (reply.delay == 0)
        socket->write(message);
    else
        QTimer::singleShot(reply.delay, socket, [socket, message] { socket->write(message); });
}
