// The error numbers of the built-in browser.
#pragma once

#include <QtGlobal>

namespace WebEngineError {
constexpr qint64 AccessDenied = 70; ///< the document may not be read
constexpr qint64 Unavailable = 462; ///< the browser or the page's process is gone or does not answer
} // namespace WebEngineError
