// The keys of a query's rows, fetched as far as they are asked for, against all of them at once.
#include "store/rows/KeySet.h"

#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "store/Transaction.h"
#include "support/ErrorOf.h"

#include <QElapsedTimer>
#include <random>

using namespace Qt::StringLiterals;

namespace {
class KeySetTest : public StoreTest
{
  protected:
    void fill(int count)
    {
        Transaction transaction(*mDatabase);
        for (int row = 0; row < count; ++row)
            add(*mDatabase, u"MNUrlsA"_s, {{"Url"_L1, u"http://s%1.de/"_s.arg(row % 7)}});
        ASSERT_TRUE(transaction.commit());
    }
    void remove(qint64 key) { mConnection->administer("DELETE FROM MNUrlsA WHERE rowid=" + std::to_string(key)); }
    [[nodiscard]] Query query(const QString &statement) { return prepareQuery(mConnection, parseStatement(statement)); }
    /// All keys that a statement of the engine gives.
    [[nodiscard]] std::vector<qint64> plain(const std::string &condition, qint64 top = -1)
    {
        std::vector<qint64> keys;
        for (const QString &key : mConnection->administerTexts("SELECT rowid FROM MNUrlsA" + condition +
                                                               " ORDER BY rowid LIMIT " + std::to_string(top)))
            keys.push_back(key.toLongLong());
        return keys;
    }
    [[nodiscard]] static std::vector<qint64> all(KeySet &set)
    {
        std::vector<qint64> keys;
        for (qint64 place = 0; set.reach(place); ++place)
            keys.push_back(set.key(place));
        return keys;
    }

    std::unique_ptr<cAdoMdb> mDatabase = created();
    std::shared_ptr<Connection> mConnection = mDatabase->connection();
};
} // namespace

TEST_F(KeySetTest, HasEveryRowInTableOrderWhateverWasTakenOut)
{
    fill(5000);
    std::mt19937 random(5);
    {
        Transaction transaction(*mDatabase);
        for (int i = 0; i < 700; ++i)
            remove(1 + static_cast<qint64>(random() % 5000));
        ASSERT_TRUE(transaction.commit());
    }
    for (const auto &[statement, condition, top] :
         {std::tuple{u"SELECT * FROM MNUrlsA"_s, "", -1},
          {u"SELECT TOP 1 * FROM MNUrlsA"_s, "", 1},
          {u"SELECT TOP 17 * FROM MNUrlsA"_s, "", 17},
          {u"SELECT TOP 3000 * FROM MNUrlsA"_s, "", 3000},
          {u"SELECT * FROM MNUrlsA WHERE Url='http://s3.de/'"_s, " WHERE Url='http://s3.de/'", -1},
          {u"SELECT * FROM MNUrlsA WHERE Url='HTTP://S3.DE/'"_s, " WHERE Url='http://s3.de/'", -1},
          {u"SELECT * FROM MNUrlsA WHERE Url='none'"_s, " WHERE Url='none'", -1}}) {
        KeySet set(query(statement));
        EXPECT_EQ(all(set), plain(condition, top)) << qPrintable(statement);
    }
}

TEST_F(KeySetTest, FetchesNoMoreThanIsAskedFor)
{
    fill(5000);
    KeySet set(query(u"SELECT * FROM MNUrlsA"_s));
    EXPECT_EQ(set.fetched(), 0);
    EXPECT_TRUE(set.reach(0));
    EXPECT_LE(set.fetched(), 16) << "most sets are asked only whether they have a row";
    EXPECT_TRUE(set.reach(100));
    EXPECT_LT(set.fetched(), 5000);
    EXPECT_EQ(set.size(), 5000);
    EXPECT_FALSE(set.reach(5000));
    EXPECT_FALSE(set.reach(-1));
}

TEST_F(KeySetTest, RowsAddedAfterItWasMadeAreNotOfIt)
{
    fill(100);
    KeySet set(query(u"SELECT * FROM MNUrlsA"_s));
    EXPECT_TRUE(set.reach(0));
    fill(50);
    EXPECT_EQ(set.size(), 100);
    EXPECT_EQ(set.tableSize(), 150);
}

TEST_F(KeySetTest, ARowAddedThroughItStandsBehindTheOthers)
{
    fill(3);
    KeySet set(query(u"SELECT * FROM MNUrlsA"_s));
    EXPECT_EQ(set.append(77), 3);
    EXPECT_EQ(set.key(3), 77);
    EXPECT_EQ(set.size(), 4);
}

TEST_F(KeySetTest, RemembersWhichPlacesAreDeleted)
{
    fill(10);
    KeySet set(query(u"SELECT * FROM MNUrlsA"_s));
    for (const qint64 place : {7, 2, 5})
        set.markDeleted(place);
    for (qint64 place = 0; place < 10; ++place)
        EXPECT_EQ(set.isDeleted(place), place == 2 || place == 5 || place == 7) << place;
    EXPECT_EQ(set.deleted(), 3);
    EXPECT_EQ(set.size(), 10) << "their places stay";
}

TEST_F(KeySetTest, AnUnknownTableOrColumnIsAnErrorBeforeAnythingIsRead)
{
    EXPECT_EQ(errorOf([&] { static_cast<void>(query(u"SELECT * FROM Nowhere"_s)); }), AdoError::NoSuchTable);
    EXPECT_EQ(errorOf([&] { static_cast<void>(query(u"SELECT Nothing FROM MNUrlsA"_s)); }), AdoError::BadSql);
    EXPECT_EQ(errorOf([&] { static_cast<void>(query(u"SELECT * FROM MNUrlsA WHERE Nothing='a'"_s)); }),
              AdoError::BadSql);
}

TEST_F(KeySetTest, ADeletionTakesWhatItNamesAndNothingElse)
{
    fill(70);
    runDelete(query(u"DELETE * FROM MNUrlsA WHERE Url='http://s3.de/'"_s));
    EXPECT_EQ(plain({}).size(), 60U);
    runDelete(query(u"DELETE * FROM MNUrlsA"_s));
    EXPECT_TRUE(plain({}).empty());
}

TEST_F(KeySetTest, GoesOnInPortionsToTheSameRowsAsAtOnce)
{
    fill(3000);
    {
        Transaction transaction(*mDatabase);
        for (const qint64 key : {1, 2, 700, 701, 2999, 3000})
            remove(key);
        ASSERT_TRUE(transaction.commit());
    }
    for (const auto &[statement, condition, top] :
         {std::tuple{u"SELECT * FROM MNUrlsA"_s, "", -1},
          {u"SELECT TOP 17 * FROM MNUrlsA"_s, "", 17},
          {u"SELECT TOP 17 * FROM MNUrlsA WHERE Url LIKE '%S3%'"_s, " WHERE Url='http://s3.de/'", 17},
          {u"SELECT * FROM MNUrlsA WHERE Url LIKE '%S3%'"_s, " WHERE Url='http://s3.de/'", -1},
          {u"SELECT * FROM MNUrlsA WHERE LastUrl LIKE '%'"_s, "", -1},
          {u"SELECT * FROM MNUrlsA WHERE Url LIKE '%none%'"_s, " WHERE 0", -1}}) {
        KeySet set(query(statement));
        int portions = 1;
        for (; !set.advance(0); ++portions)
            ASSERT_LT(portions, 3000);
        EXPECT_EQ(all(set), plain(condition, top)) << qPrintable(statement);
        EXPECT_TRUE(top > 0 || portions > 10) << portions;
    }
}

TEST_F(KeySetTest, PortionsAndWholeFetchesGoTogether)
{
    fill(3000);
    std::mt19937 random(7);
    for (int turn = 0; turn < 50; ++turn) {
        KeySet set(query(u"SELECT * FROM MNUrlsA WHERE Url LIKE '%s3%'"_s));
        for (unsigned step = random() % 6; step > 0; --step) {
            if (random() % 2 == 0)
                static_cast<void>(set.advance(0));
            else
                static_cast<void>(set.reach(static_cast<qint64>(random() % 500)));
        }
        EXPECT_EQ(all(set), plain(" WHERE Url='http://s3.de/'"));
    }
}

TEST_F(KeySetTest, RowsAddedAfterThePortionsBeganDoNotBelongToIt)
{
    fill(1000);
    KeySet set(query(u"SELECT * FROM MNUrlsA WHERE Url LIKE '%s3%'"_s));
    const std::vector<qint64> before = plain(" WHERE Url='http://s3.de/'");
    EXPECT_FALSE(set.advance(0));
    fill(1000);
    while (!set.advance(0)) {
    }
    EXPECT_EQ(all(set), before);
}

TEST_F(KeySetTest, ALargeTableIsSortedBesideToTheSameOrderAsAtOnce)
{
    fill(20'000);
    Query sorted = query(u"SELECT * FROM MNUrlsA WHERE Url LIKE '%s%'"_s);
    sorted.order = "[Url]";
    std::vector<qint64> plainly;
    for (const QString &key : mConnection->administerTexts("SELECT rowid FROM MNUrlsA ORDER BY Url,rowid"))
        plainly.push_back(key.toLongLong());
    KeySet set(sorted);
    EXPECT_EQ(set.fetched(), 0);
    while (!set.advance(1))
        EXPECT_EQ(set.fetched(), 0) << "all together";
    EXPECT_EQ(all(set), plainly);
    KeySet waiting(sorted);
    EXPECT_EQ(all(waiting), plainly) << "who asks for a row waits for it";
}

TEST_F(KeySetTest, ASortThatNobodyWaitsForAnyMoreEnds)
{
    fill(200'000);
    Query sorted = query(u"SELECT * FROM MNUrlsA"_s);
    sorted.order = "[Url]";
    QElapsedTimer time;
    time.start();
    static_cast<void>(KeySet(sorted).size());
    const qint64 whole = time.restart();
    constexpr int dropped = 8;
    for (int i = 0; i < dropped; ++i)
        EXPECT_FALSE(KeySet(sorted).advance(0));
    EXPECT_LT(time.elapsed(), dropped * whole / 2);
}
