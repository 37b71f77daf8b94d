// The user's own filter of links.
#include "pages/LinkFilter.h"
#include "util/QtPrint.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
struct Case
{
    const char *tag;
    LinkFilter filter;
    QStringList wanted;
};

void PrintTo(const Case &row, std::ostream *out)
{
    *out << row.tag;
}

const QStringList links{u"http://a.com/Tea"_s, u"http://b.com/t%65a"_s, u"http://c.com/"_s};
const Case cases[] = {
    {"no filter keeps all", {0, u"tea"_s, false}, links},
    {"a text that must stand in it", {1, u"tEA"_s, false}, {links[0]}},
    {"a text that must not", {2, u"tea"_s, false}, {links[1], links[2]}},
    {"escapes are read before the test", {1, u"tea"_s, true}, {links[0], u"http://b.com/tea"_s}},
    {"an empty text keeps all whatever the mode", {2, {}, false}, links},
    {"any other mode drops all", {3, u"tea"_s, false}, {QString()}},
    {"no entry chosen drops all too", {-1, u"tea"_s, false}, {QString()}},
    {"nothing left is one empty text", {1, u"coffee"_s, false}, {QString()}},
};

class LinkFilters : public testing::TestWithParam<Case>
{
};
} // namespace

TEST_P(LinkFilters, KeepTheWantedLinks)
{
    EXPECT_EQ(GetParam().filter.wanted(links), GetParam().wanted);
}

INSTANTIATE_TEST_SUITE_P(LinkFilter, LinkFilters, testing::ValuesIn(cases));
