#include "app/FormGroups.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto dropDownList = ComboBox::Style::DropDownList;
constexpr auto dropDownCombo = ComboBox::Style::DropDownCombo;
const QStringList demands{u"All"_s, u"Any"_s, u"Select"_s};
} // namespace

// clang-format off
WindowFrame::WindowFrame(QObject *form)
    : sstSearch(u"sstSearch"_s, {u"Auto"_s, u"Manual"_s, u"Settings"_s, u"Data"_s}, form),
      sstSettings(u"sstSettings"_s, {u"Blocking"_s, u"Files"_s, u"Misc"_s}, form),
      sstFiles(u"sstFiles"_s, {u"Directory"_s, u"Import"_s}, form),
      sstMiscOptions(u"sstMiscOptions"_s, {u"A-M"_s, u"Save"_s, u"View"_s, u"Sites"_s}, form),
      picStatus(u"picStatus"_s, form)
{
}

BrowserPanel::BrowserPanel(QObject *form)
    : cmdANInitialize(u"cmdANInitialize"_s, form, u"Initialize"_s),
      cboANWBSelect(u"cboANWBSelect"_s, dropDownList, form, {u"Internal"_s, u"IExplore"_s}),
      picANEnd(u"picANEnd"_s, form), lblTrawlexTimer(u"lblTrawlexTimer"_s, form, u"0"_s)
{
}

AutoPanel::AutoPanel(QObject *form)
    : cmdANStart(u"cmdANStart"_s, form, u"Go"_s), incANTiming(u"incANTiming"_s, form)
{
}

SavedAddresses::SavedAddresses(QObject *form)
    : chkUseSavedUrls(u"chkUseSavedUrls"_s, form), cboANList(u"cboANList"_s, dropDownList, form, listNames),
      cboANSavedUrls(u"cboANSavedUrls"_s, dropDownList, form), cmdANSavedAdd(u"cmdANSavedAdd"_s, form),
      cmdANSavedMinus(u"cmdANSavedMinus"_s, form), cmdANSavedGo(u"cmdANSavedGo"_s, form)
{
}

Outputs::Outputs(QObject *form)
    : chkSaveSummary(u"chkSaveSummary"_s, form), chkSavePages(u"chkSavePages"_s, form),
      chkSaveEmail(u"chkSaveEmail"_s, form), chkSavePhone(u"chkSavePhone"_s, form), chkSaveUrl(u"chkSaveUrl"_s, form),
      chkMCMNCStop(u"chkMCMNCStop"_s, form), lblSummarySaved(u"lblSummarySaved"_s, form),
      lblPageSaved(u"lblPageSaved"_s, form), lblEmailSaved(u"lblEmailSaved"_s, form),
      lblPhoneSaved(u"lblPhoneSaved"_s, form), lblUrlSaved(u"lblUrlSaved"_s, form),
      cboANSaveType(u"cboANSaveType"_s, dropDownList, form, {u"Html"_s, u"Text"_s, u"Links"_s}),
      txtANStartTag(u"txtANStartTag"_s, form), txtANStopTag(u"txtANStopTag"_s, form),
      chkSaveToSS(u"chkSaveToSS"_s, form), chkSaveToFile(u"chkSaveToFile"_s, form),
      chkPutInOneFile(u"chkPutInOneFile"_s, form)
{
}

Criterion::Criterion(const Names &names, QObject *form)
    : on(names.on, form), caseSensitive(names.caseSensitive, form), items(names.items, form),
      demand(names.demand, dropDownList, form, demands), add(names.add, form), lamp(names.lamp, form)
{
}

Criteria::Criteria(QObject *form)
    : cboANMCMNCMask(u"cboANMCMNCMask"_s, dropDownList, form), cmdANMCMaskAdd(u"cmdANMCMaskAdd"_s, form),
      cmdANMCMaskMinus(u"cmdANMCMaskMinus"_s, form),
      mustContain({"chkMustContain"_L1, "chkMCCS"_L1, "lstANMC"_L1, "lstANMCAllAny"_L1, "cmdANAddMC"_L1, "lblMCColor"_L1},
                  form),
      mustNotContain({"chkMustNotContain"_L1, "chkMNCCS"_L1, "lstANMNC"_L1, "lstANMNCAllAny"_L1, "cmdANAddMNC"_L1,
                      "lblMNCColor"_L1},
                     form)
{
}

BlockedTexts::BlockedTexts(const Names &names, QObject *form)
    : on(names.on, form), items(names.items, form), buttons(names.buttons, 2, form)
{
}

BlockingLists::BlockingLists(QObject *form)
    : urls({"chkUrlBlocking"_L1, "lstBlockedUrlC"_L1, "cmdBlockedUrlC"_L1}, form),
      email({"chkEmailBlocking"_L1, "lstBlockedEmailC"_L1, "cmdBlockedEC"_L1}, form)
{
}

CollectLabels::CollectLabels(QObject *form)
    : lblAutoCollect(u"lblAutoCollect"_s, form), lblAutoPgUrls(u"lblAutoPgUrls"_s, form),
      lblAutoIncrPos(u"lblAutoIncrPos"_s, form)
{
}

ManualPanel::ManualPanel(QObject *form)
    : cmdMNStart(u"cmdMNStart"_s, form, u"Go"_s), picMNStartStop(u"picMNStartStop"_s, form),
      incMNTiming(u"incMNTiming"_s, form), incMNDLTiming(u"incMNDLTiming"_s, form),
      lblMNDLTiming(u"lblMNDLTiming"_s, form),
      cboFilesSites(u"cboFilesSites"_s, dropDownList, form, {u"File"_s, u"Site"_s}),
      chkSMOpenDownloadedGraphics(u"chkSMOpenDownloadedGraphics"_s, form),
      chkMNUseFotoBrwse(u"chkMNUseFotoBrwse"_s, form)
{
}

SeriesPanel::SeriesPanel(QObject *form)
    : cboMNAutoUrl(u"cboMNAutoUrl"_s, dropDownCombo, form), incMNAutoUrl(u"incMNAutoUrl"_s, form, 10),
      incMNStep(u"incMNStep"_s, form), picMNShadow(u"picMNShadow"_s, form)
{
    picMNShadow.setVisible(false);
}

ManualLists::ManualLists(QObject *form)
    : cboMNList(u"cboMNList"_s, dropDownList, form, listNames), lstMN(u"lstMN"_s, 5, form)
{
}

UrlFilterBoxes::UrlFilterBoxes(QObject *form)
    : cboMNMCMNC(u"cboMNMCMNC"_s, dropDownList, form, {QString(), u"MC"_s, u"MNC"_s}),
      cboMNMCMNCFilter(u"cboMNMCMNCFilter"_s, dropDownCombo, form)
{
}

SiteEditor::SiteEditor(QObject *form)
    : cboSD(u"cboSD"_s, 8, form, 1), cmdSD(u"cmdSD"_s, 16, form, 1), cmdSDDefault(u"cmdSDDefault"_s, form),
      cboSDLen(u"cboSDLen"_s, dropDownList, form, {u"="_s, u">"_s, u"<"_s, u">="_s, u"<="_s}),
      cboSDGroup(u"cboSDGroup"_s, dropDownList, form, listNames), chkSDHex(u"chkSDHex"_s, form),
      incSDUrlLen(u"incSDUrlLen"_s, form), incSDMCMNC(u"incSDMCMNC"_s, 2, form),
      lblSDCount(u"lblSDCount"_s, 6, form, 1)
{
}

AreaCodeBoxes::AreaCodeBoxes(QObject *form)
    : txtSBSelAreaCodes(u"txtSBSelAreaCodes"_s, form), txtSBStateACs(u"txtSBStateACs"_s, form),
      cboSBSelectState(u"cboSBSelectState"_s, dropDownList, form)
{
}

FilePlaces::FilePlaces(QObject *form)
    : txtSFDBDir(u"txtSFDBDir"_s, form), txtSFDBFile(u"txtSFDBFile"_s, form), txtSFMNDir(u"txtSFMNDir"_s, form),
      txtSFEditor(u"txtSFEditor"_s, form), cmdSFDBDirBrowse(u"cmdSFDBDirBrowse"_s, form),
      cmdSFDBFileBrowse(u"cmdSFDBFileBrowse"_s, form), cmdSFAutoDBFile(u"cmdSFAutoDBFile"_s, form),
      cmdSFMNDirBrowse(u"cmdSFMNDirBrowse"_s, form), cmdSFEditorSel(u"cmdSFEditorSel"_s, form),
      lblSaveDir(u"lblSaveDir"_s, form), lblMNSaveDir(u"lblMNSaveDir"_s, form)
{
}

ImportPage::ImportPage(QObject *form)
    : cmdSFISelDatabase(u"cmdSFISelDatabase"_s, form), cmdSFIImport(u"cmdSFIImport"_s, form),
      lblSFIImportDatabase(u"lblSFIImportDatabase"_s, form), cboSFITableIn(u"cboSFITableIn"_s, dropDownList, form),
      cboSFIFieldIn(u"cboSFIFieldIn"_s, dropDownList, form),
      cboSFITableExisting(u"cboSFITableExisting"_s, dropDownList, form),
      cboSFIFieldExisting(u"cboSFIFieldExisting"_s, dropDownList, form), chkSFIAllData(u"chkSFIAllData"_s, form),
      chkSFIAllSettings(u"chkSFIAllSettings"_s, form), chkSFIImportTable(u"chkSFIImportTable"_s, form),
      chkSFIImportField(u"chkSFIImportField"_s, form)
{
}

OptionBoxes::OptionBoxes(QObject *form)
    : chkSMA(u"chkSMA"_s, SMA::Count, form), chkSMD(u"chkSMD"_s, SMD::Count, form),
      chkSMV(u"chkSMV"_s, SMV::Count, form)
{
}

Limits::Limits(QObject *form)
    : incNotFoundMinSize(u"incNotFoundMinSize"_s, form, 6), incSFMinFileSize(u"incSFMinFileSize"_s, form, 6),
      incSFMinGraphicSize(u"incSFMinGraphicSize"_s, form, 6), incSMDMinHtmlSize(u"incSMDMinHtmlSize"_s, form, 6),
      incSMAMAutoTxtElng(u"incSMAMAutoTxtElng"_s, form, 4), incSMAIEWidth(u"incSMAIEWidth"_s, form, 4),
      incSMAIEHeight(u"incSMAIEHeight"_s, form, 4), incSmRPPause(u"incSmRPPause"_s, form),
      lblNotFoundMinSize(u"lblNotFoundMinSize"_s, form, u"(404) Min size"_s),
      lblSFMinPageSize(u"lblSFMinPageSize"_s, form, u"Page save min size"_s),
      lblMNFileDLMinSize(u"lblMNFileDLMinSize"_s, form, u"Download file min size"_s),
      lblMinHtmlSize(u"lblMinHtmlSize"_s, form, u"Minimum html content"_s),
      lblAutoTxtBoxElongate(u"lblAutoTxtBoxElongate"_s, form, u"AutoText elongation (M)"_s),
      lblSMAIEWidth(u"lblSMAIEWidth"_s, form, u"Width"_s), lblSMAIEHeight(u"lblSMAIEHeight"_s, form, u"Height"_s),
      lblSMRPPauseTime(u"lblSMRPPauseTime"_s, form, u"Result page pause time (A)"_s)
{
}

DataBoxes::DataBoxes(QObject *form)
    : cboDBTables(u"cboDBTables"_s, dropDownList, form), cboDBFields(u"cboDBFields"_s, dropDownList, form),
      cboDBPlace(u"cboDBPlace"_s, dropDownList, form, {u"contains"_s, u"begins with"_s, u"equals"_s}),
      txtDBQuery(u"txtDBQuery"_s, form), chkDBCard(u"chkDBCard"_s, form), crdDBRow(u"crdDBRow"_s, form),
      fxgTrawlex(u"fxgTrawlex"_s, form)
{
    crdDBRow.setVisible(false);
}
// clang-format on
