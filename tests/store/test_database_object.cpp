// The database object: making, testing and filling a file, and the limits and errors of each procedure.
#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "store/DatabaseHolder.h"
#include "store/FixNull.h"
#include "store/Transaction.h"
#include "store/rows/StoredDates.h"

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

TEST_F(StoreTest, OnlyAPageIsKeptWholeThoughOtherColumnsAreLong)
{
    cAdoMdb database(mLog);
    database.setDatabasePath(pathOf(u"t.mdb"_s));
    database.Tables_AddItem(u"T"_s);
    for (const QString &field : {u"Memo"_s, u"date"_s})
        database.Fields_AddItem(field, 0, u""_s);
    ASSERT_TRUE(database.CreateDatabase(false)) << mLog.text();
    EXPECT_TRUE(add(database, u"T"_s, {{"Memo"_L1, QString(300, u'm')}, {"Date"_L1, u"no date"_s}}));
    EXPECT_EQ(first(database, u"SELECT Memo FROM T"_s).toString().size(), 255);
    EXPECT_EQ(database.GetRecordset(u"SELECT * FROM T"_s).Fields()["Memo"_L1].Type(), 203);
    EXPECT_EQ(first(database, u"SELECT date FROM T"_s), QVariant(u"no date"_s)) << "a text column of that name";
}

TEST_F(StoreTest, AnEmptyValueOfANumberIsStoredAsZero)
{
    auto database = created();
    // The number before it shows that the empty value is not just passed over.
    ASSERT_TRUE(add(*database, u"EmailAddress"_s,
                    {{"SSIndex"_L1, u"7"_s}, {"SSIndex"_L1, u""_s}, {"Address"_L1, u"a@b.de"_s}}));
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
    EXPECT_EQ(FixNull(rows.Fields()["Date"_L1]), StoredDates::today());
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

TEST_F(StoreTest, DelimitersAreCountedWithRegardToCaseAndThenFoundWithout)
{
    auto database = created();
    const auto stored = [&](const QString &element) {
        EXPECT_TRUE(database->AddRecord({element}, -1, u"SiteSummary"_s, u"-ab"_s)) << mLog.text();
        Recordset rows = database->GetRecordset(u"SELECT Title FROM SiteSummary"_s);
        rows.MoveLast();
        return rows.Fields()[0].Value().toString();
    };
    EXPECT_EQ(stored(u"Title-abone-ABtwo"_s), u"one-ABtwo"_s) << "one delimiter: the split is exact";
    EXPECT_EQ(stored(u"Title-abone-abtwo"_s), u"abone-abtwo"_s);
    EXPECT_EQ(stored(u"Title-ABone-abtwo-abthree"_s), u"ABone-abtwo-abthree"_s);
    EXPECT_TRUE(database->AddRecord({u"Title==="_s}, -1, u"SiteSummary"_s, u"=="_s));
    EXPECT_EQ(count(*database, u"SELECT * FROM SiteSummary WHERE Title='=='"_s), 1) << "they may overlap";
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

TEST_F(StoreTest, APathInAMissingFolderIsRefusedSilently)
{
    cAdoMdb database(mLog);
    QStringList told;
    QObject::connect(&database, &cAdoMdb::DatabasePathChanged, &database,
                     [&](const QString &path) { told.append(path); });
    EXPECT_EQ(database.DatabasePath(), u"Default.mdb"_s);
    database.setDatabasePath(pathOf(u"missing/x.mdb"_s));
    database.setDatabasePath(u"   "_s);
    EXPECT_EQ(database.DatabasePath(), u"Default.mdb"_s);
    EXPECT_TRUE(told.isEmpty());
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
    database.setDatabasePath(u" "_s + pathOf(u"x.mdb"_s) + u"  "_s);
    EXPECT_EQ(database.DatabasePath(), pathOf(u"x.mdb"_s));
    EXPECT_EQ(told, QStringList{pathOf(u"x.mdb"_s)});
    EXPECT_FALSE(QFileInfo::exists(pathOf(u"x.mdb"_s))) << "the trial file is gone";
    database.setDatabasePath(mFolder.path());
    EXPECT_TRUE(mLog.holds(75, "Let DatabasePath"_L1)) << "a folder is no file";
    EXPECT_EQ(database.DatabasePath(), pathOf(u"x.mdb"_s));
}

TEST_F(StoreTest, AnExistingFileIsOverwrittenOnlyOnYes)
{
    created()->CloseConnection();
    QString asked;
    bool answer = false;
    cAdoMdb database(mLog, [&](const QString &title, const QString &text) {
        asked = title + u'|' + text;
        return answer;
    });
    database.setDatabasePath(pathOf(u"Trawlex-0.mdb"_s));
    database.Tables_AddItem(u"T"_s);
    database.Fields_AddItem(u"Url"_s, 0, u""_s);
    EXPECT_FALSE(database.CreateDatabase(false));
    EXPECT_EQ(asked, u"FILE EXISTS|\"%1\" exists.\r\n Overwrite existing file?"_s.arg(database.DatabasePath()));
    EXPECT_TRUE(declared(u"Trawlex-0.mdb"_s)->TestDatabase(false)) << "No leaves the file";
    answer = true;
    EXPECT_TRUE(database.CreateDatabase(false));
    EXPECT_TRUE(database.TestDatabase(false));
    asked.clear();
    EXPECT_TRUE(database.CreateDatabase(true));
    EXPECT_EQ(asked, u""_s);
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(StoreTest, ARecordNeedsATableADelimiterAndAConnection)
{
    auto database = created();
    EXPECT_FALSE(database->AddRecord({u"Url=x"_s}, -1, u""_s, u"="_s));
    EXPECT_TRUE(mLog.holds(-2147221402, "Function AddRecord"_L1));
    EXPECT_EQ(mLog.entries.last().description, u"Table Index -1 doesn't exist!"_s);
    EXPECT_FALSE(database->AddRecord({u"Url=x"_s}, 32, u""_s, u"="_s));
    EXPECT_TRUE(database->AddRecord({u"Url=x"_s}, 11, u""_s, u"="_s));
    EXPECT_EQ(first(*database, u"SELECT Url FROM MNUrlsA"_s), QVariant(u"x"_s));
    EXPECT_FALSE(database->AddRecord({u"Url"_s}, 11, u""_s, u"="_s));
    EXPECT_TRUE(mLog.holds(9, "Function AddRecord"_L1));
    EXPECT_FALSE(database->AddRecord({u"Url=x"_s}, -1, u"None"_s, u"="_s));
    EXPECT_TRUE(mLog.holds(-2147217865, "Function AddRecord"_L1));
    EXPECT_TRUE(database->AddRecord({u""_s, u"Url,a,b"_s, u"Index,77"_s, u"LastUrl,"_s}, -1, u"MNUrlsB"_s, u","_s));
    Recordset row = database->GetRecordset(u"SELECT * FROM MNUrlsB"_s);
    EXPECT_EQ(row.GetString(u"|"_s, u""_s, u"null"_s), u"1|a,b|"_s) << "one character: the split is exact";
    database->CloseConnection();
    EXPECT_FALSE(database->AddRecord({u"Url=x"_s}, 11, u""_s, u"="_s));
    EXPECT_TRUE(mLog.holds(3709, "Function AddRecord"_L1));
    database->CloseConnection();
    EXPECT_TRUE(mLog.holds(3704, "Sub CloseConnection"_L1));
}

TEST_F(StoreTest, DefaultsFillTextsAndDatesOnly)
{
    auto database = created();
    EXPECT_TRUE(database->AddRecord({}, -1, u"SiteSummary"_s, rowMarker));
    Recordset row = database->GetRecordset(u"SELECT * FROM SiteSummary"_s);
    EXPECT_EQ(row.GetString(u"|"_s, u""_s, u"null"_s), u"1|"_s + StoredDates::today() + u"||||null"_s);
    EXPECT_TRUE(database->AddRecord({}, -1, u"EmailAddress"_s, rowMarker));
    EXPECT_EQ(first(*database, u"SELECT SSIndex FROM EmailAddress"_s), QVariant(0LL));
}

TEST_F(StoreTest, ANumberThatIsNoneIsLostAlone)
{
    auto database = created();
    EXPECT_TRUE(add(*database, u"EmailAddress"_s, {{"SSIndex"_L1, u"x"_s}, {"Address"_L1, u"a"_s}}));
    EXPECT_TRUE(add(*database, u"EmailAddress"_s, {{"SSIndex"_L1, u"99999999999"_s}, {"Address"_L1, u"b"_s}}));
    EXPECT_TRUE(add(*database, u"EmailAddress"_s, {{"SSIndex"_L1, u"-1"_s}, {"index"_L1, u"9"_s}}));
    Recordset rows = database->GetRecordset(u"SELECT Index,SSIndex FROM EmailAddress"_s);
    EXPECT_EQ(rows.GetString(u","_s, u";"_s, u""_s), u"1,0;2,0;3,-1;"_s);
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(StoreTest, AnIndexIsNeverGivenTwice)
{
    auto database = created();
    add(*database, u"Block"_s, {{"UrlsContent"_L1, u"a"_s}});
    database->DeleteRecords(u"Block"_s, u""_s, u""_s, false);
    add(*database, u"Block"_s, {{"UrlsContent"_L1, u"b"_s}});
    EXPECT_EQ(first(*database, u"SELECT Index FROM Block"_s), QVariant(2LL));
}

TEST_F(StoreTest, TablesAreAddedAndRemoved)
{
    auto database = created();
    EXPECT_FALSE(database->AddTable(u"Unknown"_s));
    EXPECT_TRUE(mLog.holds(-2147221401, "AddTable"_L1));
    EXPECT_EQ(mLog.entries.last().description, u"Table Unknown doesn't exist!"_s);
    mLog.entries.clear();
    database->Tables_AddItem(u"More"_s);
    for (const QString &field : {u"Date"_s, u"SSIndex"_s, u"FullPage"_s})
        database->Fields_AddItem(field, -1, u"More"_s);
    EXPECT_TRUE(database->AddTable(u"More"_s)) << mLog.text();
    Recordset rows = database->GetRecordset(u"SELECT * FROM More"_s);
    const QList<int> kinds{3, 7, 130, 130};
    for (int column = 0; column < 4; ++column)
        EXPECT_EQ(rows.Fields()[column].Type(), kinds[column]);
    EXPECT_FALSE(database->AddTable(u"More"_s)) << "it is there already";
    EXPECT_FALSE(database->RemoveTable(u"more"_s));
    EXPECT_TRUE(database->RemoveTable(u"More"_s));
    EXPECT_EQ(database->Tables_Count(), 31);
    EXPECT_TRUE(database->TestDatabase(false)) << mLog.text();
    database->CloseConnection();
    EXPECT_FALSE(database->RemoveTable(u"AutoTextE"_s));
    EXPECT_TRUE(mLog.holds(3709, "RemoveTable"_L1)) << mLog.text();
    EXPECT_FALSE(database->AddTable(u"AutoTextE"_s));
    EXPECT_TRUE(mLog.holds(3709, "AddTable"_L1)) << mLog.text();
    EXPECT_EQ(database->Tables_Count(), 31) << "a table that was not removed stays in the matrix";
}

TEST_F(StoreTest, LoadDatabaseReadsTheNamesOfAFile)
{
    created()->CloseConnection();
    cAdoMdb database(mLog);
    EXPECT_FALSE(database.LoadDatabase(pathOf(u"none.mdb"_s)));
    EXPECT_TRUE(database.LoadDatabase(u" "_s + pathOf(u"Trawlex-0.mdb"_s) + u" "_s));
    EXPECT_EQ(database.DatabasePath(), pathOf(u"Trawlex-0.mdb"_s));
    EXPECT_EQ(database.Tables_Count(), 31);
    EXPECT_EQ(database.Tables_ListItem(5, u""_s), u"SiteSummary"_s);
    EXPECT_EQ(database.Fields_Count(-1, u"SearchSites"_s), 41);
    EXPECT_TRUE(database.TestDatabase(false));
    EXPECT_EQ(count(database, u"SELECT * FROM SiteSummary"_s), 0);
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(StoreTest, CompactingGivesRoomBackAndTellsIt)
{
    auto database = created();
    for (int number = 0; number < 20; ++number)
        add(*database, u"SiteSummary"_s, {{"Url"_L1, QString::number(number)}, {"FullPage"_L1, QString(50'000, u'x')}});
    database->DeleteRecords(u"SiteSummary"_s, u""_s, u""_s, false);
    add(*database, u"Block"_s, {{"UrlsContent"_L1, u"kept"_s}});
    database->CloseConnection();
    const qint64 before = QFileInfo(database->DatabasePath()).size();
    const QString report = database->CompactDatabase();
    const qint64 after = QFileInfo(database->DatabasePath()).size();
    EXPECT_LT(after, before);
    EXPECT_EQ(report, u"%1 original size %2\r\nCompact size %3"_s.arg(database->DatabasePath()).arg(before).arg(after));
    EXPECT_TRUE(database->TestDatabase(true)) << mLog.text();
    EXPECT_EQ(database->GetFieldData(u"UrlsContent"_s, u"Block"_s), QStringList{u"kept"_s});
}

TEST_F(StoreTest, AFileThatCannotBeCompactedGivesNoReport)
{
    auto database = declared(u"none.mdb"_s);
    EXPECT_EQ(database->CompactDatabase(), u""_s);
    EXPECT_TRUE(mLog.holds(53, "CompactDatabase"_L1)) << mLog.text();
}

TEST_F(StoreTest, AQueryThatFailsLeavesItToItsReader)
{
    auto database = created();
    EXPECT_EQ(database->GetFieldData(u"None"_s, u"Block"_s), QStringList{u""_s});
    EXPECT_EQ(mLog.entries.size(), 1);
    EXPECT_TRUE(mLog.holds(3704, "Function GetFieldData"_L1)) << mLog.text();
    mLog.entries.clear();
    for (const QString &statement :
         {u"SELECT * FROM sqlite_master"_s, u"SELECT * FROM sqlite_sequence"_s, u"DELETE * FROM sqlite_sequence"_s,
          u"SELECT * FROM [sqlite_schema]"_s, u"SELECT * FROM pragma_table_info"_s})
        EXPECT_FALSE(database->GetRecordset(statement).isOpen()) << statement.toStdString();
    database->CloseConnection();
    EXPECT_FALSE(database->GetRecordset(u"SELECT * FROM Block"_s).isOpen());
    EXPECT_TRUE(mLog.entries.size() == 0) << mLog.text();
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
