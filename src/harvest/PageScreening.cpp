#include "harvest/PageScreening.h"

#include "controls/cLstBx.h"
#include "pages/Addresses.h"
#include "pages/PageTexts.h"
#include "store/Transaction.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr int urlIfNoData = 7;
constexpr QStringView errorPageTexts[] = {u"not found",          u"404",        u"page missing",
                                          u"cannot find server", u"url Broken", u"system cannot find"};

/// The controls of one of the two text tests.
struct TextTest
{
    CheckBox &on, &caseSensitive;
    ComboBox &mode;
    ListBox &list;
    Label &lamp;
};

Demand demandOf(const ComboBox &mode)
{
    return static_cast<Demand>(std::max(mode.listIndex(), 0));
}

/// The frame that both tests share: what is tested, which item is shown as the one that decided, and the lamp's colour.
template <class Decide> bool runTest(const TextTest &test, PageReading &page, Decide decide)
{
    if (!test.on.isOn()) {
        test.lamp.setBackColor(Colours::ButtonFace);
        return true;
    }
    const Demand demand = demandOf(test.mode);
    Screening decision;
    if (test.list.listCount() > 0) {
        if (demand != Demand::Select)
            cLstBx::UnSelect(test.list);
        QStringList items = test.list.items();
        if (demand == Demand::Select) {
            items = cLstBx::GetItems(test.list, cLstBx::Which::Selected);
            if (firstOf(items).isEmpty())
                items.clear();
        }
        decision =
            decide(page.html(), items, demand, test.caseSensitive.isOn() ? Qt::CaseSensitive : Qt::CaseInsensitive);
        if (demand != Demand::Select && decision.decidedBy >= 0)
            test.list.setSelected(static_cast<int>(decision.decidedBy), true);
    }
    test.lamp.setBackColor(decision.mayGo ? Colours::Green : Colours::Red);
    return decision.mayGo;
}

Colour reported(bool on, bool saved)
{
    return !on ? Colours::ButtonFace : saved ? Colours::Green : Colours::Red;
}
} // namespace

PageScreening::PageScreening(ErrorReceiver &log, frmSearch &form, StatusLine &status, cTimer &timer,
                             DatabaseHolder &database, Navigation &navigation, ResultWriters &writers)
    : mLog(log), mForm(form), mStatus(status), mTimer(timer), mDatabase(database), mNavigation(navigation),
      mWriters(writers)
{
}

bool PageScreening::NotQB(const QString &url)
{
    return guardedResult(mLog, {module, "Function NotQB"_L1}, false,
                         [&](bool &mayOpen) { mayOpen = ::NotQB(url, mForm.blocking.mastrQB); });
}

void PageScreening::PageNotFound(PageReading &page)
{
    guarded(mLog, {module, "sub PageNotFound"_L1}, [&] {
        const qint64 least = mForm.limits.incNotFoundMinSize.value();
        if (least != 0 && page.html().size() > least)
            return;
        const bool isErrorPage =
            std::any_of(std::begin(errorPageTexts), std::end(errorPageTexts), [&](QStringView text) {
                return cUtility::holdsIgnoringCase(page.html(), text) ||
                       cUtility::holdsIgnoringCase(page.title(), text);
            });
        if (!isErrorPage)
            return;
        mTimer.CancelTimer();
        const QString server = cIEText::GetServerFromUrl(page.url(), cIEText::keepAll);
        mStatus.UpDateStatus(u"404 - Opening Server"_s);
        page.forget();
        mNavigation.OpenSite(server);
        mTimer.TimeIt(mForm.autoRun.incANTiming.value());
    });
}

bool PageScreening::IsMCGo(PageReading &page)
{
    return guardedResult(mLog, {module, "Function IsMCGo"_L1}, false, [&](bool &go) {
        const TextTest test{mForm.criteria.mustContain.on, mForm.criteria.mustContain.caseSensitive,
                            mForm.criteria.mustContain.demand, mForm.criteria.mustContain.items,
                            mForm.criteria.mustContain.lamp};
        go = runTest(test, page, mustContain);
    });
}

bool PageScreening::IsMNCGo(PageReading &page)
{
    return guardedResult(mLog, {module, "Function IsMNCGo"_L1}, false, [&](bool &go) {
        const TextTest test{mForm.criteria.mustNotContain.on, mForm.criteria.mustNotContain.caseSensitive,
                            mForm.criteria.mustNotContain.demand, mForm.criteria.mustNotContain.items,
                            mForm.criteria.mustNotContain.lamp};
        go = runTest(test, page,
                     [](QStringView html, const QStringList &items, Demand, Qt::CaseSensitivity sensitivity) {
                         return mustNotContain(html, items, sensitivity);
                     });
    });
}

void PageScreening::CollectData(PageReading &page)
{
    guarded(mLog, {module, "Sub CollectData"_L1}, [&] {
        const bool wantPage = mForm.outputs.chkSavePages.isOn() &&
                              (mForm.outputs.chkSaveToFile.value() == 1 || mForm.outputs.chkSaveToSS.value() == 1);
        const qint64 least = mForm.limits.incSMDMinHtmlSize.value();
        if (least > 0 && page.html().size() < least) {
            for (Label *lamp : {&mForm.outputs.lblSummarySaved, &mForm.outputs.lblPageSaved,
                                &mForm.outputs.lblEmailSaved, &mForm.outputs.lblPhoneSaved, &mForm.outputs.lblUrlSaved})
                lamp->setBackColor(Colours::ButtonFace);
            mStatus.UpDateStatus(u"Insufficient Size"_s);
            return;
        }
        if (!IsMCGo(page) || !IsMNCGo(page)) {
            mForm.browser.picANEnd.setBackColor(mForm.outputs.chkMCMNCStop.isOn() ? Colours::Green
                                                                                  : Colours::ButtonFace);
            return;
        }
        const Outcome outcome = write(page, wantPage);
        mForm.browser.picANEnd.setBackColor(stopOnPass());
        showOutcome(outcome);
    });
}

PageScreening::Outcome PageScreening::write(PageReading &page, bool wantPage)
{
    Outcome outcome;
    outcome.wantPage = wantPage;
    bool committed = false;
    guarded(mLog, {module, "Sub CollectData"_L1}, [&] {
        Transaction transaction(*mDatabase);
        if (mForm.outputs.chkSaveSummary.isOn())
            outcome.summary = mWriters.SaveSummary(page);
        if (wantPage)
            outcome.file = mWriters.SaveFile(page);
        if (mForm.outputs.chkSaveEmail.isOn())
            outcome.email = mWriters.SaveEmail(page);
        if (mForm.outputs.chkSavePhone.isOn())
            outcome.phone = mWriters.SavePhone(page);
        const bool noData = outcome.summary % 2 == 0 && !outcome.file && !outcome.email && !outcome.phone;
        if (mForm.outputs.chkSaveUrl.isOn() && (!mForm.options.chkSMD(urlIfNoData).isOn() || noData))
            outcome.url = mWriters.SavePassUrl(page);
        committed = transaction.commit();
    });
    // Rows that did not reach the file are not reported as saved; a page written to a file of its own is there.
    const QMap<QString, int> rows = mWriters.takeAdded();
    if (committed)
        Q_EMIT rowsStored(rows);
    else
        outcome = {wantPage, ResultWriters::NothingSaved, outcome.file, false, false, false};
    return outcome;
}

Colour PageScreening::stopOnPass()
{
    if (!mForm.outputs.chkMCMNCStop.isOn())
        return Colours::ButtonFace;
    if (mForm.runs.mbANRunning) {
        mForm.runs.mbANMCMNCStopped = true;
        mForm.runs.mbANCancel = true;
        return Colours::Red;
    }
    if (mForm.runs.mbMNRunning) {
        mForm.runs.mbMNMCMNCStopped = true;
        mForm.runs.mbMNCancel = true;
        return Colours::Blue;
    }
    return Colours::ButtonFace;
}

void PageScreening::showOutcome(const Outcome &outcome)
{
    constexpr Colour bySummary[] = {Colours::Red, Colours::Green, Colours::Yellow, Colours::Green};
    mForm.outputs.lblSummarySaved.setBackColor(mForm.outputs.chkSaveSummary.isOn() ? bySummary[outcome.summary]
                                                                                   : Colours::ButtonFace);
    mForm.outputs.lblPageSaved.setBackColor(reported(outcome.wantPage, outcome.file));
    mForm.outputs.lblEmailSaved.setBackColor(reported(mForm.outputs.chkSaveEmail.isOn(), outcome.email));
    mForm.outputs.lblPhoneSaved.setBackColor(reported(mForm.outputs.chkSavePhone.isOn(), outcome.phone));
    mForm.outputs.lblUrlSaved.setBackColor(reported(mForm.outputs.chkSaveUrl.isOn(), outcome.url));
}
