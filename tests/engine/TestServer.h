// A small web server on loopback for tests of browsers: routes with bodies, headers, delays. It lives in the test's own
// event loop, so it serves only while that loop runs (a wait of the test, or a blocking call of an engine).
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QTcpServer>

class QTcpSocket;

struct TestRequest
{
    QByteArray method;
    QByteArray path;                       ///< with its query
    QHash<QByteArray, QByteArray> headers; ///< names in lower case
};

struct TestReply
{
    QByteArray body = {};
    QByteArray contentType = "text/html; charset=utf-8";
    int status = 200;
    QList<QByteArray> headers = {}; ///< further lines, each "Name: value"
    int delay = 0;                  ///< milliseconds before anything is sent; negative: never answered
};

class TestServer : public QObject
{
    Q_OBJECT

  public:
    TestServer();

    [[nodiscard]] quint16 port() const { return mServer.serverPort(); }
    /// The address of `path` ("/page") on this server. `host` may be any name that the browser maps to loopback.
    [[nodiscard]] QString address(const QString &path, const QString &host = QStringLiteral("127.0.0.1")) const;
    /// What "GET `path`" gives; the query of a request is ignored when there is no route that has it.
    void route(const QByteArray &path, const TestReply &reply) { mRoutes.insert(path, reply); }
    void page(const QByteArray &path, const QByteArray &html) { route(path, TestReply{.body = html}); }
    /// Every request that came in, in order.
    [[nodiscard]] const QList<TestRequest> &requests() const { return mRequests; }
    [[nodiscard]] int requestCount(const QByteArray &path) const;

  private:
    void accept();
    void read(QTcpSocket *socket);
    void answer(QTcpSocket *socket, const TestRequest &request);
    [[nodiscard]] TestReply replyTo(const QByteArray &path) const;

    QHash<QByteArray, TestReply> mRoutes;
    QHash<QTcpSocket *, QByteArray> mUnread;
    QList<TestRequest> mRequests;
    QTcpServer mServer; ///< last: its sockets tell of their end while they go
};
