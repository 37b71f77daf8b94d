#include "util/Incr.h"

#include "PlainUtility.h"
#include "QtPrint.h"
#include "RandomText.h"

using namespace Qt::StringLiterals;

namespace {
QString incr(const plain::IncrCall &call)
{
    return cUtility::Incr(call.text, call.mode, call.isFile, call.position, call.newText, call.step, call.separator,
                          call.pad);
}

struct Row
{
    const char *tag;
    plain::IncrCall call;
    QString expected;
};

class IncrRows : public testing::TestWithParam<Row>
{
};

TEST_P(IncrRows, GivesTheToldText)
{
    EXPECT_EQ(incr(GetParam().call), GetParam().expected);
    EXPECT_EQ(plain::Incr(GetParam().call), GetParam().expected) << "the plain version";
}

const Row reading[] = {
    {"empty_text", {u""_s, 0, false, 1, u""_s, u"1"_s, u""_s, true}, u""_s},
    {"blanks_only", {u"   "_s, 2, false, 1, u""_s, u"1"_s, u""_s, true}, u""_s},
    {"second_number_wherever_it_stands", {u"a7b12c300"_s, 0, false, 2, u""_s, u"1"_s, u""_s, true}, u"12"_s},
    {"position_counts_from_1", {u"a7b12"_s, 0, false, 0, u""_s, u"1"_s, u""_s, true}, u""_s},
    {"position_behind_the_last", {u"a7b12"_s, 0, false, 3, u""_s, u"1"_s, u""_s, true}, u""_s},
    {"position_below_0", {u"a7b12"_s, 4, false, -1, u""_s, u"1"_s, u""_s, true}, u""_s},
    {"last_text_between_numbers", {u"205, 251; 256"_s, 1, false, 1, u""_s, u"1"_s, u""_s, true}, u"; "_s},
    {"last_text_at_the_end", {u"12ab3cd"_s, 1, false, 1, u""_s, u"1"_s, u""_s, true}, u"cd"_s},
    {"no_text_at_all", {u"123"_s, 1, false, 1, u""_s, u"1"_s, u""_s, true}, u""_s},
    {"count_of_numbers", {u"1.22.x333"_s, 2, false, 1, u""_s, u"1"_s, u""_s, true}, u"3"_s},
    {"count_without_number", {u"abc"_s, 2, false, 1, u""_s, u"1"_s, u""_s, true}, u"0"_s},
    {"other_digits_are_text", {u"\u0663\uFF11"_s, 2, false, 1, u""_s, u"1"_s, u""_s, true}, u"0"_s},
    {"unknown_mode", {u"a1"_s, 6, false, 1, u""_s, u"1"_s, u""_s, true}, u""_s},
    {"negative_mode", {u"a1"_s, -1, false, 1, u""_s, u"1"_s, u""_s, true}, u""_s},
    {"file_reads_the_name_alone", {u"/d1/a7.mp3"_s, 2, true, 1, u""_s, u"1"_s, u""_s, true}, u"1"_s},
    {"file_gives_the_bare_answer", {u"/d1/a7.jpg"_s, 0, true, 1, u""_s, u"1"_s, u""_s, true}, u"7"_s},
};
INSTANTIATE_TEST_SUITE_P(Reading, IncrRows, testing::ValuesIn(reading), [](const auto &row) { return row.param.tag; });

const Row changing[] = {
    {"step_1_on_099_gives_100_in_place", {u"a099b"_s, 4, false, 1, u""_s, u"1"_s, u""_s, true}, u"a100b"_s},
    {"five_less_five_wraps_to_9", {u"5"_s, 5, false, 1, u""_s, u"5"_s, u""_s, true}, u"9"_s},
    {"wrap_takes_the_width", {u"a005b"_s, 5, false, 1, u""_s, u"6"_s, u""_s, false}, u"a999b"_s},
    {"007_keeps_three_digits", {u"p007"_s, 4, false, 1, u""_s, u"1"_s, u""_s, true}, u"p008"_s},
    {"999_gives_1000", {u"p999"_s, 4, false, 1, u""_s, u"1"_s, u""_s, true}, u"p1000"_s},
    {"without_padding_zeros_go", {u"p007"_s, 4, false, 1, u""_s, u"1"_s, u""_s, false}, u"p8"_s},
    {"digits_alone_are_padded_in_any_case", {u"007"_s, 4, false, 1, u""_s, u"1"_s, u""_s, false}, u"008"_s},
    {"digits_alone_less_a_step_are_not", {u"007"_s, 5, false, 1, u""_s, u"1"_s, u""_s, false}, u"6"_s},
    {"subtracting_pads_on_demand", {u"a100"_s, 5, false, 1, u""_s, u"1"_s, u""_s, true}, u"a099"_s},
    {"replacing_never_pads", {u"a100b2"_s, 3, false, 1, u"7"_s, u"1"_s, u""_s, true}, u"a7b2"_s},
    {"replacing_with_anything", {u"a100b2"_s, 3, false, 2, u"xyz"_s, u"1"_s, u""_s, true}, u"a100bxyz"_s},
    {"no_digits_get_separator_and_0", {u"name"_s, 4, false, 1, u""_s, u"1"_s, u"-"_s, true}, u"name-0"_s},
    {"no_digits_whatever_the_position", {u"name"_s, 5, false, 9, u""_s, u"1"_s, u""_s, true}, u"name0"_s},
    {"no_digits_when_replacing", {u"name"_s, 3, false, 1, u"7"_s, u"1"_s, u"_"_s, true}, u"name_0"_s},
    {"name_that_ends_in_the_separator", {u"name-"_s, 4, false, 1, u""_s, u"1"_s, u"-"_s, true}, u"name--0"_s},
    {"step_that_is_no_number", {u"a1"_s, 4, false, 1, u""_s, u"x"_s, u""_s, true}, u""_s},
    {"empty_step", {u"a1"_s, 5, false, 1, u""_s, u""_s, u""_s, true}, u""_s},
    {"step_with_zeros", {u"a1"_s, 4, false, 1, u""_s, u"010"_s, u""_s, true}, u"a11"_s},
    {"negative_step", {u"a15"_s, 4, false, 1, u""_s, u"-6"_s, u""_s, true}, u"a09"_s},
    {"separator_plays_no_part_outside_files", {u"a1b"_s, 4, false, 1, u""_s, u"1"_s, u"-"_s, true}, u"a2b"_s},
    {"text_is_trimmed", {u"  a1 "_s, 4, false, 1, u""_s, u"1"_s, u""_s, true}, u"a2"_s},
};
INSTANTIATE_TEST_SUITE_P(Changing, IncrRows, testing::ValuesIn(changing),
                         [](const auto &row) { return row.param.tag; });

const Row inFiles[] = {
    {"folder_and_extension_return", {u"/a1/Page-1.htm"_s, 4, true, 1, u""_s, u"1"_s, u""_s, true}, u"/a1/Page-2.htm"_s},
    {"separator_on_both_sides", {u"/x/a1b.jpg"_s, 4, true, 1, u""_s, u"1"_s, u"-"_s, true}, u"/x/a-2-b.jpg"_s},
    {"separator_that_is_there_already",
     {u"/x/a-1-b.jpg"_s, 4, true, 1, u""_s, u"1"_s, u"-"_s, true},
     u"/x/a-2-b.jpg"_s},
    {"separator_for_a_replaced_number", {u"/x/a1.jpg"_s, 3, true, 1, u"5"_s, u"1"_s, u"-"_s, true}, u"/x/a-5.jpg"_s},
    {"number_alone_has_no_neighbour", {u"/x/9.jpg"_s, 4, true, 1, u""_s, u"1"_s, u"-"_s, false}, u"/x/10.jpg"_s},
    {"no_digits_in_the_name", {u"/x1/pic.jpg"_s, 4, true, 1, u""_s, u"1"_s, u"-"_s, true}, u"/x1/pic-0.jpg"_s},
    {"digits_of_the_extension_stay", {u"/x/pic.mp3"_s, 4, true, 1, u""_s, u"1"_s, u""_s, true}, u"/x/pic0.mp3"_s},
    {"file_without_folder", {u"pic9.jpeg"_s, 4, true, 1, u""_s, u"1"_s, u""_s, true}, u"pic10.jpeg"_s},
    {"folder_alone", {u"/x/"_s, 4, true, 1, u""_s, u"1"_s, u"-"_s, true}, u"/x/-0"_s},
};
INSTANTIATE_TEST_SUITE_P(InFiles, IncrRows, testing::ValuesIn(inFiles), [](const auto &row) { return row.param.tag; });

TEST(Incr, CountsNumbersOfAnyLengthExactly)
{
    const QString nines(500, u'9');
    EXPECT_EQ(cUtility::Incr(u"a"_s + nines, 4, false, 1, {}, u"1", {}, true), u"a1"_s + QString(500, u'0'));
    EXPECT_EQ(cUtility::Incr(u"a1"_s + QString(500, u'0'), 5, false, 1, {}, u"1", {}, false), u"a"_s + nines);
    EXPECT_EQ(cUtility::Incr(u"a1", 4, false, 1, {}, nines, {}, true), u"a1"_s + QString(500, u'0'));
}

TEST(Incr, EqualsThePlainVersionOnRandomInput)
{
    RandomText random(1);
    const QStringList pieces{u"1"_s, u"0"_s, u"9"_s, u"99"_s,   u"007"_s,   u"a"_s, u"b-"_s,
                             u"-"_s, u"/"_s, u"."_s, u".jpg"_s, u".jpeg"_s, u" "_s, u"x_"_s};
    const QStringList steps{u"1"_s,  u"1"_s, u"001"_s, u"25"_s,  u"0"_s,  u"-3"_s,
                            u"+4"_s, u""_s,  u"x"_s,   u" 5 "_s, u"1.5"_s};
    const QStringList separators{u""_s, u"-"_s, u"_"_s, u"b-"_s};
    for (int round = randomRounds(); round > 0; --round) {
        const plain::IncrCall call{random.text(pieces, 9),   random.number(-1, 6),   random.oneIn(2),
                                   random.number(-1, 4),     random.text(pieces, 2), random.oneOf(steps),
                                   random.oneOf(separators), random.oneIn(2)};
        ASSERT_EQ(incr(call), plain::Incr(call))
            << shown(call.text) << " mode " << call.mode << " file " << call.isFile << " position " << call.position
            << " new " << shown(call.newText) << " step " << shown(call.step) << " separator " << shown(call.separator)
            << " pad " << call.pad;
    }
}

TEST(NumbersInTexts, FirstAndLastRunOfDigits)
{
    EXPECT_EQ(cUtility::GetNumberInString(true, u"a12b345c"), u"12"_s);
    EXPECT_EQ(cUtility::GetNumberInString(false, u"a12b345c"), u"345"_s);
    EXPECT_EQ(cUtility::GetNumberInString(true, u"77"), u"77"_s);
    EXPECT_EQ(cUtility::GetNumberInString(false, u"77"), u"77"_s);
    EXPECT_EQ(cUtility::GetNumberInString(true, u"none"), u""_s);
    EXPECT_EQ(cUtility::GetNumberInString(false, u""), u""_s);
}

TEST(NumbersInTexts, AllDigitsJoined)
{
    EXPECT_EQ(cUtility::CollectNumbers(u"(205) 555-01x"), u"20555501"_s);
    EXPECT_EQ(cUtility::CollectNumbers(u"\u0663"), u""_s);
}

TEST(NumbersInTexts, PaddingNeverCuts)
{
    EXPECT_EQ(cUtility::PaddDigits(u"7", 3), u"007"_s);
    EXPECT_EQ(cUtility::PaddDigits(u"1234", 3), u"1234"_s);
    EXPECT_EQ(cUtility::PaddDigits(u"", 2), u"00"_s);
    EXPECT_EQ(cUtility::PaddDigits(u"5", -1), u"5"_s);
}

TEST(NextFileName, RaisesTheFirstNumberAndKeepsItsWidth)
{
    EXPECT_EQ(cUtility::nextFileName(u"/f/Trawlex-0.mdb"), u"/f/Trawlex-1.mdb"_s);
    EXPECT_EQ(cUtility::nextFileName(u"/f/a09b1.htm"), u"/f/a10b1.htm"_s);
    EXPECT_EQ(cUtility::nextFileName(u"/f/pic.jpg", u"-"), u"/f/pic-0.jpg"_s);
}
} // namespace
