#include "desktop/DesktopBrowsers.h"

#include "desktop/KeptPlace.h"
#include "util/ProgramParts.h"
#include "window/ProgramFolder.h"
#include "window/WindowPlaces.h"

using namespace Qt::StringLiterals;

DesktopBrowsers::~DesktopBrowsers()
{
    delete mobjWBare;
}

std::shared_ptr<BrowserEngine> DesktopBrowsers::internalBrowser()
{
    if (!mInternal)
        makeInternal();
    mobjWBare->show();
    return mInternal;
}

void DesktopBrowsers::makeInternal()
{
    const auto file = QString::fromLatin1(internalBrowserFile);
    auto *const make = reinterpret_cast<InternalBrowserMaker *>(cUtility::functionOfPart(file, internalBrowserName));
    InternalBrowser made;
    make(dataFolder() + u"/internal"_s, made);
    mInternal = std::move(made.browser);
    mobjWBare = made.window.release();
    QObject::connect(mInternal.get(), &BrowserEngine::WindowClosing, mInternal.get(), [this] { forget(); });
    QObject::connect(mobjWBare, &BrowserWindow::closing, mobjWBare, [this] { savePlace(); });
    placeInternal();
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
