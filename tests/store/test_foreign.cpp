// Other databases: this system's own files, and real files of other programs where they lie beside the project.
#include "ForeignFixture.h"
#include "store/AdoErrors.h"
#include "store/FixNull.h"
#include "store/foreign/TextForms.h"
#include "store/sqlite/Connection.h"
#include "support/Places.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <random>

using namespace Qt::StringLiterals;
using List = cAdoMdb::ExternalList;

TEST_F(ForeignTest, AFileOfThisSystemListsItsTablesAndFields)
{
    created()->CloseConnection();
    const QString path = pathOf(u"Trawlex-0.mdb"_s);
    const QStringList tables = mDatabase.GetExternalTablesFields(u" "_s + path + u" "_s, List::Tables, u""_s);
    EXPECT_EQ(tables.size(), 32) << "the engine's own table is an empty element at its place";
    EXPECT_EQ(tables.count(u""_s), 1);
    QStringList fields = mDatabase.GetExternalTablesFields(path, List::FieldsOfTable, u"sitesummary"_s);
    EXPECT_EQ(fields.size(), 44) << "the widest table's columns and one more";
    EXPECT_EQ(fields.mid(0, 7),
              (QStringList{u"Index"_s, u"Date"_s, u"Title"_s, u"Url"_s, u"FullPage"_s, u"Picture"_s, u""_s}));
    EXPECT_EQ(mDatabase.GetExternalTablesFields(path, List::FieldsOfTable, u"None"_s), QStringList(44, u""_s));
    EXPECT_EQ(mDatabase.GetExternalTablesFields(path, List::FieldsOfTable, u""_s), QStringList{u""_s});
    const QList<QStringList> all = mDatabase.GetExternalTablesFields(path);
    EXPECT_EQ(all.size(), 32);
    EXPECT_TRUE(all.contains(QStringList{u"Block"_s, u"Index"_s, u"UrlsContent"_s, u"EmailContent"_s}));
    for (const QString &missing : {u""_s, u"  "_s, pathOf(u"none.mdb"_s), mFolder.path()}) {
        EXPECT_EQ(mDatabase.GetExternalTablesFields(missing, List::Tables, u""_s), QStringList{u""_s});
        EXPECT_EQ(mDatabase.GetExternalTablesFields(missing, List::FieldsOfTable, u"T"_s), QStringList{u""_s});
        EXPECT_TRUE(mDatabase.GetExternalTablesFields(missing).isEmpty());
    }
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(ForeignTest, AFileOfThisSystemIsReadAndNotWritten)
{
    auto writer = created();
    add(*writer, u"Block"_s, {{"UrlsContent"_L1, u"a"_s}});
    const QString path = writer->DatabasePath();
    Recordset rows = mDatabase.GetRecordSetFromExternalDB(path, u"SELECT * FROM Block"_s);
    add(*writer, u"Block"_s, {{"UrlsContent"_L1, u"b"_s}});
    EXPECT_EQ(rows.RecordCount(), 1);
    EXPECT_THROW(rows.AddNew(), RuntimeError);
    EXPECT_EQ(rowsOf(path, u"SELECT UrlsContent FROM Block"_s), u"a\nb\n"_s) << "while the writer has it open";
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
    EXPECT_EQ(rowsOf(path, u"DELETE * FROM Block"_s), u"Nothing"_s);
    EXPECT_TRUE(mLog.holds(-2147217900, "Function GetRecordSetFromExternalDB"_L1));
    EXPECT_EQ(rowsOf(path, u"SELECT * FROM None"_s), u"Nothing"_s);
    EXPECT_TRUE(mLog.holds(-2147217865, "Function GetRecordSetFromExternalDB"_L1));
    mLog.entries.clear();
    EXPECT_EQ(rowsOf(path, u""_s), u"Nothing"_s);
    EXPECT_EQ(rowsOf(pathOf(u"none"_s), u"SELECT * FROM Block"_s), u"Nothing"_s);
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
    EXPECT_EQ(count(*writer, u"SELECT * FROM Block"_s), 2);
}

TEST_F(ForeignTest, NothingIsLeftBesideAFileThatWasRead)
{
    auto writer = created();
    add(*writer, u"Block"_s, {{"UrlsContent"_L1, u"a"_s}});
    const QString path = writer->DatabasePath();
    writer.reset();
    const QByteArray before = contentOf(path);
    const QDateTime changed = QFileInfo(path).lastModified();
    EXPECT_EQ(mDatabase.GetExternalTablesFields(path).size(), 32);
    EXPECT_EQ(rowsOf(path, u"SELECT UrlsContent FROM Block"_s), u"a\n"_s);
    EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files), QStringList{u"Trawlex-0.mdb"_s});
    EXPECT_EQ(contentOf(path), before);
    EXPECT_EQ(QFileInfo(path).lastModified(), changed);
}

TEST_F(ForeignTest, ConnectionsToReadRefuseEveryWrite)
{
    created()->CloseConnection();
    const auto connection = Connection::open(pathOf(u"Trawlex-0.mdb"_s), Connection::Access::Read);
    EXPECT_TRUE(connection->isReadOnly());
    EXPECT_THROW(connection->begin(), RuntimeError);
    EXPECT_THROW({ connection->prepare("DELETE FROM Block").run(); }, RuntimeError);
    EXPECT_THROW(connection->administer("DROP TABLE Block"), RuntimeError);
}

TEST_F(ForeignTest, TextsNumbersDatesFlagsAndAmounts)
{
    for (const QString &name : {u"testV1997.mdb"_s, u"testV2010.accdb"_s}) {
        SAMPLE(path, name);
        EXPECT_EQ(rowsOf(path, u"SELECT * FROM Table1"_s),
                  u"a|b|0|0|0|0|1981-12-12|0|False\n"
                  "abcdefg|hijklmnop|2|222|333333333|444.555|1974-09-21|3.5|True\n"_s);
        EXPECT_EQ(kindsOf(path, u"SELECT * FROM Table1"_s), (QList<int>{130, 130, 17, 2, 3, 5, 7, 6, 11}));
        EXPECT_EQ(rowsOf(path, u"SELECT A FROM table1 WHERE E=333333333"_s), u"abcdefg\n"_s);
        EXPECT_EQ(rowsOf(path, u"SELECT a FROM Table1 WHERE B='HIJKLMNOP'"_s), u"abcdefg\n"_s);
        EXPECT_EQ(rowsOf(path, u"SELECT * FROM Table3"_s), u""_s) << "a table without rows";
        EXPECT_EQ(kindsOf(path, u"SELECT * FROM Table4"_s), (QList<int>{130, 72}));
    }
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(ForeignTest, CharactersBeyondTheFirstPlane)
{
    SAMPLE(path, u"testEmoticonsV2010.accdb"_s);
    Recordset rows = mDatabase.GetRecordSetFromExternalDB(path, u"SELECT * FROM data"_s);
    ASSERT_FALSE(rows.isNothing()) << mLog.text();
    EXPECT_EQ(rows.RecordCount(), 80);
    for (; !rows.Eof(); rows.MoveNext()) {
        const char32_t point = rows.Fields()["key"_L1].Value().toUInt();
        EXPECT_EQ(rows.Fields()["data"_L1].Value().toString(), u"a"_s + QString::fromUcs4(&point, 1) + u"a"_s);
    }
}

TEST_F(ForeignTest, DeletedColumnsAndRowsAreGone)
{
    SAMPLE(columns, u"delColTestV2000.mdb"_s);
    EXPECT_EQ(rowsOf(columns, u"SELECT * FROM Table1"_s), u"0|2|foo|foo2\n3|5|bar|bar2\n"_s);
    SAMPLE(rows, u"delTestV1997.mdb"_s);
    EXPECT_EQ(rowsOf(rows, u"SELECT * FROM Table"_s), u"z|y\nv|u\n"_s) << mLog.text();
}

TEST_F(ForeignTest, RowsThatWereMovedAndNullsStandWhereTheyBelong)
{
    SAMPLE(path, u"overflowTestV1997.mdb"_s);
    EXPECT_EQ(rowsOf(path, u"SELECT data1,data3,data8,data9 FROM Table1"_s),
              u"row1col1|NULL|NULL|NULL\nrow2col1|row2col3|NULL|NULL\nNULL|row3col3|NULL|row3col9\n"
              "row4col1|row4col2|NULL|NULL\nNULL|row5col2|NULL|NULL\nNULL|row6col2|NULL|NULL\n"
              "row7col1|NULL|NULL|NULL\n"_s);
}

TEST_F(ForeignTest, DecimalsAndLongTexts)
{
    SAMPLE(decimals, u"fixedNumericTestV2000.mdb"_s);
    EXPECT_EQ(rowsOf(decimals, u"SELECT * FROM test"_s), u"some data|1|0|0|4|-1|1\n"_s);
    EXPECT_EQ(kindsOf(decimals, u"SELECT * FROM test"_s), (QList<int>{203, 131, 131, 131, 131, 131, 131}));
    SAMPLE(complex, u"complexDataTestV2010.accdb"_s);
    EXPECT_EQ(
        rowsOf(complex, u"SELECT id,[memo-data],[append-memo-data] FROM Table1"_s),
        u"row1|NULL|NULL\nrow2|row2-memo|row2-memo\nrow3|row3-memo|row3-memo-again\nrow4|row4-memo|row4-memo\n"_s);
    SAMPLE(wide, u"test2V2000.mdb"_s);
    Recordset rows = mDatabase.GetRecordSetFromExternalDB(wide, u"SELECT * FROM MSP_PROJECTS"_s);
    ASSERT_FALSE(rows.isNothing()) << mLog.text();
    EXPECT_EQ(rows.RecordCount(), 1);
    EXPECT_EQ(rows.Fields()["PROJ_OPT_CURRENCY_SYMBOL"_L1].Value(), QVariant(u"£"_s));
    EXPECT_EQ(rows.Fields()["PROJ_PROP_AUTHOR"_L1].Value(),
              QVariant(u"Jon Iles this is a a vawesrasoih aksdkl fas dlkjflkasjd flkjaslkdjflkajlksj dfl lkasjdf "
                       "lkjaskldfj lkas dlk lkjsjdfkl; aslkdf lkasjkldjf lka skldf lka sdkjfl;kasjd falksjdfljaslkdjf "
                       "laskjdfk jalskjd flkj aslkdjflkjkjasljdflkjas jf;lkasjd fjkas dasdf asd fasdf asdf "
                       "asdmhf lksaiyudfoi jasodfj902384jsdf9 aw90se fisajldkfj lkasj dlkfslkd jflksjadf as"_s));
}

TEST_F(ForeignTest, TheTablesOfAnotherProgramStandBetweenItsOwn)
{
    SAMPLE(path, u"indexTestV2000.mdb"_s);
    const QStringList tables = mDatabase.GetExternalTablesFields(path, List::Tables, u""_s);
    EXPECT_EQ(tables.mid(0, 8),
              (QStringList{u""_s, u""_s, u""_s, u""_s, u""_s, u"Table1"_s, u"Table2"_s, u"Table3"_s}));
    EXPECT_EQ(tables.size(), 13);
    QStringList fields = mDatabase.GetExternalTablesFields(path, List::FieldsOfTable, u"TABLE1"_s);
    fields.removeAll(u""_s);
    EXPECT_EQ(fields, (QStringList{u"id"_s, u"otherfk1"_s, u"otherfk2"_s, u"data"_s, u"otherfk3"_s}));
    EXPECT_EQ(rowsOf(path, u"SELECT * FROM Table2"_s), u"0|foo0\n1|foo1\n2|foo2\n"_s);
    EXPECT_EQ(rowsOf(path, u"SELECT * FROM None"_s), u"Nothing"_s);
    EXPECT_TRUE(mLog.holds(-2147217865, "Function GetRecordSetFromExternalDB"_L1));
}

TEST_F(ForeignTest, ADamagedFileIsAnErrorOrItsRowsAndNeverACrash)
{
    const QDir folder(inSourceTree(QStringLiteral("../shared/mdb")));
    const QStringList names = folder.entryList({u"*.mdb"_s, u"*.accdb"_s}, QDir::Files);
    if (names.isEmpty())
        GTEST_SKIP() << "the sample files are not here";
    std::mt19937 random(17);
    int errors = 0;
    for (int round = 0; round < 60; ++round) {
        QByteArray bytes = contentOf(folder.filePath(names[round % names.size()]));
        if (round % 3 == 0)
            bytes.truncate(static_cast<qsizetype>(random() % unsigned(bytes.size())));
        for (int hit = 0; hit < 400 && round % 3 != 0; ++hit)
            bytes[static_cast<qsizetype>((round % 3 == 1 ? 4096U : 0U) + random() % unsigned(bytes.size() - 4096))] =
                static_cast<char>(random());
        const QString damaged = written(bytes);
        mLog.entries.clear();
        QStringList tables = mDatabase.GetExternalTablesFields(damaged, List::Tables, u""_s);
        tables.removeAll(u""_s);
        for (const QString &table : tables.mid(0, 5))
            static_cast<void>(rowsOf(damaged, u"SELECT * FROM ["_s + table + u"]"_s));
        errors += mLog.entries.isEmpty() ? 0 : 1;
    }
    EXPECT_GT(errors, 10) << "the damage was met";
}

TEST_F(ForeignTest, AFileOfNoKnownKindIsAnError)
{
    for (const QByteArray &content :
         {QByteArray(), QByteArray("text"), QByteArray(100'000, '\0'), QByteArray("\0\1\0\0Standard Jet DB\0", 20),
          QByteArray("SQLite format 3\0xyz", 19)}) {
        const QString path = written(content);
        mLog.entries.clear();
        EXPECT_EQ(mDatabase.GetExternalTablesFields(path, List::Tables, u""_s), QStringList{u""_s});
        EXPECT_TRUE(mLog.holds(AdoError::Engine, "Function GetExternalTablesFields"_L1)) << mLog.text();
        EXPECT_EQ(rowsOf(path, u"SELECT * FROM Table1"_s), u"Nothing"_s);
        EXPECT_TRUE(mLog.holds(AdoError::Engine, "Function GetRecordSetFromExternalDB"_L1)) << mLog.text();
    }
}

TEST(ReaderTexts, UnitsShortenedTextsDatesAndAmounts)
{
    const auto text = [](const std::string &bytes) { return textFromUnits(bytes); };
    using namespace std::string_literals;
    EXPECT_EQ(text("a\0\xe4\0\x3d\xd8\0\xde"s), "aä😀");
    EXPECT_EQ(text("\xff\xfe"
                   "ab\xe4"s),
              "abä");
    EXPECT_EQ(text("\xff\xfe"
                   "a\0\x11\x04\0b"s),
              "aБb");
    EXPECT_EQ(text("\x3d\xd8"
                   "a\0"s),
              "\xEF\xBF\xBD"
              "a");
    EXPECT_EQ(text("a\0b"s), "a") << "half a unit at the end";
    EXPECT_EQ(text(""), "");
    EXPECT_EQ(dateFromDays(0), "1899-12-30");
    EXPECT_EQ(dateFromDays(45351.5), "2024-02-29T12:00:00");
    EXPECT_EQ(dateFromDays(-1.25), "1899-12-29T06:00:00") << "the fraction counts forwards";
    EXPECT_EQ(dateFromDays(45350.9999999), "2024-02-29");
    EXPECT_EQ(dateFromDays(1e300), "");
    EXPECT_EQ(dateFromDays(std::numeric_limits<double>::quiet_NaN()), "");
    EXPECT_EQ(amountText(35000), "3.5");
    EXPECT_EQ(amountText(-1), "-0.0001");
    EXPECT_EQ(amountText(0), "0");
    EXPECT_EQ(amountText(std::numeric_limits<std::int64_t>::min()), "-922337203685477.5808");
}

TEST_F(ForeignTest, AFileThatIsCutOffGivesAllRowsOfATableOrAnError)
{
    const QDir folder(inSourceTree(QStringLiteral("../shared/mdb")));
    const QStringList names = folder.entryList({u"*.mdb"_s, u"*.accdb"_s}, QDir::Files);
    if (names.isEmpty())
        GTEST_SKIP() << "the sample files are not here";
    int errors = 0;
    for (const QString &name : names) {
        const QByteArray whole = contentOf(folder.filePath(name));
        QStringList tables = mDatabase.GetExternalTablesFields(folder.filePath(name), List::Tables, u""_s);
        tables.removeAll(u""_s);
        ASSERT_FALSE(tables.isEmpty()) << name.toStdString() << mLog.text();
        for (const qsizetype percent : {97, 90, 70}) {
            const QString cut = written(whole.left(whole.size() * percent / 100));
            for (const QString &table : tables) {
                const QString statement = u"SELECT * FROM ["_s + table + u"]"_s;
                mLog.entries.clear();
                const QString rows = rowsOf(cut, statement);
                errors += mLog.entries.isEmpty() ? 0 : 1;
                ASSERT_TRUE(rows == u"Nothing"_s || rows == rowsOf(folder.filePath(name), statement))
                    << name.toStdString() << " " << percent;
            }
        }
    }
    EXPECT_GT(errors, 10) << "the cut was met";
}

TEST_F(ForeignTest, AFileThatLacksPagesSaysHowMany)
{
    SAMPLE(path, u"indexTestV2000.mdb"_s);
    constexpr qsizetype page = 4096;
    const QByteArray whole = contentOf(path);
    mLog.entries.clear();
    EXPECT_EQ(rowsOf(written(whole.left(whole.size() * 9 / 10 / page * page)), u"SELECT * FROM Table1"_s),
              u"Nothing"_s);
    EXPECT_EQ(mLog.entries.value(0).description, u"The file is damaged: 64 of 72 pages."_s);
    mLog.entries.clear();
    EXPECT_EQ(rowsOf(written(whole.chopped(1)), u"SELECT * FROM Table1"_s), u"Nothing"_s) << "half a page";
    EXPECT_EQ(mLog.entries.value(0).description, u"The file is damaged: 71 of 72 pages."_s);
}

TEST(ReaderTexts, NumbersOfSixteenBytes)
{
    using namespace std::string_literals;
    EXPECT_EQ(guidText("\x33\x22\x11\x00\x55\x44\x77\x66\x88\x99\xaa\xbb\xcc\xdd\xee\xff"s),
              "{00112233-4455-6677-8899-AABBCCDDEEFF}");
    EXPECT_EQ(guidText("short"), "");
}

TEST(ReaderTexts, ExtendedDates)
{
    EXPECT_EQ(extendedDate("0000000000000000000:0000000000000000000:7"), "0001-01-01");
    EXPECT_EQ(extendedDate("0000000000000738000:0000000432010000000:7"), "2021-07-30T12:00:01");
    for (const char *text :
         {"", "0000000000000000000:0000000000000000000:8", "000000000000000000x:0000000000000000000:7",
          "-000000000000000001:0000000000000000000:7", "0000000000003652059:0000000000000000000:7",
          "0000000000000000000:0000000864000000000:7", "0000000000000000000 0000000000000000000:7"})
        EXPECT_EQ(extendedDate(text), "") << text;
}

TEST(ReaderTexts, TheValueInACalculatedOne)
{
    using namespace std::string_literals;
    const std::string head(16, '\x07');
    const auto inner = calculatedValue(head + "\x03\0\0\0abcde"s);
    ASSERT_TRUE(inner);
    EXPECT_EQ(inner->start, 20U);
    EXPECT_EQ(inner->length, 3U);
    EXPECT_TRUE(calculatedValue(head + "\0\0\0\0"s));
    EXPECT_FALSE(calculatedValue(head + "\x03\0\0\0ab"s)) << "shorter than its head says";
    EXPECT_FALSE(calculatedValue(head + "\xff\xff\xff\xff"s + "abc"));
    EXPECT_FALSE(calculatedValue("abc"));
}
