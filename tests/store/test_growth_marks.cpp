// Marks that stand as long as their table only grows, whoever writes to it.
#include "store/rows/GrowthMarks.h"

#include "StoreFixture.h"
#include "store/Transaction.h"

using namespace Qt::StringLiterals;

namespace {
const QString name = u"names"_s;

class GrowthMarksTest : public StoreTest
{
  protected:
    GrowthMarksTest()
    {
        for (int row = 1; row <= 3; ++row)
            add(*mDatabase, u"MNUrlsA"_s, {{"Url"_L1, u"http://s%1.de/"_s.arg(row)}});
    }
    GrowthMarks::Mark set(const QString &value)
    {
        Transaction transaction(*mDatabase);
        GrowthMarks::Mark mark = mMarks.set(name, value);
        EXPECT_TRUE(transaction.commit());
        return mark;
    }
    [[nodiscard]] QString value()
    {
        const auto mark = mMarks.read(name);
        return mark ? mark->value : u"(none)"_s;
    }
    /// Another program's writing to the same file.
    void elsewhere(const char *statement)
    {
        const auto other = Connection::open(mDatabase->DatabasePath(), Connection::Access::Write);
        other->administer(statement);
    }

    std::unique_ptr<cAdoMdb> mDatabase = created();
    std::shared_ptr<const TableInfo> mTable = mDatabase->connection()->requireTable(u"MNUrlsA"_s);
    GrowthMarks mMarks{*mDatabase->connection(), *mTable};
};
} // namespace

TEST_F(GrowthMarksTest, ThereIsNoneBeforeOneIsSet)
{
    EXPECT_EQ(value(), u"(none)"_s);
    mMarks.removeAll();
    EXPECT_FALSE(mDatabase->connection()->tableNames(false).contains(u"SysGrowthMarks"_s)) << "reading makes nothing";
}

TEST_F(GrowthMarksTest, OneThatIsSetStandsAndMayChangeItsValue)
{
    const GrowthMarks::Mark first = set(u"up to 3"_s);
    EXPECT_EQ(value(), u"up to 3"_s);
    const GrowthMarks::Mark second = set(u"up to 4"_s);
    EXPECT_EQ(value(), u"up to 4"_s);
    EXPECT_EQ(second.id, first.id) << "the same mark";
}

TEST_F(GrowthMarksTest, RowsAtTheEndLeaveItStanding)
{
    set(u"x"_s);
    add(*mDatabase, u"MNUrlsA"_s, {{"Url"_L1, u"http://new.de/"_s}});
    EXPECT_EQ(value(), u"x"_s);
    elsewhere("INSERT INTO MNUrlsA(Url) VALUES('http://newer.de/')");
    EXPECT_EQ(value(), u"x"_s);
}

TEST_F(GrowthMarksTest, ARowThatIsChangedRemovedOrPutInBetweenTakesItAwayWhoeverDoesIt)
{
    for (const char *change : {"UPDATE MNUrlsA SET Url='a' WHERE rowid=1", "DELETE FROM MNUrlsA WHERE rowid=2",
                               "INSERT INTO MNUrlsA(rowid,Url) VALUES(2,'between')"}) {
        const GrowthMarks::Mark mark = set(u"x"_s);
        elsewhere(change);
        EXPECT_EQ(value(), u"(none)"_s) << change;
        EXPECT_NE(set(u"x"_s).id, mark.id) << "whoever knows the old one sees that it is another";
    }
}

TEST_F(GrowthMarksTest, AChangeThatIsTakenBackLeavesIt)
{
    set(u"x"_s);
    {
        const Transaction transaction(*mDatabase);
        mDatabase->connection()->administer("UPDATE MNUrlsA SET Url='a' WHERE rowid=1");
        EXPECT_EQ(value(), u"(none)"_s);
    }
    EXPECT_EQ(value(), u"x"_s);
}

TEST_F(GrowthMarksTest, TheMarksOfOtherTablesAreTheirOwn)
{
    set(u"x"_s);
    const auto other = mDatabase->connection()->requireTable(u"MNUrlsB"_s);
    GrowthMarks marks(*mDatabase->connection(), *other);
    {
        Transaction transaction(*mDatabase);
        static_cast<void>(marks.set(name, u"y"_s));
        ASSERT_TRUE(transaction.commit());
    }
    elsewhere("INSERT INTO MNUrlsB(Url) VALUES('a')");
    elsewhere("DELETE FROM MNUrlsB");
    EXPECT_FALSE(marks.read(name).has_value());
    EXPECT_EQ(value(), u"x"_s);
    mMarks.removeAll();
    EXPECT_EQ(value(), u"(none)"_s);
}
