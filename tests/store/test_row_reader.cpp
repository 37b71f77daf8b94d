// Reading ahead, against reading each value by itself.
#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "store/Transaction.h"
#include "store/sqlite/Connection.h"

#include <random>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {
const QString table = u"SiteSummary"_s;

class RowReaderTest : public StoreTest
{
  protected:
    void fill(int count, qsizetype pageLength = 10)
    {
        Transaction rows(*mDatabase);
        for (int row = 0; row < count; ++row)
            add(*mDatabase, table,
                {{"Title"_L1, u"Title %1"_s.arg(row)},
                 {"Url"_L1, u"http://s%1.de/"_s.arg(row)},
                 {"FullPage"_L1, QString(pageLength, QChar(char16_t(u'a' + row % 26)))}});
        EXPECT_TRUE(rows.commit());
    }
    // The value that one statement for it alone gives; "gone" where there is no such row.
    [[nodiscard]] QVariant plainValue(qint64 key, int column)
    {
        static constexpr std::array names{"[Index]", "Date", "Title", "Url", "FullPage", "Picture"};
        Statement row = mDatabase->connection()->prepare(
            std::string("SELECT ") + names[static_cast<std::size_t>(column)] + " FROM SiteSummary WHERE [Index]=?1");
        return row.bind(1, key).step() ? row.value(0) : QVariant(u"gone"_s);
    }
    [[nodiscard]] static QVariant readValue(const Recordset &rows, int column)
    {
        try {
            return rows.Fields()[column].Value();
        } catch (const RuntimeError &error) {
            EXPECT_EQ(error.number(), AdoError::RowDeleted);
            return u"gone"_s;
        }
    }

    std::unique_ptr<cAdoMdb> mDatabase = created();
};
} // namespace

TEST_F(RowReaderTest, EveryValueIsThatOfItsRowHoweverTheSetIsWalkedAndChanged)
{
    constexpr qint64 count = 900;
    fill(count);
    std::mt19937 random(11);
    std::unique_ptr<Transaction> transaction;
    Recordset rows = mDatabase->GetRecordset(u"SELECT * FROM SiteSummary"_s);
    for (int step = 0; step < 20'000; ++step) {
        const unsigned what = random() % 1000;
        if (what < 800 && !rows.Eof())
            rows.MoveNext();
        else if (what < 900)
            rows.setAbsolutePosition(1 + static_cast<qint64>(random() % count));
        else if (what < 930 && !rows.Bof())
            rows.MovePrevious();
        else if (what < 940)
            mDatabase->DeleteRecords(table, u"Index"_s, QString::number(1 + random() % count), true);
        else if (what < 960)
            fill(1);
        else if (what < 980) {
            Recordset other =
                mDatabase->GetRecordset(u"SELECT * FROM SiteSummary WHERE Index=%1"_s.arg(1 + random() % count));
            if (!other.Eof()) {
                other.Fields()["Title"_L1].setValue(u"changed %1"_s.arg(step));
                other.Update();
            }
        } else if (!transaction) {
            transaction = std::make_unique<Transaction>(*mDatabase);
        } else {
            if (random() % 2 == 0)
                static_cast<void>(transaction->commit());
            transaction.reset();
        }
        if (rows.Eof() || rows.Bof()) {
            rows.setAbsolutePosition(1);
        }
        const int column = static_cast<int>(random() % 6);
        ASSERT_EQ(readValue(rows, column), plainValue(rows.AbsolutePosition(), column)) << "step " << step;
    }
}

namespace {
/// The columns that each row is asked for, in that order.
class WalkTest : public RowReaderTest, public testing::WithParamInterface<std::vector<int>>
{
};
} // namespace

TEST_P(WalkTest, EveryPageIsThatOfItsRow)
{
    constexpr qint64 count = 700;
    fill(count, 5000);
    std::mt19937 random(12);
    Recordset rows = mDatabase->GetRecordset(u"SELECT * FROM SiteSummary"_s);
    rows.setAbsolutePosition(count); // all rows belong to the set now, whatever is deleted later
    rows.setAbsolutePosition(1);
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString some = QString::number(1 + random() % count);
        if (random() % 40 == 0)
            mDatabase->DeleteRecords(table, u"Index"_s, some, true);
        Recordset other = mDatabase->GetRecordset(u"SELECT * FROM SiteSummary WHERE Index="_s + some);
        if (random() % 40 == 0 && !other.Eof()) {
            other.Fields()["FullPage"_L1].setValue("changed "_L1 + some);
            other.Update();
        }
        if (random() % 100 == 0)
            rows.setAbsolutePosition(some.toLongLong());
        for (const int column : GetParam()) {
            const bool wanted = random() % 20 != 0;
            if (wanted) {
                ASSERT_EQ(readValue(rows, column), plainValue(rows.AbsolutePosition(), column))
                    << "row " << rows.AbsolutePosition();
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(RowReader, WalkTest,
                         testing::Values(std::vector{4}, std::vector{3, 4}, std::vector{4, 3},
                                         std::vector{5, 1, 4, 0}));

TEST_F(RowReaderTest, ASparseSetHasItsOwnRows)
{
    fill(3000);
    for (const auto *filter : {u"s1%", u"s77", u"9.de", u"s%5%", u"http"}) {
        Recordset rows = mDatabase->GetRecordset(u"SELECT Url,Index FROM SiteSummary WHERE Url LIKE '%"_s +
                                                 QString::fromUtf16(filter) + u"%'"_s);
        qint64 met = 0;
        for (; !rows.Eof(); rows.MoveNext(), ++met)
            ASSERT_EQ(rows.Fields()[0].Value(), plainValue(rows.Fields()[1].Value().toLongLong(), 3));
        EXPECT_GT(met, 0);
        EXPECT_EQ(met, rows.RecordCount());
    }
}

TEST_F(RowReaderTest, RowsOfMuchTextAreReadInSmallerBlocks)
{
    fill(400);
    mDatabase->connection()->administer("UPDATE SiteSummary SET Title=printf('%.*c',200000,'x') || [Index]");
    Recordset rows = mDatabase->GetRecordset(u"SELECT Title FROM SiteSummary"_s);
    for (qint64 row = 1; !rows.Eof(); rows.MoveNext(), ++row)
        ASSERT_TRUE(rows.Fields()[0].Value().toString().endsWith(u"x%1"_s.arg(row)));
}

TEST_F(RowReaderTest, TitlesAreReadWithoutThePagesBesideThem)
{
    fill(40, 1'000'000);
    static sqlite3 *opened = nullptr;
    const auto remember = [](sqlite3 *handle, const char **, const void *) {
        opened = handle;
        return SQLITE_OK;
    };
    const auto extension =
        reinterpret_cast<void (*)()>(static_cast<int (*)(sqlite3 *, const char **, const void *)>(remember));
    sqlite3_auto_extension(extension);
    mDatabase->CloseConnection();
    ASSERT_TRUE(mDatabase->TestDatabase(true));
    sqlite3_cancel_auto_extension(extension);
    const auto pagesRead = [] {
        int now = 0;
        int most = 0;
        sqlite3_db_status(opened, SQLITE_DBSTATUS_CACHE_MISS, &now, &most, 1);
        return now;
    };
    static_cast<void>(pagesRead());
    Recordset rows = mDatabase->GetRecordset(u"SELECT * FROM SiteSummary"_s);
    for (; !rows.Eof(); rows.MoveNext())
        ASSERT_TRUE(rows.Fields()["Title"_L1].Value().toString().startsWith(u"Title"_s));
    EXPECT_LT(pagesRead(), 200);
    rows.MoveFirst();
    EXPECT_EQ(rows.Fields()["FullPage"_L1].Value().toString().size(), 1'000'000);
    EXPECT_GT(pagesRead(), 200) << "a page that is asked for is read";
}
