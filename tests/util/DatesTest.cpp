#include "util/Dates.h"

#include "QtPrint.h"

#include <set>

using namespace Qt::StringLiterals;
using cUtility::CnvDateString;

namespace {
const QDate today(2026, 5, 4);

TEST(DateTexts, ItemsChangeTheirOrder)
{
    EXPECT_EQ(CnvDateString(u"12/31/1999", u"mmddyyyy", u"yyyy-mm-dd", u"/", today).text, u"1999-12-31"_s);
    EXPECT_EQ(CnvDateString(u"31.12.99", u"ddmmyy", u"mm/dd/yyyy", u".", today).text, u"12/31/1999"_s);
    EXPECT_EQ(CnvDateString(u"1999-1-2", u"yyyymmdd", u"mmddyy", {}, today).text, u"010299"_s);
}

TEST(DateTexts, FormatsAreReadInAnyCaseAndTheRestOfTheOutputStandsAsItIs)
{
    EXPECT_EQ(CnvDateString(u"31.12.1999", u"DDMMYYYY", u"YYYY-MM-DD T", u".", today).text, u"1999-12-31 T"_s);
}

TEST(DateTexts, YearsOfTwoDigitsTurnAt51)
{
    EXPECT_EQ(CnvDateString(u"1/2/50", u"mmddyy", u"yyyy", u"/", today).text, u"2050"_s);
    EXPECT_EQ(CnvDateString(u"1/2/51", u"mmddyy", u"yyyy", u"/", today).text, u"1951"_s);
}

TEST(DateTexts, YearsOfOneDigitTurnAtTheCurrentYear)
{
    EXPECT_EQ(CnvDateString(u"1/2/6", u"mmddy", u"yyyy", u"/", today).text, u"2006"_s);
    EXPECT_EQ(CnvDateString(u"1/2/7", u"mmddy", u"yyyy", u"/", today).text, u"1997"_s);
}

TEST(DateTexts, BadFormatsAreRefusedWithTheirMessage)
{
    const QString message = u"InPut format string must be mmddy, mmddyy, mmddyyyy, only item (mm, dd, yy) position can "
                            "vary not count."_s;
    for (const QStringView format : {u"mmdd", u"mmddyyy", u"mdyy", u"mmddyymm", u"mmmmyy", u"ddyydd", u"", u"mm/dd/yy"})
        EXPECT_EQ(CnvDateString(u"1/2/99", format, u"yyyy", u"/", today), (cUtility::DateText{{}, message}))
            << shown(format.toString());
}

TEST(DateTexts, ADateWithoutDelimiterIsRefusedWithItsMessage)
{
    const cUtility::DateText refused{{}, u"A Date or Date string delimiter MUST be provided."_s};
    EXPECT_EQ(CnvDateString(u"123199", u"mmddyy", u"yyyy", {}, today), refused);
    EXPECT_EQ(CnvDateString(u"", u"mmddyy", u"yyyy", {}, today), refused);
    EXPECT_EQ(CnvDateString(u"12-31-99", u"mmddyy", u"yyyy", u"/", today), refused);
}

TEST(DateTexts, ADateWithOtherItemsHasNeitherTextNorMessage)
{
    EXPECT_EQ(CnvDateString(u"12/31", u"mmddyy", u"yyyy", u"/", today), cUtility::DateText{});
    EXPECT_EQ(CnvDateString(u"12//99", u"mmddyy", u"yyyy", u"/", today), cUtility::DateText{});
    EXPECT_EQ(CnvDateString(u"12/x/99", u"mmddyy", u"yyyy", u"/", today), cUtility::DateText{});
}

TEST(Holidays, TheListAndTheWeekends)
{
    EXPECT_TRUE(cUtility::IsDateHoliday(QDate(2025, 12, 25)));
    EXPECT_TRUE(cUtility::IsDateHoliday(QDate(2024, 6, 16)));
    EXPECT_TRUE(cUtility::IsDateHoliday(QDate(2026, 5, 3)));
    EXPECT_TRUE(cUtility::IsDateHoliday(QDate(2026, 5, 2)));
    EXPECT_FALSE(cUtility::IsDateHoliday(QDate(2026, 5, 4)));
    EXPECT_FALSE(cUtility::IsDateHoliday(QDate()));
}

TEST(Holidays, NineteenDaysOfTheYear)
{
    const std::set<std::pair<int, int>> listed{{1, 1},   {1, 21},  {2, 12},  {2, 14},  {2, 18}, {3, 17},  {3, 31},
                                               {5, 12},  {5, 27},  {6, 16},  {7, 4},   {9, 1},  {10, 14}, {10, 31},
                                               {11, 11}, {11, 28}, {12, 24}, {12, 25}, {12, 31}};
    ASSERT_EQ(listed.size(), 19U);
    // In seven years each day of the year falls on a weekday at least once.
    std::set<std::pair<int, int>> days;
    for (QDate day(2020, 1, 1); day.year() < 2027; day = day.addDays(1))
        if (day.dayOfWeek() < Qt::Saturday && cUtility::IsDateHoliday(day))
            days.emplace(day.month(), day.day());
    EXPECT_EQ(days, listed);
}
} // namespace
