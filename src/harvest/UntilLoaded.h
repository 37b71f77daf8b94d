// Ends each wait of a run as soon as the page has finished loading, as a click on the timer would.
#pragma once

#include "app/cTimer.h"
#include "driver/BrowserHolder.h"

class UntilLoaded : public QObject
{
    Q_OBJECT

  public:
    UntilLoaded(cTimer &timer, BrowserHolder &browser) : mTimer(timer), mBrowser(browser)
    {
        connect(&timer, &cTimer::started, this, &UntilLoaded::test);
        connect(&browser, &BrowserHolder::loadingEnded, this, &UntilLoaded::test);
    }

  private:
    void test()
    {
        if (mTimer.InProgress() && (!mBrowser.isSet() || !mBrowser->isLoading()))
            mTimer.CancelTimer();
    }

    cTimer &mTimer;
    BrowserHolder &mBrowser;
};
