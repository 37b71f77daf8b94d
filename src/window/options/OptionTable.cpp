#include "window/options/OptionTable.h"

#include "app/SettingKeys.h"

using namespace Qt::StringLiterals;

namespace {
using Loaded = OptionRow::Loaded;

/// A switch: control, key, default, status when on and off, tip, caption.
constexpr OptionRow box(QLatin1StringView control, QLatin1StringView key, QLatin1StringView byDefault,
                        QLatin1StringView on, QLatin1StringView off, QLatin1StringView tip,
                        QLatin1StringView caption = {})
{
    return {
        .control = control, .key = key, .byDefault = byDefault, .tip = tip, .caption = caption, .on = on, .off = off};
}

/// Anything else: control, key, default, tip.
constexpr OptionRow value(QLatin1StringView control, QLatin1StringView key, QLatin1StringView byDefault,
                          QLatin1StringView tip = {})
{
    return {.control = control, .key = key, .byDefault = byDefault, .tip = tip};
}

// clang-format off
constexpr OptionRow rows[] = {
    box("chkMCMNCStop"_L1, "chkMCMNCStop"_L1, "0"_L1, "Stop on MCMNC ON"_L1, "Stop on MCMNC OFF"_L1, "Stop the run at the first page that passes"_L1),
    box("chkSMA(4)"_L1, "chkAutoNavToNextPassUrl"_L1, "1"_L1, "Open next PassUrl ON"_L1, "Open next PassUrl OFF"_L1, "Open the next Pass Url when one is deleted"_L1, "Open next Pass Url on delete. (A)"_L1),
    box("chkSaveUrl"_L1, "chkSaveUrl"_L1, "0"_L1, {}, {}, "Save the link of each wanted page as a Pass Url"_L1),
    box("chkSMOpenDownloadedGraphics"_L1, "chkSMOpenDlGraphics"_L1, "1"_L1, "Navigate to graphics ON"_L1, "Navigate to graphics OFF"_L1, "Show each picture in the web browser once it is downloaded"_L1),
    box("chkSMD(1)"_L1, "chkUniqueBaseUrls"_L1, "1"_L1, "Save unique servers ON"_L1, "Save unique servers OFF"_L1, "Save one summary for each server"_L1, "Unique servers in SiteSummary table."_L1),
    value("cboFilesSites"_L1, Keys::FilesSites, "1"_L1, "Download the items of the list as files, or open them as sites"_L1).atExitToo(1),
    value("incMNTiming"_L1, "udcMNTimin"_L1, "030"_L1, "Seconds that each item is given (Manual)"_L1).atExit(4),
    box("chkUrlBlocking"_L1, Keys::UrlBlocking, "0"_L1, "Url blocking ON"_L1, "Url blocking OFF"_L1, "Leave out links that hold a blocked text"_L1),
    box("chkEmailBlocking"_L1, Keys::EmailBlocking, "0"_L1, "Email blocking ON"_L1, "Email blocking OFF"_L1, "Leave out email addresses that hold a blocked text"_L1),
    box("chkSaveEmail"_L1, "SearchKeyChkGetEmail Value"_L1, "0"_L1, "Save Email ON"_L1, "Save Email OFF"_L1, "Save the email addresses of each wanted page"_L1),
    box("chkSaveToSS"_L1, "chkSaveToSS"_L1, "1"_L1, "Save pages to SiteSummary ON"_L1, "Save pages to SiteSummary OFF"_L1, "Save pages in the SiteSummary table"_L1, "Save pages to SiteSummary."_L1),
    box("chkSaveToFile"_L1, "chkSaveToFile"_L1, "0"_L1, "Save pages to file ON"_L1, "Save pages to file OFF"_L1, "Save pages as files in the file save directory"_L1, "Save pages to file."_L1),
    box("chkSavePages"_L1, "SearchKeyChkSavePages Value"_L1, "0"_L1, {}, {}, "Save each wanted page"_L1),
    box("chkMCCS"_L1, "chkMCCS"_L1, "0"_L1, "MC case sensitive"_L1, "MC Not case sensitive"_L1, "Must Contain items are case sensitive"_L1),
    box("chkMNCCS"_L1, "chkMNCCS"_L1, "0"_L1, "MNC case sensitive"_L1, "MNC Not case sensitive"_L1, "Must Not Contain items are case sensitive"_L1),
    value("cboANSaveType"_L1, "SearchKeyCboSaveItem ListIndex"_L1, "0"_L1, "What of a page is saved: its html, its text or its links"_L1),
    value("cboANWBSelect"_L1, Keys::Browser, "1"_L1, "Which web browser is driven"_L1),
    value("lstANMCAllAny"_L1, "optMCAllAny"_L1, "0"_L1, "Must Contain (All, Any, or Selected)"_L1),
    value("lstANMNCAllAny"_L1, "optMNCAllAny"_L1, "0"_L1, "Must Not Contain (Any, or Selected)"_L1),
    value("incANTiming"_L1, "npTimimg"_L1, "030"_L1, "Seconds that each page is given to arrive"_L1).atExit(5),
    value("txtANStartTag"_L1, "SearchKeyTxtStartTag Text"_L1, ""_L1, "Text at which the part of the page to save starts"_L1),
    value("txtANStopTag"_L1, "SearchKeyTxtStopTag Text"_L1, ""_L1, "Text at which the part of the page to save stops"_L1),
    // Here the directories and the database's name are loaded.
    value("incSFMinFileSize"_L1, "udcSFMinFileS"_L1, "000000"_L1, "Minimum length of a saved page"_L1).atExit(10),
    box("chkSMD(5)"_L1, "chkSUUseSiteTitle"_L1, "1"_L1, "Select note Site title ON"_L1, "Select note Site title OFF"_L1, "(If Checked) Use site title as note, if unchecked prompt for note, on status bar double click (Auto & Manual) to save a Select Url."_L1, "Use site title for select Url note."_L1),
    value("incMNAutoUrl"_L1, "udMNGenUrlOne"_L1, "1"_L1, "The number of the AutoText Url"_L1).atExit(6),
    value("incNotFoundMinSize"_L1, "udcNotFoundMinSize"_L1, "000000"_L1, "Pages with sizes less than this will be checked for File Not Found (0 checks all pages)"_L1).atExit(7),
    box("chkSMD(2)"_L1, "chkUniqueSelectUrls"_L1, "0"_L1, "Select url unique servers ON"_L1, "Select url unique servers OFF"_L1, "Save one Select Url for each server"_L1, "Unique servers in Select Url tables."_L1),
    box("chkSMD(0)"_L1, "chkOpenHtmlExports"_L1, "1"_L1, "Open Html exports ON"_L1, "Open Html exports OFF"_L1, "Open an export once it is written"_L1, "Open exported recordsets after export."_L1),
    box("chkSMA(0)"_L1, "chkOpenServersOnly"_L1, "0"_L1, "Open servers ON"_L1, "Open servers OFF"_L1, "(If Checked) Search result page links will be stripped to server. Only the servers of search results will be opened. (Auto tab)"_L1, "Servers only. (A)"_L1),
    box("chkPutInOneFile"_L1, "chkPutInOneFile"_L1, "0"_L1, "Save files in 1 file ON"_L1, "Save files in 1 file OFF"_L1, "Save all pages in one file"_L1, "Save pages in 1 file."_L1),
    box("chkMNUseFotoBrwse"_L1, "chkMNUseFotoB"_L1, "0"_L1, "Use foto browse ON"_L1, "Use foto browse OFF"_L1, "Show downloaded pictures in the picture browser"_L1),
    value("cboMNList"_L1, Keys::ManualList, "0"_L1, "List of Urls"_L1).withItsClick(),
    value("mnuMNUseSiteData"_L1, "mnuMNLoadLinksIEUnique"_L1, "False"_L1),
    value("cboMNMCMNC"_L1, "cboMNMCMNC"_L1, "0"_L1, "Links that are loaded must contain, or must not contain, the text of the filter"_L1),
    box("chkSMA(1)"_L1, "chkMNCnvHex"_L1, "0"_L1, "Links are Hex ON"_L1, "Links are Hex OFF"_L1, "Resolve percent escapes in links when they are loaded"_L1, "Convert Hex to Dec on load IE links. (M)"_L1),
    value("cboANSavedUrls"_L1, "cboANSavedUrls"_L1, "0"_L1).ifItFits(),
    box("chkSMD(3)"_L1, "chkSMSaveUrlWithEmail"_L1, "1"_L1, "Save url with email ON"_L1, "Save url with email OFF"_L1, "Save the page's Url with its email addresses"_L1, "Save Url with email addresses."_L1),
    box("chkSMV(3)"_L1, Keys::KeepMagnifyPlace, "0"_L1, "Align magnify window ON"_L1, "Align magnify window OFF"_L1, "The magnify window keeps its place"_L1, "Save Magnify window positions"_L1),
    box("chkSavePhone"_L1, "chkSavePhone"_L1, "0"_L1, {}, {}, "Save the phone numbers of each wanted page"_L1),
    value("txtSBSelAreaCodes"_L1, Keys::AreaCodes, ""_L1, "Find phone number for only select area codes. Enter area code list separated by commas"_L1).byItsEvent(),
    box("chkSMD(6)"_L1, "chkSMFindFax"_L1, "0"_L1, "Save fax #s only ON"_L1, "Save fax #s only OFF"_L1, "Save fax numbers only"_L1, "Fax numbers only."_L1),
    value("incSMAIEWidth"_L1, "incSMAIEWidth"_L1, "0380"_L1, "Width of the browser window at its standard position"_L1).atExit(9),
    value("incSMAIEHeight"_L1, "incSMAIEHeight"_L1, "0440"_L1, "Height of the browser window at its standard position"_L1).atExit(8),
    box("chkSMA(2)"_L1, "chkSMReturnToSearchPg"_L1, "1"_L1, "Return to start ON"_L1, "Return to start OFF"_L1, "Open the page a run began on when it has finished"_L1, "Return to start page on finish. (A-M)"_L1),
    box("chkSaveSummary"_L1, "chkSaveSummary"_L1, "0"_L1, "Save SiteSummary ON"_L1, "Save SiteSummary OFF"_L1, "Save a summary of each wanted page"_L1),
    box("chkSMV(0)"_L1, "chkShowToolTips"_L1, "1"_L1, "Tool tips ON"_L1, "Tool tips OFF"_L1, "Show these texts"_L1, "Show tool tip text."_L1).withItsClick(),
    value("incMNStep"_L1, "incMNStep"_L1, "001"_L1, "How far the number of the AutoText Url moves at each step"_L1).atExit(11),
    box("chkSMV(1)"_L1, Keys::ErrorMessages, "0"_L1, "Show error messages ON"_L1, "Show error messages OFF"_L1, "Log errors and show them"_L1, "Show error messages."_L1),
    value("incSFMinGraphicSize"_L1, "incSFMinGraphicSize"_L1, "000000"_L1, "Minimum size of a downloaded file"_L1).atExit(12),
    box("chkSMD(8)"_L1, "chkSMAMAutoAddAutoUrl"_L1, "1"_L1, "Auto save AutoText url ON"_L1, "Auto save AutoText url OFF"_L1, "Save the AutoText Url when a run stops"_L1, "Save AutoText Url on stop."_L1),
    box("chkSMD(4)"_L1, "chkSMSaveUrlWithPhone"_L1, "1"_L1, "Save url with phone # ON"_L1, "Save url with phone # OFF"_L1, "Save the page's Url with its phone numbers"_L1, "Save Url with phone numbers."_L1),
    box("chkSMV(2)"_L1, "chkSMVBlockPopUpWindows"_L1, "1"_L1, "Block popup windows ON"_L1, "Block popup windows OFF"_L1, "Toggle blocking all popup windows (Links that open new windows will not respond)"_L1, "Block PopUp Windows"_L1),
    value("incSMAMAutoTxtElng"_L1, "incSMAMAutoTxtElng"_L1, "2000"_L1, "How far the AutoText Url box grows when it is elongated"_L1).atExit(13),
    box("chkSMA(3)"_L1, "chkSMAMUseFTP"_L1, "0"_L1, "Win API downloads ON"_L1, "Win API downloads OFF"_L1, "Download files with the FTP operations"_L1, "Download using Win Api FTP. (M)"_L1),
    box("chkSMA(7)"_L1, "chkShutDownPrompt"_L1, "1"_L1, "Prompt before end ON"_L1, "Prompt before end OFF"_L1, "Ask before the program ends"_L1, "Prompt before ending (status left click)"_L1),
    value("incSMDMinHtmlSize"_L1, "incSMDMinHtmlSize"_L1, "000000"_L1, "Set minimum web page size of sought pages. Smaller html sizes will not be searched. (set to 0 to bypass)"_L1).atExit(14),
    box("chkSMD(7)"_L1, "chkSMAMUrlIfNoData"_L1, "1"_L1, "Save PassUrl if no data ON"_L1, "Save PassUrl if no data OFF"_L1, "(If checked) If Save links (Pass Urls) is checked urls will be saved only for pages for which (page, email, phone) were not saved, after passing MC-MNC"_L1, "Pass Url if no data."_L1),
    box("chkSMA(5)"_L1, "chkSMAPassUrlAutoIncr"_L1, "1"_L1, "Incr PassUrls ON"_L1, "Incr PassUrls OFF"_L1, "Move to the next Pass Url after one was opened"_L1, "Increment Pass Url on open Url click. (A)"_L1),
    box("chkSMA(8)"_L1, "chkSTmrRCDir"_L1, "1"_L1, "Open directory ON"_L1, "Open directory OFF"_L1, "A right click on the timer opens the file save directory, or magnifies the active item"_L1, "Open dir on timer right click, or magnify. (M)"_L1),
    value("incSmRPPause"_L1, "incSmRPPause"_L1, "010"_L1, "Seconds that a saved result page is given to arrive (0 takes the time of the links)"_L1).atExit(15),
    box("chkSMA(6)"_L1, "chkSMASavedUrlAutoIncr"_L1, "0"_L1, "Incr Saved Url ON"_L1, "Incr Saved Url OFF"_L1, "Move to the next Saved Url after one was opened"_L1, "Increment Saved Url on open Url click. (A)"_L1),
    box("chkSMA(9)"_L1, "chkSMSUniqueServers"_L1, "0"_L1, "Unique servers ON"_L1, "Unique servers OFF"_L1, "(If Checked) All Urls loaded (Auto [all links screened], Manual [Doesn't work on auto page url collect]) will be screened for second instances of the same server and second instances will be removed from the list"_L1, "Unique Servers (A,M)"_L1),
    box("chkSMA(10)"_L1, "chkSMADownloadAsBrowser"_L1, "1"_L1, "Downloads as browser ON"_L1, "Downloads as browser OFF"_L1, "(If checked) Downloads tell the server the web browser's name, its cookies and the page that it shows, since many picture pages refuse otherwise. Not with Win Api FTP"_L1, "Downloads follow the web browser. (M)"_L1),
    value("incMNDLTiming"_L1, "incMNDLTiming"_L1, "004"_L1, "Seconds that a download is given (0 takes the time of the items)"_L1).atExit(16),

    value("cboANList"_L1, "cboANList"_L1, "0"_L1, "List of Saved Urls and Pass Urls"_L1).with(Loaded::WithDatabase).ifItFits(),
    value("cboANMCMNCMask"_L1, "cboMCMNCMask"_L1, "0"_L1, "Sets of Must Contain and Must Not Contain texts"_L1).with(Loaded::WithDatabase).ifItFits().atExit(2),
    value("cboANSavedUrls"_L1, "cboSavedUrl"_L1, "0"_L1, "Saved Urls"_L1).with(Loaded::WithDatabase).ifItFits().atExit(3),
    box("chkUseSavedUrls"_L1, "chkUseSavedUrls"_L1, "0"_L1, "Use saved ON"_L1, "Use saved OFF"_L1, "Run through the saved result pages, from the chosen one on"_L1).with(Loaded::WithDatabase).withItsClick(),
    box("chkMustNotContain"_L1, "SearchKeyChkMustNotContain Value"_L1, "0"_L1, "MNC ON"_L1, "MNC OFF"_L1, "Pages must not contain the texts below"_L1).with(Loaded::WithDatabase),
    box("chkMustContain"_L1, "SearchKeyChkMustContain Value"_L1, "0"_L1, "MC ON"_L1, "MC OFF"_L1, "Pages must contain the texts below"_L1).with(Loaded::WithDatabase),
    box("chkSMV(4)"_L1, Keys::OrientAtStart, "1"_L1, "Orient Trawlex at start ON"_L1, "Orient Trawlex at start OFF"_L1, "Put Trawlex at the top left and the browser beside it at start"_L1, "Orient Trawlex and IE at start up."_L1).with(Loaded::WithWindow),
};
// clang-format on
} // namespace

std::span<const OptionRow> optionRows()
{
    return rows;
}
