// A line to a browser on which each command comes some time after the one before it, as from a program that gets little
// of the processor. What the browser says comes through at once.
#pragma once

#include <QObject>
#include <QTimer>
#include <QUrl>
#include <QWebSocket>
#include <QWebSocketServer>
#include <deque>

class SlowLine : public QObject
{
  public:
    SlowLine(const QUrl &browser, std::chrono::milliseconds gap);

    /// Where the line begins; one program can use it.
    [[nodiscard]] QUrl address() const { return mServer.serverUrl(); }

  private:
    void accept();

    QWebSocketServer mServer{QString(), QWebSocketServer::NonSecureMode};
    QWebSocket mBrowser;
    QTimer mGap;
    std::deque<QString> mCommands;
};
