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
template <class Decide> bool PageTests::runTest(Criterion &test, PageReading &page, Decide decide)
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
        decision = decide(page.html(), testedItems(test.items, demand), demand,
                          test.caseSensitive.isOn() ? Qt::CaseSensitive : Qt::CaseInsensitive);
        if (demand != Demand::Select && decision.decidedBy >= 0)
            test.items.setSelected(static_cast<int>(decision.decidedBy), true);
    }
    test.lamp.setBackColor(decision.mayGo ? Colours::Green : Colours::Red);
    return decision.mayGo;
}

bool PageTests::NotQB(const QString &url)
{
    return guardedResult(mLog, {module, "Function NotQB"_L1}, false,
                         [&](bool &mayOpen) { mayOpen = ::NotQB(url, mBlocking.mastrQB); });
}

bool PageTests::IsMCGo(PageReading &page)
{
    return guardedResult(mLog, {module, "Function IsMCGo"_L1}, false,
                         [&](bool &go) { go = runTest(mCriteria.mustContain, page, mustContain); });
}

bool PageTests::IsMNCGo(PageReading &page)
{
    return guardedResult(mLog, {module, "Function IsMNCGo"_L1}, false, [&](bool &go) {
        go = runTest(mCriteria.mustNotContain, page,
                     [](QStringView html, const QStringList &items, Demand, Qt::CaseSensitivity sensitivity) {
                         return mustNotContain(html, items, sensitivity);
                     });
    });
}

bool PageTests::areOn() const
{
    return mCriteria.mustContain.on.isOn() || mCriteria.mustNotContain.on.isOn();
}
