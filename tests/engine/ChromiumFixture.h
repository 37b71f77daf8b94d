// Starts the real browser on a data folder of its own and gives its engine; ends the browser afterwards.
#pragma once

#include "TestServer.h"
#include "engine/ChromiumFactory.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// Runs the event loop until `done` or the limit; gives `done()`.
bool waitFor(const std::function<bool()> &done, int milliseconds = 10000);

/// A browser that runs for all tests of one suite; each test gets its page.
class ChromiumTest : public testing::Test
{
  protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    void SetUp() override;
    void TearDown() override;

    /// Opens `address` and waits until loading has ended.
    void open(const QString &address);
    void openPath(const QString &path) { open(server().address(path, QStringLiteral("site.test"))); }
    /// Serves `html` under a path of its own and opens it.
    void show(const QByteArray &html);
    /// The address of `path` on the site that tests are on, and on another one.
    static QString here(const QString &path) { return server().address(path, QStringLiteral("site.test")); }
    static QString elsewhere(const QString &path) { return server().address(path, QStringLiteral("other.test")); }
    static TestServer &server();
    static ChromiumFactory &factory();
    /// Starts a browser that does not run, and connects to it.
    static std::shared_ptr<BrowserEngine> connect();
    /// Process ids of the browser and all its helpers.
    static QList<qint64> processes();

    std::shared_ptr<BrowserEngine> browser;
};
