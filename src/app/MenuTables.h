// The menus of the program as tables: one row an item, in the order in which they are shown. Knows controls.
#pragma once

#include "controls/Menu.h"

namespace MenuTables {
using namespace Qt::Literals::StringLiterals;

/// The status bar on the tabs Auto and Settings.
constexpr MenuRow mnuPopUpANStatus[] = {
    {"mnuANStatusReSet"_L1, {}, "ReSet"_L1},
    {"mnuANStatusAutoSave"_L1, {}, "Auto Save"_L1},
    {"mnuANStatusACList(0)"_L1, "mnuANStatusAutoSave"_L1, "-A-"_L1},
    {"mnuANStatusACList(1)"_L1, "mnuANStatusAutoSave"_L1, "-B-"_L1},
    {"mnuANStatusACList(2)"_L1, "mnuANStatusAutoSave"_L1, "-C-"_L1},
    {"mnuANStatusACList(3)"_L1, "mnuANStatusAutoSave"_L1, "-D-"_L1},
    {"mnuANStatusACList(4)"_L1, "mnuANStatusAutoSave"_L1, "-E-"_L1},
    {"mnuANStatusGetServer"_L1, {}, "Get Server"_L1},
    {"mnuANStatusSepThree"_L1, {}, "-"_L1},
    {"mnuANStatusKeepOnTop"_L1, {}, "Keep On Top"_L1},
    {"mnuANStatusSepFour"_L1, {}, "-"_L1},
    {"mnuANStatusMinimize"_L1, {}, "Minimize"_L1},
    {"mnuANStatusHelp"_L1, {}, "Help"_L1},
    {"mnuANStatusAbout"_L1, {}, "About"_L1},
    {"mnuANStatusEnd"_L1, {}, "End"_L1},
};

/// The lists of addresses on the tab Manual.
constexpr MenuRow mnuPopUpMN[] = {
    {"mnuMNEdit"_L1, {}, "Edit"_L1},
    {"mnuMNMagnify"_L1, {}, "Magnify"_L1},
    {"mnuMNNavigateTo"_L1, {}, "Navigate To"_L1},
    {"mnuMNNewWindow"_L1, {}, "New Window"_L1},
    {"mnuMNSepEight"_L1, {}, "-"_L1},
    {"mnuMNMainClear"_L1, {}, "Clear"_L1},
    {"mnuMNClear"_L1, "mnuMNMainClear"_L1, "List"_L1},
    {"mnuMNDeleteSaved"_L1, "mnuMNMainClear"_L1, "Urls (DB)"_L1},
    {"mnuMNClearSelected"_L1, "mnuMNMainClear"_L1, "Selected"_L1},
    {"mnuMNClearAllListWindows"_L1, "mnuMNMainClear"_L1, "All List Windows"_L1},
    {"mnuMNSepFive"_L1, {}, "-"_L1},
    {"mnuMNUnSelect"_L1, {}, "UnSelect"_L1},
    {"mnuMNSelectAll"_L1, {}, "Select All"_L1},
    {"mnuMNPasteLinks"_L1, {}, "Paste Urls"_L1},
    {"mnuMNCutSelected"_L1, {}, "Cut Selected"_L1},
    {"mnuMNCopySelected"_L1, {}, "Copy Selected"_L1},
    {"mnuMNSepThree"_L1, {}, "-"_L1},
    {"mnuMNMainFind"_L1, {}, "Find"_L1},
    {"mnuMNFind(0)"_L1, "mnuMNMainFind"_L1, "Any Text"_L1},
    {"mnuMNFind(1)"_L1, "mnuMNMainFind"_L1, "Find Next"_L1},
    {"mnuMNFind(2)"_L1, "mnuMNMainFind"_L1, "List Position"_L1},
    {"mnuMNMainSave"_L1, {}, "Save"_L1},
    {"mnuMNSaveToDatabase"_L1, "mnuMNMainSave"_L1, "ListTo Db"_L1},
    {"mnuMNSaveAsFile"_L1, "mnuMNMainSave"_L1, "List To File"_L1},
    {"mnuMNSaveLast"_L1, "mnuMNMainSave"_L1, "List Position"_L1},
    {"mnuMNStatusSaveListWindowUrl"_L1, "mnuMNMainSave"_L1, "Select (Manual)"_L1},
    {"mnuMNSepTwo"_L1, {}, "-"_L1},
    {"mnuMNMainLoad"_L1, {}, "Load"_L1},
    {"mnuMNLoadLinksIE"_L1, "mnuMNMainLoad"_L1, "Urls (IE)"_L1},
    {"mnuMNLoadLinksDB"_L1, "mnuMNMainLoad"_L1, "Urls (DB)"_L1},
    {"mnuMNLoadLinksFile"_L1, "mnuMNMainLoad"_L1, "Urls (File)"_L1},
    {"mnuMNLoadSelectUrls"_L1, "mnuMNMainLoad"_L1, "Special (DB)"_L1},
    {"mnuMNLSU(0)"_L1, "mnuMNLoadSelectUrls"_L1, "Select (Auto)"_L1},
    {"mnuMNLSU(1)"_L1, "mnuMNLoadSelectUrls"_L1, "Select (Manual)"_L1},
    {"mnuMNLSU(2)"_L1, "mnuMNLoadSelectUrls"_L1, "Pass (Auto)"_L1},
    {"mnuMNLSU(3)"_L1, "mnuMNLoadSelectUrls"_L1, "Saved (Auto)"_L1},
    {"mnuMNLSU(4)"_L1, "mnuMNLoadSelectUrls"_L1, "UrlsCache (Deleted)"_L1},
    {"mnuMNUseSiteData"_L1, {}, "Use Site Data"_L1},
    {"mnuMNSepTen"_L1, {}, "-"_L1},
    {"mnuMNLoadIEUrlFilters"_L1, {}, "IE Url Filters"_L1},
    {"mnuMNAddFilter"_L1, "mnuMNLoadIEUrlFilters"_L1, "Add Filter"_L1},
    {"mnuMNDeleteFilter"_L1, "mnuMNLoadIEUrlFilters"_L1, "Delete Filter"_L1},
    {"mnuMNLocateFilter"_L1, "mnuMNLoadIEUrlFilters"_L1, "Locate Filter"_L1},
    {"mnuMNSepFour"_L1, {}, "-"_L1},
    {"mnuMNReduceToServer"_L1, {}, "Reduce To Server"_L1},
    {"mnuMNUniqueServersOnly"_L1, {}, "Unique Servers Only"_L1},
    {"mnuMNRemove"_L1, {}, "Remove"_L1},
    {"mnuMNRem(0)"_L1, "mnuMNRemove"_L1, "Repeats"_L1},
    {"mnuMNRem(1)"_L1, "mnuMNRemove"_L1, "Protocol"_L1},
    {"mnuMNRem(2)"_L1, "mnuMNRemove"_L1, "Left Side At"_L1},
    {"mnuMNRem(3)"_L1, "mnuMNRemove"_L1, "Right Side At"_L1},
    {"mnuMNRem(4)"_L1, "mnuMNRemove"_L1, "Items Containing"_L1},
    {"mnuMNRem(5)"_L1, "mnuMNRemove"_L1, "Items Not Containing"_L1},
};

/// The status bar on the tab Manual.
constexpr MenuRow mnuPopUpMNStatus[] = {
    {"mnuMNStatusMagnify"_L1, {}, "Magnify"_L1},
    {"mnuMNStatusElongate"_L1, {}, "Elongate"_L1},
    {"mnuMNStatusNavigateToAutoTextUrl"_L1, {}, "Navigate To"_L1},
    {"mnuMNStatusSepFive"_L1, {}, "-"_L1},
    {"mnuMNStatusAutoIncrementNumber"_L1, {}, "Auto Increment Number"_L1},
    {"mnuMNStatusAutoIncrPos(1)"_L1, "mnuMNStatusAutoIncrementNumber"_L1, "First"_L1},
    {"mnuMNStatusAutoIncrPos(2)"_L1, "mnuMNStatusAutoIncrementNumber"_L1, "Second"_L1},
    {"mnuMNStatusAutoIncrPos(3)"_L1, "mnuMNStatusAutoIncrementNumber"_L1, "Third"_L1},
    {"mnuMNStatusAutoIncrPos(4)"_L1, "mnuMNStatusAutoIncrementNumber"_L1, "Fourth"_L1},
    {"mnuMNStatusAutoIncrPos(5)"_L1, "mnuMNStatusAutoIncrementNumber"_L1, "Fifth"_L1},
    {"mnuMNStatusAutoIncrPos(6)"_L1, "mnuMNStatusAutoIncrementNumber"_L1, "Sixth"_L1},
    {"mnuMNStatusAutoIncrPos(7)"_L1, "mnuMNStatusAutoIncrementNumber"_L1, "Seven"_L1},
    {"mnuMNStatusAutoIncrPos(8)"_L1, "mnuMNStatusAutoIncrementNumber"_L1, "Eight"_L1},
    {"mnuMNStatusAutoIncrPos(9)"_L1, "mnuMNStatusAutoIncrementNumber"_L1, "Nine"_L1},
    {"mnuMNStatusAutoCollectPageUrls"_L1, {}, "Collect  Urls Of Sites"_L1},
    {"mnuMNStatusListCP(0)"_L1, "mnuMNStatusAutoCollectPageUrls"_L1, "-A-"_L1},
    {"mnuMNStatusListCP(1)"_L1, "mnuMNStatusAutoCollectPageUrls"_L1, "-B-"_L1},
    {"mnuMNStatusListCP(2)"_L1, "mnuMNStatusAutoCollectPageUrls"_L1, "-C-"_L1},
    {"mnuMNStatusListCP(3)"_L1, "mnuMNStatusAutoCollectPageUrls"_L1, "-D-"_L1},
    {"mnuMNStatusListCP(4)"_L1, "mnuMNStatusAutoCollectPageUrls"_L1, "-E-"_L1},
    {"mnuMNStatusAutoCollectLinks"_L1, {}, "Collect Urls On Sites"_L1},
    {"mnuMNStatusListCL(0)"_L1, "mnuMNStatusAutoCollectLinks"_L1, "-A-"_L1},
    {"mnuMNStatusListCL(1)"_L1, "mnuMNStatusAutoCollectLinks"_L1, "-B-"_L1},
    {"mnuMNStatusListCL(2)"_L1, "mnuMNStatusAutoCollectLinks"_L1, "-C-"_L1},
    {"mnuMNStatusListCL(3)"_L1, "mnuMNStatusAutoCollectLinks"_L1, "-D-"_L1},
    {"mnuMNStatusListCL(4)"_L1, "mnuMNStatusAutoCollectLinks"_L1, "-E-"_L1},
    {"mnuMNStatusSepOne"_L1, {}, "-"_L1},
    {"mnuMNStatusAutoNavigate"_L1, {}, "Auto Navigate"_L1},
    {"mnuMNUseAutoBase"_L1, {}, "Use Base (AutoText)"_L1},
    {"mnuMNStatusSepMinusOne"_L1, {}, "-"_L1},
    {"mnuMNStatusMainSave"_L1, {}, "Save"_L1},
    {"mnuMNStatusSaveAutoTextUrl"_L1, "mnuMNStatusMainSave"_L1, "AutoText"_L1},
    {"mnuMNStatusSaveUrlMNSelect"_L1, "mnuMNStatusMainSave"_L1, "Select (Manual)"_L1},
    {"mnuMNStatusDeleteAutoTextUrl"_L1, {}, "Delete AutoText"_L1},
    {"mnuMNStatusSepPlusOne"_L1, {}, "-"_L1},
    {"mnuMNSetFirstFromTextBox"_L1, {}, "Set Start (AutoText)"_L1},
    {"mnMNStatusSepFour"_L1, {}, "-"_L1},
    {"mnuMNStatusMinimize"_L1, {}, "Minimize"_L1},
    {"mnuMNStatusHelp"_L1, {}, "Help"_L1},
    {"mnuMNStatusAbout"_L1, {}, "About"_L1},
    {"mnuMNStatusEnd"_L1, {}, "End"_L1},
};

/// The lists of criteria and of blocked texts.
constexpr MenuRow mnuPopUpANMCMNC[] = {
    {"mnuANMCMNCRemove"_L1, {}, "Remove"_L1},
    {"mnuANMCMNCClear"_L1, {}, "Clear"_L1},
};

/// The label of the position, on the tab Auto.
constexpr MenuRow mnuPopUpPassUrls[] = {
    {"mnuPULoadPassUrls"_L1, {}, "Load Pass Urls"_L1},
    {"mnuPUUnLoadPassUrls"_L1, {}, "UnLoad Pass Urls"_L1},
    {"mnuPUDeletePassUrls"_L1, {}, "Delete Pass Urls"_L1},
    {"mnuPUDeleteSaveUrls"_L1, {}, "Delete Save Urls"_L1},
};

/// Search sites in five groups. A record's item joins its group when the records are read; the first of each group
/// always stands.
constexpr MenuRow mnuPopUpSearchSites[] = {
    {"mnuSearchSites(0)"_L1, {}, "-A-"_L1}, {"mnuSearchSitesA(0)"_L1, "mnuSearchSites(0)"_L1, {}},
    {"mnuSearchSites(1)"_L1, {}, "-B-"_L1}, {"mnuSearchSitesB(0)"_L1, "mnuSearchSites(1)"_L1, {}},
    {"mnuSearchSites(2)"_L1, {}, "-C-"_L1}, {"mnuSearchSitesC(0)"_L1, "mnuSearchSites(2)"_L1, {}},
    {"mnuSearchSites(3)"_L1, {}, "-D-"_L1}, {"mnuSearchSitesD(0)"_L1, "mnuSearchSites(3)"_L1, {}},
    {"mnuSearchSites(4)"_L1, {}, "-E-"_L1}, {"mnuSearchSitesE(0)"_L1, "mnuSearchSites(4)"_L1, {}},
};

/// The grid of the tab Data.
constexpr MenuRow mnuPopUpDB[] = {
    {"mnuDBNavigateTo"_L1, {}, "Navigate To"_L1},
    {"mnuDBCopy"_L1, {}, "Copy"_L1},
    {"mnuDBMagnify"_L1, {}, "Magnify"_L1},
    {"mnuDBNewWindow"_L1, {}, "New Window"_L1},
    {"mnuDBSepOne"_L1, {}, "-"_L1},
    {"mnuDBDelete"_L1, {}, "Delete"_L1},
};

/// The status bar on the tab Data.
constexpr MenuRow mnuPopUpDBStatus[] = {
    {"mnuDBStatusExportTable"_L1, {}, "Export"_L1},
    {"mnuDBStatusHtmlTable"_L1, "mnuDBStatusExportTable"_L1, "Html Table"_L1},
    {"mnuDBStatusTabDelimited"_L1, "mnuDBStatusExportTable"_L1, "Tab Delimited"_L1},
    {"mnuDBStatusCommaDelimited"_L1, "mnuDBStatusExportTable"_L1, "Comma Delimited"_L1},
    {"mnuDBStatusSepOne"_L1, "mnuDBStatusExportTable"_L1, "-"_L1},
    {"mnuDBStatusReloadableRS"_L1, "mnuDBStatusExportTable"_L1, "Reloadable RS File"_L1},
    {"mnuDBStatusSepTwo"_L1, "mnuDBStatusExportTable"_L1, "-"_L1},
    {"mnuDBStatusCsv"_L1, "mnuDBStatusExportTable"_L1, "CSV"_L1},
    {"mnuDBStatusJsonLines"_L1, "mnuDBStatusExportTable"_L1, "JSON Lines"_L1},
    {"mnuDBStatusSpreadsheet"_L1, "mnuDBStatusExportTable"_L1, "Excel Workbook"_L1},
    {"mnuDBStatusSqlite"_L1, "mnuDBStatusExportTable"_L1, "SQLite Database"_L1},
    {"mnuDBStatusReLoadRSFile"_L1, {}, "ReLoad RS File"_L1},
};

/// The window of a grid or list of its own.
constexpr MenuRow mnuFxgPopUpMenu[] = {
    {"mnuFxgNavigateTo"_L1, {}, "Navigate To"_L1},
    {"mnuFxgSepOne"_L1, {}, "-"_L1},
    {"mnuFxgMagnify"_L1, {}, "Magnify"_L1},
    {"mnuFxgSepTwo"_L1, {}, "-"_L1},
    {"mnuFxgCopy"_L1, {}, "Copy"_L1},
    {"mnuFxgSepThree"_L1, {}, "-"_L1},
    {"mnuFxgClose"_L1, {}, "Close"_L1},
};

/// The picture browser.
constexpr MenuRow mnuFotoPopUpAction[] = {
    {"mnuRefresh"_L1, {}, "Refresh"_L1},
    {"mnuFotoSepThree"_L1, {}, "-"_L1},
    {"mnuExplore"_L1, {}, "Explore"_L1},
    {"mnuFileSourceDirectory"_L1, "mnuExplore"_L1, "File Source Directory"_L1},
    {"mnuMoveToDirectory"_L1, "mnuExplore"_L1, "Move To Directory"_L1},
    {"mnuNewDirectory"_L1, {}, "New Directory"_L1},
    {"mnuSetMoveToDir"_L1, {}, "Set Move To Dir"_L1},
    {"mnuFotoMainSepOne"_L1, {}, "-"_L1},
    {"mnuFotoMoveIt"_L1, {}, "Move it           (Ins)"_L1},
    {"mnuFotoSepOne"_L1, {}, "-"_L1},
    {"mnuFotoDeleteIt"_L1, {}, "Delete It         (Del)"_L1},
    {"mnuFotoSepTwo"_L1, {}, "-"_L1},
    {"mnuFotoExit"_L1, {}, "Exit"_L1},
};

/// What else the picture browser can do.
constexpr MenuRow mnuFotoMore[] = {
    {"mnuFotoUndo"_L1, {}, "Undo            (Ctrl+Z)"_L1},
    {"mnuFotoMoreSepOne"_L1, {}, "-"_L1},
    {"mnuFotoActualSize"_L1, {}, "Actual Size     (Space)"_L1},
    {"mnuFotoThumbnails"_L1, {}, "Thumbnails      (Ctrl+T)"_L1},
    {"mnuFotoMoreSepTwo"_L1, {}, "-"_L1},
    {"mnuFotoToTrash"_L1, {}, "Delete To Trash"_L1},
};

} // namespace MenuTables
