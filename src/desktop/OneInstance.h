// Tells a second start of the same program by the same user, and lets the first one know of it.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

class OneInstance : public QObject
{
    Q_OBJECT

  public:
    /// `appName` tells users and copies of the program apart; lock and socket lie in `folder`, which is the user's own.
    OneInstance(const QString &appName, const QString &folder);
    /// Where they lie when nothing else is said: the user's folder for the time of a session, else that for data.
    [[nodiscard]] static QString usualFolder();

    /// True for the first instance alone, as long as this object lives.
    [[nodiscard]] bool isFirst() const { return mFirst; }
    /// Tells the first instance that there has been another start. False when it does not listen.
    [[nodiscard]] bool tellFirst() const;

  Q_SIGNALS:
    /// The program has been started once more.
    void startedAgain();

  private:
    void listen();

    QString mPath; // of lock and socket, without their endings
    QLockFile mLock;
    QLocalServer mServer;
    bool mFirst;
};
