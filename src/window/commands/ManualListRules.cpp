#include "window/commands/ManualListRules.h"

using namespace Qt::StringLiterals;

namespace {
using F = const ManualListFacts &;

constexpr bool isEmpty(F f)
{
    return f.items == 0;
}
constexpr bool hasItems(F f)
{
    return f.items > 0;
}

bool canClearAll(F f)
{
    const int others = f.items > 0 ? 2 : 1; // a list alone has a command of its own
    return !f.manualRun && f.filledLists >= others;
}

constexpr auto ofSelection =
    "mnuMNSaveLast mnuMNStatusSaveListWindowUrl mnuMNCutSelected mnuMNUnSelect mnuMNNavigateTo "
    "mnuMNMagnify mnuMNClearSelected mnuMNCopySelected"_L1;
constexpr auto removals = "mnuMNRem(0) mnuMNRem(1) mnuMNRem(2) mnuMNRem(3) mnuMNRem(4) mnuMNRem(5)"_L1;

constexpr MenuRule<ManualListFacts> rules[] = {
    // What opens or parts comes back after a restricted menu; the filters' sub-menu is decided elsewhere.
    {always,
     "mnuMNMainClear mnuMNMainFind mnuMNMainSave mnuMNMainLoad mnuMNRemove mnuMNSepEight mnuMNSepFive mnuMNSepThree "
     "mnuMNSepTwo mnuMNSepTen mnuMNSepFour mnuMNLSU(0) mnuMNLSU(1) mnuMNLSU(2) mnuMNLSU(3) mnuMNLSU(4)"_L1,
     always},
    {always, "mnuMNLoadLinksIE mnuMNLoadLinksFile mnuMNLoadSelectUrls"_L1, [](F f) { return !f.series; }},
    {always, "mnuMNUseSiteData"_L1, always},
    {always, "mnuMNDeleteFilter"_L1, [](F f) { return f.hasFilterText; }},
    {always, "mnuMNLoadLinksDB mnuMNDeleteSaved"_L1, [](F f) { return f.tableHasRows && !f.series; }},
    {always, "mnuMNClearAllListWindows"_L1, canClearAll},
    {isEmpty,
     "mnuMNUniqueServersOnly mnuMNSelectAll mnuMNAddFilter mnuMNLocateFilter mnuMNNewWindow mnuMNReduceToServer "
     "mnuMNSaveToDatabase mnuMNSaveAsFile mnuMNClear mnuMNEdit mnuMNFind(0) mnuMNFind(1) mnuMNFind(2)"_L1,
     never},
    {isEmpty, removals, never},
    {isEmpty, ofSelection, never},
    {hasItems, "mnuMNFind(1)"_L1, [](F f) { return f.canFindNext; }},
    {hasItems, "mnuMNUniqueServersOnly"_L1, [](F f) { return f.items > 1; }},
    {hasItems,
     "mnuMNFind(0) mnuMNFind(2) mnuMNSelectAll mnuMNEdit mnuMNNewWindow mnuMNClear mnuMNSaveAsFile "
     "mnuMNSaveToDatabase mnuMNReduceToServer"_L1,
     always},
    {hasItems, removals, always},
    {[](F f) { return f.items > 0 && !f.base; }, "mnuMNLocateFilter"_L1, always},
    {hasItems, ofSelection, [](F f) { return f.hasSelection; }},
    {hasItems, "mnuMNAddFilter"_L1, [](F f) { return f.filterKind > 0 && f.hasFilterText; }},
    {always, "mnuMNPasteLinks"_L1, [](F f) { return f.clipboardHasText && !f.series; }},
};
} // namespace

std::span<const MenuRule<ManualListFacts>> manualListRules()
{
    return rules;
}

bool staysWhenRestricted(const QString &item)
{
    return item == "mnuMNMagnify"_L1 || item == "mnuMNCopySelected"_L1 || item == "mnuMNNavigateTo"_L1;
}

void applyManualListRules(const Menu &menu, const ManualListFacts &facts)
{
    if (!facts.isRestricted())
        return applyRules(menu, manualListRules(), facts);
    const auto restrict = [&](const auto &self, QAnyStringView parent) -> void {
        for (MenuItem *item : menu.children(parent)) {
            item->setEnabled(facts.initialized && staysWhenRestricted(item->name()));
            self(self, item->name());
        }
    };
    restrict(restrict, {});
}
