#include "window/states/StateRows.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
using F = const StateFacts &;

constexpr QLatin1StringView keptPrefixes[] = {"mnu"_L1, "pop"_L1, "lst"_L1, "pic"_L1, "lbl"_L1,
                                              "sst"_L1, "lin"_L1, "lab"_L1, "inc"_L1};
constexpr QLatin1StringView keptControls[] = {"chkSMA"_L1,           "chkSMD"_L1,
                                              "fxgTrawlex"_L1,       "cboDBPlace"_L1,
                                              "chkDBCard"_L1,        "crdDBRow"_L1,
                                              "chkSMV"_L1,           "cboDBFields"_L1,
                                              "cboANWBSelect"_L1,    "txtSBStateACs"_L1,
                                              "chkPutInOneFile"_L1,  "chkSFIAllSettings"_L1,
                                              "chkSFIAllData"_L1,    "chkSFIImportTable"_L1,
                                              "chkSFIImportField"_L1};
constexpr QLatin1StringView offInSpiteOfTheirPrefix[] = {"lblAutoIncrPos"_L1, "lblAutoPgUrls"_L1, "lblAutoCollect"_L1,
                                                         "incMNAutoUrl"_L1, "incMNStep"_L1};

// clang-format off
constexpr StateRule always = [](F) { return true; };
constexpr StateRule connected = [](F f) { return f.initialized; };
constexpr StateRule idle = [](F f) { return f.idle; };
constexpr StateRule onAuto = [](F f) { return f.initialized && f.onAuto; };
constexpr StateRule onManual = [](F f) { return f.initialized && f.onManual; };
constexpr StateRule onSettings = [](F f) { return f.initialized && f.onSettings; };
constexpr StateRule onDirectory = [](F f) { return f.initialized && f.onDirectory; };
constexpr StateRule onImport = [](F f) { return f.initialized && f.onImport; };
constexpr StateRule onSave = [](F f) { return f.initialized && f.onSave; };
constexpr StateRule onData = [](F f) { return f.initialized && f.onData; };

constexpr ResetRow resets[] = {
    {"chkSaveUrl"_L1, [](F f) { return onAuto(f) && f.idle && f.passUrlsLoaded; }},
    {"chkMustContain chkMCCS chkMustNotContain chkMNCCS"_L1, [](F f) { return f.initialized && !f.hasOutput; }},
    {"chkEmailBlocking"_L1, [](F f) { return onAuto(f) && !f.blocksEmail; }},
    {"chkUrlBlocking"_L1, [](F f) { return onAuto(f) && !f.blocksUrls; }},
    {"chkUseSavedUrls"_L1, [](F f) { return onAuto(f) && f.idle && !f.hasSavedUrls; }},
    {"chkSMOpenDownloadedGraphics chkMNUseFotoBrwse"_L1, [](F f) { return onManual(f) && (f.listEmpty || !f.opensFiles); }},
};

// What may be done about sets and lists of criteria, also in the middle of a run.
constexpr StateRule usesCriteria = [](F f) { return f.mustContain || f.mustNotContain; };
// Saved Urls that the next run does not walk through can be edited.
constexpr StateRule editsSaved = [](F f) { return f.idle && !f.usesSavedUrls; };
constexpr StateRule importsParts = [](F f) { return f.idle && !f.importsAll; };

constexpr EnablingRow enabling[] = {
    {always, "cmdANInitialize"_L1, [](F f) { return !f.initialized; }},

    {connected, "cmdANStart"_L1, [](F f) { return !f.manualRun; }},
    {connected, "lblAutoIncrPos lblAutoPgUrls lblAutoCollect mnuPopUpPassUrls chkSMA(3) cboANList"_L1, idle},
    {connected, "chkMustContain chkMustNotContain"_L1, [](F f) { return f.hasOutput; }},

    {onAuto, "lblAutoCollect"_L1, always},
    {onAuto, "chkEmailBlocking"_L1, [](F f) { return f.savesEmail && f.blocksEmail && f.idle; }},
    {onAuto, "chkUrlBlocking"_L1, [](F f) { return f.blocksUrls && f.idle; }},
    {onAuto, "cmdANMCMaskAdd"_L1, usesCriteria},
    {onAuto, "cmdANMCMaskMinus"_L1, [](F f) { return usesCriteria(f) && f.hasSets && f.setChosen; }},
    {onAuto, "cboANMCMNCMask"_L1, [](F f) { return usesCriteria(f) && f.hasSets; }},
    {onAuto, "lstANMC cmdANAddMC lstANMCAllAny chkMCCS"_L1, [](F f) { return f.setChosen && f.mustContain; }},
    {onAuto, "lstANMNC cmdANAddMNC lstANMNCAllAny chkMNCCS"_L1, [](F f) { return f.setChosen && f.mustNotContain; }},
    {onAuto, "chkSavePhone chkSaveSummary lblAutoPgUrls chkSavePages chkMCMNCStop"_L1, idle},
    {onAuto, "chkSaveUrl"_L1, [](F f) { return f.idle && !f.passUrlsLoaded; }},
    {onAuto, "txtANStartTag txtANStopTag cboANSaveType"_L1, [](F f) { return f.idle && f.savesPages; }},
    {onAuto, "chkUseSavedUrls"_L1, [](F f) { return f.idle && f.hasSavedUrls; }},
    {onAuto, "cmdANSavedAdd"_L1, [](F f) { return editsSaved(f) && !f.passUrlsLoaded; }},
    {onAuto, "cboANSavedUrls"_L1, [](F f) { return editsSaved(f) && f.hasSavedUrls; }},
    {onAuto, "cmdANSavedMinus cmdANSavedGo"_L1, [](F f) { return editsSaved(f) && f.hasSavedUrls && f.savedUrlChosen; }},

    {onSettings, "txtSBSelAreaCodes cboSBSelectState"_L1, idle},
    {onSettings, "cmdBlockedEC(0) cmdBlockedUrlC(0)"_L1, always},
    {onSettings, "cmdBlockedEC(1)"_L1, [](F f) { return f.blocksEmail; }},
    {onSettings, "cmdBlockedUrlC(1)"_L1, [](F f) { return f.blocksUrls; }},

    {connected, "chkSaveEmail"_L1, idle},

    {onManual, "mnuMNLoadIEUrlFilters"_L1, idle},
    {onManual, "cboMNMCMNCFilter cboMNMCMNC"_L1, always},
    {onManual, "cboMNList"_L1, [](F f) { return !(f.manualRun && f.navigatesByItself); }},
    {onManual, "incMNAutoUrl incMNStep"_L1, [](F f) { return f.canBeginSeries(); }},
    {onManual, "chkSMOpenDownloadedGraphics chkMNUseFotoBrwse"_L1, [](F f) { return !f.listEmpty && f.opensFiles; }},
    {onManual, "cboFilesSites"_L1, [](F f) { return !f.listEmpty && f.idle; }},
    {onManual, "cmdMNStart"_L1, [](F f) { return f.idle || f.walksListOnShow; }},
    {onManual, "cboMNAutoUrl"_L1, [](F f) { return !f.manualRun; }},

    {onDirectory, "txtSFDBFile cmdSFAutoDBFile cmdSFDBFileBrowse txtSFDBDir cmdSFDBDirBrowse txtSFMNDir cmdSFMNDirBrowse cmdSFEditorSel txtSFEditor"_L1, idle},

    {onImport, "cmdSFISelDatabase"_L1, idle},
    {onImport, "cboSFITableIn"_L1, [](F f) { return importsParts(f) && f.hasTablesIn; }},
    {onImport, "cboSFIFieldIn"_L1, [](F f) { return importsParts(f) && f.hasFieldsIn; }},
    {onImport, "cboSFITableExisting"_L1, [](F f) { return importsParts(f) && f.hasTablesExisting; }},
    {onImport, "cboSFIFieldExisting"_L1, [](F f) { return importsParts(f) && f.hasFieldsExisting; }},
    {[](F f) { return onImport(f) && f.importsTable; }, "cmdSFIImport"_L1, [](F f) { return f.idle && f.tableInChosen; }},
    {[](F f) { return onImport(f) && f.importsField; }, "cmdSFIImport"_L1, [](F f) { return f.idle && f.allFourChosen; }},
    {[](F f) { return onImport(f) && f.importsAll; }, "cmdSFIImport"_L1, [](F f) { return f.idle && f.importNamed; }},

    {onSave, "chkSaveToFile chkSaveToSS"_L1, idle},
    {onSave, "chkPutInOneFile"_L1, [](F f) { return f.idle && f.savesToFile; }},

    {onData, "cboDBTables txtDBQuery"_L1, always},
};

constexpr ColourRow colours[] = {
    {[](F f) { return f.initialized && f.idle; }, "lblTrawlexTimer"_L1, Colours::ButtonFace, Colours::WindowText},
    {[](F f) { return f.initialized && f.manualRun; }, "lblTrawlexTimer"_L1, Colours::Blue, Colours::White},
    {[](F f) { return f.initialized && f.autoRun; }, "lblTrawlexTimer"_L1, Colours::Red, Colours::White},
    {[](F f) { return onAuto(f) && f.idle; }, "lblUrlSaved lblSummarySaved lblEmailSaved lblPageSaved lblPhoneSaved lblMCColor lblMNCColor"_L1, Colours::ButtonFace, {}},
};

// Each says the step that comes next; the first step of all is the last row.
constexpr EmptyTextRow emptyTexts[] = {
    {always, "cboANSavedUrls"_L1, "+ saves one"_L1},
    {always, "cboANMCMNCMask"_L1, "No sets yet: + adds one"_L1},
    {[](F f) { return f.hasSets; }, "cboANMCMNCMask"_L1, "Choose a set"_L1},
    {always, "lstANMC"_L1, "Texts that a page must contain come here with +."_L1},
    {always, "lstANMNC"_L1, "Texts that rule a page out come here with +."_L1},
    {[](F f) { return !f.setChosen; }, "lstANMC lstANMNC"_L1, "Choose a set above, or add one with +."_L1},
    {[](F f) { return !f.mustContain; }, "lstANMC"_L1, "Tick Must contain to keep only pages that hold a text."_L1},
    {[](F f) { return !f.mustNotContain; }, "lstANMNC"_L1, "Tick Must not contain to rule pages out by a text."_L1},
    {[](F f) { return !usesCriteria(f); }, "cboANMCMNCMask"_L1, "Tick Must contain or Must not contain"_L1},
    {[](F f) { return !f.hasOutput; }, "cboANMCMNCMask lstANMC lstANMNC"_L1, "Tick what to save from a page first"_L1},
};
// clang-format on

/// The array's name of a member, else the name itself.
QString familyOf(const QString &control)
{
    return control.section(u'(', 0, 0);
}

template <std::size_t count> bool isOneOf(const QString &name, const QLatin1StringView (&names)[count])
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}
} // namespace

bool isOffByDefault(const QString &control)
{
    const QString family = familyOf(control);
    if (isOneOf(family, offInSpiteOfTheirPrefix))
        return true;
    return !isOneOf(family, keptControls) && !isOneOf(family.left(3), keptPrefixes);
}

std::span<const ResetRow> resetRows()
{
    return resets;
}

std::span<const EnablingRow> enablingRows()
{
    return enabling;
}

std::span<const ColourRow> colourRows()
{
    return colours;
}

std::span<const EmptyTextRow> emptyTextRows()
{
    return emptyTexts;
}
