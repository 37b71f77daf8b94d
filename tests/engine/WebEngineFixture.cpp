#include "WebEngineFixture.h"

namespace {

QStringList warnings;
QStringList expected;

void collectWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings.append(message);
}

// What a machine without a desktop session and a graphics processor makes Qt say at its first page.
bool isOfMachine(const QString &message)
{
    return message.contains(QStringLiteral("XDG_RUNTIME_DIR")) ||
           message.contains(QStringLiteral("No suitable graphics backend"));
}

bool isExpected(const QString &message)
{
    for (const QString &text : std::as_const(expected))
        if (message.contains(text))
            return true;
    return isOfMachine(message);
}

} // namespace

void WebEngineTest::SetUp()
{
    warnings.clear();
    expected.clear();
    qInstallMessageHandler(&collectWarnings);
    startBrowser();
}

void WebEngineTest::TearDown()
{
    browser.reset();
    idle(0);
    qInstallMessageHandler(nullptr);
    for (const QString &message : std::as_const(warnings))
        EXPECT_TRUE(isExpected(message)) << "Qt warned: " << message.toStdString();
}

void WebEngineTest::startBrowser(const WebEngineOptions &options)
{
    browser = std::make_shared<WebEngineBrowser>(options);
    signalled.clear();
    QObject::connect(browser.get(), &BrowserEngine::DocumentComplete, [this](const QString &url, bool top) {
        signalled.append((top ? QStringLiteral("page ") : QStringLiteral("frame ")) + url);
    });
    QObject::connect(browser.get(), &BrowserEngine::loadingEnded,
                     [this] { signalled.append(QStringLiteral("ended")); });
    QObject::connect(browser.get(), &BrowserEngine::Died, [this] { signalled.append(QStringLiteral("died")); });
    QObject::connect(browser.get(), &BrowserEngine::NewWindow2, [this] { signalled.append(QStringLiteral("window")); });
    QObject::connect(browser.get(), &BrowserEngine::WindowClosing,
                     [this] { signalled.append(QStringLiteral("closing")); });
}

void WebEngineTest::open(const QString &path)
{
    openAddress(server.address(path));
}

void WebEngineTest::openAddress(const QString &address)
{
    signalled.clear();
    browser->Navigate(address);
    ASSERT_TRUE(waitFor([this] { return signalled.contains(QStringLiteral("ended")); }))
        << "never loaded: " << address.toStdString();
    EXPECT_FALSE(browser->isLoading());
}

void WebEngineTest::openPage(const QByteArray &html)
{
    server.page("/page", html);
    open(QStringLiteral("/page"));
}

QString WebEngineTest::titleAfter(const QString &now)
{
    QString title;
    (void)waitFor([&] { return (title = browser->LocationName()) != now; });
    return title;
}

QString WebEngineTest::errorOf(const std::function<void()> &call)
{
    try {
        call();
    } catch (const RuntimeError &error) {
        return error.description();
    }
    return {};
}

void WebEngineTest::expectWarning(const QString &text)
{
    expected.append(text);
}
