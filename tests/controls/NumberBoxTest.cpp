#include "controls/NumberBox.h"
#include "controls/SignalCount.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Direction = NumberBox::Direction;

namespace {
struct NumberBoxes : testing::Test
{
    NumberBox box{u"incANTiming"_s, nullptr};
};
} // namespace

TEST_F(NumberBoxes, StartWithThreeDigitsAndStepOne)
{
    EXPECT_EQ(box.text(), u"000"_s);
    EXPECT_EQ(box.value(), 0);
    EXPECT_EQ(box.step(), 1);
    EXPECT_EQ(NumberBox::MaxDigits, 11);
}

TEST_F(NumberBoxes, ShowLeadingZerosAndKnowTheValue)
{
    box.setText(u"30"_s);
    EXPECT_EQ(box.text(), u"030"_s);
    EXPECT_EQ(box.value(), 30);
}

TEST_F(NumberBoxes, RefuseWhatIsNoNumberOfTheirLength)
{
    box.setText(u"7"_s);
    for (const auto &text : {u"12345"_s, QString(), u"12a"_s, u"-5"_s, u"1.5"_s, u" 1"_s, u"١"_s}) {
        box.setText(text);
        EXPECT_EQ(box.text(), u"007"_s) << qPrintable(text);
    }
}

TEST_F(NumberBoxes, StepAndWrapAtBothEnds)
{
    struct Row
    {
        QLatin1StringView from;
        int step;
        Direction direction;
        QLatin1StringView to;
    };
    const Row rows[] = {
        {"998"_L1, 1, Direction::Up, "999"_L1},   {"999"_L1, 1, Direction::Up, "000"_L1},
        {"998"_L1, 5, Direction::Up, "000"_L1},   {"000"_L1, 1, Direction::Down, "999"_L1},
        {"002"_L1, 5, Direction::Down, "999"_L1}, {"005"_L1, 5, Direction::Down, "000"_L1},
        {"030"_L1, 1, Direction::Down, "029"_L1},
    };
    for (const Row &row : rows) {
        box.setStep(row.step);
        box.setText(QString(row.from));
        box.makeStep(row.direction);
        EXPECT_EQ(box.text(), QString(row.to)) << row.from.data();
    }
}

TEST_F(NumberBoxes, TakeAStepOnlyBelowHalfTheTop)
{
    box.setStep(500);
    EXPECT_EQ(box.step(), 1) << "half of 999 is 499.5";
    box.setStep(499);
    EXPECT_EQ(box.step(), 499);
}

TEST_F(NumberBoxes, TakeTwoToElevenDigitsAndStartAgainAtZero)
{
    box.setText(u"123"_s);
    for (const int digits : {1, 0, -3, 12}) {
        box.DigitCount(digits);
        EXPECT_EQ(box.digits(), 3);
        EXPECT_EQ(box.text(), u"123"_s);
    }
    box.DigitCount(11);
    EXPECT_EQ(box.text(), u"00000000000"_s);
    box.makeStep(Direction::Down);
    EXPECT_EQ(box.value(), 99999999999);
    box.makeStep(Direction::Up);
    EXPECT_EQ(box.value(), 0);
    box.DigitCount(2);
    EXPECT_EQ(box.text(), u"00"_s);
}

TEST_F(NumberBoxes, RaiseValueChangedWithoutZeros)
{
    QStringList told;
    QObject::connect(&box, &NumberBox::ValueChanged, &box, [&](const QString &text) { told.append(text); });
    box.setText(u"030"_s);
    box.setText(u"30"_s);
    box.makeStep(Direction::Up);
    EXPECT_EQ(told, (QStringList{u"30"_s, u"31"_s}));
}

TEST_F(NumberBoxes, ShowWhatIsTypedAsItStands)
{
    box.edit(u"5"_s);
    EXPECT_EQ(box.text(), u"5"_s);
    EXPECT_EQ(box.value(), 5);
    box.edit(QString());
    EXPECT_EQ(box.text(), QString());
    EXPECT_EQ(box.value(), 0);
    box.edit(u"1234"_s);
    box.edit(u"x"_s);
    EXPECT_EQ(box.text(), QString());
    box.edit(u"9"_s);
    box.makeStep(Direction::Up);
    EXPECT_EQ(box.text(), u"010"_s) << "a step puts the zeros back";
}

TEST_F(NumberBoxes, ShowTheirZerosWhenTheyAreLeft)
{
    for (const auto &[typed, shown] : {std::pair{u""_s, u"000"_s}, {u"7"_s, u"007"_s}, {u"123"_s, u"123"_s}}) {
        box.edit(typed);
        box.leave();
        EXPECT_EQ(box.text(), shown);
    }
}
