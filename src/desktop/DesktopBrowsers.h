// The browsers as the window program has them: the built-in one stands in a window of its own.
#pragma once

#include "engine/ChromiumFactory.h"
#include "ui/BareBrowserWindow.h"

#include <QPointer>

class DesktopBrowsers : public ChromiumFactory
{
  public:
    using ChromiumFactory::ChromiumFactory;
    ~DesktopBrowsers() override;
    [[nodiscard]] std::shared_ptr<BrowserEngine> internalBrowser() override;

  private:
    QPointer<BareBrowserWindow> mobjWBare;
};
