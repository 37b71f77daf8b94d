// The options and their keys: each row says which control it is, under which key it is stored, its default, and, for a
// switch, its caption and what is reported when it is turned. Loading, saving and reporting are loops over this.
#pragma once

#include <QLatin1StringView>
#include <span>

/// One stored value of the section of the main window.
struct SettingRow
{
    QLatin1StringView key;
    QLatin1StringView control;
    QLatin1StringView byDefault;
    enum class Saved { AtChange, AtExit } saved;
};

/// A switch with its caption and the status texts for on and off.
struct SwitchRow
{
    QLatin1StringView control;
    QLatin1StringView caption;
    QLatin1StringView on;
    QLatin1StringView off;
};

/// In the order in which they are loaded; `lastBeforeDirectories` is followed by the directories and the database's
/// name.
inline constexpr QLatin1StringView lastBeforeDirectories{"SearchKeyTxtStopTag Text"};
[[nodiscard]] std::span<const SettingRow> settingRows();
/// In the order in which they are written when the program ends.
[[nodiscard]] std::span<const SettingRow> exitRows();
[[nodiscard]] std::span<const SwitchRow> switchRows();
