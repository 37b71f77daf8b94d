#include "pages/TagContent.h"

#include "PlainFinders.h"
#include "Records.h"
#include "util/QtPrint.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;
using cIEText::Get_HtmlTag_Content;

namespace {
const QStringList none{QString()};

constexpr auto location = "Get_HtmlTag_Content"_L1;

TEST(TagContent, KeepsTheCaseOfTheMarkupAndBeginsAtElementZero)
{
    EXPECT_EQ(Get_HtmlTag_Content(u"<B>", u"</b>", u"<b>One</B> x <B>Two</b>", nullptr),
              (QStringList{u"One"_s, u"Two"_s}));
    EXPECT_EQ(Get_HtmlTag_Content(u"<b", u"</b>", u"<b>One</b>", nullptr), QStringList{u"One"_s});
}

TEST(TagContent, AnEmptyContentCountsToo)
{
    EXPECT_EQ(Get_HtmlTag_Content(u"<b>", u"</b>", u"<b></b><b>x</b>", nullptr), (QStringList{u""_s, u"x"_s}));
}

TEST(TagContent, ATagWithAttributesBeginsInsideThem)
{
    EXPECT_EQ(Get_HtmlTag_Content(u"<a>", u"</a>", u"<a href=x>t</a>", nullptr), QStringList{u"href=x>t"_s});
}

TEST(TagContent, ANearerNextTagEndsTheContentAndIsPassedOver)
{
    EXPECT_EQ(Get_HtmlTag_Content(u"<p>", u"</p>", u"<p>a<p>b</p><p>c</p>", nullptr), (QStringList{u"a"_s, u"c"_s}));
}

TEST(TagContent, ATagMayBeLongerThanWhatIsLeftOfTheMarkup)
{
    EXPECT_EQ(Get_HtmlTag_Content(u"<a href=", u"<", u"<a href=x><a h", nullptr), QStringList{u">"_s});
    EXPECT_EQ(Get_HtmlTag_Content(u"<a href=", u">", u"<a href=\"x<a h>", nullptr), QStringList{u"x<a h"_s});
}

TEST(TagContent, WithoutTagsOrArgumentsThereIsNone)
{
    EXPECT_EQ(Get_HtmlTag_Content(u"<p>", u"</p>", u"text", nullptr), none);
    EXPECT_EQ(Get_HtmlTag_Content(u"", u"</p>", u"<p>a</p>", nullptr), none);
    EXPECT_EQ(Get_HtmlTag_Content(u"<p>", u"", u"<p>a</p>", nullptr), none);
    EXPECT_EQ(Get_HtmlTag_Content(u"<p>", u"</p>", u"", nullptr), none);
}

TEST(TagContent, ATagWithoutEndStartsTheWalkAnew)
{
    const QStringList contents = Get_HtmlTag_Content(u"<b>", u"</b>", u"<b>x</b><b>y", nullptr);
    EXPECT_EQ(contents.size(), 5000);
    EXPECT_EQ(contents.count(u"x"_s), 5000);
    EXPECT_EQ(Get_HtmlTag_Content(u"<b>", u"</b>", u"<b>y", nullptr), none);
}

TEST(TagContent, TenThousandContentsAreTheLimit)
{
    EXPECT_EQ(Get_HtmlTag_Content(u"<b>", u"</b>", u"<b>x</b>"_s.repeated(10001), nullptr).size(), 10000);
}

TEST(TagContent, AnEndDirectlyBehindTheTagEndsTheWalkWithOneRecord)
{
    Records records(location);
    EXPECT_EQ(Get_HtmlTag_Content(u"<b>", u"</b>", u"<b>x</b><b</b><b>y</b>", &records), QStringList{u"x"_s});
    EXPECT_EQ(records.count, 1);
}

TEST(TagContent, ATagOfNothingButItsBracketHasNoContent)
{
    Records records(location);
    EXPECT_EQ(Get_HtmlTag_Content(u">", u"x", u"abc", &records), none);
    EXPECT_EQ(records.count, 0);
    EXPECT_EQ(Get_HtmlTag_Content(u">", u"b", u"abc", &records), none);
    EXPECT_EQ(records.count, 1);
}

TEST(TagContent, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(41);
    const QStringList pieces{u"<b>"_s, u"<B>"_s, u"</b>"_s, u"</B>"_s, u"<b x>"_s, u"a"_s, u"C"_s, u">"_s, u"<b"_s};
    const QStringList tags{u"<b>"_s, u"<B"_s, u"<b>"_s, u"b"_s, u">"_s, u""_s, u"a"_s, u"<b></b>"_s};
    const QStringList endTags{u"</b>"_s, u"</B>"_s, u"</b>"_s, u">"_s, u""_s, u"<b>"_s};
    for (int round = randomRounds(); round > 0; --round) {
        const QString tag = random.oneOf(tags);
        const QString endTag = random.oneOf(endTags);
        QString markup = random.text(pieces, 12);
        if (!random.oneIn(1000))
            markup += endTag; // an open tag uses up all steps
        const plain::Contents expected = plain::Get_HtmlTag_Content(tag, endTag, markup);
        Records records(location);
        ASSERT_EQ(Get_HtmlTag_Content(tag, endTag, markup, &records), expected.list)
            << shown(tag) << shown(endTag) << shown(markup);
        ASSERT_EQ(records.count, expected.errors) << shown(tag) << shown(endTag) << shown(markup);
    }
}

TEST(TagContent, CostsNoMoreThanReadingTheMarkupOnAnyMarkup)
{
    constexpr qsizetype size = 1'000'000;
    EXPECT_EQ(Get_HtmlTag_Content(u"<b>", u"</b>", u"<b>x"_s.repeated(size / 4) + u"</b>"_s, nullptr).size(), 10000);
    EXPECT_EQ(Get_HtmlTag_Content(u"<b>", u"</b>", QString(size, u'a') + u"<b>x</b>"_s + QString(size, u'a') + u"<b>"_s,
                                  nullptr)
                  .size(),
              5000);
}
} // namespace
