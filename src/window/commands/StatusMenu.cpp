#include "window/commands/StatusMenu.h"

#include "app/SettingKeys.h"
#include "pages/Addresses.h"
#include "pages/EmailFinder.h"
#include "window/WindowPlaces.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto keepOnTopItem = "mnuANStatusKeepOnTop"_L1;
constexpr auto trueText = "True"_L1;
constexpr auto falseText = "False"_L1;
} // namespace

StatusMenu::StatusMenu(const Context &context, frmSearch &form, WindowPlace &place, BrowserHolder &browser,
                       Navigation &navigation, SiteRecords &records)
    : mContext(context), mForm(form), mPlace(place), mBrowser(browser), mNavigation(navigation), mRecords(records)
{
    const Menus &menus = form.menus;
    const Menu &menu = menus.mnuPopUpANStatus;
    connect(&menu, &Menu::aboutToShow, this, &StatusMenu::prepare);
    connect(&menu.item("mnuANStatusReSet"_L1), &MenuItem::Click, this, &StatusMenu::resetWanted);
    connect(&menu.item("mnuANStatusGetServer"_L1), &MenuItem::Click, this, &StatusMenu::getServer);
    connect(&menu.item(keepOnTopItem), &MenuItem::Click, this, &StatusMenu::keepOnTop);
    // The last four stand in both menus of the status bar.
    const auto both = [&](QLatin1StringView own, QLatin1StringView manual, auto command) {
        connect(&menu.item(own), &MenuItem::Click, this, command);
        connect(&menus.mnuPopUpMNStatus.item(manual), &MenuItem::Click, this, command);
    };
    both("mnuANStatusMinimize"_L1, "mnuMNStatusMinimize"_L1, [this] { mPlace.minimize(); });
    both("mnuANStatusHelp"_L1, "mnuMNStatusHelp"_L1, [this] { Q_EMIT helpWanted(); });
    both("mnuANStatusAbout"_L1, "mnuMNStatusAbout"_L1, [this] { Q_EMIT aboutWanted(); });
    both("mnuANStatusEnd"_L1, "mnuMNStatusEnd"_L1, [this] { Q_EMIT endWanted(); });
}

StatusMenu::AutoSave StatusMenu::autoSaveFor(const Facts &facts)
{
    if (facts.autoRun || facts.siteKnown)
        return AutoSave::Off;
    return facts.manualRun ? AutoSave::AsItIs : AutoSave::On;
}

void StatusMenu::prepare()
{
    guarded(mContext.log, {module, "Sub mnuPopUpANStatus_Click"_L1}, [&] {
        const Menu &menu = mForm.menus.mnuPopUpANStatus;
        menu.item(keepOnTopItem).setChecked(isKeptOnTop());
        if (!mForm.browser.mbInitialized || mForm.frame.sstSearch.tab() == Tab::Settings)
            return;
        menu.item("mnuANStatusReSet"_L1).setEnabled(!firstOf(mForm.autoRun.mastrLinks).isEmpty());
        const AutoSave autoSave =
            autoSaveFor({mForm.runs.mbANRunning, mForm.runs.mbMNRunning, mRecords.IsSiteDataSaved()});
        if (autoSave != AutoSave::AsItIs)
            Q_EMIT autoSaveDecided(autoSave == AutoSave::On);
    });
}

/// Opens the server of the page on show.
void StatusMenu::getServer()
{
    guarded(mContext.log, {module, "Sub mnuANStatusGetServer_Click"_L1}, [&] {
        if (!mForm.browser.mbInitialized)
            return;
        const QString server = cIEText::GetServerFromUrl(mBrowser->GetSiteUrl(), cIEText::keepAll);
        if (cIEText::IsThisEmailOrLink(server, true) == cIEText::TextKind::Link)
            mNavigation.OpenSite(server);
    });
}

bool StatusMenu::isKeptOnTop() const
{
    return mContext.settings.GetSetting(Sections::Main, Keys::KeepOnTop, trueText) == trueText;
}

void StatusMenu::keepOnTop()
{
    const bool onTop = !isKeptOnTop();
    mForm.menus.mnuPopUpANStatus.item(keepOnTopItem).setChecked(onTop);
    mPlace.putOnTop(onTop);
    saveOnTop(mContext.settings, u"frmSearch"_s, onTop);
    mContext.settings.SaveSetting(Sections::Main, Keys::KeepOnTop, onTop ? trueText : falseText);
}
