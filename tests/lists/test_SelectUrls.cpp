// Addresses marked by hand.
#include "lists/SelectUrls.h"
#include "support/ManualFixture.h"

using namespace Qt::StringLiterals;

namespace {
const QString table = u"MNSelectUrls"_s;

class SelectUrlsTest : public ManualTest
{
  protected:
    CheckBox &uniqueServers = form.options.chkSMD(2);
    CheckBox &siteTitle = form.options.chkSMD(5);
    SelectUrls select{context, form.browser, form.options, desk, database, browser};
};
} // namespace

TEST_F(SelectUrlsTest, ThePageOnShowIsMarkedWithItsTitle)
{
    siteTitle.setValue(1);
    showPage(u"http://www.tea.com/a"_s, {}, u"Tea"_s);
    select.AddSelectUrls(u"ANSelectUrls"_s, {});
    EXPECT_EQ(lastStatus(), u"ANSelectUrls, Url Added"_s);
    EXPECT_EQ(rows(u"ANSelectUrls"_s), QStringList{u"http://www.tea.com/a"_s});
    EXPECT_EQ(rows(u"ANSelectUrls"_s, u"Note"_s), QStringList{u"Tea"_s});
    select.AddSelectUrls(u"ANSelectUrls"_s, {});
    EXPECT_EQ(lastStatus(), u"Url exists"_s);
}

TEST_F(SelectUrlsTest, WithUniqueServersTwoPagesOfOneServerAreOne)
{
    siteTitle.setValue(1);
    uniqueServers.setValue(1);
    showPage(u"http://www.tea.com/a"_s, {}, u"Tea"_s);
    select.AddSelectUrls(table, {});
    showPage(u"http://www.tea.com/b"_s, {}, u"Tea again"_s);
    select.AddSelectUrls(table, {});
    EXPECT_EQ(lastStatus(), u"Url exists"_s);
    EXPECT_EQ(rows(table), QStringList{u"www.tea.com"_s});
}

TEST_F(SelectUrlsTest, AnItemOfABaseIsTakenUntestedAndWhole)
{
    uniqueServers.setValue(1);
    siteTitle.setValue(1);
    useBase(true);
    select.AddSelectUrls(table, u"17/more"_s);
    EXPECT_EQ(rows(table), QStringList{u"17/more"_s});
    EXPECT_EQ(rows(table, u"Note"_s), QStringList{u"Use Base List Item"_s});
}

TEST_F(SelectUrlsTest, CancellingTheNoteAddsNothing)
{
    select.AddSelectUrls(table, u"http://www.tea.com/a"_s);
    EXPECT_EQ(lastStatus(), u"Not added. No Note provided"_s);
    EXPECT_TRUE(rows(table).isEmpty());
    ASSERT_EQ(dialogs.inputs.size(), 1);
    EXPECT_EQ(dialogs.inputs[0].title, u"Site Note"_s);
    EXPECT_EQ(dialogs.inputs[0].text, u"Enter a note for site."_s);
    EXPECT_EQ(dialogs.inputs[0].prompt, u"Check this site"_s);
}

TEST_F(SelectUrlsTest, ABlankPageIsNoSite)
{
    siteTitle.setValue(1);
    showPage(u"about:blank"_s, {}, u"Blank"_s);
    select.AddSelectUrls(table, {});
    EXPECT_EQ(lastStatus(), u"Browser is not on a site"_s);
    select.AddSelectUrls(table, u"no link at all"_s);
    EXPECT_EQ(lastStatus(), u"Browser is not on a site"_s);
}

TEST_F(SelectUrlsTest, NothingIsMarkedWithoutABrowserOrATable)
{
    select.AddSelectUrls({}, u"http://www.tea.com/a"_s);
    EXPECT_TRUE(statuses.isEmpty());
    form.browser.mbInitialized = false;
    select.AddSelectUrls(table, u"http://www.tea.com/a"_s);
    EXPECT_EQ(lastStatus(), u"Not initialized"_s);
}

TEST_F(SelectUrlsTest, AQuoteEndsInTheLog)
{
    dialogs.inputAnswers = {u"note"_s};
    select.AddSelectUrls(table, u"http://www.tea.com/o'a"_s);
    EXPECT_TRUE(log.locations().contains(u"Sub AddSelectUrls"_s));
    EXPECT_TRUE(statuses.isEmpty());
    EXPECT_TRUE(rows(table).isEmpty());
}

TEST_F(SelectUrlsTest, ALongAddressIsFoundAgain)
{
    const QString url = u"http://www.tea.com/"_s + QString(300, u'x');
    dialogs.inputAnswers = {u"note"_s, u"note"_s};
    select.AddSelectUrls(table, url);
    select.AddSelectUrls(table, url);
    EXPECT_EQ(lastStatus(), u"Url exists"_s);
    EXPECT_EQ(rows(table), QStringList{url.left(255)});
}
