// What each number of the arrays of switches is, in their order: chkSMA(SMA::UniqueServers). Knows nobody.
#pragma once

/// "Settings" / "Misc" / "A-M".
namespace SMA {
enum : int {
    ServersOnly,
    ConvertHex,
    ReturnToStart,
    DownloadByFtp,
    OpenNextOnDelete,
    IncrementPassUrl,
    IncrementSavedUrl,
    PromptBeforeEnd,
    OpenDirOnTimer,
    UniqueServers,
    DownloadAsBrowser,
    Count
};
} // namespace SMA

/// "Settings" / "Misc" / "Save".
namespace SMD {
enum : int {
    OpenExports,
    UniqueInSummary,
    UniqueInSelect,
    UrlWithEmail,
    UrlWithPhone,
    TitleAsNote,
    FaxOnly,
    PassUrlIfNoData,
    SaveAutoTextOnStop,
    Count
};
} // namespace SMD

/// "Settings" / "Misc" / "View".
namespace SMV {
enum : int { ToolTips, ErrorMessages, BlockPopUps, KeepMagnifyPlace, OrientAtStart, Count };
} // namespace SMV
