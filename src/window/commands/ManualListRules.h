// What may be done with the manual list on show, decided from plain facts.
#pragma once

#include "window/commands/MenuRules.h"

struct ManualListFacts
{
    bool initialized = true;
    bool walksListOnShow = false; ///< a run walks this very list
    bool manualRun = false;
    bool series = false; ///< a position of the address's numbers is chosen
    bool base = false;
    bool hasSelection = false;
    int items = 0;
    int filledLists = 0; ///< of the five
    bool tableHasRows = false;
    bool canFindNext = false;
    int filterKind = 0; ///< the entry of "MC MNC"
    bool hasFilterText = false;
    bool clipboardHasText = false;

    /// Little can be done: without a browser nothing, and nothing that changes a list while a run walks it.
    [[nodiscard]] bool isRestricted() const { return !initialized || walksListOnShow; }
};

[[nodiscard]] std::span<const MenuRule<ManualListFacts>> manualListRules();
/// Of a restricted menu these are enabled, with a browser; all others are not.
[[nodiscard]] bool staysWhenRestricted(const QString &item);
void applyManualListRules(const Menu &menu, const ManualListFacts &facts);
