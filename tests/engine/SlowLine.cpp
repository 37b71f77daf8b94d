#include "SlowLine.h"

SlowLine::SlowLine(const QUrl &browser, std::chrono::milliseconds gap)
{
    connect(&mServer, &QWebSocketServer::newConnection, this, &SlowLine::accept);
    connect(&mBrowser, &QWebSocket::connected, &mGap, qOverload<>(&QTimer::start));
    connect(&mGap, &QTimer::timeout, this, [this] {
        if (mCommands.empty())
            return;
        mBrowser.sendTextMessage(mCommands.front());
        mCommands.pop_front();
    });
    mGap.setInterval(gap);
    mServer.listen(QHostAddress::LocalHost);
    mBrowser.open(browser);
}

void SlowLine::accept()
{
    QWebSocket *program = mServer.nextPendingConnection();
    connect(program, &QWebSocket::textMessageReceived, this,
            [this](const QString &command) { mCommands.push_back(command); });
    connect(&mBrowser, &QWebSocket::textMessageReceived, program,
            [program](const QString &word) { program->sendTextMessage(word); });
}
