#include "ChromiumFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QTimer>
#include <csignal>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Stage
{
    QTemporaryDir folder;
    TestServer server;
    ChromiumFactory factory{{.dataFolder = folder.path(),
                             .userSwitches = {u"--host-resolver-rules=MAP *.test 127.0.0.1"_s},
                             .headless = true}};
};
std::unique_ptr<Stage> stage;
int pageNumber = 0;

} // namespace

bool waitFor(const std::function<bool()> &done, int milliseconds)
{
    QEventLoop loop;
    QTimer alarm;
    alarm.start(10); // `done` may depend on what happens outside of this loop
    const QDeadlineTimer deadline(milliseconds);
    while (!done() && !deadline.hasExpired())
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    return done();
}

void ChromiumTest::SetUpTestSuite()
{
    stage = std::make_unique<Stage>();
    ASSERT_TRUE(stage->folder.isValid());
    ASSERT_NE(stage->factory.defaultProgram(), QString()) << "no browser is installed";
}

void ChromiumTest::TearDownTestSuite()
{
    stage->factory.closeBrowser();
    for (const qint64 process : processes())
        ::kill(pid_t(process), SIGKILL);
    stage.reset();
}

void ChromiumTest::SetUp()
{
    browser = connect();
    ASSERT_TRUE(browser) << "the browser did not start";
}

void ChromiumTest::TearDown()
{
    browser.reset();
}

TestServer &ChromiumTest::server()
{
    return stage->server;
}

ChromiumFactory &ChromiumTest::factory()
{
    return stage->factory;
}

std::shared_ptr<BrowserEngine> ChromiumTest::connect()
{
    std::shared_ptr<BrowserEngine> found = factory().runningBrowser();
    if (found)
        return found;
    factory().start(factory().defaultProgram());
    waitFor([&] { return found || (found = factory().runningBrowser()); });
    return found;
}

void ChromiumTest::open(const QString &address)
{
    QSignalSpy ended(browser.get(), &BrowserEngine::loadingEnded);
    browser->Navigate(address);
    EXPECT_TRUE(browser->isLoading());
    EXPECT_TRUE(waitFor([&] { return !ended.isEmpty(); })) << address.toStdString() << " did not end loading";
    EXPECT_FALSE(browser->isLoading());
}

void ChromiumTest::show(const QByteArray &html)
{
    const QByteArray path = "/page" + QByteArray::number(++pageNumber);
    server().page(path, html);
    openPath(QString::fromLatin1(path));
}

QList<qint64> ChromiumTest::processes()
{
    QList<qint64> found;
    for (const QString &entry : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        QFile file(u"/proc/%1/cmdline"_s.arg(entry));
        if (file.open(QIODevice::ReadOnly) && file.readAll().contains(stage->folder.path().toUtf8()))
            found.append(entry.toLongLong());
    }
    return found;
}
