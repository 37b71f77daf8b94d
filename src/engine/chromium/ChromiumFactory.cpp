#include "engine/chromium/ChromiumFactory.h"
#include "engine/BrowserErrors.h"
#include "engine/Platform.h"
#include "engine/chromium/ChromiumBrowser.h"
#include "engine/chromium/ChromiumPage.h"
#include "engine/chromium/ChromiumProgram.h"

#include <thread>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds connectLimit{2};
constexpr std::chrono::seconds closeLimit{5};
constexpr std::chrono::milliseconds betweenLooks{50};
// The window that is found may be closing; the next one may not.
constexpr int attemptsAtMost = 3;

} // namespace

ChromiumFactory::ChromiumFactory(Settings settings) : mSettings(std::move(settings)) {}

ChromiumFactory::~ChromiumFactory() = default;

// A browser without a window has a profile of its own: the window program must not find one that nobody can see.
ChromiumProfile &ChromiumFactory::profile()
{
    if (!mProfile)
        mProfile = std::make_unique<ChromiumProfile>(mSettings.dataFolder,
                                                     mSettings.headless ? u"browser-headless"_s : u"browser"_s);
    return *mProfile;
}

std::shared_ptr<BrowserEngine> ChromiumFactory::runningBrowser()
{
    for (int attempt = 0; attempt < attemptsAtMost; ++attempt) {
        const QUrl endpoint = profile().endpoint();
        const auto connection = endpoint.isValid() ? DevToolsConnection::open(endpoint, connectLimit) : nullptr;
        if (!connection)
            break;
        try {
            return std::make_shared<ChromiumBrowser>(std::make_shared<ChromiumPage>(connection));
        } catch (const RuntimeError &error) {
            if (error.number() != EngineError::BrowserGone)
                throw;
        }
    }
    return nullptr;
}

void ChromiumFactory::start(const QString &programPath)
{
    profile().forgetEndpoint();
    mStarted = ChromiumProgram::start(programPath, {.profileFolder = profile().folder(),
                                                    .userSwitches = mSettings.userSwitches,
                                                    .headless = mSettings.headless,
                                                    .sandboxOff = sandboxOff()});
}

QString ChromiumFactory::defaultProgram() const
{
    return ChromiumProgram::find();
}

bool ChromiumFactory::sandboxOff() const
{
    return Platform::runsAsRoot();
}

void ChromiumFactory::closeBrowser()
{
    if (mStarted == 0 && !mSettings.headless)
        return;
    const qint64 started = std::exchange(mStarted, 0);
    // A browser that has just been started does not say yet where it can be reached.
    const QDeadlineTimer starting(closeLimit);
    while (Platform::isRunning(started) && !profile().endpoint().isValid() && !starting.hasExpired())
        std::this_thread::sleep_for(betweenLooks);
    const QUrl endpoint = profile().endpoint();
    const QDeadlineTimer answering(connectLimit);
    const auto connection = endpoint.isValid() ? DevToolsConnection::open(endpoint, connectLimit) : nullptr;
    if (connection) {
        connection->send({}, "Browser.close"_L1);
        connection->waitUntil([&] { return !connection->isOpen(); }, QDeadlineTimer(closeLimit));
    }
    // Where nobody listens the browser is gone; one that listens and says nothing hangs.
    const bool hangs = connection ? connection->isOpen() : !endpoint.isValid() || answering.hasExpired();
    if (hangs)
        Platform::endProcess(started);
}
