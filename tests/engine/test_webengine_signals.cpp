// The signals of the built-in browser, and what may end in the middle of them.
#include "RestlessPages.h"
#include "WebEngineFixture.h"

#include <QTimer>

using namespace Qt::StringLiterals;

TEST_F(WebEngineTest, NothingIsSignalledDuringARead)
{
    server.page("/page2", "<title>two</title>");
    openPage("<title>one</title><script>setTimeout(()=>{const e=Date.now()+300;while(Date.now()<e);},20)</script>");
    idle(60);
    signalled.clear();
    bool during = false;
    bool reading = true;
    QObject::connect(browser.get(), &BrowserEngine::loadingEnded, [&] { during = during || reading; });
    QTimer::singleShot(0, [&] { browser->windowClosed(); });
    EXPECT_FALSE(errorOf([&] { (void)browser->content(); }).isEmpty());
    EXPECT_TRUE(signalled.isEmpty());
    reading = false;
    EXPECT_TRUE(waitFor([&] { return signalled == QStringList{u"closing"_s}; }));
    EXPECT_FALSE(during);
}

TEST_F(WebEngineTest, AClosedWindowAnswersNothing)
{
    openPage("<title>t</title>");
    signalled.clear();
    browser->windowClosed();
    browser->windowClosed();
    idle(20);
    EXPECT_EQ(signalled, QStringList{u"closing"_s});
    EXPECT_FALSE(errorOf([&] { browser->Navigate(server.address(u"/page"_s)); }).isEmpty());
    EXPECT_FALSE(errorOf([&] { browser->Stop(); }).isEmpty());
    EXPECT_FALSE(errorOf([&] { (void)browser->LocationURL(); }).isEmpty());
    EXPECT_FALSE(errorOf([&] { (void)browser->content(); }).isEmpty());
}

TEST_F(WebEngineTest, TheLastReferenceMayBeDroppedInAnyHandler)
{
    server.page("/frame", "x");
    const QByteArray html = "<title>t</title><script>window.open('/popup')</script><iframe src='/frame'></iframe>";
    int dropped = 0;
    const auto drop = [&] {
        dropped += browser ? 1 : 0;
        browser.reset();
    };
    const std::function<void()> connections[] = {
        [&] { QObject::connect(browser.get(), &BrowserEngine::DocumentComplete, drop); },
        [&] { QObject::connect(browser.get(), &BrowserEngine::loadingEnded, drop); },
        [&] { QObject::connect(browser.get(), &BrowserEngine::NewWindow2, drop); },
        [&] {
            QObject::connect(browser.get(), &BrowserEngine::WindowClosing, drop);
            QTimer::singleShot(50, browser.get(), [b = browser.get()] { b->windowClosed(); });
        },
    };
    server.page("/page", html);
    for (const auto &connectTo : connections) {
        startBrowser();
        connectTo();
        browser->Navigate(server.address(u"/page"_s));
        EXPECT_TRUE(waitFor([&] { return !browser; }));
        idle(50);
    }
    EXPECT_EQ(dropped, 4);
}

TEST_F(WebEngineTest, TheLastReferenceMayBeDroppedDuringARead)
{
    openPage("<title>t</title><script>setTimeout(()=>{const e=Date.now()+400;while(Date.now()<e);},20)</script>");
    idle(60);
    QTimer::singleShot(20, [this] { browser.reset(); });
    BrowserEngine *engine = browser.get();
    EXPECT_FALSE(errorOf([&] { (void)engine->content(); }).isEmpty());
    EXPECT_FALSE(browser);
    idle(50);
}

TEST_F(WebEngineTest, APageWhoseFramesReloadForEverLeavesTheEventLoopItsTurns)
{
    expectTurnsBesideRestlessFrames(*browser, server, u"127.0.0.1"_s);
}
