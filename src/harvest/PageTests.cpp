#include "harvest/PageTests.h"

#include "controls/cLstBx.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;

Demand demandOf(const ComboBox &mode)
{
    return static_cast<Demand>(std::max(mode.listIndex(), 0));
}

/// What is tested: all items, or those that the user has selected.
QStringList testedItems(const ListBox &list, Demand demand)
{
    if (demand != Demand::Select)
        return list.items();
    QStringList selected = cLstBx::GetItems(list, cLstBx::Which::Selected);
    if (firstOf(selected).isEmpty())
        selected.clear();
    return selected;
}
} // namespace

/// The frame that both tests share: what is tested, which item is shown as the one that decided, and the lamp's colour.
template <class Decide> bool PageTests::runTest(Criterion &test, KeptTextSet &texts, PageReading &page, Decide decide)
{
    if (!test.on.isOn()) {
        test.lamp.setBackColor(Colours::ButtonFace);
        return true;
    }
    const Demand demand = demandOf(test.demand);
    Screening decision;
    if (test.items.listCount() > 0) {
        if (demand != Demand::Select)
            cLstBx::UnSelect(test.items);
        const auto sensitivity = test.caseSensitive.isOn() ? Qt::CaseSensitive : Qt::CaseInsensitive;
        decision = decide(page.html(), texts.of(testedItems(test.items, demand), sensitivity), demand);
        if (demand != Demand::Select && decision.decidedBy >= 0)
            test.items.setSelected(static_cast<int>(decision.decidedBy), true);
    }
    test.lamp.setBackColor(decision.mayGo ? Colours::Green : Colours::Red);
    return decision.mayGo;
}

bool PageTests::NotQB(const QString &url)
{
    return guardedResult(mLog, {module, "Function NotQB"_L1}, false,
                         [&](bool &mayOpen) { mayOpen = ::NotQB(url, mBlocking.mastrQB, mQuickBlock); });
}

bool PageTests::IsMCGo(PageReading &page)
{
    return guardedResult(mLog, {module, "Function IsMCGo"_L1}, false, [&](bool &go) {
        go = runTest(mCriteria.mustContain, mMust, page, [](QStringView html, const TextSet &items, Demand demand) {
            return mustContain(html, items, demand);
        });
    });
}

bool PageTests::IsMNCGo(PageReading &page)
{
    return guardedResult(mLog, {module, "Function IsMNCGo"_L1}, false, [&](bool &go) {
        go = runTest(mCriteria.mustNotContain, mMustNot, page,
                     [](QStringView html, const TextSet &items, Demand) { return mustNotContain(html, items); });
    });
}

bool PageTests::areOn() const
{
    return mCriteria.mustContain.on.isOn() || mCriteria.mustNotContain.on.isOn();
}
