// What both kinds of run need to go from page to page, and an Auto run with its button: 5 seconds a link, on pages that
// take no time.
#pragma once

#include "PageFixture.h"
#include "harvest/AutoRun.h"
#include "support/FakeReviver.h"

class WalkTest : public PageTest
{
  protected:
    WalkTest()
    {
        QObject::connect(&form.autoRun.cmdANStart, &Button::Click, &form, [this] { autoRun.cmdANStart_Click(); });
        QObject::connect(&siteVisit, &SiteVisit::visiting, &form, [this](const QString &url) { visited.append(url); });
        QObject::connect(&runs, &Runs::finalized, &form, [this] { ++ended; });
        addSite();
        form.autoRun.incANTiming.setText(QStringLiteral("005"));
        form.limits.incSmRPPause.setText(QStringLiteral("002"));
    }

    /// A record of the made-up search service, with further fields.
    void addSite(const QList<std::pair<QString, QString>> &fields = {})
    {
        const QList<std::pair<QString, QString>> row{{QStringLiteral("SiteName"), QStringLiteral("Seek")},
                                                     {QStringLiteral("Url-1"), QStringLiteral("www.seek.com")}};
        addRow(*database, QStringLiteral("SearchSites"), row + fields);
    }
    /// Puts a result page with `links` on show.
    void showResults(const QStringList &links)
    {
        const QString address = QStringLiteral("http://www.seek.com/?q=tea");
        window().pages[address].links = links;
        window().show(address);
    }
    /// Addresses http://www.site1.com/ and on, each with a page of its own.
    QStringList makeSites(int count)
    {
        QStringList links;
        for (int i = 1; i <= count; ++i) {
            links.append(QStringLiteral("http://www.site%1.com/").arg(i));
            FakePage &page = window().pages[links.constLast()];
            page.title = QStringLiteral("Site %1").arg(i);
            page.html = QStringLiteral("<body>This is the page of site %1, long enough</body>").arg(i);
        }
        return links;
    }
    /// The addresses of some of them.
    [[nodiscard]] static QStringList site(std::initializer_list<int> numbers)
    {
        QStringList all;
        for (const int number : numbers)
            all.append(QStringLiteral("http://www.site%1.com/").arg(number));
        return all;
    }
    /// A Saved Url, or another row of a lettered table.
    void addSaved(const QString &name, const QString &url, const QString &table = QStringLiteral("RPgUrlsA"))
    {
        addRow(*database, table, {{QStringLiteral("MaskName"), name}, {QStringLiteral("Url"), url}});
    }
    /// The click on Go, which returns when the run has ended, or on X in the middle of one.
    void clickStart() { form.autoRun.cmdANStart.click(); }
    /// Restricts the wanted pages to those that hold `text`.
    void wantOnly(const QString &text)
    {
        form.criteria.mustContain.items.addItem(text);
        form.criteria.mustContain.on.setValue(1);
    }

    FakeReviver reviver;
    PageVisit visit{context, navigation, browser, timer, pump, runs, reviver};
    ErrorPages errorPages{context, form.limits, form.autoRun, visit};
    SiteVisit siteVisit{context, form.options, runs, visit, errorPages, screening};
    ResultLinks resultLinks{log, form.options, form.blocking.urls, browser, records};
    ResultPages resultPages{context, form.autoRun, form.saved, form.limits, visit, resultLinks, savedUrls};
    AutoRun autoRun{context, form.autoRun, form.options, runs, resultPages, pageTests, siteVisit};
    QStringList visited;
    int ended = 0;
};
