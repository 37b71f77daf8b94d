#include "window/options/OptionTable.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto change = SettingRow::Saved::AtChange;
constexpr auto atExit = SettingRow::Saved::AtExit;

// clang-format off
constexpr SettingRow rows[] = {
    {"chkMCMNCStop"_L1, "chkMCMNCStop"_L1, "0"_L1, change},
    {"chkAutoNavToNextPassUrl"_L1, "chkSMA(4)"_L1, "1"_L1, change},
    {"chkSaveUrl"_L1, "chkSaveUrl"_L1, "0"_L1, change},
    {"chkUniqueBaseUrls"_L1, "chkSMD(1)"_L1, "1"_L1, change},
    {"optFilesSites"_L1, "cboFilesSites"_L1, "1"_L1, change},
    {"udcMNTimin"_L1, "incMNTiming"_L1, "030"_L1, atExit},
    {"chkUrlBlocking"_L1, "chkUrlBlocking"_L1, "0"_L1, change},
    {"chkEmailBlocking"_L1, "chkEmailBlocking"_L1, "0"_L1, change},
    {"SearchKeyChkGetEmail Value"_L1, "chkSaveEmail"_L1, "0"_L1, change},
    {"chkSaveToSS"_L1, "chkSaveToSS"_L1, "1"_L1, change},
    {"chkSaveToFile"_L1, "chkSaveToFile"_L1, "0"_L1, change},
    {"SearchKeyChkSavePages Value"_L1, "chkSavePages"_L1, "0"_L1, change},
    {"chkMCCS"_L1, "chkMCCS"_L1, "0"_L1, change},
    {"chkMNCCS"_L1, "chkMNCCS"_L1, "0"_L1, change},
    {"SearchKeyCboSaveItem ListIndex"_L1, "cboANSaveType"_L1, "0"_L1, change},
    {"lstDCoTmr"_L1, "cboANWBSelect"_L1, "1"_L1, change},
    {"optMCAllAny"_L1, "lstANMCAllAny"_L1, "0"_L1, change},
    {"optMNCAllAny"_L1, "lstANMNCAllAny"_L1, "0"_L1, change},
    {"npTimimg"_L1, "incANTiming"_L1, "030"_L1, atExit},
    {"SearchKeyTxtStartTag Text"_L1, "txtANStartTag"_L1, ""_L1, change},
    {"SearchKeyTxtStopTag Text"_L1, "txtANStopTag"_L1, ""_L1, change},
    {"udcSFMinFileS"_L1, "incSFMinFileSize"_L1, "000000"_L1, atExit},
    {"chkSUUseSiteTitle"_L1, "chkSMD(5)"_L1, "1"_L1, change},
    {"udMNGenUrlOne"_L1, "incMNAutoUrl"_L1, "1"_L1, atExit},
    {"udcNotFoundMinSize"_L1, "incNotFoundMinSize"_L1, "000000"_L1, atExit},
    {"chkUniqueSelectUrls"_L1, "chkSMD(2)"_L1, "0"_L1, change},
    {"chkOpenHtmlExports"_L1, "chkSMD(0)"_L1, "1"_L1, change},
    {"chkOpenServersOnly"_L1, "chkSMA(0)"_L1, "0"_L1, change},
    {"chkPutInOneFile"_L1, "chkPutInOneFile"_L1, "0"_L1, change},
    {"cboMNList"_L1, "cboMNList"_L1, "0"_L1, change},
    {"chkMNCnvHex"_L1, "chkSMA(1)"_L1, "0"_L1, change},
    {"chkSMSaveUrlWithEmail"_L1, "chkSMD(3)"_L1, "1"_L1, change},
    {"chkSMAAllignmagnify"_L1, "chkSMV(3)"_L1, "0"_L1, change},
    {"chkSavePhone"_L1, "chkSavePhone"_L1, "0"_L1, change},
    {"txtSBSelAreaCodes"_L1, "txtSBSelAreaCodes"_L1, ""_L1, change},
    {"chkSMFindFax"_L1, "chkSMD(6)"_L1, "0"_L1, change},
    {"incSMAIEWidth"_L1, "incSMAIEWidth"_L1, "0380"_L1, atExit},
    {"incSMAIEHeight"_L1, "incSMAIEHeight"_L1, "0440"_L1, atExit},
    {"chkSMReturnToSearchPg"_L1, "chkSMA(2)"_L1, "1"_L1, change},
    {"chkSaveSummary"_L1, "chkSaveSummary"_L1, "0"_L1, change},
    {"chkShowToolTips"_L1, "chkSMV(0)"_L1, "1"_L1, change},
    {"incMNStep"_L1, "incMNStep"_L1, "001"_L1, atExit},
    {"chkSMVTurnOffErrorMsg"_L1, "chkSMV(1)"_L1, "0"_L1, change},
    {"incSFMinGraphicSize"_L1, "incSFMinGraphicSize"_L1, "000000"_L1, atExit},
    {"chkSMAMAutoAddAutoUrl"_L1, "chkSMD(8)"_L1, "1"_L1, change},
    {"chkSMSaveUrlWithPhone"_L1, "chkSMD(4)"_L1, "1"_L1, change},
    {"chkSMVBlockPopUpWindows"_L1, "chkSMV(2)"_L1, "1"_L1, change},
    {"incSMAMAutoTxtElng"_L1, "incSMAMAutoTxtElng"_L1, "2000"_L1, atExit},
    {"chkSMAMUseFTP"_L1, "chkSMA(3)"_L1, "0"_L1, change},
    {"chkShutDownPrompt"_L1, "chkSMA(7)"_L1, "1"_L1, change},
    {"incSMDMinHtmlSize"_L1, "incSMDMinHtmlSize"_L1, "000000"_L1, atExit},
    {"chkSMAMUrlIfNoData"_L1, "chkSMD(7)"_L1, "1"_L1, change},
    {"chkSMAPassUrlAutoIncr"_L1, "chkSMA(5)"_L1, "1"_L1, change},
    {"chkSTmrRCDir"_L1, "chkSMA(8)"_L1, "1"_L1, change},
    {"incSmRPPause"_L1, "incSmRPPause"_L1, "010"_L1, atExit},
    {"chkSMASavedUrlAutoIncr"_L1, "chkSMA(6)"_L1, "0"_L1, change},
    {"chkSMSUniqueServers"_L1, "chkSMA(9)"_L1, "0"_L1, change},
    {"incMNDLTiming"_L1, "incMNDLTiming"_L1, "004"_L1, atExit},
};

constexpr SettingRow rowsAtExit[] = {
    {"optFilesSites"_L1, "cboFilesSites"_L1, ""_L1, atExit},
    {"cboMCMNCMask"_L1, "cboANMCMNCMask"_L1, ""_L1, atExit},
    {"cboSavedUrl"_L1, "cboANSavedUrls"_L1, ""_L1, atExit},
    {"udcMNTimin"_L1, "incMNTiming"_L1, ""_L1, atExit},
    {"npTimimg"_L1, "incANTiming"_L1, ""_L1, atExit},
    {"udMNGenUrlOne"_L1, "incMNAutoUrl"_L1, ""_L1, atExit},
    {"udcNotFoundMinSize"_L1, "incNotFoundMinSize"_L1, ""_L1, atExit},
    {"incSMAIEHeight"_L1, "incSMAIEHeight"_L1, ""_L1, atExit},
    {"incSMAIEWidth"_L1, "incSMAIEWidth"_L1, ""_L1, atExit},
    {"udcSFMinFileS"_L1, "incSFMinFileSize"_L1, ""_L1, atExit},
    {"incMNStep"_L1, "incMNStep"_L1, ""_L1, atExit},
    {"incSFMinGraphicSize"_L1, "incSFMinGraphicSize"_L1, ""_L1, atExit},
    {"incSMAMAutoTxtElng"_L1, "incSMAMAutoTxtElng"_L1, ""_L1, atExit},
    {"incSMDMinHtmlSize"_L1, "incSMDMinHtmlSize"_L1, ""_L1, atExit},
    {"incSmRPPause"_L1, "incSmRPPause"_L1, ""_L1, atExit},
    {"incMNDLTiming"_L1, "incMNDLTiming"_L1, ""_L1, atExit},
};

constexpr SwitchRow switches[] = {
    {"chkSMA(0)"_L1, "Servers only. (A)"_L1, "Open servers ON"_L1, "Open servers OFF"_L1},
    {"chkSMA(1)"_L1, "Convert Hex to Dec on load IE links. (M)"_L1, "Links are Hex ON"_L1, "Links are Hex OFF"_L1},
    {"chkSMA(2)"_L1, "Return to start page on finish. (A-M)"_L1, "Return to start ON"_L1, "Return to start OFF"_L1},
    {"chkSMA(3)"_L1, "Download using Win Api FTP. (M)"_L1, "Win API downloads ON"_L1, "Win API downloads OFF"_L1},
    {"chkSMA(4)"_L1, "Open next Pass Url on delete. (A)"_L1, "Open next PassUrl ON"_L1, "Open next PassUrl OFF"_L1},
    {"chkSMA(5)"_L1, "Increment Pass Url on open Url click. (A)"_L1, "Incr PassUrls ON"_L1, "Incr PassUrls OFF"_L1},
    {"chkSMA(6)"_L1, "Increment Saved Url on open Url click. (A)"_L1, "Incr Saved Url ON"_L1, "Incr Saved Url OFF"_L1},
    {"chkSMA(7)"_L1, "Prompt before ending (status left click)"_L1, "Prompt before end ON"_L1, "Prompt before end OFF"_L1},
    {"chkSMA(8)"_L1, "Open dir on timer right click, or magnify. (M)"_L1, "Open directory ON"_L1, "Open directory OFF"_L1},
    {"chkSMA(9)"_L1, "Unique Servers (A,M)"_L1, "Unique servers ON"_L1, "Unique servers OFF"_L1},
    {"chkSMD(0)"_L1, "Open exported recordsets after export."_L1, "Open Html exports ON"_L1, "Open Html exports OFF"_L1},
    {"chkSMD(1)"_L1, "Unique servers in SiteSummary table."_L1, "Save unique servers ON"_L1, "Save unique servers OFF"_L1},
    {"chkSMD(2)"_L1, "Unique servers in Select Url tables."_L1, "Select url unique servers ON"_L1, "Select url unique servers OFF"_L1},
    {"chkSMD(3)"_L1, "Save Url with email addresses."_L1, "Save url with email ON"_L1, "Save url with email OFF"_L1},
    {"chkSMD(4)"_L1, "Save Url with phone numbers."_L1, "Save url with phone # ON"_L1, "Save url with phone # OFF"_L1},
    {"chkSMD(5)"_L1, "Use site title for select Url note."_L1, "Select note Site title ON"_L1, "Select note Site title OFF"_L1},
    {"chkSMD(6)"_L1, "Fax numbers only."_L1, "Save fax #s only ON"_L1, "Save fax #s only OFF"_L1},
    {"chkSMD(7)"_L1, "Pass Url if no data."_L1, "Save PassUrl if no data ON"_L1, "Save PassUrl if no data OFF"_L1},
    {"chkSMD(8)"_L1, "Save AutoText Url on stop."_L1, "Auto save AutoText url ON"_L1, "Auto save AutoText url OFF"_L1},
    {"chkSMV(0)"_L1, "Show tool tip text."_L1, "Tool tips ON"_L1, "Tool tips OFF"_L1},
    {"chkSMV(1)"_L1, "Show error messages."_L1, "Show error messages ON"_L1, "Show error messages OFF"_L1},
    {"chkSMV(2)"_L1, "Block PopUp Windows"_L1, "Block popup windows ON"_L1, "Block popup windows OFF"_L1},
    {"chkSMV(3)"_L1, "Save Magnify window positions"_L1, "Align magnify window ON"_L1, "Align magnify window OFF"_L1},
    {"chkSMV(4)"_L1, "Orient Trawlex and IE at start up."_L1, "Orient Trawlex at start ON"_L1, "Orient Trawlex at start OFF"_L1},
    {"chkSaveSummary"_L1, {}, "Save SiteSummary ON"_L1, "Save SiteSummary OFF"_L1},
    {"chkSaveEmail"_L1, {}, "Save Email ON"_L1, "Save Email OFF"_L1},
    {"chkMCMNCStop"_L1, {}, "Stop on MCMNC ON"_L1, "Stop on MCMNC OFF"_L1},
    {"chkUseSavedUrls"_L1, {}, "Use saved ON"_L1, "Use saved OFF"_L1},
    {"chkMustContain"_L1, {}, "MC ON"_L1, "MC OFF"_L1},
    {"chkMustNotContain"_L1, {}, "MNC ON"_L1, "MNC OFF"_L1},
    {"chkMCCS"_L1, {}, "MC case sensitive"_L1, "MC Not case sensitive"_L1},
    {"chkMNCCS"_L1, {}, "MNC case sensitive"_L1, "MNC Not case sensitive"_L1},
    {"chkUrlBlocking"_L1, {}, "Url blocking ON"_L1, "Url blocking OFF"_L1},
    {"chkEmailBlocking"_L1, {}, "Email blocking ON"_L1, "Email blocking OFF"_L1},
    {"chkSaveToSS"_L1, "Save pages to SiteSummary."_L1, "Save pages to SiteSummary ON"_L1, "Save pages to SiteSummary OFF"_L1},
    {"chkSaveToFile"_L1, "Save pages to file."_L1, "Save pages to file ON"_L1, "Save pages to file OFF"_L1},
    {"chkPutInOneFile"_L1, "Save pages in 1 file."_L1, "Save files in 1 file ON"_L1, "Save files in 1 file OFF"_L1},
};
// clang-format on
} // namespace

std::span<const SettingRow> settingRows()
{
    return rows;
}

std::span<const SettingRow> exitRows()
{
    return rowsAtExit;
}

std::span<const SwitchRow> switchRows()
{
    return switches;
}
