// The manual lists in the database: what is saved, loaded, remembered and kept when it is deleted.
#include "support/ManualFixture.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;

namespace {
const QString table = u"MNUrlsA"_s;

class ManualTablesTest : public ManualTest
{
};

/// What saving does, one question an item.
void savePlainly(cAdoMdb &database, const QStringList &items)
{
    for (const QString &item : items) {
        if (item.contains(u'\'') || item.isEmpty())
            continue;
        if (database.GetRecordset(u"SELECT Url FROM MNUrlsB WHERE Url='"_s + item.left(255) + u"'"_s).Eof())
            database.AddRecord({u"Url"_s + rowMarker + item}, -1, u"MNUrlsB"_s, rowMarker);
    }
}
} // namespace

TEST_F(ManualTablesTest, SavingAddsWhatTheTableHasNotAndRemovesNothing)
{
    addUrl(table, u"http://old.com"_s);
    list().setItems({u"HTTP://OLD.com"_s, u"http://b.com"_s, {}, u"http://B.com"_s, u"http://a.com"_s});
    EXPECT_EQ(tables.SaveMN(list(), table), QString());
    EXPECT_EQ(rows(table), (QStringList{u"http://old.com"_s, u"http://b.com"_s, u"http://a.com"_s}));
    list().setItems({u"http://a.com"_s});
    EXPECT_EQ(tables.SaveMN(list(), table), QString());
    EXPECT_EQ(rows(table).size(), 3) << "a list that shrank leaves its old rows";
}

TEST_F(ManualTablesTest, AnItemWithASingleQuoteIsSkippedAndNoOther)
{
    list().setItems({u"http://a.com"_s, u"http://o'b.com"_s, u"http://c.com"_s});
    EXPECT_EQ(tables.SaveMN(list(), table), QString());
    EXPECT_EQ(rows(table), (QStringList{u"http://a.com"_s, u"http://c.com"_s}));
    EXPECT_EQ(list().listCount(), 3);
}

TEST_F(ManualTablesTest, AnItemTooLongForItsColumnIsSavedOnce)
{
    list().setItems({u"http://a.com/"_s + QString(300, u'x')});
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(tables.SaveMN(list(), table), QString());
    EXPECT_EQ(rows(table).size(), 1);
}

TEST_F(ManualTablesTest, SavingAgreesWithOneQuestionAnItem)
{
    RandomText random(7);
    for (int round = 0; round < 30; ++round) {
        const QStringList items =
            random.list({u"a"_s, u"B"_s, u"b"_s, u"'"_s, u"\u00C9"_s, u"\u00E9"_s, u"K"_s}, 12, 3);
        list().setItems(items);
        EXPECT_EQ(tables.SaveMN(list(), table), QString());
        savePlainly(*database, items);
        ASSERT_EQ(rows(table), rows(u"MNUrlsB"_s)) << "round " << round;
    }
}

TEST_F(ManualTablesTest, WhatTheDatabaseRefusesIsTold)
{
    list().setItems({u"http://a.com"_s});
    database->CloseConnection();
    EXPECT_NE(tables.SaveMN(list(), table), QString());
    EXPECT_EQ(list().listCount(), 1);
}

TEST_F(ManualTablesTest, WhatTheDatabaseDoesNotGiveIsTold)
{
    addUrl(table, u"http://saved.com"_s);
    list().setItems({u"http://a.com"_s});
    database->CloseConnection();
    EXPECT_EQ(tables.LoadMN(list(), table), u"Not readable"_s);
    EXPECT_EQ(tables.addNew(list(), table), u"Not readable"_s);
    EXPECT_EQ(list().items(), QStringList{u"http://a.com"_s});
}

TEST_F(ManualTablesTest, LoadingAddsAllRowsAndSelectsTheRememberedOne)
{
    for (const char *name : {"a", "b", "a"})
        addUrl(table, QLatin1StringView(name));
    list().setItems({u"first"_s});
    choose(0, {0});
    EXPECT_EQ(tables.LoadMN(list(), table), QString());
    EXPECT_EQ(list().selCount(), 0) << "nothing is remembered yet";
    EXPECT_EQ(list().items(), (QStringList{u"first"_s, u"a"_s, u"b"_s, u"a"_s}));
    choose(2, {2});
    EXPECT_EQ(tables.SaveMNLastUrl(list(), table, true), u"b"_s);
    list().clear();
    EXPECT_EQ(tables.LoadMN(list(), table), QString());
    EXPECT_EQ(list().listIndex(), 1);
    EXPECT_EQ(list().selection(), (std::vector<bool>{false, true, false}));
}

TEST_F(ManualTablesTest, ATableWithoutRowsRemembersNothing)
{
    list().setItems({u"a"_s});
    choose(0, {0});
    EXPECT_EQ(tables.SaveMNLastUrl(list(), table, true), QString());
    EXPECT_TRUE(rows(table).isEmpty());
}

TEST_F(ManualTablesTest, AnItemThatDoesNotFitIsNotRemembered)
{
    addUrl(table, u"a"_s);
    list().setItems({u"b"_s, QString(256, u'x'), QString(255, u'y')});
    choose(0, {});
    EXPECT_EQ(tables.SaveMNLastUrl(list(), table, true), u"b"_s);
    choose(1, {});
    EXPECT_EQ(tables.SaveMNLastUrl(list(), table, true), u"b"_s);
    choose(2, {});
    EXPECT_EQ(tables.SaveMNLastUrl(list(), table, true), QString(255, u'y'));
    choose(-1, {});
    EXPECT_EQ(tables.SaveMNLastUrl(list(), table, false), QString(255, u'y'));
}

TEST_F(ManualTablesTest, NewAddressesOfATableJoinTheList)
{
    addUrl(table, u"A"_s);
    addUrl(table, u"b"_s);
    list().setItems({u"a"_s});
    EXPECT_EQ(tables.addNew(list(), table), QString());
    EXPECT_EQ(list().items(), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_TRUE(tables.hasRows(table));
    EXPECT_FALSE(tables.hasRows(u"MNUrlsC"_s));
}

TEST_F(ManualTablesTest, TheSummaryNamesTheLastServer)
{
    EXPECT_EQ(tables.summary(table), u"MNUrlsA no saved"_s);
    addUrl(table, u"http://www.one.com/x"_s);
    addUrl(table, u"http://www.two.com/y/z"_s);
    EXPECT_EQ(tables.summary(table), u"2 saved: http://www.two"_s);
}

TEST_F(ManualTablesTest, CancellingALoadLeavesTheListAsItWas)
{
    addUrl(table, u"a"_s);
    list().setItems({u"x"_s});
    EXPECT_TRUE(work.run(u"Loading"_s, [&] {
        work.cancel();
        EXPECT_EQ(tables.LoadMN(list(), table), u"Cancelled"_s);
        EXPECT_EQ(tables.addNew(list(), table), u"Cancelled"_s);
        EXPECT_EQ(tables.SaveMN(list(), table), u"Cancelled"_s);
        EXPECT_EQ(deleted.CacheDeletedData(table), DeletedRows::Outcome::Cancelled);
    }));
    EXPECT_EQ(list().items(), QStringList{u"x"_s});
    EXPECT_EQ(rows(table), QStringList{u"a"_s});
}

TEST_F(ManualTablesTest, ATableWithoutRowsLeavesTheCacheAsItWas)
{
    addUrl(u"UrlsCache"_s, u"kept"_s);
    EXPECT_EQ(deleted.CacheDeletedData(table), DeletedRows::Outcome::WasEmpty);
    EXPECT_EQ(rows(u"UrlsCache"_s), QStringList{u"kept"_s});
}

TEST_F(ManualTablesTest, ADeletedManualListIsKeptWithTodaysDate)
{
    addUrl(u"UrlsCache"_s, u"before"_s);
    addUrl(table, u"a"_s);
    addUrl(table, u"b"_s);
    EXPECT_EQ(deleted.CacheDeletedData(table), DeletedRows::Outcome::Moved);
    EXPECT_EQ(rows(u"UrlsCache"_s), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(rows(u"UrlsCache"_s, u"SSIndex"_s), (QStringList{u"0"_s, u"0"_s}));
    EXPECT_EQ(rows(u"UrlsCache"_s, u"MaskName"_s), (QStringList{{}, {}}));
    EXPECT_TRUE(rows(u"UrlsCache"_s, u"Date"_s)[0].startsWith(QDate::currentDate().toString(Qt::ISODate).left(8)));
    EXPECT_TRUE(rows(table).isEmpty());
}

TEST_F(ManualTablesTest, DeletedAutoListsKeepTheirOwnValues)
{
    const auto add = [&](const QString &into) {
        addRow(*database, into,
               {{u"Date"_s, u"2020-02-03"_s}, {u"SSIndex"_s, u"7"_s}, {u"MaskName"_s, u"Set"_s}, {u"Url"_s, u"u"_s}});
    };
    add(u"PassUrlsC"_s);
    EXPECT_EQ(deleted.CacheDeletedData(u"PassUrlsC"_s), DeletedRows::Outcome::Moved);
    EXPECT_EQ(rows(u"UrlsCache"_s, u"SSIndex"_s), QStringList{u"7"_s});
    EXPECT_EQ(rows(u"UrlsCache"_s, u"MaskName"_s), QStringList{u"Set"_s});
    EXPECT_EQ(rows(u"UrlsCache"_s, u"Date"_s), QStringList{u"2020-02-03"_s});
    add(u"RPgUrlsB"_s);
    EXPECT_EQ(deleted.CacheDeletedData(u"RPgUrlsB"_s), DeletedRows::Outcome::Moved);
    EXPECT_EQ(rows(u"UrlsCache"_s, u"SSIndex"_s), QStringList{u"0"_s}) << "saved links have no page";
    EXPECT_EQ(rows(u"UrlsCache"_s, u"MaskName"_s), QStringList{u"Set"_s});
}

TEST_F(ManualTablesTest, ADeleteThatTheFileRefusesKeepsBothTables)
{
    addUrl(u"UrlsCache"_s, u"kept"_s);
    addUrl(table, u"a"_s);
    Recordset held = database->GetRecordset(u"SELECT * FROM MNUrlsA"_s);
    database->CloseConnection();
    EXPECT_EQ(deleted.CacheDeletedData(table), DeletedRows::Outcome::Refused);
    ASSERT_TRUE(database->TestDatabase(true));
    EXPECT_EQ(rows(u"UrlsCache"_s), QStringList{u"kept"_s});
    EXPECT_EQ(rows(table), QStringList{u"a"_s});
}
