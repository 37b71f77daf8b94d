// The detached grid's window, and what stands at the foot of every grid.
#include "ui/windows/GridWindow.h"
#include "WindowFixture.h"
#include "ui/widgets/GridFoot.h"
#include "ui/widgets/ItemList.h"

#include <QHeaderView>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {
struct Squares : GridRows
{
    [[nodiscard]] QStringList heads() const override { return {u"Index"_s, u"Url"_s}; }
    [[nodiscard]] int rowCount() const override { return 1200; }
    [[nodiscard]] QString text(int row, int column) const override
    {
        return column == 0 ? QString::number(row) : u"Page %1"_s.arg(row * row);
    }
    [[nodiscard]] bool canSort() const override { return true; }
};

struct GridWindowTest : testing::Test
{
    GridWindowTest() : window(form, nullptr)
    {
        form.fxgTrawlex.setDataSource(std::make_shared<Squares>());
        window.show();
        settle();
    }
    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }
    [[nodiscard]] GridTable &table() { return *window.findChild<GridTable *>("fxgTrawlex"_L1); }
    [[nodiscard]] QString place() { return window.findChild<QLabel *>("gridPlace"_L1)->text(); }
    frmfxg form;
    GridWindow window;
};
} // namespace

TEST_F(GridWindowTest, ShowsTheGridOrTheListInItsPlace)
{
    EXPECT_EQ(window.size(), QSize(452, 364));
    EXPECT_EQ(table().model()->rowCount(), 1200);
    form.lstMN.addItem(u"http://a.com"_s);
    form.lstMN.setVisible(true);
    form.fxgTrawlex.setVisible(false);
    settle();
    EXPECT_FALSE(table().isVisible());
    EXPECT_FALSE(window.findChild<GridFind *>("gridFind"_L1)->isVisible());
    EXPECT_TRUE(window.findChild<ItemList *>("lstMN"_L1)->isVisible());
}

TEST_F(GridWindowTest, TellsItsWidthAndThatItCloses)
{
    window.resize(600, 400);
    settle();
    EXPECT_EQ(form.width(), 9000);
    const QSignalSpy closing(&window, &GridWindow::closing);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(closing.count(), 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(GridWindowTest, TheRowInUseStandsAtTheFootOfTheGrid)
{
    form.fxgTrawlex.select(2, 1);
    settle();
    EXPECT_EQ(place(), QLocale().toString(3) + u" of "_s + QLocale().toString(1200));
    form.fxgTrawlex.setDataSource(nullptr);
    settle();
    EXPECT_EQ(place(), QString());
}

TEST_F(GridWindowTest, FindGoesToTheNextCellAndAroundTheEnd)
{
    auto *const find = window.findChild<GridFind *>("gridFind"_L1);
    QSignalSpy ended(find, &GridFind::ended);
    find->setText(u"page 1000000"_s);
    QTest::keyClick(find, Qt::Key_Return);
    ASSERT_TRUE(ended.wait(5000));
    EXPECT_TRUE(ended.takeFirst().constFirst().toBool());
    EXPECT_EQ(form.fxgTrawlex.row(), 1000);
    EXPECT_EQ(form.fxgTrawlex.col(), 1);
    find->setText(u"Page 4"_s);
    QTest::keyClick(find, Qt::Key_Return, Qt::ShiftModifier);
    ASSERT_TRUE(ended.wait(5000));
    EXPECT_TRUE(form.fxgTrawlex.text().startsWith(u"Page 4"_s));
    EXPECT_LT(form.fxgTrawlex.row(), 1000);
    find->setText(u"nowhere"_s);
    QTest::keyClick(find, Qt::Key_Return);
    ended.clear();
    ASSERT_TRUE(ended.wait(5000));
    EXPECT_FALSE(ended.takeFirst().constFirst().toBool());
}

TEST_F(GridWindowTest, FindLooksIntoTheWholeOfALongText)
{
    struct Pages : Squares
    {
        [[nodiscard]] QString text(int, int) const override { return QString(400, u'x'); }
        [[nodiscard]] QString wholeText(int row, int column) const override
        {
            return text(row, column) + (row == 700 && column == 1 ? u"needle"_s : QString());
        }
    };
    form.fxgTrawlex.setDataSource(std::make_shared<Pages>());
    settle();
    auto *const find = window.findChild<GridFind *>("gridFind"_L1);
    QSignalSpy ended(find, &GridFind::ended);
    find->setText(u"needle"_s);
    QTest::keyClick(find, Qt::Key_Return);
    ASSERT_TRUE(ended.wait(5000));
    EXPECT_EQ(form.fxgTrawlex.row(), 700);
}

TEST_F(GridWindowTest, TheKeyForCopyingReachesTheGrid)
{
    const QSignalSpy copies(&form.fxgTrawlex, &Grid::copyAsked);
    QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copies.count(), 1);
}

TEST_F(GridWindowTest, AClickOnAHeadReachesTheGrid)
{
    const QSignalSpy heads(&form.fxgTrawlex, &Grid::headClicked);
    QHeaderView &header = *table().horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {header.sectionViewportPosition(1) + 20, 5});
    ASSERT_EQ(heads.count(), 1);
    EXPECT_EQ(heads.constFirst().constFirst().toInt(), 1);
    const QPointF place(header.sectionViewportPosition(1) + 20, 5);
    QMouseEvent second(QEvent::MouseButtonDblClick, place, header.viewport()->mapToGlobal(place), Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(header.viewport(), &second);
    EXPECT_EQ(heads.count(), 2) << "however quick the second click comes";
}

TEST_F(GridWindowTest, HeadsOfRowsThatHaveNoOtherOrderDoNotLookAsIfTheyCouldBeClicked)
{
    EXPECT_TRUE(table().horizontalHeader()->sectionsClickable());
    struct Saved : Squares
    {
        [[nodiscard]] bool canSort() const override { return false; }
    };
    form.fxgTrawlex.setDataSource(std::make_shared<Saved>());
    settle();
    EXPECT_FALSE(table().horizontalHeader()->sectionsClickable());
}

TEST_F(GridWindowTest, RowsThatComeLaterAreShownWithTheSelectionAsItIs)
{
    struct Coming : Squares
    {
        [[nodiscard]] int rowCount() const override { return known; }
        int known = 0;
    };
    const auto rows = std::make_shared<Coming>();
    form.fxgTrawlex.setDataSource(rows);
    settle();
    EXPECT_EQ(place(), QString());
    rows->known = 3;
    form.fxgTrawlex.takeMoreRows();
    settle();
    EXPECT_EQ(table().model()->rowCount(), 3);
    EXPECT_EQ(form.fxgTrawlex.row(), 0) << "the first cell, as of any rows";
    form.fxgTrawlex.select(2, 1);
    rows->known = 2000;
    form.fxgTrawlex.takeMoreRows();
    settle();
    EXPECT_EQ(table().currentIndex().row(), 2);
    EXPECT_EQ(place(), QLocale().toString(3) + u" of "_s + QLocale().toString(2000));
}
