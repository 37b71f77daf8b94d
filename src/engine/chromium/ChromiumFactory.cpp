#include "engine/chromium/ChromiumFactory.h"
#include "engine/BrowserErrors.h"
#include "engine/Platform.h"
#include "engine/chromium/ChromiumBrowser.h"
#include "engine/chromium/ChromiumPage.h"
#include "engine/chromium/ChromiumProgram.h"
#include "engine/chromium/ChromiumSwitches.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <thread>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds connectLimit{2};
constexpr std::chrono::milliseconds startingLimit{100};
constexpr std::chrono::seconds closeLimit{5};
constexpr std::chrono::milliseconds betweenLooks{20};
constexpr int socketLimit = 500; // milliseconds
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

std::shared_ptr<DevToolsPipe> ChromiumFactory::pipe()
{
    if (mPipe && mPipe->isOpen())
        return mPipe;
    mPipe.reset();
    const QString path = profile().socketPath();
    if (mSettings.headless || !QFile::exists(path))
        return nullptr;
    auto socket = std::make_unique<QLocalSocket>();
    socket->connectToServer(path);
    if (socket->waitForConnected(socketLimit))
        mPipe = std::make_shared<DevToolsPipe>(std::move(socket));
    return mPipe;
}

// One that is just starting answers when it can: the caller asks again, and handles input meanwhile.
std::shared_ptr<DevToolsConnection> ChromiumFactory::connection()
{
    const auto line = pipe();
    if (!line)
        return nullptr;
    const bool starting = mStarted != 0 && !line->isAwake();
    return DevToolsConnection::open(line, starting ? startingLimit : std::chrono::milliseconds(connectLimit));
}

std::shared_ptr<BrowserEngine> ChromiumFactory::runningBrowser()
{
    for (int attempt = 0; attempt < attemptsAtMost; ++attempt) {
        const auto line = connection();
        if (!line)
            break;
        try {
            return std::make_shared<ChromiumBrowser>(std::make_shared<ChromiumPage>(line));
        } catch (const RuntimeError &error) {
            if (error.number() != EngineError::BrowserGone)
                throw;
        }
    }
    return nullptr;
}

void ChromiumFactory::start(const QString &programPath)
{
    if (mPipe && !mSettings.headless) // a holder that is stopped would never find that its browser has gone
        Platform::endProcess(mPipe->holder());
    mPipe.reset();
    endStarted(); // it was not to be reached any more
    profile().clear();
    const QStringList arguments = chromiumArguments({.profileFolder = profile().folder(),
                                                     .userSwitches = mSettings.userSwitches,
                                                     .headless = mSettings.headless,
                                                     .sandboxOff = sandboxOff()});
    if (mSettings.headless) {
        const Platform::PipedProcess started = Platform::startPiped(programPath, arguments, chromiumEnvironment());
        mStarted = started.pid;
        auto socket = std::make_unique<QLocalSocket>();
        socket->setSocketDescriptor(started.socket);
        mPipe = std::make_shared<DevToolsPipe>(std::move(socket));
        return;
    }
    if (!QFileInfo(programPath).isExecutable())
        throw RuntimeError(ErrorNumber::FileNotFound, u"Cannot start %1."_s.arg(programPath));
    QProcess process;
    process.setProgram(ChromiumProgram::holder());
    process.setArguments(QStringList{profile().socketPath(), programPath} + arguments);
    process.setEnvironment(chromiumEnvironment());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (!process.startDetached(&mStarted))
        throw RuntimeError(ErrorNumber::FileNotFound, process.errorString());
}

QString ChromiumFactory::defaultProgram() const
{
    return ChromiumProgram::find();
}

bool ChromiumFactory::sandboxOff() const
{
    return Platform::runsAsRoot();
}

// It is asked to end, and what it has to write it writes; one that does not is ended.
void ChromiumFactory::closeBrowser()
{
    // One that has been started this very moment does not carry its command line yet: it finds its line gone.
    if (!isStartedRunning()) {
        mPipe.reset();
        return;
    }
    const QDeadlineTimer closing(closeLimit);
    if (const auto line = connection())
        line->send({}, "Browser.close"_L1);
    else
        mPipe.reset(); // one that is starting ends as soon as it finds that its line has gone
    while (isStartedRunning() && !closing.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        std::this_thread::sleep_for(betweenLooks);
    }
    mPipe.reset();
    endStarted();
}

// By its command line too: the number of a process that has ended may have become that of another one.
bool ChromiumFactory::isStartedRunning() const
{
    return mStarted != 0 && Platform::isRunning(mStarted) &&
           Platform::commandLine(mStarted).contains(mProfile->folder().toLocal8Bit());
}

void ChromiumFactory::endStarted()
{
    if (isStartedRunning())
        Platform::endProcess(mStarted);
    mStarted = 0;
}
