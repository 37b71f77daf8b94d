// Connects a browser, takes note when it goes, starts one again that has died in a run, and puts its window beside
// ours.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "driver/BrowserHolder.h"
#include "driver/BrowserReviver.h"
#include "driver/Runs.h"

/// The ways out that a connection takes.
struct BrowserPorts
{
    EventPump &pump;
    Desktop &desktop;
    ClipboardText &clipboard;
    WindowPlace &place;
    BrowserFactory &browsers;
};

class BrowserConnection : public QObject, public BrowserReviver
{
    Q_OBJECT

  public:
    BrowserConnection(const Context &context, BrowserPanel &panel, const Limits &limits, const OptionBoxes &options,
                      Runs &runs, BrowserHolder &browser, const BrowserPorts &outside);

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

    [[nodiscard]] bool hasDied() const override { return mDied; }
    bool revive() override;
    void leaveDead() override { windowClosed(); }

  private:
    [[nodiscard]] bool connectInternal();
    [[nodiscard]] bool connectFreeStanding();
    [[nodiscard]] std::shared_ptr<BrowserEngine> startBrowser();
    [[nodiscard]] bool take(std::shared_ptr<BrowserEngine> browser);
    [[nodiscard]] std::chrono::milliseconds scriptLimit() const;
    void windowClosed();
    void died();
    void newWindow(bool *cancel);

    Context mContext;
    BrowserPanel &mPanel;
    const Limits &mLimits;
    const OptionBoxes &mOptions;
    Runs &mRuns;
    BrowserHolder &mBrowser;
    BrowserPorts mOut;
    int mAttempt = 0; ///< a later attempt, made from within the wait of this one, replaces it
    bool mDied = false;
};
