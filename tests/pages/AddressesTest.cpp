#include "pages/Addresses.h"

#include "PlainFinders.h"
#include "util/QtPrint.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;
using cIEText::GetServerFromUrl;
using cIEText::hostOnly;
using cIEText::keepAll;

namespace {
const QStringList &addressPieces()
{
    static const QStringList pieces{u"http://"_s, u"HTTP://"_s, u"https://"_s, u"ftp://"_s, u"file:///"_s, u"mailto:"_s,
                                    u"www."_s,    u"WWW."_s,    u"a"_s,        u"Host"_s,   u".com"_s,     u".COM"_s,
                                    u".co"_s,     u".ph"_s,     u".php"_s,     u".phtml"_s, u".de"_s,      u".god"_s,
                                    u".in"_s,     u".int"_s,    u".xy"_s,      u"/"_s,      u"/"_s,        u"?q="_s,
                                    u"\\"_s,      u"@"_s,       u"1"_s,        u"22."_s,    u"127.0.0."_s, u" "_s,
                                    u"."_s,       u":"_s,       u"%41"_s,      u"%"_s};
    return pieces;
}

TEST(Tables, HaveTheirHighestIndexAsCount)
{
    EXPECT_EQ(cIEText::ServerTypes_Count(), 105);
    EXPECT_EQ(cIEText::ProtocolTypes_Count(), 4);
    for (int index = 0; index <= 105; ++index)
        EXPECT_EQ(cIEText::ServerTypes_ListItem(index, {}).toString(), plain::serverTypes()[index]) << index;
    for (int index = 0; index <= 4; ++index)
        EXPECT_EQ(cIEText::ProtocolTypes_ListItem(index, {}).toString(), plain::protocolTypes()[index]) << index;
}

TEST(Tables, GiveTheLastEntryOfAName)
{
    EXPECT_EQ(cIEText::ServerTypes_ListItem(0, u".BS").toLongLong(), 13);
    EXPECT_EQ(cIEText::ServerTypes_ListItem(0, u".ca").toLongLong(), 15);
    EXPECT_EQ(cIEText::ServerTypes_ListItem(7, u".god").toLongLong(), 36);
    EXPECT_EQ(cIEText::ProtocolTypes_ListItem(0, u"HTTPS://").toLongLong(), 1);
    EXPECT_FALSE(cIEText::ServerTypes_ListItem(0, u".xy").isValid());
    EXPECT_FALSE(cIEText::ServerTypes_ListItem(106, {}).isValid());
    EXPECT_FALSE(cIEText::ServerTypes_ListItem(-1, {}).isValid());
}

TEST(GetProtocol, AnEmptyAddressHasTheLastOne)
{
    EXPECT_EQ(cIEText::GetProtocol(u"", 0), u"mailto:"_s);
    EXPECT_EQ(cIEText::GetProtocol(u"", 1), u""_s);
}

TEST(GetProtocol, WithoutProtocolSevenCharactersGo)
{
    EXPECT_EQ(cIEText::GetProtocol(u"www.host.com", 0), u"mailto:"_s);
    EXPECT_EQ(cIEText::GetProtocol(u"www.host.com", 1), u"t.com"_s);
    EXPECT_EQ(cIEText::GetProtocol(u"short", 1), u""_s);
}

TEST(GetProtocol, IsFoundAnywhereAndCutFromTheLeft)
{
    EXPECT_EQ(cIEText::GetProtocol(u"HTTPS://h.com", 0), u"https://"_s);
    EXPECT_EQ(cIEText::GetProtocol(u"HTTPS://h.com", 1), u"h.com"_s);
    EXPECT_EQ(cIEText::GetProtocol(u"https://h.com/?u=http://x", 0), u"http://"_s);
    EXPECT_EQ(cIEText::GetProtocol(u"https://h.com/?u=http://x", 1), u"/h.com/?u=http://x"_s);
    EXPECT_EQ(cIEText::GetProtocol(u"http://h", 2), u""_s);
}

TEST(GetServerFromUrl, ABareHostLosesItsFirstSevenCharacters)
{
    EXPECT_EQ(GetServerFromUrl(u"www.host.com/path", hostOnly), u"t.com"_s);
    EXPECT_EQ(GetServerFromUrl(u"h.com/a/b", hostOnly), u""_s);
    EXPECT_EQ(GetServerFromUrl(u"host.com", keepAll), u"mailto:m"_s);
}

TEST(GetServerFromUrl, ABackslashLeavesTheProtocolAlone)
{
    EXPECT_EQ(GetServerFromUrl(u"http://h.com\\x", hostOnly), u""_s);
    EXPECT_EQ(GetServerFromUrl(u"http://h.com\\x", keepAll), u"http://"_s);
}

TEST(GetServerFromUrl, KeepsTheCaseOfTheHost)
{
    EXPECT_EQ(GetServerFromUrl(u"HTTP://WWW.Host.COM/Path", hostOnly), u"WWW.Host.COM"_s);
    EXPECT_EQ(GetServerFromUrl(u"HTTP://WWW.Host.COM/Path", keepAll), u"http://WWW.Host.COM"_s);
}

TEST(GetServerFromUrl, FourGroupsOfDigitsAreAHost)
{
    EXPECT_EQ(GetServerFromUrl(u"http://10.20.30.40/x.html", hostOnly), u"10.20.30.40"_s);
    EXPECT_EQ(GetServerFromUrl(u"http://1-2-3-4.xy", hostOnly), u"1-2-3-4.xy"_s);
    EXPECT_EQ(GetServerFromUrl(u"http://1.2.3.4.5/x", hostOnly), u""_s);
    EXPECT_EQ(GetServerFromUrl(u"http://   ", hostOnly), u""_s);
}

TEST(GetServerFromUrl, PhpIsNoServerTypeButAtTheVeryEnd)
{
    EXPECT_EQ(GetServerFromUrl(u"http://host/a.php?x", hostOnly), u""_s);
    EXPECT_EQ(GetServerFromUrl(u"http://host/a.phtml", hostOnly), u"host"_s);
    EXPECT_EQ(GetServerFromUrl(u"http://host/a.php", hostOnly), u"host"_s);
    EXPECT_EQ(GetServerFromUrl(u"http://host.ph/a.php?x", hostOnly), u"host.ph"_s);
    EXPECT_EQ(GetServerFromUrl(u"http://host/a.php?x=.ph/", hostOnly), u""_s);
}

TEST(GetServerFromUrl, OfAMailboxTheHostLosesSevenCharacters)
{
    EXPECT_EQ(GetServerFromUrl(u"mailto:me@longhostname.com", hostOnly), u"tname.com"_s);
    EXPECT_EQ(GetServerFromUrl(u"me@h.com", hostOnly), u""_s);
}

TEST(GetServerFromUrl, PartsAreTakenAwayInTheirOrder)
{
    constexpr QStringView address = u"http://www.host.com/p";
    EXPECT_EQ(GetServerFromUrl(address, {.type = true, .www = false, .protocol = false}), u"host.com"_s);
    EXPECT_EQ(GetServerFromUrl(address, {.type = true, .www = false, .protocol = true}), u"host.com"_s);
    EXPECT_EQ(GetServerFromUrl(address, {.type = false, .www = true, .protocol = true}), u"http://www.host"_s);
    EXPECT_EQ(GetServerFromUrl(address, {.type = false, .www = false, .protocol = false}), u"host"_s);
    EXPECT_EQ(GetServerFromUrl(u"", keepAll), u""_s);
}

TEST(GetServerFromUrl, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(11);
    for (int round = randomRounds(); round > 0; --round) {
        const QString address = random.text(addressPieces(), 9);
        const bool type = random.oneIn(2);
        const bool www = random.oneIn(2);
        const bool protocol = random.oneIn(2);
        ASSERT_EQ(GetServerFromUrl(address, {type, www, protocol}),
                  plain::GetServerFromUrl(address, type, www, protocol))
            << shown(address) << type << www << protocol;
        for (int mode = 0; mode <= 1; ++mode)
            ASSERT_EQ(cIEText::GetProtocol(address, mode), plain::GetProtocol(address, mode)) << shown(address) << mode;
    }
}

TEST(GetBaseUrls, GivesEveryServerInOrderWithRepeats)
{
    const QStringList addresses{u"http://a.com/x"_s, u"nothing"_s, u"http://b.com"_s, u"http://a.com"_s};
    EXPECT_EQ(cIEText::GetBaseUrls(addresses),
              (QStringList{u"http://a.com"_s, u"mailto:"_s, u"http://b.com"_s, u"http://a.com"_s}));
    EXPECT_EQ(cIEText::GetBaseUrls({u""_s}), QStringList{u""_s});
}

TEST(GetUniqueServers, KeepsTheFirstAddressOfEachServerWhole)
{
    EXPECT_EQ(cIEText::GetUniqueServers({u"http://A.com/1"_s, u"http://a.com/2"_s, u"http://b.com"_s}),
              (QStringList{u"http://A.com/1"_s, u"http://b.com"_s}));
}

TEST(GetUniqueServers, AddressesWithoutServerCountOnceTheFirstElementIsTaken)
{
    EXPECT_EQ(cIEText::GetUniqueServers({u"x"_s, u"y"_s}), QStringList{u""_s});
    EXPECT_EQ(cIEText::GetUniqueServers({u"x"_s, u"http://a.com"_s, u"y"_s, u"z"_s}),
              (QStringList{u"http://a.com"_s, u"y"_s}));
}

TEST(GetUniqueServers, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(12);
    const QStringList pieces{u"http://"_s, u"a"_s,  u"A"_s,       u".com"_s, u".com/"_s,
                             u"/"_s,       u"\\"_s, u"1.2.3.4"_s, u"b"_s};
    for (int round = randomRounds(); round > 0; --round) {
        const QStringList addresses = random.list(pieces, 4, 4);
        ASSERT_EQ(cIEText::GetUniqueServers(addresses), plain::GetUniqueServers(addresses)) << shown(addresses);
    }
}

TEST(TextTests, EndsInAServerType)
{
    for (const QString &type : plain::serverTypes())
        EXPECT_TRUE(cIEText::DoesThisEndInAUrl(u"host"_s + type)) << shown(type);
    EXPECT_TRUE(cIEText::DoesThisEndInAUrl(u" file.COM "));
    EXPECT_TRUE(cIEText::DoesThisEndInAUrl(u".god"));
    EXPECT_FALSE(cIEText::DoesThisEndInAUrl(u"host.com/"));
    EXPECT_FALSE(cIEText::DoesThisEndInAUrl(u"om"));
    EXPECT_FALSE(cIEText::DoesThisEndInAUrl(u""));
}

TEST(TextTests, NumericAddresses)
{
    EXPECT_TRUE(cIEText::IsUrlNumeric(u" http://1.2.3.4/5/ "));
    EXPECT_FALSE(cIEText::IsUrlNumeric(u"http://1.2.3.4/a"));
    EXPECT_FALSE(cIEText::IsUrlNumeric(u"https://1 2"));
    EXPECT_TRUE(cIEText::IsUrlNumeric(u"HTTP://abc"));
    EXPECT_TRUE(cIEText::IsUrlNumeric(u"abc"));
    EXPECT_TRUE(cIEText::IsUrlNumeric(u"mailto:"));
}

TEST(TextTests, RefusedCharacters)
{
    EXPECT_FALSE(cIEText::CheckForInvalidUrlChar(u""));
    EXPECT_FALSE(cIEText::CheckForInvalidUrlChar(u"    "));
    EXPECT_FALSE(cIEText::CheckForInvalidUrlChar(u"http://h.com/%20#a?b&c"));
    EXPECT_TRUE(cIEText::CheckForInvalidUrlChar(u"a b"));
    EXPECT_TRUE(cIEText::CheckForInvalidUrlChar(u" a"));
    for (const QChar unit : u"$<>@[\\]^`{|}\u007F\u20AC\t"_s)
        EXPECT_TRUE(cIEText::CheckForInvalidUrlChar(QString(unit))) << int(unit.unicode());
    EXPECT_FALSE(cIEText::CheckForInvalidUrlChar(u"\u0080\u00E9\u4E2D~"));
}

TEST(TextTests, EqualThePlainVersionsOnRandomInput)
{
    RandomText random(13);
    for (int round = randomRounds(); round > 0; --round) {
        const QString text = random.text(addressPieces(), 5);
        ASSERT_EQ(cIEText::DoesThisEndInAUrl(text), plain::DoesThisEndInAUrl(text)) << shown(text);
        ASSERT_EQ(cIEText::IsUrlNumeric(text), plain::IsUrlNumeric(text)) << shown(text);
        ASSERT_EQ(cIEText::CheckForInvalidUrlChar(text), plain::CheckForInvalidUrlChar(text)) << shown(text);
    }
}

TEST(Hexadecimal, ZeroHasNoText)
{
    EXPECT_EQ(cIEText::DecToHex(0), u""_s);
    EXPECT_EQ(cIEText::DecToHex(-5), u""_s);
    EXPECT_EQ(cIEText::DecToHex(10), u"0A"_s);
    EXPECT_EQ(cIEText::DecToHex(255), u"FF"_s);
    EXPECT_EQ(cIEText::DecToHex(256), u"00"_s);
    for (int number = -2; number <= 600; ++number)
        ASSERT_EQ(cIEText::DecToHex(number), plain::DecToHex(number)) << number;
}

TEST(PercentEscapes, AreReadAsWindowsCodes)
{
    EXPECT_EQ(cIEText::HexToDec(u"a%20b%3d%E9%80"), u"a b=\u00E9\u20AC"_s);
    EXPECT_EQ(cIEText::HexToDec(u"%00%0"), u"%00%0"_s);
    EXPECT_EQ(cIEText::HexToDec(u"%zz%"), u"%zz%"_s);
}

TEST(PercentEscapes, AnEscapedEscapeLosesOneLayer)
{
    EXPECT_EQ(cIEText::HexToDec(u"x%25"), u"x%"_s);
    EXPECT_EQ(cIEText::HexToDec(u"x%25a"), u"x%a"_s);
    EXPECT_EQ(cIEText::HexToDec(u"%2541"), u"A"_s);
    EXPECT_EQ(cIEText::HexToDec(u"%25e9"), u"\u00E9"_s);
    EXPECT_EQ(cIEText::HexToDec(u"%25%41"), u"%25A"_s);
}

TEST(PercentEscapes, TheOneBehindADoubleEscapeIsPassedOver)
{
    EXPECT_EQ(cIEText::HexToDec(u"%2541%42%43"), u"A%42C"_s);
    EXPECT_EQ(cIEText::HexToDec(u"%2541ab%43"), u"AabC"_s);
}

TEST(PercentEscapes, EqualThePlainVersionOnRandomInput)
{
    RandomText random(14);
    const QStringList pieces{u"%"_s, u"%"_s, u"25"_s, u"%25"_s, u"4"_s,  u"1"_s,
                             u"a"_s, u"F"_s, u"0"_s,  u"g"_s,   u"%8"_s, u"9d"_s};
    for (int round = randomRounds(); round > 0; --round) {
        const QString text = random.text(pieces, 12);
        ASSERT_EQ(cIEText::HexToDec(text), plain::HexToDec(text)) << shown(text);
    }
}
} // namespace
