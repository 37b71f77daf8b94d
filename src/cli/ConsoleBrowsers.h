// The browsers as a program without a window has them: the built-in one works without any view.
#pragma once

#include "engine/ChromiumFactory.h"
#include "engine/WebEngineBrowser.h"

class ConsoleBrowsers : public ChromiumFactory
{
  public:
    using ChromiumFactory::ChromiumFactory;
    /// A browser that keeps nothing beyond this run.
    [[nodiscard]] std::shared_ptr<BrowserEngine> internalBrowser() override
    {
        return std::make_shared<WebEngineBrowser>();
    }
};
