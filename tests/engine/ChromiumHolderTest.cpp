// A browser that outlives the program which started it: found again, driven by one at a time, and by nobody else.
#include "ChromiumFixture.h"
#include "engine/Platform.h"
#include "engine/chromium/ChromiumProgram.h"

#include <QDir>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <csignal>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// As if it had a window: one is not needed to be held.
class ChromiumHolder : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(data.isValid());
        startProgram();
        factory->start(ChromiumProgram::find());
        browser = connect();
        ASSERT_TRUE(browser) << "the browser did not start";
    }
    void TearDown() override
    {
        browser.reset();
        factory.reset();
        for (const qint64 process : processes())
            ::kill(pid_t(process), SIGKILL);
        waitFor([&] { return processes().isEmpty(); });
    }
    /// What a new start of the program has.
    void startProgram()
    {
        browser.reset();
        factory.reset();
        factory = std::make_unique<ChromiumFactory>(
            ChromiumFactory::Settings{.dataFolder = data.path(), .userSwitches = {u"--headless=new"_s}});
    }
    std::shared_ptr<BrowserEngine> connect()
    {
        std::shared_ptr<BrowserEngine> found;
        waitFor([&] { return (found = factory->runningBrowser()) != nullptr; });
        return found;
    }
    [[nodiscard]] QString socketPath() const { return data.filePath(u"browser/trawlex.socket"_s); }
    [[nodiscard]] bool open(const QString &address)
    {
        browser->Navigate(address);
        return waitFor([&] { return !browser->isLoading(); });
    }
    [[nodiscard]] QList<qint64> processes(const QByteArray &part = {}) const
    {
        QList<qint64> found;
        for (const QString &entry : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
            const QByteArray line = Platform::commandLine(entry.toLongLong());
            if (line.contains(data.path().toUtf8()) && line.contains(part))
                found.append(entry.toLongLong());
        }
        return found;
    }
    [[nodiscard]] qint64 holder() const { return processes("trawlex-browser-holder").value(0); }

    QTemporaryDir data;
    TestServer server;
    std::unique_ptr<ChromiumFactory> factory;
    std::shared_ptr<BrowserEngine> browser;
};

/// The listening TCP sockets of `process`.
QStringList listeningSockets(qint64 process)
{
    QStringList inodes;
    for (const QString &table : {u"tcp"_s, u"tcp6"_s}) {
        QFile file(u"/proc/%1/net/%2"_s.arg(process).arg(table));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray &line : file.readAll().split('\n')) {
            const QStringList words = QString::fromLatin1(line).split(u' ', Qt::SkipEmptyParts);
            if (words.value(3) == "0A"_L1)
                inodes.append(words.value(9));
        }
    }
    QStringList found;
    const QDir files(u"/proc/%1/fd"_s.arg(process));
    for (const QFileInfo &file : files.entryInfoList(QDir::Files | QDir::System)) {
        const QString target = QFile::symLinkTarget(file.filePath());
        for (const QString &inode : std::as_const(inodes)) {
            if (target.contains(u"socket:["_s + inode))
                found.append(target);
        }
    }
    return found;
}

} // namespace

TEST_F(ChromiumHolder, ABrowserIsFoundAgainByTheNextStart)
{
    server.page("/page", "<title>still here</title>");
    ASSERT_TRUE(open(server.address(u"/page"_s)));
    for (int start = 0; start < 3; ++start) {
        startProgram();
        browser = connect();
        ASSERT_TRUE(browser) << start;
        EXPECT_EQ(str(browser->LocationURL()), str(server.address(u"/page"_s)));
        EXPECT_EQ(str(browser->LocationName()), "still here");
    }
    factory->closeBrowser();
    EXPECT_FALSE(processes().isEmpty()) << "this start of the program has not started it";
}

TEST_F(ChromiumHolder, ItIsClosedByTheProgramThatHasStartedIt)
{
    bool closing = false;
    QObject::connect(browser.get(), &BrowserEngine::WindowClosing, [&] { closing = true; });
    factory->closeBrowser();
    EXPECT_TRUE(waitFor([&] { return processes().isEmpty(); }, 5000));
    EXPECT_TRUE(waitFor([&] { return closing; }));
    EXPECT_FALSE(QFile::exists(socketPath()));
    EXPECT_FALSE(QFileInfo(data.filePath(u"browser/SingletonLock"_s)).isSymLink()) << "it has had the time to tidy up";
    EXPECT_EQ(factory->runningBrowser(), nullptr);
}

TEST_F(ChromiumHolder, OnlyItsUserCanOpenTheSocketAndNoPortIsOpen)
{
    struct stat folder
    {
    }, socket{};
    ASSERT_EQ(::stat(QFile::encodeName(data.filePath(u"browser"_s)).constData(), &folder), 0);
    ASSERT_EQ(::stat(QFile::encodeName(socketPath()).constData(), &socket), 0);
    EXPECT_EQ(folder.st_mode & 0777U, 0700U);
    EXPECT_EQ(socket.st_mode & 0777U, 0600U);
    ASSERT_GT(processes().size(), 1);
    for (const qint64 process : processes())
        EXPECT_EQ(listeningSockets(process), QStringList()) << Platform::commandLine(process).toStdString();
}

TEST_F(ChromiumHolder, ASecondClientIsRefusedWhileTheFirstOneIsThere)
{
    QLocalSocket second;
    second.connectToServer(socketPath());
    EXPECT_TRUE(waitFor([&] { return second.state() == QLocalSocket::UnconnectedState; }));
    EXPECT_TRUE(open(u"about:blank"_s)) << "the first one hears nothing of it";
}

TEST_F(ChromiumHolder, AClientThatGoesInTheMiddleOfACommandHarmsNobody)
{
    server.page("/page", "<title>well</title>");
    for (const QByteArray &rest :
         {QByteArray("{\"id\":1,\"met"), QByteArray("{\"id\":2,\"method\":\"Target.attachToBrowserTarget\"}\0", 47),
          QByteArray("no JSON\0", 8), QByteArray(1, '\0')}) {
        browser.reset();
        factory.reset();
        {
            QLocalSocket client;
            EXPECT_TRUE(waitFor([&] {
                client.abort();
                client.connectToServer(socketPath());
                return client.waitForConnected(500);
            }));
            idle(50);
            client.write(rest);
            client.flush();
        }
        startProgram();
        browser = connect();
        ASSERT_TRUE(browser) << rest.toStdString();
        ASSERT_TRUE(open(server.address(u"/page"_s)));
        EXPECT_EQ(str(browser->LocationName()), "well");
    }
}

TEST_F(ChromiumHolder, TheNextClientHearsNothingOfWhatTheOldOneHasAskedFor)
{
    server.route("/never", {.delay = -1});
    server.page("/page", "<title>well</title>");
    browser->Navigate(server.address(u"/never"_s));
    idle(100);
    startProgram();
    browser = connect();
    ASSERT_TRUE(browser);
    EXPECT_FALSE(browser->isLoading());
    ASSERT_TRUE(open(server.address(u"/page"_s)));
    EXPECT_EQ(str(browser->LocationName()), "well");
}

TEST_F(ChromiumHolder, AHolderThatIsKilledTakesTheBrowserAlong)
{
    bool died = false;
    QObject::connect(browser.get(), &BrowserEngine::Died, [&] { died = true; });
    ASSERT_GT(holder(), 0);
    ::kill(pid_t(holder()), SIGKILL);
    EXPECT_TRUE(waitFor([&] { return processes().isEmpty(); }, 5000));
    EXPECT_TRUE(waitFor([&] { return died; })) << "the news may come a turn behind the end";
    factory->start(ChromiumProgram::find());
    browser = connect();
    EXPECT_TRUE(browser) << "what the killed one has left is in nobody's way";
}

TEST_F(ChromiumHolder, ABrowserThatIsStoppedEndsWithItsHolderAllTheSame)
{
    ASSERT_GT(holder(), 0);
    for (const qint64 process : processes("--user-data-dir")) {
        if (process != holder() && !Platform::commandLine(process).contains("--type="))
            ::kill(pid_t(process), SIGSTOP);
    }
    ::kill(pid_t(holder()), SIGKILL);
    EXPECT_TRUE(waitFor([&] { return processes().isEmpty(); }, 5000));
}

TEST_F(ChromiumHolder, AHolderThatIsStoppedGivesWayToTheNextStart)
{
    const qint64 stopped = holder();
    ASSERT_GT(stopped, 0);
    ::kill(pid_t(stopped), SIGSTOP);
    startProgram();
    EXPECT_EQ(factory->runningBrowser(), nullptr);
    factory->start(ChromiumProgram::find());
    browser = connect();
    ASSERT_TRUE(browser);
    EXPECT_NE(holder(), stopped);
    EXPECT_EQ(processes("trawlex-browser-holder").size(), 1);
    EXPECT_TRUE(open(u"about:blank"_s));
}

TEST_F(ChromiumHolder, ABrowserThatDiesIsToldAndStartedAgain)
{
    bool died = false;
    QObject::connect(browser.get(), &BrowserEngine::Died, [&] { died = true; });
    for (const qint64 process : processes("--user-data-dir")) {
        if (process != holder())
            ::kill(pid_t(process), SIGKILL);
    }
    ASSERT_TRUE(waitFor([&] { return died; }));
    EXPECT_TRUE(waitFor([&] { return processes().isEmpty(); }, 5000)) << "the holder ends with it";
    QElapsedTimer clock;
    clock.start();
    factory->start(ChromiumProgram::find());
    browser = connect();
    ASSERT_TRUE(browser);
    EXPECT_LT(clock.elapsed(), 8000);
    EXPECT_TRUE(open(u"about:blank"_s));
}

using ChromiumPort = ChromiumTest;

TEST_F(ChromiumPort, ABrowserWithoutAWindowListensOnNone)
{
    ASSERT_FALSE(processes().isEmpty());
    for (const qint64 process : processes())
        EXPECT_EQ(listeningSockets(process), QStringList()) << Platform::commandLine(process).toStdString();
}
