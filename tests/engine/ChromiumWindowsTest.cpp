// The windows of the free-standing browser: those that pages open, those of the user, and the loss of ours.
#include "ChromiumFixture.h"
#include "SlowLine.h"
#include "engine/chromium/ChromiumBrowser.h"
#include "engine/chromium/ChromiumPage.h"

#include <QFile>
#include <QJsonDocument>
#include <QTimer>
#include <csignal>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

class ChromiumWindows : public ChromiumTest
{
  protected:
    void SetUp() override
    {
        ChromiumTest::SetUp();
        asked = 0;
        QObject::connect(browser.get(), &BrowserEngine::NewWindow2, browser.get(), [this](bool *cancel) {
            ++asked;
            *cancel = refuse;
        });
        server().page("/pop", "<title>pop</title><script>fetch('/ran')</script>");
    }
    void TearDown() override
    {
        const QList<QString> all = windows().keys();
        for (const QString &window : all.mid(1))
            backDoor()->call({}, "Target.closeTarget"_L1, {{u"targetId"_s, window}}, 5s);
        waitFor([] { return windows().size() <= 1; });
        ChromiumTest::TearDown();
    }
    /// How often a window opened by a page was asked for at the server.
    static int popped() { return server().requestCount("/pop") + server().requestCount("/pop?"); }

    static void kill(const QByteArray &type)
    {
        for (const qint64 process : processes(type))
            ::kill(pid_t(process), SIGKILL);
    }
    /// The browser itself, without its helpers.
    static QList<qint64> mainProcess()
    {
        QList<qint64> all = processes();
        const QList<qint64> helpers = processes("--type=");
        all.removeIf([&](qint64 each) { return helpers.contains(each); });
        return all;
    }

    bool refuse = true;
    int asked = 0;
};

struct Opening
{
    const char *name;
    const char *html;
};

void PrintTo(const Opening &opening, std::ostream *out)
{
    *out << opening.name;
}

class ChromiumOpenings : public ChromiumWindows, public testing::WithParamInterface<Opening>
{
};

INSTANTIATE_TEST_SUITE_P(All, ChromiumOpenings,
                         testing::Values(Opening{"script", "<script>open('/pop')</script>"},
                                         Opening{"unrelated", "<script>open('/pop', '_blank', 'noopener')</script>"},
                                         Opening{"link",
                                                 "<a id=a target=_blank href=/pop></a><script>a.click()</script>"},
                                         Opening{"form", "<form id=f target=_blank action=/pop></form><script>"
                                                         "f.submit()</script>"},
                                         Opening{"related", "<form id=f target=_blank rel=opener action=/pop></form>"
                                                            "<script>f.submit()</script>"},
                                         Opening{"blank", "<script>open('about:blank')</script>"}),
                         [](const auto &each) { return std::string(each.param.name); });

TEST_P(ChromiumOpenings, AreRefusedAndThePageGoesOn)
{
    const int before = popped();
    show(QByteArray("<title>page</title>") + GetParam().html + "<script>document.title = 'on'</script>");
    EXPECT_TRUE(waitForTitle(u"on"_s));
    ASSERT_TRUE(waitFor([&] { return asked > 0; }));
    EXPECT_TRUE(waitFor([&] { return windows().size() == 1; }));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(popped(), before) << "the window had time to load its page";
    show("<title>a</title><script>document.title = 'next'</script>");
    EXPECT_TRUE(waitForTitle(u"next"_s)) << "the process stands still";
    EXPECT_FALSE(told.contains(u"closing"_s));
}

TEST_P(ChromiumOpenings, AreLetThroughWhenNobodyRefuses)
{
    refuse = false;
    const int before = popped();
    show(QByteArray("<title>page</title>") + GetParam().html);
    EXPECT_TRUE(waitFor([&] { return windows().size() == 2; }));
    EXPECT_EQ(asked, 1);
    if (QByteArray(GetParam().html).contains("/pop")) {
        EXPECT_TRUE(waitFor([&] { return popped() > before; }));
    }
    EXPECT_EQ(str(browser->LocationName()), "page");
}

TEST_F(ChromiumWindows, AWindowIsRefusedInTheMiddleOfARead)
{
    show("<title>a</title><script>setTimeout(() => { const end = Date.now() + 700; while (Date.now() < end);"
         "open('/pop'); document.title = 'b'; }, 200)</script>");
    idle(300);
    bool reading = true;
    bool inside = false;
    QObject::connect(browser.get(), &BrowserEngine::NewWindow2, browser.get(), [&] { inside = reading; });
    EXPECT_FALSE(browser->LocationName().isEmpty());
    reading = false;
    EXPECT_TRUE(inside);
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(waitForTitle(u"b"_s)) << "the page goes on";
}

TEST_P(ChromiumOpenings, AreRefusedAndThePageGoesOnHoweverSlowlyItIsTold)
{
    browser.reset();
    const auto connection = DevToolsConnection::open(std::make_shared<SlowLine>(factory().pipe(), 30ms), 2s);
    ASSERT_TRUE(connection);
    take(std::make_shared<ChromiumBrowser>(std::make_shared<ChromiumPage>(connection)));
    QObject::connect(browser.get(), &BrowserEngine::NewWindow2, browser.get(), [](bool *cancel) { *cancel = true; });
    const int before = popped();
    show(QByteArray("<title>page</title>") + GetParam().html + "<script>document.title = 'on'</script>");
    EXPECT_TRUE(waitForTitle(u"on"_s));
    EXPECT_TRUE(waitFor([&] { return windows().size() == 1; }));
    EXPECT_EQ(popped(), before);
    browser.reset();
}

TEST_F(ChromiumWindows, ARefusedWindowCanNeitherAskNorOpenAnother)
{
    show("<script>const w = open(''); w.document.write('<script>alert(1); open(\"/pop\")<\\/script>');"
         "document.title = 'on'</script>");
    EXPECT_TRUE(waitForTitle(u"on"_s));
    EXPECT_TRUE(waitFor([&] { return windows().size() == 1; }));
    idle(300);
    EXPECT_EQ(windows().size(), 1);
}

TEST_F(ChromiumWindows, BoxesOfAllowedWindowsAreAnsweredAndTheirWindowsAreAskedFor)
{
    refuse = false;
    server().page("/boxes", "<script>alert(1); opener.document.title = 'answered'; open('/pop')</script>");
    show("<title>page</title><script>open('/boxes')</script>");
    EXPECT_TRUE(waitForTitle(u"answered"_s));
    EXPECT_TRUE(waitFor([&] { return asked == 2; }));
    EXPECT_TRUE(waitFor([&] { return windows().size() == 3; }));
}

TEST_F(ChromiumWindows, TheUsersOwnWindowsAreLeftAlone)
{
    const auto door = backDoor();
    server().page("/own", "<title>own</title><script>document.title = 'runs'</script>");
    door->call({}, "Target.createTarget"_L1, {{u"url"_s, here(u"/own"_s)}}, 5s);
    EXPECT_TRUE(waitFor([&] {
        const QJsonObject answer = door->call({}, "Target.getTargets"_L1, {}, 5s);
        return QJsonDocument(answer).toJson().contains("\"runs\"");
    }));
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(windows().size(), 2);
    EXPECT_FALSE(told.contains(u"closing"_s));
}

TEST_F(ChromiumWindows, APageCannotCloseOurWindow)
{
    factory().closeBrowser();
    ASSERT_TRUE(waitFor([&] { return told.contains(u"closing"_s); }));
    take(connect()); // nothing has been shown in its window
    show("<title>page</title><script>close(); open('', '_self').close()</script>");
    idle(300);
    EXPECT_FALSE(told.contains(u"closing"_s));
    EXPECT_EQ(str(browser->LocationName()), "page");
}

TEST_F(ChromiumWindows, AWindowThatTheUserClosesIsToldOnceAndAnswersNothing)
{
    show("<title>mine</title>");
    const QString mine = windows().keys().value(0);
    backDoor()->call({}, "Target.createTarget"_L1, {{u"url"_s, here(u"/pop"_s)}}, 5s);
    told.clear();
    backDoor()->call({}, "Target.closeTarget"_L1, {{u"targetId"_s, mine}}, 5s);
    ASSERT_TRUE(waitFor([&] { return !told.isEmpty(); }));
    EXPECT_EQ(str(told), "closing");
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(errorOf([&] { (void)browser->content(); }), EngineError::BrowserGone);
    EXPECT_EQ(errorOf([&] { (void)browser->LocationURL(); }), EngineError::BrowserGone);
    EXPECT_EQ(errorOf([&] { browser->Navigate(here(u"/pop"_s)); }), EngineError::BrowserGone);
    EXPECT_EQ(errorOf([&] { browser->setTop(1); }), EngineError::BrowserGone);
    EXPECT_EQ(errorOf([&] { browser->Stop(); }), EngineError::BrowserGone);
    EXPECT_FALSE(browser->isLoading());
    EXPECT_LT(clock.elapsed(), 500);
    take(connect());
    ASSERT_TRUE(browser);
    EXPECT_TRUE(waitForTitle(u"pop"_s)) << "the window that is left";
}

TEST_F(ChromiumWindows, ABrowserWithoutAWindowGetsOne)
{
    const QString mine = windows().keys().value(0);
    const auto door = backDoor();
    door->send({}, "Target.closeTarget"_L1, {{u"targetId"_s, mine}});
    ASSERT_TRUE(waitFor([&] { return told.contains(u"closing"_s); }));
    take(connect());
    ASSERT_TRUE(browser);
    show("<title>again</title>");
    EXPECT_EQ(str(browser->LocationName()), "again");
}

TEST_F(ChromiumWindows, AKilledBrowserIsToldOnceAndFoundNoMore)
{
    browser->Navigate(here(u"/pop"_s));
    for (const qint64 process : mainProcess())
        ::kill(pid_t(process), SIGKILL);
    ASSERT_TRUE(waitFor([&] { return told.contains(u"died"_s); }));
    idle(100);
    EXPECT_EQ(told.count(u"died"_s), 1);
    EXPECT_FALSE(told.contains(u"closing"_s)) << "nobody has closed it";
    EXPECT_EQ(browser->arrival(), Arrival::Failed);
    EXPECT_EQ(str(browser->userAgent() + browser->cookiesFor(here(u"/pop"_s))), "");
    EXPECT_FALSE(browser->isLoading());
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(errorOf([&] { (void)browser->LocationName(); }), EngineError::BrowserGone);
    EXPECT_EQ(factory().runningBrowser(), nullptr);
    EXPECT_LT(clock.elapsed(), 500) << "what the killed browser left behind costs little";
    take(connect());
    ASSERT_TRUE(browser) << "a new one starts on the same profile";
    EXPECT_LT(clock.elapsed(), 5000) << "and soon";
    show("<title>new</title>");
    EXPECT_EQ(str(browser->LocationName()), "new");
}

TEST_F(ChromiumWindows, ABrowserThatDiesInTheMiddleOfALoadIsToldBeforeItsEnd)
{
    server().route("/never", {.delay = -1});
    server().page("/half", "<title>half</title><iframe src=/pop></iframe><img src=/never>");
    browser->Navigate(here(u"/half"_s));
    ASSERT_TRUE(waitForTitle(u"half"_s));
    told.clear();
    for (const qint64 process : mainProcess())
        ::kill(pid_t(process), SIGKILL);
    ASSERT_TRUE(waitFor([&] { return told.contains(u"ended"_s); }));
    EXPECT_EQ(str(told.mid(told.size() - 2)), "died | ended")
        << "who hears of the end first takes the page for one that did not come";
    take(connect());
}

TEST_F(ChromiumWindows, ABrowserThatIsKilledInTheMiddleOfAReadEndsIt)
{
    server().page("/endless", "<title>endless</title><script>while (true);</script>");
    browser->Navigate(here(u"/endless"_s));
    idle(300);
    QTimer::singleShot(300, browser.get(), [] {
        for (const qint64 process : mainProcess())
            ::kill(pid_t(process), SIGKILL);
    });
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(errorOf([&] { (void)browser->content(); }), EngineError::BrowserGone);
    EXPECT_LT(clock.elapsed(), 3000);
    EXPECT_TRUE(told.isEmpty()) << "signals come from the event loop";
    ASSERT_TRUE(waitFor([&] { return told.contains(u"died"_s); }));
}

TEST_F(ChromiumWindows, ALostPageProcessIsAnErrorAndTheNextPageIsWell)
{
    show("<title>page</title>");
    told.clear();
    kill("--type=renderer");
    ASSERT_TRUE(waitFor([&] { return errorOf([&] { (void)browser->content(); }) == EngineError::BrowserGone; }));
    EXPECT_FALSE(browser->isLoading());
    EXPECT_EQ(browser->arrival(), Arrival::Failed) << "what had arrived is gone";
    EXPECT_FALSE(told.contains(u"closing"_s) || told.contains(u"died"_s));
    show("<title>well</title>");
    EXPECT_EQ(str(browser->LocationName()), "well");
    EXPECT_EQ(browser->arrival(), Arrival::Arrived);
}

TEST_F(ChromiumWindows, APageProcessThatIsLostInTheMiddleOfALoadEndsIt)
{
    server().route("/never", {.delay = -1});
    server().page("/half", "<title>half</title><img src=/never>");
    browser->Navigate(here(u"/half"_s));
    ASSERT_TRUE(waitForTitle(u"half"_s));
    EXPECT_TRUE(browser->isLoading());
    kill("--type=renderer");
    ASSERT_TRUE(waitFor([&] { return told.contains(u"ended"_s); }, 3000));
    EXPECT_FALSE(browser->isLoading());
    show("<title>well</title>");
    EXPECT_EQ(str(browser->LocationName()), "well");
}

TEST_F(ChromiumWindows, APageThatCrashesByItselfEndsItsLoad)
{
    try {
        browser->Navigate(u"chrome://crash"_s);
    } catch (const RuntimeError &) { // the page was gone before the browser had answered
    }
    ASSERT_TRUE(waitFor([&] { return told.contains(u"ended"_s); }));
    // The order to crash reaches the process when it will, and takes whatever stands there by then.
    ASSERT_TRUE(waitFor([&] { return errorOf([&] { (void)browser->LocationName(); }) == EngineError::BrowserGone; }));
    show("<title>well</title>");
    EXPECT_EQ(str(browser->LocationName()), "well");
}

TEST_F(ChromiumWindows, TheWindowIsFoundAgain)
{
    const QString address = show("<title>still here</title>");
    browser.reset();
    idle(100);
    take(connect());
    EXPECT_EQ(str(browser->LocationURL()), str(address));
    EXPECT_EQ(str(browser->LocationName()), "still here");
    EXPECT_FALSE(browser->isLoading());
    idle(200);
    EXPECT_TRUE(told.isEmpty()) << "an old page is no news: " << str(told);
    EXPECT_EQ(windows().size(), 1);
}

TEST_F(ChromiumWindows, AWindowThatHangsIsFoundAgain)
{
    server().page("/endless", "<title>endless</title><p>before<script>while (true);</script>");
    browser->Navigate(here(u"/endless"_s));
    idle(500);
    browser.reset();
    QElapsedTimer clock;
    clock.start();
    take(connect());
    ASSERT_TRUE(browser);
    EXPECT_LT(clock.elapsed(), 8000);
    show("<title>well</title>");
    EXPECT_EQ(str(browser->LocationName()), "well");
}

TEST_F(ChromiumWindows, ABrowserThatIsStillStartingIsClosedToo)
{
    ChromiumFactory second({.dataFolder = dataFolder() + u"/second"_s, .userSwitches = {}, .headless = true});
    second.start(second.defaultProgram());
    second.closeBrowser();
    EXPECT_TRUE(waitFor([] { return processes("/second/").isEmpty(); }));
}

// In the browser's place: runs `first` in `folder`, and then does nothing for ever.
static void startScript(ChromiumFactory &factory, const QString &folder, const QByteArray &first)
{
    QFile program(folder + u"/chromium"_s);
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\ncd '" + folder.toUtf8() + "'; " + first + "\nwhile sleep 1; do :; done\n");
    program.close();
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    factory.start(program.fileName());
}

TEST_F(ChromiumWindows, ABrowserThatNeverAnswersIsNotLeftBehind)
{
    const QString folder = dataFolder() + u"/stuck"_s;
    ChromiumFactory stuck({.dataFolder = folder, .userSwitches = {}, .headless = true});
    EXPECT_EQ(stuck.runningBrowser(), nullptr);
    startScript(stuck, folder, ":");
    ASSERT_TRUE(waitFor([] { return !processes("/stuck/").isEmpty(); }));
    EXPECT_EQ(stuck.runningBrowser(), nullptr) << "it says nothing";
    stuck.closeBrowser();
    EXPECT_TRUE(waitFor([] { return processes("/stuck/").isEmpty(); }, 2000));
}

TEST_F(ChromiumWindows, TheEngineMayGoInsideEachOfItsSignals)
{
    const auto drop = [this] { browser.reset(); };
    server().page("/page", "<title>page</title>");
    for (const auto signal : {&BrowserEngine::loadingEnded, &BrowserEngine::WindowClosing}) {
        take(connect());
        QObject::connect(browser.get(), signal, browser.get(), drop);
        if (signal == &BrowserEngine::WindowClosing)
            backDoor()->send({}, "Target.closeTarget"_L1, {{u"targetId"_s, windows().keys().value(0)}});
        else
            browser->Navigate(here(u"/page"_s));
        EXPECT_TRUE(waitFor([&] { return !browser; }));
    }
    take(connect());
    QObject::connect(browser.get(), &BrowserEngine::DocumentComplete, browser.get(), drop);
    browser->Navigate(here(u"/page"_s));
    EXPECT_TRUE(waitFor([&] { return !browser; }));
    take(connect());
}

TEST_F(ChromiumWindows, TheEngineMayGoWhileAWindowIsAskedFor)
{
    QObject::connect(browser.get(), &BrowserEngine::NewWindow2, browser.get(), [this] { browser.reset(); });
    server().page("/opens", "<script>open('/pop')</script>");
    browser->Navigate(here(u"/opens"_s));
    EXPECT_TRUE(waitFor([&] { return !browser; }));
    take(connect());
    show("<title>well</title>");
    EXPECT_EQ(str(browser->LocationName()), "well");
}

TEST_F(ChromiumWindows, TheEngineMayGoInTheMiddleOfItsOwnRead)
{
    show("<title>a</title><script>setTimeout(() => { const end = Date.now() + 500; while (Date.now() < end);"
         "open('/pop'); }, 100)</script>");
    idle(200);
    QObject::connect(browser.get(), &BrowserEngine::NewWindow2, browser.get(), [this] { browser.reset(); });
    BrowserEngine *engine = browser.get();
    EXPECT_EQ(errorOf([&] { (void)engine->content(); }), EngineError::BrowserGone);
    EXPECT_FALSE(browser);
    take(connect());
    EXPECT_TRUE(browser);
}
