// Each form of an export to the byte.
#include "DataFixture.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {
const QByteArray mark = "\xEF\xBB\xBF";

class ExportFormsTest : public DataTest
{
  protected:
    ExportFormsTest()
    {
        addEmail(u"a@b.com"_s);
        addEmail(u"x,y"_s, u"5"_s, u"www.site.com/page.htm"_s);
    }
    /// What an export of the table in that form holds.
    [[nodiscard]] QByteArray exported(QStringView word, const QString &table = u"EmailAddress"_s)
    {
        const QString path = pathOf(u"out."_s + word.toString());
        EXPECT_TRUE(exports.exportTable({table, {}, {}}, *ExportKinds::ofWord(word), path)) << qPrintable(lastStatus());
        return bytes(path);
    }
    /// A member of an archive as text.
    [[nodiscard]] QString unzipped(const QString &name, const QString &member) const
    {
        const QString script = u"import sys,zipfile;"
                               "sys.stdout.buffer.write(zipfile.ZipFile(sys.argv[1]).read(sys.argv[2]))"_s;
        QProcess python;
        python.start(u"python3"_s, {u"-c"_s, script, pathOf(name), member});
        EXPECT_TRUE(python.waitForFinished(20'000));
        return QString::fromUtf8(python.readAllStandardOutput());
    }
};
} // namespace

TEST_F(ExportFormsTest, CommaTextPartsValuesAsTheyAreAndEndsWithOneMoreLineEnd)
{
    EXPECT_EQ(exported(u"comma"), "1,2024-05-01,1,a@b.com,http://a.com\r\n"
                                  "2,2024-05-01,5,x,y,www.site.com/page.htm\r\n\r\n");
}

TEST_F(ExportFormsTest, TabTextEndsEachValueInATabAndEachRowInABlankLine)
{
    EXPECT_EQ(exported(u"tab"), "1\t2024-05-01\t1\ta@b.com\thttp://a.com\t\r\n\r\n"
                                "2\t2024-05-01\t5\tx,y\twww.site.com/page.htm\t\r\n\r\n");
}

TEST_F(ExportFormsTest, ACellHoldingAnAddressWithoutProtocolBecomesALinkInHtml)
{
    EXPECT_EQ(exported(u"html"),
              mark + "<HTML><TABLE Border=1><TR><TD>\r\n"
                     "<TD>1\t<TD>2024-05-01\t<TD>1\t<TD>a@b.com\t"
                     "<TD><A Href=\"http://a.com\">http://a.com</A><TR><TD>\r\n\r\n"
                     "<TD>2\t<TD>2024-05-01\t<TD>5\t<TD>x,y\t"
                     "<TD><A Href=\"http://www.site.com/page.htm\">http://www.site.com/page.htm</A><TR><TD>\r\n\r\n"
                     "</TABLE></HTML>\r\n");
}

TEST_F(ExportFormsTest, CsvIsQuotedHasHeadsAndRunsNoFormula)
{
    addEmail(u"=1+1"_s, u"-7"_s, u"say \"hi\"\r\nthere"_s);
    addEmail(u"-12.5e3"_s, u"0"_s, u"@sum"_s);
    addEmail(u"+49 30"_s, u"0"_s, u"\tx"_s);
    EXPECT_EQ(exported(u"csv"), mark + "Index,Date,SSIndex,Address,Url\r\n"
                                       "1,2024-05-01,1,a@b.com,http://a.com\r\n"
                                       "2,2024-05-01,5,\"x,y\",www.site.com/page.htm\r\n"
                                       "3,2024-05-01,-7,'=1+1,\"say \"\"hi\"\"\r\nthere\"\r\n"
                                       "4,2024-05-01,0,-12.5e3,'@sum\r\n"
                                       "5,2024-05-01,0,'+49 30,'\tx\r\n");
}

TEST_F(ExportFormsTest, JsonLinesAreOneObjectARowInTheOrderOfTheColumns)
{
    addEmail(u"\"q\"\u00e9"_s, u"0"_s, {});
    const QList<QByteArray> lines = exported(u"jsonl").split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0], R"({"Index":1,"Date":"2024-05-01","SSIndex":1,"Address":"a@b.com","Url":"http://a.com"})");
    EXPECT_EQ(lines[2],
              "{\"Index\":3,\"Date\":\"2024-05-01\",\"SSIndex\":0,\"Address\":\"\\\"q\\\"\xC3\xA9\",\"Url\":\"\"}");
}

TEST_F(ExportFormsTest, JsonIsReadBackByAnyReader)
{
    const QString odd = u"a\"b\\c\r\n\t\u0001\u00e9\U0001F600/</script>"_s;
    const DataColumns columns{{u"T\"x"_s, 130}, {u"N"_s, 3}, {u"D"_s, 5}, {u"B"_s, 11}, {u"P"_s, 205}, {u"Z"_s, 130}};
    const auto writer = RowWriters::text(DataFormat::JsonLines, pathOf(u"odd.jsonl"_s), columns);
    writer->row({odd, qlonglong(-7), 1.5, true, QByteArray("\x00\xff", 2), QVariant()});
    writer->complete();
    writer->finish();
    const QJsonObject read = QJsonDocument::fromJson(bytes(pathOf(u"odd.jsonl"_s))).object();
    EXPECT_EQ(read.value(u"T\"x"_s).toString(), odd);
    EXPECT_EQ(read.value(u"N"_s).toInt(), -7);
    EXPECT_EQ(read.value(u"D"_s).toDouble(), 1.5);
    EXPECT_TRUE(read.value(u"B"_s).toBool());
    EXPECT_EQ(read.value(u"P"_s).toString(), u"AP8="_s);
    EXPECT_TRUE(read.value(u"Z"_s).isNull());
}

TEST_F(ExportFormsTest, ASpreadsheetHoldsTextsNumbersAndDatesAndNoFormula)
{
    addEmail(u"=SUM(A1)"_s);
    static_cast<void>(exported(u"xlsx"));
    const QString sheet = unzipped(u"out.xlsx"_s, u"xl/worksheets/sheet1.xml"_s);
    EXPECT_FALSE(sheet.contains(u"<f>"_s));
    EXPECT_TRUE(sheet.contains(u"<t>=SUM(A1)</t>"_s)) << qPrintable(sheet);
    EXPECT_TRUE(sheet.contains(u"<c r=\"A2\"><v>1</v></c>"_s)) << "numbers are numbers";
    EXPECT_TRUE(sheet.contains(u"<v>45413</v>"_s)) << "2024-05-01 is a date";
    EXPECT_TRUE(sheet.contains(u"<t>Address</t>"_s)) << "heads";
}

TEST_F(ExportFormsTest, TextsTooLongForACellAreCutAndCounted)
{
    const auto writer = RowWriters::spreadsheet(pathOf(u"long.xlsx"_s), u"T"_s, {{u"FullPage"_s, 203}});
    writer->row({QVariant(QString(40'000, u'x'))});
    writer->row({QVariant(QString(32'766, u'x') + u"\U0001F600"_s)});
    writer->complete();
    writer->finish();
    EXPECT_EQ(writer->cutTexts(), 2);
    const QString sheet = unzipped(u"long.xlsx"_s, u"xl/worksheets/sheet1.xml"_s);
    EXPECT_TRUE(sheet.contains(u"<t>"_s + QString(32'767, u'x') + u"</t>"_s));
    EXPECT_TRUE(sheet.contains(u"<t>"_s + QString(32'766, u'x') + u"</t>"_s)) << "no half character";
}

TEST_F(ExportFormsTest, MoreRowsThanASheetHoldsGoOnInANextOne)
{
    const auto writer = RowWriters::spreadsheet(pathOf(u"many.xlsx"_s), u"T"_s, {{u"N"_s, 3}});
    for (qlonglong row = 0; row < 1'048'576; ++row)
        writer->row({QVariant(row)});
    writer->complete();
    writer->finish();
    const QString second = unzipped(u"many.xlsx"_s, u"xl/worksheets/sheet2.xml"_s);
    EXPECT_EQ(second.count(u"<row "_s), 2) << "heads, and the one row too many";
    EXPECT_TRUE(second.contains(u"<v>1048575</v>"_s));
}

TEST_F(ExportFormsTest, ADatabaseCopyHoldsAllColumnsAndCanBeReadAgain)
{
    addRow(*database, u"SiteSummary"_s, {{u"Title"_s, u"T"_s}, {u"FullPage"_s, u"<html>"_s}});
    static_cast<void>(exported(u"sqlite", u"SiteSummary"_s));
    Recordset rows = database->GetRecordSetFromExternalDB(pathOf(u"out.sqlite"_s), u"SELECT * FROM SiteSummary"_s);
    ASSERT_FALSE(rows.isNothing());
    EXPECT_EQ(rows.Fields().Count(), 6);
    EXPECT_EQ(FixNull(rows.Fields()["FullPage"_L1]), u"<html>"_s);
    EXPECT_EQ(rows.Fields()["Date"_L1].Type(), 7);
    EXPECT_FALSE(rows.Fields()["Picture"_L1].Value().isValid());
}

TEST_F(ExportFormsTest, TheFiveKindsOfARecordsetToAFile)
{
    addRow(*database, u"SiteSummary"_s, {{u"Title"_s, u"T"_s}});
    const std::pair<int, QByteArray> kinds[] = {
        {1, "1,T,\r\n\r\n"},
        {2, mark + "<HTML><TABLE Border=1><TR><TD>1<TD>T<TD>N/A\r\n<TR><TD></TABLE></HTML>\r\n"},
        {3, "1\tT\t\t\r\n\r\n"}};
    for (const auto &[kind, expected] : kinds) {
        Recordset rows = database->GetRecordset(u"SELECT Index,Title,Picture FROM SiteSummary"_s);
        exports.ExportRsToFile(rows, kind, pathOf(u"rs%1"_s.arg(kind)));
        EXPECT_EQ(bytes(pathOf(u"rs%1"_s.arg(kind))), expected);
        EXPECT_TRUE(rows.isNothing()) << "the reference is cleared";
    }
    for (const int kind : {0, 4}) {
        Recordset rows = database->GetRecordset(u"SELECT Index,Title FROM SiteSummary"_s);
        exports.ExportRsToFile(rows, kind, pathOf(u"rs%1"_s.arg(kind)));
        EXPECT_EQ(Recordset::open(pathOf(u"rs%1"_s.arg(kind))).RecordCount(), 1);
    }
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST(CellsTest, NumbersAreWhatAStatementHolds)
{
    for (const QString &number : {u"5"_s, u"-1"_s, u"+.5"_s, u"1."_s, u"2e10"_s, u"007"_s})
        EXPECT_TRUE(Cells::isNumber(number)) << qPrintable(number);
    for (const QString &text : {u""_s, u"1,000"_s, u"5 "_s, u"."_s, u"-"_s, u"nan"_s, u"1e"_s, u"&H1"_s, u"5\n"_s})
        EXPECT_FALSE(Cells::isNumber(text)) << qPrintable(text);
}
