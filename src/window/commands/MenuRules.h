// What is enabled in a menu, as a table: rows of rules over plain facts, applied in their order. Knows controls.
#pragma once

#include "controls/Menu.h"

#include <span>

/// The items (names parted by blanks) are enabled or not while the row is in force; otherwise they stay as they are. A
/// later row wins.
template <class Facts> struct MenuRule
{
    using Test = bool (*)(const Facts &);
    Test inForce;
    QLatin1StringView items;
    Test enabled;
};

/// The tests of rows that are in force, or enable, whatever the facts.
template <class Facts> constexpr bool always(const Facts &)
{
    return true;
}
template <class Facts> constexpr bool never(const Facts &)
{
    return false;
}

template <class Facts> void applyRules(const Menu &menu, std::span<const MenuRule<Facts>> rules, const Facts &facts)
{
    for (const MenuRule<Facts> &rule : rules) {
        if (!rule.inForce(facts))
            continue;
        for (const QString &name : QString(rule.items).split(u' '))
            menu.item(name).setEnabled(rule.enabled(facts));
    }
}
