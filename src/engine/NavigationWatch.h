// Watches over a navigation that has been asked for until its document is in place: an old page that keeps the browser
// from leaving it is made to let go. A script of the old page that never ends is broken off; a process that does not
// answer even then is ended, and the navigation has to be asked for again.
#pragma once

#include "engine/DevToolsConnection.h"

#include <QTimer>

class NavigationWatch : public QObject
{
    Q_OBJECT

  public:
    /// `connection` must outlive this object.
    NavigationWatch(DevToolsConnection &connection, QString session);

    void begin();
    void end();

  Q_SIGNALS:
    /// The old page's process has been ended on purpose.
    void pageEnded();

  private:
    void look();

    DevToolsConnection &mConnection;
    const QString mSession;
    QTimer mTimer;
    int mLook = 0;            // counts looks, so that a late answer is known as one
    bool mUnanswered = false; // the latest look has found no answer yet
    int mBrokenOff = 0;
};
