// One page as one screening sees it: read once, the same for all who ask.
#include "driver/PageReading.h"

#include "support/FormFixture.h"

using namespace Qt::StringLiterals;

namespace {
const QString address = u"http://www.tea.com/"_s;

class PageReadingTest : public FormTest
{
  protected:
    PageReadingTest() { put(u"green"_s); }
    /// What stands in the browser from now on.
    void put(const QString &word)
    {
        FakePage &shown = window().pages[address];
        shown.html = u"<p>"_s + word;
        shown.title = shown.text = word;
        shown.links = {u"http://www."_s + word + u".com/"_s};
        window().show(address);
    }

    PageReading page{browser};
};
} // namespace

TEST_F(PageReadingTest, NothingIsReadBeforeItIsAskedFor)
{
    EXPECT_FALSE(page.isAsked());
    EXPECT_EQ(window().reads, 0);
}

TEST_F(PageReadingTest, EachKindOfContentIsReadOnceAndStaysAsItWas)
{
    EXPECT_EQ(page.html(), u"<p>green"_s);
    EXPECT_EQ(page.text(), u"green"_s);
    EXPECT_EQ(page.links(), QStringList{u"http://www.green.com/"_s});
    const int reads = window().reads;
    put(u"black"_s);
    EXPECT_EQ(page.html(), u"<p>green"_s);
    EXPECT_EQ(page.title(), u"green"_s) << "of the same reading as the markup";
    EXPECT_EQ(page.url(), address);
    EXPECT_EQ(page.text(), u"green"_s);
    EXPECT_EQ(page.links(), QStringList{u"http://www.green.com/"_s});
    EXPECT_EQ(window().reads, reads);
}

TEST_F(PageReadingTest, ForgottenItIsReadAnew)
{
    EXPECT_EQ(page.html(), u"<p>green"_s);
    EXPECT_EQ(page.links(), QStringList{u"http://www.green.com/"_s});
    put(u"black"_s);
    page.forget();
    EXPECT_FALSE(page.isAsked());
    EXPECT_EQ(page.html(), u"<p>black"_s);
    EXPECT_EQ(page.text(), u"black"_s);
    EXPECT_EQ(page.links(), QStringList{u"http://www.black.com/"_s});
}

TEST_F(PageReadingTest, APageThatIsNotGivenIsEmptyAndAskedForOnce)
{
    window().pages[address].readingFails = RuntimeError(50'001, u"took too long"_s);
    window().show(address);
    EXPECT_FALSE(page.isReadable());
    EXPECT_TRUE(page.isAsked());
    EXPECT_EQ(page.html(), QString());
    EXPECT_EQ(page.url(), QString());
    EXPECT_EQ(log.entries.size(), 1) << "one failure, one record";
    put(u"green"_s);
    EXPECT_FALSE(page.isReadable()) << "the screening has begun without it";
}
