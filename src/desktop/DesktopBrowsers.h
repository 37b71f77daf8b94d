// The browsers as the window program has them: the built-in one stands in a window of its own.
#pragma once

#include "engine/chromium/ChromiumFactory.h"
#include "engine/webengine/WebEngineBrowser.h"
#include "ui/windows/BareBrowserWindow.h"

#include <QPointer>

class DesktopBrowsers : public ChromiumFactory
{
  public:
    using ChromiumFactory::ChromiumFactory;
    ~DesktopBrowsers() override;
    /// The browser of the window that is open, or of a new one.
    [[nodiscard]] std::shared_ptr<BrowserEngine> internalBrowser() override;
    /// The window beside which the browser's window opens.
    void standBeside(QWidget *main) { mMain = main; }
    /// Puts the window of the built-in browser, if it is open, beside the main window.
    void placeInternal();

  private:
    void forget();

    QPointer<QWidget> mMain;
    QPointer<BareBrowserWindow> mobjWBare;
    std::shared_ptr<WebEngineBrowser> mInternal;
};
