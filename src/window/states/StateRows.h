// The rules about controls as tables, in the order in which they apply: what is set back, what may be used, what colour
// it has. Names are separated by blanks.
#pragma once

#include "window/states/StateFacts.h"

#include <QLatin1StringView>
#include <optional>
#include <span>

using StateRule = bool (*)(const StateFacts &);

/// Check boxes that go to 0 while the rule holds.
struct ResetRow
{
    QLatin1StringView controls;
    StateRule rule;
};

/// Controls that the rule turns on or off. A later row that is in force wins over an earlier one.
struct EnablingRow
{
    StateRule inForce;
    QLatin1StringView controls;
    StateRule enabled;
};

/// Colours that controls take while the rule holds.
struct ColourRow
{
    StateRule rule;
    QLatin1StringView controls;
    Colour back;
    std::optional<Colour> fore;
};

/// What lists say while they are empty. A later row whose rule holds wins over an earlier one.
struct EmptyTextRow
{
    StateRule rule;
    QLatin1StringView controls;
    QLatin1StringView text;
};

/// Off unless a row that is in force turns it on. Any other control stays as it is where no row decides.
[[nodiscard]] bool isOffByDefault(const QString &control);
/// In the order in which one setting back leads to the next.
[[nodiscard]] std::span<const ResetRow> resetRows();
[[nodiscard]] std::span<const EnablingRow> enablingRows();
[[nodiscard]] std::span<const ColourRow> colourRows();
[[nodiscard]] std::span<const EmptyTextRow> emptyTextRows();
