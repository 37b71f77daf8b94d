// What each number of the arrays of switches is: chkSMA(SMA::UniqueServers). Knows nobody.
#pragma once

/// "Settings" / "Misc" / "A-M".
namespace SMA {
constexpr int ServersOnly = 0, ConvertHex = 1, ReturnToStart = 2, DownloadByFtp = 3, OpenNextOnDelete = 4;
constexpr int IncrementPassUrl = 5, IncrementSavedUrl = 6, PromptBeforeEnd = 7, OpenDirOnTimer = 8, UniqueServers = 9;
constexpr int DownloadAsBrowser = 10;
} // namespace SMA

/// "Settings" / "Misc" / "Save".
namespace SMD {
constexpr int OpenExports = 0, UniqueInSummary = 1, UniqueInSelect = 2, UrlWithEmail = 3, UrlWithPhone = 4;
constexpr int TitleAsNote = 5, FaxOnly = 6, PassUrlIfNoData = 7, SaveAutoTextOnStop = 8;
} // namespace SMD

/// "Settings" / "Misc" / "View".
namespace SMV {
constexpr int ToolTips = 0, ErrorMessages = 1, BlockPopUps = 2, KeepMagnifyPlace = 3, OrientAtStart = 4;
} // namespace SMV
