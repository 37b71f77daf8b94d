#include "desktop/DesktopBrowsers.h"

#include "window/ProgramFolder.h"

DesktopBrowsers::~DesktopBrowsers()
{
    delete mobjWBare;
}

std::shared_ptr<BrowserEngine> DesktopBrowsers::internalBrowser()
{
    if (!mInternal) {
        mInternal = std::make_shared<WebEngineBrowser>(
            WebEngineOptions{.storageFolder = dataFolder() + QStringLiteral("/internal")});
        mobjWBare = new BareBrowserWindow(mInternal);
        QObject::connect(mInternal.get(), &BrowserEngine::WindowClosing, mInternal.get(), [this] { forget(); });
    }
    mobjWBare->show();
    if (mMain)
        mobjWBare->placeBeside(*mMain);
    return mInternal;
}

/// The user has closed the window: the next connecting makes a new one.
void DesktopBrowsers::forget()
{
    mobjWBare->deleteLater();
    mobjWBare.clear();
    mInternal.reset();
}
