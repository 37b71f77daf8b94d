// The one gate through which every run sends the browser to an address.
#pragma once

#include "app/StatusLine.h"
#include "app/frmSearch.h"
#include "driver/BrowserHolder.h"

class Navigation
{
  public:
    Navigation(ErrorReceiver &log, frmSearch &form, StatusLine &status, BrowserHolder &browser)
        : mLog(log), mForm(form), mStatus(status), mBrowser(browser)
    {
    }
    /// Issues the navigation and returns; never waits for the page. False, with a status text, for what is no link.
    bool OpenSite(const QString &url);

  private:
    ErrorReceiver &mLog;
    frmSearch &mForm;
    StatusLine &mStatus;
    BrowserHolder &mBrowser;
};
