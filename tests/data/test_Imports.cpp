// Imports: from a second file of this system and from other programs' files; what is copied, what is passed over, what
// ends an import and what then stays.
#include "DataFixture.h"
#include "data/ImportLists.h"
#include "data/RowCopy.h"
#include "store/Transaction.h"
#include "support/Places.h"
#include "util/RandomText.h"

#include <SQLiteCpp/SQLiteCpp.h>

using namespace Qt::StringLiterals;

namespace {
class ImportsTest : public DataTest
{
  protected:
    ImportsTest()
    {
        EXPECT_TRUE(QDir(folder.path()).mkdir(u"other"_s));
        makeDatabase(other, log, pathOf(u"other"_s));
    }
    [[nodiscard]] QString otherPath() { return other->DatabasePath(); }
    void addTo(cAdoMdb &target, const QString &table, const QString &field, const QString &value)
    {
        addRow(target, table, {{field, value}});
    }
    /// One row in each table of the lists.
    void fillOther()
    {
        for (const ImportedTable &table : ImportLists::data())
            addTo(*other, table.name, table.columns.constLast(), u"http://x.com"_s);
        for (const ImportedTable &table : ImportLists::settings())
            addTo(*other, table.name, table.columns.constLast(), u"value"_s);
    }
    [[nodiscard]] qint64 count(const QString &table)
    {
        return database->GetRecordset(u"SELECT Index FROM "_s + table).RecordCount();
    }
    DatabaseHolder other;
};

/// Each look at the clock takes a millisecond, so that a long command lets events in between its rows.
class TickingPump : public FakePump
{
  public:
    [[nodiscard]] qint64 tickCount() const override { return ++mTicks; }

  private:
    mutable qint64 mTicks = 0;
};

/// 2,000 addresses to import, and something that happens in the middle of it.
class InterruptedImportTest : public ImportsTest
{
  protected:
    InterruptedImportTest()
    {
        Transaction rows(*other);
        for (int i = 0; i < all; ++i)
            addTo(*other, u"EmailAddress"_s, u"Address"_s, u"%1@b.com"_s.arg(i));
        EXPECT_TRUE(rows.commit());
        path = otherPath();
    }
    /// What the import answers when `happening` comes between its rows.
    QString importWhile(const std::function<void()> &happening)
    {
        QString told;
        int turns = 0;
        QObject::connect(&status, &StatusLine::told, &form, [&, happening](const QString &text) {
            if (text.startsWith(u"Importing all data "_s) && ++turns == 2)
                happening();
        });
        ticked.run(u"Importing all data"_s, [&] { told = interrupted.ImportAllData(path); });
        EXPECT_GE(turns, 2) << "how far it is, is told between the rows";
        return told;
    }
    /// Whole rows alone, in their order.
    void expectRows(qint64 atLeast, qint64 atMost)
    {
        const QStringList addresses = values(u"EmailAddress"_s, u"Address"_s);
        EXPECT_GE(addresses.size(), atLeast);
        EXPECT_LE(addresses.size(), atMost);
        for (qsizetype i = 0; i < addresses.size(); ++i)
            ASSERT_EQ(addresses[i], u"%1@b.com"_s.arg(i));
    }
    static constexpr int all = 2000;
    QString path;
    TickingPump ticking;
    LongWork ticked{ticking, status};
    Imports interrupted{log, database, ticked};
};

/// Which rows an import of MNUrlsA adds, by the method of the rules: one question a row.
void importPlainly(cAdoMdb &target, const QStringList &urls)
{
    for (const QString &url : urls) {
        const QString asked = url.left(255);
        if (target.GetRecordset(u"SELECT Url FROM MNUrlsB WHERE Url='"_s + asked + u"'"_s).isEmpty())
            target.AddRecord({u"Url"_s + rowMarker + url}, -1, u"MNUrlsB"_s, rowMarker);
    }
}
} // namespace

TEST(ImportListsTest, EveryColumnButIndexAndPictureInTheOrderOfTheRules)
{
    const auto data = ImportLists::data();
    ASSERT_EQ(data.size(), 25U);
    EXPECT_EQ(data[0].columns, (QStringList{u"Date"_s, u"Title"_s, u"Url"_s, u"FullPage"_s}));
    EXPECT_EQ(data[0].testField, u"Url"_s);
    EXPECT_EQ(data[4].columns, (QStringList{u"Date"_s, u"SSIndex"_s, u"Number"_s, u"Type"_s, u"Url"_s}));
    EXPECT_EQ(data[9].name, u"PassUrlsE"_s);
    EXPECT_EQ(data[9].testField, u"MaskName"_s);
    EXPECT_EQ(data[10].columns, (QStringList{u"Url"_s, u"LastUrl"_s}));
    EXPECT_EQ(data[19].testField, u"MaskName"_s);
    EXPECT_EQ(data[24].columns, (QStringList{u"Date"_s, u"Url"_s, u"StartNumber"_s, u"IncrNum"_s, u"IncrStep"_s}));
    const auto settings = ImportLists::settings();
    ASSERT_EQ(settings.size(), 5U);
    EXPECT_EQ(settings[0].columns, (QStringList{u"UrlsContent"_s, u"EmailContent"_s}));
    EXPECT_EQ(settings[2].columns.size(), 40);
    EXPECT_EQ(settings[4].columns.size(), 42);
}

TEST_F(ImportsTest, TheSchemaDecidesWhatIsADatabaseOfThisSystem)
{
    EXPECT_TRUE(imports.TestImportDatabase(otherPath()));
    EXPECT_FALSE(imports.TestImportDatabase(pathOf(u"none.mdb"_s)));
    writeFile(u"no.mdb"_s, "no database");
    EXPECT_FALSE(imports.TestImportDatabase(pathOf(u"no.mdb"_s)));
}

TEST_F(ImportsTest, TheOpenDatabaseIsKnownByWhateverPath)
{
    const QString open = database->DatabasePath();
    EXPECT_TRUE(imports.isOpenDatabase(open));
    EXPECT_TRUE(imports.isOpenDatabase(open.toUpper()));
    EXPECT_TRUE(imports.isOpenDatabase(folder.path() + u"/other/../Trawlex-0.mdb"_s));
    EXPECT_TRUE(QFile::link(open, pathOf(u"link.mdb"_s)));
    EXPECT_TRUE(imports.isOpenDatabase(pathOf(u"link.mdb"_s)));
    EXPECT_FALSE(imports.isOpenDatabase(otherPath()));
}

TEST_F(ImportsTest, ImportingAllDataTwiceDoublesOnlyTheTablesWithoutATestField)
{
    fillOther();
    EXPECT_EQ(imports.ImportAllData(otherPath()), QString());
    EXPECT_EQ(imports.ImportAllData(otherPath()), QString());
    for (const ImportedTable &table : ImportLists::data())
        EXPECT_EQ(count(table.name), table.testField.isEmpty() ? 2 : 1) << qPrintable(table.name);
    EXPECT_EQ(count(u"Block"_s), 0) << "settings stay out";
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(ImportsTest, ImportingAllSettingsTwiceDoublesAllFiveTables)
{
    fillOther();
    EXPECT_EQ(imports.ImportAllSettings(otherPath()), QString());
    EXPECT_EQ(imports.ImportAllSettings(otherPath()), QString());
    for (const ImportedTable &table : ImportLists::settings())
        EXPECT_EQ(count(table.name), 2) << qPrintable(table.name);
    EXPECT_EQ(count(u"SiteSummary"_s), 0) << "data stay out";
}

TEST_F(ImportsTest, ValuesArriveAsTheyAreAndPicturesStayBehind)
{
    const QString page(300'000, u'\u00fc');
    addRow(*other, u"SiteSummary"_s,
           {{u"Date"_s, u"2001-02-03T04:05:06"_s},
            {u"Title"_s, u"T,\u00e9"_s},
            {u"Url"_s, u"u"_s},
            {u"FullPage"_s, page}});
    EXPECT_EQ(imports.ImportAllData(otherPath()), QString());
    EXPECT_EQ(values(u"SiteSummary"_s, u"Date"_s), QStringList{u"2001-02-03T04:05:06"_s});
    EXPECT_EQ(values(u"SiteSummary"_s, u"Title"_s), QStringList{u"T,\u00e9"_s});
    EXPECT_EQ(values(u"SiteSummary"_s, u"FullPage"_s), QStringList{page});
}

TEST_F(ImportsTest, WhatIsThereAlreadyAgreesWithOneQuestionARow)
{
    RandomText random(11);
    QStringList urls;
    const QStringList pieces{u"a"_s, u"B"_s, u"b"_s, u"\u00C9"_s, u"\u00E9"_s, QString(130, u'x')};
    for (int i = 0; i < 200; ++i) {
        urls.append(random.oneOf(pieces));
        for (int more = random.number(0, 3); more > 0; --more)
            urls.last() += random.oneOf(pieces);
    }
    for (const QString &url : urls)
        addTo(*other, u"MNUrlsA"_s, u"Url"_s, url);
    importPlainly(*database, urls);
    EXPECT_EQ(imports.ImportAllData(otherPath()), QString());
    EXPECT_EQ(values(u"MNUrlsA"_s, u"Url"_s), values(u"MNUrlsB"_s, u"Url"_s));
    EXPECT_LT(count(u"MNUrlsA"_s), 200);
}

TEST_F(ImportsTest, ANullIsAnEmptyTextNoughtOrTodayAndIsEqualToNoText)
{
    ASSERT_TRUE(SQLite::Database(otherPath().toStdString(), SQLite::OPEN_READWRITE)
                    .exec("INSERT INTO SiteSummary(Date,Title,Url) VALUES(NULL,NULL,NULL);"
                          "INSERT INTO EmailAddress(Date,SSIndex,Address) VALUES(NULL,NULL,NULL)") == 1);
    SQLite::Database(database->DatabasePath().toStdString(), SQLite::OPEN_READWRITE)
        .exec("INSERT INTO SiteSummary(Url) VALUES(NULL)");
    EXPECT_EQ(imports.ImportAllData(otherPath()), QString());
    EXPECT_EQ(imports.ImportTable(otherPath(), u"EmailAddress"_s), QString());
    EXPECT_EQ(count(u"SiteSummary"_s), 2) << "the Null that was there is no empty text";
    EXPECT_EQ(imports.ImportAllData(otherPath()), QString());
    EXPECT_EQ(count(u"SiteSummary"_s), 2) << "the empty text is";
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    EXPECT_EQ(values(u"EmailAddress"_s, u"Date"_s), QStringList(3, today));
    EXPECT_EQ(values(u"EmailAddress"_s, u"SSIndex"_s), QStringList(3, u"0"_s));
    EXPECT_EQ(values(u"EmailAddress"_s, u"Address"_s), QStringList(3, QString()));
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(ImportsTest, AQuoteInATestFieldEndsTheImportAndTheRowsSoFarStay)
{
    addTo(*other, u"SiteSummary"_s, u"Url"_s, u"http://a.com"_s);
    addTo(*other, u"SiteSummary"_s, u"Url"_s, u"http://o'b.com"_s);
    addTo(*other, u"SiteSummary"_s, u"Url"_s, u"http://c.com"_s);
    const QString told = imports.ImportAllData(otherPath());
    EXPECT_TRUE(told.contains(u"row 2 of SiteSummary"_s) && told.contains(u"http://o'b.com"_s)) << qPrintable(told);
    EXPECT_EQ(values(u"SiteSummary"_s, u"Url"_s), QStringList{u"http://a.com"_s});
    EXPECT_EQ(log.locations(), QStringList{u"Sub ImportAllData"_s});
}

TEST_F(ImportsTest, CancellingTakesAllRowsBack)
{
    fillOther();
    QString told;
    cancelSoon();
    work.run(u"Importing all data"_s, [&] { told = imports.ImportAllData(otherPath()); });
    EXPECT_EQ(told, u"Import cancelled, nothing imported"_s);
    for (const ImportedTable &table : ImportLists::data())
        EXPECT_EQ(count(table.name), 0) << qPrintable(table.name);
}

TEST_F(ImportsTest, ATableImportTakesEveryRowAndDropsThePicture)
{
    addRow(*other, u"SiteSummary"_s, {{u"Title"_s, u"a,b,c"_s}, {u"Url"_s, u"o'b"_s}, {u"FullPage"_s, u",,"_s}});
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(imports.ImportTable(otherPath(), u"SiteSummary"_s), QString());
    EXPECT_EQ(values(u"SiteSummary"_s, u"Title"_s), (QStringList{u"a,b,c"_s, u"a,b,c"_s}));
    EXPECT_EQ(values(u"SiteSummary"_s, u"FullPage"_s).constFirst(), u",,"_s);
    EXPECT_TRUE(log.entries.isEmpty());
    EXPECT_NE(imports.ImportTable({}, u"SiteSummary"_s), QString());
}

TEST_F(ImportsTest, ATableThatIsNotThereIsOneMessageNotOneARow)
{
    addTo(*other, u"Block"_s, u"UrlsContent"_s, u"x"_s);
    cAdoMdb &source = *other;
    source.Tables_AddItem(u"Extra"_s);
    source.Fields_AddItem(u"Url"_s, -1, u"Extra"_s);
    ASSERT_TRUE(source.AddTable(u"Extra"_s));
    for (int i = 0; i < 5; ++i)
        addTo(source, u"Extra"_s, u"Url"_s, u"x"_s);
    EXPECT_TRUE(imports.ImportTable(otherPath(), u"Extra"_s).contains(u"row 1 of Extra"_s));
    EXPECT_LE(log.entries.size(), 2);
    EXPECT_TRUE(imports.ImportTable(otherPath(), u"Nowhere"_s).contains(u"Nowhere cannot be read"_s));
}

TEST_F(ImportsTest, AFieldImportMakesARowOfEachValueWithToday)
{
    addTo(*other, u"MNUrlsA"_s, u"Url"_s, u"one"_s);
    addTo(*other, u"MNUrlsA"_s, u"Url"_s, u"two"_s);
    EXPECT_EQ(imports.ImportField(otherPath(), u"MNUrlsA"_s, u"Url"_s, u"EmailAddress"_s, u"Address"_s), QString());
    EXPECT_EQ(values(u"EmailAddress"_s, u"Address"_s), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(values(u"EmailAddress"_s, u"Date"_s).constFirst(), QDate::currentDate().toString(Qt::ISODate));
    EXPECT_EQ(imports.ImportField(otherPath(), u"MNUrlsA"_s, u"Url"_s, u"Block"_s, u"UrlsContent"_s), QString())
        << "a table without a date";
    EXPECT_EQ(count(u"Block"_s), 2);
}

TEST_F(ImportsTest, ATextFieldIntoANumberFieldGivesAMessageAndNoRow)
{
    addTo(*other, u"MNUrlsA"_s, u"Url"_s, u"5"_s);
    EXPECT_EQ(imports.ImportField(otherPath(), u"MNUrlsA"_s, u"Url"_s, u"EmailAddress"_s, u"SSIndex"_s),
              u"Field data types do not match"_s);
    EXPECT_EQ(count(u"EmailAddress"_s), 0);
}

TEST_F(ImportsTest, AFieldImportNamesWhatIsMissing)
{
    EXPECT_EQ(imports.ImportField({}, {}, {}, {}, {}), u"No import database"_s);
    EXPECT_EQ(imports.ImportField(otherPath(), u"T"_s, {}, {}, {}), u"import table, field is missing"_s);
    EXPECT_EQ(imports.ImportField(otherPath(), u"T"_s, u"F"_s, u"X"_s, {}), u"Existing table, field is missing"_s);
}

TEST_F(ImportsTest, ADamagedFileIsAMessage)
{
    writeFile(u"bad.mdb"_s, "SQLite format 3" + QByteArray(5000, '\x07'));
    EXPECT_NE(imports.ImportAllData(pathOf(u"bad.mdb"_s)), QString());
    EXPECT_NE(imports.ImportTable(pathOf(u"bad.mdb"_s), u"Block"_s), QString());
    EXPECT_FALSE(imports.TestImportDatabase(pathOf(u"bad.mdb"_s)));
}

TEST_F(ImportsTest, AFullDiskIsAMessageAndNothingIsImported)
{
    for (int i = 0; i < 300; ++i)
        addRow(*other, u"SiteSummary"_s, {{u"Url"_s, QString::number(i)}, {u"FullPage"_s, QString(5000, u'x')}});
    QString told;
    {
        const FullDisk full(400'000);
        told = imports.ImportAllData(otherPath());
    }
    EXPECT_TRUE(told.startsWith(u"Nothing imported"_s)) << qPrintable(told);
    EXPECT_EQ(count(u"SiteSummary"_s), 0);
}

TEST_F(ImportsTest, SystemTablesAreEmptyElementsInTheListOfTables)
{
    const QStringList tables = database->GetExternalTablesFields(otherPath(), cAdoMdb::ExternalList::Tables, {});
    EXPECT_TRUE(tables.contains(u"SiteSummary"_s));
    EXPECT_TRUE(tables.contains(QString())) << "the engine's own";
}

TEST_F(ImportsTest, AFieldComesFromAnotherProgramsFile)
{
    const QString file = inSourceTree(u"../shared/mdb/testV1997.mdb"_s);
    if (!QFile::exists(file))
        GTEST_SKIP() << "no samples beside the project";
    QString told = u"no field"_s;
    for (const QStringList &table : database->GetExternalTablesFields(file)) {
        for (const QString &field : table.mid(1)) {
            if (!told.isEmpty())
                told = imports.ImportField(file, table[0], field, u"Block"_s, u"UrlsContent"_s);
        }
    }
    EXPECT_EQ(told, QString());
    EXPECT_GT(count(u"Block"_s), 0);
}

TEST_F(InterruptedImportTest, AFileThatIsRemovedGivesAllRowsOfTheTableAndIsThenMissed)
{
    other.reset();
    EXPECT_EQ(importWhile([this] { QFile::remove(path); }), u"Import ended: PhoneNumber cannot be read"_s);
    expectRows(all, all);
}

TEST_F(InterruptedImportTest, AFileThatIsOverwrittenGivesAllItsRowsOrSaysWhyItEnded)
{
    other.reset();
    for (const bool emptied : {true, false}) {
        static_cast<void>(database->GetRecordset(u"DELETE * FROM EmailAddress"_s));
        const QByteArray before = bytes(path);
        const QString told = importWhile([&] {
            QFile file(path);
            ASSERT_TRUE(file.open(QIODevice::ReadWrite));
            ASSERT_TRUE(emptied ? file.resize(0) : file.write(QByteArray(before.size(), 'x')) == before.size());
        });
        expectRows(told.isEmpty() ? all : 0, all);
        EXPECT_TRUE(told.isEmpty() || told.startsWith(u"Import ended: "_s)) << qPrintable(told);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(before);
    }
}

TEST_F(InterruptedImportTest, RowsThatComeInMeanwhileStayOut)
{
    EXPECT_EQ(importWhile([this] { addTo(*other, u"EmailAddress"_s, u"Address"_s, u"late"_s); }), QString());
    expectRows(all, all);
}

TEST_F(InterruptedImportTest, EscapeBetweenTwoRowsTakesAllOfThemBack)
{
    EXPECT_EQ(importWhile([this] { ticked.cancel(); }), u"Import cancelled, nothing imported"_s);
    expectRows(0, 0);
    EXPECT_FALSE(ticked.isUnderWay());
}

TEST_F(InterruptedImportTest, WhatAnotherProgramWritesMeanwhileWaitsAndIsKept)
{
    QString refused;
    EXPECT_EQ(importWhile([&] {
                  SQLite::Database program(database->DatabasePath().toStdString(), SQLite::OPEN_READWRITE);
                  try {
                      program.exec("INSERT INTO Block(UrlsContent) VALUES('x')");
                  } catch (const SQLite::Exception &error) {
                      refused = QString::fromUtf8(error.what());
                  }
              }),
              QString());
    EXPECT_TRUE(refused.contains(u"locked"_s)) << "an import is one transaction";
    expectRows(all, all);
}
