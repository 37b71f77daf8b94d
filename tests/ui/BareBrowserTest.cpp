// The built-in browser's window, with the real engine in it.
#include "desktop/internal/BareBrowserWindow.h"

#include "engine/webengine/WebEngineBrowser.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
constexpr int patience = 30000;
}

struct BareBrowser : testing::Test
{
    BareBrowser() : browser(std::make_shared<WebEngineBrowser>()), window(browser)
    {
        QObject::connect(browser.get(), &BrowserEngine::WindowClosing, browser.get(), [this] { ++closings; });
        window.show();
    }

    /// The address of a page of that title.
    QString page(const QString &title)
    {
        QFile file(folder.filePath(title + u".html"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<title>" + title.toUtf8() + "</title><p>text");
        return QUrl::fromLocalFile(file.fileName()).toString();
    }
    [[nodiscard]] bool waitForTitle(const QString &title)
    {
        return QTest::qWaitFor([&] { return window.windowTitle() == title; }, patience);
    }
    QLineEdit &addressBar() { return *window.findChild<QLineEdit *>(u"txtAddressBar"_s); }
    void press(const char *button)
    {
        QTest::mouseClick(window.findChild<QPushButton *>(QLatin1StringView(button)), Qt::LeftButton);
    }

    QTemporaryDir folder;
    std::shared_ptr<WebEngineBrowser> browser;
    BareBrowserWindow window;
    int closings = 0;
};

TEST_F(BareBrowser, ShowsWhereItIs)
{
    EXPECT_EQ(window.windowTitle(), u"Internet Browse"_s);
    EXPECT_EQ(window.objectName(), u"frmWBare"_s);
    const QString address = page(u"harbour"_s);
    window.NavigateToUrl(address);
    ASSERT_TRUE(waitForTitle(u"harbour"_s));
    EXPECT_EQ(addressBar().text(), address);
}

TEST_F(BareBrowser, GoesBackAndToWhatIsTyped)
{
    const QString first = page(u"first"_s);
    addressBar().setText(first);
    press("cmdGo_1");
    ASSERT_TRUE(waitForTitle(u"first"_s));
    addressBar().setText(page(u"second"_s));
    QTest::keyClick(&addressBar(), Qt::Key_Return);
    ASSERT_TRUE(waitForTitle(u"second"_s));
    press("cmdGo_0");
    ASSERT_TRUE(waitForTitle(u"first"_s));
    EXPECT_EQ(addressBar().text(), first);
}

TEST_F(BareBrowser, TellsTheEngineOnceThatItIsClosed)
{
    window.AutoRefreshTimer(true);
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(QTest::qWaitFor([&] { return closings > 0; }, patience));
    EXPECT_EQ(closings, 1);
    EXPECT_THROW(browser->Navigate(u"about:blank"_s), RuntimeError);
}

TEST_F(BareBrowser, StandsBesideTheMainWindowOnTheScreen)
{
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QWidget main;
    main.setGeometry(10, 10, 200, 400);
    main.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&main));
    const QRect screen = window.screen()->availableGeometry();
    for (const int left : {10, 700}) {
        main.move(left, 10);
        window.placeBeside(main);
        const QRect place = window.frameGeometry();
        EXPECT_TRUE(screen.contains(place)) << place.left() << ' ' << place.top() << ' ' << place.width() << ' '
                                            << place.height() << " on " << screen.width() << ' ' << screen.height();
        if (left == 10) {
            EXPECT_EQ(place.left(), main.frameGeometry().right() + 1);
        }
    }
}

TEST_F(BareBrowser, NavigateToUrlOnAPageThatNeverCompletesReturns)
{
    QTcpServer silent;
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
    QElapsedTimer clock;
    clock.start();
    window.NavigateToUrl(u"127.0.0.1:%1/"_s.arg(silent.serverPort()));
    EXPECT_LT(clock.elapsed(), 2000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return silent.hasPendingConnections(); }, patience)) << "it was issued";
}

TEST_F(BareBrowser, AFramesDocumentCompleteRaisesNoEvent)
{
    page(u"one"_s);
    page(u"two"_s);
    QFile file(folder.filePath(u"top.html"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<title>top</title><iframe id=f src=one.html></iframe>"
               "<script>setTimeout(() => { f.src = 'two.html'; f.onload = () => { document.title = 'loaded'; }; }, "
               "300)</script>");
    file.close();
    const QString address = QUrl::fromLocalFile(file.fileName()).toString();
    QStringList completed;
    QObject::connect(browser.get(), &BrowserEngine::DocumentComplete, browser.get(), [&](const QString &url, bool top) {
        if (top)
            completed.append(url);
    });
    window.NavigateToUrl(address);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !completed.isEmpty(); }, patience));
    const auto *const view = window.findChild<QWidget *>(u"WBOne"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return view->property("title") == u"loaded"_s; }, patience));
    EXPECT_EQ(completed, QStringList{address});
    EXPECT_EQ(addressBar().text(), address);
}

TEST_F(BareBrowser, F5LoadsThePageAgain)
{
    window.NavigateToUrl(page(u"harbour"_s));
    ASSERT_TRUE(waitForTitle(u"harbour"_s));
    QFile file(folder.filePath(u"harbour.html"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<title>harbour by night</title>");
    file.close();
    QTest::keyClick(&window, Qt::Key_F5);
    EXPECT_TRUE(waitForTitle(u"harbour by night"_s));
}
