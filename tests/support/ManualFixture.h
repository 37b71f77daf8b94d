// The Manual tab's state with a real database, a fake browser, fake time and a fake user, for the tests of what works
// on its lists.
#pragma once

#include "app/Context.h"
#include "app/LongWork.h"
#include "lists/ManualDesk.h"
#include "lists/ManualTables.h"
#include "sites/DiscoveredLinks.h"
#include "support/Database.h"
#include "support/FakeBrowser.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

class ManualTest : public testing::Test
{
  protected:
    ManualTest()
    {
        makeDatabase(database, log, folder.path());
        auto driver = std::make_unique<cIEObject>(log, desktop, clipboard, browsers);
        browsers.running = std::make_shared<FakeBrowser>(pump);
        driver->InitializeObject(browsers.running);
        browser.set(std::move(driver));
        form.browser.mbInitialized = true;
        form.mbFormReady = true;
        QObject::connect(&status, &StatusLine::told, &form, [this](const QString &text) { statuses.append(text); });
    }

    [[nodiscard]] ListBox &list() { return form.lists.shown(); }
    [[nodiscard]] QString lastStatus() const { return statuses.isEmpty() ? QString() : statuses.constLast(); }
    [[nodiscard]] QStringList rows(const QString &table, const QString &field = QStringLiteral("Url"))
    {
        return column(*database, table, field);
    }
    void addUrl(const QString &table, const QString &url) { addRow(*database, table, {{QStringLiteral("Url"), url}}); }
    void useBase(bool on) { form.menus.mnuPopUpMNStatus.item(QStringLiteral("mnuMNUseAutoBase")).setChecked(on); }
    void setSeries(int position)
    {
        for (int i = 1; i <= 9; ++i)
            form.menus.mnuPopUpMNStatus.item(QLatin1StringView("mnuMNStatusAutoIncrPos"), i).setChecked(i == position);
    }
    void choose(int index, const std::vector<int> &selected)
    {
        std::vector<bool> flags(static_cast<std::size_t>(list().listCount()));
        for (const int i : selected)
            flags[static_cast<std::size_t>(i)] = true;
        list().choose(index, flags);
    }
    void showPage(const QString &address, const QStringList &links, const QString &title = {})
    {
        FakePage &page = browsers.running->pages[address];
        page.links = links;
        page.title = title;
        browsers.running->show(address);
    }
    /// The user presses Escape as soon as a long command lets events in.
    void cancelSoon()
    {
        pump.after(0, [this] { work.cancel(); });
    }
    QString file(const QString &name, const QByteArray &bytes)
    {
        const QString path = folder.filePath(name);
        QFile written(path);
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(bytes);
        return path;
    }

    QTemporaryDir folder;
    frmSearch form;
    RecordingLog log;
    FakePump pump;
    FakeDialogs dialogs;
    FakeDesktop desktop;
    FakeClipboard clipboard;
    MemorySettings settings;
    CountingStates states;
    FakeFactory browsers{pump};
    Tips tips{form.options.chkSMV(0)};
    StatusLine status{form.frame.picStatus, tips};
    Context context{log, status, states, dialogs, settings, tips};
    DatabaseHolder database;
    BrowserHolder browser;
    LongWork work{pump, status};
    ManualDesk desk{form, status};
    DeletedRows deleted{log, database, work};
    ManualTables tables{log, database, work};
    QStringList statuses;
};
