#include "window/commands/ManualPopUps.h"

#include "util/Text.h"
#include "window/commands/ManualListRules.h"
#include "window/commands/ManualStatusRules.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
}

ManualPopUps::ManualPopUps(const Context &context, frmSearch &form, const ManualDesk &desk, ManualTables &tables,
                           ManualFind &find, AutoIncr &series, const ClipboardText &clipboard)
    : mContext(context), mForm(form), mDesk(desk), mTables(tables), mFind(find), mSeries(series), mClipboard(clipboard)
{
    connect(&form.menus.mnuPopUpMN, &Menu::aboutToShow, this, &ManualPopUps::mnuPopUpMN_Click);
    connect(&form.menus.mnuPopUpMNStatus, &Menu::aboutToShow, this, &ManualPopUps::mnuPopUpMNStatus_Click);
}

void ManualPopUps::mnuPopUpMN_Click()
{
    guarded(mContext.log, {module, "Sub mnuPopUpMN_Click"_L1}, [&] {
        ManualListFacts facts;
        facts.initialized = mForm.browser.mbInitialized;
        facts.walksListOnShow = mDesk.IsRunningListActiveMN();
        if (facts.isRestricted())
            return applyManualListRules(mForm.menus.mnuPopUpMN, facts);
        facts.manualRun = mForm.runs.mbMNRunning;
        facts.series = mDesk.GetAutoIncrChecked() > 0;
        facts.base = mDesk.usesBase();
        facts.hasSelection = mDesk.list().selCount() > 0;
        facts.items = mDesk.list().listCount();
        for (int i = 0; i < listNames.size(); ++i)
            facts.filledLists += mDesk.list(i).listCount() > 0 ? 1 : 0;
        facts.tableHasRows = mTables.hasRows(mDesk.table());
        facts.canFindNext = mFind.canGoOn();
        if (facts.items > 0 && !facts.canFindNext)
            mFind.forget();
        facts.filterKind = mForm.urlFilter.cboMNMCMNC.listIndex();
        facts.hasFilterText = !mForm.urlFilter.cboMNMCMNCFilter.text().isEmpty();
        facts.clipboardHasText = !mClipboard.text().isEmpty();
        applyManualListRules(mForm.menus.mnuPopUpMN, facts);
    });
}

void ManualPopUps::mnuPopUpMNStatus_Click()
{
    guarded(mContext.log, {module, "Sub mnuPopUpMNStatus_Click"_L1}, [&] {
        const Menu &menu = mForm.menus.mnuPopUpMNStatus;
        ManualStatusFacts facts;
        facts.idle = mForm.runs.idle();
        facts.manualRun = mForm.runs.mbMNRunning;
        facts.series = mDesk.GetAutoIncrChecked() > 0;
        facts.hasUrl = !cUtility::Trim(mForm.series.cboMNAutoUrl.text()).isEmpty();
        if (facts.idle && facts.series)
            menu.item("mnuMNUseAutoBase"_L1).setChecked(false);
        if (facts.hasUrl) {
            facts.seriesFits = mSeries.SetupAutoIncrMenu() >= 1;
        } else {
            for (int i = 1; i <= Series::MostPositions; ++i)
                menu.item("mnuMNStatusAutoIncrPos"_L1, i).setChecked(false);
        }
        applyRules(menu, manualStatusRules(), facts);
        if (facts.hasUrl)
            mSeries.CheckMNAutoNav();
    });
}
