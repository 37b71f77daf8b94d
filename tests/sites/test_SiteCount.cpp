// The figures beside the editor: what each stage leaves, as in a run.
#include "sites/SiteCount.h"

#include "util/QtPrint.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
const QStringList links{u"http://s.com/"_s,
                        u"http://s.com/first"_s,
                        u"http://s.com/go?u=http://a.com/"_s,
                        u"http://s.com/go?u=http://b.com/ad"_s,
                        u"http://s.com/go?u=http://a.com/"_s,
                        u"http://s.com/last"_s,
                        u"http://s.com/foot"_s};

std::vector<int> counts(const SiteCount::Values &values)
{
    std::vector<int> sizes;
    for (const QStringList &left : SiteCount::stagesOf(links, values))
        sizes.push_back(static_cast<int>(left.size()));
    return sizes;
}
} // namespace

TEST(SiteCount, EachStageOfARecordLeavesFewerLinks)
{
    SiteCount::Values values;
    values.firstLink = {u"/first"_s};
    values.lastLink = {u"/last"_s};
    values.length = u"3<~Dorv~>20"_s;
    values.contains = {u"go?u=<~Dorv~>1"_s};
    values.containsNot = {u"/ad<~Dorv~>0"_s};
    values.begin = {u"u="_s};
    EXPECT_EQ(counts(values), (std::vector<int>{7, 4, 3, 3, 2, 1}));
    EXPECT_EQ(SiteCount::stagesOf(links, values)[5], QStringList{u"http://a.com/"_s});
}

TEST(SiteCount, AStageThatWouldLeaveNothingIsLeftOut)
{
    SiteCount::Values values;
    values.contains = {u"nowhere<~Dorv~>1"_s};
    EXPECT_EQ(counts(values), (std::vector<int>{7, 7, 7, 7, 7, 6}));
}

TEST(SiteCount, APageWithoutLinksStaysWithout)
{
    for (const QStringList &left : SiteCount::stagesOf({QString()}, {}))
        EXPECT_EQ(left, QStringList{QString()});
}
