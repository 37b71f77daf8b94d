// The operations on list boxes: what each promises, and all of them against their plain form on random lists.
#include "controls/PlainLists.h"
#include "controls/SignalCount.h"
#include "controls/cLstBx.h"
#include "util/ColumnText.h"
#include "util/RandomText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
class ListOperations : public testing::Test
{
  protected:
    void fill(const QStringList &items, const std::vector<int> &selected = {}, int index = -1)
    {
        list.setItems(items);
        std::vector<bool> flags(static_cast<std::size_t>(items.size()));
        for (const int i : selected)
            flags[static_cast<std::size_t>(i)] = true;
        list.choose(index, flags);
    }

    ListBox list{u"lstMN(0)"_s, nullptr};
};

/// Lists of addresses that share much, so that equal and containing items are frequent.
plain::List randomList(RandomText &random)
{
    static const QStringList pieces{u"http://"_s, u"HTTP://"_s, u"www."_s,   u"a"_s, u"B"_s, u"b"_s,     u".com"_s,
                                    u"/"_s,       u" "_s,       u"\u0130"_s, u"i"_s, u"I"_s, u"\u0131"_s};
    plain::List list;
    for (int left = random.number(0, 9); left > 0; --left) {
        list.AddItem(random.text(pieces, 4));
        list.setSelected(list.ListCount() - 1, random.oneIn(3));
    }
    list.listIndex = random.number(-1, list.ListCount() - 1);
    return list;
}

using OnBox = std::function<QString(ListBox &, const QStringList &, int)>;
using OnPlain = std::function<QString(plain::List &, const QStringList &, int)>;
struct Operation
{
    const char *name;
    OnBox box;
    OnPlain plain;
};

const QString lineEnd = u"\r\n"_s;

/// Each operation in both forms; what it answers is told as a text.
const std::vector<Operation> &operations()
{
    static const std::vector<Operation> all{
        {"GetItems",
         [](ListBox &l, const QStringList &, int) { return cLstBx::GetItems(l, cLstBx::Which::All).join(u'|'); },
         [](plain::List &l, const QStringList &, int) { return plain::GetItems(l, false).join(u'|'); }},
        {"GetItems selected",
         [](ListBox &l, const QStringList &, int) { return cLstBx::GetItems(l, cLstBx::Which::Selected).join(u'|'); },
         [](plain::List &l, const QStringList &, int) { return plain::GetItems(l, true).join(u'|'); }},
        {"UnSelect", [](ListBox &l, const QStringList &, int) { return cLstBx::UnSelect(l), QString(); },
         [](plain::List &l, const QStringList &, int) { return plain::UnSelect(l), QString(); }},
        {"SelectAllLst", [](ListBox &l, const QStringList &, int) { return cLstBx::SelectAllLst(l), QString(); },
         [](plain::List &l, const QStringList &, int) { return plain::SelectAllLst(l), QString(); }},
        {"ClearSelected", [](ListBox &l, const QStringList &, int) { return cLstBx::ClearSelected(l), QString(); },
         [](plain::List &l, const QStringList &, int) { return plain::ClearSelected(l), QString(); }},
        {"CutLst", [](ListBox &l, const QStringList &, int) { return cLstBx::CutLst(l); },
         [](plain::List &l, const QStringList &, int) {
             const QString text = plain::CopySelected(l, lineEnd);
             plain::ClearSelected(l);
             return text;
         }},
        {"CopySelected", [](ListBox &l, const QStringList &t, int) { return cLstBx::CopySelected(l, t[0]); },
         [](plain::List &l, const QStringList &t, int) { return plain::CopySelected(l, t[0]); }},
        {"FindText",
         [](ListBox &l, const QStringList &t, int n) {
             return QString::number(cLstBx::FindText(l, t[0], n % (l.listCount() + 1)));
         },
         [](plain::List &l, const QStringList &t, int n) {
             return QString::number(plain::FindText(l, t[0], n % (l.ListCount() + 1)));
         }},
        {"DoesItemExist",
         [](ListBox &l, const QStringList &t, int) { return QString::number(cLstBx::DoesItemExist(l, t[0])); },
         [](plain::List &l, const QStringList &t, int) { return QString::number(plain::DoesItemExist(l, t[0])); }},
        {"PopulateListBox",
         [](ListBox &l, const QStringList &t, int n) {
             return cLstBx::PopulateListBox(l, t, n % 2 == 1, n / 2 % 2 == 1), QString();
         },
         [](plain::List &l, const QStringList &t, int n) {
             return plain::PopulateListBox(l, t, n % 2 == 1, n / 2 % 2 == 1), QString();
         }},
        {"TruncateList",
         [](ListBox &l, const QStringList &t, int n) {
             return cLstBx::TruncateList(l, t[0], n % 2 == 1 ? cLstBx::Cut::LeftSide : cLstBx::Cut::RightSide),
                    QString();
         },
         [](plain::List &l, const QStringList &t, int n) {
             return plain::TruncateList(l, t[0], n % 2 == 1), QString();
         }},
        {"ClearItemsCorNC",
         [](ListBox &l, const QStringList &t, int n) {
             return cLstBx::ClearItemsCorNC(l, t[0],
                                            n % 2 == 1 ? cLstBx::Remove::Containing : cLstBx::Remove::NotContaining),
                    QString();
         },
         [](plain::List &l, const QStringList &t, int n) {
             return plain::ClearItemsCorNC(l, t[0], n % 2 == 1), QString();
         }},
        {"PasteToListBox",
         [](ListBox &l, const QStringList &t, int) {
             return cLstBx::PasteToListBox(l, t.join(lineEnd), lineEnd), QString();
         },
         [](plain::List &l, const QStringList &t, int) {
             return plain::PasteToListBox(l, t.join(lineEnd), lineEnd), QString();
         }},
    };
    return all;
}
} // namespace

TEST_F(ListOperations, EachAgreesWithItsPlainFormOnRandomLists)
{
    RandomText random(20);
    const int rounds = std::max(1, randomRounds() / 10);
    for (int round = 0; round < rounds; ++round) {
        const Operation &operation = operations()[std::size_t(random.number(0, int(operations().size()) - 1))];
        plain::List expected = randomList(random);
        QStringList texts = randomList(random).items;
        texts.prepend(expected.ListCount() > 0 && random.oneIn(2)
                          ? expected.items[random.number(0, expected.ListCount() - 1)]
                          : random.text({u"a"_s, u"b"_s, u"B"_s, u"i"_s, u"www."_s}, 3));
        const int number = random.number(0, 11);
        plain::fillBox(list, expected);
        ASSERT_EQ(operation.box(list, texts, number), operation.plain(expected, texts, number))
            << operation.name << " in round " << round;
        ASSERT_EQ(plain::of(list), expected) << operation.name << " in round " << round;
    }
}

TEST_F(ListOperations, BlankItemsAreSkippedAndNothingIsOneEmptyText)
{
    EXPECT_EQ(cLstBx::GetItems(list, cLstBx::Which::All), QStringList{QString()});
    fill({u"a"_s, u"   "_s, QString(), u"b"_s});
    EXPECT_EQ(cLstBx::GetItems(list, cLstBx::Which::All), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(cLstBx::GetItems(list, cLstBx::Which::Selected), QStringList{QString()});
    fill({u"a"_s, u"   "_s, QString(), u"b"_s}, {1, 3});
    EXPECT_EQ(cLstBx::GetItems(list, cLstBx::Which::Selected), QStringList{u"b"_s});
    cLstBx::UnSelect(list);
    EXPECT_EQ(list.selCount(), 0);
}

TEST_F(ListOperations, AnItemExistsWhateverItsCaseUnitByUnit)
{
    fill({u"Über uns"_s, u"\u0130stanbul"_s});
    EXPECT_TRUE(cLstBx::DoesItemExist(list, u"ÜBER UNS"_s));
    EXPECT_FALSE(cLstBx::DoesItemExist(list, u"Über"_s));
    EXPECT_FALSE(cLstBx::DoesItemExist(list, u"i\u0307stanbul"_s)) << "two units are not one";
    cLstBx::PopulateListBox(list, {u"i\u0307stanbul"_s, u"\u0130STANBUL"_s}, true, false);
    EXPECT_EQ(list.listCount(), 3);
}

TEST_F(ListOperations, PopulatingDropsWhatStandsThereAndKeepsRepeatsAmongTheNew)
{
    fill({u"a"_s});
    cLstBx::PopulateListBox(list, {u"A"_s, u"b"_s, u"B"_s, u"  "_s}, true, false);
    EXPECT_EQ(list.items(), (QStringList{u"a"_s, u"b"_s, u"B"_s}));
    cLstBx::PopulateListBox(list, {u"x"_s, u" "_s}, false, true);
    EXPECT_EQ(list.items(), (QStringList{u"x"_s, u" "_s}));
}

TEST_F(ListOperations, AListMayBeRefilledWithItsOwnItems)
{
    fill({u"a"_s, u" "_s, u"b"_s});
    cLstBx::PopulateListBox(list, list.items(), true, true);
    EXPECT_EQ(list.items(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(ListOperations, AHitOnTheFirstItemSelectsItAndReadsLikeNone)
{
    fill({u"http://a.com"_s, u"http://b.com"_s}, {1}, 1);
    EXPECT_EQ(cLstBx::FindText(list, u"HTTP://A.COM"_s, 0), 0);
    EXPECT_EQ(list.selection(), (std::vector<bool>{true, false}));
    EXPECT_EQ(list.listIndex(), 0);
    EXPECT_EQ(cLstBx::FindText(list, u"xyz"_s, 0), 0);
    EXPECT_EQ(list.selCount(), 0);
}

TEST_F(ListOperations, TheLongestBeginningWinsOverAnEarlierItem)
{
    fill({u"the tea"_s, u"a teapot"_s, u"TEAPOTS"_s});
    EXPECT_EQ(cLstBx::FindText(list, u"teapots of old"_s, 0), 2);
    EXPECT_EQ(cLstBx::FindText(list, u"teapo"_s, 0), 1);
    EXPECT_EQ(cLstBx::FindText(list, u"teax"_s, 1), 1) << "the search begins at the start given";
}

TEST_F(ListOperations, OneLetterIsMatchedByEqualityAlone)
{
    fill({u"ab"_s, u"b"_s});
    EXPECT_EQ(cLstBx::FindText(list, u"B"_s, 0), 1);
    EXPECT_EQ(cLstBx::FindText(list, u"a"_s, 0), 0);
    EXPECT_EQ(list.selCount(), 0);
}

TEST_F(ListOperations, TruncatingByATextInNoItemKeepsTheItemsAndLosesTheSelection)
{
    fill({u"a"_s, u"b"_s}, {0}, 0);
    cLstBx::TruncateList(list, u"zzz"_s, cLstBx::Cut::LeftSide);
    EXPECT_EQ(list.items(), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(list.selCount(), 0);
    EXPECT_EQ(list.listIndex(), -1);
}

TEST_F(ListOperations, TruncatingCutsOneSideAndTheTextWithIt)
{
    fill({u"http://a.com/X/one"_s, u"/x/"_s, u"two"_s});
    cLstBx::TruncateList(list, u"/x/"_s, cLstBx::Cut::LeftSide);
    EXPECT_EQ(list.items(), (QStringList{u"one"_s, u"two"_s}));
    fill({u"http://a.com/X/one"_s, u"/x/"_s, u"two"_s});
    cLstBx::TruncateList(list, u"/x/"_s, cLstBx::Cut::RightSide);
    EXPECT_EQ(list.items(), (QStringList{u"http://a.com"_s, u"two"_s}));
}

TEST_F(ListOperations, PastedItemsAreCutToWhatAColumnHolds)
{
    cLstBx::PasteToListBox(list, QString(300, u'x') + u"\r\n\r\nb"_s, lineEnd);
    EXPECT_EQ(list.items(), (QStringList{QString(255, u'x'), u"b"_s}));
    EXPECT_EQ(cUtility::asColumnText(QString(254, u'x') + u"\U0001F600"_s), QString(254, u'x')) << "no half of a pair";
    cLstBx::PasteToListBox(list, {}, lineEnd);
    EXPECT_EQ(list.listCount(), 2);
}

TEST_F(ListOperations, OneSelectedItemIsCopiedFromTheIndexAndWithoutDelimiter)
{
    fill({u"a"_s, u"b"_s}, {1}, 1);
    EXPECT_EQ(cLstBx::CopySelected(list, lineEnd), u"b"_s);
    fill({u"a"_s, QString(), u"b"_s});
    EXPECT_EQ(cLstBx::CopySelected(list, lineEnd), u"a\r\nb\r\n"_s);
    EXPECT_EQ(cLstBx::CutLst(list), u"a\r\nb\r\n"_s);
    EXPECT_EQ(list.listCount(), 3) << "nothing was selected";
}

TEST_F(ListOperations, EachChangesTheListOnceHoweverManyItemsItTouches)
{
    QStringList many;
    for (int i = 0; i < 1000; ++i)
        many.append(QString::number(i));
    const SignalCount changes(list, &Control::changed);
    const SignalCount clicks(list, &ListBox::Click);
    cLstBx::PopulateListBox(list, many, true, true);
    cLstBx::PopulateListBox(list, {u"x"_s, u"y"_s}, true, false);
    cLstBx::SelectAllLst(list);
    cLstBx::UnSelect(list);
    cLstBx::ClearItemsCorNC(list, u"9"_s, cLstBx::Remove::Containing);
    cLstBx::TruncateList(list, u"1"_s, cLstBx::Cut::LeftSide);
    EXPECT_EQ(changes.times(), 6);
    EXPECT_EQ(clicks.times(), 2) << "of the two changed selections";
    cLstBx::UnSelect(list);
    cLstBx::ClearSelected(list);
    cLstBx::PopulateListBox(list, {}, true, false);
    EXPECT_EQ(changes.times(), 6) << "what changes nothing is not told";
}

TEST_F(ListOperations, ItemsThatGoTakeTheirSelectionAndTheIndexFollowsItsItem)
{
    fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s}, {0, 3}, 2);
    list.removeItems({true, true, false, false});
    EXPECT_EQ(plain::of(list), (plain::List{{u"c"_s, u"d"_s}, {false, true}, 0}));
    list.removeItems({true, false});
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_EQ(errorOf([&] { list.removeItems({}); }), 5);
}

TEST(Combos, FillingAtOnceEmptiesTheBox)
{
    ComboBox combo(u"cboMNAutoUrl"_s, nullptr);
    combo.setText(u"typed"_s);
    const SignalCount changes(combo, &Control::changed);
    combo.setItems({u"a"_s, u"b"_s});
    combo.addItems({u"c"_s});
    EXPECT_EQ(combo.items(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(combo.text(), QString());
    EXPECT_EQ(combo.listIndex(), -1);
    EXPECT_EQ(changes.times(), 2);
}
