// The addresses in the settings store that more than one place uses, or that a command keeps for itself. Those of the
// options stand in their table alone (window/options). Each key stands here or there, once. Knows nobody.
#pragma once

#include <QLatin1StringView>

namespace Sections {
constexpr QLatin1StringView Main{"SecFrmSearch"};
constexpr QLatin1StringView StartUp{"mStartUp"};
constexpr QLatin1StringView Foto{"frmFoto"};
constexpr QLatin1StringView WindowPosition{"Window Position"};
} // namespace Sections

namespace Keys {
// Start-up.
constexpr QLatin1StringView WorkingPath{"WorkingPath"};
constexpr QLatin1StringView DatabaseName{"DatabaseName"}; ///< of Sections::StartUp
constexpr QLatin1StringView DatabaseDir{"SearchKeyTxtSaveLocation Text"};
constexpr QLatin1StringView FileSaveDir{"txtFNSaveLocation"};
constexpr QLatin1StringView Editor{"txtSFEditor"};
constexpr QLatin1StringView BrowserProgram{"IEPath"};
constexpr QLatin1StringView KeepOnTop{"mnuANStatusKeepOnTop"}; ///< truth text
constexpr QLatin1StringView ScriptLimit{"scriptLimit"};        ///< milliseconds; see BrowserEngine::setScriptLimit
constexpr QLatin1StringView FoldedGroups{"foldedGroups"};      ///< names, with commas between them
// Of options that are also read outside their table.
constexpr QLatin1StringView Browser{"lstDCoTmr"};
constexpr QLatin1StringView ErrorMessages{"chkSMVTurnOffErrorMsg"};
constexpr QLatin1StringView KeepMagnifyPlace{"chkSMAAllignmagnify"};
constexpr QLatin1StringView OrientAtStart{"chkSAMoveToTopLeft"};
constexpr QLatin1StringView UrlBlocking{"chkUrlBlocking"};
constexpr QLatin1StringView EmailBlocking{"chkEmailBlocking"};
constexpr QLatin1StringView ManualList{"cboMNList"};
constexpr QLatin1StringView FilesSites{"optFilesSites"};
constexpr QLatin1StringView AreaCodes{"txtSBSelAreaCodes"};
// Commands of the Manual tab.
constexpr QLatin1StringView FileOfUrls{"FileNFileName"};
constexpr QLatin1StringView ItemsContaining{"FnRemove"};
constexpr QLatin1StringView LeftSideAt{"TruncLeft"};
constexpr QLatin1StringView RightSideAt{"TruncRight"};
constexpr QLatin1StringView FindItem{"mnuMNFindItem"};
constexpr QLatin1StringView AutoIncrPos{"mnuMNStatusAutoIncrPos"};
constexpr QLatin1StringView Elongate{"mnuMNStatusElongate"};
constexpr QLatin1StringView UseAutoBase{"mnuMNUseAutoBase"};
constexpr QLatin1StringView UrlFilter{"cboMNMCMNCFilter"};
constexpr QLatin1StringView LinkList{"nLinkList"};
constexpr QLatin1StringView PageList{"nPageList"};
constexpr QLatin1StringView AutoTextUrl{"txtMNGenerateUrl"}; ///< followed by the list's name
// Other commands.
constexpr QLatin1StringView SavedUrlPos{"ANListIndex"}; ///< followed by the list's name
constexpr QLatin1StringView LastImportDir{"LastImportDir"};
constexpr QLatin1StringView MoveToDir{"mnuSetMoveToDir"};    ///< of Sections::Foto
constexpr QLatin1StringView Thumbnails{"mnuFotoThumbnails"}; ///< of Sections::Foto, truth text
constexpr QLatin1StringView DeleteToTrash{"mnuFotoToTrash"}; ///< of Sections::Foto, truth text
// Size and position of a window, under a section of its name.
constexpr QLatin1StringView Width{"NSWE_W"}, Height{"NSWE_H"}, Left{"NSWE_L"}, Top{"NSWE_T"};
} // namespace Keys
