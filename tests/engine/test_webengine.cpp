// Loading and reading of the built-in browser.
#include "WebEngineFixture.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTemporaryDir>

using Part = BrowserEngine::Part;
using namespace Qt::StringLiterals;

// --- before the first page ---------------------------------------------------------------------------------------

TEST_F(WebEngineTest, IsBlankBeforeTheFirstPage)
{
    EXPECT_FALSE(browser->isLoading());
    EXPECT_EQ(browser->LocationURL(), u"about:blank");
    EXPECT_EQ(browser->LocationName(), u"about:blank");
    EXPECT_EQ(browser->documentPart(Part::Text), QString());
    EXPECT_EQ(browser->content().url, u"about:blank");
    EXPECT_EQ(browser->links(), QStringList());
    EXPECT_EQ(browser->frameCount(), 0);
}

// --- reading -----------------------------------------------------------------------------------------------------

TEST_F(WebEngineTest, ReadsMarkupTextTitleAndAddress)
{
    openPage("<!doctype html><html><head><title> A  title </title></head><body><p>One</p>"
             "<p style='display:none'>hidden</p><p>Two &amp; &#x1F600;</p></body></html>");
    const PageContent content = browser->content();
    EXPECT_EQ(content.html, QStringLiteral("<head><title> A  title </title></head><body><p>One</p>"
                                           "<p style=\"display:none\">hidden</p><p>Two &amp; \U0001F600</p></body>"));
    EXPECT_EQ(content.title, u"A title");
    EXPECT_EQ(content.url, server.address(QStringLiteral("/page")));
    EXPECT_EQ(browser->documentPart(Part::Html), content.html);
    EXPECT_EQ(browser->documentPart(Part::Text), QStringLiteral("One\n\nTwo & \U0001F600"));
    EXPECT_EQ(browser->LocationName(), u"A title");
    EXPECT_EQ(browser->LocationURL(), server.address(QStringLiteral("/page")));
}

TEST_F(WebEngineTest, APageWithoutATitleIsNamedByItsAddress)
{
    openPage("<p>nothing to call it by");
    EXPECT_EQ(browser->LocationName(), server.address(QStringLiteral("/page")));
    EXPECT_EQ(browser->content().title, server.address(QStringLiteral("/page")));
}

TEST_F(WebEngineTest, GivesResolvedLinksInDocumentOrderWithRepeats)
{
    openPage("<base href='/deep/'><a href='b c%zz'>1</a><map><area href='../up'></map><a name='none'>x</a>"
             "<a href='mailto:a@b.example'>m</a><a href='b c%zz'>again</a><a href='javascript:void(0)'>s</a>");
    EXPECT_EQ(browser->links(),
              (QStringList{server.address(u"/deep/b%20c%zz"_s), server.address(u"/up"_s), u"mailto:a@b.example"_s,
                           server.address(u"/deep/b%20c%zz"_s), u"javascript:void(0)"_s}));
}

TEST_F(WebEngineTest, WhatThePageRedefinesDoesNotReachTheReader)
{
    openPage(
        "<title>real</title><form name='links'></form><a href='/x'>x</a><img id=trawlexReader><img id=reader><script>"
        "Object.defineProperty(document,'title',{get(){return 'forged'}});"
        "Object.defineProperty(Element.prototype,'innerHTML',{get(){return 'forged'}});"
        "Object.prototype.texts=['forged'];JSON.stringify=()=>'forged';console.info=()=>{};</script>");
    EXPECT_EQ(browser->LocationName(), u"real");
    EXPECT_TRUE(browser->documentPart(Part::Html).contains("forged'}}"_L1)); // the script itself, not its effect
    EXPECT_EQ(browser->links(), QStringList{server.address(u"/x"_s)});
    EXPECT_EQ(signalled.constFirst(), u"page "_s + server.address(u"/page"_s));
}

TEST_F(WebEngineTest, LeavesNoTraceInThePagesOwnWorld)
{
    openPage(
        "<title>t</title><script>const before=Object.getOwnPropertyNames(window).length;setTimeout(()=>{"
        "document.title=[Symbol.for('reader') in window,Object.getOwnPropertyNames(window).length-before].join()},300)"
        "</script>");
    EXPECT_FALSE(browser->content().html.isEmpty());
    EXPECT_EQ(titleAfter(u"t"_s), u"false,0");
}

TEST_F(WebEngineTest, HalvesOfCharactersDoNotHurt)
{
    openPage("<title>t</title><p id=p></p><script>p.textContent='a\\ud800b\\udc00c'</script>");
    EXPECT_EQ(text(), QStringLiteral("a\uFFFDb\uFFFDc"));
    EXPECT_TRUE(browser->content().html.contains(QStringLiteral("a\uFFFDb\uFFFDc")));
}

TEST_F(WebEngineTest, ReadsAPageOfAHundredMegabytesWhole)
{
    constexpr qsizetype size = 100'000'000;
    openPage("<title>big</title><p>start</p><!--" + QByteArray("0123456789").repeated(size / 10) + "--><p>end</p>");
    const PageContent content = browser->content();
    EXPECT_GT(content.html.size(), size);
    EXPECT_TRUE(content.html.endsWith("--><p>end</p></body>"_L1));
    EXPECT_EQ(content.html.count(u'9'), size / 10);
    EXPECT_EQ(content.title, u"big");
    EXPECT_EQ(text(), u"start\n\nend");
}

TEST_F(WebEngineTest, ReadsPlainTextAndXml)
{
    server.route("/text", {.body = "just\ntext", .contentType = "text/plain"});
    server.route("/xml", {.body = "<a><b>one</b></a>", .contentType = "text/xml"});
    open(u"/text"_s);
    EXPECT_EQ(text(), u"just\ntext");
    open(u"/xml"_s);
    EXPECT_TRUE(text().contains("one"_L1));
}

TEST_F(WebEngineTest, ReadsFramesAndRefusesThoseOfOtherSites)
{
    server.page("/inner", "<title>i</title><p>inner</p><a href='/from-inner'>x</a>");
    openPage("<p>outer</p><iframe src='/inner'></iframe><iframe src='" +
             server.address(u"/inner"_s, u"localhost"_s).toUtf8() + "'></iframe>");
    EXPECT_EQ(browser->frameCount(), 2);
    EXPECT_EQ(browser->framePart(0, Part::Text), u"inner\n\nx");
    EXPECT_TRUE(browser->framePart(0, Part::Html).contains("<p>inner</p>"_L1));
    EXPECT_EQ(browser->frameLinks(0), QStringList{server.address(u"/from-inner"_s)});
    EXPECT_TRUE(errorOf([&] { (void)browser->framePart(1, Part::Text); }).contains("another site"_L1));
    EXPECT_TRUE(errorOf([&] { (void)browser->frameLinks(1); }).contains("another site"_L1));
    EXPECT_FALSE(errorOf([&] { (void)browser->framePart(2, Part::Text); }).isEmpty());
    EXPECT_FALSE(errorOf([&] { (void)browser->framePart(-1, Part::Text); }).isEmpty());
}

TEST_F(WebEngineTest, AReadOutlivesAChangeOfTheDocument)
{
    server.page("/again", "<title>again</title><script>setTimeout(() => location.reload(), 20)</script>");
    open(u"/again"_s);
    for (int i = 0; i < 200; ++i) {
        const PageContent content = browser->content(); // of either document, but of one, and in reasonable time
        EXPECT_EQ(content.url, server.address(u"/again"_s));
        idle(1);
    }
    EXPECT_GT(server.requestCount("/again"), 5);
}

TEST_F(WebEngineTest, CopiesTheSelectionAndLeavesTheClipboardAloneWithoutOne)
{
    QGuiApplication::clipboard()->setText(u"before"_s);
    openPage("<p id=p>chosen words</p>");
    browser->copySelection();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"before");
    openPage("<p id=p>chosen words</p><script>getSelection().selectAllChildren(p)</script>");
    browser->copySelection();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"chosen words");
}

TEST_F(WebEngineTest, SavingNeedsSomebodyToAskWhereTo)
{
    openPage("<p>x");
    EXPECT_FALSE(errorOf([&] { browser->saveAs(); }).isEmpty());
    int asked = 0;
    QObject::connect(browser.get(), &WebEngineBrowser::saveRequested, [&] { ++asked; });
    browser->saveAs();
    EXPECT_EQ(asked, 1);
}

// --- loading -----------------------------------------------------------------------------------------------------

TEST_F(WebEngineTest, NavigateReturnsAtOnceAndLoadingEndsWithThePage)
{
    server.route("/slow", {.body = "slow", .delay = 200});
    browser->Navigate(server.address(u"/slow"_s));
    EXPECT_TRUE(browser->isLoading());
    EXPECT_EQ(browser->LocationURL(), u"about:blank");
    EXPECT_TRUE(signalled.isEmpty());
    EXPECT_TRUE(waitFor([&] { return !browser->isLoading(); }));
    idle(0);
    EXPECT_EQ(signalled, (QStringList{u"page "_s + server.address(u"/slow"_s), u"ended"_s}));
}

TEST_F(WebEngineTest, TellsEachFrameAndThePageLast)
{
    server.route("/slow", {.body = "slow", .delay = 300});
    server.page("/nested", "<iframe src='/fast'></iframe>");
    server.page("/fast", "fast");
    const QString other = server.address(u"/slow"_s, u"localhost"_s);
    openPage("<iframe src='/slow'></iframe><iframe src='/nested'></iframe><iframe src='" + other.toUtf8() +
             "'></iframe>");
    ASSERT_EQ(signalled.size(), 6) << signalled.join(u' ').toStdString();
    QStringList frames = signalled.mid(0, 4);
    frames.sort();
    EXPECT_EQ(frames, (QStringList{u"frame "_s + server.address(u"/fast"_s), u"frame "_s + server.address(u"/nested"_s),
                                   u"frame "_s + server.address(u"/slow"_s), u"frame "_s + other}));
    EXPECT_LT(signalled.indexOf(u"frame "_s + server.address(u"/fast"_s)),
              signalled.indexOf(u"frame "_s + server.address(u"/nested"_s)));
    EXPECT_EQ(signalled[4], u"page "_s + server.address(u"/page"_s));
    EXPECT_EQ(signalled[5], u"ended");
}

TEST_F(WebEngineTest, APageCannotForgeALoadedFrame)
{
    openPage("<title>t</title><iframe srcdoc='<script>dispatchEvent(new Event(\"load\"));"
             "parent.dispatchEvent(new Event(\"load\"));console.info(\"{}\")</script>'></iframe>");
    idle(50);
    EXPECT_EQ(signalled, (QStringList{u"frame about:srcdoc"_s, u"page "_s + server.address(u"/page"_s), u"ended"_s}));
}

TEST_F(WebEngineTest, AMoveWithinThePageHasLoadedAtOnce)
{
    openPage("<title>t</title><p id=here>x");
    const QString there = server.address(u"/page#here"_s);
    signalled.clear();
    browser->Navigate(there);
    EXPECT_FALSE(browser->isLoading());
    EXPECT_EQ(browser->LocationURL(), there);
    EXPECT_TRUE(signalled.isEmpty());
    EXPECT_TRUE(waitFor([&] { return signalled.size() == 2; }));
    EXPECT_EQ(signalled, (QStringList{u"page "_s + there, u"ended"_s}));
    EXPECT_EQ(browser->content().url, there);
    EXPECT_EQ(server.requestCount("/page"), 1);
}

TEST_F(WebEngineTest, TheSameAddressAgainIsLoadedAgain)
{
    openPage("<p>x");
    open(u"/page"_s);
    open(u"/page#a"_s);
    idle(100); // the move itself takes the page a moment
    open(u"/page#a"_s);
    EXPECT_EQ(server.requestCount("/page"), 3);
}

TEST_F(WebEngineTest, FollowsRedirectsOfServersAndScripts)
{
    server.page("/end", "<title>end</title>");
    server.route("/moved", {.status = 302, .headers = {"Location: /end"}});
    server.page("/script", "<script>location.replace('/end')</script>");
    for (const QString &path : {u"/moved"_s, u"/script"_s}) {
        open(path);
        EXPECT_EQ(browser->LocationURL(), server.address(u"/end"_s));
        EXPECT_EQ(signalled.constLast(), u"ended");
        EXPECT_TRUE(signalled.contains(u"page "_s + server.address(u"/end"_s)));
    }
}

TEST_F(WebEngineTest, APageThatMovesOnByItselfIsLoadingAgain)
{
    server.page("/end", "<title>end</title>");
    openPage("<title>start</title><meta http-equiv=refresh content='0.3;url=/end'>");
    EXPECT_TRUE(waitFor([&] { return signalled.count(u"ended"_s) == 2; }));
    EXPECT_EQ(browser->LocationURL(), server.address(u"/end"_s));
}

TEST_F(WebEngineTest, AddressesThatThePageChangesByItselfAreTold)
{
    openPage("<title>t</title><script>setTimeout(()=>{history.pushState(0,'','/pushed?a|b');document.title='u'},50)"
             "</script>");
    EXPECT_EQ(titleAfter(u"t"_s), u"u");
    EXPECT_EQ(browser->content().url, server.address(u"/pushed?a|b"_s));
    EXPECT_EQ(browser->LocationURL(), server.address(u"/pushed?a|b"_s));
}

TEST_F(WebEngineTest, FailedLoadsShowAPageAndHaveLoaded)
{
    server.route("/missing", {.body = "<title>nf</title>not here", .status = 404});
    server.route("/empty", {.status = 500});
    open(u"/missing"_s);
    EXPECT_EQ(text(), u"not here");
    open(u"/empty"_s);
    EXPECT_FALSE(text().isEmpty());
    EXPECT_EQ(browser->LocationURL(), server.address(u"/empty"_s));
    openAddress(u"http://127.0.0.1:9/refused"_s); // a port that the browser will not even try
    EXPECT_EQ(browser->LocationURL(), u"http://127.0.0.1:9/refused");
    EXPECT_EQ(browser->content().url, u"http://127.0.0.1:9/refused");
    EXPECT_EQ(signalled, (QStringList{u"page http://127.0.0.1:9/refused"_s, u"ended"_s}));
    openAddress(u"http://name.invalid/"_s);
    EXPECT_EQ(browser->LocationURL(), u"http://name.invalid/");
}

TEST_F(WebEngineTest, AnEmptyAnswerLeavesTheOldPageStanding)
{
    server.route("/none", {.status = 204});
    openPage("<title>old</title>");
    open(u"/none"_s);
    EXPECT_EQ(signalled, QStringList{u"ended"_s});
    EXPECT_EQ(browser->LocationURL(), server.address(u"/page"_s));
    EXPECT_EQ(browser->LocationName(), u"old");
}

TEST_F(WebEngineTest, ANewNavigationTakesTheOldOnesPlace)
{
    server.route("/never", {.delay = -1});
    server.page("/next", "<title>next</title>");
    browser->Navigate(server.address(u"/never"_s));
    idle(50);
    browser->Navigate(server.address(u"/never?2"_s));
    open(u"/next"_s);
    EXPECT_EQ(browser->LocationName(), u"next");
    idle(100);
    EXPECT_EQ(signalled, (QStringList{u"page "_s + server.address(u"/next"_s), u"ended"_s}));
}

TEST_F(WebEngineTest, TheEndOfAnOlderLoadIsNotTakenForThatOfTheNewOne)
{
    server.route("/half", {.body = "<title>half</title><img src='/never'>"});
    server.route("/never", {.delay = -1});
    server.route("/slow", {.body = "<title>slow</title>", .delay = 300});
    browser->Navigate(server.address(u"/half"_s));
    EXPECT_TRUE(waitFor([&] { return browser->LocationURL().endsWith("/half"_L1); }));
    open(u"/slow"_s);
    EXPECT_EQ(browser->LocationName(), u"slow");
}

TEST_F(WebEngineTest, StopEndsTheLoad)
{
    server.route("/never", {.delay = -1});
    openPage("<title>old</title>");
    signalled.clear();
    browser->Navigate(server.address(u"/never"_s));
    idle(50);
    browser->Stop();
    EXPECT_FALSE(browser->isLoading());
    idle(100);
    EXPECT_EQ(signalled, QStringList{u"ended"_s});
    EXPECT_EQ(browser->LocationName(), u"old");
}

TEST_F(WebEngineTest, WhatIsNoAddressRaisesAnError)
{
    for (const QString &address : {u""_s, u"no address"_s, u"http://host:99999999/"_s, u"http://a b/"_s}) {
        EXPECT_FALSE(errorOf([&] { browser->Navigate(address); }).isEmpty()) << address.toStdString();
        EXPECT_FALSE(browser->isLoading());
    }
}

TEST_F(WebEngineTest, AddressesMeanTheSameToTheServer)
{
    struct Row
    {
        QString given;
        QByteArray asked;
    };
    const Row rows[] = {
        {u"/a%20b?x=%C3%A9&y=a|b"_s, "/a%20b?x=%C3%A9&y=a%7Cb"},
        {u"/\u00E9?q=\u00FC"_s, "/%C3%A9?q=%C3%BC"},
        {u"/back\\slash?q=\\"_s, "/back/slash?q=%5C"},
        {u"/plus+plus?a+b"_s, "/plus+plus?a+b"},
        {u"/a%2Fb%3f"_s, "/a%2Fb%3F"},
    };
    for (const Row &row : rows) {
        open(row.given);
        EXPECT_EQ(server.requests().constLast().path, row.asked) << row.given.toStdString();
    }
}

// --- whether the page has arrived ----------------------------------------------------------------------------------

using Arrival = BrowserEngine::Arrival;

TEST_F(WebEngineTest, APageHasArrivedWithItsOwnDocumentAndNotBefore)
{
    openPage("<title>old</title>");
    EXPECT_EQ(browser->arrival(), Arrival::Arrived);
    server.route("/never", {.delay = -1});
    server.route("/half", {.body = "<title>half</title><img src='/never'>", .delay = 300});
    browser->Navigate(server.address(u"/half"_s));
    EXPECT_EQ(browser->arrival(), Arrival::Pending);
    EXPECT_FALSE(errorOf([&] { (void)browser->LocationName(); }).isEmpty()) << "there is nothing of its own to read";
    EXPECT_TRUE(waitFor([&] { return browser->arrival() != Arrival::Pending; }));
    EXPECT_EQ(titleAfter(server.address(u"/half"_s)), u"half");
    EXPECT_EQ(browser->arrival(), Arrival::Arrived);
    EXPECT_TRUE(browser->isLoading());
    browser->Stop();
    EXPECT_EQ(browser->arrival(), Arrival::Arrived) << "what is there of it is its own";
}

TEST_F(WebEngineTest, ASilentServerIsPendingUntilItIsGivenUp)
{
    server.route("/never", {.delay = -1});
    openPage("<title>old</title>");
    browser->Navigate(server.address(u"/never"_s));
    idle(300);
    EXPECT_EQ(browser->arrival(), Arrival::Pending);
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(errorOf([&] { (void)browser->content(); }).isEmpty());
    EXPECT_LT(clock.elapsed(), 100) << "it costs no time";
    browser->Stop();
    EXPECT_EQ(browser->LocationName(), u"old");
    EXPECT_EQ(browser->arrival(), Arrival::Failed);
    idle(200);
    EXPECT_EQ(browser->arrival(), Arrival::Failed);
}

TEST_F(WebEngineTest, WhatBringsNoDocumentHasFailed)
{
    server.route("/204", {.status = 204});
    server.route("/file", {.body = "x", .contentType = "application/octet-stream"});
    server.route("/document.pdf", {.body = "%PDF-1.4\n", .contentType = "application/pdf"});
    server.route("/empty", {.status = 500});
    for (const QString &address :
         {server.address(u"/204"_s), server.address(u"/file"_s), server.address(u"/document.pdf"_s),
          server.address(u"/empty"_s), u"http://nobody.invalid/"_s, u"http://127.0.0.1:9/"_s, u"mailto:a@b.test"_s}) {
        openPage("<title>stays</title>");
        EXPECT_EQ(browser->arrival(), Arrival::Arrived);
        openAddress(address);
        EXPECT_EQ(browser->arrival(), Arrival::Failed) << address.toStdString();
    }
    open(u"/nowhere"_s);
    EXPECT_EQ(browser->arrival(), Arrival::Arrived) << "a server's own page about an error is a page";
}

TEST_F(WebEngineTest, AMoveWithinThePageHasArrived)
{
    openPage("<p id=x>x");
    open(u"/page#x"_s);
    EXPECT_EQ(browser->arrival(), Arrival::Arrived);
}

TEST_F(WebEngineTest, APageThatGoesOnToNowhereHasFailed)
{
    openPage("<title>first</title><script>setTimeout(() => location = 'http://nobody.invalid/', 200)</script>");
    EXPECT_EQ(browser->arrival(), Arrival::Arrived);
    EXPECT_TRUE(waitFor([&] { return browser->arrival() == Arrival::Failed; }));
}

// --- what transfers ask --------------------------------------------------------------------------------------------

TEST_F(WebEngineTest, TheUserAgentIsTheOneThatServersSee)
{
    openPage("x");
    EXPECT_EQ(browser->userAgent().toUtf8(), server.requests().constLast().headers.value("user-agent"));
}

TEST_F(WebEngineTest, CookiesAreGivenAsTheBrowserWouldSendThem)
{
    server.route("/set", {.body = "x",
                          .headers = {"Set-Cookie: a=1; Path=/", "Set-Cookie: deep=2; Path=/deep; HttpOnly",
                                      "Set-Cookie: gone=3; Path=/", "Set-Cookie: own=5; Path=/deep/page"}});
    server.route("/unset", {.body = "x", .headers = {"Set-Cookie: gone=; Max-Age=0; Path=/"}});
    open(u"/set"_s);
    open(u"/unset"_s);
    open(u"/deep/page"_s);
    const QByteArray sent = server.requests().constLast().headers.value("cookie");
    EXPECT_EQ(sent, "own=5; deep=2; a=1");
    EXPECT_TRUE(waitFor([&] { return browser->cookiesFor(server.address(u"/deep/page"_s)).toUtf8() == sent; }))
        << browser->cookiesFor(server.address(u"/deep/page"_s)).toStdString();
    EXPECT_EQ(browser->cookiesFor(server.address(u"/deep/"_s)), u"deep=2; a=1");
    EXPECT_EQ(browser->cookiesFor(server.address(u"/deep/other"_s)), u"deep=2; a=1");
    EXPECT_EQ(browser->cookiesFor(server.address(u"/"_s)), u"a=1");
    EXPECT_EQ(browser->cookiesFor(server.address(u"/"_s, u"other.test"_s)), QString());
    EXPECT_EQ(browser->cookiesFor(u"no address"_s), QString());
}

// --- what stays, and what goes on --------------------------------------------------------------------------------

TEST_F(WebEngineTest, KeepsCookiesInTheFolderThatItIsGiven)
{
    QTemporaryDir folder;
    server.route("/set", {.body = "x", .headers = {"Set-Cookie: trawl=1; Max-Age=1000"}});
    startBrowser({.storageFolder = folder.filePath(u"profile"_s)});
    open(u"/set"_s);
    browser.reset();
    idle(200);
    startBrowser({.storageFolder = folder.filePath(u"profile"_s)});
    openPage("x");
    EXPECT_EQ(server.requests().constLast().headers.value("cookie"), "trawl=1");
    const auto others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    EXPECT_FALSE(QFile::permissions(folder.filePath(u"profile"_s)) & others) << "cookies are nobody else's business";
}

TEST_F(WebEngineTest, ScriptsOfAPageWithoutAWindowRunAtFullPace)
{
    openPage("<title>t</title><script>let n=0;const go=()=>{if(++n<60)setTimeout(go,5);else document.title="
             "document.visibilityState};go()</script>");
    const QDeadlineTimer deadline(3000);
    EXPECT_EQ(titleAfter(u"t"_s), u"visible");
    EXPECT_FALSE(deadline.hasExpired());
}
