#include "WindowFixture.h"
#include "ui/widgets/DropDown.h"
#include "ui/widgets/ItemList.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

struct Lists : WindowFixture
{
    Lists() : view(widget<ItemList>("lstANMC")), list(form.criteria.mustContain.items) {}

    void fill(int count)
    {
        for (int i = 0; i < count; ++i)
            list.addItem(u"item %1"_s.arg(i));
        settle();
    }
    void press(int row, Qt::KeyboardModifiers keys = {}, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(view.viewport(), button, keys, view.visualRect(view.model()->index(row, 0)).center());
        settle();
    }
    [[nodiscard]] QList<int> selectedRows() const
    {
        QList<int> rows;
        for (int i = 0; i < list.listCount(); ++i) {
            if (list.isSelected(i))
                rows.append(i);
        }
        return rows;
    }

    ItemList &view;
    ListBox &list;
};

TEST_F(Lists, ShowItemsAndSelection)
{
    fill(3);
    list.setSelected(0, true);
    list.setSelected(2, true);
    settle();
    EXPECT_EQ(view.model()->rowCount(), 3);
    EXPECT_TRUE(view.selectionModel()->isRowSelected(0));
    EXPECT_FALSE(view.selectionModel()->isRowSelected(1));
    EXPECT_TRUE(view.selectionModel()->isRowSelected(2));
    list.removeItem(0);
    settle();
    EXPECT_EQ(view.model()->rowCount(), 2);
    EXPECT_FALSE(view.selectionModel()->isRowSelected(0));
    EXPECT_TRUE(view.selectionModel()->isRowSelected(1));
}

TEST_F(Lists, AClickSelectsAndIsOneEvent)
{
    fill(4);
    const Raised clicks(list, &ListBox::Click);
    press(1);
    EXPECT_EQ(selectedRows(), QList<int>{1});
    EXPECT_EQ(list.listIndex(), 1);
    press(3, Qt::ControlModifier);
    EXPECT_EQ(selectedRows(), (QList<int>{1, 3}));
    EXPECT_EQ(list.listIndex(), 3);
    press(0);
    EXPECT_EQ(selectedRows(), QList<int>{0});
    EXPECT_EQ(clicks.times(), 3);
}

TEST_F(Lists, TheKeyboardSelectsARange)
{
    fill(5);
    press(1);
    const Raised clicks(list, &ListBox::Click);
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    settle();
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    settle();
    EXPECT_EQ(selectedRows(), (QList<int>{1, 2, 3}));
    EXPECT_EQ(list.listIndex(), 3);
    EXPECT_EQ(clicks.times(), 2);
}

TEST_F(Lists, TheRightButtonLeavesTheSelectionAsItIs)
{
    fill(3);
    press(0);
    const Raised clicks(list, &ListBox::Click);
    QList<MouseButton> pressed;
    QObject::connect(&list, &Control::mousePressed, &form, [&](MouseButton b) { pressed.append(b); });
    press(2, {}, Qt::RightButton);
    EXPECT_EQ(pressed, QList<MouseButton>{MouseButton::Right});
    EXPECT_EQ(selectedRows(), QList<int>{0});
    EXPECT_EQ(clicks.times(), 0);
}

TEST_F(Lists, DoubleClickAndReturnAreTold)
{
    fill(2);
    const Raised doubles(list, &Control::doubleClicked);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.model()->index(0, 0)).center());
    EXPECT_EQ(doubles.times(), 1);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(doubles.times(), 2);
}

TEST_F(Lists, WhatTheLogicSelectsRaisesNoClickOfTheUser)
{
    fill(3);
    const Raised clicks(list, &ListBox::Click);
    list.setSelected(1, true);
    settle();
    settle();
    EXPECT_EQ(clicks.times(), 1) << "the assignment's own";
    EXPECT_EQ(list.listIndex(), -1);
}

TEST_F(Lists, TheItemThatDecidedComesIntoSight)
{
    fill(40);
    list.setSelected(39, true);
    settle();
    EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.model()->index(39, 0))));
}

TEST_F(Lists, AListThatChangedUnderTheUsersHandKeepsItsOwnSelection)
{
    fill(3);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.model()->index(2, 0)).center());
    list.clear();
    settle();
    EXPECT_EQ(list.selCount(), 0);
    EXPECT_EQ(view.model()->rowCount(), 0);
}

TEST_F(Lists, ItemsAddedBehindLeaveTheScrolledPlace)
{
    fill(200);
    view.scrollTo(view.model()->index(120, 0), QAbstractItemView::PositionAtTop);
    const QModelIndex top = view.indexAt(QPoint(4, 4));
    list.addItem(u"one more"_s);
    settle();
    EXPECT_EQ(view.indexAt(QPoint(4, 4)).row(), top.row());
}

TEST_F(Lists, TenThousandItemsOneByOneTakeNoTime)
{
    QElapsedTimer timer;
    timer.start();
    fill(10000);
    view.selectAll();
    settle();
    EXPECT_EQ(list.selCount(), 10000);
    list.clear();
    settle();
    // A quadratic way takes minutes; this is a hundred times what it needs.
    EXPECT_LT(timer.elapsed(), 5000);
}

TEST_F(Lists, ManyRefreshesOfALongListAreCheap)
{
    fill(10000);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 1000; ++i) {
        list.addItem(u"more"_s);
        settle();
    }
    EXPECT_EQ(view.model()->rowCount(), 11000);
    EXPECT_LT(timer.elapsed(), 20000);
}

TEST_F(Lists, AnEmptyOneKeepsItsDesignedWordsWhereNoneAreGiven)
{
    EXPECT_FALSE(widget<ItemList>("lstBlockedUrlC").emptyText().isEmpty());
}

TEST_F(Lists, AnEmptyOneSaysWhatBelongsThere)
{
    list.setEmptyText(u"Texts come here with +."_s);
    auto &combo = widget<DropDown>("cboANMCMNCMask");
    form.criteria.cboANMCMNCMask.setEmptyText(u"+ adds one"_s);
    settle();
    EXPECT_EQ(view.emptyText(), u"Texts come here with +."_s);
    EXPECT_EQ(combo.placeholderText(), u"+ adds one"_s);
    const QImage empty = view.grab().toImage();
    view.setEmptyText(QString());
    settle();
    EXPECT_NE(empty, view.grab().toImage());
}
