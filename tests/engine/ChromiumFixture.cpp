#include "ChromiumFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTimer>
#include <csignal>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

// With this variable set, and a display, the browser shows its window.
bool windowless()
{
    return qEnvironmentVariableIsEmpty("TRAWLEX_TEST_WINDOW");
}

struct Stage
{
    Stage() { catchOtherPrograms(); }
    // What the browser hands to other programs ends in a file of ours.
    void catchOtherPrograms()
    {
        const QDir programs(folder.path() + u"/programs"_s);
        programs.mkpath(u"."_s);
        for (const QString &name : {u"xdg-open"_s, u"xdg-email"_s}) {
            QFile file(programs.filePath(name));
            if (file.open(QIODevice::WriteOnly))
                file.write("#!/bin/sh\necho \"$@\" >> '" + folder.path().toUtf8() + "/started'\n");
            file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        }
        static const QByteArray path = qgetenv("PATH");
        qputenv("PATH", programs.path().toUtf8() + ':' + path);
    }

    QTemporaryDir folder;
    TestServer server;
    ChromiumFactory factory{{.dataFolder = folder.path(),
                             .userSwitches = {u"--host-resolver-rules=MAP *.test 127.0.0.1"_s},
                             .headless = windowless()}};
};
std::unique_ptr<Stage> stage;
int pageNumber = 0;

} // namespace

qint64 errorOf(const std::function<void()> &call)
{
    try {
        call();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
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
    waitFor([] { return processes().isEmpty(); }); // they would write into the folder that is taken away
    stage.reset();
}

void ChromiumTest::SetUp()
{
    take(connect());
    ASSERT_TRUE(browser) << "the browser did not start";
}

void ChromiumTest::TearDown()
{
    browser.reset();
}

void ChromiumTest::take(std::shared_ptr<BrowserEngine> engine)
{
    browser = std::move(engine);
    told.clear();
    if (!browser)
        return;
    BrowserEngine *sender = browser.get();
    QObject::connect(sender, &BrowserEngine::DocumentComplete, sender,
                     [this](const QString &url, bool top) { told.append((top ? u"page "_s : u"frame "_s) + url); });
    QObject::connect(sender, &BrowserEngine::loadingEnded, sender, [this] { told.append(u"ended"_s); });
    QObject::connect(sender, &BrowserEngine::WindowClosing, sender, [this] { told.append(u"closing"_s); });
    QObject::connect(sender, &BrowserEngine::Died, sender, [this] { told.append(u"died"_s); });
}

TestServer &ChromiumTest::server()
{
    return stage->server;
}

ChromiumFactory &ChromiumTest::factory()
{
    return stage->factory;
}

QString ChromiumTest::dataFolder()
{
    return stage->folder.path();
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

std::shared_ptr<DevToolsConnection> ChromiumTest::backDoor()
{
    const auto line = factory().pipe();
    return line ? DevToolsConnection::open(line, 2s) : nullptr;
}

QHash<QString, QString> ChromiumTest::windows()
{
    QHash<QString, QString> found;
    const auto door = backDoor();
    if (!door)
        return found;
    const QJsonObject answer = door->call({}, "Target.getTargets"_L1, {}, 5s);
    for (const QJsonValue each : answer[u"targetInfos"].toArray()) {
        if (each[u"type"].toString() == "page"_L1)
            found.insert(each[u"targetId"].toString(), each[u"url"].toString());
    }
    return found;
}

void ChromiumTest::open(const QString &address)
{
    const qsizetype before = told.count(u"ended"_s);
    browser->Navigate(address);
    EXPECT_TRUE(browser->isLoading());
    EXPECT_TRUE(waitFor([&] { return told.count(u"ended"_s) > before; }, 20000))
        << str(address) << " did not end loading";
    EXPECT_FALSE(browser->isLoading());
}

QString ChromiumTest::show(const QByteArray &html)
{
    const QByteArray path = "/page" + QByteArray::number(++pageNumber);
    server().page(path, html);
    openPath(QString::fromLatin1(path));
    return here(QString::fromLatin1(path));
}

bool ChromiumTest::waitForTitle(const QString &title, int milliseconds)
{
    return waitFor([&] { return browser->arrival() != Arrival::Pending && browser->LocationName() == title; },
                   milliseconds);
}

QList<qint64> ChromiumTest::processes(const QByteArray &part)
{
    QList<qint64> found;
    for (const QString &entry : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        QFile file(u"/proc/%1/cmdline"_s.arg(entry));
        const QByteArray line = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        if (line.contains(stage->folder.path().toUtf8()) && line.contains(part))
            found.append(entry.toLongLong());
    }
    return found;
}
