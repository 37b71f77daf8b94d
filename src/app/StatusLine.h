// The one way to tell the user something.
#pragma once

#include "app/Tips.h"

class StatusLine : public QObject
{
    Q_OBJECT

  public:
    /// The tool tip of nearly all status texts.
    static const QString standardTip;

    StatusLine(PictureBox &picStatus, const Tips &tips) : mStatus(picStatus), mTips(tips) {}

    /// Prints `text`, with signs in the place of control characters, followed by "..." and sets the tool tip, or none
    /// while tool tips are off. An empty text changes the tool tip alone.
    void UpDateStatus(const QString &text, const QString &tip = standardTip);

  Q_SIGNALS:
    /// A status text as it is shown.
    void told(const QString &text);

  private:
    PictureBox &mStatus;
    const Tips &mTips;
};
