// The matrix of expected names: how names are cleaned, where "Index" comes from, and the limits.
#include "StoreFixture.h"
#include "store/AdoErrors.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {
class MatrixTest : public StoreTest
{
  protected:
    cAdoMdb mDatabase{mLog};
};
} // namespace

TEST_F(MatrixTest, TheFiftyFirstTableIsLoggedAndNotAdded)
{
    for (int number = 1; number <= 50; ++number)
        EXPECT_TRUE(mDatabase.Tables_AddItem(u"T%1"_s.arg(number)));
    EXPECT_FALSE(mDatabase.Tables_AddItem(u"T51"_s));
    EXPECT_EQ(mDatabase.Tables_Count(), 50);
    ASSERT_EQ(mLog.entries.size(), 1);
    EXPECT_EQ(mLog.entries[0].number, -2147221400);
    EXPECT_EQ(mLog.entries[0].description, u"Maximum number of Tables 50 exceeded!"_s);
    EXPECT_EQ(mLog.entries[0].module, u"cAdoMdb"_s);
    EXPECT_EQ(mLog.entries[0].location, u"Sub Tables_AddItem"_s);
}

TEST_F(MatrixTest, TheHundredAndFirstFieldIsLoggedAndNotAdded)
{
    mDatabase.Tables_AddItem(u"T"_s);
    for (int number = 1; number <= 99; ++number)
        mDatabase.Fields_AddItem(u"F%1"_s.arg(number), 0, u""_s);
    EXPECT_EQ(mDatabase.Fields_Count(0, u""_s), 100);
    mDatabase.Fields_AddItem(u"F100"_s, 0, u""_s);
    EXPECT_EQ(mDatabase.Fields_Count(0, u""_s), 100);
    ASSERT_EQ(mLog.entries.size(), 1);
    EXPECT_EQ(mLog.entries[0].number, -2147221399);
    EXPECT_EQ(mLog.entries[0].description, u"Maximum number of Fields 100 exceeded!"_s);
}

TEST_F(MatrixTest, IndexCannotBeAddedAndComesFirstByItself)
{
    mDatabase.Tables_AddItem(u"T"_s);
    mDatabase.Fields_AddItem(u"INDEX"_s, 0, u""_s);
    EXPECT_EQ(mDatabase.Fields_Count(0, u""_s), 0);
    mDatabase.Fields_AddItem(u"Url"_s, -1, u"T"_s);
    EXPECT_EQ(mDatabase.Fields_ListItem(1, u""_s, 0, u""_s), u"Index"_s);
    EXPECT_EQ(mDatabase.Fields_ListItem(2, u""_s, 0, u""_s), u"Url"_s);
    EXPECT_EQ(mDatabase.Fields_Count(0, u""_s), 2);
    EXPECT_TRUE(mLog.entries.isEmpty());
}

TEST_F(MatrixTest, AFieldThatDiffersOnlyInCaseIsDropped)
{
    mDatabase.Tables_AddItem(u"T"_s);
    mDatabase.Fields_AddItem(u"Url"_s, 0, u""_s);
    mDatabase.Fields_AddItem(u"URL"_s, 0, u""_s);
    EXPECT_EQ(mDatabase.Fields_Count(0, u""_s), 2);
    EXPECT_EQ(mDatabase.Fields_ListItem(0, u"uRL"_s, 0, u""_s), u"2"_s);
}

TEST_F(MatrixTest, NamesKeepLettersDigitsHyphensAndUnderlinesOnly)
{
    EXPECT_TRUE(mDatabase.Tables_AddItem(u"My Table#1"_s));
    EXPECT_EQ(mDatabase.Tables_ListItem(0, u""_s), u"MyTable1"_s);
    mDatabase.Fields_AddItem(u"Ürl-1_ x'"_s, 0, u""_s);
    EXPECT_EQ(mDatabase.Fields_ListItem(2, u""_s, 0, u""_s), u"rl-1_x"_s);
    EXPECT_EQ(LetterAndNumbersOnly(u"a b#c"_s, false), u"a bc"_s);
    EXPECT_FALSE(mDatabase.Tables_AddItem(u"mytable1"_s));
    EXPECT_FALSE(mDatabase.Tables_AddItem(u"#!"_s)) << "nothing of the name is kept";
    EXPECT_FALSE(mDatabase.Tables_AddItem(u""_s));
    EXPECT_EQ(mDatabase.Tables_Count(), 1);
}

TEST_F(MatrixTest, ATableIsFoundByItsNameWithRegardToCaseOrByItsIndex)
{
    TableFieldMatrix matrix;
    matrix.addTable(u"One"_s);
    matrix.addTable(u"Two"_s);
    EXPECT_EQ(matrix.rowOf(-1, u" Two "_s), 1);
    EXPECT_EQ(matrix.rowOf(0, u"two"_s), -1) << "a name that is not found does not fall back to the index";
    EXPECT_EQ(matrix.rowOf(1, u"  "_s), 1);
    EXPECT_EQ(matrix.rowOf(2, u""_s), -1);
    EXPECT_EQ(matrix.rowOf(-1, u""_s), -1);
    EXPECT_EQ(matrix.tableItem(0, u"TWO"_s), u"1"_s);
    EXPECT_EQ(matrix.tableItem(0, u"Three"_s), u""_s);
    EXPECT_EQ(matrix.tableItem(2, u""_s), u""_s);
    EXPECT_EQ(matrix.tableItem(3, u""_s), u""_s);
}

TEST_F(MatrixTest, ATableThatIsTakenOutTakesThoseBehindItAlong)
{
    TableFieldMatrix matrix;
    for (const char16_t *name : {u"A", u"B", u"C", u"D"})
        matrix.addTable(QString::fromUtf16(name));
    EXPECT_FALSE(matrix.removeTable(u""_s));
    EXPECT_FALSE(matrix.removeTable(u"E"_s));
    EXPECT_TRUE(matrix.removeTable(u"c"_s));
    EXPECT_EQ(matrix.tableCount(), 2);
    EXPECT_TRUE(matrix.addTable(u"C"_s));
    EXPECT_THROW(matrix.addTable(u"D"_s), RuntimeError) << "the matrix has shrunk";
}

TEST_F(MatrixTest, OfTablesOfOneNameTheFirstIsTakenOutWithAllBehindIt)
{
    TableFieldMatrix matrix;
    matrix.replace({{u"A"_s, u"x"_s}, {u"B"_s}, {u"C"_s}, {u"b"_s}});
    EXPECT_TRUE(matrix.removeTable(u"b"_s));
    EXPECT_EQ(matrix.tableCount(), 1);
    EXPECT_EQ(matrix.fieldsOf(0), QStringList{u"x"_s});
    matrix.addField(u"y"_s, 0, u""_s);
    EXPECT_EQ(matrix.fieldsOf(0), (QStringList{u"x"_s, u"Index"_s, u"y"_s})) << "the rows are wide again";
}

TEST_F(MatrixTest, AMatrixFromAFileIsAsWideAsItsWidestTable)
{
    TableFieldMatrix matrix;
    matrix.replace({{u"A"_s, u"Index"_s, u"x"_s}, {u"B"_s, u"Index"_s}});
    matrix.addField(u"y"_s, 1, u""_s);
    EXPECT_EQ(matrix.fieldCount(1, u""_s), 2);
    EXPECT_THROW(matrix.addField(u"y"_s, 0, u""_s), RuntimeError);
    EXPECT_THROW(matrix.addTable(u"C"_s), RuntimeError);
}

TEST_F(MatrixTest, AClearedMatrixIsEmptyAndUsable)
{
    declareSchema(mDatabase);
    mDatabase.Tables_Clear();
    EXPECT_EQ(mDatabase.Tables_Count(), 0);
    EXPECT_TRUE(mDatabase.Tables_AddItem(u"T"_s));
}

TEST_F(MatrixTest, TheConnectionTypeTakesFourToEightAndTellsOfIt)
{
    QList<int> told;
    QObject::connect(&mDatabase, &cAdoMdb::ConnectionTypeChanged, &mDatabase, [&](int type) { told.append(type); });
    EXPECT_EQ(mDatabase.ConnectionType(), 4);
    mDatabase.setConnectionType(3);
    mDatabase.setConnectionType(9);
    mDatabase.setConnectionType(8);
    EXPECT_EQ(mDatabase.ConnectionType(), 8);
    EXPECT_EQ(told, QList<int>{8});
}

namespace {
struct ListFileCase
{
    const char *what;
    QByteArray text;
    QList<QStringList> tables;
};

class TableListFileTest : public MatrixTest, public testing::WithParamInterface<ListFileCase>
{
};
} // namespace

TEST_P(TableListFileTest, GivesItsTables)
{
    QFile file(pathOf(u"TableFld.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(GetParam().text);
    file.close();
    mDatabase.Tables_AddItem(u"Old"_s);
    mDatabase.LoadTableFieldListFile(file.fileName());
    QList<QStringList> tables;
    for (int table = 0; table < mDatabase.Tables_Count(); ++table) {
        QStringList row{mDatabase.Tables_ListItem(table, u""_s)};
        for (int field = 1; field <= mDatabase.Fields_Count(table, u""_s); ++field)
            row.append(mDatabase.Fields_ListItem(field, u""_s, table, u""_s));
        tables.append(row);
    }
    EXPECT_EQ(tables, GetParam().tables);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, TableListFileTest,
    testing::Values(
        ListFileCase{"twoTables", "[A]\r\nx\r\ny\r\n[B]\r\nz\r\n", {{u"A"_s, u"x"_s, u"y"_s}, {u"B"_s, u"z"_s}}},
        ListFileCase{"aTableWithoutFields", "[A]\r\n[B]\r\nz\r\n", {{u"A"_s}, {u"B"_s, u"z"_s}}},
        ListFileCase{"onlyATableWithoutFields", "[A]", {{u"A"_s}}},
        ListFileCase{"blankLinesAndTextInFront", "junk\r\n[A]\r\n\r\n   \r\nx\r\n", {{u"A"_s, u"x"_s}}},
        ListFileCase{"loneLineFeeds", "[A]\nx\ny\n[B]\nz", {{u"A"_s, u"x"_s, u"y"_s}, {u"B"_s, u"z"_s}}},
        ListFileCase{"loneCarriageReturns", "[A]\rx\ry\r", {{u"A"_s, u"x"_s, u"y"_s}}},
        ListFileCase{"aTableWithoutNameFirst", "[]\r\nx\r\n[B]\r\nz\r\n", {{u"B"_s, u"z"_s}}},
        ListFileCase{
            "aTableWithoutNameBetween", "[A]\r\nx\r\n[]\r\ny\r\n[C]\r\nz\r\n", {{u"A"_s, u"x"_s}, {u"C"_s, u"z"_s}}},
        ListFileCase{"onlyATableWithoutName", "[]\r\nx\r\n", {}},
        ListFileCase{"aNameOfBlanks", "[ ]\r\nx\r\n[B]\r\nz\r\n", {{u" "_s, u"x"_s}, {u"B"_s, u"z"_s}}},
        ListFileCase{"noBracket", "A\r\nx\r\n", {}}, ListFileCase{"neverClosed", "]A[\r\nx", {}},
        ListFileCase{"empty", "", {}}),
    [](const auto &row) { return std::string(row.param.what); });

TEST_F(MatrixTest, AMissingTableListFileEmptiesTheMatrix)
{
    mDatabase.Tables_AddItem(u"Old"_s);
    mDatabase.LoadTableFieldListFile(pathOf(u"none.txt"_s));
    EXPECT_EQ(mDatabase.Tables_Count(), 0);
    EXPECT_TRUE(mLog.entries.isEmpty());
}

TEST_F(MatrixTest, TheTableListFileHasAUsualName)
{
    QFile file(pathOf(u"TableFld.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[A]\r\nx\r\n");
    file.close();
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(mFolder.path()));
    mDatabase.LoadTableFieldListFile();
    QDir::setCurrent(before);
    EXPECT_EQ(mDatabase.Tables_ListItem(0, u""_s), u"A"_s);
}

TEST_F(MatrixTest, ATableListFileWithABracketThatIsNeverClosedIsAnError)
{
    QFile file(pathOf(u"list.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[A]\r\nx\r\n[B\r\ny\r\n");
    file.close();
    mDatabase.Tables_AddItem(u"Old"_s);
    mDatabase.LoadTableFieldListFile(file.fileName());
    EXPECT_EQ(mDatabase.Tables_Count(), 0);
    EXPECT_TRUE(mLog.holds(5, "Sub LoadTableFieldListFile"_L1)) << mLog.text();
}
