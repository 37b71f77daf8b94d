// A random sequence of commands of the manual lists' menu, held against a literal model of lists, tables and statuses.
#include "controls/PlainLists.h"
#include "support/ProgramFixture.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;

namespace {
/// The five lists, their tables and the status, as the rules tell them, one item after the other.
struct Model
{
    plain::List lists[5];
    QStringList tables[5];
    QStringList cache;
    int shown = 0;
    QString status;

    [[nodiscard]] plain::List &list() { return lists[shown]; }
    [[nodiscard]] QString name() const { return QStringLiteral("ABCDE").mid(shown, 1); }
    void count(const QString &text = {})
    {
        status = QString::number(list().ListCount()) + u" loaded"_s + (text.isEmpty() ? text : u". "_s + text);
    }

    void clear()
    {
        list().Clear();
        status = u"Window cleared"_s;
    }
    void clearSelected()
    {
        const int index = list().listIndex;
        if (index < 0)
            return;
        if (list().SelCount() == 1) {
            list().RemoveItem(index);
            if (index < list().ListCount()) {
                list().setSelected(index, true);
                list().listIndex = index;
            }
        } else {
            plain::ClearSelected(list());
        }
        count();
    }
    void clearAll()
    {
        QStringList names;
        for (int i = 0; i < 5; ++i) {
            if (lists[i].ListCount() > 0)
                names.append(QStringLiteral("ABCDE").mid(i, 1));
            lists[i].Clear();
        }
        status = names.join(u',') + u" cleared"_s;
    }
    void save()
    {
        for (const QString &item : list().items) {
            const bool known = std::any_of(tables[shown].begin(), tables[shown].end(), [&](const QString &url) {
                return url.compare(item, Qt::CaseInsensitive) == 0;
            });
            if (!item.isEmpty() && !item.contains(u'\'') && !known)
                tables[shown].append(item);
        }
        status = u"Saved To MNUrls"_s + name();
    }
    void load()
    {
        for (const QString &url : tables[shown])
            list().AddItem(url);
        plain::UnSelect(list());
        count();
    }
    void deleteSaved()
    {
        cache = tables[shown];
        tables[shown].clear();
        status = u"MNUrls"_s + name() + u" deleted"_s;
    }
    void loadCache()
    {
        plain::PopulateListBox(list(), cache, true, false);
        count();
    }
    void repeats()
    {
        QStringList kept;
        for (const QString &item : list().items) {
            if (!item.isEmpty() && !kept.contains(item))
                kept.append(item);
        }
        if (!kept.isEmpty())
            plain::PopulateListBox(list(), kept, false, true);
        count();
    }
};

class ManualRandomTest : public RunTest
{
  protected:
    struct Step
    {
        QLatin1StringView item;
        bool asks;
        void (*apply)(Model &model, const QString &answer);
        bool (*offered)(Model &model);
    };
    [[nodiscard]] static bool hasItems(Model &model) { return model.list().ListCount() > 0; }
    [[nodiscard]] static bool hasSelection(Model &model) { return model.list().SelCount() > 0; }
    [[nodiscard]] static bool hasRows(Model &model) { return !model.tables[model.shown].isEmpty(); }
    [[nodiscard]] static bool always(Model &) { return true; }
    [[nodiscard]] static bool canClearAll(Model &model)
    {
        int filled = 0;
        for (const plain::List &list : model.lists)
            filled += list.ListCount() > 0 ? 1 : 0;
        return filled >= (hasItems(model) ? 2 : 1);
    }
    static const std::vector<Step> &steps()
    {
        static const std::vector<Step> all{
            {"mnuMNClear"_L1, false, [](Model &m, const QString &) { m.clear(); }, hasItems},
            {"mnuMNClearSelected"_L1, false, [](Model &m, const QString &) { m.clearSelected(); }, hasSelection},
            {"mnuMNClearAllListWindows"_L1, false, [](Model &m, const QString &) { m.clearAll(); }, canClearAll},
            {"mnuMNSelectAll"_L1, false,
             [](Model &m, const QString &) {
                 plain::SelectAllLst(m.list());
                 m.count(u"Selected"_s);
             },
             hasItems},
            {"mnuMNUnSelect"_L1, false, [](Model &m, const QString &) { plain::UnSelect(m.list()); }, hasSelection},
            {"mnuMNCutSelected"_L1, false,
             [](Model &m, const QString &) {
                 plain::ClearSelected(m.list());
                 m.count();
             },
             hasSelection},
            {"mnuMNCopySelected"_L1, false,
             [](Model &m, const QString &) { m.status = u"Copied "_s + m.list().items.value(m.list().listIndex); },
             hasSelection},
            {"mnuMNSaveToDatabase"_L1, false, [](Model &m, const QString &) { m.save(); }, hasItems},
            {"mnuMNLoadLinksDB"_L1, false, [](Model &m, const QString &) { m.load(); }, hasRows},
            {"mnuMNDeleteSaved"_L1, false, [](Model &m, const QString &) { m.deleteSaved(); }, hasRows},
            {"mnuMNLSU(4)"_L1, false, [](Model &m, const QString &) { m.loadCache(); }, always},
            {"mnuMNRem(0)"_L1, false, [](Model &m, const QString &) { m.repeats(); }, hasItems},
            {"mnuMNRem(2)"_L1, true,
             [](Model &m, const QString &text) {
                 plain::TruncateList(m.list(), text, true);
                 m.count();
             },
             hasItems},
            {"mnuMNRem(3)"_L1, true,
             [](Model &m, const QString &text) {
                 plain::TruncateList(m.list(), text, false);
                 m.count();
             },
             hasItems},
            {"mnuMNRem(4)"_L1, true,
             [](Model &m, const QString &text) {
                 plain::ClearItemsCorNC(m.list(), text, true);
                 m.count();
             },
             hasItems},
            {"mnuMNRem(5)"_L1, true,
             [](Model &m, const QString &text) {
                 plain::ClearItemsCorNC(m.list(), text, false);
                 m.count();
             },
             hasItems},
        };
        return all;
    }

    /// The user fills the list on show, chooses among its items or shows another list.
    void byHand()
    {
        static const QStringList pieces{u"a"_s, u"A"_s, u"b"_s, u"tea"_s, u"/"_s, u"'"_s};
        ListBox &box = form().lists.shown();
        switch (random.number(0, 3)) {
        case 0: {
            QStringList items;
            for (int left = random.number(1, 6); left > 0; --left)
                items.append(random.oneOf(pieces) + random.oneOf(pieces) + random.oneOf(pieces));
            box.addItems(items);
            for (const QString &item : items)
                model.list().AddItem(item);
            break;
        }
        case 1:
            model.shown = random.number(0, 4);
            form().lists.cboMNList.setListIndex(model.shown);
            break;
        default: {
            std::vector<bool> selected;
            for (int i = 0; i < box.listCount(); ++i)
                selected.push_back(random.oneIn(3));
            model.list().listIndex = random.number(-1, box.listCount() - 1);
            model.list().selected = selected;
            box.choose(model.list().listIndex, selected);
        }
        }
        model.status = lastStatus();
    }

    RandomText random{55};
    Model model;
};
} // namespace

TEST_F(ManualRandomTest, TenThousandStepsAgreeWithTheModel)
{
    form().frame.sstSearch.setTab(Tab::Manual);
    for (int round = 0; round < 10000; ++round) {
        if (random.oneIn(2)) {
            byHand();
            continue;
        }
        const Step &step = steps()[std::size_t(random.number(0, int(steps().size()) - 1))];
        auto &item = static_cast<MenuItem &>(*form().control(QString(step.item)));
        form().menus.mnuPopUpMN.prepare();
        ASSERT_EQ(item.isEnabled(), step.offered(model)) << step.item.data() << " in round " << round;
        if (!item.isEnabled())
            continue;
        const QString answer = step.asks ? random.oneOf({u"A"_s, u"tea"_s, u"/"_s, QString()}) : QString();
        dialogs.inputAnswers = step.asks ? QStringList{answer} : QStringList();
        item.click();
        if (!step.asks || !answer.isEmpty())
            step.apply(model, answer);
        for (int i = 0; i < 5; ++i)
            ASSERT_EQ(plain::of(form().lists.lstMN(i)), model.lists[i]) << step.item.data() << " in round " << round;
        ASSERT_EQ(lastStatus(), model.status) << step.item.data() << " in round " << round;
        if (step.item == "mnuMNSaveToDatabase"_L1 || step.item == "mnuMNDeleteSaved"_L1) {
            ASSERT_EQ(rows(u"MNUrls"_s + model.name()), model.tables[model.shown]) << "round " << round;
            ASSERT_EQ(rows(u"UrlsCache"_s), model.cache) << "round " << round;
        }
        dialogs.inputs.clear();
        statuses = {lastStatus()};
    }
}
