#include "window/commands/PopUps.h"

using namespace Qt::StringLiterals;

void PopUps::ShowPopUp(Menu &menu)
{
    if (!mBrowser.mbInitialized)
        mStatus.UpDateStatus(u"Not initialized"_s);
    else if (menu.isEnabled())
        mMenus.popUp(menu);
}
