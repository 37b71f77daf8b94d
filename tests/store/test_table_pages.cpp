// The rows of a table as a grid shows them, against what one plain statement gives.
#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "store/TablePages.h"
#include "store/Transaction.h"
#include "store/sql/LikePattern.h"
#include "store/sqlite/Connection.h"

#include <QElapsedTimer>
#include <random>

using namespace Qt::StringLiterals;

namespace {
// The rule itself: what is left of the pattern against what is left of the text.
bool plainLike(QStringView pattern, QStringView text)
{
    if (pattern.isEmpty())
        return text.isEmpty();
    if (pattern.front() == u'%')
        return plainLike(pattern.sliced(1), text) || (!text.isEmpty() && plainLike(pattern, text.sliced(1)));
    if (text.isEmpty())
        return false;
    return (pattern.front() == u'_' || pattern.front().toLower() == text.front().toLower()) &&
           plainLike(pattern.sliced(1), text.sliced(1));
}

QString randomText(std::mt19937 &random, QStringView alphabet, unsigned longest)
{
    QString text;
    for (unsigned left = random() % (longest + 1); left > 0; --left)
        text += alphabet[static_cast<qsizetype>(random() % unsigned(alphabet.size()))];
    return text;
}

class TablePagesTest : public StoreTest
{
  protected:
    void fill(int count)
    {
        Transaction rows(*mDatabase);
        for (int row = 0; row < count; ++row)
            add(*mDatabase, u"SiteSummary"_s,
                {{"Title"_L1, u"Title %1"_s.arg((row * 7919) % 1000)}, {"Url"_L1, u"http://s%1.de/"_s.arg(row)}});
        EXPECT_TRUE(rows.commit());
    }
    [[nodiscard]] static QStringList cellsOf(const TablePages &pages, int column)
    {
        QStringList cells;
        for (qint64 row = 0; row < pages.rowCount(); ++row)
            cells.append(pages.cell(row, column));
        return cells;
    }

    std::unique_ptr<cAdoMdb> mDatabase = created();
};
} // namespace

TEST(LikePattern, EqualsTheRuleOnRandomTexts)
{
    std::mt19937 random(5);
    int hits = 0;
    for (int round = 0; round < 40'000; ++round) {
        const QString pattern = randomText(random, round % 3 == 0 ? u"aAbä_%%[" : u"aAb_%%[", 6);
        const QString text = randomText(random, round % 2 == 0 ? u"aAbBäÄ[%" : u"aAbB[%", 9);
        const bool expected = plainLike(pattern, text);
        hits += expected ? 1 : 0;
        for (const bool asStored : {false, true})
            ASSERT_EQ(asStored ? LikePattern(pattern).matchesUtf8(text.toStdString())
                               : LikePattern(pattern).matches(text),
                      expected)
                << pattern.toStdString() << " in " << text.toStdString();
    }
    EXPECT_GT(hits, 1000);
}

TEST_F(TablePagesTest, ATableIsShownInItsOrder)
{
    fill(3000);
    const TablePages pages(*mDatabase, u"sitesummary"_s);
    EXPECT_EQ(pages.columns(), (QStringList{u"Index"_s, u"Date"_s, u"Title"_s, u"Url"_s, u"FullPage"_s, u"Picture"_s}));
    EXPECT_EQ(pages.kind(0), 3);
    EXPECT_EQ(pages.kind(4), 203);
    EXPECT_EQ(pages.rowCount(), 3000);
    for (const qint64 row : {0, 2999, 17, 18, 19, 1500, 0}) {
        EXPECT_EQ(pages.key(row), row + 1);
        EXPECT_EQ(pages.cell(row, 0), QString::number(row + 1));
        EXPECT_EQ(pages.cell(row, 3), u"http://s%1.de/"_s.arg(row));
        EXPECT_EQ(pages.cell(row, 4), u""_s);
        EXPECT_EQ(pages.value(row, 5), QVariant());
    }
    for (const qint64 row : {-1, 3000}) {
        EXPECT_EQ(pages.key(row), std::nullopt);
        EXPECT_EQ(pages.cell(row, 0), u""_s);
    }
    EXPECT_EQ(pages.cell(0, 6), u""_s);
}

TEST_F(TablePagesTest, AnEmptyTableHasHeadsOnly)
{
    const TablePages pages(*mDatabase, u"Block"_s);
    EXPECT_EQ(pages.rowCount(), 0);
    EXPECT_EQ(pages.columns().size(), 3);
    EXPECT_EQ(pages.key(0), std::nullopt);
}

TEST_F(TablePagesTest, AFilterIgnoresTheCaseOfAllLetters)
{
    for (const auto *address : {u"MÜLLER@a.de", u"müller@b.de", u"muller@c.de", u"100%@d.de", u"1000@d.de"})
        add(*mDatabase, u"EmailAddress"_s, {{"Address"_L1, QString::fromUtf16(address)}});
    const auto filtered = [&](const QString &text) {
        return cellsOf(TablePages(*mDatabase, u"EmailAddress"_s, {u"Address"_s, text}, {}), 3);
    };
    EXPECT_EQ(filtered(u"Müll"_s), (QStringList{u"MÜLLER@a.de"_s, u"müller@b.de"_s}));
    EXPECT_EQ(filtered(u"M_LLER"_s).size(), 3) << "a sign for one character";
    EXPECT_EQ(filtered(u"1%d.de"_s).size(), 2) << "a sign for any text";
    EXPECT_EQ(filtered(u"[m]"_s), QStringList()) << "brackets are themselves";
    EXPECT_EQ(filtered(u""_s).size(), 5);
    EXPECT_EQ(count(*mDatabase, u"SELECT * FROM EmailAddress WHERE Address LIKE '%ÜLLER%'"_s), 2) << "everywhere alike";
    EXPECT_THROW(static_cast<void>(filtered(u"o'neil"_s)), RuntimeError);
    EXPECT_THROW(TablePages(*mDatabase, u"EmailAddress"_s, {u"None"_s, u"x"_s}, {}), RuntimeError);
}

TEST_F(TablePagesTest, NumbersAndDatesAreFilteredAsTexts)
{
    fill(120);
    EXPECT_EQ(TablePages(*mDatabase, u"SiteSummary"_s, {u"Index"_s, u"11"_s}, {}).rowCount(), 11);
    EXPECT_EQ(TablePages(*mDatabase, u"SiteSummary"_s, {u"Date"_s, u"20"_s}, {}).rowCount(), 120);
    EXPECT_EQ(TablePages(*mDatabase, u"SiteSummary"_s, {u"Picture"_s, u"2"_s}, {}).rowCount(), 0) << "Null";
}

TEST_F(TablePagesTest, RowsAreSortedAsOneStatementSortsThem)
{
    fill(1500);
    for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        for (const auto *column : {"Title", "Url", "[Index]", "Date", "FullPage"}) {
            const TablePages pages(*mDatabase, u"SiteSummary"_s, {u"Url"_s, u"1"_s},
                                   {QString::fromLatin1(column).remove(u'[').remove(u']'), order});
            const auto expected = mDatabase->connection()->administerTexts(
                std::string("SELECT [Index] FROM SiteSummary WHERE Url LIKE '%1%' ORDER BY ") + column +
                (order == Qt::AscendingOrder ? "" : " DESC") + ",[Index]");
            EXPECT_EQ(cellsOf(pages, 0), expected) << column;
        }
    }
    EXPECT_THROW(TablePages(*mDatabase, u"SiteSummary"_s, {}, {u"None"_s}), RuntimeError);
}

TEST_F(TablePagesTest, ALongTextShowsItsBeginningAndIsWholeAsAValue)
{
    const QString page = QString(TablePages::longestCell - 1, u'a') + u"ä😀"_s + QString(100'000, u'b');
    add(*mDatabase, u"SiteSummary"_s, {{"FullPage"_L1, page}});
    add(*mDatabase, u"SiteSummary"_s, {{"FullPage"_L1, u"short ä"_s}});
    add(*mDatabase, u"SiteSummary"_s, {{"FullPage"_L1, QString(5000, u'ä')}});
    const TablePages pages(*mDatabase, u"SiteSummary"_s);
    EXPECT_EQ(pages.cell(0, 4), page.left(TablePages::longestCell));
    EXPECT_EQ(pages.value(0, 4), QVariant(page));
    EXPECT_EQ(pages.cell(1, 4), u"short ä"_s);
    EXPECT_EQ(pages.cell(2, 4), QString(TablePages::longestCell, u'ä'));
}

TEST_F(TablePagesTest, RowsThatGoHaveNoValuesAndRowsThatComeAreNotMet)
{
    fill(10);
    const TablePages pages(*mDatabase, u"SiteSummary"_s);
    EXPECT_EQ(pages.cell(3, 0), u"4"_s);
    EXPECT_EQ(removeRows(*mDatabase, u"SiteSummary"_s, {4, 5, 99}), 2);
    fill(1);
    EXPECT_EQ(pages.cell(3, 0), u""_s);
    EXPECT_EQ(pages.cell(4, 4), u""_s);
    EXPECT_EQ(pages.cell(5, 0), u"6"_s);
    EXPECT_EQ(pages.key(10), std::nullopt);
    EXPECT_EQ(TablePages(*mDatabase, u"SiteSummary"_s).rowCount(), 9);
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(TablePagesTest, ThePagesOutliveTheDatabaseObject)
{
    fill(300);
    const TablePages pages(*mDatabase, u"SiteSummary"_s);
    mDatabase.reset();
    EXPECT_EQ(pages.cell(299, 3), u"http://s299.de/"_s);
}

TEST_F(TablePagesTest, WithoutAConnectionOrTableThereIsAnError)
{
    EXPECT_THROW(TablePages(*mDatabase, u"None"_s), RuntimeError);
    mDatabase->CloseConnection();
    EXPECT_THROW(TablePages(*mDatabase, u"Block"_s), RuntimeError);
    EXPECT_EQ(removeRows(*mDatabase, u"Block"_s, {1}), -1);
    EXPECT_FALSE(mLog.entries.isEmpty());
}

TEST_F(TablePagesTest, TenThousandRowsAreRemovedInOneGo)
{
    fill(20'000);
    QList<qint64> keys;
    for (qint64 key = 1; key <= 20'000; key += 2)
        keys.append(key);
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(removeRows(*mDatabase, u"SiteSummary"_s, keys), 10'000);
    EXPECT_LT(time.elapsed(), 2000);
    EXPECT_EQ(TablePages(*mDatabase, u"SiteSummary"_s).rowCount(), 10'000);
    EXPECT_EQ(TablePages(*mDatabase, u"SiteSummary"_s).key(0), 2);
}
