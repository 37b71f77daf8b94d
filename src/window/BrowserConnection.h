// Connects a browser, takes note when it goes, and puts its window beside ours.
#pragma once

#include "app/ErrorLog.h"
#include "app/Ports.h"
#include "app/StatusLine.h"
#include "app/cTimer.h"
#include "app/frmSearch.h"
#include "driver/BrowserHolder.h"

class BrowserConnection : public QObject
{
    Q_OBJECT

  public:
    struct Outside
    {
        EventPump &pump;
        UserDialogs &dialogs;
        Desktop &desktop;
        ClipboardText &clipboard;
        SettingsStore &settings;
        WindowPlace &place;
        BrowserFactory &browsers;
    };
    BrowserConnection(ErrorReceiver &log, frmSearch &form, StatusLine &status, ControlStates &states, cTimer &timer,
                      BrowserHolder &browser, const Outside &outside);

    /// Connects the browser that cboANWBSelect names, starting it where none runs.
    void InitializeIE();
    /// The user asks to connect again.
    void cmdANInitialize_Click();
    /// Establishes which program is the free-standing browser; asks the user where none is found.
    [[nodiscard]] bool VerifyIEPath();
    /// Our window to the top left corner, the free-standing browser at its right side.
    void SetStandardPosition();
    /// The program is about to end: a connecting under way is given up.
    void giveUp() { ++mAttempt; }

  private:
    [[nodiscard]] bool connectInternal();
    [[nodiscard]] bool connectFreeStanding();
    [[nodiscard]] std::shared_ptr<BrowserEngine> startBrowser();
    void windowClosed();
    void newWindow(bool *cancel);

    ErrorReceiver &mLog;
    frmSearch &mForm;
    StatusLine &mStatus;
    ControlStates &mStates;
    cTimer &mTimer;
    BrowserHolder &mBrowser;
    Outside mOut;
    int mAttempt = 0; ///< a later attempt, made from within the wait of this one, replaces it
};
