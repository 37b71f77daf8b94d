// The grid of the Data tab: tables, rows, filter, widths, order, deleting, loading of a saved recordset.
#include "DataSideFixture.h"
#include "util/RandomText.h"

#include <QDeadlineTimer>
#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
class DataViewTest : public DataSideTest
{
};
} // namespace

TEST_F(DataViewTest, TheTablesOfTheListsOnShowCanBeChosenAndNoOthers)
{
    form.lists.cboMNList.setListIndex(1);
    form.saved.cboANList.setListIndex(4);
    EXPECT_EQ(tables(), (QStringList{u"SiteSummary"_s, u"EmailAddress"_s, u"PhoneNumber"_s, u"MNUrlsB"_s, u"RPgUrlsE"_s,
                                     u"PassUrlsE"_s, u"ANSelectUrls"_s, u"MNSelectUrls"_s}));
    EXPECT_EQ(form.data.cboDBTables.listIndex(), -1);
}

TEST_F(DataViewTest, AnEmptyTableGivesNoughtRecordsAndAGridWithHeadsOnly)
{
    chooseTable(u"EmailAddress"_s);
    EXPECT_EQ(lastStatus(), u"0 records"_s);
    EXPECT_EQ(grid().rows(), 0);
    EXPECT_EQ(grid().cols(), 5);
    EXPECT_EQ(form.data.cboDBFields.items(),
              (QStringList{u"Index"_s, u"Date"_s, u"SSIndex"_s, u"Address"_s, u"Url"_s}));
}

TEST_F(DataViewTest, EachKeystrokeFiltersIfAFieldIsChosen)
{
    addEmail(u"Ann@B.com"_s, u"15"_s);
    addEmail(u"bob@b.com"_s, u"7"_s);
    chooseTable(u"EmailAddress"_s);
    form.data.txtDBQuery.setText(u"bob"_s);
    EXPECT_EQ(grid().rows(), 2) << "no field is chosen";
    chooseField(u"Address"_s);
    form.data.txtDBQuery.setText(u"ann"_s);
    EXPECT_EQ(shown(3), QStringList{u"Ann@B.com"_s});
    EXPECT_EQ(lastStatus(), u"1 records"_s);
    EXPECT_EQ(form.data.cboDBFields.list(form.data.cboDBFields.listIndex()), u"Address"_s);
    form.data.txtDBQuery.setText({});
    EXPECT_EQ(grid().rows(), 2);
    chooseField(u"SSIndex"_s);
    form.data.txtDBQuery.setText(u"5"_s);
    EXPECT_EQ(shown(2), QStringList{u"15"_s}) << "a number is looked for as a text";
    chooseField(u"Date"_s);
    form.data.txtDBQuery.setText(u"2024"_s);
    EXPECT_EQ(grid().rows(), 2);
}

TEST_F(DataViewTest, PercentSignsAreWildcardsBracketsThemselvesAndCaseOfNoLetterCounts)
{
    addEmail(u"[x] \u00C9t\u00C9"_s);
    addEmail(u"abc"_s);
    chooseTable(u"EmailAddress"_s);
    chooseField(u"Address"_s);
    const std::pair<QString, int> filters[] = {{u"[x]"_s, 1}, {u"\u00e9t\u00e9"_s, 1}, {u"a%c"_s, 1}, {u"a_c"_s, 1},
                                               {u"%"_s, 2},   {u"[ab]"_s, 0}};
    for (const auto &[filter, rows] : filters) {
        form.data.txtDBQuery.setText(filter);
        EXPECT_EQ(grid().rows(), rows) << qPrintable(filter);
    }
}

TEST_F(DataViewTest, TheTextContainsUntilTheUserWantsItToBeginOrToEqual)
{
    for (const QString &address : {u"ann@b.com"_s, u"joann@b.com"_s, u"ANN"_s})
        addEmail(address);
    chooseTable(u"EmailAddress"_s);
    form.data.cboDBPlace.setListIndex(1);
    EXPECT_EQ(grid().rows(), 3) << "without a field there is nothing to place";
    chooseField(u"Address"_s);
    form.data.cboDBPlace.setListIndex(0);
    form.data.txtDBQuery.setText(u"ann"_s);
    EXPECT_EQ(grid().rows(), 3);
    form.data.cboDBPlace.setListIndex(1);
    EXPECT_EQ(shown(3), (QStringList{u"ann@b.com"_s, u"ANN"_s}));
    form.data.cboDBPlace.setListIndex(2);
    EXPECT_EQ(shown(3), QStringList{u"ANN"_s});
    EXPECT_EQ(lastStatus(), u"1 records"_s);
    form.data.txtDBQuery.setText(u"%n"_s);
    EXPECT_EQ(grid().rows(), 1) << "wildcards stay what they are";
}

TEST_F(DataViewTest, AFilterWithAQuoteLeavesTheGridAsItWas)
{
    addEmail(u"o'neil"_s);
    addEmail(u"x"_s);
    chooseTable(u"EmailAddress"_s);
    chooseField(u"Address"_s);
    form.data.txtDBQuery.setText(u"o"_s);
    const auto before = grid().dataSource();
    form.data.txtDBQuery.setText(u"o'"_s);
    EXPECT_EQ(grid().dataSource(), before);
    EXPECT_NE(lastStatus(), u"1 records"_s);
}

TEST_F(DataViewTest, ColumnsAreAsWideAsTheirNamesSay)
{
    chooseTable(u"PhoneNumber"_s);
    const int widths[] = {700, 1100, 830, 1200, 500, 3400};
    for (int column = 0; column < 6; ++column)
        EXPECT_EQ(grid().colWidth(column), widths[column]) << column;
    chooseTable(u"MNUrlsA"_s);
    EXPECT_EQ(grid().colWidth(2), 3400) << "LastUrl is as wide as the column before it";
}

TEST_F(DataViewTest, TheFieldBoxKeepsItsIndexIfTheNewTableHasEnoughColumns)
{
    chooseTable(u"SiteSummary"_s);
    form.data.cboDBFields.setListIndex(2);
    chooseTable(u"MNUrlsA"_s);
    EXPECT_EQ(form.data.cboDBFields.listIndex(), 2);
    chooseTable(u"SiteSummary"_s);
    form.data.cboDBFields.setListIndex(5);
    chooseTable(u"MNUrlsA"_s);
    EXPECT_EQ(form.data.cboDBFields.listIndex(), -1);
}

TEST_F(DataViewTest, ANewListKeepsTheRowsOnShowAndClearsTheChoice)
{
    addEmail(u"a"_s);
    chooseTable(u"EmailAddress"_s);
    form.lists.cboMNList.setListIndex(2);
    EXPECT_EQ(form.data.cboDBTables.listIndex(), -1);
    EXPECT_EQ(grid().rows(), 1);
    form.data.txtDBQuery.setText(u"zzz"_s);
    EXPECT_EQ(grid().rows(), 1) << "without a table nothing is loaded";
}

TEST_F(DataViewTest, SelectedRowsAreDeletedByTheirIndexAndTheGridLoadsAnew)
{
    addUrls(u"MNUrlsA"_s, 5);
    chooseTable(u"MNUrlsA"_s);
    grid().select(1, 0, {1, 0, 3, 0});
    side.view.deleteSelected();
    EXPECT_EQ(lastStatus(), u"Index 2,3,4 deleted"_s);
    EXPECT_EQ(shown(0), (QStringList{u"1"_s, u"5"_s}));
    EXPECT_EQ(side.view.table(), u"MNUrlsA"_s);
    grid().select(0, 0);
    side.view.deleteSelected();
    EXPECT_EQ(lastStatus(), u"Index 1 deleted"_s);
}

TEST_F(DataViewTest, ASelectionWhoseFirstCellIsNoNumberDeletesNothing)
{
    addUrls(u"MNUrlsA"_s, 2);
    chooseTable(u"MNUrlsA"_s);
    grid().select(0, 0, {0, 0, 1, 1});
    side.view.deleteSelected();
    EXPECT_EQ(lastStatus(), u"Nothing deleted (Select Index field)"_s);
    const qsizetype told = statuses.size();
    grid().select(0, 1);
    side.view.deleteSelected();
    EXPECT_EQ(statuses.size(), told) << "only the first column may be used";
    EXPECT_EQ(values(u"MNUrlsA"_s, u"Url"_s).size(), 2);
}

TEST_F(DataViewTest, ADeletionThatTheFileRefusesIsNotReportedAsDone)
{
    addUrls(u"MNUrlsA"_s, 2);
    chooseTable(u"MNUrlsA"_s);
    grid().select(0, 0);
    QFile::remove(database->DatabasePath());
    side.view.deleteSelected();
    EXPECT_TRUE(lastStatus().startsWith(u"Nothing deleted. "_s)) << qPrintable(lastStatus());
}

TEST_F(DataViewTest, AClickOnAHeadSortsUpThenDownThenNotAndANewTableNotAtAll)
{
    for (const QString &address : {u"b"_s, u"C"_s, u"a"_s})
        addEmail(address);
    chooseTable(u"EmailAddress"_s);
    const QStringList orders[] = {{u"a"_s, u"b"_s, u"C"_s}, {u"C"_s, u"b"_s, u"a"_s}, {u"b"_s, u"C"_s, u"a"_s}};
    const SortMark marks[] = {{3, Qt::AscendingOrder}, {3, Qt::DescendingOrder}, {}};
    for (int click = 0; click < 3; ++click) {
        grid().clickHead(3);
        EXPECT_EQ(shown(3), orders[click]);
        EXPECT_EQ(grid().sortMark(), marks[click]);
    }
    grid().clickHead(3);
    chooseField(u"Address"_s);
    form.data.txtDBQuery.setText(u"%"_s);
    EXPECT_EQ(shown(3), orders[0]) << "the filter keeps the order";
    form.data.cboDBTables.setListIndex(-1);
    grid().clickHead(3);
    EXPECT_EQ(shown(3), orders[0]) << "without a table nothing happens";
    chooseTable(u"EmailAddress"_s);
    EXPECT_EQ(shown(3), orders[2]);
}

namespace {
/// A table that is not shown at once.
class LargeTable : public DataViewTest
{
  protected:
    static constexpr int count = 1'000'000;
    LargeTable()
    {
        SQLite::Database file(database->DatabasePath().toStdString(), SQLite::OPEN_READWRITE);
        SQLite::Statement rows(file, "WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM n WHERE x<?) "
                                     "INSERT INTO EmailAddress(Address,Url) SELECT 'a'||((x*7919)%1000003)||'@b.com', "
                                     "'u'||((x*104729)%1000003) FROM n");
        rows.bind(1, count);
        rows.exec();
        chooseTable(u"EmailAddress"_s);
    }
    /// The rows have arrived, however slow the machine is.
    [[nodiscard]] bool wait(const QString &wanted)
    {
        const QDeadlineTimer patience(30'000);
        while (lastStatus() != wanted && !patience.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        return lastStatus() == wanted;
    }
};
} // namespace

TEST_F(LargeTable, IsFilteredAndSortedInTurnsAndTheNextKeystrokeDropsWhatIsComing)
{
    EXPECT_EQ(lastStatus(), u"1000000 records"_s) << "all of a table is a quick count";
    chooseField(u"Address"_s);
    for (const QString &text : {u"a"_s, u"a9"_s, u"a999"_s})
        form.data.txtDBQuery.setText(text);
    const int wanted = SQLite::Database(database->DatabasePath().toStdString())
                           .execAndGet("SELECT count(*) FROM EmailAddress WHERE Address LIKE '%a999%'")
                           .getInt();
    EXPECT_TRUE(wait(u"%1 records"_s.arg(wanted))) << qPrintable(lastStatus());
    EXPECT_EQ(grid().rows(), wanted);
    grid().clickHead(3);
    EXPECT_TRUE(wait(u"%1 records"_s.arg(wanted)));
    EXPECT_EQ(grid().sortMark(), (SortMark{3, Qt::AscendingOrder}));
    QStringList sorted = shown(3);
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(shown(3), sorted);
}

TEST_F(LargeTable, ASortThatIsGivenUpLeavesTheOrderThatWas)
{
    const auto before = grid().dataSource();
    for (int turn = 0; turn < 3; ++turn) {
        statuses.clear();
        grid().clickHead(4);
        ASSERT_EQ(lastStatus(), u"Please Wait"_s);
        EXPECT_EQ(grid().dataSource(), before) << "nothing half sorted is shown";
        side.view.giveUpSorting();
        EXPECT_EQ(lastStatus(), u"Cancelled"_s);
        EXPECT_EQ(grid().sortMark(), SortMark());
    }
    side.view.giveUpSorting();
    EXPECT_EQ(statuses.count(u"Cancelled"_s), 1) << "nothing is coming any more";
    EXPECT_EQ(grid().rows(), count);
}

TEST_F(LargeTable, ASortIsDroppedWithTheChoiceOfItsTable)
{
    const auto before = grid().dataSource();
    grid().clickHead(4);
    side.view.LoadTableSelectData();
    for (int i = 0; i < 50; ++i)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    EXPECT_TRUE(grid().dataSource() == before || lastStatus() == u"1000000 records"_s);
}

TEST_F(DataViewTest, ReloadingASavedRecordsetLeavesNoTableChosen)
{
    addEmail(u"a@b.com"_s);
    chooseTable(u"EmailAddress"_s);
    side.exports.ExportRecordSet(4);
    addEmail(u"later"_s);
    dialogs.fileAnswer = pathOf(u"EmailAddress-0.dat"_s);
    clickItem(form.menus.mnuPopUpDBStatus, "mnuDBStatusReLoadRSFile");
    ASSERT_EQ(dialogs.files.size(), 1);
    EXPECT_EQ(dialogs.files[0].title, u"Select File"_s);
    EXPECT_EQ(dialogs.files[0].text, u"Dat Files (*.dat)|*.dat|"_s);
    EXPECT_EQ(form.data.cboDBTables.listIndex(), -1);
    EXPECT_EQ(form.data.cboDBFields.listCount(), 0);
    EXPECT_EQ(shown(3), QStringList{u"a@b.com"_s});
    EXPECT_EQ(grid().colWidth(0), -1) << "the grid's own widths";
    form.menus.mnuPopUpDBStatus.prepare();
    EXPECT_FALSE(form.menus.mnuPopUpDBStatus.item("mnuDBStatusExportTable"_L1).isEnabled());
}

TEST_F(DataViewTest, HostileFilesAreAMessageAndLeaveTheGrid)
{
    addEmail(u"a"_s);
    chooseTable(u"EmailAddress"_s);
    const auto before = grid().dataSource();
    const QByteArray hostile[] = {"",
                                  "no recordset",
                                  "SQLite format 3",
                                  QByteArray("SQLite format 3\0", 16) + QByteArray(4080, '\xff'),
                                  "<xml",
                                  QByteArray(100'000, '<'),
                                  bytes(database->DatabasePath())};
    for (const QByteArray &content : hostile) {
        writeFile(u"bad.dat"_s, content);
        const auto logged = log.entries.size();
        side.view.showSaved(pathOf(u"bad.dat"_s));
        EXPECT_EQ(log.entries.size(), logged + 1);
        EXPECT_TRUE(lastStatus().startsWith(u"Not loaded: "_s)) << qPrintable(lastStatus());
        EXPECT_EQ(grid().dataSource(), before);
        EXPECT_EQ(side.view.table(), u"EmailAddress"_s);
    }
    side.view.showSaved(pathOf(u"missing.dat"_s));
    EXPECT_TRUE(lastStatus().startsWith(u"Not loaded: "_s));
}

TEST_F(DataViewTest, AFileThatGivesRowsOfItsOwnMakingIsRefused)
{
    const char *const schemas[] = {
        // Rows without end, under every name of a row's number.
        "CREATE TABLE t(x); INSERT INTO t VALUES(1),(2),(3),(4),(5),(6),(7),(8),(9),(10);"
        "CREATE VIEW Recordset(rowid,_rowid_,oid,x) AS SELECT 1,1,1,a.x FROM t a,t b,t c,t d,t e,t f,t g,t h,t i,t j",
        "CREATE VIEW Recordset AS WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM n) SELECT x FROM n",
        "CREATE TABLE Other(x)", "CREATE TABLE Recordset(k TEXT PRIMARY KEY) WITHOUT ROWID"};
    for (const char *const schema : schemas) {
        QFile::remove(pathOf(u"made.dat"_s));
        SQLite::Database(pathOf(u"made.dat"_s).toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
            .exec(std::string("PRAGMA application_id=1414681171;") + schema);
        const auto before = grid().dataSource();
        side.view.showSaved(pathOf(u"made.dat"_s));
        EXPECT_TRUE(lastStatus().startsWith(u"Not loaded: "_s)) << schema << qPrintable(lastStatus());
        EXPECT_EQ(grid().dataSource(), before);
    }
}

TEST_F(DataViewTest, ASavedFileWithAnyByteChangedOrItsEndMissingIsShownOrRefused)
{
    for (int i = 0; i < 60; ++i)
        addEmail(u"ann%1@b.com"_s.arg(i));
    chooseTable(u"EmailAddress"_s);
    side.exports.ExportRecordSet(4);
    const QByteArray good = bytes(pathOf(u"EmailAddress-0.dat"_s));
    RandomText random(3);
    for (int turn = 0; turn < 300; ++turn) {
        QByteArray hostile = good.left(turn % 10 == 0 ? random.number(1, int(good.size())) : int(good.size()));
        for (int change = random.number(1, 4); change > 0; --change)
            hostile[random.number(0, int(hostile.size()) - 1)] = char(random.number(0, 255));
        writeFile(u"hostile.dat"_s, hostile);
        statuses.clear();
        grid().setDataSource(nullptr);
        side.view.showSaved(pathOf(u"hostile.dat"_s));
        EXPECT_TRUE(grid().dataSource() != nullptr || lastStatus().startsWith(u"Not loaded: "_s)) << turn;
        static_cast<void>(shown(3));
    }
}

TEST_F(DataViewTest, ALongTextIsShownByItsBeginningAndReadWhole)
{
    const QString page(50'000, u'p');
    addRow(*database, u"SiteSummary"_s, {{u"FullPage"_s, page}, {u"Date"_s, u"2024-05-01T10:20:30"_s}});
    chooseTable(u"SiteSummary"_s);
    EXPECT_LT(grid().dataSource()->text(0, 4).size(), page.size());
    EXPECT_EQ(grid().textMatrix(0, 4), page);
    EXPECT_EQ(grid().textMatrix(0, 1), u"2024-05-01 10:20:30"_s);
}
