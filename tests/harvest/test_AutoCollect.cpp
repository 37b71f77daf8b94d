// Collecting while the user browses by hand: what each state takes from a page.
#include "PageFixture.h"
#include "harvest/AutoCollect.h"

#include <QEventLoop>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
const QString address = u"http://www.seek.com/?q=tea"_s;

class CollectTest : public PageTest
{
  protected:
    CollectTest()
    {
        QObject::connect(&browser, &BrowserHolder::DocumentComplete, &form, [this] { collect.DocumentComplete(); });
        addRow(*database, u"SearchSites"_s, {{u"SiteName"_s, u"Seek"_s}, {u"Url-1"_s, u"www.seek.com"_s}});
        FakePage &page = window().pages[address];
        page.links = found;
        page.html = u"<body> ann@tea.com bob@tea.com, or call 212-555-0100 whenever you like</body>"_s;
        window().show(address);
    }
    void toLinks(int list) { choice.SetAutoCollectLinks(list); }
    void toManualPages(int list) { choice.SetAutoCollectPgUrlsMN(list); }
    void toSavedPages(int list) { choice.SetAutoCollectPgUrlsAN(list); }
    [[nodiscard]] int state() const { return choice.state(); }
    /// A page has finished loading in the browser.
    void complete()
    {
        Q_EMIT window().DocumentComplete(address, true);
        pump.doEvents();
    }
    [[nodiscard]] QStringList items(int list) { return form.lists.lstMN(list).items(); }

    const QStringList found{u"http://www.a.com/"_s, u"http://www.b.com/"_s};
    const QStringList emails{u"ann@tea.com"_s, u"bob@tea.com"_s};
    ResultLinks resultLinks{log, form.options, form.blocking.urls, browser, records};
    ManualDesk desk{form, status};
    DiscoveredLinks discovered{log, form.urlFilter, form.blocking, form.options, browser, records, resultLinks};
    ManualFeed feed{context, desk, form.options, discovered, clipboard, work};
    CollectChoice choice{context, form.collect, form.menus, form.lists, form.saved, form.options, desk};
    PageCollecting pages{log, browser, findings, desk};
    AutoCollect collect{context, choice, pages, feed, savedUrls, resultLinks, desk};
};
} // namespace

TEST_F(CollectTest, NothingIsCollectedInStateZeroAndTheStatusStaysAsItWas)
{
    complete();
    EXPECT_TRUE(items(0).isEmpty());
    EXPECT_TRUE(statuses.isEmpty());
}

TEST_F(CollectTest, LinksGoToTheirList)
{
    toLinks(1);
    EXPECT_EQ(lastStatus(), u"Urls On Sites [(Manual)-B]"_s);
    complete();
    EXPECT_EQ(items(1), found);
    EXPECT_EQ(lastStatus(), u"2 loaded B"_s);
}

TEST_F(CollectTest, APageWithThreeFramesCollectsThreeTimesAndRepeatsDoNotMultiply)
{
    toLinks(0);
    for (int frame = 0; frame < 3; ++frame)
        complete();
    EXPECT_EQ(items(0), found);
    EXPECT_EQ(statuses.count(u"2 loaded A"_s), 3);
}

TEST_F(CollectTest, MailAddressesAndNumbersGoToTheListOfTheLinks)
{
    toLinks(2);
    choice.SetAutoCollectState(CollectState::Kind::EmailPhone, false);
    complete();
    EXPECT_EQ(items(2), emails);
    EXPECT_EQ(lastStatus(), u"2 loaded C"_s);
    choice.SetAutoCollectState(CollectState::Kind::EmailPhone, false);
    complete();
    EXPECT_EQ(items(2), emails + QStringList{u"2125550100"_s});
}

TEST_F(CollectTest, BlockedTextsKeepAddressesOutOfTheLists)
{
    form.blocking.email.items.addItem(u"bob@"_s);
    form.blocking.email.on.setValue(1);
    EXPECT_EQ(pages.CollectEmailMN(0), u"1 loaded A"_s);
    EXPECT_EQ(items(0), QStringList{u"ann@tea.com"_s});
}

TEST_F(CollectTest, APageWithoutAnyTellsNothing)
{
    window().pages[address].html = u"<body>nothing of interest stands here</body>"_s;
    window().show(address);
    EXPECT_EQ(pages.CollectEmailMN(0), QString());
    EXPECT_EQ(pages.CollectPhoneMN(0), QString());
}

TEST_F(CollectTest, TheAddressOfAPageStandsInItsListOnce)
{
    toManualPages(3);
    complete();
    complete();
    EXPECT_EQ(items(3), QStringList{address});
    EXPECT_EQ(lastStatus(), u"1 loaded"_s);
}

TEST_F(CollectTest, AddressAndContentGoToTheirListsTogether)
{
    toManualPages(0);
    toLinks(1);
    EXPECT_EQ(state(), 5);
    complete();
    EXPECT_EQ(items(0), QStringList{address});
    EXPECT_EQ(items(1), found);
    EXPECT_EQ(lastStatus(), u"1 loaded. 2 loaded B"_s);
}

TEST_F(CollectTest, SavedPagesGoToTheSavedUrlsOfTheirList)
{
    toSavedPages(1);
    EXPECT_EQ(state(), 8);
    complete();
    EXPECT_EQ(rows(u"RPgUrlsB"_s), QStringList{address});
}

TEST_F(CollectTest, SavedPagesOfASiteWithoutARecordSwitchThemselvesOff)
{
    toSavedPages(0);
    window().pages[u"http://www.other.com/"_s] = {};
    window().show(u"http://www.other.com/"_s);
    complete();
    EXPECT_EQ(state(), 0);
    EXPECT_EQ(lastStatus(), u"No data saved for site"_s);
    EXPECT_TRUE(rows(u"RPgUrlsA"_s).isEmpty());
}

TEST_F(CollectTest, WithoutATargetNothingIsCollectedAndTheStateStays)
{
    form.collect.mlngAutoCollectState = 2;
    complete();
    EXPECT_EQ(state(), 2);
    for (int list = 0; list < 5; ++list)
        EXPECT_TRUE(items(list).isEmpty());
}

TEST_F(CollectTest, AThousandPagesInARowKeepWhatTheyFound)
{
    toLinks(0);
    for (int page = 0; page < 1000; ++page) {
        window().pages[address].links = {u"http://www.site%1.com/"_s.arg(page)};
        window().show(address);
        complete();
    }
    EXPECT_EQ(items(0).size(), 1000);
}

TEST_F(CollectTest, OfFramesThatFinishInOneBreathEachHasACollectionBehindIt)
{
    toLinks(0);
    window().pages[address].links = {};
    window().show(address);
    Q_EMIT window().DocumentComplete(address, false);
    window().pages[address].links = found;
    window().show(address);
    Q_EMIT window().DocumentComplete(address, true);
    pump.doEvents();
    EXPECT_EQ(items(0), found);
    EXPECT_EQ(statuses.count(u"2 loaded A"_s), 1) << "one collection is behind both";
}

TEST_F(CollectTest, APageThatFinishesForEverLeavesTheUserAndWaitsTheirTurns)
{
    toLinks(0);
    int collections = 0;
    QObject::connect(&status, &StatusLine::told, &form, [&](const QString &text) {
        if (text == u"Loading"_s && ++collections < 200)
            Q_EMIT window().DocumentComplete(address, false); // the next one in the middle of this one
    });
    complete();
    EXPECT_EQ(collections, 1) << "one a turn";
    EXPECT_TRUE(form.manual.cmdMNStart.isEnabled());
    QEventLoop waiting;
    QTimer::singleShot(1000, &waiting, &QEventLoop::quit);
    waiting.exec();
    EXPECT_GT(collections, 5) << "it goes on";
    EXPECT_LT(collections, 20) << "and leaves most of the time to others";
}

TEST_F(CollectTest, NothingIsCollectedOfAPageThatIsLeftOrABrowserThatIsGone)
{
    toManualPages(0);
    Q_EMIT window().DocumentComplete(address, true);
    window().pages[u"http://www.later.com/"_s].loadTime = 5000;
    window().Navigate(u"http://www.later.com/"_s);
    pump.doEvents();
    EXPECT_TRUE(items(0).isEmpty());
    Q_EMIT window().DocumentComplete(address, true);
    browser.release();
    pump.doEvents();
    EXPECT_TRUE(items(0).isEmpty());
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(CollectTest, APlainListNameDoesNotRefuseGo)
{
    toLinks(form.lists.cboMNList.listIndex());
    EXPECT_FALSE(form.collect.mbNavListCollecting);
}
