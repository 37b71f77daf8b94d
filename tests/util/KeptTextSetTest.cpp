#include "util/search/KeptTextSet.h"

#include "RandomText.h"
#include "util/Arrays.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto ignored = Qt::CaseInsensitive;

TEST(KeptTextSet, AnswersForTheTextsOfEachCall)
{
    KeptTextSet kept;
    QStringList texts{u"tea"_s, u"Coffee"_s};
    EXPECT_EQ(kept.of(texts, ignored).firstFound(u"a cup of COFFEE"), 1);
    texts[1] = u"cup"_s;
    EXPECT_EQ(kept.of(texts, ignored).firstFound(u"a cup of COFFEE"), 1);
    texts.removeFirst();
    EXPECT_EQ(kept.of(texts, ignored).firstFound(u"a cup of COFFEE"), 0);
    texts.clear();
    EXPECT_TRUE(kept.of(texts, ignored).isEmpty());
}

TEST(KeptTextSet, TheCaseCountsAsEachCallWantsIt)
{
    KeptTextSet kept;
    const QStringList texts{u"Tea"_s};
    EXPECT_TRUE(kept.of(texts, ignored).anyIn(u"TEA"));
    EXPECT_FALSE(kept.of(texts, Qt::CaseSensitive).anyIn(u"TEA"));
    EXPECT_TRUE(kept.of(texts, ignored).anyIn(u"TEA"));
}

TEST(KeptTextSet, AFilterWithItIsTheFilterWithoutIt)
{
    RandomText random(21);
    const QStringList pieces{u"a"_s, u"B"_s, u"ab"_s, u"c"_s, QString()};
    KeptTextSet kept;
    QStringList filters;
    for (int round = 0; round < 3000; ++round) {
        if (random.oneIn(3))
            filters = random.list(pieces, 5, 3);
        else if (random.oneIn(3) && !filters.isEmpty())
            filters[random.number(0, int(filters.size()) - 1)] = random.text(pieces, 3);
        const QStringList items = random.list(pieces, 8, 4);
        ASSERT_EQ(cUtility::FilterArray(items, filters, kept), cUtility::FilterArray(items, filters));
    }
}
} // namespace
