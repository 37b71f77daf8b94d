// The database object: making, testing and filling a file, and the limits and errors of each procedure.
#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "store/DatabaseHolder.h"
#include "store/Dates.h"
#include "store/FixNull.h"
#include "store/Transaction.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

TEST_F(StoreTest, ANewDatabaseHasTheThirtyOneTablesAndPassesItsTest)
{
    created()->CloseConnection();
    auto again = declared(u"Trawlex-0.mdb"_s);
    EXPECT_EQ(again->Tables_Count(), 31);
    EXPECT_TRUE(again->TestDatabase(true)) << mLog.text();
    EXPECT_TRUE(add(*again, u"SiteSummary"_s, {{"Url"_L1, u"http://a.de/"_s}})) << mLog.text();
    EXPECT_EQ(count(*again, u"SELECT * FROM SiteSummary"_s), 1);
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(StoreTest, AUrlIsCutAt255CharactersAndAPageIsKeptWhole)
{
    auto database = created();
    ASSERT_TRUE(
        add(*database, u"SiteSummary"_s, {{"Url"_L1, QString(300, u'u')}, {"FullPage"_L1, QString(300'000, u'p')}}));
    EXPECT_EQ(first(*database, u"SELECT Url FROM SiteSummary"_s).toString().size(), 255);
    EXPECT_EQ(first(*database, u"SELECT FullPage FROM SiteSummary"_s).toString().size(), 300'000);
}

TEST_F(StoreTest, AnEmptyValueOfANumberIsStoredAsZero)
{
    auto database = created();
    ASSERT_TRUE(add(*database, u"EmailAddress"_s, {{"SSIndex"_L1, u""_s}, {"Address"_L1, u"a@b.de"_s}}));
    EXPECT_EQ(first(*database, u"SELECT SSIndex FROM EmailAddress"_s), QVariant(0LL));
}

TEST_F(StoreTest, AnUnknownFieldLosesOnlyItsValue)
{
    auto database = created();
    EXPECT_TRUE(add(*database, u"EmailAddress"_s, {{"Nothing"_L1, u"x"_s}, {"Address"_L1, u"a@b.de"_s}}));
    EXPECT_EQ(first(*database, u"SELECT Address FROM EmailAddress"_s), QVariant(u"a@b.de"_s));
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(StoreTest, ADateThatIsNoDateBecomesToday)
{
    auto database = created();
    EXPECT_TRUE(add(*database, u"SiteSummary"_s, {{"Date"_L1, u"no date"_s}}));
    EXPECT_TRUE(add(*database, u"SiteSummary"_s, {{"Date"_L1, u"2001-02-03"_s}}));
    Recordset rows = database->GetRecordset(u"SELECT Date FROM SiteSummary"_s);
    EXPECT_EQ(FixNull(rows.Fields()["Date"_L1]), todayText());
    rows.MoveNext();
    EXPECT_EQ(FixNull(rows.Fields()["date"_L1]), u"2001-02-03"_s);
}

TEST_F(StoreTest, AValueThatHoldsTheMarkerIsStoredWithItsTail)
{
    auto database = created();
    const QString element = recordElement("Title"_L1, u"left"_s + rowMarker + u"right"_s);
    EXPECT_TRUE(database->AddRecord({element}, -1, u"SiteSummary"_s, rowMarker));
    EXPECT_EQ(first(*database, u"SELECT Title FROM SiteSummary"_s).toString(),
              QString(rowMarker).mid(1) + u"left"_s + rowMarker + u"right"_s);
}

TEST_F(StoreTest, DeletingWithoutCriteriaEmptiesTheTable)
{
    auto database = created();
    add(*database, u"Block"_s, {{"UrlsContent"_L1, u"a"_s}});
    add(*database, u"Block"_s, {{"UrlsContent"_L1, u"b"_s}});
    database->DeleteRecords(u"Block"_s, u"UrlsContent"_s, u"a"_s, false);
    EXPECT_EQ(count(*database, u"SELECT * FROM Block"_s), 1);
    database->DeleteRecords(u"Block"_s, u"Index"_s, u"2"_s, true);
    EXPECT_EQ(count(*database, u"SELECT * FROM Block"_s), 0);
    add(*database, u"Block"_s, {{"UrlsContent"_L1, u"c"_s}});
    database->DeleteRecords(u"Block"_s, u""_s, u""_s, false);
    EXPECT_EQ(count(*database, u"SELECT * FROM Block"_s), 0);
}

TEST_F(StoreTest, FieldDataOfAnEmptyTableIsOneEmptyElement)
{
    auto database = created();
    EXPECT_EQ(database->GetFieldData(u"Url"_s, u"MNUrlsA"_s), QStringList{u""_s});
    add(*database, u"MNUrlsA"_s, {{"Url"_L1, u"x"_s}});
    add(*database, u"MNUrlsA"_s, {{"Url"_L1, u""_s}});
    add(*database, u"MNUrlsA"_s, {{"Url"_L1, u"y"_s}});
    EXPECT_EQ(database->GetFieldData(u"Url"_s, u"MNUrlsA"_s), (QStringList{u"x"_s, u"y"_s}));
    EXPECT_EQ(database->GetFieldData(u""_s, u"MNUrlsA"_s), QStringList{u""_s});
}

TEST_F(StoreTest, WhatATransactionDidNotCommitIsGone)
{
    auto database = created();
    {
        Transaction page(*database);
        add(*database, u"Block"_s, {{"UrlsContent"_L1, u"a"_s}});
        {
            Transaction inner(*database);
            add(*database, u"Block"_s, {{"UrlsContent"_L1, u"inner"_s}});
        }
        EXPECT_EQ(count(*database, u"SELECT * FROM Block"_s), 1);
    }
    EXPECT_EQ(count(*database, u"SELECT * FROM Block"_s), 0);
    {
        Transaction page(*database);
        add(*database, u"Block"_s, {{"UrlsContent"_L1, u"a"_s}});
        EXPECT_TRUE(page.commit());
        EXPECT_FALSE(page.commit());
    }
    EXPECT_EQ(count(*database, u"SELECT * FROM Block"_s), 1);
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(StoreTest, ASetCanBeReadChangedAndWalked)
{
    auto database = created();
    Recordset rows = database->GetRecordset(u"SELECT * FROM MNUrlsB"_s);
    EXPECT_TRUE(rows.Bof());
    EXPECT_TRUE(rows.Eof());
    for (int number = 0; number < 40; ++number) {
        rows.AddNew();
        rows.Fields()["Url"_L1].setValue(QString::number(number));
        rows.Update();
    }
    EXPECT_EQ(rows.RecordCount(), 40);
    Recordset walk = database->GetRecordset(u"SELECT Url FROM MNUrlsB"_s);
    int number = 0;
    for (; !walk.Bof() && !walk.Eof(); walk.MoveNext(), ++number) {
        ASSERT_EQ(walk.Fields()[0].Value(), QVariant(QString::number(number)));
        if (number % 2 == 0)
            walk.Delete();
        else
            walk.Fields()["Url"_L1].setValue(u"odd"_s);
    }
    EXPECT_EQ(number, 40);
    EXPECT_EQ(count(*database, u"SELECT * FROM MNUrlsB WHERE Url='ODD'"_s), 20);
}

TEST(DatabaseHolder, AnEmptyOneRaisesError91)
{
    const DatabaseHolder holder;
    try {
        holder->CloseConnection();
        FAIL();
    } catch (const RuntimeError &error) {
        EXPECT_EQ(error.number(), 91);
        EXPECT_EQ(error.description(), u"Object variable or With block variable not set"_s);
    }
}
