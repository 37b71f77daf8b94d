// Exports: which rows and columns go out, names, refusals, and that nothing half is left.
#include "DataFixture.h"
#include "store/Transaction.h"

using namespace Qt::StringLiterals;

namespace {
enum Kind { Html = 1, Comma, Tabs, Dat, Csv };
const QStringList emailFields{u"Index"_s, u"Date"_s, u"SSIndex"_s, u"Address"_s, u"Url"_s};

class ExportsTest : public DataTest
{
  protected:
    ExportsTest()
    {
        addEmail(u"a@b.com"_s);
        addEmail(u"x,y"_s, u"5"_s, u"www.site.com/page.htm"_s);
    }
    [[nodiscard]] bool exportAs(const ExportKind &kind, const QString &name)
    {
        return exports.exportTable({u"EmailAddress"_s, {}, {}}, kind, pathOf(name));
    }
    /// How many e-mail rows the comma export of what is on show holds.
    [[nodiscard]] qsizetype exportedRows()
    {
        exports.ExportRecordSet(Comma);
        const QString path = lastStatus().chopped(8);
        const qsizetype count = bytes(path).count("2024-05-01");
        QFile::remove(path);
        return count;
    }
};
} // namespace

TEST_F(ExportsTest, TheFirstExportTakesNumberNoughtAndTheNextOneTheNextVacantNumber)
{
    choose(u"EmailAddress"_s);
    exports.ExportRecordSet(Comma);
    EXPECT_EQ(lastStatus(), pathOf(u"EmailAddress-0.txt"_s) + u" written"_s);
    const QByteArray first = bytes(pathOf(u"EmailAddress-0.txt"_s));
    exports.ExportRecordSet(Tabs);
    EXPECT_EQ(lastStatus(), pathOf(u"EmailAddress-1.txt"_s) + u" written"_s);
    EXPECT_EQ(bytes(pathOf(u"EmailAddress-0.txt"_s)), first);
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(ExportsTest, EachKindHasItsExtensionAndIsNumberedAnew)
{
    choose(u"EmailAddress"_s);
    for (const ExportKind &kind : ExportKinds::all) {
        for (int i = 0; i < 2; ++i)
            exports.ExportRecordSet(kind.number);
        const QString second = pathOf(u"EmailAddress-1"_s + kind.extension);
        EXPECT_TRUE(kind.extension == ".txt"_L1 || lastStatus() == second + u" written"_s) << qPrintable(lastStatus());
    }
}

TEST_F(ExportsTest, ASavedRecordsetOpensAgain)
{
    choose(u"EmailAddress"_s);
    exports.ExportRecordSet(Dat);
    Recordset rows = Recordset::open(pathOf(u"EmailAddress-0.dat"_s));
    EXPECT_EQ(rows.RecordCount(), 2);
    EXPECT_EQ(FixNull(rows.Fields()["Address"_L1]), u"a@b.com"_s);
}

TEST_F(ExportsTest, SiteSummaryGoesOutWithFourColumnsAndATimeBehindABlank)
{
    addRow(*database, u"SiteSummary"_s,
           {{u"Date"_s, u"2024-05-01T10:20:30"_s}, {u"Title"_s, u"T"_s}, {u"Url"_s, u"u"_s}, {u"FullPage"_s, u"p"_s}});
    choose(u"SiteSummary"_s);
    exports.ExportRecordSet(Comma);
    EXPECT_EQ(bytes(pathOf(u"SiteSummary-0.txt"_s)), "1,2024-05-01 10:20:30,T,u\r\n\r\n");
}

TEST_F(ExportsTest, ANumericFilterExportsRowsThatEqualItAnyOtherRowsThatHoldIt)
{
    addEmail(u"third"_s, u"15"_s);
    choose(u"EmailAddress"_s, emailFields, 2, u"5"_s);
    EXPECT_EQ(exportedRows(), 1) << "not the row with 15";
    choose(u"EmailAddress"_s, emailFields, 3, u"B.c"_s);
    EXPECT_EQ(exportedRows(), 1);
    choose(u"EmailAddress"_s, emailFields, -1, u"nothing"_s);
    EXPECT_EQ(exportedRows(), 3) << "a text without a field is no filter";
}

TEST_F(ExportsTest, SiteSummaryShowsSixColumnsAndANumberAnywhereThatTheExportLeavesOut)
{
    addEmail(u"third"_s, u"15"_s);
    const TablePages shown(*database, u"EmailAddress"_s, {u"SSIndex"_s, u"5"_s}, {});
    EXPECT_EQ(shown.rowCount(), 2) << "the grid shows those with a 5 anywhere";
    EXPECT_EQ(TablePages(*database, u"SiteSummary"_s).columns().size(), 6);
    choose(u"EmailAddress"_s, emailFields, 2, u" 5 "_s);
    EXPECT_EQ(exportedRows(), 1) << "blanks make no text of a number";
}

TEST_F(ExportsTest, WhereTheTextStandsIsAskedAsInTheGrid)
{
    addEmail(u"third"_s, u"15"_s);
    struct Row
    {
        int place, field;
        QString text;
        int rows;
    };
    for (const Row &row : {Row{1, 2, u"1"_s, 2}, {2, 2, u"1"_s, 1}, {2, 3, u"X,y"_s, 1}}) {
        form.data.cboDBPlace.setListIndex(row.place);
        choose(u"EmailAddress"_s, emailFields, row.field, row.text);
        EXPECT_EQ(exportedRows(), row.rows) << row.place << ' ' << qPrintable(row.text);
    }
    form.data.cboDBPlace.setListIndex(1);
    choose(u"EmailAddress"_s, emailFields, 3, u"B.c"_s);
    exports.ExportRecordSet(Comma);
    EXPECT_EQ(lastStatus(), u"No records in recordset"_s);
}

TEST_F(ExportsTest, WhatNoStatementHoldsAsANumberIsATextLikeOthers)
{
    addEmail(u"(212) 5"_s);
    choose(u"EmailAddress"_s, emailFields, 3, u"(212)"_s);
    EXPECT_EQ(exportedRows(), 1);
}

TEST_F(ExportsTest, PercentSignsAreWildcardsAndBracketsAreThemselves)
{
    addEmail(u"[x]y"_s);
    choose(u"EmailAddress"_s, emailFields, 3, u"[x]"_s);
    EXPECT_EQ(exportedRows(), 1);
    choose(u"EmailAddress"_s, emailFields, 3, u"a%m"_s);
    EXPECT_EQ(exportedRows(), 1);
}

TEST_F(ExportsTest, AnEmptyResultGivesAStatusAndNoFile)
{
    choose(u"PhoneNumber"_s);
    for (const ExportKind &kind : ExportKinds::all) {
        exports.ExportRecordSet(kind.number);
        EXPECT_EQ(lastStatus(), u"No records in recordset"_s);
    }
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(ExportsTest, WithNoTableChosenNothingIsLoaded)
{
    choose(u"EmailAddress"_s);
    form.data.cboDBTables.setListIndex(-1);
    exports.ExportRecordSet(Comma);
    EXPECT_EQ(lastStatus(), u"No recordset is loaded"_s);
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(ExportsTest, AFilterWithAQuoteIsAMessageAndNoFile)
{
    choose(u"EmailAddress"_s, emailFields, 3, u"o'neil"_s);
    exports.ExportRecordSet(Csv);
    EXPECT_EQ(log.locations(), QStringList{u"Sub ExportRecordSet"_s});
    EXPECT_TRUE(lastStatus().startsWith(u"Nothing exported"_s));
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(ExportsTest, AnExistingFileIsRefusedAndStaysInEveryForm)
{
    writeFile(u"taken"_s, "mine");
    for (const ExportKind &kind : ExportKinds::all) {
        EXPECT_FALSE(exportAs(kind, u"taken"_s));
        EXPECT_EQ(bytes(pathOf(u"taken"_s)), "mine") << kind.word.data();
        EXPECT_TRUE(lastStatus().contains(u"File already exists"_s));
        EXPECT_EQ(files(), QStringList{u"taken"_s});
    }
}

TEST_F(ExportsTest, ANullInHtmlLeavesNoFile)
{
    addRow(*database, u"SiteSummary"_s, {{u"Url"_s, u"u"_s}});
    Recordset rows = database->GetRecordset(u"SELECT Index,Picture FROM SiteSummary"_s);
    exports.CreateHtmlTable(rows, pathOf(u"out.htm"_s), true);
    EXPECT_EQ(log.locations(), QStringList{u"CreateHtmlTable"_s});
    EXPECT_TRUE(files().isEmpty());
    EXPECT_TRUE(browsers.running->navigated.isEmpty());
}

TEST_F(ExportsTest, AFolderThatIsGoneIsAMessageInEveryForm)
{
    for (const ExportKind &kind : ExportKinds::all) {
        EXPECT_FALSE(exportAs(kind, u"gone/out"_s));
        EXPECT_TRUE(lastStatus().startsWith(u"Nothing exported: "_s)) << qPrintable(lastStatus());
    }
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(ExportsTest, AFolderInWhichNothingCanBeMadeIsAMessageInEveryForm)
{
    for (const ExportKind &kind : ExportKinds::all) {
        EXPECT_FALSE(exports.exportTable({u"EmailAddress"_s, {}, {}}, kind, u"/proc/out"_s));
        EXPECT_TRUE(lastStatus().startsWith(u"Nothing exported: "_s)) << qPrintable(lastStatus());
        EXPECT_TRUE(lastStatus().contains(u"/proc"_s)) << kind.word.data() << ": " << qPrintable(lastStatus());
    }
    form.places.txtSFDBDir.setText(u"/proc/"_s);
    choose(u"EmailAddress"_s);
    exports.ExportRecordSet(Csv);
    EXPECT_TRUE(lastStatus().startsWith(u"Nothing exported: "_s)) << qPrintable(lastStatus());
}

TEST_F(ExportsTest, ANameThatSomebodyTakesMeanwhileStaysHis)
{
    for (const ExportKind &kind : ExportKinds::all) {
        pump.after(0, [this] { writeFile(u"out"_s, "his"); });
        EXPECT_FALSE(exportAs(kind, u"out"_s));
        EXPECT_EQ(bytes(pathOf(u"out"_s)), "his") << kind.word.data();
        EXPECT_EQ(files(), QStringList{u"out"_s}) << kind.word.data();
        QFile::remove(pathOf(u"out"_s));
    }
}

TEST_F(ExportsTest, AFullDiskLeavesNoFileInAnyForm)
{
    Transaction many(*database);
    for (int i = 0; i < 2000; ++i)
        addEmail(u"address number %1 of many"_s.arg(i * 7919));
    ASSERT_TRUE(many.commit());
    for (const ExportKind &kind : ExportKinds::all) {
        {
            const FullDisk full(4096);
            EXPECT_FALSE(exportAs(kind, u"out"_s)) << kind.word.data();
        }
        EXPECT_TRUE(files().isEmpty()) << kind.word.data() << ": " << qPrintable(files().join(u' '));
        EXPECT_TRUE(lastStatus().startsWith(u"Nothing exported: "_s)) << kind.word.data();
    }
}

TEST_F(ExportsTest, CancellingLeavesNoFile)
{
    for (const ExportKind &kind : ExportKinds::all) {
        cancelSoon();
        EXPECT_FALSE(exportAs(kind, u"out"_s));
        EXPECT_EQ(lastStatus(), u"Export cancelled"_s);
    }
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(ExportsTest, CancellingWhileTheFileIsBeingCompletedLeavesNoneEither)
{
    QObject::connect(&status, &StatusLine::told, &form, [this](const QString &text) {
        if (text == u"Exporting EmailAddress"_s) // the next events are let in once all rows have been written
            pump.after(0, [this] { pump.after(0, [this] { work.cancel(); }); });
    });
    for (const ExportKind &kind : ExportKinds::all) {
        if (kind.format == DataFormat::Saved)
            continue; // complete with its last row
        EXPECT_FALSE(exportAs(kind, u"out"_s)) << kind.word.data();
        EXPECT_EQ(lastStatus(), u"Export cancelled"_s);
    }
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(ExportsTest, TheBrowserShowsAnHtmlExportIfThatIsWanted)
{
    choose(u"EmailAddress"_s);
    exports.ExportRecordSet(Html);
    EXPECT_TRUE(browsers.running->navigated.isEmpty());
    form.options.chkSMD(0).setValue(1);
    exports.ExportRecordSet(Html);
    EXPECT_EQ(browsers.running->navigated, QStringList{u"file://"_s + pathOf(u"EmailAddress-1.htm"_s)});
}

TEST_F(ExportsTest, ARecordsetOverAFileThatIsThereIsAskedAbout)
{
    writeFile(u"rs"_s, "mine");
    Recordset rows = database->GetRecordset(u"SELECT Address FROM EmailAddress"_s);
    dialogs.answer = UserDialogs::Answer::No;
    exports.ExportRsToFile(rows, 1, pathOf(u"rs"_s));
    EXPECT_EQ(bytes(pathOf(u"rs"_s)), "mine");
    EXPECT_FALSE(rows.isNothing()) << "left as it was";
    ASSERT_EQ(dialogs.asked.size(), 1);
    EXPECT_EQ(dialogs.asked[0].title, u"FILE EXISTS"_s);
    EXPECT_EQ(dialogs.asked[0].text, pathOf(u"rs"_s) + u" Exists, overwrite?"_s);
    dialogs.answer = UserDialogs::Answer::Yes;
    exports.ExportRsToFile(rows, 1, pathOf(u"rs"_s));
    EXPECT_EQ(bytes(pathOf(u"rs"_s)), "a@b.com\r\nx,y\r\n\r\n");
    EXPECT_EQ(files(), QStringList{u"rs"_s});
}

TEST_F(ExportsTest, AReplacementThatFailsGivesTheOldFileBack)
{
    writeFile(u"rs"_s, "mine");
    Recordset rows = database->GetRecordset(u"SELECT Address FROM EmailAddress"_s);
    dialogs.answer = UserDialogs::Answer::Yes;
    {
        const FullDisk full(0);
        exports.ExportRsToFile(rows, 1, pathOf(u"rs"_s));
    }
    EXPECT_EQ(bytes(pathOf(u"rs"_s)), "mine");
    EXPECT_EQ(files(), QStringList{u"rs"_s});
    EXPECT_EQ(log.locations(), QStringList{u"Sub ExportRsToFile"_s});
}
