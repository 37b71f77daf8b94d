// The row in use as a card: what stands on it, when it is filled, and what is not of its page.
#include "DataSideFixture.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {
class RowCardTest : public DataSideTest
{
  protected:
    RowCardTest()
    {
        addRow(*database, u"SiteSummary"_s,
               {{u"Date"_s, u"2024-05-01"_s},
                {u"Title"_s, u"Harbour"_s},
                {u"Url"_s, u"http://a.com"_s},
                {u"FullPage"_s, u"<p>boats"_s}});
        addRow(*database, u"SiteSummary"_s, {{u"Title"_s, u"Other"_s}, {u"Url"_s, u"http://o.com"_s}});
        addEmail(u"ann@a.com"_s);
        addEmail(u"bob@a.com"_s, u"1"_s, u"HTTP://A.com"_s);
        addEmail(u"eve@o.com"_s, u"2"_s, u"http://o.com"_s);
        addEmail(u"old@x.com"_s, u"1"_s, u"http://x.com"_s);
        addRow(*database, u"PhoneNumber"_s,
               {{u"SSIndex"_s, u"1"_s}, {u"Number"_s, u"212-555-0100"_s}, {u"Url"_s, u"http://a.com"_s}});
    }
    [[nodiscard]] const CardContent &card()
    {
        side.card.show();
        return form.data.crdDBRow.content();
    }
};
} // namespace

TEST_F(RowCardTest, IsClosedAtFirstAndAsksNothingThen)
{
    EXPECT_FALSE(form.data.crdDBRow.isVisible());
    chooseTable(u"SiteSummary"_s);
    EXPECT_EQ(card(), CardContent());
    form.data.chkDBCard.setValue(1);
    EXPECT_TRUE(form.data.crdDBRow.isVisible());
    EXPECT_EQ(form.data.crdDBRow.content().title, u"Harbour"_s) << "filled at once";
    form.data.chkDBCard.setValue(0);
    EXPECT_FALSE(form.data.crdDBRow.isVisible());
}

TEST_F(RowCardTest, OfASummaryRowHoldsItsPageAndWhatWasFoundThere)
{
    form.data.chkDBCard.setValue(1);
    chooseTable(u"SiteSummary"_s);
    const CardContent expected{.title = u"Harbour"_s,
                               .address = u"http://a.com"_s,
                               .date = u"2024-05-01"_s,
                               .found = {u"ann@a.com"_s, u"bob@a.com"_s, u"212-555-0100"_s},
                               .page = u"<p>boats"_s};
    EXPECT_EQ(card(), expected) << "an address that came from another page by an import is not of it";
    grid().select(1, 1);
    EXPECT_EQ(card().title, u"Other"_s);
    EXPECT_EQ(card().found, QStringList{u"eve@o.com"_s});
}

TEST_F(RowCardTest, OfAnAddressHoldsThePageOnWhichItWasFound)
{
    form.data.chkDBCard.setValue(1);
    chooseTable(u"EmailAddress"_s);
    EXPECT_EQ(card().title, u"ann@a.com"_s);
    EXPECT_EQ(card().page, u"<p>boats"_s);
    EXPECT_EQ(card().found.size(), 3);
    grid().select(3, 0);
    EXPECT_EQ(card().address, u"http://x.com"_s);
    EXPECT_TRUE(card().page.isEmpty() && card().found.isEmpty()) << "its number is another page's";
}

TEST_F(RowCardTest, ShowsThePictureThatIsStored)
{
    const QString path = pathOf(u"p.png"_s);
    writeFile(u"p.png"_s, "picture");
    addRow(*database, u"SiteSummary"_s, {{u"Url"_s, u"http://p.com"_s}, {u"Picture"_s, path}});
    form.data.chkDBCard.setValue(1);
    chooseTable(u"SiteSummary"_s);
    grid().select(2, 0);
    EXPECT_EQ(card().picture, "picture");
}

TEST_F(RowCardTest, OfRowsWithoutATableHoldsWhatTheGridShows)
{
    chooseTable(u"SiteSummary"_s);
    form.data.chkDBCard.setValue(1);
    form.data.cboDBTables.setListIndex(-1);
    EXPECT_EQ(card().title, u"Harbour"_s);
    EXPECT_TRUE(card().page.isEmpty());
    grid().setDataSource(nullptr);
    EXPECT_EQ(card(), CardContent());
}

TEST_F(RowCardTest, FollowsTheUserOnceHeRests)
{
    chooseTable(u"SiteSummary"_s);
    form.data.chkDBCard.setValue(1);
    grid().select(1, 0);
    EXPECT_EQ(form.data.crdDBRow.content().title, u"Harbour"_s) << "not at each step of a held key";
    QElapsedTimer time;
    time.start();
    while (form.data.crdDBRow.content().title != u"Other"_s && time.elapsed() < 10'000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    EXPECT_EQ(form.data.crdDBRow.content().title, u"Other"_s);
}

TEST_F(RowCardTest, OpensItsAddressByAClick)
{
    form.data.chkDBCard.setValue(1);
    chooseTable(u"SiteSummary"_s);
    static_cast<void>(card());
    form.data.crdDBRow.follow();
    EXPECT_EQ(browsers.running->navigated, QStringList{u"http://a.com"_s});
}
