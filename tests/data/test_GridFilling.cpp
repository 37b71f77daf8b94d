// Rows that come later: what the grid shows meanwhile, and what drops them.
#include "data/GridFilling.h"
#include "support/Fakes.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
/// Rows of which each portion finds as many as it is given.
struct Coming : GridRows
{
    [[nodiscard]] QStringList heads() const override { return {u"Index"_s}; }
    [[nodiscard]] int rowCount() const override { return known; }
    [[nodiscard]] QString text(int row, int) const override { return QString::number(row); }
    [[nodiscard]] SortMark order() const override { return mark; }
    [[nodiscard]] bool advance(int) const override
    {
        if (fails)
            throw RuntimeError(5, u"no"_s);
        ++portions;
        if (!portion.isEmpty())
            known += portion.takeFirst();
        return portion.isEmpty();
    }
    mutable QList<int> portion;
    mutable int known = 0, portions = 0;
    bool fails = false;
    SortMark mark;
};

struct GridFillingTest : testing::Test
{
    GridFillingTest()
    {
        const auto note = [this](auto signal, const QString &word) {
            QObject::connect(&filling, signal, &grid, [this, word] { told.append(word); });
        };
        note(&GridFilling::shown, u"shown"_s);
        note(&GridFilling::complete, u"complete"_s);
        note(&GridFilling::delayed, u"delayed"_s);
        note(&GridFilling::failed, u"failed"_s);
    }
    static std::shared_ptr<Coming> rows(const QList<int> &portions, SortMark mark = {})
    {
        auto made = std::make_shared<Coming>();
        made->portion = portions;
        made->mark = mark;
        return made;
    }
    void turnUntil(const QString &word)
    {
        const QDeadlineTimer patience(20'000);
        while (!told.contains(word) && !patience.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    }
    static void turn()
    {
        const QDeadlineTimer time(50);
        while (!time.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    }
    RecordingLog log;
    Grid grid{u"fxgTrawlex"_s, nullptr};
    GridFilling filling{log, grid};
    QStringList told;
};
constexpr SortMark upward{0, Qt::AscendingOrder};
} // namespace

TEST_F(GridFillingTest, WhatIsFoundSoonIsThereAtOnce)
{
    const auto few = rows({3});
    filling.show(few);
    EXPECT_EQ(grid.rows(), 3);
    EXPECT_EQ(told, (QStringList{u"shown"_s, u"complete"_s}));
    turn();
    EXPECT_EQ(few->portions, 1);
}

TEST_F(GridFillingTest, TheFirstRowsAreShownWhileOthersAreLookedFor)
{
    filling.show(rows({0, 0, 20, 30}));
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_EQ(grid.cols(), 1);
    EXPECT_FALSE(filling.isWaiting());
    turnUntil(u"complete"_s);
    EXPECT_EQ(grid.rows(), 50);
    EXPECT_EQ(grid.row(), 0) << "the first cell is chosen once there is one";
    EXPECT_EQ(told, (QStringList{u"shown"_s, u"delayed"_s, u"complete"_s}));
}

TEST_F(GridFillingTest, SortedRowsTakeTheGridTogether)
{
    filling.show(rows({5}));
    const auto before = grid.dataSource();
    told.clear();
    filling.show(rows({0, 0, 5}, upward));
    EXPECT_TRUE(filling.isWaiting());
    EXPECT_EQ(grid.dataSource(), before);
    EXPECT_EQ(grid.sortMark(), SortMark());
    turnUntil(u"complete"_s);
    EXPECT_EQ(told, (QStringList{u"delayed"_s, u"shown"_s, u"complete"_s}));
    EXPECT_EQ(grid.sortMark(), upward);
}

TEST_F(GridFillingTest, TheNextRowsDropThoseThatAreComing)
{
    const auto dropped = rows({1, 1, 1, 1, 1});
    filling.show(dropped);
    filling.show(rows({7}));
    turn();
    EXPECT_EQ(dropped->portions, 1);
    EXPECT_EQ(grid.rows(), 7);
    filling.show(rows({0, 0, 5}, upward));
    filling.drop();
    turn();
    EXPECT_EQ(grid.rows(), 7);
    EXPECT_FALSE(filling.isWaiting());
}

TEST_F(GridFillingTest, RowsOnShowThatAreTakenUpAgainAreCountedToTheirEnd)
{
    const auto halved = rows({4, 4, 4});
    filling.show(halved);
    filling.show(rows({0, 0, 0, 5}, upward));
    told.clear();
    filling.show(grid.dataSource());
    turnUntil(u"complete"_s);
    EXPECT_EQ(grid.rows(), 12);
    EXPECT_FALSE(told.contains(u"shown"_s));
}

TEST_F(GridFillingTest, AnErrorInATurnIsLoggedAndTold)
{
    const auto failing = rows({1, 1, 1}, upward);
    filling.show(failing);
    failing->fails = true;
    turnUntil(u"failed"_s);
    turn();
    EXPECT_EQ(told, (QStringList{u"delayed"_s, u"failed"_s}));
    EXPECT_EQ(log.entries.size(), 1);
}

TEST_F(GridFillingTest, NothingToShowEmptiesTheGrid)
{
    filling.show(rows({4}));
    filling.show(nullptr);
    EXPECT_EQ(grid.cols(), 0);
}
