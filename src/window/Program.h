// The wiring: makes the objects that need no toolkit, in the order in which they need one another, and connects them.
// Both programs hold one Program and bring the ports.
#pragma once

#include "app/ErrorLog.h"
#include "app/LongWork.h"
#include "app/SideWindows.h"
#include "app/cTimer.h"
#include "harvest/AutoCollect.h"
#include "harvest/AutoRun.h"
#include "harvest/ManualRun.h"
#include "harvest/UntilLoaded.h"
#include "sites/SiteCount.h"
#include "window/DataSide.h"
#include "window/LifeCycle.h"
#include "window/StartUp.h"
#include "window/commands/BlockingPanel.h"
#include "window/commands/CollectCommands.h"
#include "window/commands/CriteriaPanel.h"
#include "window/commands/FilesSitesEvents.h"
#include "window/commands/ManualSide.h"
#include "window/commands/PassUrlsMenu.h"
#include "window/commands/PlaceCommands.h"
#include "window/commands/PopUps.h"
#include "window/commands/RunEvents.h"
#include "window/commands/SavedPanel.h"
#include "window/commands/SiteMenu.h"
#include "window/commands/SiteOffer.h"
#include "window/commands/SitePanel.h"
#include "window/commands/StatusBarEvents.h"
#include "window/commands/StatusMenu.h"
#include "window/commands/TabEvents.h"
#include "window/commands/WindowCommands.h"
#include "window/options/AreaCodePanel.h"
#include "window/options/OptionReports.h"
#include "window/options/ToolTips.h"
#include "window/side/DownloadedPictures.h"
#include "window/side/PictureMenu.h"
#include "window/states/ManualColours.h"
#include "window/states/StateOfControls.h"

struct Program
{
    /// Time, questions to the user, the desktop, options.
    struct SystemPorts
    {
        EventPump &pump;
        UserDialogs &dialogs;
        Desktop &desktop;
        ClipboardText &clipboard;
        SettingsStore &settings;
    };
    /// What can be seen: the main window, menus, side windows, pictures.
    struct WindowPorts
    {
        WindowPlace &place;
        PopUpMenus &menus;
        SideWindows &side;
        PictureScreen &pictures;
    };
    /// The ways out, which live as long as the Program.
    struct Ports
    {
        SystemPorts system;
        WindowPorts window;
        BrowserFactory &browsers;
        QString programFolder;
    };
    explicit Program(const Ports &ports);

    frmSearch form;
    ErrorLog log;
    Tips tips;
    StatusLine status;
    PopUps popUps;
    cTimer timer;
    StateOfControls states;
    Context context;
    DatabaseHolder database;
    BrowserHolder browser;
    Runs runs;
    BrowserConnection connection;
    Navigation navigation;
    PageVisit visit;
    SiteRecords records;
    SiteEditing siteEditing;
    DefaultSites defaultSites;
    ResultLinks links;
    SavedUrls savedUrls;
    CriteriaSets criteria;
    Blocking blocking;
    LongWork longWork;
    PageData pageData;
    PageFiles pageFiles;
    Findings findings;
    ResultWriters writers;
    PageKeeping keeping;
    PageTests pageTests;
    PageScreening screening;
    ErrorPages errorPages;
    SiteVisit siteVisit;
    ResultPages resultPages;
    AutoRun autoRun;
    Options options;
    OptionReports optionReports;
    ToolTips toolTips;
    AreaCodePanel areaCodes;
    DatabaseFile databaseFile;
    DatabaseLoader loader;
    DataSide dataSide;
    LifeCycle lifeCycle;
    StartUp startUp;
    PlaceCommands placeCommands;
    WindowCommands windowCommands;
    FilesSitesEvents filesSites;
    ManualColours manualColours;
    RunEvents runEvents;
    SavedPanel savedPanel;
    ListMenu listMenu;
    CriteriaPanel criteriaPanel;
    BlockingPanel blockingPanel;
    TabEvents tabEvents;
    StatusBarEvents statusBarEvents;
    StatusMenu statusMenu;
    SiteMenu siteMenu;
    SitePanel sitePanel;
    SiteOffer siteOffer;
    SiteCount siteCount;
    ManualSide manual;
    PassUrlsMenu passUrlsMenu;
    Transfers transfers;
    cInetWS inet;
    Downloads downloads;
    ManualItems manualItems;
    frmFoto foto;
    PictureBrowser pictures;
    PictureMenu fotoMenu;
    DownloadedPictures downloadedPictures{form.places, form.manual, foto, pictures, navigation};
    ManualWalk manualWalk;
    AutoNavigate autoNavigate;
    ManualRun manualRun;
    CollectChoice collectChoice;
    PageCollecting pageCollecting;
    AutoCollect autoCollect;
    CollectCommands collectCommands;

  private:
    void connectAll(const Ports &ports);
    void connectDatabase();
    void connectSites();
    void loadSites();
    void connectLife(const Ports &ports);
    void connectManual(Desktop &desktop, SideWindows &side);
    void connectManualRun();
    void connectCollecting();
    void connectData(Desktop &desktop, SideWindows &side);
};
