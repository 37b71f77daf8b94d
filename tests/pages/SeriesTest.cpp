#include "pages/Series.h"

#include "PlainSeries.h"
#include "util/QtPrint.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;
using SeriesRules::Start;

namespace {
/// The addresses of a run, `turns` of them.
QStringList walked(const Series &start, const QString &step, int turns)
{
    QStringList urls;
    Series series = start;
    for (int turn = 0; turn < turns; ++turn) {
        urls += series.address();
        series = series.next(step);
    }
    return urls;
}

TEST(Series, CountsTheNumberAtItsPosition)
{
    const QString url = u"http://g1.example/set02/p003.jpg"_s;
    EXPECT_EQ(Series(url, 1).number(), u"1"_s);
    EXPECT_EQ(Series(url, 2).number(), u"02"_s);
    EXPECT_EQ(Series(url, 3).number(), u"003"_s);
    EXPECT_EQ(Series(url, 4).number(), u""_s);
    EXPECT_EQ(Series(url, 2).next(u"1").address(), u"http://g1.example/set03/p003.jpg"_s);
    EXPECT_EQ(Series(url, 3).next(u"010").address(), u"http://g1.example/set02/p013.jpg"_s);
}

TEST(Series, KeepsThreeDigitsAndGrowsWhereTheyDoNotSuffice)
{
    EXPECT_EQ(walked({u"p007"_s, 1}, u"001"_s, 3), (QStringList{u"p007"_s, u"p008"_s, u"p009"_s}));
    EXPECT_EQ(walked({u"p998"_s, 1}, u"1"_s, 3), (QStringList{u"p998"_s, u"p999"_s, u"p1000"_s}));
}

TEST(Series, ARunFromOneDigitEndsBehindEightSteps)
{
    const Series series(u"http://h.com/p1.jpg"_s, 1);
    EXPECT_EQ(series.lengthOfRun(), 9);
    EXPECT_EQ(walked(series, u"001"_s, int(series.lengthOfRun())).last(), u"http://h.com/p9.jpg"_s);
}

TEST(Series, ARunIsBoundByTheDigitsOfItsNumberZerosIncluded)
{
    const std::pair<QString, QString> lastOf[] = {
        {u"p1"_s, u"p9"_s}, {u"p01"_s, u"p99"_s}, {u"p001"_s, u"p999"_s}, {u"p0001"_s, u"p5001"_s}};
    for (const auto &[first, last] : lastOf) {
        const Series series(first, 1);
        EXPECT_EQ(walked(series, u"1"_s, int(series.lengthOfRun())).last(), last);
    }
    EXPECT_EQ(Series(u"p00000000001"_s, 1).lengthOfRun(), 5001);
    EXPECT_EQ(Series(u"p5"_s, 1).lengthOfRun(), 9) << "where the number stands is of no account";
    EXPECT_EQ(Series(u"p"_s, 1).lengthOfRun(), 0);
    EXPECT_EQ(Series(u"p1"_s, 2).lengthOfRun(), 0);
}

TEST(Series, TheNumberBoxIsPaddedAndALongerOneReplacesAsItStands)
{
    const Series series(u"http://h.com/p009.jpg"_s, 1);
    EXPECT_EQ(series.withNumber(u"10").address(), u"http://h.com/p010.jpg"_s);
    EXPECT_EQ(series.withNumber(u"12345").address(), u"http://h.com/p12345.jpg"_s);
    EXPECT_EQ(series.withNumber(u"12345").position(), 1);
}

TEST(Series, APositionAboveTheCountOfNumbersEmptiesTheAddress)
{
    EXPECT_EQ(Series(u"p1"_s, 2).withNumber(u"7").address(), u""_s);
    EXPECT_EQ(Series(u"p1"_s, 2).next(u"1").address(), u""_s);
    EXPECT_EQ(Series(u"p1"_s, 1).next(u"x").address(), u""_s);
    EXPECT_EQ(Series(u"no number"_s, 1).withNumber(u"7").address(), u"no number"_s);
}

TEST(Series, IsTheSameWhereTheNumberAloneDiffers)
{
    const Series reached(u"http://pics.example.com/a1/p042.jpg"_s, 2);
    EXPECT_TRUE(reached.isSameAs({u"pics.example.com/a1/p001.jpg"_s, 2}));
    EXPECT_TRUE(reached.isSameAs({u"HTTP://pics.example.com/a1/p9.jpg"_s, 2}));
    EXPECT_FALSE(reached.isSameAs({u"pics.example.com/a1/p001.jpg"_s, 1}));
    EXPECT_FALSE(reached.isSameAs({u"pics.example.com/a2/p042.jpg"_s, 2}));
    EXPECT_FALSE(reached.isSameAs({u"pics.example.com/a1/p042.png"_s, 2}));
    EXPECT_FALSE(reached.isSameAs({u"other.example.com/a1/p042.jpg"_s, 2}));
    EXPECT_FALSE(reached.isSameAs({u"pics.example.com/a1/p.jpg"_s, 2}));
    EXPECT_FALSE(Series(u"a"_s, 1).isSameAs({u"a"_s, 1})) << "without number there is no series";
}

TEST(SeriesRules, TheStoredFormLosesHttpAlone)
{
    EXPECT_EQ(SeriesRules::storedUrl(u"HtTp://h.com/1"_s), u"h.com/1"_s);
    EXPECT_EQ(SeriesRules::storedUrl(u"https://h.com/1"_s), u"https://h.com/1"_s);
    EXPECT_EQ(SeriesRules::storedUrl(u"h.com/http://1"_s), u"h.com/http://1"_s);
    EXPECT_EQ(SeriesRules::storedUrl(u"http://"_s), u""_s);
}

TEST(SeriesRules, TenNumbersAreCountedAsTen)
{
    EXPECT_EQ(SeriesRules::countNumbers(u"http://h.com/1/2/3/4/5/6/7/8/9/10"_s), 10);
    EXPECT_EQ(SeriesRules::countNumbers(u"http://h.com/a"_s), 0);
    EXPECT_EQ(SeriesRules::countNumbers(u"me1@h.com"_s), 0) << "a mailbox is no link";
    EXPECT_EQ(SeriesRules::countNumbers(u""_s), 0);
}

TEST(SeriesRules, AStoredStepOf0OrNothingIs1)
{
    EXPECT_EQ(SeriesRules::row(u"0000000042", u"3", u"005"), (SeriesRules::Row{42, 3, 5}));
    EXPECT_EQ(SeriesRules::row(u"", u"", u""), (SeriesRules::Row{0, 0, 1}));
    EXPECT_EQ(SeriesRules::row(u"1", u"1", u"000"), (SeriesRules::Row{1, 1, 1}));
    EXPECT_EQ(SeriesRules::row(u"x", u"-1", u"1.5"), (SeriesRules::Row{0, 0, 1}));
    EXPECT_EQ(SeriesRules::row(u"9999999999", u"9", u"999").start, 9'999'999'999);
}

TEST(SeriesRules, AStartIsRefusedForTheFirstReasonThereIs)
{
    const QString url = u"http://h.com/a1/p002.jpg"_s;
    EXPECT_EQ(SeriesRules::startIn(url, 2, 11), Start::Found);
    EXPECT_EQ(SeriesRules::startIn(url, 2, 3), Start::Found);
    EXPECT_EQ(SeriesRules::startIn(url, 2, 2), Start::TooLarge);
    EXPECT_EQ(SeriesRules::startIn(url, 3, 2), Start::TooFewNumbers);
    EXPECT_EQ(SeriesRules::startIn(url, 0, 2), Start::NoPosition);
    EXPECT_EQ(SeriesRules::startIn(u"http://h.com/a"_s, 0, 2), Start::NoNumber);
    EXPECT_EQ(SeriesRules::startIn(u"words 1"_s, 0, 2), Start::NoLink);
}

const QStringList &pieces()
{
    static const QStringList all{
        u"http://"_s, u"HTTP://"_s, u"www."_s, u"pics"_s,         u".example.com"_s, u".com"_s, u"/"_s,
        u"p"_s,       u"1"_s,       u"007"_s,  u"99"_s,           u"999"_s,          u"0"_s,    u"-"_s,
        u"?n="_s,     u".jpg"_s,    u" "_s,    u"1234567890123"_s};
    return all;
}

TEST(Series, EqualsThePlainVersionOnRandomAddressesAndSteps)
{
    RandomText random(26);
    const QStringList steps{u"1"_s, u"001"_s, u"010"_s, u"999"_s, u"0"_s, u"-2"_s, u""_s, u"x"_s};
    for (int round = randomRounds() / 10; round > 0; --round) {
        const QString url = plain::Trim(random.text(pieces(), 9));
        const qsizetype position = random.number(0, 10);
        const QString step = random.oneOf(steps);
        const Series series(url, position);
        ASSERT_EQ(walked(series, step, 12), plain::seriesOfRun(url, position, step, 12))
            << shown(url) << " at " << position << " by " << shown(step);
        const QString number = plain::splitAtNumber(url, position).number;
        ASSERT_EQ(series.number(), number) << shown(url) << " at " << position;
        const QString value = QString::number(random.number(0, 2) * random.number(0, 99'999));
        ASSERT_EQ(series.withNumber(value).address(), plain::withBoxValue(url, position, value))
            << shown(url) << " at " << position << " with " << shown(value);
    }
}

TEST(Series, LengthsEqualThePlainLoop)
{
    for (const QString &number : {u"1"_s, u"7"_s, u"01"_s, u"50"_s, u"001"_s, u"999"_s, u"0001"_s, u"12345"_s,
                                  u"0000000001"_s, u"1234567890123"_s})
        EXPECT_EQ(Series(u"p"_s + number, 1).lengthOfRun(), plain::turnsOfRun(number.toLongLong(), number))
            << shown(number);
}

TEST(Series, SamenessEqualsThePlainVersionOnRandomPairs)
{
    RandomText random(27);
    int same = 0;
    for (int round = randomRounds() / 10; round > 0; --round) {
        const QString url = random.text(pieces(), 8);
        const qsizetype position = random.number(1, 3);
        QString other = random.oneIn(3) ? random.text(pieces(), 8) : Series(url, position).next(u"3").address();
        if (random.oneIn(3))
            other = SeriesRules::storedUrl(other);
        const bool expected = plain::isSameSeries(url, other, position);
        same += expected ? 1 : 0;
        ASSERT_EQ(Series(url, position).isSameAs({other, position}), expected)
            << shown(url) << " and " << shown(other) << " at " << position;
    }
    EXPECT_GT(same, 100) << "the pairs must hold both answers";
}
} // namespace
