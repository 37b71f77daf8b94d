// Watches over a navigation that has been asked for until its document is in place: an old page that keeps the browser
// from leaving it is made to let go. A script of the old page that never ends is broken off; when the page does not
// answer even then, as when it hangs while the new document is about to take its place, its window has to be given up.
#pragma once

#include "engine/chromium/DevToolsConnection.h"

#include <QTimer>

class NavigationWatch : public QObject
{
    Q_OBJECT

  public:
    /// `connection` must outlive this object.
    explicit NavigationWatch(DevToolsConnection &connection);

    void begin(const QString &session);
    /// The new document is about to take its place: from here on the old page takes no commands, and a page that does
    /// not make room soon never will.
    void documentComing();
    /// The old page's process is being ended, which makes room too.
    void processEnding();
    void end();

  Q_SIGNALS:
    /// The old page's window can no longer be used; the watch is over.
    void pageStuck();

  private:
    void look();
    void expectWithin(std::chrono::milliseconds limit);

    DevToolsConnection &mConnection;
    QString mSession;
    QTimer mTimer;
    int mLook = 0;            // counts looks, so that a late answer is known as one
    bool mUnanswered = false; // the latest look has found no answer yet
    int mBrokenOff = 0;
};
