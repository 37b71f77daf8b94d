#include "pages/PageTexts.h"

#include "util/PlainUtility.h"
#include "util/QtPrint.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto ignored = Qt::CaseInsensitive;
constexpr auto minded = Qt::CaseSensitive;

Screening refusedBy(qsizetype item)
{
    return {false, item};
}

TEST(MustContain, AllWithOneMissingItemNamesExactlyThatItem)
{
    EXPECT_EQ(mustContain(u"one two", {u"one"_s, u"three"_s, u"four"_s}, Demand::All, ignored), refusedBy(1));
    EXPECT_EQ(mustContain(u"One TWO", {u"oNe"_s, u"two"_s}, Demand::All, ignored), Screening{});
    EXPECT_EQ(mustContain(u"One TWO", {u"One"_s, u"two"_s}, Demand::All, minded), refusedBy(1));
}

TEST(MustContain, AnyTakesTheFirstOfTheListThatIsFound)
{
    EXPECT_EQ(mustContain(u"c b", {u"a"_s, u"b"_s, u"c"_s}, Demand::Any, ignored), (Screening{true, 1}));
    EXPECT_EQ(mustContain(u"x", {u"a"_s, u"b"_s}, Demand::Any, ignored), refusedBy(-1));
}

TEST(MustContain, SelectWithNothingSelectedTestsNothing)
{
    EXPECT_EQ(mustContain(u"x", {}, Demand::Select, ignored), Screening{});
    EXPECT_EQ(mustContain(u"x", {u"a"_s}, Demand::Select, ignored), refusedBy(0));
}

TEST(MustContain, AnEmptyListLetsEveryPageGo)
{
    EXPECT_TRUE(mustContain(u"", {}, Demand::Any, ignored).mayGo);
    EXPECT_TRUE(mustContain(u"", {}, Demand::All, ignored).mayGo);
}

TEST(MustContain, AnEmptyItemCountsAsFoundButNotOnAnEmptyPage)
{
    EXPECT_TRUE(mustContain(u"page", {u""_s}, Demand::All, ignored).mayGo);
    EXPECT_EQ(mustContain(u"page", {u"x"_s, u""_s}, Demand::Any, ignored), (Screening{true, 1}));
    EXPECT_EQ(mustContain(u"", {u""_s}, Demand::All, ignored), refusedBy(0));
}

TEST(MustNotContain, TheFirstOfTheListThatIsFoundRefusesThePage)
{
    EXPECT_EQ(mustNotContain(u"c b", {u"a"_s, u"B"_s, u"c"_s}, ignored), refusedBy(1));
    EXPECT_EQ(mustNotContain(u"c b", {u"a"_s, u"B"_s, u"c"_s}, minded), refusedBy(2));
    EXPECT_EQ(mustNotContain(u"c b", {u"x"_s}, ignored), Screening{});
    EXPECT_EQ(mustNotContain(u"c b", {}, ignored), Screening{});
    EXPECT_EQ(mustNotContain(u"c b", {u""_s}, ignored), refusedBy(0));
    EXPECT_EQ(mustNotContain(u"", {u""_s}, ignored), Screening{});
}

TEST(Screening, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(6);
    const QStringList pieces{u"a"_s, u"B"_s, u"b"_s,      u"ab"_s,     u"c"_s,
                             u"k"_s, u"K"_s, u"\u00E9"_s, u"\u00C9"_s, u"xyzzy"_s};
    constexpr Demand demands[] = {Demand::All, Demand::Any, Demand::Select};
    for (int round = randomRounds(); round > 0; --round) {
        const QString page = random.text(pieces, random.oneIn(20) ? 200 : 20);
        const QStringList items = random.list(pieces, random.oneIn(50) ? 200 : 6, 3);
        const bool isMinded = random.oneIn(2);
        const int mode = random.number(0, 2);
        const plain::Decision must = plain::IsMCGo(page, items, mode, isMinded);
        ASSERT_EQ(mustContain(page, items, demands[mode], isMinded ? minded : ignored),
                  (Screening{must.mayGo, must.item}))
            << shown(page) << " items " << shown(items) << " mode " << mode << " minded " << isMinded;
        const plain::Decision mustNot = plain::IsMNCGo(page, items, isMinded);
        ASSERT_EQ(mustNotContain(page, items, isMinded ? minded : ignored), (Screening{mustNot.mayGo, mustNot.item}))
            << shown(page) << " items " << shown(items) << " minded " << isMinded;
    }
}

TEST(QuickBlock, RefusesWhatHoldsABlockedText)
{
    EXPECT_FALSE(NotQB(u"http://Ads.com/", {u"x"_s, u"ads"_s}));
    EXPECT_TRUE(NotQB(u"http://b.com/", {u"x"_s, u"ads"_s}));
    EXPECT_TRUE(NotQB(u"http://ads.com/", {u""_s, u"ads"_s}));
    EXPECT_FALSE(NotQB(u"http://b.com/", {u"x"_s, u""_s}));
    EXPECT_TRUE(NotQB(u"http://b.com/", {}));
}

TEST(StringSegment, WithoutTagsIsTheWholeText)
{
    EXPECT_EQ(GetStringSegment(u"abc"_s, u"", u""), (StringSegment{u"abc"_s}));
}

TEST(StringSegment, AStartTagAloneCutsItsLengthLessOneFromTheLeft)
{
    EXPECT_EQ(GetStringSegment(u"0123<B>x"_s, u"<b>", u""),
              (StringSegment{u"23<B>x"_s, TagReport::Found, TagReport::NotInUse}));
    EXPECT_EQ(GetStringSegment(u"0123"_s, u"<b>", u""),
              (StringSegment{u"0123"_s, TagReport::Missing, TagReport::NotInUse}));
}

TEST(StringSegment, AStopTagAloneKeepsWhatStandsBeforeIt)
{
    EXPECT_EQ(GetStringSegment(u"01</B>x"_s, u"", u"</b>"),
              (StringSegment{u"01"_s, TagReport::NotInUse, TagReport::Found}));
    EXPECT_EQ(GetStringSegment(u"01x"_s, u"", u"</b>"),
              (StringSegment{u"01x"_s, TagReport::NotInUse, TagReport::Missing}));
}

TEST(StringSegment, BothTagsAreLeftOut)
{
    EXPECT_EQ(GetStringSegment(u"0<b>in</b>9"_s, u"<b>", u"</b>"),
              (StringSegment{u"in"_s, TagReport::Found, TagReport::Found}));
    EXPECT_EQ(GetStringSegment(u"0in</b>9"_s, u"<b>", u"</b>"),
              (StringSegment{u"0in"_s, TagReport::Missing, TagReport::Found}));
    EXPECT_EQ(GetStringSegment(u"0in9"_s, u"<b>", u"</b>"),
              (StringSegment{u"0in9"_s, TagReport::Missing, TagReport::Missing}));
}

TEST(StringSegment, AStopTagBeforeTheStartTagGivesEverythingBehindTheStartTag)
{
    EXPECT_EQ(GetStringSegment(u"a</b>c<b>rest"_s, u"<b>", u"</b>"),
              (StringSegment{u"rest"_s, TagReport::Found, TagReport::Missing}));
}

TEST(StringSegment, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(7);
    const QStringList pieces{u"a"_s, u"A"_s, u"b"_s, u"<b>"_s, u"</B>"_s, u"<B>"_s};
    for (int round = randomRounds(); round > 0; --round) {
        const QString text = random.text(pieces, 10);
        const QString start = random.text(pieces, 1);
        const QString stop = random.text(pieces, 1);
        const plain::Segment expected = plain::GetStringSegment(text, start, stop);
        ASSERT_EQ(GetStringSegment(text, start, stop),
                  (StringSegment{expected.text, TagReport(expected.start), TagReport(expected.stop)}))
            << shown(text) << shown(start) << shown(stop);
    }
}
} // namespace
