// The grid in both directions: cells, widths and selection.
#include "WindowFixture.h"
#include "ui/widgets/GridModel.h"
#include "ui/widgets/GridTable.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {
/// A thousand rows that count how many of their cells were read.
struct Summaries : GridRows
{
    [[nodiscard]] QStringList heads() const override { return {u"Index"_s, u"Title"_s, u"Url"_s}; }
    [[nodiscard]] int rowCount() const override { return 1000; }
    [[nodiscard]] QString text(int row, int column) const override
    {
        ++reads;
        return column == 0 ? QString::number(row + 1) : u"%1/%2"_s.arg(row).arg(column);
    }
    mutable int reads = 0;
};
} // namespace

struct Grids : WindowFixture
{
    Grids() : grid(form.data.fxgTrawlex), table(widget<GridTable>("fxgTrawlex")), rows(std::make_shared<Summaries>())
    {
        form.frame.sstSearch.setTab(Tab::Data);
        grid.setDataSource(rows);
        settle();
    }
    [[nodiscard]] QPoint centre(int row, int column) const
    {
        return table.visualRect(table.model()->index(row, column)).center();
    }

    Grid &grid;
    GridTable &table;
    std::shared_ptr<Summaries> rows;
};

TEST_F(Grids, ShowHeadsAndCellsAndReadNoMoreThanIsLookedAt)
{
    EXPECT_EQ(table.model()->rowCount(), 1000);
    EXPECT_EQ(table.model()->columnCount(), 3);
    EXPECT_EQ(table.model()->headerData(1, Qt::Horizontal, Qt::DisplayRole), u"Title"_s);
    EXPECT_EQ(table.model()->index(4, 1).data(), u"4/1"_s);
    EXPECT_LT(rows->reads, 3000) << "a thousand rows are not read to show twenty";
    grid.setDataSource(nullptr);
    settle();
    EXPECT_EQ(table.model()->columnCount(), 0);
}

TEST_F(Grids, TakeTheUsersChoice)
{
    const Raised moves(grid, &Grid::selectionMoved);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, centre(2, 1));
    EXPECT_EQ(grid.row(), 2);
    EXPECT_EQ(grid.col(), 1);
    EXPECT_EQ(grid.clip(), u"2/1"_s);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ShiftModifier, centre(4, 1));
    EXPECT_EQ(grid.clip(), u"2/1\r3/1\r4/1"_s);
    EXPECT_GE(moves.times(), 2);
}

TEST_F(Grids, KeepASelectionThatTheRightButtonLiesIn)
{
    grid.select(2, 1, {2, 1, 4, 1});
    settle();
    const Raised presses(grid, &Control::mousePressed);
    QTest::mouseClick(table.viewport(), Qt::RightButton, {}, centre(3, 1));
    EXPECT_EQ(grid.selection(), (CellBlock{2, 1, 4, 1}));
    EXPECT_EQ(presses.times(), 1);
    QTest::mouseClick(table.viewport(), Qt::RightButton, {}, centre(0, 0));
    EXPECT_EQ(grid.selection(), (CellBlock{0, 0, 0, 0}));
}

TEST_F(Grids, KeepASelectionThatIsPressedBeside)
{
    struct Few : Summaries
    {
        [[nodiscard]] int rowCount() const override { return 2; }
    };
    grid.setDataSource(std::make_shared<Few>());
    grid.select(0, 0, {0, 0, 1, 0});
    settle();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        QTest::mouseClick(table.viewport(), button, {}, table.viewport()->rect().center());
        EXPECT_EQ(grid.clip(), u"1\r2"_s) << button;
    }
    EXPECT_TRUE(table.hasFocus());
}

TEST_F(Grids, HaveTheCellUnderTheRightButtonInUseWhenTheButtonIsTold)
{
    grid.select(5, 2);
    settle();
    int column = -1;
    QObject::connect(&grid, &Control::mousePressed, &form, [&] { column = grid.col(); });
    QTest::mouseClick(table.viewport(), Qt::RightButton, {}, centre(1, 0));
    EXPECT_EQ(column, 0);
}

TEST_F(Grids, ShowWhatTheLogicSelectsAndSets)
{
    grid.select(5, 2, {5, 1, 6, 2});
    grid.setColWidth(1, 3000);
    settle();
    EXPECT_EQ(table.currentIndex().row(), 5);
    EXPECT_EQ(table.selectionModel()->selectedIndexes().size(), 4);
    EXPECT_GE(table.columnWidth(1), 200);
    table.setColumnWidth(1, 90);
    grid.select(1, 1);
    settle();
    EXPECT_EQ(table.columnWidth(1), 90) << "as the user has dragged it";
}

TEST_F(Grids, TellADoubleClick)
{
    const Raised doubles(grid, &Control::doubleClicked);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, centre(1, 1));
    EXPECT_EQ(doubles.times(), 1);
}

TEST_F(Grids, LeaveTheKeyForCopyingToTheirControl)
{
    QGuiApplication::clipboard()->setText(u"before"_s);
    const Raised copies(grid, &Grid::copyAsked);
    QTest::keyClick(&table, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(grid.selection(), (CellBlock{0, 0, 999, 2}));
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copies.times(), 1);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"before"_s) << "the view copies no cell of its own";
}

TEST(GridCells, StandAtTheRightWhenTheyAreFigures)
{
    struct Row
    {
        QString text;
        bool figure;
    };
    const Row rows[] = {
        {u"12"_s, true},           {u"-1.5"_s, true}, {u"2026-11-21"_s, true}, {u"2026-11-21 09:30:00"_s, true},
        {u"212-555-0100"_s, true}, {u""_s, false},    {u"12 boats"_s, false},  {u"http://1.example/"_s, false}};
    for (const Row &row : rows)
        EXPECT_EQ(GridModel::isFigure(row.text), row.figure) << qPrintable(row.text);
}

TEST(GridCells, AreCutForTheEyeAlone)
{
    struct Page : GridRows
    {
        [[nodiscard]] QStringList heads() const override { return {u"FullPage"_s}; }
        [[nodiscard]] int rowCount() const override { return 1; }
        [[nodiscard]] QString text(int, int) const override { return QString(100000, u'x'); }
    };
    GridModel model;
    model.setRows(std::make_shared<Page>());
    EXPECT_EQ(model.index(0, 0).data().toString().size(), GridModel::longestShown + 1);
}
