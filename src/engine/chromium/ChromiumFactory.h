// Ways to the free-standing browser: finds it again, starts it, closes it. Has no built-in browser to offer; a program
// that has one derives from this class.
#pragma once

#include "browser/BrowserEngine.h"
#include "engine/chromium/ChromiumProfile.h"
#include "engine/chromium/ChromiumProgram.h"

class ChromiumFactory : public BrowserFactory
{
  public:
    struct Settings
    {
        QString dataFolder;       ///< the profile folders stand in here
        QStringList userSwitches; ///< as BrowserSwitches::ofUser gives them
        bool headless = false;    ///< the browser shows no window
    };
    explicit ChromiumFactory(Settings settings);
    ~ChromiumFactory() override;

    /// Nothing.
    [[nodiscard]] std::shared_ptr<BrowserEngine> internalBrowser() override { return nullptr; }
    /// At most two seconds where a browser was killed and another program has taken its port; else at once.
    [[nodiscard]] std::shared_ptr<BrowserEngine> runningBrowser() override;
    /// Raises a RuntimeError when `programPath` cannot be started.
    void start(const QString &programPath) override;
    [[nodiscard]] QString defaultProgram() const override;
    [[nodiscard]] bool isDrivable(const QString &fileName) const override { return ChromiumProgram::isKnown(fileName); }

    /// Ends the browser if it is one that nobody else would end: started from here, or without a window. Waits at most
    /// five seconds for one that is just starting, two for its answer, and five for it to be gone.
    void closeBrowser();
    /// True when the browser is started without its sandbox, which cannot be had as root; to be told in the log.
    [[nodiscard]] bool sandboxOff() const;

  private:
    [[nodiscard]] ChromiumProfile &profile();

    const Settings mSettings;
    std::unique_ptr<ChromiumProfile> mProfile; // taken when first needed
    qint64 mStarted = 0;                       // the process that was started from here
};
