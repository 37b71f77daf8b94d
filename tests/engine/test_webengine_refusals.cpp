// Nothing on a page stops the built-in browser: each of these ends in a page that can be read, or in an error.
#include "RestlessPages.h"
#include "WebEngineFixture.h"
#include "engine/Platform.h"
#include "engine/webengine/WebEngineStage.h"
#include "support/Places.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QNetworkProxy>
#include <QPointer>
#include <QSslKey>
#include <QSslServer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Catches what the desktop would be asked to open.
class Launches : public QObject
{
    Q_OBJECT

  public:
    Launches()
    {
        for (const QString &scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "launch");
    }
    ~Launches() override
    {
        for (const QString &scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }
    Q_DISABLE_COPY_MOVE(Launches)
    int count = 0;

  public Q_SLOTS:
    void launch(const QUrl &) { ++count; }

  private:
    const QStringList schemes{u"mailto"_s, u"custom"_s, u"ftp"_s};
};

} // namespace

class WebEngineRefusals : public WebEngineTest
{
  protected:
    /// Shows the page in a view and clicks into its middle, as a user does, until its title is no longer "t": to allow
    /// what needs a user's doing. Gives the new title.
    QString titleAfterClick()
    {
        view = std::make_unique<QWebEngineView>();
        view->resize(400, 300);
        view->setPage(browser->page());
        view->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(view.get()));
        QString title = u"t"_s;
        for (int i = 0; i < 50 && title == u"t"; ++i) { // a page that is not drawn yet hears no click
            QTest::mouseClick(view->focusProxy(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 150));
            idle(200);
            title = browser->LocationName();
        }
        return title;
    }
    void TearDown() override
    {
        view.reset();
        WebEngineTest::TearDown();
    }
    std::unique_ptr<QWebEngineView> view;
};

// --- boxes -------------------------------------------------------------------------------------------------------

TEST_F(WebEngineRefusals, BoxesAreAnsweredWithNo)
{
    openPage("<title>t</title>text<script>alert('a');const c=confirm('b');const p=prompt('c','proposal');"
             "document.title=[c,p].join('/')</script>");
    EXPECT_EQ(browser->LocationName(), u"false/");
    EXPECT_EQ(text(), u"text");
}

TEST_F(WebEngineRefusals, APageIsLeftWhateverItSays)
{
    server.page("/next", "<title>next</title>");
    openPage("<title>t</title><body style='height:300px' onclick='document.title=\"clicked\"'>"
             "<script>onbeforeunload=e=>{e.preventDefault();return 'stay'}</script>");
    ASSERT_EQ(titleAfterClick(), u"clicked");
    open(u"/next"_s);
    EXPECT_EQ(browser->LocationName(), u"next");
}

TEST_F(WebEngineRefusals, PrintingIsIgnored)
{
    openPage("<title>t</title><script>print();document.title='after'</script>");
    EXPECT_EQ(browser->LocationName(), u"after");
}

TEST_F(WebEngineRefusals, ClosingItselfIsIgnored)
{
    openPage("<title>t</title><script>window.close();document.title='after'</script>");
    idle(50);
    EXPECT_EQ(browser->LocationName(), u"after");
    EXPECT_FALSE(signalled.contains(u"closing"_s));
}

TEST_F(WebEngineRefusals, NoFileIsChosen)
{
    openPage("<title>t</title><body style='height:300px'><input type=file id=f><script>"
             "document.onclick=()=>{f.click();document.title='asked'}</script>");
    EXPECT_EQ(titleAfterClick(), u"asked");
    idle(200);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(browser->LocationName(), u"asked");
}

TEST_F(WebEngineRefusals, FullScreenIsRefused)
{
    openPage("<title>t</title><body style='height:300px'><script>document.onclick=()=>{document.documentElement."
             "requestFullscreen();setTimeout(()=>document.title='full: '+!!document.fullscreenElement,150)}</script>");
    EXPECT_EQ(titleAfterClick(), u"full: false");
    EXPECT_FALSE(view->isFullScreen());
}

// --- windows -----------------------------------------------------------------------------------------------------

TEST_F(WebEngineRefusals, WindowsNeverOpenAndEachAttemptIsTold)
{
    server.page("/popup", "x");
    const auto before = QApplication::topLevelWidgets().size();
    QObject::connect(browser.get(), &BrowserEngine::NewWindow2, [](bool *cancel) { *cancel = false; });
    openPage("<title>t</title><a id=a target=_blank href='/popup'>x</a>"
             "<script>open('/popup');a.click();document.title='after'</script>");
    EXPECT_EQ(browser->LocationName(), u"after");
    EXPECT_EQ(signalled.count(u"window"_s), 2);
    EXPECT_EQ(signalled.constFirst(), u"window"); // told at once
    idle(100);
    EXPECT_EQ(server.requestCount("/popup"), 0);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), before);
}

TEST_F(WebEngineRefusals, AReadInsideAHandlerOfANewWindowIsAnErrorAndNoHang)
{
    QString error;
    QObject::connect(browser.get(), &BrowserEngine::NewWindow2,
                     [&] { error = errorOf([&] { (void)browser->content(); }); });
    QElapsedTimer clock;
    clock.start();
    openPage("<script>open('/popup')</script>");
    EXPECT_FALSE(error.isEmpty());
    EXPECT_LT(clock.elapsed(), 5000);
}

// --- passwords, permissions, certificates ------------------------------------------------------------------------

TEST_F(WebEngineRefusals, WithoutAPasswordTheRefusalItselfIsRead)
{
    server.route(
        "/closed",
        {.body = "<title>401</title>members only", .status = 401, .headers = {"WWW-Authenticate: Basic realm=\"x\""}});
    open(u"/closed"_s);
    EXPECT_EQ(text(), u"members only");
    EXPECT_EQ(server.requestCount("/closed"), 1);
}

TEST_F(WebEngineRefusals, WithoutAProxysPasswordTheLoadFails)
{
    server.route("http://proxied.test/",
                 {.body = "proxy says no", .status = 407, .headers = {"Proxy-Authenticate: Basic realm=\"x\""}});
    QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, u"127.0.0.1"_s, server.port()});
    startBrowser();
    openAddress(u"http://proxied.test/"_s);
    EXPECT_EQ(server.requestCount("http://proxied.test/"), 1);
    EXPECT_FALSE(text().isEmpty());
    browser.reset();
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
}

TEST_F(WebEngineRefusals, PermissionsAreDenied)
{
    openPage(R"(<title>t</title><script>
        const told = [];
        const tell = (name) => (value) => {
            told.push(name + ':' + (value && value.name ? value.name : value));
            if (told.length === 3) document.title = told.sort().join(' ');
        };
        Notification.requestPermission().then(tell('notify'));
        navigator.geolocation.getCurrentPosition(tell('place'), (e) => tell('place')(e.code));
        navigator.mediaDevices.getUserMedia({ audio: true }).then(() => tell('ear')('heard'), () => {});
        navigator.requestMIDIAccess({ sysex: true }).then(tell('midi'), tell('midi'));
        navigator.registerProtocolHandler('web+trawl', '/?%s');
        if (navigator.webkitPersistentStorage) navigator.webkitPersistentStorage.requestQuota(1e9, () => {}, () => {});
    </script>)");
    EXPECT_EQ(titleAfter(u"t"_s), u"midi:SecurityError notify:denied place:1");
}

TEST_F(WebEngineRefusals, AWrongCertificateEndsInAnErrorPage)
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
    const QString address = QStringLiteral("https://127.0.0.1:%1/").arg(secure.serverPort());
    openAddress(address);
    EXPECT_EQ(signalled, (QStringList{u"page "_s + address, u"ended"_s}));
    EXPECT_EQ(browser->LocationURL(), address);
    EXPECT_TRUE(text().contains("ERR_CERT"_L1)) << text().toStdString();
}

// --- downloads and other programs --------------------------------------------------------------------------------

TEST_F(WebEngineRefusals, DownloadsComeToNothing)
{
    QTemporaryDir folder;
    browser->page()->profile()->setDownloadPath(folder.path());
    server.route("/file", {.body = QByteArray(100, 'x'),
                           .contentType = "application/octet-stream",
                           .headers = {"Content-Disposition: attachment; filename=file.bin"}});
    server.route("/paper", {.body = "%PDF-1.4", .contentType = "application/pdf"});
    openPage("<title>page</title><a id=a download='x.txt' href='/file'>x</a><script>a.click()</script>");
    for (const QString &path : {u"/file"_s, u"/paper"_s}) {
        open(path);
        EXPECT_EQ(signalled, QStringList{u"ended"_s});
        EXPECT_EQ(browser->LocationName(), u"page");
        EXPECT_EQ(browser->LocationURL(), server.address(u"/page"_s));
    }
    idle(100);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(WebEngineRefusals, APageThatTheUserSavesIsSaved)
{
    QTemporaryDir folder;
    openPage("<title>t</title>kept text");
    const QString file = folder.filePath(u"page.html"_s);
    browser->page()->save(file, QWebEngineDownloadRequest::SingleHtmlSaveFormat);
    EXPECT_TRUE(waitFor([&] { return QFileInfo(file).size() > 0; }));
}

TEST_F(WebEngineRefusals, AddressesOfOtherProgramsAreNotLaunched)
{
    Launches launches;
    openPage("<title>page</title><script>setTimeout(()=>{location.href='custom:thing'},150)</script>");
    idle(400); // the page tries it by itself
    for (const QString &address : {u"mailto:a@b.example"_s, u"custom:thing"_s, u"ftp://127.0.0.1/x"_s}) {
        openAddress(address);
        EXPECT_EQ(browser->LocationName(), u"page");
    }
    idle(50);
    EXPECT_EQ(launches.count, 0);
}

// --- pages that do not end ---------------------------------------------------------------------------------------

TEST_F(WebEngineRefusals, APageThatNeverFinishesLoadingCanBeRead)
{
    server.route("/never", {.delay = -1});
    server.page("/page", "<title>half</title>text<img src='/never'>");
    browser->Navigate(server.address(u"/page"_s));
    EXPECT_TRUE(waitFor([&] { return browser->arrival() == BrowserEngine::Arrival::Arrived; }));
    EXPECT_EQ(titleAfter(server.address(u"/page"_s)), u"half");
    EXPECT_EQ(browser->content().title, u"half");
    EXPECT_EQ(text(), u"text");
    EXPECT_TRUE(browser->isLoading());
}

TEST_F(WebEngineRefusals, RedirectsInACircleEndInAnErrorPage)
{
    server.route("/circle", {.status = 302, .headers = {"Location: /circle"}});
    open(u"/circle"_s);
    EXPECT_TRUE(text().contains("ERR_TOO_MANY_REDIRECTS"_L1));
}

TEST_F(WebEngineRefusals, APageThatReloadsItselfForEverCanBeReadAndLeft)
{
    server.page("/next", "<title>next</title>");
    server.page("/page", "<title>again</title><p>text</p><script>location.reload()</script>");
    browser->Navigate(server.address(u"/page"_s));
    EXPECT_TRUE(waitFor([&] { return server.requestCount("/page") > 3; }));
    EXPECT_EQ(browser->content().url, server.address(u"/page"_s));
    browser->Navigate(server.address(u"/next"_s));
    EXPECT_TRUE(waitFor([&] { return !browser->isLoading(); }));
    EXPECT_EQ(browser->arrival(), BrowserEngine::Arrival::Arrived);
    EXPECT_EQ(browser->LocationURL(), server.address(u"/next"_s)) << "the old page's is not taken for the new one";
    EXPECT_EQ(browser->LocationName(), u"next");
}

TEST_F(WebEngineRefusals, APageThatGoesOnByItselfDoesNotTakeTheNextOnesPlace)
{
    expectToLeaveRestlessPages(*browser, server, {u"127.0.0.1"_s, u"localhost"_s});
}

TEST_F(WebEngineRefusals, AScriptThatNeverEndsEndsTheReadAndTheNextPageWorks)
{
    server.page("/frame", "inner");
    server.page("/next", "<title>next</title><iframe src='/frame'></iframe>");
    startBrowser({.readLimit = 1s});
    openPage("<title>t</title><script>setTimeout(()=>{for(;;);},20)</script>");
    idle(60);
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(errorOf([&] { (void)browser->content(); }).isEmpty());
    EXPECT_GE(clock.elapsed(), 995);
    EXPECT_LT(clock.elapsed(), 3000);
    clock.restart();
    EXPECT_FALSE(errorOf([&] { (void)text(); }).isEmpty());
    EXPECT_LT(clock.elapsed(), 100);
    EXPECT_EQ(browser->LocationURL(), server.address(u"/page"_s));
    open(u"/next"_s);
    EXPECT_EQ(browser->LocationName(), u"next");
    EXPECT_EQ(signalled, (QStringList{u"frame "_s + server.address(u"/frame"_s),
                                      u"page "_s + server.address(u"/next"_s), u"ended"_s}));
}

TEST_F(WebEngineRefusals, AScriptThatNeverEndsDoesNotHoldUpTheNextPage)
{
    server.page("/next", "<title>next</title>");
    server.page("/while-loading", "<title>l</title><script>for(;;);</script>");
    server.page("/after-loading", "<title>a</title><script>setTimeout(()=>{for(;;);},0)</script>");
    for (const QString &path : {u"/while-loading"_s, u"/after-loading"_s}) {
        startBrowser({.leaveLimit = 500ms});
        browser->Navigate(server.address(path));
        EXPECT_TRUE(waitFor([&] { return browser->LocationURL().endsWith(path); }));
        idle(100);
        open(u"/next"_s);
        EXPECT_EQ(browser->LocationName(), u"next");
        EXPECT_EQ(signalled.count(u"ended"_s), 1);
    }
}

TEST_F(WebEngineRefusals, AScriptThatNeverEndsIsDoneWithout)
{
    server.page("/next", "<title>next</title><script>document.title += ' with scripts'</script>");
    for (const QByteArray script :
         {"setTimeout(() => { for (;;); }, 20)", "for (;;);", "for (;;) alert(1)", "setInterval(() => alert(1), 0)",
          "const again = () => { for (let i = 0; i < 1e6; ++i) Promise.resolve(); queueMicrotask(again); }; again()"}) {
        server.page("/hang", "<title>hang</title><p>text</p><a href=/x>x</a><script>" + script + "</script>");
        browser->setScriptLimit(700ms);
        browser->Navigate(server.address(u"/hang"_s));
        EXPECT_TRUE(waitFor([&] { return browser->arrival() == BrowserEngine::Arrival::Arrived; }));
        idle(200);
        QElapsedTimer clock;
        clock.start();
        const PageContent content = browser->content();
        EXPECT_EQ(content.title, u"hang") << script.constData();
        EXPECT_TRUE(content.html.contains("<p>text</p>"_L1)) << script.constData();
        EXPECT_EQ(content.url, server.address(u"/hang"_s));
        EXPECT_EQ(browser->links(), QStringList{server.address(u"/x"_s)});
        EXPECT_LT(clock.elapsed(), 8000) << script.constData();
        EXPECT_EQ(browser->arrival(), BrowserEngine::Arrival::Arrived);
        open(u"/next"_s);
        EXPECT_EQ(browser->LocationName(), u"next with scripts") << script.constData();
        EXPECT_TRUE(browser->page()->isVisible());
    }
}

TEST_F(WebEngineRefusals, APageThatIsNeverCompleteIsReadAsFarAsItHasComeWithoutScripts)
{
    server.route("/never", {.delay = -1});
    server.page("/next", "<title>next</title>");
    server.page("/hang",
                "<title>hang</title><p>text</p><iframe src='/never'></iframe><script>for (;;);</script><p>end</p>");
    browser->setScriptLimit(700ms);
    browser->Navigate(server.address(u"/hang"_s));
    EXPECT_TRUE(waitFor([&] { return browser->arrival() == BrowserEngine::Arrival::Arrived; }));
    QElapsedTimer clock;
    clock.start();
    const PageContent content = browser->content();
    EXPECT_EQ(content.title, u"hang");
    EXPECT_TRUE(content.html.contains("<p>end</p>"_L1));
    EXPECT_LT(clock.elapsed(), 8000);
    EXPECT_EQ(browser->arrival(), BrowserEngine::Arrival::Arrived);
    open(u"/next"_s);
    EXPECT_EQ(browser->LocationName(), u"next");
}

TEST_F(WebEngineRefusals, ElementsInsideOneAnotherByTheThousandAreRead)
{
    server.page("/next", "<title>next</title>");
    server.page("/nested", "<title>nested</title><p>text</p>" + QByteArray("<div>").repeated(20'000));
    browser->Navigate(server.address(u"/nested"_s));
    EXPECT_TRUE(waitFor([&] { return browser->arrival() == BrowserEngine::Arrival::Arrived; }));
    idle(500);
    const PageContent content = browser->content();
    EXPECT_EQ(content.title, u"nested");
    EXPECT_EQ(content.html.count("<div>"_L1), 20'000);
    open(u"/next"_s);
    EXPECT_EQ(browser->LocationName(), u"next");
}

// The parser takes minutes for this one.
TEST_F(WebEngineRefusals, APageThatDoesNotAnswerWithoutScriptsEitherIsGivenUp)
{
    server.page("/next", "<title>next</title>");
    server.page("/nested", "<title>nested</title><p>text</p>" + QByteArray("<div>").repeated(300'000));
    browser->setScriptLimit(1s);
    browser->Navigate(server.address(u"/nested"_s));
    EXPECT_TRUE(waitFor([&] { return browser->arrival() == BrowserEngine::Arrival::Arrived; }));
    idle(500); // it has begun
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(errorOf([&] { (void)browser->content(); }).isEmpty());
    EXPECT_LT(clock.elapsed(), BrowserEngine::readLimit / 1ms / 3);
    EXPECT_FALSE(errorOf([&] { (void)browser->links(); }).isEmpty());
    EXPECT_EQ(server.requestCount("/nested"), 2);
    open(u"/next"_s);
    EXPECT_EQ(browser->LocationName(), u"next");
}

TEST_F(WebEngineRefusals, APageThatHangsOnlyWhenItIsLeftDoesNotHoldUpTheNextOne)
{
    server.page("/next", "<title>next</title>");
    for (const QByteArray event : {"onpagehide", "onunload", "onbeforeunload"}) {
        startBrowser({.leaveLimit = 1s});
        openPage("<title>t</title><script>" + event + " = () => { for (;;); }</script>");
        QElapsedTimer clock;
        clock.start();
        open(u"/next"_s);
        EXPECT_EQ(browser->LocationName(), u"next") << event.constData();
        EXPECT_EQ(browser->arrival(), BrowserEngine::Arrival::Arrived);
        EXPECT_LT(clock.elapsed(), 6000) << event.constData();
    }
}

TEST_F(WebEngineRefusals, TheViewShowsTheNextPageBehindOneThatWasReadWithoutScripts)
{
    server.page("/next", "<title>next</title>");
    server.page("/hang", "<title>hang</title><script>for (;;);</script>");
    view = std::make_unique<QWebEngineView>();
    view->setPage(browser->page());
    browser->setScriptLimit(500ms);
    browser->Navigate(server.address(u"/hang"_s));
    EXPECT_TRUE(waitFor([&] { return browser->arrival() == BrowserEngine::Arrival::Arrived; }));
    EXPECT_EQ(browser->content().title, u"hang");
    EXPECT_NE(view->page(), browser->page()) << "what is not laid out is not shown";
    open(u"/next"_s);
    EXPECT_EQ(view->page(), browser->page());
    EXPECT_EQ(view->title(), u"next");
}

TEST_F(WebEngineRefusals, APageWithoutScriptsIsLeftBackwardsAndLoadedAgain)
{
    server.page("/first", "<title>first</title>");
    server.page("/hang", "<title>hang</title><script>for (;;);</script>");
    view = std::make_unique<QWebEngineView>();
    view->setPage(browser->page());
    open(u"/first"_s);
    browser->setScriptLimit(500ms);
    const auto openPlain = [&] {
        browser->Navigate(server.address(u"/hang"_s));
        EXPECT_TRUE(waitFor([&] { return browser->arrival() == BrowserEngine::Arrival::Arrived; }));
        EXPECT_EQ(browser->content().title, u"hang");
    };
    openPlain();
    browser->goBack();
    EXPECT_TRUE(
        waitFor([&] { return browser->arrival() == BrowserEngine::Arrival::Arrived && !browser->isLoading(); }));
    EXPECT_EQ(browser->LocationURL(), server.address(u"/first"_s));
    EXPECT_EQ(view->page(), browser->page());
    openPlain();
    server.page("/hang", "<title>mended</title>");
    browser->reload();
    EXPECT_TRUE(
        waitFor([&] { return browser->arrival() == BrowserEngine::Arrival::Arrived && !browser->isLoading(); }));
    EXPECT_EQ(browser->LocationName(), u"mended");
    EXPECT_EQ(view->title(), u"mended");
}

TEST_F(WebEngineRefusals, APageThatAsksForOtherProgramsWithoutEndDoesNotHoldUpTheNextOne)
{
    server.route("/next", {.body = "<title>next</title>", .delay = 200});
    for (const QByteArray pause : {"20", "1"}) {
        server.page("/mail", "<title>mail</title><script>setInterval(() => { location = 'mailto:a@b.example' }, " +
                                 pause + ")</script>");
        for (int round = 0; round < 3; ++round) {
            browser->Navigate(server.address(u"/mail"_s)); // never loaded for long
            EXPECT_TRUE(waitFor([&] { return browser->arrival() == BrowserEngine::Arrival::Arrived; }));
            idle(100);
            open(u"/next"_s);
            EXPECT_EQ(browser->arrival(), BrowserEngine::Arrival::Arrived) << pause.constData();
            EXPECT_EQ(browser->LocationName(), u"next") << pause.constData();
        }
    }
}

TEST_F(WebEngineRefusals, ASlowServerIsNotMistakenForAPageThatHangs)
{
    server.route("/slow", {.body = "<title>slow</title>", .delay = 900});
    startBrowser({.leaveLimit = 200ms});
    openPage("<title>t</title>");
    const qint64 pid = browser->page()->renderProcessPid();
    open(u"/slow"_s);
    EXPECT_EQ(browser->LocationName(), u"slow");
    EXPECT_EQ(server.requestCount("/slow"), 1);
    EXPECT_EQ(browser->page()->renderProcessPid(), pid);
}

// --- lost processes ----------------------------------------------------------------------------------------------

TEST_F(WebEngineRefusals, ACrashedPageRaisesErrorsUntilTheNextOne)
{
    server.page("/frame", "inner");
    openPage("<title>t</title><iframe src='/frame'></iframe>");
    for (int round = 0; round < 3; ++round) {
        Platform::endProcess(browser->page()->renderProcessPid());
        EXPECT_TRUE(waitFor([&] { return !errorOf([&] { (void)browser->content(); }).isEmpty(); }));
        EXPECT_FALSE(errorOf([&] { (void)browser->links(); }).isEmpty());
        EXPECT_FALSE(errorOf([&] { (void)browser->LocationName(); }).isEmpty());
        EXPECT_EQ(browser->LocationURL(), server.address(u"/page"_s));
        EXPECT_EQ(browser->arrival(), BrowserEngine::Arrival::Failed);
        open(u"/page"_s);
        EXPECT_EQ(browser->arrival(), BrowserEngine::Arrival::Arrived);
        EXPECT_EQ(browser->LocationName(), u"t");
        EXPECT_EQ(signalled.constFirst(), u"frame "_s + server.address(u"/frame"_s));
    }
}

TEST_F(WebEngineRefusals, ACrashEndsTheLoadAndTheRead)
{
    server.page("/page", "<title>t</title><script>const e=Date.now()+5000;while(Date.now()<e);</script>");
    browser->Navigate(server.address(u"/page"_s));
    EXPECT_TRUE(waitFor([&] { return browser->LocationURL().endsWith("/page"_L1); }));
    QTimer::singleShot(100, [&] { Platform::endProcess(browser->page()->renderProcessPid()); });
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(errorOf([&] { (void)browser->content(); }).isEmpty());
    EXPECT_LT(clock.elapsed(), 2000);
    EXPECT_FALSE(browser->isLoading());
    EXPECT_TRUE(waitFor([&] { return signalled == QStringList{u"ended"_s}; }));
}

TEST_F(WebEngineRefusals, TheViewOfACrashedPageShowsTheNextOne)
{
    server.page("/next", "<title>next</title>");
    openPage("<title>t</title>");
    view = std::make_unique<QWebEngineView>();
    view->setPage(browser->page());
    QPointer<QWebEnginePage> replaced;
    QObject::connect(browser.get(), &WebEngineBrowser::pageReplaced, [&](QWebEnginePage *page) { replaced = page; });
    Platform::endProcess(browser->page()->renderProcessPid());
    EXPECT_TRUE(waitFor([&] { return !errorOf([&] { (void)text(); }).isEmpty(); }));
    open(u"/next"_s);
    EXPECT_EQ(view->page(), browser->page());
    EXPECT_EQ(replaced, browser->page());
    EXPECT_EQ(view->title(), u"next");
}

// --- the stage ---------------------------------------------------------------------------------------------------

TEST_F(WebEngineRefusals, OnAStageAPageHasASizeWithoutAWindow)
{
    server.page("/late", "late");
    const WebEngineStage stage(*browser, {1000, 700});
    openPage("<title>t</title><style>@media(max-width:600px){#wide{display:none}}</style><p id=wide>wide</p>"
             "<iframe loading=lazy src='/late'></iframe><script>document.title=[innerWidth,innerHeight]</script>");
    EXPECT_EQ(browser->LocationName(), u"1000,700");
    EXPECT_EQ(text(), u"wide");
    EXPECT_TRUE(waitFor([&] { return server.requestCount("/late") == 1; }));
}

#include "test_webengine_refusals.moc"
