#include "util/search/TextSet.h"

#include "PlainUtility.h"
#include "QtPrint.h"
#include "RandomText.h"
#include "util/search/CaseVariants.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto ignored = Qt::CaseInsensitive;

qsizetype lookByAutomaton(const QStringList &texts, const QString &page, Wanted wanted, Qt::CaseSensitivity sensitivity)
{
    OpenTexts open(texts.size(), wanted);
    WordAutomaton(texts, sensitivity).scan(page, open);
    return open.answer();
}

/// Nothing where the scanner gives up, as it may on a page that is full of the texts' parts.
std::optional<qsizetype> lookByScanner(const QStringList &texts, const QString &page, Wanted wanted,
                                       Qt::CaseSensitivity sensitivity)
{
    OpenTexts open(texts.size(), wanted);
    if (!LiteralScanner::isSupported() || !LiteralScanner(texts, sensitivity).scan(page, open))
        return std::nullopt;
    return open.answer();
}

qsizetype plainLook(const QStringList &texts, const QString &page, Wanted wanted, bool minded)
{
    if (wanted == Wanted::FirstMissing)
        return plain::decide(page, texts, minded, false, false).item;
    return plain::decide(page, texts, minded, true, true).item;
}

TEST(CaseVariants, AreAllUnitsThatHaveTheLowerCase)
{
    std::vector<std::vector<char16_t>> expected(0x10000);
    for (int unit = 0; unit <= 0xFFFF; ++unit)
        expected[QChar(char16_t(unit)).toLower().unicode()].push_back(char16_t(unit));
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        const cUtility::CaseVariants variants = cUtility::caseVariants(char16_t(unit));
        std::vector<char16_t> sorted(variants.begin(), variants.end());
        std::sort(sorted.begin(), sorted.end());
        ASSERT_EQ(sorted, expected[QChar(char16_t(unit)).toLower().unicode()]) << unit;
        ASSERT_LE(sorted.size(), 3U) << "more than a fast search takes at once: " << unit;
    }
}

TEST(TextSet, FindsEachTextAtEveryPlaceOfAPage)
{
    const QStringList texts{u"x"_s, u"qu"_s, u"Foo"_s, u"\u00C9t\u00E9"_s, u"longer words"_s, u"\u4E2D\u6587"_s};
    const TextSet set(texts, ignored);
    for (qsizetype index = 0; index < texts.size(); ++index) {
        for (int before = 0; before < 200; ++before) {
            const QString page = QString(before, u'-') + plain::UCase(texts[index]) + QString(before % 70, u'-');
            ASSERT_EQ(set.firstFound(page), index) << before;
            ASSERT_EQ(set.firstMissing(page), index == 0 ? 1 : 0) << before;
            ASSERT_FALSE(set.anyIn(page.first(before))) << before;
        }
    }
}

TEST(TextSet, SeveralScannersShareTheTextsBetweenThem)
{
    QStringList texts;
    for (int index = 0; index < 3 * int(LiteralScanner::mostTexts); ++index)
        texts += u"item"_s + QString::number(index) + u";"_s;
    const TextSet set(texts, ignored);
    for (qsizetype index = 0; index < texts.size(); ++index)
        ASSERT_EQ(set.firstFound(u"... "_s + texts[index] + texts.last()), index);
    EXPECT_EQ(set.firstMissing(texts.first(50).join(u' ') + texts.sliced(51).join(u' ')), 50);
    EXPECT_EQ(set.firstMissing(texts.join(u' ')), -1);
}

TEST(TextSet, HoldsManyTextsAndRepeats)
{
    QStringList texts;
    for (int index = 0; index < 3000; ++index)
        texts += u"item"_s + QString::number(index) + u";"_s;
    texts += texts.first(10);
    texts += QString(); // stands in every page but the empty one
    const TextSet set(texts, ignored);
    EXPECT_EQ(set.firstFound(u"... ITEM2999; ... item1500; ..."), 1500);
    EXPECT_EQ(set.firstFound(u"item3000;"), texts.size() - 1);
    EXPECT_EQ(set.firstFound(u""), -1);
    EXPECT_EQ(set.firstMissing(texts.join(u' ')), -1);
    EXPECT_EQ(set.firstMissing(texts.sliced(1, texts.size() - 12).join(u' ')), 0);
}

TEST(TextSet, BothEnginesEqualThePlainVersionOnRandomInput)
{
    RandomText random(8);
    const QStringList pieces{u"a"_s, u"B"_s,      u"ab"_s,     u"bab"_s,    u"k"_s,
                             u"K"_s, u"\u00E9"_s, u"\u00C9"_s, u"\u0161"_s, u"zz"_s};
    int scannedPages = 0;
    for (int round = randomRounds(); round > 0; --round) {
        const bool minded = random.oneIn(3);
        QStringList texts = random.list(pieces, random.oneIn(20) ? int(LiteralScanner::mostTexts) : 8, 4);
        texts.removeAll(QString()); // the set's own business
        if (!minded)
            std::transform(texts.begin(), texts.end(), texts.begin(), plain::LCase);
        const QString page = random.text(pieces, random.oneIn(10) ? 120 : 30);
        const auto wanted = random.oneIn(2) ? Wanted::FirstFound : Wanted::FirstMissing;
        const qsizetype expected = page.isEmpty() && wanted == Wanted::FirstMissing && !texts.isEmpty()
                                       ? 0
                                       : plainLook(texts, page, wanted, minded);
        const auto sensitivity = minded ? Qt::CaseSensitive : ignored;
        ASSERT_EQ(lookByAutomaton(texts, page, wanted, sensitivity), expected) << shown(texts) << shown(page);
        const std::optional<qsizetype> scanned = lookByScanner(texts, page, wanted, sensitivity);
        ASSERT_EQ(scanned.value_or(expected), expected) << shown(texts) << shown(page);
        scannedPages += scanned ? 1 : 0;
    }
    EXPECT_GT(scannedPages, LiteralScanner::isSupported() ? randomRounds() * 9 / 10 : -1);
}

TEST(TextSet, APageFullOfThePartsOfItsTextsIsReadInAnotherWay)
{
    // Runs of a unit that is rare elsewhere: the scanner comes upon each text's window at nearly every place.
    RandomText random(9);
    const QStringList pieces{u"zzz"_s, u"Z"_s, u"zq"_s, u"e"_s};
    for (int round = std::max(randomRounds() / 2000, 20); round > 0; --round) {
        QStringList texts{QString(200, u'z') + u'e'};
        for (int more = random.number(0, 90); more > 0; --more)
            texts += QString(random.number(20, 150), u'z') + random.text(pieces, 3);
        std::shuffle(texts.begin(), texts.end(), std::mt19937(unsigned(round)));
        QString page;
        for (int parts = random.number(1, 6); parts > 0; --parts)
            page += QString(random.number(100, 400), u'z') + random.text(pieces, 3);
        page += QString(3000, u'z');
        const bool minded = random.oneIn(2);
        const auto sensitivity = minded ? Qt::CaseSensitive : ignored;
        const TextSet set(texts, sensitivity);
        ASSERT_EQ(set.firstFound(page), plainLook(texts, page, Wanted::FirstFound, minded)) << shown(texts);
        ASSERT_EQ(set.firstMissing(page), plainLook(texts, page, Wanted::FirstMissing, minded)) << shown(texts);
        ASSERT_EQ(set.anyIn(page), plainLook(texts, page, Wanted::FirstFound, minded) >= 0) << shown(texts);
    }
    const QStringList hard{QString(200, u'z') + u'e'};
    EXPECT_FALSE(lookByScanner(hard, QString(5000, u'z'), Wanted::FirstFound, ignored).has_value());
    EXPECT_EQ(TextSet(hard, ignored).firstFound(QString(5000, u'z') + u'E'), 0);
}

TEST(TextSet, CostsNoMoreThanReadingThePageOnAnyPage)
{
    constexpr qsizetype size = 2'000'000;
    const QString page(size, u'a');
    QStringList texts;
    for (int length = 1; length <= 60; ++length)
        texts += QString(length * 40, u'a') + u'b';
    EXPECT_EQ(TextSet(texts, ignored).firstFound(page), -1);
    EXPECT_EQ(TextSet(texts, ignored).firstMissing(page), 0);
    QStringList present;
    for (int length = 1; length <= 2000; ++length)
        present += QString(length, u'a');
    EXPECT_EQ(TextSet(present, ignored).firstMissing(page), -1);
    EXPECT_EQ(TextSet(present, ignored).firstFound(page), 0);
}
} // namespace
