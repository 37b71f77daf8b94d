// What feeds a manual list: pages, the clipboard, drops, files.
#include "lists/ListFile.h"
#include "lists/ManualFeed.h"
#include "support/ManualFixture.h"
#include "util/ColumnText.h"
#include "util/RandomText.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto link = cIEText::TextKind::Link;
const QString crLf = u"\r\n"_s;

class ManualFeedTest : public ManualTest
{
  protected:
    QString paste(const QString &text, cIEText::TextKind wanted = link)
    {
        clipboard.held = text;
        feed.PasteEmailLinksTextToListBox(list(), crLf, wanted);
        return lastStatus();
    }

    SiteRecords records{log, database, browser};
    ResultLinks results{log, form.options, form.blocking.urls, browser, records};
    DiscoveredLinks links{log, form.urlFilter, form.blocking, form.options, browser, records, results};
    ManualFeed feed{context, desk, form.options, links, clipboard, work};
};
} // namespace

TEST_F(ManualFeedTest, LinksOfThePageJoinTheListWithoutThoseItHas)
{
    showPage(u"http://www.tea.com/"_s,
             {u"http://a.com/1"_s, u"http://A.com/1"_s, u"http://a.com/1"_s, u"http://b.com/"_s});
    form.lists.lstMN(2).setItems({u"HTTP://b.com/"_s});
    EXPECT_EQ(feed.LoadBrowserLinks(2), u"3 loaded C"_s);
    EXPECT_EQ(form.lists.lstMN(2).items(), (QStringList{u"HTTP://b.com/"_s, u"http://a.com/1"_s, u"http://A.com/1"_s}))
        << "repeats of the very same address go, and what the list has in any case";
    EXPECT_EQ(lastStatus(), u"Loading"_s);
}

TEST_F(ManualFeedTest, APageWithoutLinksAddsNothingAndIsStillTold)
{
    showPage(u"http://www.tea.com/"_s, {});
    list().setItems({u"x"_s});
    EXPECT_EQ(feed.LoadBrowserLinks(0), u"1 loaded A"_s);
    EXPECT_EQ(list().items(), QStringList{u"x"_s});
}

TEST_F(ManualFeedTest, WithoutABrowserTheMessageStands)
{
    browser.release();
    EXPECT_EQ(feed.LoadBrowserLinks(0), u"0 loaded A"_s);
    EXPECT_TRUE(form.manual.cmdMNStart.isEnabled()) << "the controls came back";
}

TEST_F(ManualFeedTest, TheFilterAndUniqueServersChooseAmongTheLinks)
{
    showPage(u"http://www.tea.com/"_s,
             {u"http://www.a.com/tea"_s, u"http://www.a.com/te%61"_s, u"http://www.b.com/x"_s});
    form.urlFilter.cboMNMCMNCFilter.setText(u"TEA"_s);
    form.urlFilter.cboMNMCMNC.setListIndex(1);
    EXPECT_EQ(links.DiscoverLinks(DiscoveredLinks::Use::AllLinks), QStringList{u"http://www.a.com/tea"_s});
    form.options.chkSMA(1).setValue(1);
    EXPECT_EQ(links.DiscoverLinks(DiscoveredLinks::Use::AllLinks), QStringList{u"http://www.a.com/tea"_s})
        << "escapes are read, then repeats go";
    form.urlFilter.cboMNMCMNC.setListIndex(2);
    EXPECT_EQ(links.DiscoverLinks(DiscoveredLinks::Use::AllLinks), QStringList{u"http://www.b.com/x"_s});
    form.urlFilter.cboMNMCMNC.setListIndex(0);
    form.options.chkSMA(9).setValue(1);
    EXPECT_EQ(feed.LoadBrowserLinks(0), u"2 loaded A"_s);
    EXPECT_EQ(list().items(), (QStringList{u"http://www.a.com/tea"_s, u"http://www.b.com/x"_s}));
}

TEST_F(ManualFeedTest, BlockedTextsKeepLinksOut)
{
    showPage(u"http://www.tea.com/"_s, {u"http://www.a.com/ad"_s, u"http://www.b.com/x"_s});
    form.blocking.urls.items.setItems({u"/AD"_s});
    form.blocking.urls.on.setValue(1);
    EXPECT_EQ(links.DiscoverLinks(DiscoveredLinks::Use::AllLinks), QStringList{u"http://www.b.com/x"_s});
}

TEST_F(ManualFeedTest, SiteDataIsUsedWhereThePageHasARecord)
{
    showPage(u"http://www.seek.com/?q=tea"_s, {u"http://www.seek.com/help"_s, u"http://a.com/"_s});
    addRow(*database, u"SearchSites"_s,
           {{u"SiteName"_s, u"Seek"_s}, {u"Url-1"_s, u"www.seek.com"_s}, {u"UrlMNC-1"_s, u"seek<~Dorv~>0"_s}});
    EXPECT_EQ(links.DiscoverLinks(DiscoveredLinks::Use::AllLinks).size(), 2);
    EXPECT_EQ(links.DiscoverLinks(DiscoveredLinks::Use::SiteData), QStringList{u"http://a.com/"_s});
    form.menus.mnuPopUpMN.item(u"mnuMNUseSiteData"_s).setChecked(true);
    EXPECT_EQ(feed.LoadBrowserLinks(0), u"1 loaded A"_s);
    showPage(u"http://www.tea.com/"_s, {u"http://www.seek.com/help"_s});
    EXPECT_EQ(feed.LoadBrowserLinks(0), u"2 loaded A"_s) << "a site without a record gives all its links";
}

TEST_F(ManualFeedTest, PastedLinksAreAddedRepeatsAndAll)
{
    list().setItems({u"http://a.com"_s});
    EXPECT_EQ(paste(u"http://a.com\r\n\r\nno link\r\nme@b.com\r\nhttp://c.com\r\n"_s), u"3 loaded.  2 added"_s);
    EXPECT_EQ(list().items(), (QStringList{u"http://a.com"_s, u"http://a.com"_s, u"http://c.com"_s}));
    EXPECT_EQ(states.calls, 1);
    EXPECT_EQ(paste(u"http://d.com\nhttp://e.com"_s), u"5 loaded.  2 added"_s) << "other programs end lines with LF";
}

TEST_F(ManualFeedTest, EveryMixtureOfLineEndsIsTakenLikeItsPlainTelling)
{
    useBase(true);
    RandomText random(5);
    for (int round = 0; round < 300; ++round) {
        const QString text = random.text({u"\r"_s, u"\n"_s, u"\r\n"_s, u"ab"_s}, 12) + u'\n';
        list().clear();
        static_cast<void>(paste(text));
        QStringList plain;
        for (const QString &line : QString(text).replace("\r\n"_L1, "\n"_L1).split(u'\n', Qt::SkipEmptyParts))
            plain.append(cUtility::asColumnText(cUtility::MultipleLinesToSingle(line)));
        ASSERT_EQ(list().items(), plain) << "round " << round;
    }
}

TEST_F(ManualFeedTest, AListOfAddressesTakesNoLinks)
{
    EXPECT_EQ(paste(u"http://a.com\r\nme@b.com"_s, cIEText::TextKind::Email), u"1 loaded.  1 added"_s);
    EXPECT_EQ(list().items(), QStringList{u"me@b.com"_s});
}

TEST_F(ManualFeedTest, OneAddressWithoutTheDelimiterCountsAsNoneAndStandsInTheList)
{
    EXPECT_EQ(paste(u"http://a.com"_s), u"1 loaded.  0 added"_s);
    EXPECT_EQ(list().items(), QStringList{u"http://a.com"_s});
}

TEST_F(ManualFeedTest, APastedItemOf300CharactersIsCutAndTestedAt255)
{
    const QString longLink = u"http://a.com/"_s + QString(300, u'x');
    paste(longLink);
    EXPECT_EQ(list().items(), QStringList{longLink.left(255)});
    list().clear();
    paste(QString(250, u'x') + u" http://a.com"_s);
    EXPECT_EQ(list().listCount(), 0) << "its server type is beyond the cut";
}

TEST_F(ManualFeedTest, AnEmptyClipboardOrOneWithAPictureDoesNothing)
{
    EXPECT_EQ(paste({}), QString());
    EXPECT_EQ(states.calls, 0);
}

TEST_F(ManualFeedTest, WithABaseAnyTextIsPasted)
{
    useBase(true);
    paste(u"17\r\nit's\r\n18"_s);
    EXPECT_EQ(list().items(), (QStringList{u"17"_s, u"it's"_s, u"18"_s}));
}

TEST_F(ManualFeedTest, DroppedLinesAreAddedOnceAndWhatIsNoLinkIsTold)
{
    list().setItems({u"HTTP://a.com"_s});
    feed.drop(0, u"http://a.com\r\nhttp://b.com\nhttp://B.com\r\n"_s);
    EXPECT_EQ(list().items(), (QStringList{u"HTTP://a.com"_s, u"http://b.com"_s}));
    EXPECT_EQ(lastStatus(), u"2 loaded"_s);
    feed.drop(0, u"just words"_s);
    EXPECT_EQ(lastStatus(), u"2 loaded. InValid Url"_s);
    EXPECT_EQ(statuses[0], u"Please Wait"_s);
}

TEST_F(ManualFeedTest, DroppingInASeriesAddsNothing)
{
    list().setItems({u"x"_s});
    setSeries(2);
    feed.drop(0, u"http://b.com"_s);
    EXPECT_EQ(list().listCount(), 1);
    EXPECT_EQ(lastStatus(), u"1 loaded. (AutoIncr ON)"_s);
}

TEST_F(ManualFeedTest, DroppedFilesAreRead)
{
    const QString one = file(u"one.txt"_s, "http://a.com\r\nhttp://b.com\r\n");
    const QString two = file(u"two.txt"_s, "http://B.com\nnothing\n");
    feed.drop(1, one + crLf + two);
    EXPECT_EQ(form.lists.lstMN(1).items(), (QStringList{u"http://a.com"_s, u"http://b.com"_s}));
    EXPECT_EQ(lastStatus(), u"2 loaded. InValid Url"_s);
}

TEST_F(ManualFeedTest, ADroppedFileThatGivesNothingIsToldByItsName)
{
    const QString one = file(u"one.txt"_s, "http://a.com\r\nnothing\r\n");
    const QString huge = file(u"huge.txt"_s, {});
    ASSERT_TRUE(QFile::resize(huge, ListFile::longest + 1)); // takes no room on the disk
    feed.drop(0, one + crLf + huge);
    EXPECT_EQ(list().items(), QStringList{u"http://a.com"_s});
    EXPECT_EQ(lastStatus(), u"1 loaded. Size > 256 MB: huge.txt"_s);
}

TEST_F(ManualFeedTest, LinksOfAFileJoinTheListOnce)
{
    const QString path = file(u"list.txt"_s, "http://a.com\r\nhttp://b.com\r\nhttp://a.com\r\nme@b.com\r\n");
    list().setItems({u"http://B.com"_s});
    EXPECT_EQ(feed.loadFile(list(), path), QString());
    EXPECT_EQ(list().items(), (QStringList{u"http://B.com"_s, u"http://a.com"_s}));
    EXPECT_EQ(feed.loadFile(list(), file(u"bad.txt"_s, "a\r\nb\r\n")), u"InValid Url"_s);
    EXPECT_EQ(feed.loadFile(list(), folder.filePath(u"none.txt"_s)), u"No such file"_s);
    EXPECT_EQ(list().listCount(), 2);
    useBase(true);
    EXPECT_EQ(feed.loadFile(list(), file(u"base.txt"_s, "a\r\nb\r\n")), QString());
    EXPECT_EQ(list().listCount(), 4);
}

TEST_F(ManualFeedTest, CancellingKeepsWhatTheListHeld)
{
    list().setItems({u"x"_s});
    const QString path = file(u"list.txt"_s, "http://a.com\r\nhttp://b.com\r\n");
    EXPECT_TRUE(work.run(u"Loading"_s, [&] {
        work.cancel();
        EXPECT_EQ(feed.loadFile(list(), path), u"Cancelled"_s);
    }));
    cancelSoon();
    feed.drop(0, u"http://a.com\r\nhttp://b.com"_s);
    EXPECT_EQ(lastStatus(), u"1 loaded. Cancelled"_s);
    EXPECT_EQ(list().items(), QStringList{u"x"_s});
}

TEST_F(ManualFeedTest, CountsAndSelectionAreToldInTheirWords)
{
    list().setItems({u"a"_s, u"b"_s, u"c"_s});
    desk.ShowSelected();
    EXPECT_TRUE(statuses.isEmpty()) << "nothing is selected";
    choose(1, {1});
    desk.ShowSelected();
    EXPECT_EQ(lastStatus(), u"1 Sel. Item 2 Cnt 3"_s);
    choose(1, {0, 1});
    desk.ShowSelected();
    EXPECT_EQ(lastStatus(), u"2 Sel Cnt 3"_s);
    desk.ShowCount(u"Selected"_s);
    EXPECT_EQ(lastStatus(), u"3 loaded. Selected"_s);
    desk.ShowCountMN(4);
    EXPECT_EQ(lastStatus(), u"0 loaded"_s);
}

TEST_F(ManualFeedTest, ABaseTakesTheItemWhereItSaysSo)
{
    const auto url = [&](const QString &base, int mode) {
        form.series.cboMNAutoUrl.setText(base);
        return desk.GetUseBaseUrl(mode);
    };
    EXPECT_EQ(url(u"http://a.com/"_s, 1), QString()) << "an empty list";
    list().setItems({u"17"_s, u"18"_s});
    EXPECT_EQ(url(u"http://a.com/"_s, 1), u"17"_s) << "none chosen: the first";
    choose(1, {});
    EXPECT_EQ(url(u"http://a.com/"_s, 1), u"18"_s);
    EXPECT_EQ(url(u"http://a.com/"_s, 2), u"http://a.com/"_s);
    EXPECT_EQ(url(u"http://a.com/"_s, 3), QString());
    useBase(true);
    EXPECT_EQ(url(u"http://a.com/"_s, 1), u"http://a.com/18"_s);
    EXPECT_EQ(url(u"http://~ins~.com/~ins~"_s, 2), u"http://18.com/18"_s) << "both places";
    EXPECT_EQ(url({}, 2), u"18"_s);
}
