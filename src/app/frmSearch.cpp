#include "app/frmSearch.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto dropDownList = ComboBox::Style::DropDownList;

void fill(ComboBox &combo, std::initializer_list<QLatin1StringView> items)
{
    for (const QLatin1StringView item : items)
        combo.addItem(item);
    combo.setListIndex(0);
}
} // namespace

// clang-format off
frmSearch::frmSearch()
    : sstSearch(u"sstSearch"_s, {u"Auto"_s, u"Manual"_s, u"Settings"_s, u"Data"_s}, this),
      sstSettings(u"sstSettings"_s, {u"Blocking"_s, u"Files"_s, u"Misc"_s}, this),
      sstFiles(u"sstFiles"_s, {u"Directory"_s, u"Import"_s}, this),
      sstMiscOptions(u"sstMiscOptions"_s, {u"A-M"_s, u"Save"_s, u"View"_s, u"Sites"_s}, this),
      picStatus(u"picStatus"_s, this), picANEnd(u"picANEnd"_s, this),
      cmdANStart(u"cmdANStart"_s, this), cmdANInitialize(u"cmdANInitialize"_s, this),
      lblTrawlexTimer(u"lblTrawlexTimer"_s, this), incANTiming(u"incANTiming"_s, this),
      cboANWBSelect(u"cboANWBSelect"_s, dropDownList, this),
      chkUseSavedUrls(u"chkUseSavedUrls"_s, this), cboANList(u"cboANList"_s, dropDownList, this),
      cboANSavedUrls(u"cboANSavedUrls"_s, dropDownList, this), cmdANSavedAdd(u"cmdANSavedAdd"_s, this),
      cmdANSavedMinus(u"cmdANSavedMinus"_s, this), cmdANSavedGo(u"cmdANSavedGo"_s, this),
      chkSaveSummary(u"chkSaveSummary"_s, this), chkSavePages(u"chkSavePages"_s, this),
      chkSaveEmail(u"chkSaveEmail"_s, this), chkSavePhone(u"chkSavePhone"_s, this),
      chkSaveUrl(u"chkSaveUrl"_s, this), chkMCMNCStop(u"chkMCMNCStop"_s, this),
      lblSummarySaved(u"lblSummarySaved"_s, this), lblPageSaved(u"lblPageSaved"_s, this),
      lblEmailSaved(u"lblEmailSaved"_s, this), lblPhoneSaved(u"lblPhoneSaved"_s, this),
      lblUrlSaved(u"lblUrlSaved"_s, this), cboANSaveType(u"cboANSaveType"_s, dropDownList, this),
      txtANStartTag(u"txtANStartTag"_s, this), txtANStopTag(u"txtANStopTag"_s, this),
      chkUrlBlocking(u"chkUrlBlocking"_s, this), chkEmailBlocking(u"chkEmailBlocking"_s, this),
      cboANMCMNCMask(u"cboANMCMNCMask"_s, dropDownList, this), cmdANMCMaskAdd(u"cmdANMCMaskAdd"_s, this),
      cmdANMCMaskMinus(u"cmdANMCMaskMinus"_s, this), cmdANAddMC(u"cmdANAddMC"_s, this),
      cmdANAddMNC(u"cmdANAddMNC"_s, this),
      chkMustContain(u"chkMustContain"_s, this), chkMustNotContain(u"chkMustNotContain"_s, this),
      chkMCCS(u"chkMCCS"_s, this), chkMNCCS(u"chkMNCCS"_s, this),
      lblMCColor(u"lblMCColor"_s, this), lblMNCColor(u"lblMNCColor"_s, this),
      lstANMC(u"lstANMC"_s, this), lstANMNC(u"lstANMNC"_s, this),
      lstANMCAllAny(u"lstANMCAllAny"_s, dropDownList, this), lstANMNCAllAny(u"lstANMNCAllAny"_s, dropDownList, this),
      lblAutoCollect(u"lblAutoCollect"_s, this), lblAutoPgUrls(u"lblAutoPgUrls"_s, this),
      lblAutoIncrPos(u"lblAutoIncrPos"_s, this),
      cmdMNStart(u"cmdMNStart"_s, this), cboMNList(u"cboMNList"_s, dropDownList, this),
      cboFilesSites(u"cboFilesSites"_s, dropDownList, this), incMNTiming(u"incMNTiming"_s, this),
      incMNDLTiming(u"incMNDLTiming"_s, this), incMNAutoUrl(u"incMNAutoUrl"_s, this), incMNStep(u"incMNStep"_s, this),
      chkSMA(u"chkSMA"_s, 10, this), chkSMD(u"chkSMD"_s, 9, this), chkSMV(u"chkSMV"_s, 5, this),
      chkSaveToSS(u"chkSaveToSS"_s, this), chkSaveToFile(u"chkSaveToFile"_s, this),
      chkPutInOneFile(u"chkPutInOneFile"_s, this),
      incNotFoundMinSize(u"incNotFoundMinSize"_s, this), incSFMinFileSize(u"incSFMinFileSize"_s, this),
      incSFMinGraphicSize(u"incSFMinGraphicSize"_s, this), incSMDMinHtmlSize(u"incSMDMinHtmlSize"_s, this),
      incSMAMAutoTxtElng(u"incSMAMAutoTxtElng"_s, this), incSMAIEWidth(u"incSMAIEWidth"_s, this),
      incSMAIEHeight(u"incSMAIEHeight"_s, this), incSmRPPause(u"incSmRPPause"_s, this),
      txtSFDBDir(u"txtSFDBDir"_s, this), txtSFDBFile(u"txtSFDBFile"_s, this), txtSFMNDir(u"txtSFMNDir"_s, this),
      txtSFEditor(u"txtSFEditor"_s, this), txtSBSelAreaCodes(u"txtSBSelAreaCodes"_s, this),
      lstBlockedUrlC(u"lstBlockedUrlC"_s, this), lstBlockedEmailC(u"lstBlockedEmailC"_s, this)
// clang-format on
{
    cmdANStart.setCaption(u"Go"_s);
    cmdMNStart.setCaption(u"Go"_s);
    cmdANInitialize.setCaption(u"Initialize"_s);
    lblTrawlexTimer.setCaption(u"0"_s);
    fill(cboANWBSelect, {"Internal"_L1, "IExplore"_L1});
    fill(cboANList, {"A"_L1, "B"_L1, "C"_L1, "D"_L1, "E"_L1});
    fill(cboMNList, {"A"_L1, "B"_L1, "C"_L1, "D"_L1, "E"_L1});
    fill(cboFilesSites, {"File"_L1, "Site"_L1});
    fill(cboANSaveType, {"Html"_L1, "Text"_L1, "Links"_L1});
    fill(lstANMCAllAny, {"All"_L1, "Any"_L1, "Select"_L1});
    fill(lstANMNCAllAny, {"All"_L1, "Any"_L1, "Select"_L1});
}

Control *frmSearch::control(const QString &name) const
{
    return findChild<Control *>(name, Qt::FindDirectChildrenOnly);
}
