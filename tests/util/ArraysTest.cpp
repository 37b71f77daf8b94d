#include "util/Arrays.h"

#include "PlainUtility.h"
#include "QtPrint.h"
#include "RandomText.h"

using namespace Qt::StringLiterals;

namespace {
const QStringList empty{QString()};

TEST(FilterArray, ABlockedTextInAnotherCaseDropsTheItem)
{
    EXPECT_EQ(cUtility::FilterArray({u"http://ADS.com"_s, u"http://b.com"_s}, {u"ads"_s}),
              QStringList{u"http://b.com"_s});
}

TEST(FilterArray, AnEmptyFirstFilterKeepsEverything)
{
    const QStringList items{u""_s, u"a"_s, u""_s};
    EXPECT_EQ(cUtility::FilterArray(items, {u""_s, u"a"_s}), items);
}

TEST(FilterArray, AnEmptyFirstItemGivesTheEmptyList)
{
    EXPECT_EQ(cUtility::FilterArray({u""_s, u"b"_s}, {u"a"_s}), empty);
}

TEST(FilterArray, AnEmptyFilterBehindTheFirstHitsEverything)
{
    EXPECT_EQ(cUtility::FilterArray({u"b"_s, u"c"_s}, {u"a"_s, u""_s}), empty);
}

TEST(FilterArray, EmptyItemsGoAndNothingLeftIsTheEmptyList)
{
    EXPECT_EQ(cUtility::FilterArray({u"b"_s, u""_s, u"c"_s}, {u"a"_s}), (QStringList{u"b"_s, u"c"_s}));
    EXPECT_EQ(cUtility::FilterArray({u"a"_s}, {u"A"_s}), empty);
    EXPECT_EQ(cUtility::FilterArray({}, {u"a"_s}), empty);
    EXPECT_EQ(cUtility::FilterArray({u"a"_s}, {}), QStringList{u"a"_s});
}

TEST(FilterArray, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(4);
    const QStringList pieces{u"a"_s, u"B"_s, u"ab"_s, u"c"_s, u"."_s, u"com"_s, u"k"_s, u"K"_s};
    for (int round = randomRounds(); round > 0; --round) {
        const QStringList items = random.list(pieces, 6, 6);
        const QStringList filters = random.list(pieces, 6, 3);
        ASSERT_EQ(cUtility::FilterArray(items, filters), plain::FilterArray(items, filters))
            << shown(items) << " filters " << shown(filters);
    }
}

TEST(RemoveRepeats, KeepsTheFirstOfExactlyEqualItems)
{
    const QStringList items{u"a"_s, u"A"_s, u""_s, u"a"_s, u""_s, u"b"_s};
    EXPECT_EQ(cUtility::RemoveRepeatsFromArray(items), (QStringList{u"a"_s, u"A"_s, u""_s, u"b"_s}));
    EXPECT_EQ(cUtility::RemoveRepeatsFromArray({}), empty);
}

TEST(RemoveRepeats, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(5);
    const QStringList pieces{u"a"_s, u"A"_s, u"b"_s, u"\u00E9"_s};
    for (int round = randomRounds(); round > 0; --round) {
        const QStringList items = random.list(pieces, 12, 2);
        ASSERT_EQ(cUtility::RemoveRepeatsFromArray(items), plain::RemoveRepeatsFromArray(items)) << shown(items);
    }
}

TEST(RemoveEmptyItems, LeavesOutEmptyOnesOnly)
{
    EXPECT_EQ(cUtility::RemoveEmptyItemsFromArray({u""_s, u"a"_s, u" "_s, u""_s}), (QStringList{u"a"_s, u" "_s}));
    EXPECT_EQ(cUtility::RemoveEmptyItemsFromArray({u""_s}), empty);
}

TEST(RemoveEmptyItems, LeavesOutRowsWithoutContent)
{
    const QList<QStringList> rows{{u""_s, u""_s}, {u""_s, u"x"_s}, {}};
    EXPECT_EQ(cUtility::RemoveEmptyItemsFrom2DArray(rows), (QList<QStringList>{{u""_s, u"x"_s}}));
}
} // namespace
