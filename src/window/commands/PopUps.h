// Opens pop-up menus, which need a connected browser.
#pragma once

#include "app/FormGroups.h"
#include "app/Ports.h"
#include "app/StatusLine.h"

class PopUps
{
  public:
    PopUps(const BrowserPanel &browser, StatusLine &status, PopUpMenus &menus)
        : mBrowser(browser), mStatus(status), mMenus(menus)
    {
    }
    /// Shows the menu at the pointer. Without a browser the status tells so; a disabled menu stays closed.
    void ShowPopUp(Menu &menu);

  private:
    const BrowserPanel &mBrowser;
    StatusLine &mStatus;
    PopUpMenus &mMenus;
};
