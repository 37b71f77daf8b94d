// What the rules about controls ask of the main window, named once: what runs, which tab is in force, what is chosen.
#pragma once

#include "app/frmSearch.h"

struct StateFacts
{
    bool initialized;
    bool autoRun, manualRun, idle;

    // The tab in force; the last four lie inside "Settings".
    bool onAuto, onManual, onSettings, onData;
    bool onDirectory, onImport, onSave, onSites;

    // What the Auto run saves, and what it wants.
    bool hasOutput; ///< a page that passes leads to something
    bool savesPages, savesEmail, savesToFile;
    bool mustContain, mustNotContain;
    bool hasSets, setChosen;
    bool blocksUrls, blocksEmail; ///< there are texts to block

    // Start addresses.
    bool passUrlsLoaded, hasSavedUrls, savedUrlChosen, usesSavedUrls;

    // The Manual tab's list on show, or the series in its place.
    bool listEmpty;
    bool opensFiles;      ///< its items are files, not sites
    bool walksListOnShow; ///< the Manual run walks the list on show
    bool seriesHasNumber; ///< the address box holds a link with a number in it

    bool seriesIsCounted;   ///< a number of the series has been chosen
    bool navigatesByItself; ///< "Auto Navigate" is checked

    /// No position counts the series yet, and one could.
    [[nodiscard]] bool canBeginSeries() const { return !seriesIsCounted && seriesHasNumber && !manualRun; }

    // Importing from another database.
    bool importsAll, importsTable, importsField;
    bool importNamed; ///< a database to import from is shown
    bool tableInChosen, allFourChosen;
    bool hasTablesIn, hasFieldsIn, hasTablesExisting, hasFieldsExisting;
};

[[nodiscard]] StateFacts readFacts(const frmSearch &form);
