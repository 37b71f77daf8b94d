// The stages of the filter chain, each on its own.
#include "pages/LinkStages.h"

#include "sites/SiteRecords.h"
#include "support/Fakes.h"
#include "util/AddressList.h"

using namespace Qt::StringLiterals;

namespace {
const QStringList none = emptyList();

QString counted(const QString &text, const QString &count)
{
    return text + u"<~Dorv~>"_s + count;
}
} // namespace

// A value of two parts.

namespace {
struct PartCase
{
    int part;
    QString value, result;
};
class Parts : public testing::TestWithParam<PartCase>
{
};
} // namespace

TEST_P(Parts, AreTakenApartAtTheMarker)
{
    EXPECT_EQ(SeparateSD(GetParam().part, GetParam().value), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    SeparateSD, Parts,
    testing::Values(PartCase{0, u"text<~Dorv~>3"_s, u"text"_s}, PartCase{1, u"text<~Dorv~>3"_s, u"3"_s},
                    PartCase{2, u"text<~Dorv~>3"_s, u""_s}, PartCase{0, u"no marker"_s, u"no marker"_s},
                    PartCase{1, u"no marker"_s, u"no marker"_s}, PartCase{7, u"no marker"_s, u"no marker"_s},
                    PartCase{0, u"<~Dorv~>3"_s, u""_s}, PartCase{1, u"<~Dorv~>3"_s, u""_s},
                    PartCase{1, u"a<~Dorv~>b<~Dorv~>c"_s, u"b"_s}, PartCase{1, u"a<~Dorv~>"_s, u""_s},
                    PartCase{0, u""_s, u""_s}));

// Start and stop.

namespace {
struct StartStopCase
{
    const char *tag;
    QStringList begin, end, kept;
};

void PrintTo(const StartStopCase &row, std::ostream *out)
{
    *out << row.tag;
}

class StartStop : public testing::TestWithParam<StartStopCase>
{
};
} // namespace

TEST_P(StartStop, KeepsTheLinksBetween)
{
    const QStringList links{u"top"_s,   u"Begin"_s,          u"one"_s, u"two"_s, u"END"_s,
                            u"after"_s, u"both-begin-end"_s, u"last"_s};
    EXPECT_EQ(LinkStages::startStop(links, GetParam().begin, GetParam().end), GetParam().kept);
}

INSTANTIATE_TEST_SUITE_P(
    LinkStages, StartStop,
    testing::Values(
        StartStopCase{"no field",
                      none,
                      none,
                      {u"top"_s, u"Begin"_s, u"one"_s, u"two"_s, u"END"_s, u"after"_s, u"both-begin-end"_s, u"last"_s}},
        StartStopCase{"end alone: the link with the end text is left out",
                      none,
                      {u"end"_s},
                      {u"top"_s, u"Begin"_s, u"one"_s, u"two"_s}},
        StartStopCase{"begin alone: to the end of the page",
                      {u"TWO"_s},
                      none,
                      {u"END"_s, u"after"_s, u"both-begin-end"_s, u"last"_s}},
        StartStopCase{
            "both: the link with the end text is taken", {u"begin"_s}, {u"end"_s}, {u"one"_s, u"two"_s, u"END"_s}},
        StartStopCase{
            "both on one link: it starts, and its end text is not tested", {u"both"_s}, {u"end"_s}, {u"last"_s}},
        StartStopCase{
            "several begin texts: any of them", {u"nowhere"_s, u"after"_s}, none, {u"both-begin-end"_s, u"last"_s}},
        StartStopCase{"several end texts: any of them", none, {u"nowhere"_s, u"one"_s}, {u"top"_s, u"Begin"_s}},
        StartStopCase{"a begin text that never occurs takes nothing", {u"nowhere"_s}, none, none},
        StartStopCase{"an end text on the first link takes nothing", none, {u"top"_s}, none}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST(LinkStages, ResolvesPercentEscapesAndKeepsNumberAndOrder)
{
    EXPECT_EQ(LinkStages::cnvHex({u"http://a.com/%41"_s, u"http://b.com/plain"_s, u"http://c.com/%2F"_s}),
              (QStringList{u"http://a.com/A"_s, u"http://b.com/plain"_s, u"http://c.com//"_s}));
}

// Length.

namespace {
struct LengthCase
{
    QString rule;
    QStringList kept;
};
class Lengths : public testing::TestWithParam<LengthCase>
{
};
const QStringList oneToFour{u"a"_s, u"bb"_s, u"ccc"_s, u"dddd"_s};
} // namespace

TEST_P(Lengths, KeepTheLinksThatFit)
{
    EXPECT_EQ(LinkStages::minMax(oneToFour, GetParam().rule), GetParam().kept) << GetParam().rule.toStdString();
}

INSTANTIATE_TEST_SUITE_P(LinkStages, Lengths,
                         testing::Values(LengthCase{counted(u"0"_s, u"2"_s), {u"bb"_s}},
                                         LengthCase{counted(u"1"_s, u"2"_s), {u"ccc"_s, u"dddd"_s}},
                                         LengthCase{counted(u"2"_s, u"2"_s), {u"a"_s}},
                                         LengthCase{counted(u"3"_s, u"2"_s), {u"bb"_s, u"ccc"_s, u"dddd"_s}},
                                         LengthCase{counted(u"4"_s, u"2"_s), {u"a"_s, u"bb"_s}},
                                         LengthCase{counted(u"5"_s, u"2"_s), none},
                                         LengthCase{counted(u"x"_s, u"2"_s), {u"bb"_s}},
                                         LengthCase{counted(u"1"_s, u"002"_s), {u"ccc"_s, u"dddd"_s}},
                                         LengthCase{counted(u"1"_s, u"0"_s), oneToFour},
                                         LengthCase{counted(u"1"_s, u"-3"_s), oneToFour}, LengthCase{u""_s, oneToFour},
                                         LengthCase{counted(u"0"_s, u"9"_s), none}));

// Counted texts.

namespace {
struct CountCase
{
    const char *tag;
    QStringList values;
    QStringList containing;
    QStringList notContaining;
};

void PrintTo(const CountCase &row, std::ostream *out)
{
    *out << row.tag;
}

class Counts : public testing::TestWithParam<CountCase>
{
};
const QStringList countedLinks{u"x"_s, u"=x"_s, u"=x="_s, u"aaa"_s, u"A"_s};
} // namespace

TEST_P(Counts, KeepOrDropTheLinks)
{
    QStringList kept;
    LinkStages::countedTexts(countedLinks, GetParam().values, LinkStages::Keeping::Containing, kept);
    EXPECT_EQ(kept, GetParam().containing);
    LinkStages::countedTexts(countedLinks, GetParam().values, LinkStages::Keeping::NotContaining, kept);
    EXPECT_EQ(kept, GetParam().notContaining);
}

INSTANTIATE_TEST_SUITE_P(
    LinkStages, Counts,
    testing::Values(
        CountCase{"no field", none, countedLinks, countedLinks},
        CountCase{
            "a count of 1 is exactly once", {counted(u"="_s, u"1"_s)}, {u"=x"_s}, {u"x"_s, u"=x="_s, u"aaa"_s, u"A"_s}},
        CountCase{
            "a count of 0 is any number", {counted(u"="_s, u"000"_s)}, {u"=x"_s, u"=x="_s}, {u"x"_s, u"aaa"_s, u"A"_s}},
        CountCase{"case counts", {counted(u"a"_s, u"0"_s)}, {u"aaa"_s}, {u"x"_s, u"=x"_s, u"=x="_s, u"A"_s}},
        CountCase{"overlaps count", {counted(u"aa"_s, u"2"_s)}, {u"aaa"_s}, {u"x"_s, u"=x"_s, u"=x="_s, u"A"_s}},
        CountCase{"values are joined by or",
                  {counted(u"="_s, u"2"_s), counted(u"A"_s, u"1"_s)},
                  {u"=x="_s, u"A"_s},
                  {u"x"_s, u"=x"_s, u"aaa"_s}},
        CountCase{"a hit on every link",
                  {counted(u"x"_s, u"0"_s), counted(u"a"_s, u"0"_s), counted(u"A"_s, u"0"_s)},
                  countedLinks,
                  none},
        CountCase{"a hit on none", {counted(u"nowhere"_s, u"0"_s)}, none, countedLinks}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST(LinkStages, ACountThatIsNoNumberEndsTheStageWithWhatItHas)
{
    QStringList kept;
    // The first link hits the first value; the second one comes to the value without a count.
    EXPECT_THROW(LinkStages::countedTexts({u"yes"_s, u"other"_s, u"yes"_s}, {counted(u"yes"_s, u"1"_s), u"no marker"_s},
                                          LinkStages::Keeping::Containing, kept),
                 RuntimeError);
    EXPECT_EQ(kept, QStringList{u"yes"_s});
}

// Cuts.

TEST(LinkStages, CutsLinksBehindTheBeginTextsAndBeforeTheEndTexts)
{
    const QStringList links{u"http://seek.com/go?U=http://a.com/&x=1"_s, u"http://b.com/"_s};
    EXPECT_EQ(LinkStages::beginEndUrl(links, {u"go?u="_s}, {u"&X"_s}),
              (QStringList{u"http://a.com/"_s, u"http://b.com/"_s}));
    EXPECT_EQ(LinkStages::beginEndUrl(links, none, none), links);
}

TEST(LinkStages, CutsApplyOneAfterTheOtherInTheOrderOfTheSlots)
{
    EXPECT_EQ(LinkStages::beginEndUrl({u"1=2=3"_s}, {u"1="_s, u"2="_s}, none), QStringList{u"3"_s});
    EXPECT_EQ(LinkStages::beginEndUrl({u"1=2=3"_s}, {u"2="_s, u"1="_s}, none), QStringList{u"3"_s});
    EXPECT_EQ(LinkStages::beginEndUrl({u"a=b=c=d"_s}, {u"="_s, u"="_s}, {u"="_s}), QStringList{u"c"_s});
}

TEST(LinkStages, ALinkCutToNothingKeepsItsPlace)
{
    EXPECT_EQ(LinkStages::beginEndUrl({u"x="_s, u"x=http://a.com/"_s}, {u"x="_s}, none),
              (QStringList{QString(), u"http://a.com/"_s}));
}
