// Nothing on a page stops the free-standing browser: each of these ends in a page that can be read.
#include "ChromiumFixture.h"
#include "RestlessPages.h"
#include "support/Places.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QSslKey>
#include <QSslServer>
#include <QStandardPaths>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QByteArray endless = "<script>while (true);</script>";

} // namespace

class ChromiumRefusals : public ChromiumTest
{
  protected:
    /// The next page loads and is read as ever.
    void expectAllIsWell()
    {
        QElapsedTimer clock;
        clock.start();
        show("<title>well</title><p>and good");
        EXPECT_EQ(str(browser->LocationName()), "well");
        EXPECT_EQ(str(text()), "and good");
        EXPECT_LT(clock.elapsed(), 20000);
    }
};

TEST_F(ChromiumRefusals, BoxesAreAnswered)
{
    show("<script>alert('a'); document.title = [confirm('b'), prompt('c', 'd')].join()</script>");
    EXPECT_EQ(str(browser->LocationName()), "false,");
}

TEST_F(ChromiumRefusals, BoxesOfFramesOfAnotherSiteAreAnswered)
{
    server().page("/boxes", "<script>alert(1); confirm(2);</script>");
    show("<title>top</title><iframe src='" + elsewhere(u"/boxes"_s).toUtf8() + "'></iframe>");
    EXPECT_EQ(str(browser->LocationName()), "top");
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, ABoxThatComesInTheMiddleOfAReadIsAnswered)
{
    show("<title>a</title><script>setTimeout(() => { alert(1); document.title = 'b'; }, 50)</script>");
    QElapsedTimer clock;
    clock.start();
    while (browser->LocationName() != u"b"_s && clock.elapsed() < 5000) // nothing but reads
        ;
    EXPECT_EQ(str(browser->LocationName()), "b");
}

TEST_F(ChromiumRefusals, LeavingIsNotPrevented)
{
    show("<script>addEventListener('beforeunload', (event) => { event.preventDefault(); event.returnValue = 'x'; })"
         "</script>");
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, BoxesWithoutEndAreBrokenOff)
{
    server().page("/boxes", "<title>boxes</title><p>before<script>while (true) alert(1);</script><p>after");
    browser->Navigate(here(u"/boxes"_s));
    idle(1500);
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(text().startsWith("before"_L1));
    EXPECT_LT(clock.elapsed(), 20000);
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, BoxesOfFramesThatNeverEndDoNotHarmTheBrowser)
{
    for (const QByteArray script : {"setInterval(() => alert(1), 1)", "while (true) alert(1)",
                                    "onpagehide = onunload = () => { while (true) alert(1); }"}) {
        server().page("/boxes", "<script>" + script + "</script>");
        for (const QString &address : {elsewhere(u"/boxes"_s), here(u"/boxes"_s)}) {
            const QByteArray frame = "<iframe src='" + address.toUtf8() + "'></iframe>";
            server().page("/top", "<title>top</title><p>text" + frame + frame);
            browser->Navigate(here(u"/top"_s));
            ASSERT_TRUE(waitFor([&] { return browser->arrival() == Arrival::Arrived; })) << script.constData();
            idle(500);
            EXPECT_EQ(str(browser->content().title), "top") << script.constData() << str(address);
            SCOPED_TRACE(script.toStdString() + str(address));
            expectAllIsWell();
            open(elsewhere(u"/missing"_s));
            EXPECT_EQ(str(browser->LocationName()), "missing");
        }
    }
    EXPECT_FALSE(told.contains(u"died"_s));
}

TEST_F(ChromiumRefusals, AFloodOfMovesDoesNotHoldUpTheNextPages)
{
    for (const QByteArray script :
         {"let n = 0; setInterval(() => { for (let i = 0; i < 1000; ++i) location.hash = ++n; }, 1)",
          "let n = 0; for (;;) history.pushState(0, '', '/pushed' + ++n)",
          "let n = 0; setInterval(() => { for (let i = 0; i < 1000; ++i) history.pushState(0, '', '/p' + ++n); }, 1)",
          "setInterval(() => { for (let i = 0; i < 1000; ++i) location = 'http://other.test/' + i; }, 1)"}) {
        server().page("/flood", "<title>flood</title><script>" + script + "</script>");
        browser->Navigate(here(u"/flood"_s));
        idle(1500);
        QElapsedTimer clock;
        clock.start();
        for (int page = 0; page < 3; ++page)
            expectAllIsWell();
        EXPECT_LT(clock.elapsed(), 10000) << script.constData();
    }
}

TEST_F(ChromiumRefusals, ACrashIsNotWrittenDown)
{
    const QDateTime before = QDateTime::currentDateTime();
    browser->Navigate(u"chrome://crash"_s);
    ASSERT_TRUE(waitFor([&] { return errorOf([&] { (void)browser->LocationName(); }) == EngineError::BrowserGone; }));
    idle(500);
    expectAllIsWell();
    const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/chromium"_s;
    for (const QString &folder : {dataFolder(), own}) {
        QDirIterator dumps(folder, {u"*.dmp"_s}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (dumps.hasNext())
            EXPECT_LT(QFileInfo(dumps.next()).lastModified(), before) << dumps.filePath().toStdString();
    }
    EXPECT_TRUE(processes("chrome_crashpad_handler").isEmpty());
}

TEST_F(ChromiumRefusals, PrintingDoesNothing)
{
    show("<title>a</title><script>print(); document.title = 'printed'</script>");
    EXPECT_TRUE(waitForTitle(u"printed"_s));
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, APasswordIsNotAskedForAndTheServersRefusalIsRead)
{
    server().route("/secret", {.body = "<title>refused</title><p>members only",
                               .status = 401,
                               .headers = {"WWW-Authenticate: Basic realm=\"members\""}});
    openPath(u"/secret"_s);
    EXPECT_EQ(str(browser->LocationName()), "refused");
    EXPECT_EQ(str(text()), "members only");
    EXPECT_EQ(str(browser->LocationURL()), str(here(u"/secret"_s)));
    EXPECT_EQ(str(told), str(QStringList{u"page "_s + here(u"/secret"_s), u"ended"_s}));
    expectAllIsWell();
    openPath(u"/secret"_s);
    EXPECT_EQ(str(browser->LocationName()), "refused");
}

TEST_F(ChromiumRefusals, APasswordForPartsOfAPageIsNotAskedFor)
{
    server().route("/secret", {.status = 401, .headers = {"WWW-Authenticate: Basic realm=\"members\""}});
    show("<title>page</title><img src=/secret><iframe src=/secret></iframe><script src=/secret></script>");
    EXPECT_EQ(str(browser->LocationName()), "page");
}

TEST_F(ChromiumRefusals, PermissionsAreDenied)
{
    server().page("/ask", R"(<title>a</title><script>
        const seen = [];
        const show = (text) => { seen.push(text); if (seen.length == 2) document.title = seen.sort().join(); };
        navigator.geolocation.getCurrentPosition(() => show('place'), () => show('no place'));
        Notification.requestPermission().then((answer) => show('notes ' + answer));
        </script>)");
    open(server().address(u"/ask"_s, u"localhost"_s)); // only such a site may ask at all
    EXPECT_TRUE(waitForTitle(u"no place,notes denied"_s)) << str(browser->LocationName());
}

TEST_F(ChromiumRefusals, AWrongCertificateEndsInAnErrorPage)
{
    QFile file(inSourceTree(QStringLiteral("tests/engine/webengine_certificate.pem")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray pem = file.readAll();
    QSslConfiguration configuration;
    configuration.setPrivateKey(QSslKey(pem, QSsl::Ec));
    configuration.setLocalCertificate(QSslCertificate(pem));
    QSslServer secure;
    secure.setSslConfiguration(configuration);
    ASSERT_TRUE(secure.listen(QHostAddress::LocalHost));
    const QString address = u"https://secure.test:%1/"_s.arg(secure.serverPort());
    open(address);
    EXPECT_EQ(str(browser->LocationURL()), str(address));
    EXPECT_FALSE(browser->content().html.isEmpty());
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, ADownloadThatAScriptStartsIsRefused)
{
    server().route("/file", {.body = QByteArray(100000, 'x'),
                             .contentType = "application/octet-stream",
                             .headers = {"Content-Disposition: attachment; filename=trawlex-refused.bin"}});
    show("<title>page</title><a id=a href=/file download>x</a><script>a.click()</script>");
    idle(500);
    EXPECT_EQ(str(browser->LocationName()), "page");
    EXPECT_FALSE(QFile::exists(QDir::homePath() + u"/Downloads/trawlex-refused.bin"_s));
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, APageStartsNoOtherPrograms)
{
    const QString log = dataFolder() + u"/started"_s;
    server().page("/mailing", "<script>location = 'mailto:frame@example.test'</script>");
    for (const QByteArray html :
         {"<script>location = 'mailto:script@example.test'</script>",
          "<a id=a href='mailto:link@example.test'></a><script>a.click()</script>",
          "<meta http-equiv=refresh content='0;url=mailto:refresh@example.test'>",
          "<script>location = 'trawlex-unknown:thing'</script>", "<iframe src=/mailing></iframe>"}) {
        show("<title>page</title>" + html);
        idle(200);
        EXPECT_EQ(str(browser->LocationName()), "page");
    }
    EXPECT_FALSE(QFile::exists(log));
    open(u"mailto:someone@example.test"_s);
    EXPECT_TRUE(waitFor([&] { return QFile::exists(log); })) << "it is ours that starts one";
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, AFileChooserIsClosedAgain)
{
    show("<title>page</title><input type=file id=f oncancel=\"document.title = 'cancelled'\" style='width:300px;"
         "height:200px'><script>onclick = () => f.showPicker()</script>");
    const auto door = backDoor();
    const QString session =
        door->call({}, "Target.attachToTarget"_L1, {{u"targetId"_s, windows().keys().value(0)}, {u"flatten"_s, true}},
                   std::chrono::seconds(5))[u"sessionId"]
            .toString();
    for (const QString &type : {u"mousePressed"_s, u"mouseReleased"_s})
        door->call(session, "Input.dispatchMouseEvent"_L1,
                   {{u"type"_s, type}, {u"x"_s, 400}, {u"y"_s, 400}, {u"button"_s, u"left"_s}, {u"clickCount"_s, 1}},
                   std::chrono::seconds(5));
    EXPECT_TRUE(waitForTitle(u"cancelled"_s));
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, AScriptThatNeverEndsIsBrokenOffByARead)
{
    server().page("/endless", "<title>endless</title><p>before" + endless + "<p>after");
    browser->Navigate(here(u"/endless"_s));
    idle(500);
    EXPECT_TRUE(browser->isLoading());
    QElapsedTimer clock;
    clock.start();
    const PageContent content = browser->content();
    EXPECT_LT(clock.elapsed(), 10000);
    EXPECT_EQ(str(content.title), "endless");
    EXPECT_TRUE(content.html.contains("<p>before"_L1));
    ASSERT_TRUE(waitFor([&] { return told.contains(u"ended"_s); })) << "what was left of the page is loaded";
    EXPECT_EQ(str(text()), "before\n\nafter");
}

TEST_F(ChromiumRefusals, APageThatHangsInSomethingElseThanAScriptIsReadWithoutScripts)
{
    server().route("/never", {.delay = -1});
    server().page("/next", "<title>next</title><script>document.title += ' with scripts'</script>");
    const QByteArray runs = "const q = new XMLHttpRequest(); q.open('GET', '/runs', false); q.send();";
    int pages = 0;
    for (const QByteArray script :
         {"const r = new XMLHttpRequest(); r.open('GET', '/never', false); r.send();",
          "const c = document.body.appendChild(document.createElement('canvas')).getContext('2d'); const d = () => { "
          "for "
          "(let i = 0; i < 1e5; ++i) c.arc(i % 300, i % 150, 9, 0, 7); c.fill(); requestAnimationFrame(d); }; d()"}) {
        server().page("/hang", "<title>hang</title><p>text</p><a href=/x>x</a><script>" + runs + script + "</script>");
        browser->setScriptLimit(std::chrono::milliseconds(500));
        browser->Navigate(here(u"/hang"_s));
        ASSERT_TRUE(waitFor([&] { return browser->arrival() == Arrival::Arrived; }));
        idle(500);
        QElapsedTimer clock;
        clock.start();
        const PageContent content = browser->content();
        EXPECT_LT(clock.elapsed(), BrowserEngine::readLimit / 1ms / 2) << script.constData();
        EXPECT_EQ(server().requestCount("/runs"), ++pages) << script.constData();
        EXPECT_EQ(str(content.title), "hang") << script.constData();
        EXPECT_TRUE(content.html.contains("<p>text</p>"_L1));
        EXPECT_EQ(str(content.url), str(here(u"/hang"_s)));
        EXPECT_EQ(str(browser->links()), str(QStringList{here(u"/x"_s)}));
        EXPECT_EQ(browser->arrival(), Arrival::Arrived);
        openPath(u"/next"_s);
        EXPECT_EQ(str(browser->LocationName()), "next with scripts") << script.constData();
        expectAllIsWell();
    }
}

TEST_F(ChromiumRefusals, APageThatLeavesByItselfBehindOneWithoutScriptsHasThemAgain)
{
    server().route("/never", {.delay = -1});
    server().route("/next", {.body = "<title>next</title><script>document.title += ' with scripts'</script>",
                             .delay = 300}); // as a server in the net takes
    server().page("/hang", "<meta http-equiv=refresh content='4;url=/next'><title>hang</title><script>const r = new "
                           "XMLHttpRequest(); r.open('GET', '/never', false); r.send();</script>");
    browser->setScriptLimit(std::chrono::milliseconds(500));
    browser->Navigate(here(u"/hang"_s));
    ASSERT_TRUE(waitFor([&] { return browser->arrival() == Arrival::Arrived; }));
    EXPECT_EQ(str(browser->content().title), "hang");
    EXPECT_TRUE(waitFor([&] { return browser->LocationName() == "next with scripts"_L1; }))
        << str(browser->LocationName());
}

TEST_F(ChromiumRefusals, ThePageBehindOneThatLostItsProcessInAReadArrives)
{
    server().route("/never", {.delay = -1});
    browser->setScriptLimit(std::chrono::milliseconds(200));
    for (int round = 0; round < 5; ++round) {
        server().page("/hang", "<p>hang<script>const r = new XMLHttpRequest(); r.open('GET', '/never', false); r.send()"
                               "</script>");
        browser->Navigate(here(u"/hang"_s));
        ASSERT_TRUE(waitFor([&] { return browser->arrival() == Arrival::Arrived; }));
        (void)browser->content();
        expectAllIsWell();
    }
}

TEST_F(ChromiumRefusals, AScriptThatNeverEndsIsLeftByANavigation)
{
    server().page("/endless", "<title>endless</title><p>before" + endless);
    browser->Navigate(here(u"/endless"_s));
    idle(500);
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, AScriptThatNeverEndsWhenItIsLeftIsBrokenOff)
{
    show("<script>onbeforeunload = onpagehide = onunload = () => { while (true); }</script>");
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, APageThatDoesNotLetGoIsLeftAllTheSame)
{
    for (const QByteArray script : {"onpagehide = () => { while (true) alert(1); }",
                                    "onpagehide = () => { for (;;) try { for (;;); } finally { continue; } }"}) {
        show("<script>" + script + "</script>");
        QElapsedTimer clock;
        clock.start();
        expectAllIsWell();
        EXPECT_LT(clock.elapsed(), 4500) << script.constData();
    }
}

TEST_F(ChromiumRefusals, AScriptThatCannotBeBrokenOffLosesItsProcess)
{
    show(R"(<script>onbeforeunload = () => { for (;;) try { while (true); } finally { continue; } }</script>)");
    expectAllIsWell();
}

TEST_F(ChromiumRefusals, APageThatReloadsItselfForEverCanBeReadAndLeft)
{
    for (const QByteArray script :
         {"location.reload()", "onload = () => location.reload()", "setTimeout(() => location.reload(), 20)"}) {
        server().page("/again", "<title>again</title><p>text<script>" + script + "</script>");
        browser->Navigate(here(u"/again"_s));
        idle(500);
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(str(browser->content().title), "again");
        EXPECT_LT(clock.elapsed(), 5000);
        expectAllIsWell();
    }
}

TEST_F(ChromiumRefusals, APageThatGoesOnByItselfDoesNotTakeTheNextOnesPlace)
{
    expectToLeaveRestlessPages(*browser, server(), {u"site.test"_s, u"other.test"_s});
}

TEST_F(ChromiumRefusals, AReadThatTakesLongIsNotBrokenOffForGood)
{
    show("<title>slow</title><script>setTimeout(() => { const end = Date.now() + 6000; while (Date.now() < end); "
         "document.title = 'through'; }, 100)</script>");
    idle(300);
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(str(browser->LocationName()), "slow");
    EXPECT_LT(clock.elapsed(), 10000);
}
