#include "window/options/ToolTips.h"

using namespace Qt::StringLiterals;

namespace {
struct TipRow
{
    QLatin1StringView control;
    QLatin1StringView text;
};

// clang-format off
constexpr TipRow tips[] = {
    {"lblSummarySaved"_L1, "Summary saved indicator - (Left click to open. Right click to close)"_L1},
    {"lblPageSaved"_L1, "Page saved indicator - (Left click to open. Right click to close)"_L1},
    {"lblEmailSaved"_L1, "Email saved indicator - (Left click to open. Right click to close)"_L1},
    {"lblPhoneSaved"_L1, "Phone saved indicator - (Left click to open. Right click to close)"_L1},
    {"lblUrlSaved"_L1, "Pass Url saved indicator - (Left click to open. Right click for menu)"_L1},
    {"picANEnd"_L1, "Left click To End (Right click orients Trawlex & IE)"_L1},
    {"lblTrawlexTimer"_L1, "Trawlex Timer (Sec). Left click cancels timer"_L1},
    {"lblAutoIncrPos"_L1, "(Manual) Left click Toggle Auto Increment number, If Auto Text Url is saved. (Auto) Right click for PassUrl menu"_L1},
    {"lblAutoPgUrls"_L1, "Left click toggle collect urls of sites. Right click selects list to collect in"_L1},
    {"lblAutoCollect"_L1, "Left click toggle collect urls on sites. Right click selects list to collect in"_L1},
    {"cmdANStart"_L1, "Go = Start, X = Stop (Right click for search site menu)"_L1},
    {"cmdMNStart"_L1, "Go = Start, X = Stop (Right click for search site menu)"_L1},
    {"cmdANInitialize"_L1, "Initialize web browser. (Can't do anything without it)"_L1},
    {"lstANMCAllAny"_L1, "Must Contain (All, Any, or Selected)"_L1},
    {"lstANMNCAllAny"_L1, "Must Not Contain (Any, or Selected)"_L1},
    {"chkSMA(0)"_L1, "(If Checked) Search result page links will be stripped to server. Only the servers of search results will be opened. (Auto tab)"_L1},
    {"chkSMA(1)"_L1, "Resolve percent escapes in links when they are loaded"_L1},
    {"chkSMA(2)"_L1, "Open the page a run began on when it has finished"_L1},
    {"chkSMA(3)"_L1, "Download files with the FTP operations"_L1},
    {"chkSMA(4)"_L1, "Open the next Pass Url when one is deleted"_L1},
    {"chkSMA(5)"_L1, "Move to the next Pass Url after one was opened"_L1},
    {"chkSMA(6)"_L1, "Move to the next Saved Url after one was opened"_L1},
    {"chkSMA(7)"_L1, "Ask before the program ends"_L1},
    {"chkSMA(8)"_L1, "A right click on the timer opens the file save directory, or magnifies the active item"_L1},
    {"chkSMA(9)"_L1, "(If Checked) All Urls loaded (Auto [all links screened], Manual [Doesn't work on auto page url collect]) will be screened for second instances of the same server and second instances will be removed from the list"_L1},
    {"chkSMD(0)"_L1, "Open an export once it is written"_L1},
    {"chkSMD(1)"_L1, "Save one summary for each server"_L1},
    {"chkSMD(2)"_L1, "Save one Select Url for each server"_L1},
    {"chkSMD(3)"_L1, "Save the page's Url with its email addresses"_L1},
    {"chkSMD(4)"_L1, "Save the page's Url with its phone numbers"_L1},
    {"chkSMD(5)"_L1, "(If Checked) Use site title as note, if unchecked prompt for note, on status bar double click (Auto & Manual) to save a Select Url."_L1},
    {"chkSMD(6)"_L1, "Save fax numbers only"_L1},
    {"chkSMD(7)"_L1, "(If checked) If Save links (Pass Urls) is checked urls will be saved only for pages for which (page, email, phone) were not saved, after passing MC-MNC"_L1},
    {"chkSMD(8)"_L1, "Save the AutoText Url when a run stops"_L1},
    {"chkSMV(0)"_L1, "Show these texts"_L1},
    {"chkSMV(1)"_L1, "Log errors and show them"_L1},
    {"chkSMV(2)"_L1, "Toggle blocking all popup windows (Links that open new windows will not respond)"_L1},
    {"chkSMV(3)"_L1, "The magnify window keeps its place"_L1},
    {"chkSMV(4)"_L1, "Put Trawlex at the top left and the browser beside it at start"_L1},
    {"cboANList"_L1, "List of Saved Urls and Pass Urls"_L1},
    {"chkSaveSummary"_L1, "Save a summary of each wanted page"_L1},
    {"chkSavePages"_L1, "Save each wanted page"_L1},
    {"chkSaveEmail"_L1, "Save the email addresses of each wanted page"_L1},
    {"chkSavePhone"_L1, "Save the phone numbers of each wanted page"_L1},
    {"chkSaveUrl"_L1, "Save the link of each wanted page as a Pass Url"_L1},
    {"chkMCMNCStop"_L1, "Stop the run at the first page that passes"_L1},
    {"txtSBSelAreaCodes"_L1, "Find phone number for only select area codes. Enter area code list separated by commas"_L1},
    {"chkSaveToFile"_L1, "Save pages as files in the file save directory"_L1},
    {"chkSaveToSS"_L1, "Save pages in the SiteSummary table"_L1},
    {"chkPutInOneFile"_L1, "Save all pages in one file"_L1},
    {"cmdANMCMaskAdd"_L1, "Add a set of Must Contain and Must Not Contain texts"_L1},
    {"cmdANMCMaskMinus"_L1, "Remove the set"_L1},
    {"cboANMCMNCMask"_L1, "Sets of Must Contain and Must Not Contain texts"_L1},
    {"chkMustContain"_L1, "Pages must contain the texts below"_L1},
    {"chkMustNotContain"_L1, "Pages must not contain the texts below"_L1},
    {"cmdANAddMC"_L1, "Add a Must Contain text"_L1},
    {"cmdANAddMNC"_L1, "Add a Must Not Contain text"_L1},
    {"lstANMC"_L1, "Must Contain (MC) list"_L1},
    {"lstANMNC"_L1, "Must Not Contain (MNC) list"_L1},
    {"txtANStartTag"_L1, "Text at which the part of the page to save starts"_L1},
    {"txtANStopTag"_L1, "Text at which the part of the page to save stops"_L1},
    {"cboANSaveType"_L1, "What of a page is saved: its html, its text or its links"_L1},
    {"cmdANSavedAdd"_L1, "Save the Url of the page on show"_L1},
    {"cboANSavedUrls"_L1, "Saved Urls"_L1},
    {"cmdANSavedGo"_L1, "Open the chosen Url"_L1},
    {"cmdANSavedMinus"_L1, "Remove the chosen Url"_L1},
    {"chkMCCS"_L1, "Must Contain items are case sensitive"_L1},
    {"chkMNCCS"_L1, "Must Not Contain items are case sensitive"_L1},
    {"cboANWBSelect"_L1, "Which web browser is driven"_L1},
    {"chkUseSavedUrls"_L1, "Run through the saved result pages, from the chosen one on"_L1},
    {"incANTiming"_L1, "Seconds that each page is given to arrive"_L1},
    {"lblMCColor"_L1, "Must Contain indicator - green passed, red refused"_L1},
    {"lblMNCColor"_L1, "Must Not Contain indicator - green passed, red refused"_L1},
    {"chkEmailBlocking"_L1, "Leave out email addresses that hold a blocked text"_L1},
    {"chkUrlBlocking"_L1, "Leave out links that hold a blocked text"_L1},
    {"incNotFoundMinSize"_L1, "Pages with sizes less than this will be checked for File Not Found (0 checks all pages)"_L1},
    {"incSMDMinHtmlSize"_L1, "Set minimum web page size of sought pages. Smaller html sizes will not be searched. (set to 0 to bypass)"_L1},
    {"incSmRPPause"_L1, "Seconds that a saved result page is given to arrive (0 takes the time of the links)"_L1},
    {"incSFMinFileSize"_L1, "Minimum length of a saved page"_L1},
    {"incSMAIEWidth"_L1, "Width of the browser window at its standard position"_L1},
    {"incSMAIEHeight"_L1, "Height of the browser window at its standard position"_L1},
    {"txtSFDBDir"_L1, "Database directory"_L1},
    {"txtSFMNDir"_L1, "File save directory"_L1},
};
// clang-format on
} // namespace

void showToolTips(frmSearch &form, bool show)
{
    for (const TipRow &row : tips)
        form.control(row.control)->setToolTipText(show ? QString(row.text) : QString());
}
