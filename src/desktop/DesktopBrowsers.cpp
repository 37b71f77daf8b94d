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
    placeInternal();
    mobjWBare->show();
    return mInternal;
}

void DesktopBrowsers::placeInternal()
{
    if (mobjWBare && mMain)
        mobjWBare->placeBeside(*mMain);
}

/// The user has closed the window: the next connecting makes a new one.
void DesktopBrowsers::forget()
{
    mobjWBare->deleteLater();
    mobjWBare.clear();
    mInternal.reset();
}
