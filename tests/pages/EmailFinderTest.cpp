#include "pages/EmailFinder.h"

#include "PlainFinders.h"
#include "Records.h"
#include "util/QtPrint.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;
using cIEText::TextKind;

namespace {
const QStringList none{QString()};
constexpr auto location = "Function CheckForInvalidEmailChar"_L1;

QStringList collect(const QString &text)
{
    return cIEText::CollectEmail(text, u"@", nullptr);
}

TEST(CollectEmail, FindsAddressesInMarkupAndKeepsTheirCase)
{
    EXPECT_EQ(collect(u"<a href=\"mailto:Me.You@Host.COM?subject=x\">a-b_c@d.org</a>"_s),
              (QStringList{u"Me.You@Host.COM"_s, u"a-b_c@d.org"_s}));
}

TEST(CollectEmail, ScansATextOfAnyLength)
{
    EXPECT_EQ(collect(u"a@b.com"_s), QStringList{u"a@b.com"_s});
    EXPECT_EQ(collect(u""_s), none);
}

TEST(CollectEmail, ATextThatBeginsWithTheHitMovesOn)
{
    // The first pass works from position 16, inside the second address.
    EXPECT_EQ(collect(u"@one.com  me@two.com "_s), QStringList{u"me@two.com"_s});
    EXPECT_EQ(collect(u"@one.com me@two.com  "_s), QStringList{u"me@two.com"_s});
}

TEST(CollectEmail, AHitMovedBehindTheEndLeavesTheResumePositionAtSix)
{
    EXPECT_EQ(collect(u"@x.com"_s), none); // nothing stands behind the end, so the text's own end is not met either
    EXPECT_EQ(collect(u"@234@x.com y"_s), none);
    EXPECT_EQ(collect(u"@2345@x.com y"_s), none); // at 6 the hit moves on again
    EXPECT_EQ(collect(u"@23456@x.com y"_s), QStringList{u"@23456@x.com"_s});
}

TEST(CollectEmail, AnAddressAtTheVeryEndIsTaken)
{
    EXPECT_EQ(collect(u"write to me@host.com"_s).constFirst(), u"me@host.com"_s);
}

TEST(CollectEmail, ASentenceDotBehindItRefusesIt)
{
    EXPECT_EQ(collect(u"write to me@host.com. "_s), none);
}

TEST(CollectEmail, AnUnlistedTypeRefusesIt)
{
    EXPECT_EQ(collect(u"write to me@host.xyz "_s), none);
}

TEST(CollectEmail, FromPositionOneTheHitMustLieBelow35)
{
    EXPECT_EQ(collect(QString(33, u'a') + u"@b.com "_s), QStringList{QString(33, u'a') + u"@b.com"_s});
    EXPECT_EQ(collect(QString(34, u'a') + u"@b.com "_s), none);
}

TEST(CollectEmail, ARefusedCharacterAtPositionOneStandsInside)
{
    EXPECT_EQ(collect(u"<me@host.com> "_s), QStringList{u"<me@host.com"_s});
}

TEST(CollectEmail, APassWithoutAnEndOfItsOwnUsesTheEarlierOne)
{
    const QStringList found = collect(u"x me@host.com then the rest you@there"_s);
    EXPECT_EQ(found.constFirst(), u"me@host.com"_s);
    EXPECT_EQ(found.size(), 1);
}

TEST(CollectEmail, AtMostAThousandPasses)
{
    QString page;
    for (int index = 0; index < 1500; ++index)
        page += u" a%1@host.com "_s.arg(index);
    EXPECT_EQ(collect(page).size(), 999);
    EXPECT_EQ(collect(page).constLast(), u"a998@host.com"_s);
}

TEST(CollectEmail, LooksBehindTheEndAreRecordedOnce)
{
    Records records(location);
    EXPECT_EQ(cIEText::CollectEmail(u"@", u"@", &records), none);
    EXPECT_EQ(records.count, plain::CollectEmail(u"@"_s, u"@"_s).errors);
    EXPECT_EQ(records.count, 15);
}

TEST(CollectEmail, CostsNoMoreThanReadingTheTextOnAnyText)
{
    constexpr qsizetype size = 4'000'000;
    EXPECT_EQ(collect(QString(size, u'@')), none);
    EXPECT_EQ(collect(QString(size, u'a') + u'@'), none);
    EXPECT_EQ(collect(u"x@y.com "_s + QString(size, u'a') + u'@' + QString(size, u'a')), QStringList{u"x@y.com"_s});
    EXPECT_EQ(collect(u" "_s + QString(size, u'a') + u"@b.com"_s).size(), 1);
}

TEST(CollectEmail, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(21);
    const QStringList tidy{u"a@b"_s,          u"@b"_s,    u"a"_s,        u"Bc"_s, u"."_s, u".com"_s, u".com "_s,
                           u".co"_s,          u" "_s,     u"me@x.de "_s, u"<"_s,  u"-"_s, u"_9"_s,   u">"_s,
                           u"aaaaaaaaaaaa"_s, u"\u212A"_s};
    const QStringList rough = tidy + QStringList{u"@"_s, u"@"_s, u"@@"_s};
    const QStringList searches = rough + QStringList{QString()};
    for (int round = randomRounds(); round > 0; --round) {
        // A hit at the end of its run, or a run that reaches the end of the text, uses up all 1000 passes: some do.
        const bool isRough = random.oneIn(10);
        QString text = random.text(isRough ? rough : tidy, 14);
        if (!isRough || random.oneIn(2))
            text += u' ';
        // Other searched texts may be no part of an address, and stand at the beginning more often than by chance.
        const QString searched = random.oneIn(40) ? random.oneOf(searches) : u"@"_s;
        if (random.oneIn(20))
            text.prepend(searched);
        const plain::Emails expected = plain::CollectEmail(text, searched);
        Records records(location);
        ASSERT_EQ(cIEText::CollectEmail(text, searched, &records), expected.list) << shown(text) << shown(searched);
        ASSERT_EQ(records.count, expected.errors) << shown(text) << shown(searched);
    }
}

TEST(EmailCharacters, EveryUnitAsThePlainVersionSays)
{
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        int errors = 0;
        const QString character(QChar{char16_t(unit)});
        ASSERT_EQ(cIEText::CheckForInvalidEmailChar(character, nullptr),
                  plain::CheckForInvalidEmailChar(character, errors))
            << unit;
    }
}

TEST(EmailCharacters, AnEmptyOneIsAnErrorAndNotRefused)
{
    Records records(location);
    EXPECT_FALSE(cIEText::CheckForInvalidEmailChar(u"", &records));
    EXPECT_EQ(records.count, 1);
    EXPECT_FALSE(cIEText::CheckForInvalidEmailChar(u"", nullptr));
}

TEST(IsThisEmailOrLink, AMailboxWithItsProtocolIsAnEmail)
{
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"mailto:me@host.com", true), TextKind::Email);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"ME@HOST.COM", false), TextKind::Email);
}

TEST(IsThisEmailOrLink, AQueryDirectlyBehindTheTypeIsNoLink)
{
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"host.com?q=1", true), TextKind::Neither);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"host.com?q=x.com", true), TextKind::Link);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"host.com/?q=1", true), TextKind::Link);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"host.com/?q=.com&", true), TextKind::Neither);
}

TEST(IsThisEmailOrLink, FourGroupsOfUpToThreeDigitsAreALink)
{
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"127.0.0.1", true), TextKind::Link);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"127.0.0.1", false), TextKind::Link);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"1270.0.0.1", true), TextKind::Neither);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"http://127.0.0.1/a/5", true), TextKind::Link);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"https://127.0.0.1/a/5", true), TextKind::Neither);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"1.2.3.4.5", true), TextKind::Neither);
}

TEST(IsThisEmailOrLink, ABareHostNeedsAPrefixWhenThatIsAsked)
{
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"host.com", false), TextKind::Neither);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"host.com", true), TextKind::Link);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"HTTP://host.com", false), TextKind::Link);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"my.www.host.com", false), TextKind::Link);
}

TEST(IsThisEmailOrLink, BackslashesDotlessAndEmptyTextsAreNeither)
{
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"", true), TextKind::Neither);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"host", true), TextKind::Neither);
    EXPECT_EQ(cIEText::IsThisEmailOrLink(u"c:\\host.com", true), TextKind::Neither);
}

TEST(IsThisEmailOrLink, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(22);
    const QStringList pieces{u"http://"_s, u"HTTP://"_s, u"www."_s,    u"a"_s,    u".com"_s, u".COM/"_s, u".co"_s,
                             u".in"_s,     u".int"_s,    u"/"_s,       u"?"_s,    u"@"_s,    u"\\"_s,    u"1."_s,
                             u"22"_s,      u"333."_s,    u"1.2.3.4"_s, u"4444"_s, u" "_s,    u"."_s};
    for (int round = randomRounds(); round > 0; --round) {
        const QString text = random.text(pieces, 8);
        for (const bool accept : {true, false})
            ASSERT_EQ(int(cIEText::IsThisEmailOrLink(text, accept)), plain::IsThisEmailOrLink(text, accept))
                << shown(text) << accept;
    }
}
} // namespace
