// A built-in browser on a server of the test's own, with what it has signalled, in order. A warning of Qt that no test
// has announced fails the test.
#pragma once

#include "EventWait.h"
#include "TestServer.h"
#include "engine/webengine/WebEngineBrowser.h"
#include "util/QtPrint.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>

class WebEngineTest : public testing::Test
{
  protected:
    void SetUp() override;
    void TearDown() override;

    void startBrowser(const WebEngineOptions &options = {});
    /// Navigates to `path` of the server and waits until it has loaded.
    void open(const QString &path);
    void openAddress(const QString &address);
    /// Serves `html` at "/page" and opens it.
    void openPage(const QByteArray &html);
    [[nodiscard]] QString text() { return browser->documentPart(BrowserEngine::Part::Text); }
    /// The title once it is no longer `now`.
    [[nodiscard]] QString titleAfter(const QString &now);
    /// Runs `call` and gives the error that it raises, "" without one.
    static QString errorOf(const std::function<void()> &call);
    /// Announces that the test makes Qt warn, in words that contain `text`.
    static void expectWarning(const QString &text);

    TestServer server;
    std::shared_ptr<WebEngineBrowser> browser;
    QStringList signalled; ///< "frame ADDRESS", "page ADDRESS", "ended", "window", "closing"
};
