#include "controls/Grid.h"
#include "controls/SignalCount.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
/// Cells that say where they stand.
struct Places : GridRows
{
    explicit Places(int rows) : count(rows) {}
    [[nodiscard]] QStringList heads() const override { return {u"Index"_s, u"Title"_s, u"Url"_s}; }
    [[nodiscard]] int rowCount() const override { return count; }
    [[nodiscard]] QString text(int row, int column) const override { return u"%1/%2"_s.arg(row).arg(column); }
    int count;
};
} // namespace

struct Grids : testing::Test
{
    Grid grid{u"fxgTrawlex"_s, nullptr};
};

TEST_F(Grids, BeginWithNothing)
{
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_EQ(grid.cols(), 0);
    EXPECT_EQ(grid.text(), QString());
    EXPECT_EQ(grid.clip(), QString());
    grid.select(0, 0);
    EXPECT_EQ(grid.row(), -1);
}

TEST_F(Grids, ShowTheirSourceFromItsFirstCellOn)
{
    const SignalCount changes(grid, &Control::changed);
    grid.setDataSource(std::make_shared<Places>(2));
    EXPECT_GE(changes.times(), 1);
    EXPECT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.cols(), 3);
    EXPECT_EQ(grid.head(2), u"Url"_s);
    EXPECT_EQ(grid.head(3), QString());
    EXPECT_EQ(grid.text(), u"0/0"_s);
    EXPECT_EQ(grid.textMatrix(1, 2), u"1/2"_s);
    EXPECT_EQ(grid.textMatrix(2, 0), QString());
    grid.setDataSource(nullptr);
    EXPECT_EQ(grid.cols(), 0);
    EXPECT_EQ(grid.row(), -1);
}

TEST_F(Grids, WithoutRowsShowTheirHeads)
{
    grid.setDataSource(std::make_shared<Places>(0));
    EXPECT_EQ(grid.cols(), 3);
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_EQ(grid.col(), -1);
}

TEST_F(Grids, ClipTheSelectedBlock)
{
    grid.setDataSource(std::make_shared<Places>(5));
    struct Row
    {
        CellBlock block;
        QString clip;
    };
    const Row rows[] = {{{1, 1, 1, 1}, u"1/1"_s},
                        {{1, 0, 2, 1}, u"1/0\t1/1\r2/0\t2/1"_s},
                        {{4, 2, 9, 9}, u"4/2"_s},
                        {{-1, 0, 0, 0}, u"0/0"_s},
                        {{3, 0, 2, 0}, QString()}};
    for (const Row &row : rows) {
        grid.select(1, 1, row.block);
        EXPECT_EQ(grid.clip(), row.clip);
    }
}

TEST_F(Grids, TellAMovedSelectionOnce)
{
    grid.setDataSource(std::make_shared<Places>(5));
    const SignalCount moves(grid, &Grid::selectionMoved);
    grid.select(2, 1);
    grid.select(2, 1);
    EXPECT_EQ(moves.times(), 1);
    grid.select(7, 1);
    EXPECT_EQ(grid.row(), -1);
    EXPECT_TRUE(grid.selection().isEmpty());
    EXPECT_EQ(moves.times(), 2);
}

TEST_F(Grids, KeepTheWidthsThatWereSetUntilTheSourceChanges)
{
    grid.setDataSource(std::make_shared<Places>(1));
    EXPECT_EQ(grid.colWidth(1), -1);
    grid.setColWidth(1, 3400);
    grid.setColWidth(9, 100);
    EXPECT_EQ(grid.colWidth(1), 3400);
    EXPECT_EQ(grid.colWidth(9), -1);
    grid.setDataSource(std::make_shared<Places>(1));
    EXPECT_EQ(grid.colWidth(1), -1);
}
