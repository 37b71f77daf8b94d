// The search for a page's summary row, against the walk that it stands for.
#include "RandomWriters.h"
#include "store/AdoErrors.h"
#include "store/SiteSummaryIndex.h"
#include "store/rows/SummaryKeys.h"
#include "store/sqlite/Connection.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
// Stands in for the address rules: what lies between "//" and the next "/", or the start and the next "/".
QString serverOf(const QString &url)
{
    const qsizetype slashes = url.indexOf("//"_L1);
    const qsizetype start = slashes < 0 ? 0 : slashes + 2;
    return url.mid(start).section(u'/', 0, 0);
}

qint64 plainWalk(cAdoMdb &database, const QString &key, const QString &keyServer)
{
    const QString page = cUtility::lowered(key);
    const QString server = cUtility::lowered(keyServer);
    Recordset rows = database.GetRecordset(u"SELECT Index,Url FROM SiteSummary"_s);
    for (; !rows.Bof() && !rows.Eof(); rows.MoveNext()) {
        const QString rowUrl = cUtility::lowered(rows.Fields()[1].Value().toString());
        const QString rowServer = cUtility::lowered(serverOf(rows.Fields()[1].Value().toString()));
        if (page == rowUrl || page == rowServer || server == rowUrl || server == rowServer)
            return rows.Fields()[0].Value().toLongLong();
    }
    return -1;
}

class SummaryIndexTest : public StoreTest
{
  protected:
    void addPage(const QString &url) { add(*mDatabase, u"SiteSummary"_s, {{"Url"_L1, url}}); }
    [[nodiscard]] qint64 find(const QString &key, const QString &server = {})
    {
        const qint64 found = mIndex.find(*mDatabase, key, server);
        EXPECT_EQ(found, plainWalk(*mDatabase, key, server)) << key.toStdString() << " " << server.toStdString();
        return found;
    }

    std::unique_ptr<cAdoMdb> mDatabase = created();
    SiteSummaryIndex mIndex{serverOf};
};
} // namespace

TEST_F(SummaryIndexTest, TheFirstRowInTableOrderWins)
{
    EXPECT_EQ(find(u"http://a.de/"_s, u"a.de"_s), -1);
    addPage(u"http://b.de/1"_s);
    addPage(u"http://a.de/1"_s);
    addPage(u"a.de"_s);
    addPage(u"http://a.de/2"_s);
    EXPECT_EQ(find(u"http://a.de/2"_s), 4) << "the address alone";
    EXPECT_EQ(find(u"http://a.de/2"_s, u"a.de"_s), 2) << "another page of the same server comes first";
    EXPECT_EQ(find(u"A.DE"_s), 2);
    EXPECT_EQ(find(u"HTTP://B.DE/1"_s, u"nowhere"_s), 1);
    EXPECT_EQ(find(u"x"_s, u"y"_s), -1);
}

TEST_F(SummaryIndexTest, EmptyTextsAreComparedLikeOthers)
{
    addPage(u"http://a.de/"_s);
    EXPECT_EQ(find(u"x"_s, u""_s), -1);
    addPage(u""_s);
    EXPECT_EQ(find(u"x"_s, u""_s), 2);
}

TEST_F(SummaryIndexTest, CaseIsIgnoredBeyondAscii)
{
    addPage(u"http://MÜLLER.de/Ä"_s);
    addPage(u"http://\u212A.de/"_s);
    EXPECT_EQ(find(u"http://müller.DE/ä"_s), 1);
    EXPECT_EQ(find(u"http://k.de/"_s), 2) << "the Kelvin sign's lower case is a k";
}

TEST_F(SummaryIndexTest, RowsThatAreAddedChangedOrRemovedAreSeen)
{
    addPage(u"http://a.de/1"_s);
    EXPECT_EQ(find(u"http://a.de/1"_s), 1);
    addPage(u"http://a.de/2"_s);
    EXPECT_EQ(find(u"http://a.de/2"_s), 2);
    Recordset row = mDatabase->GetRecordset(u"SELECT * FROM SiteSummary"_s);
    row.Fields()["Url"_L1].setValue(u"http://c.de/"_s);
    row.Update();
    EXPECT_EQ(find(u"http://a.de/1"_s), -1);
    EXPECT_EQ(find(u"c.de"_s), 1);
    row.Delete();
    EXPECT_EQ(find(u"c.de"_s), -1);
    mDatabase->DeleteRecords(u"SiteSummary"_s, u"Index"_s, u"2"_s, true);
    EXPECT_EQ(find(u"http://a.de/2"_s), -1);
    row.AddNew();
    row.Fields()["Url"_L1].setValue(u"http://d.de/"_s);
    row.Update();
    EXPECT_EQ(find(u"d.de"_s), 3);
    mDatabase->DeleteRecords(u"SiteSummary"_s, u""_s, u""_s, false);
    EXPECT_EQ(find(u"d.de"_s), -1);
}

TEST_F(SummaryIndexTest, ATransactionThatIsTakenBackIsForgotten)
{
    addPage(u"http://a.de/"_s);
    {
        Transaction page(*mDatabase);
        addPage(u"http://b.de/"_s);
        EXPECT_EQ(find(u"b.de"_s), 2);
        Transaction inner(*mDatabase);
        addPage(u"http://c.de/"_s);
        EXPECT_EQ(find(u"c.de"_s), 3);
    }
    EXPECT_EQ(find(u"b.de"_s), -1);
    addPage(u"http://c.de/"_s);
    EXPECT_EQ(find(u"c.de"_s), 2) << "its number is given again";
    EXPECT_EQ(find(u"b.de"_s), -1);
}

TEST_F(SummaryIndexTest, WhatAnotherProgramWritesIsSeen)
{
    addPage(u"http://a.de/"_s);
    EXPECT_EQ(find(u"a.de"_s), 1);
    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(mDatabase->DatabasePath().toUtf8().constData(), &other), SQLITE_OK);
    sqlite3_exec(other, "UPDATE SiteSummary SET Url='http://z.de/'", nullptr, nullptr, nullptr);
    EXPECT_EQ(find(u"a.de"_s), -1);
    EXPECT_EQ(find(u"z.de"_s), 1);
    {
        Transaction page(*mDatabase);
        EXPECT_EQ(find(u"z.de"_s), 1);
        EXPECT_EQ(sqlite3_exec(other, "DELETE FROM SiteSummary", nullptr, nullptr, nullptr), SQLITE_BUSY);
        EXPECT_TRUE(page.commit());
    }
    sqlite3_exec(other, "DELETE FROM SiteSummary", nullptr, nullptr, nullptr);
    EXPECT_EQ(find(u"z.de"_s), -1);
    sqlite3_exec(other, "INSERT INTO SiteSummary(Url) VALUES('http://n.de/')", nullptr, nullptr, nullptr);
    {
        const Transaction page(*mDatabase);
        EXPECT_EQ(find(u"n.de"_s), 2) << "what was written before a transaction is seen inside it";
    }
    sqlite3_close(other);
}

TEST_F(SummaryIndexTest, AnotherDatabaseIsReadAnew)
{
    addPage(u"http://a.de/"_s);
    EXPECT_EQ(find(u"a.de"_s), 1);
    mDatabase = created(u"Trawlex-1.mdb"_s);
    EXPECT_EQ(find(u"a.de"_s), -1);
    mDatabase->CloseConnection();
    EXPECT_THROW(static_cast<void>(mIndex.find(*mDatabase, u"a"_s, u"b"_s)), RuntimeError);
}

namespace {
QString anyOf(std::mt19937 &random, const QStringList &list)
{
    return list[static_cast<qsizetype>(random() % unsigned(list.size()))];
}

QString anyServer(std::mt19937 &random)
{
    return anyOf(random, {u"a.de"_s, u"A.de"_s, u"b.de"_s, u"www.a.de"_s, u""_s, u"ä.de"_s, u"Ä.DE"_s});
}

QString anyAddress(std::mt19937 &random)
{
    QString form =
        anyOf(random, {u"http://%1/"_s, u"%1"_s, u"http://%1/p%2"_s, u"HTTPS://%1/p%2/q"_s, u"%1/p%2"_s, u""_s});
    return form.replace("%1"_L1, anyServer(random)).replace("%2"_L1, QString::number(random() % 300));
}
} // namespace

TEST_F(SummaryIndexTest, EqualsTheWalkWhateverHappensToTheTable)
{
    for (unsigned seed = 0; seed < 3; ++seed) {
        mDatabase = created(u"random-%1.mdb"_s.arg(seed));
        auto index = std::make_unique<SiteSummaryIndex>(serverOf);
        RandomWriters writers(mDatabase, u"SiteSummary"_s, u"Url"_s, seed, anyAddress);
        for (int step = 0; step < 700; ++step) {
            if (writers.step())
                index = std::make_unique<SiteSummaryIndex>(serverOf);
            const QString key = anyAddress(writers.random());
            const QString server = writers.random()() % 2 == 0 ? QString() : anyServer(writers.random());
            ASSERT_EQ(index->find(*mDatabase, key, server), plainWalk(*mDatabase, key, server))
                << "seed " << seed << ", step " << step << ": " << key.toStdString() << " " << server.toStdString();
        }
    }
}

TEST_F(SummaryIndexTest, TheIndexIsKeptAndALaterRunReadsOnlyWhatWasAddedBehindIt)
{
    int asked = 0;
    const auto countingServerOf = [&](const QString &url) {
        ++asked;
        return serverOf(url);
    };
    const auto addPages = [&](int count) {
        Transaction pages(*mDatabase);
        for (int page = 0; page < count; ++page)
            addPage(u"http://s%1.de/p"_s.arg(page));
        EXPECT_TRUE(pages.commit());
    };
    addPages(5000);
    {
        Transaction page(*mDatabase);
        SiteSummaryIndex first(countingServerOf);
        EXPECT_EQ(first.find(*mDatabase, u"s77.de"_s, u"x"_s), 78);
        EXPECT_GT(asked, 5000);
        EXPECT_TRUE(page.commit());
    }
    addPages(30);
    mDatabase->CloseConnection();
    ASSERT_TRUE(mDatabase->TestDatabase(true)) << "the index is no table of the user's " << mLog.text();
    asked = 0;
    SiteSummaryIndex later(countingServerOf);
    EXPECT_EQ(later.find(*mDatabase, u"s77.de"_s, u"x"_s), 78);
    EXPECT_LT(asked, 50);
    asked = 0;
    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(mDatabase->DatabasePath().toUtf8().constData(), &other), SQLITE_OK);
    sqlite3_exec(other, "INSERT INTO SiteSummary(Url) VALUES('http://n.de/')", nullptr, nullptr, nullptr);
    EXPECT_EQ(later.find(*mDatabase, u"n.de"_s, u"x"_s), 5031);
    EXPECT_LT(asked, 5) << "another program's row alone was read";
    sqlite3_close(other);
}

TEST_F(SummaryIndexTest, TwoProgramsKeepTheSameIndex)
{
    auto other = declared(u"Trawlex-0.mdb"_s);
    ASSERT_TRUE(other->TestDatabase(true));
    SiteSummaryIndex otherIndex(serverOf);
    std::mt19937 random(3);
    for (int page = 0; page < 400; ++page) {
        const bool first = random() % 3 != 0;
        cAdoMdb &database = first ? *mDatabase : *other;
        SiteSummaryIndex &index = first ? mIndex : otherIndex;
        Transaction transaction(database);
        const QString url = u"http://s%1.de/p%2"_s.arg(random() % 300).arg(page);
        add(database, u"SiteSummary"_s, {{"Url"_L1, url}});
        ASSERT_EQ(index.find(database, url, serverOf(url)), plainWalk(database, url, serverOf(url))) << mLog.text();
        ASSERT_TRUE(transaction.commit()) << mLog.text();
    }
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(SummaryIndexTest, OutsideATransactionNothingIsMade)
{
    addPage(u"http://a.de/"_s);
    EXPECT_EQ(find(u"a.de"_s), 1);
    const auto &connection = mDatabase->connection();
    EXPECT_FALSE(connection->tableNames(false).join(u' ').contains(u"Sys"_s));
    {
        const Transaction takenBack(*mDatabase);
        EXPECT_EQ(find(u"a.de"_s), 1);
        EXPECT_TRUE(connection->tableNames(false).join(u' ').contains(u"SysSummaryKeys1"_s));
    }
    EXPECT_FALSE(connection->tableNames(false).join(u' ').contains(u"Sys"_s));
    EXPECT_EQ(find(u"a.de"_s), 1);
}

TEST_F(SummaryIndexTest, ATableThatIsRemovedTakesItsIndexAlong)
{
    addPage(u"http://a.de/"_s);
    Transaction page(*mDatabase);
    EXPECT_EQ(find(u"a.de"_s), 1);
    EXPECT_TRUE(page.commit());
    const QStringList fields{u"Url"_s, u"Title"_s};
    ASSERT_TRUE(mDatabase->RemoveTable(u"SiteSummary"_s));
    ASSERT_TRUE(mDatabase->Tables_AddItem(u"SiteSummary"_s));
    for (const QString &field : fields)
        mDatabase->Fields_AddItem(field, -1, u"SiteSummary"_s);
    ASSERT_TRUE(mDatabase->AddTable(u"SiteSummary"_s)) << mLog.text();
    Transaction again(*mDatabase);
    EXPECT_EQ(find(u"a.de"_s), -1);
    addPage(u"http://b.de/"_s);
    EXPECT_EQ(find(u"b.de"_s), 1);
}

TEST(SummaryKeys, AreTheSameOnEveryMachine)
{
    EXPECT_EQ(SummaryKeys::keyOf(u""_s), 1339080641U);
    EXPECT_EQ(SummaryKeys::keyOf(u"www.example.de"_s), 6065168U);
}
