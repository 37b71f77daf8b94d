// Starts the real browser on a data folder of its own and gives its engine; ends the browser afterwards.
#pragma once

#include "EventWait.h"
#include "TestServer.h"
#include "engine/BrowserErrors.h"
#include "engine/chromium/ChromiumFactory.h"
#include "engine/chromium/DevToolsConnection.h"

#include <QElapsedTimer>
#include <QStringList>
#include <functional>
#include <gtest/gtest.h>

/// Runs `call` and gives the number of the error that it raises, 0 without one.
qint64 errorOf(const std::function<void()> &call);
using Arrival = BrowserEngine::Arrival;
/// A text as Google Test shows it.
inline std::string str(const QString &text)
{
    return text.toStdString();
}
inline std::string str(const QStringList &texts)
{
    return texts.join(u" | ").toStdString();
}

/// A browser without a window that runs for all tests of one suite; each test gets its page anew.
class ChromiumTest : public testing::Test
{
  protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    void SetUp() override;
    void TearDown() override;

    /// Opens `address` and waits until loading has ended.
    void open(const QString &address);
    void openPath(const QString &path) { open(here(path)); }
    /// Serves `html` under a path of its own and opens it; gives its address.
    QString show(const QByteArray &html);
    /// Runs the event loop until the page's title is `title`.
    bool waitForTitle(const QString &title, int milliseconds = 5000);
    [[nodiscard]] QString text() { return browser->documentPart(BrowserEngine::Part::Text); }

    /// The address of `path` on the site that tests are on, and on another one.
    static QString here(const QString &path) { return server().address(path, QStringLiteral("site.test")); }
    static QString elsewhere(const QString &path) { return server().address(path, QStringLiteral("other.test")); }
    static TestServer &server();
    static ChromiumFactory &factory();
    static QString dataFolder();
    /// Connects to the browser, which is started if it does not run.
    static std::shared_ptr<BrowserEngine> connect();
    void take(std::shared_ptr<BrowserEngine> engine);
    /// A second line to the browser, for what only its user could do.
    static std::shared_ptr<DevToolsConnection> backDoor();
    /// The browser's page windows: target and address of each.
    static QHash<QString, QString> windows();
    /// Process ids of the browser and all its helpers, or of those whose command line contains `part`.
    static QList<qint64> processes(const QByteArray &part = {});

    std::shared_ptr<BrowserEngine> browser;
    QStringList told; ///< the browser's signals in order: "frame ADDRESS", "page ADDRESS", "ended", "closing", "died"
};
