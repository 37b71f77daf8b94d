#include "desktop/InternalBrowser.h"

#include "desktop/internal/BareBrowserWindow.h"
#include "engine/webengine/WebEngineBrowser.h"

extern "C" Q_DECL_EXPORT InternalBrowserMaker trawlexInternalBrowser;

void trawlexInternalBrowser(const QString &storageFolder, InternalBrowser &made)
{
    const auto browser = std::make_shared<WebEngineBrowser>(WebEngineOptions{.storageFolder = storageFolder});
    made.browser = browser;
    made.window = std::make_unique<BareBrowserWindow>(browser);
}
