// The built-in browser with its window. It stands in a file of its own, which the program loads when that browser is
// first wanted, since its engine takes longer to load than all the rest: somebody who looks at pictures, or drives the
// free-standing browser, never waits for it.
#pragma once

#include "browser/BrowserEngine.h"
#include "ui/windows/BrowserWindow.h"

struct InternalBrowser
{
    std::shared_ptr<BrowserEngine> browser;
    std::unique_ptr<BrowserWindow> window; ///< not shown yet
};

/// What the file offers: makes a browser that keeps cookies, cache and storage of pages in `storageFolder`, one at a
/// time on one folder.
using InternalBrowserMaker = void(const QString &storageFolder, InternalBrowser &made);

/// The file, and the name under which it offers its InternalBrowserMaker.
inline constexpr const char *internalBrowserFile = "trawlex-browser.so";
inline constexpr const char *internalBrowserName = "trawlexInternalBrowser";
