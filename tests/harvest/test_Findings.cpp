// What a page holds of mail addresses and numbers, as the user wants them.
#include "PageFixture.h"

using namespace Qt::StringLiterals;

namespace {
class FindingsTest : public PageTest
{
  protected:
    /// The page on show, read.
    PageReading page(const QString &html)
    {
        const QString address = u"http://www.site1.com/"_s;
        window().pages[address].html = html;
        window().show(address);
        return PageReading(browser);
    }
    [[nodiscard]] QStringList emails(const QString &html)
    {
        PageReading reading = page(html);
        return findings.emails(reading);
    }
    [[nodiscard]] QStringList phones(const QString &html)
    {
        PageReading reading = page(html);
        return findings.phones(reading);
    }
};
} // namespace

TEST_F(FindingsTest, EachAddressStandsOnceInTheOrderOfThePage)
{
    EXPECT_EQ(emails(u"<p> bob@tea.com ann@tea.com bob@tea.com </p>"_s),
              (QStringList{u"bob@tea.com"_s, u"ann@tea.com"_s}));
}

TEST_F(FindingsTest, APageOfAFewCharactersHasNoAddresses)
{
    PageReading reading = page(u"a@b.c xyz"_s); // nine characters
    EXPECT_THROW(static_cast<void>(findings.emails(reading)), RuntimeError);
}

TEST_F(FindingsTest, APageWithoutAnyIsTheEmptyList)
{
    EXPECT_EQ(emails(u"<p>nothing of interest stands here</p>"_s), emptyList());
    EXPECT_EQ(phones(u"<p>nothing of interest stands here</p>"_s), emptyList());
}

TEST_F(FindingsTest, BlockedTextsKeepAddressesOutWhileBlockingIsOn)
{
    const QString html = u"<p> bob@tea.com ann@milk.com and others </p>"_s;
    form.blocking.email.items.addItem(u"TEA.com"_s);
    EXPECT_EQ(emails(html).size(), 2);
    form.blocking.email.on.setValue(1);
    EXPECT_EQ(emails(html), QStringList{u"ann@milk.com"_s});
}

TEST_F(FindingsTest, NumbersAreThoseOfTheChosenAreaCodesEachOnce)
{
    const QString html = u"<p>call 212-555-0100 or 303-555-0101 or (212) 555-0100 now</p>"_s;
    EXPECT_EQ(phones(html), (QStringList{u"3035550101"_s, u"2125550100"_s})) << "in the order of the area codes";
    form.areaCodes.txtSBSelAreaCodes.setText(u" 303 "_s);
    EXPECT_EQ(phones(html), QStringList{u"3035550101"_s});
}

TEST_F(FindingsTest, FaxNumbersAloneWhereTheOptionSaysSo)
{
    const QString html =
        u"<p>call 212-555-0100 at any time of the day that suits you. Fax: 303-555-0101, day and night</p>"_s;
    EXPECT_FALSE(findings.faxOnly());
    form.options.chkSMD(SMD::FaxOnly).setValue(1);
    EXPECT_TRUE(findings.faxOnly());
    EXPECT_EQ(phones(html), QStringList{u"3035550101"_s});
}
