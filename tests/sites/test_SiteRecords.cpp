// Search-site records as the runs read them, and the chain that a record drives.
#include "PlainChain.h"
#include "app/OptionNumbers.h"
#include "app/frmSearch.h"
#include "sites/ResultLinks.h"
#include "support/Database.h"
#include "support/FakeBrowser.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;

namespace {
class SitesTest : public testing::Test
{
  protected:
    SitesTest()
    {
        makeDatabase(database, log, folder.path());
        holder.set(std::make_unique<cIEObject>(log, desktop, clipboard, browsers));
        holder->InitializeObject(browser);
    }
    ~SitesTest() override
    {
        holder.release();
        pump.doEvents();
    }
    void add(const QList<std::pair<QString, QString>> &fields) { addRow(*database, u"SearchSites"_s, fields); }
    void show(const QString &address, const QStringList &pageLinks = {})
    {
        browser->pages[address].links = pageLinks;
        browser->show(address);
    }

    QTemporaryDir folder;
    RecordingLog log;
    FakePump pump;
    FakeDesktop desktop;
    FakeClipboard clipboard;
    FakeFactory browsers{pump};
    std::shared_ptr<FakeBrowser> browser = std::make_shared<FakeBrowser>(pump);
    BrowserHolder holder;
    frmSearch form;
    DatabaseHolder database;
    SiteRecords records{log, database, holder};
    ResultLinks links{log, form.options, form.blocking.urls, holder, records};
};
} // namespace

TEST_F(SitesTest, AFamilyIsReadInSlotOrderWithoutItsGaps)
{
    add({{u"SiteName"_s, u"Seek"_s},
         {u"BeginUrl-3"_s, u"third"_s},
         {u"BeginUrl-1"_s, u"first"_s},
         {u"BeginUrl-5"_s, u"fifth"_s}});
    EXPECT_EQ(records.GetSearchSiteData(u"Seek"_s, SiteField::BeginUrl),
              (QStringList{u"first"_s, u"third"_s, u"fifth"_s}));
}

TEST_F(SitesTest, SingleFieldsStandInElementZero)
{
    add({{u"SiteName"_s, u"Seek"_s}, {u"CnvHex"_s, u"1"_s}, {u"UrlLen"_s, u"1<~Dorv~>20"_s}, {u"Group"_s, u"3"_s}});
    EXPECT_EQ(records.GetSearchSiteData(u"Seek"_s, SiteField::CnvHex), QStringList{u"1"_s});
    EXPECT_EQ(records.GetSearchSiteData(u"Seek"_s, SiteField::UrlLen), QStringList{u"1<~Dorv~>20"_s});
    EXPECT_EQ(records.GetSearchSiteData(u"Seek"_s, SiteField::Group), QStringList{u"3"_s});
}

TEST_F(SitesTest, WhatCannotBeReadIsOneEmptyText)
{
    add({{u"SiteName"_s, u"Seek"_s}});
    EXPECT_EQ(records.GetSearchSiteData(u"Seek"_s, SiteField::SiteName), emptyList());
    EXPECT_EQ(records.GetSearchSiteData(u"Seek"_s, SiteField(12)), emptyList());
    EXPECT_EQ(records.GetSearchSiteData(u"Seek"_s, SiteField::EndUrl), emptyList());
    EXPECT_EQ(records.GetSearchSiteData(u"Unknown"_s, SiteField::Url), emptyList());
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(SitesTest, ASiteNameWithAQuoteIsAnErrorInTheLog)
{
    EXPECT_EQ(records.GetSearchSiteData(u"O'Seek"_s, SiteField::Url), emptyList());
    EXPECT_EQ(log.locations(), QStringList{u"Function GetSearchSiteData"_s});
}

TEST_F(SitesTest, APageBelongsToTheRecordOfItsServerInAnySlotAndAnyCase)
{
    add({{u"SiteName"_s, u"First"_s}, {u"Url-1"_s, u"www.first.com"_s}});
    add({{u"SiteName"_s, u"Second"_s}, {u"Url-4"_s, u"WWW.Second.com"_s}});
    show(u"http://www.second.com/results?q=x"_s);
    EXPECT_TRUE(records.IsSiteDataSaved());
    EXPECT_EQ(records.GetSiteNameFromUrl({}), u"Second"_s);
    show(u"http://second.com/results"_s);
    EXPECT_FALSE(records.IsSiteDataSaved());
    EXPECT_EQ(records.GetSiteNameFromUrl({}), QString());
}

TEST_F(SitesTest, APageWithoutAServerBelongsToNoRecord)
{
    add({{u"SiteName"_s, u"Empty"_s}});
    show(u"about:blank"_s);
    EXPECT_FALSE(records.IsSiteDataSaved());
    browser->show({});
    EXPECT_FALSE(records.IsSiteDataSaved());
}

TEST_F(SitesTest, AnAddressIsComparedAsItStands)
{
    add({{u"SiteName"_s, u"Seek"_s}, {u"Url-2"_s, u"www.seek.com"_s}});
    EXPECT_EQ(records.GetSiteNameFromUrl(u"WWW.SEEK.COM"_s), u"Seek"_s);
    EXPECT_EQ(records.GetSiteNameFromUrl(u"http://www.seek.com/"_s), QString());
    EXPECT_EQ(records.GetSiteNameFromUrl(u"ann@seek.com"_s), QString());
}

// The chain.

namespace {
class ChainTest : public SitesTest
{
  protected:
    QStringList chain(const QList<std::pair<QString, QString>> &fields, const QStringList &pageLinks)
    {
        add(QList<std::pair<QString, QString>>{{u"SiteName"_s, u"Seek"_s}, {u"Url-1"_s, u"www.seek.com"_s}} + fields);
        show(u"http://www.seek.com/?q"_s, pageLinks);
        return links.GetLinks();
    }
    const QStringList page{u"http://www.seek.com/home"_s, u"http://www.a.com/1"_s, u"http://www.b.com/2"_s,
                           u"http://www.a.com/1"_s, u"http://www.seek.com/next"_s};
};
} // namespace

TEST_F(ChainTest, WithoutARecordTheLinksComeWithoutTheirRepeats)
{
    show(u"http://www.other.com/"_s, page);
    EXPECT_EQ(links.GetLinks(), (QStringList{page[0], page[1], page[2], page[4]}));
}

TEST_F(ChainTest, APageWithoutLinksIsOneEmptyText)
{
    EXPECT_EQ(chain({{u"BUrlCol-1"_s, u"x"_s}}, {}), emptyList());
}

TEST_F(ChainTest, TakesTheResultsOutOfThePage)
{
    EXPECT_EQ(chain({{u"BUrlCol-1"_s, u"/home"_s}, {u"UrlMNC-1"_s, u"seek.com<~Dorv~>0"_s}}, page),
              (QStringList{u"http://www.a.com/1"_s, u"http://www.b.com/2"_s}));
}

TEST_F(ChainTest, AStageThatWouldThrowAwayEveryLinkIsUndone)
{
    EXPECT_EQ(
        chain({{u"BUrlCol-1"_s, u"nowhere"_s}, {u"UrlMC-1"_s, u"/<~Dorv~>1"_s}, {u"UrlMNC-1"_s, u"a.com<~Dorv~>0"_s}},
              page),
        (QStringList{page[0], page[2], page[4]}));
}

TEST_F(ChainTest, ATextThatStandsTwiceInEveryLinkWithCountOneFiltersNothing)
{
    EXPECT_EQ(
        chain({{u"UrlMC-1"_s, u"www.<~Dorv~>1"_s}}, {u"http://www.a.com/www."_s, u"http://www.b.com/www."_s}).size(),
        2);
}

TEST_F(ChainTest, AnEmptyFirstLinkAfterTheCutsUndoesTheCuts)
{
    EXPECT_EQ(chain({{u"BeginUrl-1"_s, u"u="_s}},
                    {u"http://www.seek.com/go?u="_s, u"http://www.seek.com/go?u=http://www.a.com/"_s}),
              (QStringList{u"http://www.seek.com/go?u="_s, u"http://www.seek.com/go?u=http://www.a.com/"_s}));
}

TEST_F(ChainTest, TextsAreTestedAgainstTheWrappedLink)
{
    EXPECT_EQ(chain({{u"UrlMC-1"_s, u"go?u=<~Dorv~>1"_s}, {u"BeginUrl-1"_s, u"u="_s}},
                    {u"http://www.seek.com/home"_s, u"http://www.seek.com/go?u=http://www.a.com/"_s}),
              QStringList{u"http://www.a.com/"_s});
}

TEST_F(ChainTest, LengthsAreThoseOfTheDecodedLinks)
{
    const QStringList encoded{u"http://www.a.com/%41%42%43"_s, u"http://www.b.com/a-long-way-down"_s};
    EXPECT_EQ(chain({{u"CnvHex"_s, u"1"_s}, {u"UrlLen"_s, u"2<~Dorv~>021"_s}}, encoded),
              QStringList{u"http://www.a.com/ABC"_s});
}

namespace {
struct HexCase
{
    const char *field;
    int option;
    bool converts;
};
class HexTable : public ChainTest, public testing::WithParamInterface<HexCase>
{
};
} // namespace

TEST_P(HexTable, ConvertsByTheRecordOrTheOption)
{
    form.options.chkSMA(1).setValue(GetParam().option);
    EXPECT_EQ(chain({{u"CnvHex"_s, QString::fromLatin1(GetParam().field)}}, {u"http://www.a.com/%41"_s}),
              QStringList{GetParam().converts ? u"http://www.a.com/A"_s : u"http://www.a.com/%41"_s});
}

INSTANTIATE_TEST_SUITE_P(Chain, HexTable,
                         testing::Values(HexCase{"0", 1, true}, HexCase{"1", 0, true}, HexCase{"0", 0, false},
                                         HexCase{"", 0, false}));

TEST_F(ChainTest, UniqueServersComeBeforeTheRepeatsAndAfterTheCuts)
{
    form.options.chkSMA(9).setValue(1);
    EXPECT_EQ(chain({{u"BeginUrl-1"_s, u"u="_s}},
                    {u"http://www.seek.com/go?u=http://www.a.com/1"_s, u"http://www.seek.com/go?u=http://www.a.com/2"_s,
                     u"http://www.seek.com/go?u=http://www.b.com/1"_s}),
              (QStringList{u"http://www.a.com/1"_s, u"http://www.b.com/1"_s}));
}

TEST_F(ChainTest, BlockedTextsDropLinksWithoutRegardToCase)
{
    form.blocking.urls.items.addItem(u"ads"_s);
    const QStringList all{u"http://www.a.com/Downloads/x"_s, u"http://www.b.com/"_s};
    form.blocking.urls.on.setValue(1);
    EXPECT_EQ(chain({}, all), QStringList{u"http://www.b.com/"_s});
    form.blocking.urls.on.setValue(0);
    EXPECT_EQ(links.GetLinks(), all);
}

TEST_F(ChainTest, BlockingOnWithAnEmptyListDropsNothing)
{
    form.blocking.urls.on.setValue(1);
    EXPECT_EQ(chain({}, {u"http://www.a.com/"_s}), QStringList{u"http://www.a.com/"_s});
}

TEST_F(ChainTest, ABrokenCountIsLoggedAndLeavesTheLinksOfTheStageBefore)
{
    EXPECT_EQ(chain({{u"UrlMC-1"_s, u"no marker"_s}}, page), (QStringList{page[0], page[1], page[2], page[4]}));
    EXPECT_EQ(log.locations(), QStringList{u"Function SDProcessMC"_s});
}

TEST_F(ChainTest, WithoutABrowserTheListWasNeverDimensioned)
{
    holder.set(std::make_unique<cIEObject>(log, desktop, clipboard, browsers));
    EXPECT_TRUE(links.GetLinks().isEmpty());
    EXPECT_EQ(log.locations(), QStringList{u"Function GetLinks"_s});
}

namespace {
/// Records and pages at random, made of texts that meet.
class RandomChain : public ChainTest
{
  protected:
    const QStringList pieces{u"http://"_s, u"www.seek.com"_s, u"www.a.com"_s, u"www.b.org"_s, u"/"_s, u"go?u="_s,
                             u"&k="_s,     u"%2F"_s,          u"%41"_s,       u"ADS"_s,       u"x"_s, u"page"_s};
    QStringList values()
    {
        QStringList some;
        for (int left = random.oneIn(2) ? random.number(1, 3) : 0; left > 0; --left)
            some += random.oneOf(pieces);
        return some;
    }
    QStringList counted()
    {
        QStringList some = values();
        for (QString &value : some)
            value += u"<~Dorv~>%1"_s.arg(random.number(0, 2));
        return some;
    }
    plain::ChainRules rules()
    {
        plain::ChainRules rules{values(), values(), counted(), counted(), values(), values(), {}, false, false, {}};
        if (random.oneIn(3))
            rules.length = u"%1<~Dorv~>%2"_s.arg(random.number(0, 5)).arg(random.number(0, 40));
        rules.convertHex = random.oneIn(3);
        rules.uniqueServers = random.oneIn(6);
        if (random.oneIn(3))
            rules.blocked = {random.oneOf(pieces)};
        return rules;
    }
    /// The values in slots of their family, with gaps between them.
    void put(QList<std::pair<QString, QString>> &fields, const QString &family, const QStringList &values)
    {
        int slot = random.number(1, 5 - static_cast<int>(values.size()) + (values.isEmpty() ? 0 : 1));
        for (const QString &value : values)
            fields.append({u"%1-%2"_s.arg(family).arg(slot++), value});
    }
    void store(const plain::ChainRules &rules)
    {
        QList<std::pair<QString, QString>> fields{{u"SiteName"_s, u"Seek"_s},
                                                  {u"Url-1"_s, u"www.seek.com"_s},
                                                  {u"CnvHex"_s, rules.convertHex ? u"1"_s : u"0"_s},
                                                  {u"UrlLen"_s, rules.length}};
        for (const auto &[family, values] : {std::pair(u"BeginUrl"_s, rules.begin),
                                             {u"EndUrl"_s, rules.end},
                                             {u"UrlMC"_s, rules.mustContain},
                                             {u"UrlMNC"_s, rules.mustNotContain},
                                             {u"BUrlCol"_s, rules.firstLink},
                                             {u"EUrlCol"_s, rules.lastLink}})
            put(fields, family, values);
        database->DeleteRecords(u"SearchSites"_s, {}, {}, false);
        add(fields);
        form.options.chkSMA(SMA::UniqueServers).setValue(rules.uniqueServers ? 1 : 0);
        form.blocking.urls.items.setItems(rules.blocked);
        form.blocking.urls.on.setValue(rules.blocked.isEmpty() ? 0 : 1);
    }
    RandomText random{9};
};
} // namespace

TEST_F(RandomChain, EqualsThePlainVersion)
{
    for (int round = 0; round < 500; ++round) {
        const plain::ChainRules wanted = rules();
        store(wanted);
        QStringList pageLinks = random.list(pieces, 12, 8);
        pageLinks.removeAll(QString());
        show(u"http://www.seek.com/?q"_s, pageLinks);
        ASSERT_EQ(links.GetLinks(), plain::GetLinks(pageLinks, wanted))
            << round << ' ' << qPrintable(pageLinks.join(u'\n'));
    }
    EXPECT_TRUE(log.locations().isEmpty());
}

TEST_F(SitesTest, ARecordWithoutANameFiltersNoPage)
{
    add({{u"SiteName"_s, QString()}, {u"UrlMC-1"_s, u"tea<~Dorv~>0"_s}});
    EXPECT_EQ(records.GetSearchSiteData({}, SiteField::UrlMC), QStringList{QString()});
    show(u"http://elsewhere.com/"_s, {u"http://a.com/tea"_s, u"http://b.com/"_s});
    EXPECT_EQ(links.GetLinks(), (QStringList{u"http://a.com/tea"_s, u"http://b.com/"_s}));
}
