#include "RestlessPages.h"
#include "EventWait.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QRandomGenerator>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

struct RestlessPage
{
    const char *tag;
    QByteArray html;
    QList<QByteArray> headers = {};
};

const QByteArray blob = "URL.createObjectURL(new Blob(['<title>restless</title>'], {type: 'text/html'}))";

const RestlessPage restlessPages[] = {
    {"reload", "<script>location.reload()</script>"},
    {"reload when loaded", "<script>onload = () => location.reload()</script>"},
    {"reload soon", "<script>setTimeout(() => location.reload(), 20)</script>"},
    {"reloads", "<script>setInterval(() => location.reload(), 0)</script>"},
    {"reload when left", "<script>onunload = () => location.reload(); setTimeout(onunload, 20)</script>"},
    {"reload when hidden", "<script>onpagehide = () => location.reload()</script>"},
    {"reload before left", "<script>onbeforeunload = () => location.reload()</script>"},
    {"away before left", "<script>onbeforeunload = () => { location = '?' + Math.random() }</script>"},
    {"refresh", "<meta http-equiv=refresh content=0>"},
    {"replace", "<script>location.replace(location.href)</script>"},
    {"replaces", "<script>setInterval(() => location.replace(location.href), 0)</script>"},
    {"assigns", "<script>setInterval(() => { location = '?' + Math.random() }, 0)</script>"},
    {"form", "<form id=f></form><script>f.submit()</script>"},
    {"forms", "<form id=f></form><script>setInterval(() => f.submit(), 0)</script>"},
    {"clicks", "<a id=a href=''></a><script>setInterval(() => a.click(), 0)</script>"},
    {"go", "<script>history.go(0)</script>"},
    {"goes", "<script>setInterval(() => history.go(0), 0)</script>"},
    {"back", "<script>setInterval(() => history.back(), 5)</script>"},
    {"hash", "<script>let n = 0; setInterval(() => { for (let i = 0; i < 99; ++i) location.hash = ++n }, 1)</script>"},
    {"sent on", "<script>setInterval(() => { location = '/sent-on' }, 5)</script>"},
    {"sent on slowly", "<script>setInterval(() => { location = '/sent-on' }, 50)</script>"},
    {"to nothing", "<script>setInterval(() => { location = '/nothing' }, 5)</script>"},
    {"to a file", "<script>setInterval(() => { location = '/file' }, 5)</script>"},
    {"to silence", "<script>setTimeout(() => { location = '/silent' }, 20)</script>"},
    {"to another program", "<script>setInterval(() => { location = 'mailto:a@b.example' }, 5)</script>"},
    {"to its own making", "<script>setInterval(() => { location = " + blob + " }, 5)</script>"},
    {"by a frame", "<iframe src=/frame></iframe>"},
    {"by a frame of no origin", "<iframe sandbox='allow-scripts allow-top-navigation' src=/frame></iframe>"},
    {"of no origin",
     "<script>setInterval(() => location.reload(), 10)</script>",
     {"Content-Security-Policy: sandbox allow-scripts"}},
    {"never complete", "<img src=/silent>"},
    {"never closed", "<script>document.open(); document.write('<title>restless</title>')</script>"},
    {"stops", "<img src=/silent><script>setInterval(() => stop(), 1)</script>"},
    {"reloads and stops", "<script>setInterval(() => { location.reload(); stop() }, 3)</script>"},
};

void serveAround(TestServer &server)
{
    server.route("/silent", {.delay = -1});
    server.route("/nothing", {.status = 204});
    server.route("/file", {.body = "x", .contentType = "application/octet-stream"});
    server.route("/sent-on", {.status = 302, .headers = {"Location: /restless"}});
    server.page("/frame", "<script>setInterval(() => { top.location = '/restless?' + Math.random() }, 5)</script>");
}

bool arrives(BrowserEngine &browser)
{
    return waitFor([&] { return browser.arrival() == BrowserEngine::Arrival::Arrived; }, 10000);
}

std::string titleOf(BrowserEngine &browser)
{
    try {
        return browser.content().title.toStdString();
    } catch (const RuntimeError &error) {
        return error.what();
    }
}

void expectToArrive(BrowserEngine &browser, const QString &address)
{
    browser.Navigate(address);
    EXPECT_TRUE(waitFor([&] { return !browser.isLoading(); }, 10000));
    EXPECT_EQ(browser.arrival(), BrowserEngine::Arrival::Arrived);
    EXPECT_EQ(titleOf(browser), "ordinary");
    idle(20);
    EXPECT_EQ(titleOf(browser), "ordinary") << "it stays";
    EXPECT_EQ(browser.LocationURL().toStdString(), address.toStdString());
}

} // namespace

void expectToLeaveRestlessPages(BrowserEngine &browser, TestServer &server, const std::array<QString, 2> &hosts)
{
    serveAround(server);
    for (const RestlessPage &page : restlessPages) {
        const QString host = hosts[QRandomGenerator::global()->bounded(2)];
        const int rest = QRandomGenerator::global()->bounded(120);
        const int delay = QRandomGenerator::global()->bounded(3) * 60;
        const QString tag = QString::fromLatin1(page.tag);
        const QString told =
            u"%1, left after %2 ms for %3, which takes %4 ms"_s.arg(tag).arg(rest).arg(host).arg(delay);
        SCOPED_TRACE(told.toStdString());
        server.route("/restless", {.body = "<title>restless</title>" + page.html, .headers = page.headers});
        server.route("/ordinary", {.body = "<title>ordinary</title>", .delay = delay});
        browser.Navigate(server.address(u"/restless"_s, hosts[0]));
        EXPECT_TRUE(arrives(browser));
        idle(rest);
        if (rest % 2 == 0)
            (void)titleOf(browser);
        expectToArrive(browser, server.address(u"/ordinary"_s, host));
    }
}

void expectTurnsBesideRestlessFrames(BrowserEngine &browser, TestServer &server, const QString &host)
{
    QByteArray page;
    for (int frame = 0; frame < 6; ++frame)
        page += "<iframe srcdoc='<a href=x>x</a><script>setInterval(() => location.reload(), 30)</script>'></iframe>";
    server.page("/restless", page);
    QElapsedTimer clock;
    clock.start();
    int completions = 0;
    const auto slowHandler = [&] {
        ++completions;
        for (int reads = 0; reads < 5 && clock.elapsed() < 5000; ++reads)
            (void)browser.links();
    };
    const auto connection = QObject::connect(&browser, &BrowserEngine::DocumentComplete, &browser, slowHandler);
    browser.Navigate(server.address(u"/restless"_s, host));
    qint64 longest = 0;
    while (clock.elapsed() < 2000) {
        const qint64 begin = clock.elapsed();
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        longest = std::max(longest, clock.elapsed() - begin);
    }
    QObject::disconnect(connection);
    EXPECT_GT(completions, 1);
    EXPECT_LT(longest, 2000);
}
