// The browsers as the window program has them: the built-in one stands in a window of its own.
#pragma once

#include "app/Ports.h"
#include "desktop/InternalBrowser.h"
#include "engine/chromium/ChromiumFactory.h"

#include <QPointer>

class DesktopBrowsers : public ChromiumFactory
{
  public:
    using ChromiumFactory::ChromiumFactory;
    ~DesktopBrowsers() override;
    /// The browser of the window that is open, or of a new one. Raises an error where its file cannot be loaded.
    [[nodiscard]] std::shared_ptr<BrowserEngine> internalBrowser() override;
    /// The window beside which the browser's window opens.
    void standBeside(QWidget *main) { mMain = main; }
    /// Where the browser's window keeps its place.
    void keepPlaceIn(SettingsStore *settings) { mSettings = settings; }
    /// Puts the window of the built-in browser, if it is open, where it stood last, the first time beside the main
    /// window.
    void placeInternal();

  private:
    void makeInternal();
    void forget();
    void savePlace();

    QPointer<QWidget> mMain;
    SettingsStore *mSettings = nullptr;
    QPointer<BrowserWindow> mobjWBare;
    std::shared_ptr<BrowserEngine> mInternal;
};
