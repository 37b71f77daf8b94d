#include "window/commands/WindowCommands.h"

#include "app/SettingKeys.h"
#include "window/WindowPlaces.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto onTop = "True"_L1;
} // namespace

WindowCommands::WindowCommands(const Context &context, Menus &menus, WindowPlace &place, SideWindows &side)
    : mContext(context), mMenus(menus), mPlace(place)
{
    const MenuItem &keep = menus.mnuPopUpANStatus.item("mnuANStatusKeepOnTop");
    connect(&keep, &MenuItem::Click, this, &WindowCommands::mnuANStatusKeepOnTop_Click);
    const auto inBoth = [&](QLatin1StringView command, auto effect) {
        connect(&menus.mnuPopUpANStatus.item("mnuANStatus"_L1 + command), &MenuItem::Click, this, effect);
        connect(&menus.mnuPopUpMNStatus.item("mnuMNStatus"_L1 + command), &MenuItem::Click, this, effect);
    };
    inBoth("Minimize"_L1, [this] { mPlace.minimize(); });
    inBoth("Help"_L1, [&side] { side.showHelp(); });
    inBoth("About"_L1, [&side] { side.showAbout(); });
    inBoth("End"_L1, [this] { Q_EMIT endWanted(); });
}

void WindowCommands::mnuANStatusKeepOnTop_Click()
{
    MenuItem &keep = mMenus.mnuPopUpANStatus.item("mnuANStatusKeepOnTop");
    keep.setChecked(!keep.isChecked());
    mPlace.putOnTop(keep.isChecked());
    saveOnTop(mContext.settings, mainWindowName, keep.isChecked());
    mContext.settings.SaveSetting(Sections::Main, Keys::KeepOnTop, keep.stored());
}

void WindowCommands::tmrKeepOnTop_Timer()
{
    if (mContext.settings.GetSetting(Sections::Main, Keys::KeepOnTop, onTop) == onTop)
        mnuANStatusKeepOnTop_Click();
}
