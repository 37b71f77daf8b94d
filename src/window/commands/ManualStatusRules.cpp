#include "window/commands/ManualStatusRules.h"

using namespace Qt::StringLiterals;

namespace {
using F = const ManualStatusFacts &;

constexpr bool isIdle(F f)
{
    return f.idle;
}
constexpr bool runs(F f)
{
    return !f.idle;
}
constexpr bool hasUrl(F f)
{
    return f.hasUrl;
}
constexpr bool hasNone(F f)
{
    return !f.hasUrl;
}

constexpr auto ofUrl = "mnuMNStatusSaveUrlMNSelect mnuMNStatusMagnify mnuMNStatusNavigateToAutoTextUrl"_L1;
constexpr auto ofSeries = "mnuMNSetFirstFromTextBox mnuMNStatusSaveAutoTextUrl"_L1;

constexpr MenuRule<ManualStatusFacts> rules[] = {
    {isIdle,
     "mnuMNStatusListCL(0) mnuMNStatusListCL(1) mnuMNStatusListCL(2) mnuMNStatusListCL(3) mnuMNStatusListCL(4) "
     "mnuMNStatusAutoIncrementNumber mnuMNStatusAutoCollectLinks mnuMNStatusAutoCollectPageUrls"_L1,
     always},
    {isIdle, "mnuMNUseAutoBase"_L1, [](F f) { return !f.series; }},
    {runs,
     "mnuMNStatusAutoIncrementNumber mnuMNStatusAutoCollectPageUrls mnuMNStatusAutoCollectLinks "
     "mnuMNSetFirstFromTextBox mnuMNStatusDeleteAutoTextUrl mnuMNUseAutoBase"_L1,
     never},
    {hasUrl, ofUrl, always},
    {hasUrl, "mnuMNStatusDeleteAutoTextUrl"_L1, [](F f) { return !f.manualRun; }},
    {hasUrl, ofSeries, [](F f) { return f.seriesFits; }},
    {hasNone,
     "mnuMNStatusAutoIncrPos(1) mnuMNStatusAutoIncrPos(2) mnuMNStatusAutoIncrPos(3) mnuMNStatusAutoIncrPos(4) "
     "mnuMNStatusAutoIncrPos(5) mnuMNStatusAutoIncrPos(6) mnuMNStatusAutoIncrPos(7) mnuMNStatusAutoIncrPos(8) "
     "mnuMNStatusAutoIncrPos(9) mnuMNStatusDeleteAutoTextUrl"_L1,
     never},
    {hasNone, ofUrl, never},
    {hasNone, ofSeries, never},
};
} // namespace

std::span<const MenuRule<ManualStatusFacts>> manualStatusRules()
{
    return rules;
}
