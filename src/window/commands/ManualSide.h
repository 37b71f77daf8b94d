// The wiring of the Manual tab: its lists, tables, feeds and commands, in the order in which they need one another.
#pragma once

#include "lists/SelectUrls.h"
#include "window/commands/ManualEdit.h"
#include "window/commands/ManualFiles.h"
#include "window/commands/ManualPopUps.h"
#include "window/commands/ManualRemove.h"
#include "window/commands/ManualSources.h"
#include "window/commands/ManualStatusCommands.h"
#include "window/commands/ManualStore.h"
#include "window/commands/ManualTab.h"
#include "window/commands/UrlFilterEvents.h"

class StateOfControls;

struct ManualSide
{
    ManualSide(const Context &context, frmSearch &form, LongWork &work, ClipboardText &clipboard,
               DatabaseHolder &database, BrowserHolder &browser, ResultLinks &results);
    ManualSide(const ManualSide &) = delete;
    ManualSide &operator=(const ManualSide &) = delete;
    /// What the control states ask of the tab.
    void connectTo(const StateOfControls &states);
    /// Shows what the tab has of a database that has just been loaded.
    void takeDatabase();

    Context context;
    frmSearch &form;
    ManualDesk desk;
    DeletedRows deleted;
    ManualTables tables;
    UrlFilters filters;
    SelectUrls selectUrls;
    SiteRecords records;
    DiscoveredLinks links;
    ManualFeed feed;
    AutoText texts;
    AutoIncr series;
    ManualWork longWork;
    ManualFind find;
    ManualEdit edit;
    ManualStore store;
    ManualFiles files;
    ManualSources sources;
    ManualRemove remove;
    UrlFilterEvents filterEvents;
    ManualPopUps popUps;
    ManualStatusCommands statusCommands;
    ManualTab tab;

    /// Marks the page on show, or `url`, in `table`.
    void mark(const QString &table, const QString &url);
    /// The address box is as long as the last session left it.
    void restoreElongation();
    /// The position that the last session ended with comes back.
    void restorePosition();

  private:
    void connectSelectUrls();
};
