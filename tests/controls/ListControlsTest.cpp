#include "controls/ListControls.h"
#include "controls/SignalCount.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Style = ComboBox::Style;

namespace {
void fill(ListControl &list, const QStringList &items)
{
    for (const QString &item : items)
        list.addItem(item);
}

std::vector<bool> selection(const ListBox &list)
{
    std::vector<bool> flags;
    for (int i = 0; i < list.listCount(); ++i)
        flags.push_back(list.isSelected(i));
    return flags;
}
} // namespace

TEST(Combos, AChangedIndexRaisesClickOnce)
{
    ComboBox combo(u"cboANList"_s, Style::DropDownList, nullptr);
    fill(combo, {u"A"_s, u"B"_s});
    const SignalCount clicks(combo, &ComboBox::Click);
    EXPECT_EQ(combo.listIndex(), -1);
    combo.setListIndex(1);
    combo.setListIndex(1);
    EXPECT_EQ(clicks.times(), 1);
    EXPECT_EQ(combo.text(), u"B"_s);
    combo.setListIndex(-1);
    EXPECT_EQ(clicks.times(), 2);
    EXPECT_EQ(combo.text(), QString());
}

TEST(Combos, AUsersChoiceRaisesClickForTheRowThatIsChosenAlreadyToo)
{
    ComboBox combo(u"cboANWBSelect"_s, Style::DropDownList, nullptr, {u"Internal"_s, u"IExplore"_s});
    const SignalCount clicks(combo, &ComboBox::Click);
    combo.choose(0);
    EXPECT_EQ(clicks.times(), 1);
    combo.choose(1);
    EXPECT_EQ(clicks.times(), 2);
    EXPECT_EQ(combo.listIndex(), 1);
    combo.clear();
    combo.choose(-1);
    EXPECT_EQ(clicks.times(), 2) << "nothing is no choice";
    EXPECT_EQ(errorOf([&] { combo.choose(0); }), 380);
}

TEST(Combos, AnIndexOutsideTheListIsError380AndChangesNothing)
{
    ComboBox combo(u"cboANSavedUrls"_s, Style::DropDownList, nullptr);
    const SignalCount clicks(combo, &ComboBox::Click);
    EXPECT_EQ(errorOf([&] { combo.setListIndex(0); }), 380) << "the list is empty";
    combo.addItem(u"Results-100"_s);
    EXPECT_EQ(errorOf([&] { combo.setListIndex(1); }), 380);
    EXPECT_EQ(errorOf([&] { combo.setListIndex(-2); }), 380);
    EXPECT_EQ(combo.listIndex(), -1);
    EXPECT_EQ(clicks.times(), 0);
}

TEST(Combos, ClearingForgetsTheChoiceWithoutAClick)
{
    ComboBox combo(u"cboANSavedUrls"_s, Style::DropDownList, nullptr);
    fill(combo, {u"Results-100"_s});
    combo.setListIndex(0);
    const SignalCount clicks(combo, &ComboBox::Click);
    combo.clear();
    EXPECT_EQ(combo.listIndex(), -1);
    EXPECT_EQ(combo.listCount(), 0);
    EXPECT_EQ(combo.text(), QString());
    EXPECT_EQ(clicks.times(), 0);
}

TEST(Combos, RemovingKeepsTheChosenItemChosen)
{
    struct Row
    {
        const char *tag;
        int chosen, removed, expected;
    };
    constexpr Row rows[] = {{"the chosen one", 1, 1, -1}, {"one before it", 1, 0, 0}, {"one behind it", 1, 2, 1}};
    for (const Row &row : rows) {
        ComboBox combo(u"cboANMCMNCMask"_s, Style::DropDownList, nullptr);
        fill(combo, {u"a"_s, u"b"_s, u"c"_s});
        combo.setListIndex(row.chosen);
        const SignalCount clicks(combo, &ComboBox::Click);
        combo.removeItem(row.removed);
        EXPECT_EQ(combo.listIndex(), row.expected) << row.tag;
        EXPECT_EQ(combo.listCount(), 2) << row.tag;
        EXPECT_EQ(clicks.times(), 0) << row.tag;
    }
}

TEST(Combos, RemovingOutsideTheListIsError5)
{
    ComboBox combo(u"cboANMCMNCMask"_s, Style::DropDownList, nullptr);
    EXPECT_EQ(errorOf([&] { combo.removeItem(0); }), 5);
    EXPECT_EQ(errorOf([&] { combo.removeItem(-1); }), 5);
}

TEST(Combos, ReadingOutsideTheListGivesNoText)
{
    ComboBox combo(u"cboANList"_s, Style::DropDownList, nullptr);
    fill(combo, {u"A"_s});
    EXPECT_EQ(combo.list(-1), QString());
    EXPECT_EQ(combo.list(1), QString());
}

TEST(Combos, ADropDownListTakesNoTextButItsItems)
{
    ComboBox combo(u"cboANSaveType"_s, Style::DropDownList, nullptr);
    fill(combo, {u"Html"_s, u"Text"_s});
    const SignalCount clicks(combo, &ComboBox::Click);
    combo.setText(u"Text"_s);
    EXPECT_EQ(combo.listIndex(), 1);
    EXPECT_EQ(clicks.times(), 1);
    EXPECT_EQ(errorOf([&] { combo.setText(u"Links"_s); }), 383);
    EXPECT_EQ(errorOf([&] { combo.setText(u"text"_s); }), 383) << "as it is written";
    EXPECT_EQ(combo.text(), u"Text"_s);
}

TEST(Combos, TypingIntoAnEditableOneRaisesChangeAndChoosesNoItem)
{
    ComboBox combo(u"cboMNAutoUrl"_s, Style::DropDownCombo, nullptr);
    fill(combo, {u"http://one/"_s, u"http://two/"_s});
    combo.setListIndex(1);
    EXPECT_EQ(combo.text(), u"http://two/"_s);
    const SignalCount clicks(combo, &ComboBox::Click);
    const SignalCount changes(combo, &ComboBox::Change);
    combo.setText(u"http://two/x"_s);
    combo.setText(u"http://two/x"_s);
    EXPECT_EQ(changes.times(), 1);
    EXPECT_EQ(clicks.times(), 0);
    EXPECT_EQ(combo.listIndex(), -1);
    combo.setListIndex(1);
    EXPECT_EQ(combo.text(), u"http://two/"_s) << "the item can be chosen again";
    EXPECT_EQ(clicks.times(), 1);
}

TEST(Lists, AChangedSelectionRaisesClickOnce)
{
    ListBox list(u"lstANMC"_s, nullptr);
    fill(list, {u"a"_s, u"b"_s});
    const SignalCount clicks(list, &ListBox::Click);
    list.setSelected(1, true);
    list.setSelected(1, true);
    EXPECT_EQ(clicks.times(), 1);
    EXPECT_EQ(list.selCount(), 1);
    EXPECT_EQ(errorOf([&] { list.setSelected(2, true); }), 380);
    EXPECT_EQ(errorOf([&] { list.setSelected(-1, true); }), 380);
    EXPECT_FALSE(list.isSelected(7));
}

TEST(Lists, SelectionTravelsWithItsItem)
{
    ListBox list(u"lstANMC"_s, nullptr);
    fill(list, {u"a"_s, u"b"_s, u"c"_s});
    list.setSelected(2, true);
    list.removeItem(0);
    EXPECT_EQ(selection(list), (std::vector<bool>{false, true}));
    list.addItem(u"d"_s);
    EXPECT_EQ(selection(list), (std::vector<bool>{false, true, false}));
    list.clear();
    EXPECT_EQ(list.selCount(), 0);
    EXPECT_EQ(errorOf([&] { list.removeItem(0); }), 5);
}

TEST(Lists, TheUsersChoiceIsOneClickWithAllOfItInPlace)
{
    ListBox list(u"lstANMC"_s, nullptr);
    fill(list, {u"a"_s, u"b"_s, u"c"_s});
    list.setSelected(0, true);
    int selectedThen = -1;
    int indexThen = -1;
    QObject::connect(&list, &ListBox::Click, &list, [&] {
        selectedThen = list.selCount();
        indexThen = list.listIndex();
    });
    const SignalCount clicks(list, &ListBox::Click);
    list.choose(2, {false, true, true});
    EXPECT_EQ(clicks.times(), 1);
    EXPECT_EQ(selectedThen, 2);
    EXPECT_EQ(indexThen, 2);
    list.choose(2, {false, true, true});
    EXPECT_EQ(clicks.times(), 1) << "nothing changed";
    list.choose(1, {false, true, true});
    EXPECT_EQ(clicks.times(), 2) << "the focus alone counts";
}

TEST(Lists, AChoiceThatDoesNotFitIsIgnored)
{
    ListBox list(u"lstANMC"_s, nullptr);
    fill(list, {u"a"_s, u"b"_s});
    const SignalCount clicks(list, &ListBox::Click);
    list.choose(0, {true});
    list.choose(2, {true, false});
    list.choose(-2, {true, false});
    EXPECT_EQ(clicks.times(), 0);
    EXPECT_EQ(list.selCount(), 0);
}
