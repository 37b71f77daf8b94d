// Answers of the page reader, whole and in pieces.
#include "engine/ReaderAnswer.h"
#include "engine/BrowserErrors.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(ReaderAnswer, AShortAnswerIsWholeAtOnce)
{
    const ReaderAnswer answer({{u"texts"_s, QStringList{u"a"_s, u""_s}}});
    EXPECT_TRUE(answer.isWhole());
    EXPECT_EQ(answer.texts(), (QStringList{u"a"_s, u""_s}));
}

TEST(ReaderAnswer, ALongAnswerIsJoinedAndPartedByItsLengths)
{
    ReaderAnswer answer({{u"lengths"_s, QVariantList{3, 0, 4}}, {u"ticket"_s, 7}});
    EXPECT_FALSE(answer.isWhole());
    EXPECT_TRUE(answer.nextCall().endsWith(".piece(7, 0)"_L1));
    EXPECT_TRUE(answer.add(u"abcd"_s));
    EXPECT_TRUE(answer.nextCall().endsWith(".piece(7, 4)"_L1));
    EXPECT_FALSE(answer.isWhole());
    EXPECT_TRUE(answer.add(u"efg"_s));
    EXPECT_TRUE(answer.isWhole());
    EXPECT_EQ(answer.texts(), (QStringList{u"abc"_s, u""_s, u"defg"_s}));
}

TEST(ReaderAnswer, AMissingPieceMeansAnotherPage)
{
    ReaderAnswer answer({{u"lengths"_s, QVariantList{3}}, {u"ticket"_s, 1}});
    EXPECT_FALSE(answer.add({}));
}

TEST(ReaderAnswer, ARefusalIsAnErrorWithItsNumber)
{
    for (const auto &[told, raised] : {std::pair<int, qint64>{70, 70}, {0, EngineError::CannotRead}}) {
        try {
            const ReaderAnswer answer({{u"error"_s, u"no"_s}, {u"number"_s, told}});
            ADD_FAILURE();
        } catch (const RuntimeError &error) {
            EXPECT_EQ(error.number(), raised);
            EXPECT_EQ(error.description(), u"no");
        }
    }
}
