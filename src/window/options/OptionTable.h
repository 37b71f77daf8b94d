// The options, one row each: the control, the key under which it is stored, its default, when it is loaded and saved,
// and what a user reads of it. The table stands in the order of loading. Knows nobody.
#pragma once

#include <QLatin1StringView>
#include <span>

struct OptionRow
{
    QLatin1StringView control;
    QLatin1StringView key;
    QLatin1StringView byDefault;
    QLatin1StringView tip{};
    QLatin1StringView caption{};
    QLatin1StringView on{}, off{}; ///< what is reported of a switch; empty where a click has more to say

    enum class Loaded { WithSettings, WithDatabase, WithWindow };
    Loaded loaded = Loaded::WithSettings;
    bool savedAtChange = true;
    int exitOrder = 0;   ///< place among what is written at the end of the program; 0 for what is not
    bool fits = false;   ///< a stored index that lies outside the list is passed over
    bool clicks = false; ///< the control's event runs once more when it is loaded

    // What differs from an ordinary option.
    [[nodiscard]] constexpr OptionRow with(Loaded moment) const
    {
        OptionRow row = *this;
        row.loaded = moment;
        return row;
    }
    /// Written at the end too, as the `place`th.
    [[nodiscard]] constexpr OptionRow atExitToo(int place) const
    {
        OptionRow row = *this;
        row.exitOrder = place;
        return row;
    }
    /// Written at the end alone.
    [[nodiscard]] constexpr OptionRow atExit(int place) const
    {
        OptionRow row = atExitToo(place);
        row.savedAtChange = false;
        return row;
    }
    [[nodiscard]] constexpr OptionRow ifItFits() const
    {
        OptionRow row = *this;
        row.fits = true;
        return row;
    }
    [[nodiscard]] constexpr OptionRow withItsClick() const
    {
        OptionRow row = *this;
        row.clicks = true;
        return row;
    }
    /// Written by the control's own event.
    [[nodiscard]] constexpr OptionRow byItsEvent() const
    {
        OptionRow row = *this;
        row.savedAtChange = false;
        return row;
    }
};

/// The last one ahead of the directories and the database's name.
inline constexpr QLatin1StringView lastBeforeDirectories{"txtANStopTag"};
[[nodiscard]] std::span<const OptionRow> optionRows();
