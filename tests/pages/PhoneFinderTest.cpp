#include "pages/PhoneFinder.h"

#include "PlainFinders.h"
#include "util/QtPrint.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;
using cAreaCode::FindPhoneNumbers;

namespace {
const QStringList none{QString()};
const QString tail(40, u'.');

TEST(AreaCodes, TheTableHas52RowsAnd313Codes)
{
    EXPECT_EQ(cAreaCode::AreaCode_Count(), 51);
    ASSERT_EQ(plain::areaCodes().size(), 52);
    for (qint64 row = 0; row <= 51; ++row) {
        const auto &[state, codes] = plain::areaCodes()[row];
        EXPECT_EQ(cAreaCode::AreaCode_ListItem(u"Alaska", row), state) << row;
        EXPECT_EQ(cAreaCode::AreaCode_ListItem(state, -1), codes) << row;
    }
    EXPECT_EQ(plain::areaCodeList({}).size(), 313);
}

TEST(AreaCodes, ANameInAnyCaseWithBlanksFindsItsRow)
{
    EXPECT_EQ(cAreaCode::AreaCode_ListItem(u"  wEST vIRGINA ", -1), u"304"_s);
    EXPECT_EQ(cAreaCode::AreaCode_ListItem(u"Kansas", 52), u"316,620,785,913"_s);
    EXPECT_EQ(cAreaCode::AreaCode_ListItem(u"Nowhere", -1), u""_s);
    EXPECT_EQ(cAreaCode::AreaCode_ListItem(u"", -1), u""_s);
}

TEST(PhoneNumbers, AreReadInTheirAcceptedForms)
{
    for (const QString &form : {u"205-555-1234"_s, u"(205) 555-1234"_s, u"205)555-1234"_s, u"205-5551234"_s,
                                u"1-205-555-1234"_s, u"205 - 555 1234"_s, u"205) 555 1234"_s})
        EXPECT_EQ(FindPhoneNumbers(form + tail + u'-', u"205", false), QStringList{u"2055551234"_s}) << shown(form);
    for (const QString &form : {u"205.555.1234-"_s, u"205/555-1234"_s, u"205--555-1234"_s, u"205-555-12345"_s})
        EXPECT_EQ(FindPhoneNumbers(form + tail, u"205", false), none) << shown(form);
}

TEST(PhoneNumbers, APageWithoutHyphenHasNone)
{
    EXPECT_EQ(FindPhoneNumbers(u"(205) 555 1234, (205)5551234"_s + tail, u"205", false), none);
}

TEST(PhoneNumbers, OneAtTheVeryEndIsNotFound)
{
    EXPECT_EQ(FindPhoneNumbers(u"- 205-555-1234", u"205", false), none);
    EXPECT_EQ(FindPhoneNumbers(u"205-555-1234...", u"205", false), none);
    EXPECT_EQ(FindPhoneNumbers(u"205-555-1234....", u"205", false), QStringList{u"2055551234"_s});
}

TEST(PhoneNumbers, TenDigitsInARowNeedASeparatorWithinFifteenCharacters)
{
    EXPECT_EQ(FindPhoneNumbers(u"2055551234...-"_s + tail, u"205", false), QStringList{u"2055551234"_s});
    EXPECT_EQ(FindPhoneNumbers(u"2055551234.....-"_s + tail, u"205", false), none);
}

TEST(PhoneNumbers, BlanksAreRemovedBehindTheCutOfFifteen)
{
    EXPECT_EQ(FindPhoneNumbers(u"205 - 555  1234"_s + tail, u"205", false), QStringList{u"2055551234"_s});
    EXPECT_EQ(FindPhoneNumbers(u"205  -  555  1234"_s + tail, u"205", false), none);
}

TEST(PhoneNumbers, FaxOnlyLooksBeforeTheNumberOrFromItOn)
{
    const QString filler(30, u'x');
    EXPECT_EQ(FindPhoneNumbers(filler + u" FaX: 205-555-1234"_s + tail, u"205", true), QStringList{u"2055551234"_s});
    EXPECT_EQ(FindPhoneNumbers(filler + u" 205-555-1234 fax"_s + tail, u"205", true), none);
    EXPECT_EQ(FindPhoneNumbers(u"205-555-1234 fax"_s + tail, u"205", true), QStringList{u"2055551234"_s});
    EXPECT_EQ(FindPhoneNumbers(u"fax 205-555-1234"_s + tail, u"205", true), none);
    EXPECT_EQ(FindPhoneNumbers(filler + u"fax"_s + QString(18, u' ') + u"205-555-1234"_s + tail, u"205", true), none);
    EXPECT_EQ(FindPhoneNumbers(filler + u"fax 205-555-1234...."_s, u"205", true), none);
}

TEST(PhoneNumbers, FaxOnlyTurnsToTheTextBeforeAtPosition28)
{
    const QString number = u"205-555-1234"_s;
    const QString behind = number + u" fax"_s + tail;
    const QString before = u"fax"_s + QString(17, u' ') + number + tail;
    EXPECT_EQ(FindPhoneNumbers(QString(26, u'x') + behind, u"205", true), QStringList{u"2055551234"_s});
    EXPECT_EQ(FindPhoneNumbers(QString(27, u'x') + behind, u"205", true), none);
    EXPECT_EQ(FindPhoneNumbers(QString(6, u'x') + before, u"205", true), none);
    EXPECT_EQ(FindPhoneNumbers(QString(7, u'x') + before, u"205", true), QStringList{u"2055551234"_s});
    // The last unit of the 27 from the number on, and the last that the number needs behind it.
    EXPECT_EQ(FindPhoneNumbers(number + QString(12, u'.') + u"fax."_s, u"205", true), QStringList{u"2055551234"_s});
    EXPECT_EQ(FindPhoneNumbers(number + QString(12, u'.') + u"fax"_s, u"205", true), none);
    EXPECT_EQ(FindPhoneNumbers(number + QString(13, u'.') + u"fax."_s, u"205", true), none);
}

TEST(PhoneNumbers, ComeInTheOrderOfTheCodesAndThenOfTheText)
{
    const QString page = u"907-555-0001, 205-555-0002, 205-555-0003, 907-555-0004"_s + tail;
    EXPECT_EQ(FindPhoneNumbers(page, u"", false),
              (QStringList{u"2055550002"_s, u"2055550003"_s, u"9075550001"_s, u"9075550004"_s}));
    EXPECT_EQ(FindPhoneNumbers(page, u"907,205,907", false),
              (QStringList{u"9075550001"_s, u"9075550004"_s, u"2055550002"_s, u"2055550003"_s, u"9075550001"_s,
                           u"9075550004"_s}));
}

TEST(PhoneNumbers, AnEmptyEntryMatchesEverywhere)
{
    EXPECT_EQ(FindPhoneNumbers(u" 999-555-0001"_s + tail, u"205,,", false),
              (QStringList{u"9995550001"_s, u"9995550001"_s, u"9995550001"_s, u"9995550001"_s}));
}

TEST(PhoneNumbers, EntriesAreTakenAsTheyStand)
{
    const QString page = u"x 205-555-0001 (205) 555-0002"_s + tail;
    EXPECT_EQ(FindPhoneNumbers(page, u" 205", false), QStringList{u"2055550001"_s});
    EXPECT_EQ(FindPhoneNumbers(page, u"(205", false), none);
    EXPECT_EQ(FindPhoneNumbers(page, u"205-555-0001", false), QStringList{u"2055550001"_s});
    EXPECT_EQ(FindPhoneNumbers(page, page.sliced(2), false), QStringList{u"2055550001"_s});
    EXPECT_EQ(FindPhoneNumbers(page, page.sliced(2) + u'.', false), none);
}

TEST(PhoneNumbers, EqualThePlainVersionOnRandomInput)
{
    RandomText random(31);
    const QStringList pieces{u"205"_s, u"907"_s,          u"-"_s,     u"-"_s,         u")"_s,   u"("_s,
                             u" "_s,   u"555"_s,          u"1234"_s,  u"12"_s,        u"fax"_s, u"Fax: "_s,
                             u"."_s,   u"205-555-1234"_s, u"xxxxx"_s, u"(907) 555-"_s};
    const QStringList codes{u"205"_s, u"907,205"_s, u""_s, u"205,,907"_s, u" 205"_s, u"5"_s, u"-"_s, u"205,5,)"_s};
    for (int round = randomRounds(); round > 0; --round) {
        const QString text = random.text(pieces, 16) + tail.first(random.number(0, 20));
        // All 313 scans of the plain version in one of ten only.
        const QString areaCodes = random.oneIn(10) ? u""_s : random.oneOf(codes);
        const bool faxOnly = random.oneIn(3);
        ASSERT_EQ(FindPhoneNumbers(text, areaCodes, faxOnly), plain::FindPhoneNumbers(text, areaCodes, faxOnly))
            << shown(text) << " codes " << shown(areaCodes) << " fax " << faxOnly;
    }
}

TEST(AreaCodeBox, ALikeSeparatorThroughoutBecomesAComma)
{
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u"205 251 256"_s), u"205,251,256"_s);
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u" 205;251;256; "_s), u"205,251,256"_s);
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u"205,251"_s), u"205,251"_s);
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u"205; 251,256"_s), u"205; 251,256"_s);
}

TEST(AreaCodeBox, OneCommaGoesAtEitherEnd)
{
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u",205,251,"_s), u"205,251"_s);
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u",,205"_s), u",205"_s);
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u"205,,"_s), u"205,"_s);
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u"205,,251,320"_s), u"205,,251,320"_s);
}

TEST(AreaCodeBox, WithoutDigitsTheTextStaysAsTyped)
{
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u" abc "_s), u" abc "_s);
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u"  "_s), u"  "_s);
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u""_s), u""_s);
    EXPECT_EQ(cAreaCode::normalizedAreaCodes(u" 205 "_s), u"205"_s);
}
} // namespace
