// The Data tab's state with a real database, fake time and a fake user.
#pragma once

#include "app/frmSearch.h"
#include "data/Exports.h"
#include "data/Imports.h"
#include "support/Database.h"
#include "support/FakeBrowser.h"

#include <QDir>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

class DataTest : public testing::Test
{
  protected:
    DataTest()
    {
        makeDatabase(database, log, folder.path());
        auto driver = std::make_unique<cIEObject>(log, desktop, clipboard, browsers);
        browsers.running = std::make_shared<FakeBrowser>(pump);
        driver->InitializeObject(browsers.running);
        browser.set(std::move(driver));
        form.browser.mbInitialized = true;
        form.mbFormReady = true;
        form.places.txtSFDBDir.setText(folder.path() + QLatin1StringView("/"));
        QObject::connect(&status, &StatusLine::told, &form, [this](const QString &text) { statuses.append(text); });
    }

    [[nodiscard]] QString lastStatus() const { return statuses.isEmpty() ? QString() : statuses.constLast(); }
    [[nodiscard]] QString pathOf(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] static QByteArray bytes(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    }
    void writeFile(const QString &name, const QByteArray &content) const
    {
        QFile file(pathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    /// The files of the folder but the database.
    [[nodiscard]] QStringList files() const
    {
        QStringList names = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
        names.removeIf([](const QString &name) { return name.startsWith(QLatin1StringView("Trawlex-0")); });
        return names;
    }
    [[nodiscard]] QStringList values(const QString &table, const QString &field)
    {
        return column(*database, table, field);
    }
    void addEmail(const QString &address, const QString &ssIndex = QStringLiteral("1"),
                  const QString &url = QStringLiteral("http://a.com"))
    {
        addRow(*database, QStringLiteral("EmailAddress"),
               {{QStringLiteral("Date"), QStringLiteral("2024-05-01")},
                {QStringLiteral("SSIndex"), ssIndex},
                {QStringLiteral("Address"), address},
                {QStringLiteral("Url"), url}});
    }
    void choose(const QString &table, const QStringList &fields = {}, int field = -1, const QString &filter = {})
    {
        form.data.cboDBTables.setItems({table});
        form.data.cboDBTables.setListIndex(0);
        form.data.cboDBFields.setItems(fields);
        form.data.cboDBFields.setListIndex(field);
        form.data.txtDBQuery.setText(filter);
    }
    /// The user presses Escape as soon as a long command lets events in.
    void cancelSoon()
    {
        pump.after(0, [this] { work.cancel(); });
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
    Navigation navigation{context, form.browser, browser};
    LongWork work{pump, status};
    Exports exports{context, form.data, form.places, form.options.chkSMD(0), database, navigation, work};
    Imports imports{log, database, work};
    QStringList statuses;
};

/// No file may grow beyond `bytes` while it stands, as on a full disk.
class SmallFiles
{
  public:
    explicit SmallFiles(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &mBefore);
        const rlimit limit{bytes, mBefore.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallFiles() { setrlimit(RLIMIT_FSIZE, &mBefore); }
    Q_DISABLE_COPY_MOVE(SmallFiles)

  private:
    rlimit mBefore{};
};
