// When a page of the free-standing browser counts as loaded, and what is signalled then.
#include "ChromiumFixture.h"
#include "RestlessPages.h"

using namespace Qt::Literals::StringLiterals;

using ChromiumLoading = ChromiumTest;

TEST_F(ChromiumLoading, NavigateReturnsAtOnceAndLoadingLastsToTheLoadEvent)
{
    server().route("/slow", {.body = "<title>slow</title><img src=/slowest.png>", .delay = 300});
    server().route("/slowest.png", {.body = "x", .contentType = "image/png", .delay = 400});
    QElapsedTimer clock;
    clock.start();
    browser->Navigate(here(u"/slow"_s));
    EXPECT_LT(clock.elapsed(), 100);
    EXPECT_TRUE(browser->isLoading());
    EXPECT_TRUE(told.isEmpty());
    ASSERT_TRUE(waitFor([&] { return told.contains(u"ended"_s); }));
    EXPECT_GE(clock.elapsed(), 690);
    EXPECT_FALSE(browser->isLoading());
    EXPECT_EQ(str(told), str(QStringList{u"page "_s + here(u"/slow"_s), u"ended"_s}));
    idle(200);
    EXPECT_EQ(told.size(), 2) << str(told);
}

TEST_F(ChromiumLoading, EachFrameIsToldOnceAndThePageLast)
{
    server().page("/inner", "inner");
    server().page("/outer", "<iframe src=/inner></iframe>");
    server().page("/away", "<iframe src='" + elsewhere(u"/inner?deep"_s).toUtf8() + "'></iframe>");
    const QString page = show("<iframe src=/outer></iframe><iframe src='" + elsewhere(u"/away"_s).toUtf8() +
                              "'></iframe><iframe></iframe>");
    idle(300);
    ASSERT_EQ(told.size(), 7) << str(told);
    EXPECT_EQ(str(told.mid(5)), str(QStringList{u"page "_s + page, u"ended"_s}));
    QStringList frames = told.mid(0, 5);
    frames.sort();
    QStringList expected{u"frame "_s + here(u"/outer"_s), u"frame "_s + here(u"/inner"_s),
                         u"frame "_s + elsewhere(u"/away"_s), u"frame "_s + elsewhere(u"/inner?deep"_s),
                         u"frame about:blank"_s};
    expected.sort();
    EXPECT_EQ(str(frames), str(expected));
}

TEST_F(ChromiumLoading, AFrameThatLoadsLaterIsToldByItself)
{
    server().page("/inner", "inner");
    show("<iframe></iframe><script>setTimeout(() => document.querySelector('iframe').src = '/inner?later', 300)"
         "</script>");
    told.clear();
    ASSERT_TRUE(waitFor([&] { return !told.isEmpty(); }));
    EXPECT_EQ(str(told), str(u"frame "_s + here(u"/inner?later"_s)));
    EXPECT_FALSE(browser->isLoading());
}

TEST_F(ChromiumLoading, AMoveWithinThePageIsLoadedAtOnce)
{
    const QString address = show("<title>a</title><p id=x>x");
    told.clear();
    open(address + u"#x"_s);
    EXPECT_EQ(str(browser->LocationURL()), str(address + u"#x"_s));
    EXPECT_EQ(str(told), str(QStringList{u"page "_s + address + u"#x"_s, u"ended"_s}));
    EXPECT_EQ(server().requestCount(QUrl(address).path().toLatin1()), 1);
}

TEST_F(ChromiumLoading, AServersRedirectionEndsOnItsTarget)
{
    server().page("/target", "<title>target</title>");
    server().route("/from", {.status = 302, .headers = {"Location: " + elsewhere(u"/target#part"_s).toUtf8()}});
    openPath(u"/from"_s);
    EXPECT_EQ(str(browser->LocationURL()), str(elsewhere(u"/target#part"_s)));
    EXPECT_EQ(str(browser->LocationName()), "target");
}

TEST_F(ChromiumLoading, AScriptThatMovesOnBeforeItsPageIsCompleteEndsOnTheTarget)
{
    server().page("/target", "<title>target</title>");
    show("<title>first</title><script>location.replace('/target')</script><img src=/slowest.png>");
    EXPECT_EQ(str(browser->LocationName()), "target");
    EXPECT_EQ(str(told), str(QStringList{u"page "_s + here(u"/target"_s), u"ended"_s}));
}

TEST_F(ChromiumLoading, ARefreshingPageIsLoadedAtItsOwnLoadEvent)
{
    server().page("/target", "<title>target</title>");
    const QString address = show("<title>first</title><meta http-equiv=refresh content='1;url=/target'>");
    EXPECT_EQ(str(browser->LocationURL()), str(address));
    told.clear();
    ASSERT_TRUE(waitFor([&] { return !told.isEmpty(); }));
    EXPECT_FALSE(browser->isLoading());
    EXPECT_EQ(str(browser->LocationName()), "target");
    EXPECT_EQ(str(told), str(u"page "_s + here(u"/target"_s))) << "the page's own moves are no loading of ours";
}

TEST_F(ChromiumLoading, NoContentLeavesThePageAsItIs)
{
    const QString address = show("<title>stays</title>");
    server().route("/204", {.status = 204});
    told.clear();
    openPath(u"/204"_s);
    EXPECT_EQ(str(told), "ended");
    EXPECT_EQ(str(browser->LocationURL()), str(address));
    EXPECT_EQ(str(browser->LocationName()), "stays");
}

TEST_F(ChromiumLoading, ADownloadIsRefusedAndLeavesThePageAsItIs)
{
    const QString address = show("<title>stays</title>");
    server().route("/file", {.body = QByteArray(5000, 'x'),
                             .contentType = "application/octet-stream",
                             .headers = {"Content-Disposition: attachment; filename=trawlex-test-file.bin"}});
    told.clear();
    openPath(u"/file"_s);
    EXPECT_EQ(str(told), "ended");
    EXPECT_EQ(str(browser->LocationURL()), str(address));
    server().route("/document.pdf", {.body = "%PDF-1.4\n", .contentType = "application/pdf"});
    openPath(u"/document.pdf"_s);
    EXPECT_EQ(str(browser->LocationName()), "stays");
}

TEST_F(ChromiumLoading, AServerThatDoesNotAnswerEndsInTheBrowsersErrorPage)
{
    open(u"http://nobody.invalid/page#part"_s);
    EXPECT_EQ(str(browser->LocationURL()), "http://nobody.invalid/page#part");
    EXPECT_EQ(str(browser->content().url), "http://nobody.invalid/page#part");
    EXPECT_FALSE(browser->content().html.isEmpty());
    EXPECT_EQ(str(told), "page http://nobody.invalid/page#part | ended");
    show("<title>on</title>");
    EXPECT_EQ(str(browser->LocationName()), "on");
}

TEST_F(ChromiumLoading, WhatIsNoAddressLeavesThePageAsItIs)
{
    show("<title>stays</title>");
    told.clear();
    open(u"http://[/"_s);
    EXPECT_EQ(str(told), "ended");
    EXPECT_EQ(str(browser->LocationName()), "stays");
}

TEST_F(ChromiumLoading, AnErrorStatusIsAPageLikeAnyOther)
{
    openPath(u"/nowhere"_s);
    EXPECT_EQ(str(browser->LocationName()), "missing");
    EXPECT_EQ(str(text()), "no such page");
}

TEST_F(ChromiumLoading, TheLaterOfTwoNavigationsCounts)
{
    server().route("/slow", {.body = "<title>slow</title>", .delay = 500});
    server().route("/later", {.body = "<title>later</title>", .delay = 200});
    browser->Navigate(here(u"/slow"_s));
    idle(100);
    browser->Navigate(here(u"/later"_s));
    ASSERT_TRUE(waitFor([&] { return told.contains(u"ended"_s); }));
    EXPECT_EQ(str(browser->LocationName()), "later");
    idle(600);
    EXPECT_EQ(str(told), str(QStringList{u"page "_s + here(u"/later"_s), u"ended"_s}));
}

TEST_F(ChromiumLoading, TheLaterOfTwoNavigationsInOneBreathCounts)
{
    server().page("/first", "<title>first</title>");
    server().page("/second", "<title>second</title>");
    browser->Navigate(here(u"/first"_s));
    browser->Navigate(here(u"/second"_s));
    ASSERT_TRUE(waitFor([&] { return told.contains(u"ended"_s); }));
    EXPECT_EQ(str(browser->LocationName()), "second");
    EXPECT_EQ(told.count(u"ended"_s), 1);
}

TEST_F(ChromiumLoading, StopEndsALoadBeforeAndAfterItsFirstByte)
{
    server().route("/never", {.delay = -1});
    browser->Navigate(here(u"/never"_s));
    idle(200);
    EXPECT_TRUE(browser->isLoading());
    browser->Stop();
    EXPECT_FALSE(browser->isLoading());
    EXPECT_TRUE(told.isEmpty()) << "signals come from the event loop";
    ASSERT_TRUE(waitFor([&] { return told.contains(u"ended"_s); }));

    server().page("/half", "<title>half</title><p>text<img src=/never>");
    browser->Navigate(here(u"/half"_s));
    ASSERT_TRUE(waitForTitle(u"half"_s));
    EXPECT_TRUE(browser->isLoading());
    browser->Stop();
    EXPECT_FALSE(browser->isLoading());
    EXPECT_EQ(str(text()), "text");
}

TEST_F(ChromiumLoading, AnAddressIsNotTurnedIntoASecureOne)
{
    server().page("/plain", "<title>plain</title>");
    open(server().address(u"/plain"_s, u"plain.test"_s));
    EXPECT_EQ(str(browser->LocationURL()), str(server().address(u"/plain"_s, u"plain.test"_s)));
}

TEST_F(ChromiumLoading, NoSignalComesWhileACallIsUnderWay)
{
    show("<title>a</title><script>onload = () => { const end = Date.now() + 1500; while (Date.now() < end); }"
         "</script>");
    server().page("/frame", "frame");
    told.clear();
    bool calling = false;
    bool inside = false;
    QObject::connect(browser.get(), &BrowserEngine::loadingEnded, browser.get(), [&] { inside = inside || calling; });
    QObject::connect(browser.get(), &BrowserEngine::DocumentComplete, browser.get(),
                     [&] { inside = inside || calling; });
    server().page("/busy", "<title>b</title><iframe src=/frame></iframe><script>setTimeout(() => {"
                           "const end = Date.now() + 800; while (Date.now() < end);})</script>");
    browser->Navigate(here(u"/busy"_s));
    calling = true;
    EXPECT_TRUE(waitFor([&] { return browser->arrival() == Arrival::Arrived; }));
    while (browser->isLoading())
        (void)browser->content();
    EXPECT_TRUE(told.isEmpty()) << str(told);
    calling = false;
    ASSERT_TRUE(waitFor([&] { return told.contains(u"ended"_s); }));
    EXPECT_FALSE(inside);
    EXPECT_EQ(told.size(), 3) << str(told);
}

TEST_F(ChromiumLoading, AHandlerMayReadAndNavigate)
{
    server().page("/next", "<title>next</title>");
    QString read;
    QObject::connect(browser.get(), &BrowserEngine::DocumentComplete, browser.get(), [&] {
        read += browser->LocationName() + u' ';
        if (!read.contains(u"next"))
            browser->Navigate(here(u"/next"_s));
    });
    server().page("/start", "<title>start</title>");
    browser->Navigate(here(u"/start"_s));
    ASSERT_TRUE(waitFor([&] { return read == u"start next "_s; })) << str(read);
}

TEST_F(ChromiumLoading, APageWhoseFramesReloadForEverLeavesTheEventLoopItsTurns)
{
    expectTurnsBesideRestlessFrames(*browser, server(), u"site.test"_s);
}

// ---- Whether the page has arrived

TEST_F(ChromiumLoading, APageHasArrivedWithItsOwnDocumentAndNotBefore)
{
    show("<title>old</title>");
    EXPECT_EQ(browser->arrival(), Arrival::Arrived);
    server().route("/never", {.delay = -1});
    server().route("/half", {.body = "<title>half</title><img src=/never>", .delay = 300});
    browser->Navigate(here(u"/half"_s));
    EXPECT_EQ(browser->arrival(), Arrival::Pending);
    EXPECT_EQ(errorOf([&] { (void)browser->LocationName(); }), EngineError::NotArrived);
    EXPECT_TRUE(waitFor([&] { return browser->arrival() != Arrival::Pending; }));
    ASSERT_TRUE(waitForTitle(u"half"_s));
    EXPECT_EQ(browser->arrival(), Arrival::Arrived);
    EXPECT_TRUE(browser->isLoading());
    browser->Stop();
    EXPECT_EQ(browser->arrival(), Arrival::Arrived) << "what is there of it is its own";
}

TEST_F(ChromiumLoading, ASilentServerIsPendingUntilItIsGivenUp)
{
    server().route("/never", {.delay = -1});
    show("<title>old</title>");
    browser->Navigate(here(u"/never"_s));
    idle(500);
    EXPECT_EQ(browser->arrival(), Arrival::Pending);
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(errorOf([&] { (void)browser->content(); }), EngineError::NotArrived);
    EXPECT_LT(clock.elapsed(), 100) << "it costs no time";
    browser->Stop();
    EXPECT_EQ(browser->arrival(), Arrival::Failed);
    EXPECT_EQ(str(browser->LocationName()), "old");
    idle(200);
    EXPECT_EQ(browser->arrival(), Arrival::Failed);
}

TEST_F(ChromiumLoading, WhatBringsNoDocumentHasFailed)
{
    server().route("/204", {.status = 204});
    server().route("/file", {.body = "x", .contentType = "application/octet-stream"});
    server().route("/document.pdf", {.body = "%PDF-1.4\n", .contentType = "application/pdf"});
    server().route("/empty", {.status = 500});
    for (const QString &address : {here(u"/204"_s), here(u"/file"_s), here(u"/document.pdf"_s), here(u"/empty"_s),
                                   u"http://nobody.invalid/"_s, u"http://127.0.0.1:9/"_s, u"http://[/"_s}) {
        show("<title>stays</title>");
        EXPECT_EQ(browser->arrival(), Arrival::Arrived);
        open(address);
        EXPECT_EQ(browser->arrival(), Arrival::Failed) << str(address);
    }
    openPath(u"/nowhere"_s);
    EXPECT_EQ(browser->arrival(), Arrival::Arrived) << "a server's own page about an error is a page";
}

TEST_F(ChromiumLoading, AMoveWithinThePageHasArrived)
{
    const QString address = show("<p id=x>x");
    open(address + u"#x"_s);
    EXPECT_EQ(browser->arrival(), Arrival::Arrived);
}

TEST_F(ChromiumLoading, APageThatGoesOnToNowhereHasFailed)
{
    show("<title>first</title><script>setTimeout(() => location = 'http://nobody.invalid/', 200)</script>");
    EXPECT_EQ(browser->arrival(), Arrival::Arrived);
    EXPECT_TRUE(waitFor([&] { return browser->arrival() == Arrival::Failed; }));
}

// ---- What transfers ask

TEST_F(ChromiumLoading, TheUserAgentIsTheOneThatServersSee)
{
    show("x");
    EXPECT_EQ(str(browser->userAgent()), server().requests().constLast().headers.value("user-agent").toStdString());
}

TEST_F(ChromiumLoading, CookiesAreGivenAsTheBrowserWouldSendThem)
{
    server().route("/set", {.body = "x",
                            .headers = {"Set-Cookie: a=1; Path=/", "Set-Cookie: deep=2; Path=/deep; HttpOnly",
                                        "Set-Cookie: wide=3; Domain=site.test; Path=/", "Set-Cookie: safe=4; Secure",
                                        "Set-Cookie: own=5; Path=/deep/page"}});
    openPath(u"/set"_s);
    openPath(u"/deep/page"_s);
    const auto parts = [](const QString &header) { // those of one path come in any order
        QStringList all = header.split(u"; "_s);
        all.sort();
        return str(all);
    };
    QString sent; // it may ask for an icon of the page as well
    for (const TestRequest &request : server().requests()) {
        if (request.path == "/deep/page")
            sent = QString::fromUtf8(request.headers.value("cookie"));
    }
    EXPECT_EQ(parts(sent), "a=1 | deep=2 | own=5 | wide=3");
    EXPECT_EQ(parts(browser->cookiesFor(here(u"/deep/page"_s))), parts(sent));
    EXPECT_TRUE(browser->cookiesFor(here(u"/deep/page"_s)).startsWith("own=5; deep=2; "_L1));
    EXPECT_EQ(str(browser->cookiesFor(here(u"/deep/"_s))), str(browser->cookiesFor(here(u"/deep/other"_s))))
        << "of a folder are those of every file in it that has none of its own";
    EXPECT_EQ(parts(browser->cookiesFor(here(u"/"_s))), "a=1 | wide=3");
    EXPECT_EQ(str(browser->cookiesFor(elsewhere(u"/deep/page"_s))), "");
    EXPECT_EQ(str(browser->cookiesFor(u"no address"_s)), "");
}
