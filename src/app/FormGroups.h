// The controls of the main window, in groups that a user knows: what belongs to a run, a criterion, a saved address. An
// operation takes the groups that it works on. Each control is declared once, with its name, digits and items; names
// are unique over all groups, and the form finds any control by its name. Knows controls.
#pragma once

#include "app/OptionNumbers.h"
#include "controls/Card.h"
#include "controls/ControlArray.h"
#include "controls/Grid.h"
#include "controls/ListControls.h"
#include "controls/NumberBox.h"
#include "controls/SimpleControls.h"
#include "util/AddressList.h"

/// The names of the five lists of either tab.
inline const QStringList listNames{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("D"),
                                   QStringLiteral("E")};

/// The tabs, their places by name, and the status bar at the foot.
struct WindowFrame
{
    explicit WindowFrame(QObject *form);
    TabControl sstSearch, sstSettings, sstFiles, sstMiscOptions;
    PictureBox picStatus;
};
namespace Tab {
// sstSearch
constexpr int Auto = 0, Manual = 1, Settings = 2, Data = 3;
// sstSettings
constexpr int Blocking = 0, Files = 1, Misc = 2;
// sstFiles
constexpr int Directory = 0, Import = 1;
// sstMiscOptions
constexpr int AutoAndManual = 0, Save = 1, View = 2, Sites = 3;
} // namespace Tab

/// The connection with a browser, and the end mark.
struct BrowserPanel
{
    explicit BrowserPanel(QObject *form);
    Button cmdANInitialize;
    ComboBox cboANWBSelect;
    PictureBox picANEnd;
    Label lblTrawlexTimer;
    bool mbInitialized = false;     ///< a browser is connected; both runs end when it is not
    bool mbInternalBrowser = false; ///< the connected browser is the built-in one
};

/// Start and pace of the Auto run, and its walk. Arrays are never without elements; empty is one "".
struct AutoPanel
{
    explicit AutoPanel(QObject *form);
    Button cmdANStart;
    NumberBox incANTiming;
    QStringList mastrLinks = emptyList(); ///< the addresses that the run walks
    int mlngANLinkIndex = 0;              ///< survives a stop, so that Go resumes
    QString mstrANStartUrl;               ///< where "Return to start page on finish." leads
};

/// Start addresses under short names.
struct SavedAddresses
{
    explicit SavedAddresses(QObject *form);
    CheckBox chkUseSavedUrls;
    ComboBox cboANList, cboANSavedUrls;
    Button cmdANSavedAdd, cmdANSavedMinus, cmdANSavedGo;
    QStringList mastrSavedUrlIds = emptyList(); ///< name, line end, address; same order as cboANSavedUrls
    bool mbPassUrlsLoaded = false;              ///< cboANSavedUrls shows PassUrls
};

/// What is saved of a wanted page, and the lamps that report it.
struct Outputs
{
    explicit Outputs(QObject *form);
    CheckBox chkSaveSummary, chkSavePages, chkSaveEmail, chkSavePhone, chkSaveUrl, chkMCMNCStop;
    Label lblSummarySaved, lblPageSaved, lblEmailSaved, lblPhoneSaved, lblUrlSaved;
    ComboBox cboANSaveType;
    TextBox txtANStartTag, txtANStopTag;
    CheckBox chkSaveToSS, chkSaveToFile, chkPutInOneFile;
};

/// One list of texts that pages must, or must not, contain.
struct Criterion
{
    struct Names
    {
        QLatin1StringView on, caseSensitive, items, demand, add, lamp;
    };
    Criterion(const Names &names, QObject *form);
    CheckBox on, caseSensitive;
    ListBox items;
    ComboBox demand; ///< "All", "Any" or "Select"
    Button add;
    Label lamp;
};

/// The sets of criteria, and the two lists of the set in force.
struct Criteria
{
    explicit Criteria(QObject *form);
    ComboBox cboANMCMNCMask;
    Button cmdANMCMaskAdd, cmdANMCMaskMinus;
    Criterion mustContain, mustNotContain;
};

/// Texts that keep links, or mail addresses, out of a harvest.
struct BlockedTexts
{
    struct Names
    {
        QLatin1StringView on, items, buttons;
    };
    BlockedTexts(const Names &names, QObject *form);
    CheckBox on;
    ListBox items;
    ControlArray<Button> buttons; ///< 0 adds, 1 deletes
};

struct BlockingLists
{
    explicit BlockingLists(QObject *form);
    BlockedTexts urls, email;
    QStringList mastrQB = emptyList(); ///< Quick Block texts
};

/// The labels that show and switch collecting while one browses by hand; each serves both runs' tabs.
struct CollectLabels
{
    explicit CollectLabels(QObject *form);
    Label lblAutoCollect, lblAutoPgUrls, lblAutoIncrPos;
    int mlngAutoCollectState = 0;     ///< 0 to 11
    bool mbNavListCollecting = false; ///< Go on the Manual tab is refused
};

/// Start and pace of the Manual run, and what it does with an item.
struct ManualPanel
{
    explicit ManualPanel(QObject *form);
    Button cmdMNStart;
    PictureBox picMNStartStop;
    NumberBox incMNTiming, incMNDLTiming;
    Label lblMNDLTiming;
    ComboBox cboFilesSites; ///< "File" or "Site"
    CheckBox chkSMOpenDownloadedGraphics, chkMNUseFotoBrwse;
    int mintMNRunningList = 0; ///< the list that the run walks
    int mlngMNLinkIndex = 0;   ///< of the links of an Auto Navigate page; survives a stop
    QString mstrMNStartUrl;    ///< where "Return to start page on finish." leads
};

/// The address of a numbered series.
struct SeriesPanel
{
    explicit SeriesPanel(QObject *form);
    ComboBox cboMNAutoUrl;
    NumberBox incMNAutoUrl, incMNStep;
    PictureBox picMNShadow;
};

/// The five lists of addresses of the Manual tab.
struct ManualLists
{
    explicit ManualLists(QObject *form);
    ComboBox cboMNList;
    ControlArray<ListBox> lstMN;
    /// The list on show.
    [[nodiscard]] ListBox &shown() const { return lstMN(cboMNList.listIndex()); }
};

/// The filter of links that are loaded from the browser.
struct UrlFilterBoxes
{
    explicit UrlFilterBoxes(QObject *form);
    ComboBox cboMNMCMNC, cboMNMCMNCFilter;
};

/// The editor of search-site records.
struct SiteEditor
{
    explicit SiteEditor(QObject *form);
    ControlArray<ComboBox> cboSD; ///< 1 to 8: name, server, begin, end, contains, contains not, first link, last link
    ControlArray<Button> cmdSD;   ///< 1 to 16: the odd ones add to a box, the even ones delete from it
    Button cmdSDDefault;
    ComboBox cboSDLen, cboSDGroup;
    CheckBox chkSDHex;
    NumberBox incSDUrlLen;
    ControlArray<NumberBox> incSDMCMNC; ///< 0 of "contains", 1 of "contains not"
    /// What is left of the page's links, as figures: 1 all of them, 2 between first and last, 3 of the length, 4 that
    /// contain, 5 that do not contain, 6 the results.
    ControlArray<Label> lblSDCount;
};

/// Which phone numbers are looked for.
struct AreaCodeBoxes
{
    explicit AreaCodeBoxes(QObject *form);
    TextBox txtSBSelAreaCodes, txtSBStateACs;
    ComboBox cboSBSelectState;
};

/// Folders, database and editor.
struct FilePlaces
{
    explicit FilePlaces(QObject *form);
    TextBox txtSFDBDir, txtSFDBFile, txtSFMNDir, txtSFEditor;
    Button cmdSFDBDirBrowse, cmdSFDBFileBrowse, cmdSFAutoDBFile, cmdSFMNDirBrowse, cmdSFEditorSel;
    Label lblSaveDir, lblMNSaveDir;
};

/// Copying from another database.
struct ImportPage
{
    explicit ImportPage(QObject *form);
    Button cmdSFISelDatabase, cmdSFIImport;
    Label lblSFIImportDatabase;
    ComboBox cboSFITableIn, cboSFIFieldIn, cboSFITableExisting, cboSFIFieldExisting;
    CheckBox chkSFIAllData, chkSFIAllSettings, chkSFIImportTable, chkSFIImportField;
};

/// The numbered switches. What each number is stands in OptionNumbers.h.
struct OptionBoxes
{
    explicit OptionBoxes(QObject *form);
    ControlArray<CheckBox> chkSMA, chkSMD, chkSMV;
};

/// Sizes and pauses.
struct Limits
{
    explicit Limits(QObject *form);
    NumberBox incNotFoundMinSize, incSFMinFileSize, incSFMinGraphicSize, incSMDMinHtmlSize, incSMAMAutoTxtElng;
    NumberBox incSMAIEWidth, incSMAIEHeight, incSmRPPause;
    Label lblNotFoundMinSize, lblSFMinPageSize, lblMNFileDLMinSize, lblMinHtmlSize, lblAutoTxtBoxElongate;
    Label lblSMAIEWidth, lblSMAIEHeight, lblSMRPPauseTime;
};

/// The grid, and the choice of what it shows.
struct DataBoxes
{
    explicit DataBoxes(QObject *form);
    ComboBox cboDBTables, cboDBFields;
    ComboBox cboDBPlace; ///< where the filter's text stands in a field: "contains", "begins with", "equals"
    TextBox txtDBQuery;
    CheckBox chkDBCard; ///< the row in use is shown as a card
    Card crdDBRow;
    Grid fxgTrawlex;
};

/// The two kinds of run, as far as both sides must know of each other.
struct RunFlags
{
    bool mbANRunning = false, mbMNRunning = false;
    bool mbANCancel = false, mbMNCancel = false; ///< the run is to stop at its next check
    bool mbANMCMNCStopped = false, mbMNMCMNCStopped = false;
    [[nodiscard]] bool idle() const { return !mbANRunning && !mbMNRunning; }
};
