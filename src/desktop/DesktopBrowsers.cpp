#include "desktop/DesktopBrowsers.h"

#include "desktop/KeptPlace.h"
#include "window/ProgramFolder.h"
#include "window/WindowPlaces.h"

using namespace Qt::StringLiterals;

DesktopBrowsers::~DesktopBrowsers()
{
    delete mobjWBare;
}

std::shared_ptr<BrowserEngine> DesktopBrowsers::internalBrowser()
{
    if (!mInternal) {
        mInternal =
            std::make_shared<WebEngineBrowser>(WebEngineOptions{.storageFolder = dataFolder() + u"/internal"_s});
        mobjWBare = new BareBrowserWindow(mInternal);
        QObject::connect(mInternal.get(), &BrowserEngine::WindowClosing, mInternal.get(), [this] { forget(); });
        QObject::connect(mobjWBare, &BareBrowserWindow::closing, mobjWBare, [this] { savePlace(); });
        placeInternal();
    }
    mobjWBare->show();
    return mInternal;
}

void DesktopBrowsers::placeInternal()
{
    if (!mobjWBare || !mMain)
        return;
    const QString name = mobjWBare->objectName();
    if (mSettings == nullptr || !hasStoredPlace(*mSettings, name))
        return mobjWBare->placeBeside(*mMain);
    mobjWBare->resize(storedSize(*mSettings, name, mobjWBare->size()));
    KeptPlace::restore(*mobjWBare, *mSettings, *mMain);
}

void DesktopBrowsers::savePlace()
{
    if (mSettings != nullptr)
        KeptPlace::store(*mobjWBare, *mSettings);
}

/// The user has closed the window: the next connecting makes a new one.
void DesktopBrowsers::forget()
{
    mobjWBare->deleteLater();
    mobjWBare.clear();
    mInternal.reset();
}
