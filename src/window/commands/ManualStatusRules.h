// What may be done from the status bar of the Manual tab, decided from plain facts.
#pragma once

#include "window/commands/MenuRules.h"

struct ManualStatusFacts
{
    bool idle = true;
    bool manualRun = false;
    bool series = false;     ///< a position was chosen when the menu was asked for
    bool hasUrl = false;     ///< the address box holds more than blanks
    bool seriesFits = false; ///< the address has the chosen number
};

[[nodiscard]] std::span<const MenuRule<ManualStatusFacts>> manualStatusRules();
