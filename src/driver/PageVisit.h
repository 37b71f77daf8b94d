// One page after the other as a run meets it: opened, given its time, and read. A browser that dies on the way is
// started again and the page opened again; a page on which it has died three times is passed over. Knows driver.
#pragma once

#include "driver/BrowserReviver.h"
#include "driver/Navigation.h"
#include "driver/PageReading.h"
#include "driver/Runs.h"

class PageVisit
{
  public:
    PageVisit(const Context &context, Navigation &navigation, BrowserHolder &browser, cTimer &timer, EventPump &pump,
              Runs &runs, BrowserReviver &reviver)
        : mContext(context), mNavigation(navigation), mBrowser(browser), mTimer(timer), mPump(pump), mRuns(runs),
          mReviver(reviver), mPage(browser)
    {
    }

    /// Sends the browser to `url`. False, with a status text, for what is no link.
    bool open(const QString &url);
    /// Gives the page its time; input stays live meanwhile.
    void wait(qint64 seconds);
    /// The page asked for stands there; False while nothing of it has come, and where it will not come.
    [[nodiscard]] bool hasArrived() const;
    /// True when the browser has died while it was asked for the page: it has been started again, and the page is on
    /// its way once more.
    [[nodiscard]] bool comesAgain();
    [[nodiscard]] bool hasBrowser() const { return mBrowser.isSet(); }
    /// The page on show, each part of it read once until the next open().
    [[nodiscard]] PageReading &page() { return mPage; }
    /// Where the browser stands. Error 91 without one.
    [[nodiscard]] QString siteUrl() { return mBrowser->GetSiteUrl(); }
    /// Handles what is waiting, user input too.
    void letEventsIn() { mPump.doEvents(); }

  private:
    [[nodiscard]] bool revive();
    [[nodiscard]] bool openAgain();

    Context mContext;
    Navigation &mNavigation;
    BrowserHolder &mBrowser;
    cTimer &mTimer;
    EventPump &mPump;
    Runs &mRuns;
    BrowserReviver &mReviver;
    PageReading mPage;
    QString mUrl;
    int mDeaths = 0;          ///< on this page
    bool mPassedOver = false; ///< this page
};
