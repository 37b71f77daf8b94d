// Holds the pipe to a browser that outlives the program which started it, and offers it on a local socket that only
// this user can open, to one client at a time. Ends with the browser; the browser ends with it.
//
// A client's sessions end with the client: the next one finds none of them, and hears nothing that was said to them.
#pragma once

#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStringList>
#include <memory>

class PipeHolder : public QObject
{
    Q_OBJECT

  public:
    /// `browser` is connected to the browser.
    explicit PipeHolder(std::unique_ptr<QLocalSocket> browser);

    /// Offers the pipe at `path`. False when it cannot.
    [[nodiscard]] bool listen(const QString &path);

  Q_SIGNALS:
    /// The browser has gone.
    void ended();

  private:
    void takeClient();
    void loseClient();
    void readClient();
    void leave();
    void tell(const QString &method, const QJsonObject &params = {});
    void readBrowser();
    void handle(const QByteArray &message);

    std::unique_ptr<QLocalSocket> mBrowser;
    QLocalServer mServer;
    QLocalSocket *mClient = nullptr; // of the server
    QByteArray mUnread;              // of the browser
    QByteArray mUnsent;              // of the client: what is no whole command yet
    QStringList mSessions;           // that the client has of the browser itself
    qint64 mLeaving = 0;             // our command behind the end of the old client's sessions, until it is answered
    qint64 mLastId;
};
