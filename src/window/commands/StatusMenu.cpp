#include "window/commands/StatusMenu.h"

#include "pages/Addresses.h"
#include "pages/EmailFinder.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
} // namespace

StatusMenu::StatusMenu(const Context &context, frmSearch &form, BrowserHolder &browser, Navigation &navigation,
                       SiteRecords &records)
    : mContext(context), mForm(form), mBrowser(browser), mNavigation(navigation), mRecords(records)
{
    const Menu &menu = form.menus.mnuPopUpANStatus;
    connect(&menu, &Menu::aboutToShow, this, &StatusMenu::prepare);
    connect(&menu.item("mnuANStatusReSet"_L1), &MenuItem::Click, this, &StatusMenu::resetWanted);
    connect(&menu.item("mnuANStatusGetServer"_L1), &MenuItem::Click, this, &StatusMenu::getServer);
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
