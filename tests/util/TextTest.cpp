#include "util/Text.h"

#include "PlainUtility.h"
#include "QtPrint.h"
#include "RandomText.h"

using namespace Qt::StringLiterals;

namespace {
TEST(IgnoringCase, MapsUnitByUnitAndKeepsTheLength)
{
    EXPECT_EQ(cUtility::lowered(u"AbC\u00C9\u03A3"), u"abc\u00E9\u03C3"_s);
    EXPECT_EQ(cUtility::lowered(u"\u0130").size(), 1);
    EXPECT_EQ(cUtility::lowered(u"\U00010400"), u"\U00010400"_s); // halves of a pair have no case of their own
    EXPECT_EQ(cUtility::lowered(u"\u212A"), u"k"_s);
    EXPECT_EQ(cUtility::lowered(u"\u00DF\u017F\u03C2"), u"\u00DF\u017F\u03C2"_s);
}

TEST(IgnoringCase, LowersEveryUnitAsTheLanguageDoes)
{
    for (int unit = 0; unit <= 0xFFFF; ++unit)
        ASSERT_EQ(cUtility::lowerUnit(char16_t(unit)), QChar(char16_t(unit)).toLower().unicode()) << unit;
    QString all;
    for (int unit = 0; unit <= 0xFFFF; ++unit)
        all += QChar(char16_t(unit));
    EXPECT_EQ(cUtility::lowered(all), plain::LCase(all));
}

TEST(IgnoringCase, ComparesWholeTextsAndBeginnings)
{
    EXPECT_TRUE(cUtility::equalIgnoringCase(u"HtTp", u"hTtP"));
    EXPECT_FALSE(cUtility::equalIgnoringCase(u"a", u"ab"));
    EXPECT_TRUE(cUtility::startsWithIgnoringCase(u"HTTP://x", u"http://"));
    EXPECT_FALSE(cUtility::startsWithIgnoringCase(u"HTTP", u"http://"));
    EXPECT_TRUE(cUtility::startsWithIgnoringCase(u"", u""));
}

TEST(InStr, AnEmptyNeedleIsAtTheStartAndNowhereInAnEmptyText)
{
    EXPECT_EQ(cUtility::InStr(1, u"abc", u""), 1);
    EXPECT_EQ(cUtility::InStr(3, u"abc", u""), 3);
    EXPECT_EQ(cUtility::InStr(4, u"abc", u""), 0);
    EXPECT_EQ(cUtility::InStr(1, u"", u""), 0);
    EXPECT_FALSE(cUtility::holdsIgnoringCase(u"", u""));
    EXPECT_TRUE(cUtility::holdsIgnoringCase(u"a", u""));
}

TEST(InStr, CountsFromOne)
{
    EXPECT_EQ(cUtility::InStr(1, u"abcABC", u"c"), 3);
    EXPECT_EQ(cUtility::InStr(4, u"abcABC", u"c"), 0);
    EXPECT_EQ(cUtility::InStr(4, u"abcABC", u"c", Qt::CaseInsensitive), 6);
    EXPECT_EQ(cUtility::InStr(9, u"abc", u"a"), 0);
}

TEST(InStr, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(2);
    const QStringList pieces{u"a"_s, u"A"_s, u"b"_s, u"B"_s, u"aab"_s, u"k"_s, u"K"_s, u"\u00E9"_s, u"\u00C9"_s};
    for (int round = randomRounds(); round > 0; --round) {
        const QString text = random.text(pieces, 40);
        const QString find = random.text(pieces, 3);
        const int start = random.number(1, int(text.size()) + 2);
        ASSERT_EQ(cUtility::InStr(start, text, find, Qt::CaseInsensitive),
                  plain::InStr(start, text, find, plain::Textual))
            << shown(text) << " " << shown(find) << " from " << start;
        ASSERT_EQ(cUtility::InStr(start, text, find), plain::InStr(start, text, find))
            << shown(text) << " " << shown(find) << " from " << start;
    }
}

TEST(InStr, FindsAtEveryPlaceOfALongText)
{
    for (const QString &find : {u"x"_s, u"xyz"_s, u"\u00E9t\u00E9"_s}) {
        for (int before = 0; before < 150; ++before) {
            const QString text = QString(before, u'a') + find.toUpper() + QString(70, u'a');
            ASSERT_EQ(cUtility::indexIgnoringCase(text, find), before) << shown(find);
            ASSERT_EQ(cUtility::indexIgnoringCase(text, find, before + 1), -1) << shown(find);
            ASSERT_EQ(cUtility::indexIgnoringCase(text.first(before + find.size()), find), before) << shown(find);
            ASSERT_EQ(cUtility::indexIgnoringCase(text.first(before + find.size() - 1), find), -1) << shown(find);
        }
    }
}

TEST(CountChar, CountsOverlapsAndMindsTheFlag)
{
    EXPECT_EQ(cUtility::CountChar(u"aaaa", u"aa"), 3);
    EXPECT_EQ(cUtility::CountChar(u"aAaA", u"a"), 2);
    EXPECT_EQ(cUtility::CountChar(u"aAaA", u"a", Qt::CaseInsensitive), 4);
    EXPECT_EQ(cUtility::CountChar(u"", u"a"), 0);
    EXPECT_EQ(cUtility::CountChar(u"a", u""), 0);
}

TEST(CountChar, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(3);
    const QStringList pieces{u"a"_s, u"A"_s, u"aa"_s, u"b"_s};
    for (int round = randomRounds(); round > 0; --round) {
        const QString text = random.text(pieces, 12);
        const QString find = random.text(pieces, 2);
        ASSERT_EQ(cUtility::CountChar(text, find), plain::CountChar(text, find, true)) << shown(text) << shown(find);
        ASSERT_EQ(cUtility::CountChar(text, find, Qt::CaseInsensitive), plain::CountChar(text, find, false))
            << shown(text) << shown(find);
    }
}

TEST(Trim, TakesBlanksOnly)
{
    EXPECT_EQ(cUtility::Trim(u"  a b \t ").toString(), u"a b \t"_s);
    EXPECT_EQ(cUtility::Trim(u"   ").toString(), u""_s);
    EXPECT_EQ(cUtility::Trim(u"\u00A0").toString(), u"\u00A0"_s);
}

TEST(Lines, EveryKindOfLineEndBecomesOneBlank)
{
    EXPECT_EQ(cUtility::MultipleLinesToSingle(u"a\r\nb\rc\nd\n\re\r\n"), u"a b c d  e "_s);
    EXPECT_EQ(cUtility::MultipleLinesToSingle(u""), u""_s);
}

TEST(Stripping, KeepsAsciiLettersAndDigits)
{
    EXPECT_EQ(cUtility::StripToLettersAndNumbers(u"a-B_9.\u00E9\uFF11z"), u"aB9z"_s);
}

TEST(LastOccurrence, SplitsBeforeAndBehind)
{
    EXPECT_EQ(cUtility::InStrRevGetBeginning(u"a/b/c", u"/"), u"a/b"_s);
    EXPECT_EQ(cUtility::InStrRevGetEnding(u"a/b/c", u"/"), u"c"_s);
    EXPECT_EQ(cUtility::InStrRevGetBeginning(u"abc", u"/"), u""_s);
    EXPECT_EQ(cUtility::InStrRevGetEnding(u"abc", u"/"), u""_s);
    EXPECT_EQ(cUtility::InStrRevGetEnding(u"abc/", u"/"), u""_s);
}

TEST(DelimiterLocations, CountFromOneAndOverlap)
{
    EXPECT_EQ(cUtility::DelimiterLocationsInString(u"a|b||", u"|"), u"2,4,5"_s);
    EXPECT_EQ(cUtility::DelimiterLocationsInString(u"aaa", u"aa"), u"1,2"_s);
    EXPECT_EQ(cUtility::DelimiterLocationsInString(u"abc", u"|"), u""_s);
    EXPECT_EQ(cUtility::DelimiterLocationsInString(u"abc", u""), u""_s);
}

TEST(Hexadecimal, ReadsUpToTheLastEightDigits)
{
    EXPECT_EQ(cUtility::ConvertHex(u"FF"), 255U);
    EXPECT_EQ(cUtility::ConvertHex(u"&hff"), 255U);
    EXPECT_EQ(cUtility::ConvertHex(u"&HFFFFFFFF"), 4294967295U);
    EXPECT_EQ(cUtility::ConvertHex(u"123456789"), 0x23456789U);
    EXPECT_EQ(cUtility::ConvertHex(u"FG"), 0U);
    EXPECT_EQ(cUtility::ConvertHex(u"-1"), 0U);
    EXPECT_EQ(cUtility::ConvertHex(u""), 0U);
}
} // namespace

TEST(Text, ATextOfUnknownOriginIsShownAsOneLineThatDoesNothing)
{
    struct Row
    {
        QString text;
        QString shown;
    };
    const Row rows[] = {
        {QString(), QString()},
        {u"plain äöü 日本 😀"_s, u"plain äöü 日本 😀"_s},
        {u"a\r\nb"_s, u"a\u240D\u240Ab"_s},
        {u"\x1b[31mred\x07"_s, u"\u241B[31mred\u2407"_s},
        {QString(QChar(0)) + u'\x7f', u"\u2400\u2421"_s},
        {u"\u009b2J\u0085"_s, u"\ufffd2J\ufffd"_s},
        {u"moc.\u202eevil\u2066\u2028"_s, u"moc.\ufffdevil\ufffd\ufffd"_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(cUtility::shown(row.text), row.shown);
}
