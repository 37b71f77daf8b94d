// What the menus of the status bar do with the main window itself: on top or not, smaller, help, about, the end.
#pragma once

#include "app/Context.h"
#include "app/Menus.h"
#include "app/SideWindows.h"

class WindowCommands : public QObject
{
    Q_OBJECT

  public:
    WindowCommands(const Context &context, Menus &menus, WindowPlace &place, SideWindows &side);

    /// Once after the start: on top, unless the user has taken the window down.
    void tmrKeepOnTop_Timer();

  Q_SIGNALS:
    void endWanted();

  private:
    void mnuANStatusKeepOnTop_Click();

    Context mContext;
    Menus &mMenus;
    WindowPlace &mPlace;
};
