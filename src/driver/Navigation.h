// The one gate through which every run sends the browser to an address.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "driver/BrowserHolder.h"

class Navigation
{
  public:
    Navigation(const Context &context, BrowserPanel &panel, BrowserHolder &browser)
        : mContext(context), mPanel(panel), mBrowser(browser)
    {
    }
    /// Issues the navigation and returns; never waits for the page. False, with a status text, for what is no link.
    bool OpenSite(const QString &url);

  private:
    Context mContext;
    BrowserPanel &mPanel;
    BrowserHolder &mBrowser;
};
