// The records of the start, and the menu of search sites under Go.
#include "pages/Addresses.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
class SiteMenuTest : public ProgramTest
{
  protected:
    SiteMenuTest() { load(); }
    QStringList group(int number)
    {
        QStringList names;
        for (const MenuItem *item : form().menus.mnuPopUpSearchSites.children(u"mnuSearchSites(%1)"_s.arg(number)))
            names.append(item->caption());
        return names;
    }
    void restart()
    {
        program->lifeCycle.end();
        program.reset();
        load();
        statuses.clear();
    }
};
} // namespace

TEST_F(SiteMenuTest, ANewDatabaseHasTheTwentySixRecordsInTheirGroups)
{
    const QStringList names = rows(u"SearchSites"_s, u"SiteName"_s);
    EXPECT_EQ(names.size(), 26);
    EXPECT_EQ(names.constFirst(), u"Msn Search"_s);
    EXPECT_EQ(names.constLast(), u"DataDate"_s);
    EXPECT_EQ(form().siteEditor.cboSD(1).items(), names);
    EXPECT_EQ(rows(u"SearchSites"_s, u"Group"_s).join(QString()), u"00000111111022222233334444"_s);
}

TEST_F(SiteMenuTest, EachServerOfTheStartIsRecognisedOnAPage)
{
    for (int row = 0; row < DefaultSites::count; ++row) {
        const QStringList data = program->defaultSites.GetSiteData(row);
        ASSERT_EQ(data.size(), 9);
        EXPECT_EQ(cIEText::GetServerFromUrl(u"http://"_s + data[1] + u"/search?q=tea"_s, cIEText::hostOnly), data[1]);
        browser().show(u"http://"_s + data[1] + u"/search?q=tea"_s);
        EXPECT_EQ(program->records.GetSiteNameFromUrl({}), data[0]);
        EXPECT_TRUE(data[8] == u"0"_s || data[8] == u"1"_s);
    }
}

TEST_F(SiteMenuTest, TheTextsOfTheStartHaveTheCountOne)
{
    EXPECT_EQ(program->records.GetSearchSiteData(u"Yahoo Search"_s, SiteField::UrlMC),
              QStringList{u"H=0/*-<~Dorv~>1"_s});
    EXPECT_EQ(program->records.GetSearchSiteData(u"Msn Search"_s, SiteField::UrlMNC), QStringList{u"msn<~Dorv~>1"_s});
    EXPECT_EQ(program->records.GetSearchSiteData(u"Msn Search"_s, SiteField::UrlMC), QStringList{QString()});
}

TEST_F(SiteMenuTest, TheFirstRecordCutsByPositionAndDropsItsOwnLinks)
{
    browser().pages[u"http://search.msn.com/r?q=tea"_s].links = {
        u"http://search.msn.com/help"_s, u"http://x.com/SEARCH_CONC"_s, u"http://a.com/"_s,
        u"http://msn.com/b"_s,           u"http://shopping.msn.com/"_s, u"http://late.com/"_s};
    browser().show(u"http://search.msn.com/r?q=tea"_s);
    EXPECT_EQ(program->links.GetLinks(), QStringList{u"http://a.com/"_s});
}

TEST_F(SiteMenuTest, AMustContainTextCanBeTheBeginTextToo)
{
    browser().pages[u"http://search.yahoo.com/r"_s].links = {u"http://rds.yahoo.com/H=0/*-http://a.com/"_s,
                                                             u"http://rds.yahoo.com/H=0/*-http://b.com/NW=1"_s,
                                                             u"http://help.yahoo.com/"_s};
    browser().show(u"http://search.yahoo.com/r"_s);
    EXPECT_EQ(program->links.GetLinks(), QStringList{u"http://a.com/"_s});
}

TEST_F(SiteMenuTest, EscapesAreResolvedBeforeTheTextsAreTested)
{
    browser().pages[u"http://www.alltheweb.com/s"_s].links = {
        u"http://www.alltheweb.com/go?x=1&r=http%3A%2F%2Fa.com%2F"_s, u"http://www.alltheweb.com/about"_s};
    browser().show(u"http://www.alltheweb.com/s"_s);
    // Resolved, the result link holds "http" twice, so that the text with the count one keeps the other link alone.
    EXPECT_EQ(program->links.GetLinks(), QStringList{u"http://www.alltheweb.com/about"_s});
}

TEST_F(SiteMenuTest, AnEmptiedTableIsFilledAgainAtTheNextLoad)
{
    database().DeleteRecords(u"SearchSites"_s, {}, {}, false);
    restart();
    EXPECT_EQ(rows(u"SearchSites"_s, u"SiteName"_s).size(), 26);
}

TEST_F(SiteMenuTest, ARecordOfOnesOwnStandsUnderItsGroupAtTheNextStart)
{
    EXPECT_EQ(group(4).size(), 4);
    addSite({{u"Group"_s, u"4"_s}});
    EXPECT_EQ(group(4).size(), 4);
    restart();
    EXPECT_EQ(rows(u"SearchSites"_s, u"SiteName"_s).size(), 27);
    EXPECT_EQ(group(4).constLast(), u"Seek"_s);
}

TEST_F(SiteMenuTest, ALaterLoadReusesItemsAndMakesNone)
{
    addSite({{u"Group"_s, u"4"_s}});
    program->siteEditing.LoadSearchSiteData(SiteEditing::allNames);
    program->siteMenu.LoadSearchEngineMenu();
    EXPECT_EQ(group(4).size(), 4);
    database().DeleteRecords(u"SearchSites"_s, u"SiteName"_s, u"DataDate"_s, false);
    program->siteEditing.LoadSearchSiteData(SiteEditing::allNames);
    program->siteMenu.LoadSearchEngineMenu();
    EXPECT_EQ(group(4).constLast(), u"Seek"_s);
}

TEST_F(SiteMenuTest, ARecordOfAnUnknownGroupEndsTheMenuThere)
{
    database().DeleteRecords(u"SearchSites"_s, {}, {}, false);
    for (const auto &[name, number] :
         {std::pair(u"One"_s, u"0"_s), {u"Two"_s, QString()}, {u"Three"_s, u"5"_s}, {u"Four"_s, u"0"_s}})
        addRow(database(), u"SearchSites"_s, {{u"SiteName"_s, name}, {u"Group"_s, number}});
    restart();
    EXPECT_EQ(group(0), QStringList{u"One"_s});
}

TEST_F(SiteMenuTest, TheRightButtonOfGoShowsTheMenuAndAClickOpensTheSite)
{
    menus.choice = [](Menu &menu) { menu.item("mnuSearchSitesB"_L1, 1).click(); };
    browser().navigated.clear();
    form().autoRun.cmdANStart.mouseDown(MouseButton::Right);
    EXPECT_EQ(menus.shown, QStringList{u"mnuPopUpSearchSites"_s});
    EXPECT_EQ(group(1).at(1), u"DMOZ"_s);
    EXPECT_EQ(browser().navigated, QStringList{u"http://search.dmoz.org"_s});
    form().browser.mbInitialized = false;
    form().autoRun.cmdANStart.mouseDown(MouseButton::Right);
    EXPECT_EQ(lastStatus(), u"Not initialized"_s);
}

TEST_F(SiteMenuTest, AnUnknownSiteOffersTheWayToTheEditor)
{
    form().mbMainShown = true;
    browser().pages[u"http://www.new.com/?q=tea"_s].title = u"Bob's search"_s;
    browser().show(u"http://www.new.com/?q=tea"_s);
    form().saved.cmdANSavedAdd.click();
    pump.doEvents();
    ASSERT_EQ(dialogs.asked.size(), 1);
    EXPECT_EQ(form().frame.sstSearch.tab(), Tab::Settings);
    EXPECT_EQ(form().frame.sstMiscOptions.tab(), Tab::Sites);
    EXPECT_EQ(form().siteEditor.cboSD(1).text(), u"Bobs search"_s);
    EXPECT_EQ(form().siteEditor.cboSD(2).text(), u"www.new.com"_s);
    form().siteEditor.cmdSD(1).click();
    EXPECT_EQ(lastStatus(), u"Added Bobs search"_s); // nothing had to be typed
    EXPECT_TRUE(program->records.IsSiteDataSaved());
    browser().show(u"http://www.other.com/"_s);
    form().frame.sstSearch.setTab(Tab::Auto);
    dialogs.answer = UserDialogs::Answer::No;
    form().saved.cmdANSavedAdd.click();
    pump.doEvents();
    EXPECT_EQ(form().frame.sstSearch.tab(), Tab::Auto);
}

TEST_F(SiteMenuTest, GoWithoutAPageTellsWhereTheSearchServicesAre)
{
    form().mbMainShown = true;
    browser().show(u"about:blank"_s);
    form().autoRun.cmdANStart.click();
    pump.doEvents();
    EXPECT_EQ(lastStatus(), u"No data saved for site"_s);
    EXPECT_TRUE(dialogs.asked.isEmpty());
    ASSERT_EQ(dialogs.told.size(), 1);
    EXPECT_TRUE(dialogs.told[0].text.contains(u"right button on Go"_s));
    EXPECT_EQ(form().frame.sstSearch.tab(), Tab::Auto);
}
