// Menus as plain objects: the tree that a table of rows makes, and what an item does.
#include "SignalCount.h"

#include "controls/Menu.h"
#include "util/QtPrint.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
constexpr MenuRow rows[] = {
    {"mnuOpen"_L1, {}, "Open"_L1},
    {"mnuFile(0)"_L1, "mnuOpen"_L1, "First"_L1},
    {"mnuLine"_L1, {}, "-"_L1},
    {"mnuFile(1)"_L1, "mnuOpen"_L1, "Second"_L1},
    {"mnuClose"_L1, {}, "Close  window"_L1},
};

QStringList namesOf(const std::vector<MenuItem *> &items)
{
    QStringList names;
    for (const MenuItem *item : items)
        names.append(item->name());
    return names;
}

struct MenuTest : testing::Test
{
    QObject form;
    Menu menu{u"mnuPopUp"_s, rows, &form, u"Files"_s};
};
} // namespace

TEST_F(MenuTest, TheTreeStandsAsItsTableSays)
{
    EXPECT_EQ(menu.name(), u"mnuPopUp"_s);
    EXPECT_EQ(menu.caption(), u"Files"_s);
    EXPECT_EQ(namesOf(menu.children()), (QStringList{u"mnuOpen"_s, u"mnuLine"_s, u"mnuClose"_s}));
    EXPECT_EQ(namesOf(menu.children(u"mnuOpen"_s)), (QStringList{u"mnuFile(0)"_s, u"mnuFile(1)"_s}));
    EXPECT_TRUE(menu.children(u"mnuClose"_s).empty());
    EXPECT_EQ(menu.item("mnuClose"_L1).caption(), u"Close  window"_s);
    EXPECT_TRUE(menu.item("mnuLine"_L1).isSeparator());
    EXPECT_FALSE(menu.item("mnuOpen"_L1).isSeparator());
}

TEST_F(MenuTest, AMemberOfAnItemArrayIsFoundByItsIndex)
{
    EXPECT_EQ(menu.item("mnuFile"_L1, 1).caption(), u"Second"_s);
    EXPECT_EQ(errorOf([&] { (void)menu.item("mnuFile"_L1, 2); }), 340);
    EXPECT_EQ(errorOf([&] { (void)menu.item("mnuNone"_L1); }), 340);
}

TEST_F(MenuTest, ItemsAreControlsOfTheFormAndGoWithTheMenu)
{
    EXPECT_EQ(form.findChild<Control *>(u"mnuFile(1)"_s), &menu.item("mnuFile"_L1, 1));
    {
        const Menu other(u"mnuOther"_s, std::span(rows).first(1), &form);
        EXPECT_EQ(form.findChildren<Control *>(u"mnuOpen"_s).size(), 2);
    }
    EXPECT_EQ(form.findChildren<Control *>(u"mnuOpen"_s).size(), 1);
}

TEST_F(MenuTest, AnItemAddedLaterStandsLastInItsSubMenu)
{
    menu.add(u"mnuFile(2)"_s, u"mnuOpen"_s, u"Third"_s);
    EXPECT_EQ(namesOf(menu.children(u"mnuOpen"_s)), (QStringList{u"mnuFile(0)"_s, u"mnuFile(1)"_s, u"mnuFile(2)"_s}));
    EXPECT_EQ(menu.item("mnuFile"_L1, 2).caption(), u"Third"_s);
}

TEST_F(MenuTest, AClickIsRaisedByAnEnabledItemAndLeavesTheCheckMarkAlone)
{
    MenuItem &item = menu.item("mnuClose"_L1);
    const SignalCount clicks(item, &MenuItem::Click);
    item.click();
    EXPECT_EQ(clicks.times(), 1);
    EXPECT_FALSE(item.isChecked());
    item.setEnabled(false);
    item.click();
    EXPECT_EQ(clicks.times(), 1);
}

TEST_F(MenuTest, AChangedMarkIsAChangeAndNoClick)
{
    MenuItem &item = menu.item("mnuClose"_L1);
    const SignalCount clicks(item, &MenuItem::Click);
    const SignalCount changes(item, &MenuItem::changed);
    item.setChecked(true);
    item.setChecked(true);
    EXPECT_TRUE(item.isChecked());
    EXPECT_EQ(changes.times(), 1);
    EXPECT_EQ(clicks.times(), 0);
}

TEST_F(MenuTest, WhoMakesTheMenuReadyIsAskedEachTime)
{
    const SignalCount asked(menu, &Menu::aboutToShow);
    menu.prepare();
    menu.prepare();
    EXPECT_EQ(asked.times(), 2);
}
