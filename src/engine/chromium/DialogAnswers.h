// Answers the boxes that a page puts before its user, so that none ever stands: alert is confirmed, confirm and prompt
// are declined, "leave this page?" is agreed to.
#pragma once

#include "engine/chromium/DevToolsConnection.h"

class DialogAnswers : public QObject
{
    Q_OBJECT

  public:
    /// `connection` must outlive this object.
    explicit DialogAnswers(DevToolsConnection &connection) : mConnection(connection) {}

    void answer(const QString &session, const QJsonObject &dialog);
    /// A new page: its boxes are counted anew.
    void newPage();
    /// The page's script is to be broken off, which a script that does nothing but show boxes takes notice of only
    /// after thousands of them: they are answered without delay until the next page.
    void hurry() { mHurry = true; }

  private:
    DevToolsConnection &mConnection;
    int mCount = 0;
    bool mHurry = false;
};
