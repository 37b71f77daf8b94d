// The wiring: makes the objects that need no toolkit, in the order in which they need one another, and connects them.
// Both programs hold one Program and bring the ports.
#pragma once

#include "app/ErrorLog.h"
#include "app/SideWindows.h"
#include "app/cTimer.h"
#include "harvest/AutoCollect.h"
#include "harvest/AutoRun.h"
#include "harvest/ManualRun.h"
#include "harvest/UntilLoaded.h"
#include "window/LifeCycle.h"
#include "window/commands/AutoTab.h"
#include "window/commands/CollectCommands.h"
#include "window/commands/CriteriaPanel.h"
#include "window/commands/ManualSide.h"
#include "window/commands/PopUps.h"
#include "window/options/AreaCodePanel.h"
#include "window/options/OptionReports.h"
#include "window/options/ToolTips.h"
#include "window/states/StateOfControls.h"

struct Program
{
    /// The ways out, which live as long as the Program.
    struct Ports
    {
        EventPump &pump;
        UserDialogs &dialogs;
        Desktop &desktop;
        ClipboardText &clipboard;
        SettingsStore &settings;
        WindowPlace &place;
        PopUpMenus &menus;
        SideWindows &side;
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
    DatabaseHolder database;
    BrowserHolder browser;
    Context context;
    Runs runs;
    BrowserConnection connection;
    Navigation navigation;
    PageVisit visit;
    SiteRecords records;
    ResultLinks links;
    SavedUrls savedUrls;
    CriteriaSets criteria;
    Blocking blocking;
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
    LifeCycle lifeCycle;
    AutoTab autoTab;
    CriteriaPanel criteriaPanel;
    ManualSide manual;
    Transfers transfers;
    cInetWS inet;
    Downloads downloads;
    ManualItems manualItems;
    ManualWalk manualWalk;
    AutoNavigate autoNavigate;
    ManualRun manualRun;
    CollectChoice collectChoice;
    PageCollecting pageCollecting;
    AutoCollect autoCollect;
    CollectCommands collectCommands;

  private:
    void connectDatabase();
    void connectManual(Desktop &desktop, SideWindows &side);
    void connectManualRun();
    void connectCollecting();
};
