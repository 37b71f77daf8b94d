#include "pages/DownloadNames.h"

#include "PlainSeries.h"
#include "util/QtPrint.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;

namespace {
struct Row
{
    const char *tag;
    QString url;
    QString name;
};

class DownloadNameRows : public testing::TestWithParam<Row>
{
};

TEST_P(DownloadNameRows, GiveTheToldName)
{
    EXPECT_EQ(DownloadNames::fileName(GetParam().url), GetParam().name);
}

const Row rows[] = {
    {"plain", u"http://h.com/a/pic.jpg"_s, u"pic.jpg"_s},
    {"case_is_kept", u"http://h.com/a/Pic.JPG"_s, u"Pic.JPG"_s},
    {"jpeg", u"http://h.com/pic.jpeg"_s, u"pic.jpg"_s},
    {"jpeg_in_capitals", u"http://h.com/pic.JPEG"_s, u"pic.jpg"_s},
    {"html", u"http://h.com/page.html"_s, u"page.htm"_s},
    {"other_four_letters", u"http://h.com/pic.WebP"_s, u"pic.WebP"_s},
    {"number_takes_its_server", u"http://www.pics-1.com/7.jpg"_s, u"pics1com7.jpg"_s},
    {"number_with_zeros", u"http://h.com/a/007.jpg"_s, u"hcom007.jpg"_s},
    {"number_behind_four_letters_does_not", u"http://h.com/7.jpeg"_s, u"7.jpg"_s},
    {"number_with_exponent", u"http://h.com/1e5.jpg"_s, u"hcom1e5.jpg"_s},
    {"number_with_decimals_and_sign", u"http://h.com/-1.5.gif"_s, u"hcom-1.5.gif"_s},
    {"number_hexadecimal", u"http://h.com/&hFF.jpg"_s, u"hcom&hFF.jpg"_s},
    {"number_in_brackets", u"http://h.com/(12).jpg"_s, u"hcom(12).jpg"_s},
    {"not_quite_a_number", u"http://h.com/12a.jpg"_s, u"12a.jpg"_s},
    {"letters_of_hexadecimals_alone", u"http://h.com/ff.jpg"_s, u"ff.jpg"_s},
    {"no_name_is_no_number", u"http://h.com/.jpg"_s, u".jpg"_s},
    {"no_extension", u"http://h.com/a/pic"_s, u""_s},
    {"short_extension", u"http://h.com/a/x.gz"_s, u""_s},
    {"long_extension", u"http://h.com/a/x.torrent"_s, u""_s},
    {"folder", u"http://h.com/a.jpg/"_s, u""_s},
    {"under_five_characters", u".jpg"_s, u""_s},
    {"nothing", u""_s, u""_s},
    {"query_stays", u"http://h.com/p.php?f=pic.jpg"_s, u"p.php?f=pic.jpg"_s},
    {"escapes_stay", u"http://h.com/a%20b.jpg"_s, u"a%20b.jpg"_s},
    {"dots", u"http://h.com/..jpg"_s, u"..jpg"_s},
    {"a_server_can_look_like_a_file", u"http://h.com"_s, u"h.com"_s},
};
INSTANTIATE_TEST_SUITE_P(Addresses, DownloadNameRows, testing::ValuesIn(rows),
                         [](const auto &row) { return row.param.tag; });

TEST(DownloadNames, EqualThePlainVersionOnRandomAddresses)
{
    RandomText random(28);
    const QStringList pieces{u"http://"_s, u"www."_s, u"pics"_s, u".com"_s,  u".example"_s, u"/"_s, u"a"_s,
                             u"7"_s,       u"."_s,    u".jpg"_s, u".jpeg"_s, u".HTML"_s,    u" "_s, u".gif"_s};
    // A name here is a number when it is digits, or digits with one "." among or around them.
    const auto isNumericName = [](const QString &name) {
        QString digits = plain::Trim(name);
        digits.remove(digits.indexOf(u'.'), digits.contains(u'.') ? 1 : 0);
        bool isNumber = !digits.isEmpty();
        for (const QChar unit : digits)
            isNumber = isNumber && plain::IsNumeric(unit);
        return isNumber;
    };
    for (int round = randomRounds() / 10; round > 0; --round) {
        const QString url = random.text(pieces, 8);
        ASSERT_EQ(DownloadNames::fileName(url), plain::fileNameOf(url, isNumericName)) << shown(url);
    }
}

TEST(DownloadNames, NeverHoldAFolder)
{
    RandomText random(29);
    const QStringList pieces{u"http://"_s, u".."_s, u"/"_s, u"\\"_s, u"a"_s, u".jpg"_s, u".jpeg"_s, u"."_s, u"%2F"_s};
    for (int round = 0; round < 20'000; ++round) {
        const QString url = random.text(pieces, 8);
        ASSERT_FALSE(DownloadNames::fileName(url).contains(u'/')) << shown(url);
    }
}
} // namespace
