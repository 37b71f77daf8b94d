#include "window/states/StateFacts.h"

#include "pages/EmailFinder.h"
#include "util/Incr.h"

namespace {
bool hasChoice(const ComboBox &combo)
{
    return !combo.text().isEmpty();
}

/// Whether `address` is a link that a series can count through.
bool hasSeriesNumber(const QString &address)
{
    return !address.isEmpty() && cUtility::countNumbers(address) > 0 &&
           cIEText::IsThisEmailOrLink(address, true) == cIEText::TextKind::Link;
}

/// The menu item of the number that counts, "First" to "Nine".
bool isCounted(const Menu &menu)
{
    const auto positions = menu.children("mnuMNStatusAutoIncrementNumber");
    return std::any_of(positions.begin(), positions.end(), [](const MenuItem *item) { return item->isChecked(); });
}

void readTabs(const WindowFrame &frame, StateFacts &facts)
{
    const int tab = frame.sstSearch.tab();
    facts.onAuto = tab == Tab::Auto;
    facts.onManual = tab == Tab::Manual;
    facts.onSettings = tab == Tab::Settings;
    facts.onData = tab == Tab::Data;
    const bool files = facts.onSettings && frame.sstSettings.tab() == Tab::Files;
    const bool misc = facts.onSettings && frame.sstSettings.tab() == Tab::Misc;
    facts.onDirectory = files && frame.sstFiles.tab() == Tab::Directory;
    facts.onImport = files && frame.sstFiles.tab() == Tab::Import;
    facts.onSave = misc && frame.sstMiscOptions.tab() == Tab::Save;
    facts.onSites = misc && frame.sstMiscOptions.tab() == Tab::Sites;
}

void readOutputs(const Outputs &outputs, StateFacts &facts)
{
    facts.hasOutput = outputs.chkSaveSummary.isOn() || outputs.chkSavePages.isOn() || outputs.chkSaveUrl.isOn() ||
                      outputs.chkSaveEmail.isOn() || outputs.chkSavePhone.isOn() || outputs.chkMCMNCStop.isOn();
    facts.savesPages = outputs.chkSavePages.value() == 1;
    facts.savesEmail = outputs.chkSaveEmail.value() == 1;
    facts.savesToFile = outputs.chkSaveToFile.value() == 1;
}

void readCriteria(const frmSearch &form, StateFacts &facts)
{
    facts.mustContain = form.criteria.mustContain.on.value() == 1;
    facts.mustNotContain = form.criteria.mustNotContain.on.value() == 1;
    facts.hasSets = form.criteria.cboANMCMNCMask.listCount() > 0;
    facts.setChosen = form.criteria.cboANMCMNCMask.listIndex() >= 0;
    facts.blocksUrls = form.blocking.urls.items.listCount() > 0;
    facts.blocksEmail = form.blocking.email.items.listCount() > 0;
}

void readSaved(const SavedAddresses &saved, StateFacts &facts)
{
    facts.passUrlsLoaded = saved.mbPassUrlsLoaded;
    facts.hasSavedUrls = saved.cboANSavedUrls.listCount() > 0;
    facts.savedUrlChosen = saved.cboANSavedUrls.listIndex() >= 0;
    facts.usesSavedUrls = saved.chkUseSavedUrls.value() == 1;
}

void readManual(const frmSearch &form, StateFacts &facts)
{
    const int shown = form.lists.cboMNList.listIndex();
    facts.listEmpty = shown < 0 || form.lists.shown().listCount() == 0;
    facts.opensFiles = form.manual.cboFilesSites.listIndex() == 0;
    facts.walksListOnShow = facts.manualRun && form.manual.mintMNRunningList == shown;
    facts.seriesHasNumber = facts.onManual && hasSeriesNumber(form.series.cboMNAutoUrl.text());
    facts.seriesIsCounted = facts.onManual && isCounted(form.menus.mnuPopUpMNStatus);
    facts.navigatesByItself = facts.onManual && form.menus.mnuPopUpMNStatus.item("mnuMNStatusAutoNavigate").isChecked();
}

void readImport(const ImportPage &page, StateFacts &facts)
{
    facts.importsAll = page.chkSFIAllSettings.isOn() || page.chkSFIAllData.isOn();
    facts.importsTable = page.chkSFIImportTable.value() == 1;
    facts.importsField = page.chkSFIImportField.value() == 1;
    facts.importNamed = !page.lblSFIImportDatabase.caption().isEmpty();
    facts.tableInChosen = hasChoice(page.cboSFITableIn);
    facts.allFourChosen = facts.tableInChosen && hasChoice(page.cboSFIFieldIn) && hasChoice(page.cboSFITableExisting) &&
                          hasChoice(page.cboSFIFieldExisting);
    facts.hasTablesIn = page.cboSFITableIn.listCount() > 0;
    facts.hasFieldsIn = page.cboSFIFieldIn.listCount() > 0;
    facts.hasTablesExisting = page.cboSFITableExisting.listCount() > 0;
    facts.hasFieldsExisting = page.cboSFIFieldExisting.listCount() > 0;
}
} // namespace

StateFacts readFacts(const frmSearch &form)
{
    StateFacts facts{};
    facts.initialized = form.browser.mbInitialized;
    facts.autoRun = form.runs.mbANRunning;
    facts.manualRun = form.runs.mbMNRunning;
    facts.idle = form.runs.idle();
    readTabs(form.frame, facts);
    readOutputs(form.outputs, facts);
    readCriteria(form, facts);
    readSaved(form.saved, facts);
    readManual(form, facts);
    readImport(form.import, facts);
    return facts;
}
