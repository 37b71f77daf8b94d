// A random sequence of the commands of the Manual tab's two menus, held against the plain model of lists, tables,
// series, filters, what may be chosen, and statuses.
#include "window/ManualCommandsFixture.h"
#include "window/PlainManual.h"

#include "util/RandomText.h"

using namespace Qt::StringLiterals;

namespace {
struct Step
{
    QLatin1StringView item;
    bool asks;
    void (*apply)(plain::Manual &model, const QString &answer);
};
using M = plain::Manual;

const Step steps[] = {
    {"mnuMNMagnify"_L1, false, [](M &m, const QString &) { m.magnify(); }},
    {"mnuMNClear"_L1, false, [](M &m, const QString &) { m.clear(); }},
    {"mnuMNDeleteSaved"_L1, false, [](M &m, const QString &) { m.deleteSaved(); }},
    {"mnuMNClearSelected"_L1, false, [](M &m, const QString &) { m.clearSelected(); }},
    {"mnuMNClearAllListWindows"_L1, false, [](M &m, const QString &) { m.clearAll(); }},
    {"mnuMNUnSelect"_L1, false, [](M &m, const QString &) { plain::UnSelect(m.list()); }},
    {"mnuMNSelectAll"_L1, false, [](M &m, const QString &) { m.selectAll(); }},
    {"mnuMNPasteLinks"_L1, false, [](M &m, const QString &) { m.paste(); }},
    {"mnuMNCutSelected"_L1, false, [](M &m, const QString &) { m.cut(); }},
    {"mnuMNCopySelected"_L1, false, [](M &m, const QString &) { m.copy(); }},
    {"mnuMNFind(0)"_L1, true, [](M &m, const QString &text) { m.find(text); }},
    {"mnuMNFind(1)"_L1, false, [](M &m, const QString &) { m.goOnFinding(); }},
    {"mnuMNFind(2)"_L1, false, [](M &m, const QString &) { m.findPosition(); }},
    {"mnuMNSaveToDatabase"_L1, false, [](M &m, const QString &) { m.save(); }},
    {"mnuMNSaveLast"_L1, false, [](M &m, const QString &) { m.savePosition(); }},
    {"mnuMNStatusSaveListWindowUrl"_L1, true, [](M &m, const QString &note) { m.mark(m.item(), note); }},
    {"mnuMNLoadLinksDB"_L1, false, [](M &m, const QString &) { m.load(); }},
    {"mnuMNLSU(0)"_L1, false, [](M &m, const QString &) { m.loadOther(m.autoSelect); }},
    {"mnuMNLSU(1)"_L1, false, [](M &m, const QString &) { m.loadOther(m.manualSelect); }},
    {"mnuMNLSU(2)"_L1, false, [](M &m, const QString &) { m.loadOther(m.passUrls); }},
    {"mnuMNLSU(3)"_L1, false, [](M &m, const QString &) { m.loadOther(m.savedUrls); }},
    {"mnuMNLSU(4)"_L1, false, [](M &m, const QString &) { m.loadOther(m.cache); }},
    {"mnuMNUseSiteData"_L1, false, [](M &m, const QString &) { m.siteData = !m.siteData; }},
    {"mnuMNAddFilter"_L1, false, [](M &m, const QString &) { m.addFilter(); }},
    {"mnuMNDeleteFilter"_L1, false, [](M &m, const QString &) { m.deleteFilter(); }},
    {"mnuMNLocateFilter"_L1, false, [](M &m, const QString &) { m.locateFilter(); }},
    {"mnuMNReduceToServer"_L1, false, [](M &m, const QString &) { m.screen(true); }},
    {"mnuMNUniqueServersOnly"_L1, false, [](M &m, const QString &) { m.uniqueServers(); }},
    {"mnuMNRem(0)"_L1, false, [](M &m, const QString &) { m.screen(false); }},
    {"mnuMNRem(1)"_L1, false, [](M &m, const QString &) { m.removeProtocol(); }},
    {"mnuMNRem(2)"_L1, true, [](M &m, const QString &text) { m.truncate(text, true); }},
    {"mnuMNRem(3)"_L1, true, [](M &m, const QString &text) { m.truncate(text, false); }},
    {"mnuMNRem(4)"_L1, true, [](M &m, const QString &text) { m.removeItems(text, true); }},
    {"mnuMNRem(5)"_L1, true, [](M &m, const QString &text) { m.removeItems(text, false); }},
    {"mnuMNStatusMagnify"_L1, false, [](M &m, const QString &) { m.magnified = m.GetUseBaseUrl(2); }},
    {"mnuMNStatusElongate"_L1, false, [](M &m, const QString &) { m.elongated = !m.elongated; }},
    {"mnuMNStatusAutoIncrPos(1)"_L1, false, [](M &m, const QString &) { m.SetAutoIncrPos(1); }},
    {"mnuMNStatusAutoIncrPos(2)"_L1, false, [](M &m, const QString &) { m.SetAutoIncrPos(2); }},
    {"mnuMNStatusAutoIncrPos(3)"_L1, false, [](M &m, const QString &) { m.SetAutoIncrPos(3); }},
    {"mnuMNStatusListCP(0)"_L1, false, [](M &m, const QString &) { m.collect(m.collectPages, 0, true); }},
    {"mnuMNStatusListCP(3)"_L1, false, [](M &m, const QString &) { m.collect(m.collectPages, 3, true); }},
    {"mnuMNStatusListCL(0)"_L1, false, [](M &m, const QString &) { m.collect(m.collectLinks, 0, false); }},
    {"mnuMNStatusListCL(4)"_L1, false, [](M &m, const QString &) { m.collect(m.collectLinks, 4, false); }},
    {"mnuMNStatusAutoNavigate"_L1, false, [](M &m, const QString &) { m.navigates = !m.navigates; }},
    {"mnuMNUseAutoBase"_L1, false, [](M &m, const QString &) { m.useBase(); }},
    {"mnuMNStatusSaveAutoTextUrl"_L1, false, [](M &m, const QString &) { m.saveAutoText(); }},
    {"mnuMNStatusSaveUrlMNSelect"_L1, true, [](M &m, const QString &note) { m.mark(m.url, note); }},
    {"mnuMNStatusDeleteAutoTextUrl"_L1, false, [](M &m, const QString &) { m.deleteAutoText(); }},
    {"mnuMNSetFirstFromTextBox"_L1, false, [](M &m, const QString &) { m.takeStart(); }},
};
constexpr QLatin1StringView notes[] = {"mnuMNStatusSaveListWindowUrl"_L1, "mnuMNStatusSaveUrlMNSelect"_L1};

class ManualRandomTest : public ManualCommandsTest
{
  protected:
    ManualRandomTest()
    {
        form().options.chkSMD(5).setValue(0); // notes are asked for
        for (const auto &[rows, table] : {std::pair{&model.autoSelect, u"ANSelectUrls"_s}}) {
            *rows = {u"http://www.an.com/"_s, u"HTTP://www.A.com/1"_s};
            for (const QString &url : *rows)
                addUrl(table, url);
        }
        model.passUrls = {u"http://www.pass.com/"_s};
        model.savedUrls = {u"http://www.rp.com/"_s, u"http://www.rp.com/2"_s};
        for (const QString &url : model.passUrls)
            addSaved(u"p"_s, url, u"PassUrlsA"_s);
        for (const QString &url : model.savedUrls)
            addSaved(u"r"_s, url);
        statuses = {QString()};
        model.numberBox = form().series.incMNAutoUrl.value();
        openMenus();
        program->states.SetStateOfControls();
        model.SetStateOfControls();
    }

    void openMenus()
    {
        form().menus.mnuPopUpMN.prepare();
        model.openListMenu();
        form().menus.mnuPopUpMNStatus.prepare();
        model.openStatusMenu();
    }

    void fillByHand()
    {
        ListBox &box = list();
        if (box.listCount() > 40) {
            box.clear();
            model.list().Clear();
        }
        QStringList items;
        for (int left = random.number(1, 5); left > 0; --left)
            items.append(random.oneOf(beginnings) + random.oneOf(ends));
        box.addItems(items);
        for (const QString &item : items)
            model.list().AddItem(item);
    }
    void chooseByHand()
    {
        std::vector<bool> selected;
        for (int i = 0; i < list().listCount(); ++i)
            selected.push_back(random.oneIn(3));
        const int focus = list().listCount() - 1;
        model.list().listIndex = focus < 0 ? -1 : random.number(0, focus);
        model.list().selected = selected;
        list().choose(model.list().listIndex, selected);
    }
    void typeByHand()
    {
        const QString url = random.oneOf({QString(), u"www.a.com/7"_s, u"www.a.com/07/9"_s, u"www.b.com/1/2/3"_s,
                                          u"no.address"_s, u"www.a.com/~ins~/5"_s});
        form().series.cboMNAutoUrl.setText(url);
        if (url != model.url)
            model.typeUrl(url);
    }
    void filterByHand()
    {
        if (random.oneIn(2)) {
            const QString text = random.oneOf({QString(), u"tea"_s, u"TEA"_s, u"x"_s});
            form().urlFilter.cboMNMCMNCFilter.setText(text);
            model.typeFilter(text);
        } else {
            model.filterKind = random.number(0, 2);
            form().urlFilter.cboMNMCMNC.setListIndex(model.filterKind);
        }
    }
    /// The user fills the list on show, chooses among its items, types, or shows another list.
    void byHand()
    {
        switch (random.number(0, 7)) {
        case 0:
        case 1:
            return fillByHand();
        case 2:
        case 3:
        case 4:
            return chooseByHand();
        case 5:
            return typeByHand();
        case 6:
            return filterByHand();
        default:
            const int index = random.number(0, 4);
            form().lists.cboMNList.setListIndex(index);
            model.show(index);
        }
    }
    void command()
    {
        const Step &step = steps[std::size_t(random.number(0, int(std::size(steps)) - 1))];
        const bool isNote = std::find(std::begin(notes), std::end(notes), step.item) != std::end(notes);
        tag = step.item;
        if (!item(step.item).isEnabled() || (isNote && step.item == notes[0] && model.item().isEmpty()))
            return;
        const QString answer = step.asks ? random.oneOf({u"A"_s, u"tea"_s, u"/"_s, u".com"_s, QString()}) : QString();
        dialogs.inputAnswers = step.asks ? QStringList{answer} : QStringList();
        item(step.item).click();
        if (!step.asks || isNote || !answer.isEmpty())
            step.apply(model, answer);
    }
    /// A run over one of the lists goes for a moment.
    void look()
    {
        model.runs = form().runs.mbMNRunning = true;
        model.walked = form().manual.mintMNRunningList = random.number(0, 4);
        openMenus();
        compareMenus();
        model.runs = form().runs.mbMNRunning = false;
    }

    /// Looked for once: a search through all controls at each step would take most of the time.
    const Control &controlOf(const QString &name)
    {
        const Control *&known = controls[name];
        if (known == nullptr)
            known = form().control(name);
        return *known;
    }
    void compareMenus()
    {
        for (auto state = model.enabled.begin(); state != model.enabled.end(); ++state)
            ASSERT_EQ(controlOf(state.key()).isEnabled(), state.value()) << state.key().toStdString();
    }
    void compare()
    {
        for (int i = 0; i < 5; ++i)
            ASSERT_EQ(plain::of(form().lists.lstMN(i)), model.lists[i]) << i;
        ASSERT_EQ(lastStatus(), model.status);
        ASSERT_EQ(clipboard.held, model.clipboard);
        ASSERT_EQ(side.magnified.value(side.magnified.size() - 1), model.magnified);
        ASSERT_EQ(form().series.cboMNAutoUrl.text(), model.url);
        ASSERT_EQ(form().series.incMNAutoUrl.value(), model.numberBox);
        ASSERT_EQ(program->manual.desk.GetAutoIncrChecked(), model.position);
        ASSERT_EQ(form().collect.mlngAutoCollectState, model.collectState);
        ASSERT_EQ(form().urlFilter.cboMNMCMNC.listIndex(), model.filterKind);
        ASSERT_EQ(form().urlFilter.cboMNMCMNCFilter.text(), model.filterText);
        for (const auto &[name, checked] : {std::pair{"mnuMNUseAutoBase"_L1, model.base},
                                            {"mnuMNUseSiteData"_L1, model.siteData},
                                            {"mnuMNStatusElongate"_L1, model.elongated},
                                            {"mnuMNStatusAutoNavigate"_L1, model.navigates}})
            ASSERT_EQ(item(name).isChecked(), checked) << name.data();
    }
    void compareTables()
    {
        for (int i = 0; i < 5; ++i) {
            ASSERT_EQ(rows(u"MNUrls"_s + M::letter(i)), model.tables[i]);
            QStringList texts;
            for (const M::AutoText &row : model.autoTexts[i])
                texts.append(row.url);
            ASSERT_EQ(rows(u"AutoText"_s + M::letter(i)), texts);
        }
        ASSERT_EQ(rows(u"UrlsCache"_s), model.cache);
        ASSERT_EQ(rows(u"MNSelectUrls"_s), model.manualSelect);
        QStringList filters;
        for (const M::Filter &filter : model.filters)
            filters.append(filter.text);
        ASSERT_EQ(rows(u"MNUrlFilters"_s, u"FilterOne"_s), filters);
    }

    static inline const QStringList beginnings{
        u"http://www.a.com/"_s, u"HTTP://www.A.com/"_s, u"www.b.co.uk/x"_s, u"tea"_s, u"o'"_s, u"http://"_s};
    static inline const QStringList ends{QString(), u"1"_s, u"2/"_s, u"tea"_s, u"A/"_s};
    RandomText random{55};
    M model;
    QLatin1StringView tag;
    QHash<QString, const Control *> controls;
};
} // namespace

TEST_F(ManualRandomTest, TenThousandStepsAgreeWithThePlainModel)
{
    for (int round = 0; round < 10000 && !HasFatalFailure(); ++round) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, u"round %1"_s.arg(round).toStdString());
        tag = {};
        if (random.oneIn(3))
            byHand();
        else
            command();
        const testing::ScopedTrace which(__FILE__, __LINE__, tag.isEmpty() ? "by hand" : tag.data());
        program->states.SetStateOfControls();
        model.SetStateOfControls();
        compare();
        if (round % 50 == 0)
            compareTables();
        if (round % 20 == 0)
            look();
        openMenus();
        compareMenus();
        dialogs.inputs.clear();
        statuses = {lastStatus()};
    }
}
