// The windows of one browser, seen from the one that is ours: finds it, attaches to it and to its frames in other
// processes, holds back the windows that its pages open until they are allowed, and tells when it crashes or closes.
// Windows that the user opens are let go at once.
#pragma once

#include "engine/chromium/DevToolsConnection.h"

#include <QSet>

class TargetWatch : public QObject
{
    Q_OBJECT

  public:
    /// `connection` must outlive this object.
    explicit TargetWatch(DevToolsConnection &connection) : mConnection(connection) {}

    /// Attaches to the browser's first page window, made if there is none, made anew if it hangs. Raises a
    /// RuntimeError.
    void attach();

    /// Opens another window in the place of ours, which is closed without a word; windowReplaced() tells when it is
    /// done.
    void replaceWindow();

    [[nodiscard]] const QString &target() const { return mTarget; }
    /// The session of our page.
    [[nodiscard]] const QString &session() const { return mSession; }
    /// The page's address when it was attached.
    [[nodiscard]] const QString &address() const { return mAddress; }
    /// True for the sessions of our page and its frames.
    [[nodiscard]] bool isOfPage(const QString &session) const { return mSessions.contains(session); }

    /// Takes the events of the domain Target.
    void attached(const QString &parent, const QJsonObject &params);
    void detached(const QJsonObject &params);
    void destroyed(const QJsonObject &params);
    void crashed(const QJsonObject &params);

  Q_SIGNALS:
    /// A page of ours opens a window; it stands still until this has returned. Set `*cancel` to close it.
    void windowWanted(bool *cancel);
    void processLost();
    void windowReplaced();
    void windowClosed();

  private:
    [[nodiscard]] QJsonObject findPage();
    void awaitPage();
    void keepOpen();
    void close();
    void openReplacement(const QJsonObject &bounds);
    void takeReplacement(const QString &session, const QString &target);
    void preparePage(const QString &session);
    void whenReady(std::function<void()> then);
    void guard(const QString &session);
    void silence(const QString &session);
    void decideOnWindow(const QString &session, const QJsonObject &info, bool isNew);
    void refuse(const QString &session, const QJsonObject &info);
    void run(const QString &session, DevToolsConnection::Then then = {});

    DevToolsConnection &mConnection;
    QString mTarget;
    QString mSession;
    QString mAddress;
    QSet<QString> mSessions; // of our page and its frames
    QSet<QString> mFamily;   // our window and those that came from it
    bool mReady = false;     // our page has taken all commands
    bool mGone = false;      // our window is closed
    bool mReplacing = false; // the next window that nobody has opened is ours
};
