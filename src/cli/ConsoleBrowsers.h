// The browsers as a program without a window has them: the built-in one works on a stage that is never shown.
#pragma once

#include "engine/chromium/ChromiumFactory.h"
#include "engine/webengine/WebEngineBrowser.h"
#include "engine/webengine/WebEngineStage.h"

class ConsoleBrowsers : public ChromiumFactory
{
  public:
    using ChromiumFactory::ChromiumFactory;
    /// A browser that keeps nothing beyond this run.
    [[nodiscard]] std::shared_ptr<BrowserEngine> internalBrowser() override
    {
        mStage.reset();
        auto browser = std::make_shared<WebEngineBrowser>();
        mStage = std::make_unique<WebEngineStage>(*browser);
        return browser;
    }

  private:
    std::unique_ptr<WebEngineStage> mStage;
};
