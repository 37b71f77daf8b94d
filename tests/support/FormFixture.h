// The state of the main window without the operations on it, with a fake browser, fake time and a fake user: for the
// tests of single operations, each of which builds what it tests on this and no more.
#pragma once

#include "app/Context.h"
#include "app/LongWork.h"
#include "app/frmSearch.h"
#include "driver/Navigation.h"
#include "support/FakeBrowser.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

class FormTest : public testing::Test
{
  protected:
    FormTest()
    {
        connectBrowser(std::make_shared<FakeBrowser>(pump));
        form.mbFormReady = true;
        QObject::connect(&status, &StatusLine::told, &form, [this](const QString &text) { statuses.append(text); });
    }
    ~FormTest() override
    {
        browser.release();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// `running` is the one that is driven from here on.
    void connectBrowser(std::shared_ptr<FakeBrowser> running)
    {
        browsers.running = std::move(running);
        auto driver = std::make_unique<cIEObject>(log, desktop, clipboard, browsers);
        driver->InitializeObject(browsers.running);
        browser.set(std::move(driver));
        form.browser.mbInitialized = true;
    }
    /// The browser's window, as its user and its pages see it.
    [[nodiscard]] FakeBrowser &window() { return *browsers.running; }
    [[nodiscard]] QString lastStatus() const { return statuses.isEmpty() ? QString() : statuses.constLast(); }
    /// The user presses Escape as soon as a long command lets events in.
    void cancelSoon()
    {
        pump.after(0, [this] { work.cancel(); });
    }

    frmSearch form;
    RecordingLog log;
    FakePump pump;
    FakeDialogs dialogs;
    FakeDesktop desktop;
    FakeClipboard clipboard;
    MemorySettings settings;
    CountingStates states;
    FakeFactory browsers{pump};
    Tips tips{form.options.chkSMV(SMV::ToolTips)};
    StatusLine status{form.frame.picStatus, tips};
    Context context{log, status, states, dialogs, settings, tips};
    BrowserHolder browser;
    Navigation navigation{context, form.browser, browser};
    LongWork work{pump, status};
    QStringList statuses;
};
