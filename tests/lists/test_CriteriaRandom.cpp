// A set of criteria under a user at random, held against a plain row of forty columns: what each command answers, what
// stands in the row, and what the list shows.
#include "support/ProgramFixture.h"
#include "util/RandomText.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {
using List = CriteriaSets::List;

struct PlainSet
{
    std::array<QString, 40> columns;
    QStringList shown;

    QString *holder(const QString &item)
    {
        for (QString &column : columns) {
            if (column.toLower() == item.toLower())
                return &column;
        }
        return nullptr;
    }
    QString add(const QString &item)
    {
        if (holder(item))
            return item + u" Exists"_s;
        QString *free = holder({});
        if (!free)
            return u"Not Added. Max 40"_s;
        *free = item;
        shown.append(item);
        return item + u" Added"_s;
    }
    QString remove(const QString &item)
    {
        QString *found = holder(item);
        if (!found)
            return u"Not Removed. Didn't exist"_s;
        found->clear();
        for (int i = 0; i < shown.size(); ++i) {
            if (shown[i].toLower() == item.toLower()) {
                shown.removeAt(i);
                break;
            }
        }
        return item + u" Removed"_s;
    }
    void reload()
    {
        shown.clear();
        for (const QString &column : columns) {
            if (!column.isEmpty())
                shown.append(column);
        }
    }
    void clear()
    {
        columns.fill({});
        shown.clear();
    }
};

class RandomCriteria : public ProgramTest
{
  protected:
    RandomCriteria()
    {
        load();
        dialogs.inputAnswers = {u"Tea"_s};
        EXPECT_EQ(program->criteria.AddMCMNCSet(), u"Group Added"_s);
    }
    ListBox &list(List which)
    {
        return which == List::MustContain ? form().criteria.mustContain.items : form().criteria.mustNotContain.items;
    }
    QStringList stored(List which)
    {
        QStringList columns;
        for (int i = 1; i <= 40; ++i)
            columns.append(rows(which == List::MustContain ? u"MC"_s : u"MNC"_s, u"Item-%1"_s.arg(i)).value(0));
        return columns;
    }
    QString item()
    {
        const QString text = u"item %1"_s.arg(random.number(1, 50));
        return random.oneIn(5) ? text.toUpper() : text;
    }
    /// Some items selected and removed by the menu's command.
    void removeSelected(List which, PlainSet &set)
    {
        std::vector<bool> selected(static_cast<std::size_t>(list(which).listCount()));
        for (int i = 0; i < list(which).listCount(); ++i)
            selected[static_cast<std::size_t>(i)] = random.oneIn(8);
        QStringList gone;
        for (int i = 0; i < list(which).listCount(); ++i) {
            if (selected[static_cast<std::size_t>(i)])
                gone.append(list(which).list(i));
        }
        if (gone.isEmpty())
            return;
        list(which).choose(0, selected);
        program->criteria.RemoveMCMNC(which);
        for (const QString &text : gone)
            set.remove(text);
    }
    RandomText random{22};
};
} // namespace

TEST_F(RandomCriteria, EqualsThePlainSet)
{
    PlainSet sets[2];
    CriteriaSets &criteria = program->criteria;
    for (int round = 0; round < 800; ++round) {
        const auto which = random.oneIn(2) ? List::MustContain : List::MustNotContain;
        PlainSet &set = sets[which == List::MustContain ? 0 : 1];
        const QString text = item();
        const int command = random.number(1, 60);
        if (command == 1) {
            set.clear();
            ASSERT_EQ(criteria.ClearMC(which),
                      which == List::MustContain ? u"Tea (MC) Cleared"_s : u"Tea (MNC) Cleared"_s);
        } else if (command == 2) {
            sets[0].reload();
            sets[1].reload();
            criteria.AssignMaskElements();
        } else if (command <= 4) {
            removeSelected(which, set);
        } else if (command <= 15) {
            ASSERT_EQ(criteria.RemoveMC(which, text), set.remove(text)) << round;
        } else {
            ASSERT_EQ(criteria.AddMC(which, text), set.add(text)) << round;
        }
        ASSERT_EQ(list(which).items(), set.shown) << round;
        if (round % 20 == 0) {
            ASSERT_EQ(stored(which), QStringList(set.columns.begin(), set.columns.end())) << round;
        }
    }
}
