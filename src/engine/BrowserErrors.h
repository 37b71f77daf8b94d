// Error numbers of what a browser refuses or can no longer do. For both engines.
#pragma once

#include <QtGlobal>

namespace EngineError {
constexpr qint64 AccessDenied = 70; ///< the frame of another site
constexpr qint64 CannotRead = 75;   ///< the page gave an error in place of an answer
constexpr qint64 NoAnswer = 57;     ///< the browser took longer than it may
constexpr qint64 BrowserGone = 462; ///< the browser, its window or the page's process is no longer there
constexpr qint64 NotArrived = 71;   ///< the page that was asked for has no document of its own yet
constexpr qint64 CannotDo = 445;    ///< the browser offers no such action
} // namespace EngineError
