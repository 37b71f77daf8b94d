// A set of rows: its moves, its fields, its edits, and what it gives out as text, values and files.
#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "store/FixNull.h"
#include "store/Transaction.h"
#include "store/rows/StoredDates.h"
#include "store/sqlite/BlobFiles.h"
#include "support/ErrorOf.h"

#include <QDir>
#include <QFile>
#include <random>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
// What the process holds in memory now.
qint64 residentBytes()
{
    QFile file(u"/proc/self/statm"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) : 0;
}

class RecordsetTest : public StoreTest
{
  protected:
    void fill(const QString &table, int rows)
    {
        Transaction transaction(*mDatabase);
        Recordset set = mDatabase->GetRecordset(u"SELECT Url FROM "_s + table);
        for (int number = 1; number <= rows; ++number) {
            set.AddNew();
            set.Fields()["Url"_L1].setValue(QString::number(number));
            set.Update();
        }
        EXPECT_TRUE(transaction.commit());
    }
    [[nodiscard]] Recordset open(const QString &statement) { return mDatabase->GetRecordset(statement); }

    std::unique_ptr<cAdoMdb> mDatabase = created();
};
} // namespace

TEST_F(RecordsetTest, NothingRaises91AndAnUnopenedSet3704)
{
    Recordset nothing;
    EXPECT_EQ(errorOf([&] { static_cast<void>(nothing.Bof()); }), 91);
    EXPECT_EQ(errorOf([&] { nothing.MoveNext(); }), 91);
    for (Recordset set : {Recordset::unopened(), open(u"SELECT * FROM NoTable"_s), open(u"no statement"_s),
                          open(u"DELETE * FROM Block"_s)}) {
        EXPECT_FALSE(set.isNothing());
        EXPECT_FALSE(set.isOpen());
        EXPECT_EQ(errorOf([&] { static_cast<void>(set.Bof()); }), 3704);
        EXPECT_EQ(errorOf([&] { static_cast<void>(set.isEmpty()); }), 3704);
        EXPECT_EQ(errorOf([&] { static_cast<void>(set.Eof()); }), 3704);
        EXPECT_EQ(errorOf([&] { static_cast<void>(set.Fields()); }), 3704);
        EXPECT_EQ(errorOf([&] { set.Close(); }), 3704);
    }
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(RecordsetTest, AnEmptySetStandsAtBothEndsAndCannotMove)
{
    Recordset set = open(u"SELECT * FROM Block"_s);
    EXPECT_TRUE(set.Bof() && set.Eof());
    EXPECT_TRUE(set.isEmpty());
    EXPECT_EQ(set.RecordCount(), 0);
    EXPECT_EQ(set.AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { set.MoveFirst(); }), 3021);
    EXPECT_EQ(errorOf([&] { set.MoveLast(); }), 3021);
    EXPECT_EQ(errorOf([&] { set.MoveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { static_cast<void>(set.Fields()[0].Value()); }), 3021);
    EXPECT_EQ(errorOf([&] { static_cast<void>(set.GetRows()); }), 3021);
    EXPECT_EQ(set.GetString(u","_s, u"\r\n"_s, u""_s), u""_s);
}

TEST_F(RecordsetTest, MovesWalkTheRowsInTableOrder)
{
    fill(u"MNUrlsA"_s, 5000);
    Recordset set = open(u"SELECT Url FROM MNUrlsA"_s);
    for (int number = 1; number <= 5000; ++number, set.MoveNext())
        ASSERT_EQ(set.Fields()[0].Value().toInt(), number);
    EXPECT_TRUE(set.Eof());
    EXPECT_FALSE(set.Bof());
    EXPECT_FALSE(set.isEmpty()) << "the end of rows is not a set without rows";
    EXPECT_EQ(errorOf([&] { set.MoveNext(); }), 3021);
    set.MovePrevious();
    EXPECT_EQ(set.Fields()[0].Value().toInt(), 5000);
    set.MoveFirst();
    EXPECT_EQ(set.AbsolutePosition(), 1);
    set.MovePrevious();
    EXPECT_TRUE(set.Bof());
    EXPECT_EQ(errorOf([&] { set.MovePrevious(); }), 3021);
    set.MoveLast();
    EXPECT_EQ(set.AbsolutePosition(), 5000);
    set.setAbsolutePosition(4321);
    EXPECT_EQ(set.Fields()[0].Value().toInt(), 4321);
    EXPECT_EQ(errorOf([&] { set.setAbsolutePosition(5001); }), 3021);
    EXPECT_EQ(errorOf([&] { set.setAbsolutePosition(0); }), 3021);
}

TEST_F(RecordsetTest, RowsThatAreAddedLaterAreNotMet)
{
    fill(u"MNUrlsA"_s, 3000);
    Recordset set = open(u"SELECT Url FROM MNUrlsA"_s);
    add(*mDatabase, u"MNUrlsA"_s, {{"Url"_L1, u"late"_s}});
    EXPECT_EQ(set.RecordCount(), 3000);
    set.MoveLast();
    EXPECT_EQ(set.Fields()[0].Value(), QVariant(u"3000"_s));
}

TEST_F(RecordsetTest, TheFirstRowsOfALargeSetCostNoMoreThanThose)
{
    fill(u"MNUrlsA"_s, 3000);
    Recordset set = open(u"SELECT Url FROM MNUrlsA WHERE Url LIKE '%1%'"_s);
    EXPECT_EQ(set.Fields()[0].Value(), QVariant(u"1"_s));
    mDatabase->DeleteRecords(u"MNUrlsA"_s, u""_s, u""_s, false);
    int met = 0;
    for (; !set.Eof(); set.MoveNext())
        ++met;
    EXPECT_LT(met, 100) << "keys of rows far behind the first had been fetched already";
}

TEST_F(RecordsetTest, TopLimitsTheRows)
{
    fill(u"MNUrlsA"_s, 100);
    EXPECT_EQ(count(*mDatabase, u"SELECT TOP 1 Url FROM MNUrlsA"_s), 1);
    EXPECT_EQ(count(*mDatabase, u"SELECT TOP 40 * FROM MNUrlsA"_s), 40);
    EXPECT_EQ(count(*mDatabase, u"SELECT TOP 200 * FROM MNUrlsA"_s), 100);
    EXPECT_EQ(count(*mDatabase, u"SELECT TOP 0 * FROM MNUrlsA"_s), 0);
    EXPECT_EQ(count(*mDatabase, u"SELECT TOP 16 * FROM MNUrlsA"_s), 16);
}

TEST_F(RecordsetTest, TextsCompareWithoutCaseAndNumbersAsNumbers)
{
    add(*mDatabase, u"EmailAddress"_s, {{"SSIndex"_L1, u"5"_s}, {"Address"_L1, u"A@b.DE"_s}});
    add(*mDatabase, u"EmailAddress"_s, {{"SSIndex"_L1, u"15"_s}, {"Address"_L1, u"c@d.de"_s}});
    EXPECT_EQ(count(*mDatabase, u"SELECT Address FROM EmailAddress WHERE address='a@B.de'"_s), 1);
    EXPECT_EQ(count(*mDatabase, u"SELECT * FROM EmailAddress WHERE SSIndex=5"_s), 1);
    EXPECT_EQ(count(*mDatabase, u"SELECT * FROM EmailAddress WHERE SSIndex LIKE '%5%'"_s), 2);
    EXPECT_EQ(count(*mDatabase, u"SELECT * FROM EmailAddress WHERE Date LIKE '%20%'"_s), 2);
    EXPECT_EQ(count(*mDatabase, u"SELECT * FROM EmailAddress WHERE Address LIKE '%@B%'"_s), 1);
    EXPECT_EQ(count(*mDatabase, u"SELECT * FROM EmailAddress WHERE Address='rowid'"_s), 0);
}

TEST_F(RecordsetTest, AColumnIsFoundByNameWithoutCaseOrByNumber)
{
    Recordset set = open(u"SELECT * FROM SearchSites"_s);
    EXPECT_EQ(set.Fields().Count(), 41);
    EXPECT_EQ(set.Fields()[0].Name(), u"Index"_s);
    EXPECT_EQ(set.Fields()["URLMC-3"_L1].Name(), u"UrlMC-3"_s);
    EXPECT_EQ(set.Fields()["Group"_L1].Type(), 130);
    EXPECT_EQ(errorOf([&] { static_cast<void>(set.Fields()["None"_L1]); }), 3265);
    EXPECT_EQ(errorOf([&] { static_cast<void>(set.Fields()[41]); }), 3265);
    EXPECT_EQ(errorOf([&] { static_cast<void>(set.Fields()[-1]); }), 3265);
    Recordset summary = open(u"SELECT * FROM SiteSummary"_s);
    const QList<int> kinds{3, 7, 130, 130, 203, 205};
    for (int column = 0; column < kinds.size(); ++column)
        EXPECT_EQ(summary.Fields()[column].Type(), kinds[column]);
    EXPECT_EQ(open(u"SELECT rowid FROM SiteSummary"_s).isOpen(), false);
}

TEST_F(RecordsetTest, AnEditIsStoredByUpdateAndByAMove)
{
    fill(u"MNUrlsA"_s, 2);
    Recordset set = open(u"SELECT * FROM MNUrlsA"_s);
    set.Fields()["LastUrl"_L1].setValue(u"one"_s);
    EXPECT_EQ(set.Fields()["LastUrl"_L1].Value(), QVariant(u"one"_s));
    EXPECT_EQ(errorOf([&] { set.Close(); }), 3219) << "an edit is pending";
    set.MoveNext();
    set.Fields()["LastUrl"_L1].setValue(u"two"_s);
    set.CancelUpdate();
    EXPECT_EQ(set.Fields()["LastUrl"_L1].Value(), QVariant()) << "what was cancelled is gone";
    set.Update();
    set.Close();
    EXPECT_EQ(count(*mDatabase, u"SELECT * FROM MNUrlsA WHERE LastUrl='one'"_s), 1);
    EXPECT_EQ(count(*mDatabase, u"SELECT * FROM MNUrlsA WHERE LastUrl='two'"_s), 0);
}

TEST_F(RecordsetTest, ANewRowIsTheCurrentOneAndStandsAtTheEnd)
{
    fill(u"EmailAddress"_s, 20);
    Recordset set = open(u"SELECT * FROM EmailAddress"_s);
    set.AddNew();
    EXPECT_EQ(set.Fields()["Url"_L1].Value(), QVariant());
    set.Fields()["Address"_L1].setValue(u"new"_s);
    set.Update();
    EXPECT_EQ(set.RecordCount(), 21);
    EXPECT_EQ(set.AbsolutePosition(), 21);
    EXPECT_EQ(set.Fields()["Address"_L1].Value(), QVariant(u"new"_s));
    EXPECT_EQ(set.Fields()["SSIndex"_L1].Value(), QVariant(0LL)) << "the number's default";
    EXPECT_EQ(set.Fields()["Index"_L1].Value(), QVariant(21LL));
    set.AddNew();
    set.Update();
    EXPECT_EQ(set.RecordCount(), 22) << "a row without any value";
    set.AddNew();
    EXPECT_EQ(errorOf([&] { set.Delete(); }), 3219) << "the row that is being added is not there yet";
    set.CancelUpdate();
    EXPECT_EQ(set.RecordCount(), 22);
}

TEST_F(RecordsetTest, ARemovedRowIsPassedOver)
{
    fill(u"MNUrlsA"_s, 5);
    Recordset set = open(u"SELECT Url FROM MNUrlsA"_s);
    set.MoveNext();
    set.Delete();
    EXPECT_EQ(errorOf([&] { static_cast<void>(set.Fields()[0].Value()); }), AdoError::RowDeleted);
    EXPECT_EQ(errorOf([&] { set.Delete(); }), AdoError::RowDeleted);
    EXPECT_EQ(set.RecordCount(), 4);
    set.MoveNext();
    EXPECT_EQ(set.Fields()[0].Value(), QVariant(u"3"_s));
    set.MovePrevious();
    EXPECT_EQ(set.Fields()[0].Value(), QVariant(u"1"_s));
    EXPECT_EQ(count(*mDatabase, u"SELECT * FROM MNUrlsA"_s), 4);
}

TEST_F(RecordsetTest, ARowThatOthersRemovedIsAnErrorAndNoOtherRow)
{
    fill(u"MNUrlsA"_s, 2);
    Recordset set = open(u"SELECT Url FROM MNUrlsA"_s);
    mDatabase->DeleteRecords(u"MNUrlsA"_s, u""_s, u""_s, false);
    add(*mDatabase, u"MNUrlsA"_s, {{"Url"_L1, u"other"_s}});
    EXPECT_EQ(errorOf([&] { static_cast<void>(set.Fields()[0].Value()); }), AdoError::RowDeleted);
    set.Fields()[0].setValue(u"x"_s);
    EXPECT_EQ(errorOf([&] { set.Update(); }), AdoError::RowDeleted);
    EXPECT_EQ(first(*mDatabase, u"SELECT Url FROM MNUrlsA"_s), QVariant(u"other"_s));
}

TEST_F(RecordsetTest, AColumnRefusesWhatItCannotHold)
{
    Recordset set = open(u"SELECT * FROM SiteSummary"_s);
    set.AddNew();
    const auto setting = [&](QLatin1StringView field, const QVariant &value) {
        return errorOf([&] { set.Fields()[field].setValue(value); });
    };
    EXPECT_EQ(setting("Url"_L1, QString(255, u'x')), 0);
    EXPECT_EQ(setting("Url"_L1, QString(256, u'x')), -2147217887);
    EXPECT_EQ(setting("FullPage"_L1, QString(100'000, u'x')), 0);
    EXPECT_EQ(setting("Date"_L1, u"no date"_s), -2147352571);
    EXPECT_EQ(setting("Date"_L1, u"2/28/2024 1:02:03 PM"_s), 0);
    EXPECT_EQ(set.Fields()["Date"_L1].Value(), QVariant(u"2024-02-28T13:02:03"_s));
    EXPECT_EQ(setting("Picture"_L1, u"text"_s), -2147352571);
    EXPECT_EQ(setting("Picture"_L1, QByteArray("\0\1", 2)), 0);
    EXPECT_EQ(setting("Index"_L1, 5), -2147217887);
    Recordset address = open(u"SELECT * FROM EmailAddress"_s);
    address.AddNew();
    const auto number = [&](const QVariant &value) {
        return errorOf([&] { address.Fields()["SSIndex"_L1].setValue(value); });
    };
    EXPECT_EQ(number(u"abc"_s), -2147352571);
    EXPECT_EQ(number(u""_s), -2147352571);
    EXPECT_EQ(number(u" 12 "_s), 0);
    EXPECT_EQ(number(2147483647), 0);
    EXPECT_EQ(number(2147483648.0), -2147217887);
    EXPECT_EQ(number(2.5), 0);
    EXPECT_EQ(address.Fields()["SSIndex"_L1].Value(), QVariant(2LL));
    EXPECT_EQ(number(QVariant()), 0);
}

TEST_F(RecordsetTest, FixNullReadsEveryKind)
{
    Recordset set = open(u"SELECT * FROM SiteSummary"_s);
    set.AddNew();
    set.Fields()["Date"_L1].setValue(QDate(2024, 5, 6));
    set.Update();
    EXPECT_EQ(FixNull(set.Fields()["Url"_L1]), u""_s);
    EXPECT_EQ(FixNull(set.Fields()["FullPage"_L1]), u""_s);
    EXPECT_EQ(FixNull(set.Fields()["Date"_L1]), u"2024-05-06"_s);
    EXPECT_EQ(FixNull(set.Fields()["Index"_L1]), u"1"_s);
    EXPECT_EQ(errorOf([&] { static_cast<void>(FixNull(set.Fields()["Picture"_L1])); }), 94);
    EXPECT_EQ(FixNull(set.Fields()["Picture"_L1], mLog), u""_s);
    ASSERT_EQ(mLog.entries.size(), 1);
    EXPECT_EQ(mLog.entries[0].location, u"Function FixNull"_s);
    EXPECT_EQ(mLog.entries[0].module, u"frmSearch"_s);
    Recordset address = open(u"SELECT * FROM EmailAddress"_s);
    address.AddNew();
    address.Fields()["SSIndex"_L1].setValue(QVariant());
    address.Update();
    EXPECT_EQ(address.Fields()["SSIndex"_L1].Value(), QVariant());
    EXPECT_EQ(FixNull(address.Fields()["SSIndex"_L1]), u"0"_s);
}

TEST_F(RecordsetTest, ACloneWalksAloneAndOutlivesTheSetAndTheDatabaseObject)
{
    fill(u"MNUrlsA"_s, 3);
    Recordset set = open(u"SELECT Url FROM MNUrlsA"_s);
    set.MoveNext();
    Recordset clone = set.Clone();
    EXPECT_EQ(clone.AbsolutePosition(), 1);
    set.Close();
    EXPECT_FALSE(set.isOpen());
    mDatabase->CloseConnection();
    mDatabase.reset();
    clone.MoveLast();
    EXPECT_EQ(clone.Fields()[0].Value(), QVariant(u"3"_s));
}

TEST_F(RecordsetTest, AFirstCharacterThatLooksLikeAMarkOfTheByteOrderIsOneOfTheText)
{
    const QString text = u"\ufeffä"_s;
    ASSERT_TRUE(add(*mDatabase, u"Block"_s, {{"UrlsContent"_L1, text}}));
    for (const QLatin1StringView comparison : {"="_L1, "LIKE"_L1}) {
        Recordset rows = open(u"SELECT UrlsContent FROM Block WHERE UrlsContent %1 '%2'"_s.arg(comparison, text));
        ASSERT_FALSE(rows.Eof()) << comparison.data();
        EXPECT_EQ(rows.Fields()[0].Value(), text);
    }
    EXPECT_TRUE(open(u"SELECT * FROM Block WHERE UrlsContent LIKE 'ä'"_s).Eof());
}

TEST_F(RecordsetTest, TextHasTheRowDelimiterBehindTheLastRowToo)
{
    add(*mDatabase, u"Block"_s, {{"UrlsContent"_L1, u"a"_s}, {"EmailContent"_L1, u"b"_s}});
    Recordset rows = open(u"SELECT * FROM Block"_s);
    rows.AddNew();
    rows.Fields()["UrlsContent"_L1].setValue(u"c"_s);
    rows.Update();
    rows.MoveFirst();
    EXPECT_EQ(rows.GetString(u","_s, u"\r\n"_s, u"N/A"_s), u"1,a,b\r\n2,c,N/A\r\n"_s);
    EXPECT_TRUE(rows.Eof());
    rows.MoveFirst();
    EXPECT_EQ(rows.GetString(u"<TD>"_s, u"|"_s, u""_s, 1), u"1<TD>a<TD>b|"_s);
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    const auto values = rows.GetRows();
    ASSERT_EQ(values.size(), 1U);
    EXPECT_EQ(values[0], (QVariantList{2LL, u"c"_s, QVariant()}));
    rows.MoveFirst();
    EXPECT_EQ(rows.GetRows(1).size(), 1U);
}

TEST_F(RecordsetTest, ChunksMakeAndTakeAValueInPieces)
{
    Recordset set = open(u"SELECT * FROM SiteSummary"_s);
    set.AddNew();
    set.Fields()["Picture"_L1].AppendChunk(QByteArray("abc"));
    set.Fields()["Picture"_L1].AppendChunk(QByteArray("\0de", 3));
    set.Fields()["FullPage"_L1].AppendChunk(u"text"_s);
    set.Fields()["FullPage"_L1].AppendChunk(u" more"_s);
    set.Update();
    EXPECT_EQ(set.Fields()["Picture"_L1].Value(), QVariant(QByteArray("abc\0de", 6)));
    EXPECT_EQ(set.Fields()["FullPage"_L1].Value(), QVariant(u"text more"_s));
    Field picture = set.Fields()["Picture"_L1];
    EXPECT_EQ(picture.GetChunk(4), QVariant(QByteArray("abc\0", 4)));
    EXPECT_EQ(picture.GetChunk(4), QVariant(QByteArray("de")));
    EXPECT_EQ(picture.GetChunk(4), QVariant());
    EXPECT_EQ(errorOf([&] { static_cast<void>(picture.GetChunk(-1)); }), 5);
    set.Fields()["FullPage"_L1].AppendChunk(u"new"_s);
    set.Fields()["FullPage"_L1].AppendChunk(u"er"_s);
    set.Update();
    EXPECT_EQ(first(*mDatabase, u"SELECT FullPage FROM SiteSummary"_s), QVariant(u"newer"_s))
        << "the first piece replaces what was there";
}

TEST_F(RecordsetTest, APictureGoesFromItsFileIntoTheFieldAndBack)
{
    for (const qint64 size : {0LL, 10LL, 1'048'576LL, 1'048'577LL, 3'000'000LL}) {
        QByteArray bytes(size, '\0');
        for (qsizetype place = 0; place < bytes.size(); ++place)
            bytes[place] = static_cast<char>(place * 7 + place / 253);
        QFile file(pathOf(u"picture.bin"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
        file.close();
        ASSERT_TRUE(add(*mDatabase, u"SiteSummary"_s, {{"Picture"_L1, file.fileName()}})) << mLog.text();
        Recordset set = open(u"SELECT Picture FROM SiteSummary"_s);
        set.MoveLast();
        EXPECT_EQ(set.Fields()[0].Value().toByteArray(), bytes);
        for (const qint64 wanted : {qint64(-1), size}) {
            blobToFile(set.Fields()[0], pathOf(u"back.bin"_s), wanted);
            QFile back(pathOf(u"back.bin"_s));
            ASSERT_TRUE(back.open(QIODevice::ReadOnly));
            EXPECT_EQ(back.readAll(), bytes) << size;
        }
    }
    EXPECT_FALSE(add(*mDatabase, u"SiteSummary"_s, {{"Picture"_L1, pathOf(u"none"_s)}}));
    EXPECT_TRUE(mLog.holds(53, "Function AddRecord"_L1));
    EXPECT_EQ(count(*mDatabase, u"SELECT * FROM SiteSummary"_s), 5);
}

TEST_F(RecordsetTest, ASavedSetOpensAgainInBothForms)
{
    add(*mDatabase, u"SiteSummary"_s,
        {{"Url"_L1, u"ä😀\r\n\t<&>\u0001"_s}, {"Title"_L1, u" blank "_s}, {"FullPage"_L1, QString(70'000, u'x')}});
    Recordset set = open(u"SELECT * FROM SiteSummary"_s);
    set.AddNew();
    set.Fields()["Picture"_L1].setValue(QByteArray("\0\xff", 2));
    set.Update();
    set.MoveFirst();
    for (const auto format : {Recordset::SaveFormat::Binary, Recordset::SaveFormat::Xml}) {
        const QString path = pathOf(u"SiteSummary-0.dat"_s);
        set.Save(path, format);
        EXPECT_EQ(set.AbsolutePosition(), 1) << "saving does not move";
        Recordset again = Recordset::open(path);
        ASSERT_EQ(again.Fields().Count(), 6);
        for (int column = 0; column < 6; ++column) {
            EXPECT_EQ(again.Fields()[column].Name(), set.Fields()[column].Name());
            EXPECT_EQ(again.Fields()[column].Type(), set.Fields()[column].Type());
        }
        Recordset original = set.Clone();
        EXPECT_EQ(again.RecordCount(), 2);
        EXPECT_EQ(again.Clone().GetRows(), original.GetRows());
        EXPECT_EQ(errorOf([&] { again.AddNew(); }), 3251);
        EXPECT_EQ(errorOf([&] { again.Fields()[2].setValue(u"x"_s); }), 3251);
        EXPECT_EQ(errorOf([&] { again.Delete(); }), 3251);
    }
    EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files).size(), 4)
        << "the database with its two logs, and the saved set";
}

TEST_F(RecordsetTest, ASaveThatMayNotGoOnLeavesTheFileAsItWas)
{
    for (int row = 0; row < 50; ++row)
        add(*mDatabase, u"Block"_s, {{"UrlsContent"_L1, QString::number(row)}});
    const Recordset set = open(u"SELECT * FROM Block"_s);
    const QString path = pathOf(u"Block-0.dat"_s);
    for (const auto format : {Recordset::SaveFormat::Binary, Recordset::SaveFormat::Xml}) {
        QFile::remove(path);
        QList<qint64> asked;
        const auto untilTwenty = [&](qint64 row) {
            asked.append(row);
            return row < 20;
        };
        const QStringList before = QDir(mFolder.path()).entryList(QDir::Files | QDir::Hidden);
        EXPECT_FALSE(set.Save(path, format, untilTwenty));
        EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files | QDir::Hidden), before);
        EXPECT_EQ(asked.size(), 21);
        EXPECT_EQ(asked.constLast(), 20);
        set.Save(path, format);
        EXPECT_FALSE(set.Save(path, format, [](qint64) { return false; }));
        EXPECT_EQ(Recordset::open(path).RecordCount(), 50);
    }
}

TEST_F(RecordsetTest, AFileThatIsNoSavedSetIsRefused)
{
    EXPECT_EQ(errorOf([&] { static_cast<void>(Recordset::open(pathOf(u"none"_s))); }), 53);
    EXPECT_EQ(errorOf([&] { static_cast<void>(Recordset::open(pathOf(u"Trawlex-0.mdb"_s))); }), AdoError::Engine);
    const QList<QByteArray> contents{"",
                                     "text",
                                     "<recordset/>",
                                     "<other/>",
                                     "<recordset><column name='a' kind='3'/><row/>",
                                     "<recordset><column name='a' kind='130'/><row><v>1</v><v>2</v></row></recordset>",
                                     "<recordset><column name='a]b' kind='130'/></recordset>",
                                     "SQLite format 3\0 and then nothing"};
    for (const QByteArray &content : contents) {
        QFile file(pathOf(u"bad.dat"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        EXPECT_NE(errorOf([&] { static_cast<void>(Recordset::open(file.fileName())); }), 0) << content.constData();
    }
}

TEST_F(RecordsetTest, AWalkAndASaveHoldOneRowAtATime)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "freed memory stays in the sanitizer's hands";
#endif
    if (residentBytes() == 0)
        GTEST_SKIP() << "the system does not tell how much memory is in use";
    constexpr int rows = 500;
    constexpr int page = 100'000;
    {
        Transaction transaction(*mDatabase);
        for (int number = 0; number < rows; ++number)
            add(*mDatabase, u"SiteSummary"_s, {{"FullPage"_L1, QString(page, u'x')}});
        ASSERT_TRUE(transaction.commit());
    }
    const qint64 before = residentBytes();
    const auto expectSmall = [&](const char *what) {
        EXPECT_LT(residentBytes() - before, qint64(rows) * page / 2) << what;
    };
    int met = 0;
    Recordset set = open(u"SELECT * FROM SiteSummary"_s);
    for (; !set.Eof(); set.MoveNext(), ++met) {
        ASSERT_EQ(set.Fields()["FullPage"_L1].Value().toString().size(), page);
        if (met % 50 == 0)
            expectSmall("a walk");
    }
    EXPECT_EQ(met, rows);
    for (const auto format : {Recordset::SaveFormat::Binary, Recordset::SaveFormat::Xml}) {
        set.Save(pathOf(u"large.dat"_s), format);
        expectSmall("a save");
        Recordset again = Recordset::open(pathOf(u"large.dat"_s));
        EXPECT_EQ(again.RecordCount(), rows);
        expectSmall("a saved set");
    }
}

TEST(Dates, AreReadInTheirForms)
{
    EXPECT_EQ(StoredDates::text(*StoredDates::parse(u"2024-02-29"_s)), u"2024-02-29"_s);
    EXPECT_EQ(StoredDates::text(*StoredDates::parse(u" 2024-2-9 1:02 "_s)), u"2024-02-09T01:02:00"_s);
    EXPECT_EQ(StoredDates::text(*StoredDates::parse(u"2024-02-29T23:59:58.7Z"_s)), u"2024-02-29T23:59:58"_s);
    EXPECT_EQ(StoredDates::text(*StoredDates::parse(u"12/31/1999"_s)), u"1999-12-31"_s);
    EXPECT_EQ(StoredDates::text(*StoredDates::parse(u"12/31/1999 12:00:00 AM"_s)), u"1999-12-31"_s);
    EXPECT_EQ(StoredDates::text(*StoredDates::parse(u"12/31/1999 12:30 pm"_s)), u"1999-12-31T12:30:00"_s);
    for (const QString &text : {u""_s, u"2023-02-29"_s, u"13/1/2000"_s, u"2024-01-01T24:00"_s, u"2024-01-01 13:00 PM"_s,
                                u"2024"_s, u"1.2.2024"_s, u"x2024-01-01"_s})
        EXPECT_FALSE(StoredDates::parse(text).has_value()) << text.toStdString();
}

TEST(StoredDates, AreKnownByTheirFormExactlyWhereReadingThemChangesNothing)
{
    std::mt19937 random(7);
    const auto number = [&](int low, int high, int width) {
        const int value = low + int(random() % unsigned(high - low + 1));
        return QString::number(value).rightJustified(random() % 20 == 0 ? width - 1 : width, u'0');
    };
    int stored = 0;
    for (int round = 0; round < 20'000; ++round) {
        QString text = number(1998, 2025, 4) + u'-' + number(1, 13, 2) + u'-' + number(1, 31, 2);
        if (random() % 2 == 0)
            text += (random() % 8 == 0 ? u' ' : u'T') + number(0, 24, 2) + u':' + number(0, 60, 2) + u':' +
                    (random() % 4 == 0 ? u"00"_s : number(0, 60, 2));
        if (random() % 30 == 0)
            text = text.left(10) + u"T00:00:00"_s;
        const auto moment = StoredDates::parse(text);
        ASSERT_EQ(StoredDates::isStored(text), moment && StoredDates::text(*moment) == text) << qPrintable(text);
        stored += StoredDates::isStored(text) ? 1 : 0;
    }
    EXPECT_GT(stored, 5000);
}
