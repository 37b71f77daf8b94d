// The Auto run: takes the result links of a page, or of one saved result page after the other, visits them at the pace
// of the countdown and screens each page. One synchronous loop; buttons, browser events and the end of the program run
// inside its waits and reach it through the flags of frmSearch alone. Knows lists.
#pragma once

#include "app/frmSearch.h"
#include "harvest/PageScreening.h"
#include "sites/ResultLinks.h"

class AutoRun : public QObject
{
    Q_OBJECT

  public:
    AutoRun(ErrorReceiver &log, frmSearch &form, StatusLine &status, ControlStates &states, EventPump &pump,
            cTimer &timer, BrowserHolder &browser, Navigation &navigation, SiteRecords &records, ResultLinks &links,
            SavedUrls &savedUrls, PageScreening &screening);

    /// Go starts or resumes, X stops.
    void cmdANStart_Click();
    /// The run itself; returns when it has ended.
    void StartProcessAN();
    /// Forgets the walk, and stops a run.
    void ResetProcessAN();
    /// The common end of both kinds of run.
    void FinalizeProcess(const QString &status);

  Q_SIGNALS:
    /// Link `number` of `count`, from 1, is about to be opened.
    void visiting(int number, int count, const QString &url);
    /// A run has ended with this status.
    void finalized(const QString &status);

  private:
    /// What one call of StartProcessAN keeps.
    struct Walk
    {
        bool useSaved = false;
        bool serversOnly = false;
        int saved = 0;
        int lastSaved = 0;
        int lastLink = 0; ///< highest index of the links of the page being walked
        bool lastEmpty = false;
        int emptyCount = 0;
        bool noUrls = false;
    };
    enum class Next { GoOn, LeaveMainLoop };

    void run();
    [[nodiscard]] bool prepare(Walk &walk);
    [[nodiscard]] bool takeLinksOfPage(const Walk &walk);
    [[nodiscard]] Next walkSavedPage(Walk &walk);
    [[nodiscard]] Next openResultPage(const Walk &walk);
    void takePassUrl(const Walk &walk);
    [[nodiscard]] Next walkLinks(const Walk &walk);
    [[nodiscard]] Next visit(const Walk &walk, int index);
    [[nodiscard]] QString end(const Walk &walk);
    void readLinks(const Walk &walk);
    [[nodiscard]] bool mayGoOn() const { return !mForm.runs.mbANCancel && mForm.browser.mbInitialized; }
    [[nodiscard]] QString savedUrl(int row);

    ErrorReceiver &mLog;
    frmSearch &mForm;
    StatusLine &mStatus;
    ControlStates &mStates;
    EventPump &mPump;
    cTimer &mTimer;
    BrowserHolder &mBrowser;
    Navigation &mNavigation;
    SiteRecords &mRecords;
    ResultLinks &mLinks;
    SavedUrls &mSavedUrls;
    PageScreening &mScreening;
};
