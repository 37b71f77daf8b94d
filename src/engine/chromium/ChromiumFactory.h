// Ways to the free-standing browser: finds it again, starts it, closes it. Has no built-in browser to offer; a program
// that has one derives from this class.
//
// A browser without a window hangs on a line of this program's own, and ends with it. One with a window outlives the
// program: another process holds its line and offers it in the profile's folder.
#pragma once

#include "browser/BrowserEngine.h"
#include "engine/chromium/ChromiumProfile.h"
#include "engine/chromium/ChromiumProgram.h"
#include "engine/chromium/DevToolsConnection.h"

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
    /// At most two seconds where a browser runs and does not answer; a tenth of one while it is starting; else at once.
    [[nodiscard]] std::shared_ptr<BrowserEngine> runningBrowser() override;
    /// Raises a RuntimeError when `programPath` cannot be started. A browser that has died is started again by this,
    /// on the same profile.
    void start(const QString &programPath) override;
    [[nodiscard]] QString defaultProgram() const override;
    [[nodiscard]] bool isDrivable(const QString &fileName) const override { return ChromiumProgram::isKnown(fileName); }

    /// Ends the browser if it was started from here. Waits at most five seconds for it to be gone, and then ends it
    /// without asking.
    void closeBrowser();
    /// True when the browser is started without its sandbox, which cannot be had as root; to be told in the log.
    [[nodiscard]] bool sandboxOff() const;

    /// The line to the browser that runs, or nothing.
    [[nodiscard]] std::shared_ptr<DevToolsPipe> pipe();

  private:
    [[nodiscard]] ChromiumProfile &profile();
    [[nodiscard]] std::shared_ptr<DevToolsConnection> connection();
    [[nodiscard]] bool isStartedRunning() const;
    void endStarted();

    const Settings mSettings;
    std::unique_ptr<ChromiumProfile> mProfile; // taken when first needed
    std::shared_ptr<DevToolsPipe> mPipe;
    qint64 mStarted = 0; // the process that was started from here: the browser, or what holds its pipe
};
