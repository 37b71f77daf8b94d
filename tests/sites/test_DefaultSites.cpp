// The records of the start, and what is asked of the store beside them.
#include "sites/DefaultSites.h"
#include "sites/cSSites.h"
#include "support/FormWithDatabase.h"

using namespace Qt::StringLiterals;

namespace {
class DefaultSitesTest : public FormDatabaseTest
{
  protected:
    DefaultSites sites{log, database};
};
} // namespace

TEST_F(DefaultSitesTest, TheUsersOwnRecordsGiveWayToTheTwentySix)
{
    EXPECT_FALSE(sites.IsDefaultSDLoaded());
    addRow(*database, u"SearchSites"_s, {{u"SiteName"_s, u"Mine"_s}, {u"Url-1"_s, u"www.mine.com"_s}});
    EXPECT_TRUE(sites.IsDefaultSDLoaded()) << "any record counts";
    EXPECT_TRUE(sites.AddDefaultSSData());
    const QStringList names = rows(u"SearchSites"_s, u"SiteName"_s);
    ASSERT_EQ(names.size(), DefaultSites::count);
    EXPECT_FALSE(names.contains(u"Mine"_s));
    for (int row = 0; row < DefaultSites::count; ++row)
        EXPECT_EQ(names[row], sites.GetSiteData(row).constFirst()) << row;
}

TEST_F(DefaultSitesTest, TheGroupsFollowTheRows)
{
    EXPECT_TRUE(sites.AddDefaultSSData());
    const QStringList groups = rows(u"SearchSites"_s, u"Group"_s);
    EXPECT_EQ(groups.join(QString()), u"00000111111022222233334444"_s);
}

TEST_F(DefaultSitesTest, AnAddressIsStoredOrNotWhateverItsQuotes)
{
    addRow(*database, u"SiteSummary"_s, {{u"Url"_s, u"http://www.a.com/its"_s}});
    EXPECT_TRUE(sites.SSExists(u"http://www.a.com/its"_s));
    EXPECT_TRUE(sites.SSExists(u"http://www.a.com/it's"_s));
    EXPECT_FALSE(sites.SSExists(u"http://www.a.com/it"_s));
    EXPECT_FALSE(sites.SSExists(u"' OR ''='"_s));
}

TEST(SearchSiteResults, AreEmptySoFar)
{
    EXPECT_EQ(cSSites::GetUrls(u"Seek"_s), QStringList{QString()});
}
