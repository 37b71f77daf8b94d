// The whole program without a toolkit, on a real database, with a fake browser, fake time and fake user: runs of
// minutes pass in milliseconds, and every event of theirs at an exact moment.
#pragma once

#include "support/Database.h"
#include "support/Outside.h"

class ProgramTest : public testing::Test, protected Outside
{
  protected:
    ProgramTest()
    {
        EXPECT_TRUE(folder.isValid());
        settings.preset("chkSAMoveToTopLeft", QStringLiteral("0"));
        browsers.running = std::make_shared<FakeBrowser>(pump);
    }

    /// Starts the program as its windows do.
    void load()
    {
        program = std::make_unique<Program>(ports());
        QObject::connect(&program->status, &StatusLine::told, &program->form,
                         [this](const QString &text) { statuses.append(text); });
        QObject::connect(&program->siteVisit, &SiteVisit::visiting, &program->form,
                         [this](const QString &url) { visited.append(url); });
        QObject::connect(&program->runs, &Runs::finalized, &program->form, [this] { ++runs; });
        QObject::connect(&program->lifeCycle, &LifeCycle::ended, &program->form, [this] { ++ends; });
        QObject::connect(&program->keeping, &PageKeeping::rowsStored, &program->form,
                         [this](const QMap<QString, int> &rows) { stored.append(rows); });
        QObject::connect(&program->startUp, &StartUp::loaded, &program->form, whenLoaded);
        loaded = program->startUp.Form_Load();
    }
    [[nodiscard]] frmSearch &form() { return program->form; }
    [[nodiscard]] FakeBrowser &browser() { return *browsers.running; }
    [[nodiscard]] cAdoMdb &database() { return *program->database; }
    [[nodiscard]] QString lastStatus() const { return statuses.isEmpty() ? QString() : statuses.constLast(); }
    [[nodiscard]] QStringList rows(const QString &table, const QString &field = QStringLiteral("Url"))
    {
        return column(database(), table, field);
    }

    /// A record of the made-up search service, with further fields.
    void addSite(const QList<std::pair<QString, QString>> &fields = {})
    {
        QList<std::pair<QString, QString>> row{{QStringLiteral("SiteName"), QStringLiteral("Seek")},
                                               {QStringLiteral("Url-1"), QStringLiteral("www.seek.com")}};
        addRow(database(), QStringLiteral("SearchSites"), row + fields);
    }
    /// Puts a result page with `links` on show.
    void showResults(const QStringList &links, const QString &address = QStringLiteral("http://www.seek.com/?q=tea"))
    {
        browser().pages[address].links = links;
        browser().show(address);
    }
    /// Addresses http://www.site1.com/ and on, each with a page of its own.
    QStringList makeSites(int count)
    {
        QStringList links;
        for (int i = 1; i <= count; ++i) {
            links.append(QStringLiteral("http://www.site%1.com/").arg(i));
            FakePage &page = browser().pages[links.constLast()];
            page.title = QStringLiteral("Site %1").arg(i);
            page.html = QStringLiteral("<body>This is the page of site %1, long enough</body>").arg(i);
        }
        return links;
    }
    /// A Saved Url, or another row of a lettered table.
    void addSaved(const QString &name, const QString &url, const QString &table = QStringLiteral("RPgUrlsA"))
    {
        addRow(database(), table, {{QStringLiteral("MaskName"), name}, {QStringLiteral("Url"), url}});
    }
    /// The click on Go, which returns when the run has ended, or on X in the middle of one.
    void clickStart()
    {
        ASSERT_TRUE(form().autoRun.cmdANStart.isEnabled());
        form().autoRun.cmdANStart.click();
    }
    /// Restricts the wanted pages to those that hold `text`.
    void wantOnly(const QString &text)
    {
        form().criteria.mustContain.items.addItem(text);
        form().criteria.mustContain.on.setValue(1);
    }

    std::unique_ptr<Program> program;
    std::function<void()> whenLoaded = [] {}; ///< what is done before a browser is connected
    QStringList statuses, visited;
    QList<QMap<QString, int>> stored;
    int runs = 0, ends = 0;
    bool loaded = false;
};

/// A program that stands idle with a browser, a site record and pages that take no time: 5 seconds a link.
class RunTest : public ProgramTest
{
  protected:
    RunTest()
    {
        load();
        EXPECT_TRUE(loaded);
        addSite();
        form().autoRun.incANTiming.setText(QStringLiteral("005"));
        form().limits.incSmRPPause.setText(QStringLiteral("002"));
        form().options.chkSMA(2).setValue(0);
        statuses.clear();
    }
};
