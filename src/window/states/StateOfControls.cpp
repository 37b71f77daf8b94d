#include "window/states/StateOfControls.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {
constexpr int autoTabIndex = 0;
constexpr int settingsTabIndex = 2;

// What is never switched off as a whole.
constexpr QLatin1StringView untouchedPrefixes[] = {"mnu"_L1, "pop"_L1, "lst"_L1, "pic"_L1, "lbl"_L1,
                                                   "sst"_L1, "lin"_L1, "lab"_L1, "inc"_L1};
constexpr QLatin1StringView untouchedNames[] = {"chkSMA("_L1, "chkSMD("_L1, "chkSMV("_L1, "cboANWBSelect"_L1,
                                                "chkPutInOneFile"_L1};

template <std::size_t count> bool startsWithOneOf(const QString &name, const QLatin1StringView (&starts)[count])
{
    return std::any_of(std::begin(starts), std::end(starts),
                       [&](QLatin1StringView start) { return name.startsWith(start); });
}
} // namespace

void StateOfControls::SetStateOfControls()
{
    if (!mForm.mbFormReady || mUnderWay)
        return;
    const QScopedValueRollback<bool> underWay(mUnderWay, true);
    guarded(mLog, {"frmSearch"_L1, "Sub SetStateOfControls"_L1}, [&] {
        Plan plan = allOff();
        plan[&mForm.browser.cmdANInitialize] = !mForm.browser.mbInitialized;
        if (mForm.browser.mbInitialized) {
            const Facts facts{mForm.runs.mbANRunning, mForm.runs.mbMNRunning,
                              !mForm.runs.mbANRunning && !mForm.runs.mbMNRunning};
            anyTab(plan, facts);
            withoutOutput(plan);
            if (mForm.frame.sstSearch.tab() == autoTabIndex)
                autoTab(plan, facts);
            plan[&mForm.outputs.chkSaveEmail] = facts.idle;
            if (mForm.frame.sstSearch.tab() == settingsTabIndex) {
                for (Control *control : {static_cast<Control *>(&mForm.outputs.chkSaveToFile),
                                         static_cast<Control *>(&mForm.outputs.chkSaveToSS),
                                         static_cast<Control *>(&mForm.areaCodes.txtSBSelAreaCodes)})
                    plan[control] = facts.idle;
                plan[&mForm.outputs.chkPutInOneFile] = facts.idle && mForm.outputs.chkSaveToFile.value() == 1;
            }
        }
        apply(plan);
    });
}

StateOfControls::Plan StateOfControls::allOff() const
{
    Plan plan;
    for (Control *control : mForm.findChildren<Control *>(Qt::FindDirectChildrenOnly)) {
        if (!startsWithOneOf(control->name(), untouchedPrefixes) && !startsWithOneOf(control->name(), untouchedNames))
            plan[control] = false;
    }
    for (Control *control :
         {static_cast<Control *>(&mForm.collect.lblAutoIncrPos), static_cast<Control *>(&mForm.collect.lblAutoPgUrls),
          static_cast<Control *>(&mForm.collect.lblAutoCollect), static_cast<Control *>(&mForm.series.incMNAutoUrl),
          static_cast<Control *>(&mForm.series.incMNStep)})
        plan[control] = false;
    return plan;
}

void StateOfControls::anyTab(Plan &plan, const Facts &facts)
{
    Label &timer = mForm.browser.lblTrawlexTimer;
    timer.setBackColor(facts.autoRun ? Colours::Red : facts.manualRun ? Colours::Blue : Colours::ButtonFace);
    timer.setForeColor(facts.idle ? Colours::WindowText : Colours::White);
    plan[&mForm.autoRun.cmdANStart] = !facts.manualRun;
    plan[&mForm.manual.cmdMNStart] = !facts.autoRun;
    for (Control *control :
         {static_cast<Control *>(&mForm.collect.lblAutoIncrPos), static_cast<Control *>(&mForm.collect.lblAutoPgUrls),
          static_cast<Control *>(&mForm.collect.lblAutoCollect), static_cast<Control *>(&mForm.options.chkSMA(3)),
          static_cast<Control *>(&mForm.saved.cboANList)})
        plan[control] = facts.idle;
}

/// Without any output chosen there is nothing to test pages for.
void StateOfControls::withoutOutput(Plan &plan)
{
    const CheckBox *outputs[] = {&mForm.outputs.chkSaveSummary, &mForm.outputs.chkSavePages,
                                 &mForm.outputs.chkSaveUrl,     &mForm.outputs.chkSaveEmail,
                                 &mForm.outputs.chkSavePhone,   &mForm.outputs.chkMCMNCStop};
    const bool any =
        std::any_of(std::begin(outputs), std::end(outputs), [](const CheckBox *box) { return box->isOn(); });
    if (!any) {
        for (CheckBox *box : {&mForm.criteria.mustContain.on, &mForm.criteria.mustContain.caseSensitive,
                              &mForm.criteria.mustNotContain.on, &mForm.criteria.mustNotContain.caseSensitive})
            box->setValue(0);
    }
    plan[&mForm.criteria.mustContain.on] = any;
    plan[&mForm.criteria.mustNotContain.on] = any;
}

void StateOfControls::autoTab(Plan &plan, const Facts &facts)
{
    plan[&mForm.collect.lblAutoCollect] = true;
    blocking(plan, facts);
    criteria(plan);
    saving(plan, facts);
    savedUrls(plan, facts);
}

void StateOfControls::blocking(Plan &plan, const Facts &facts)
{
    const bool hasEmail = mForm.blocking.email.items.listCount() > 0;
    const bool hasUrl = mForm.blocking.urls.items.listCount() > 0;
    if (!hasEmail)
        mForm.blocking.email.on.setValue(0);
    if (!hasUrl)
        mForm.blocking.urls.on.setValue(0);
    plan[&mForm.blocking.email.on] = mForm.outputs.chkSaveEmail.value() == 1 && hasEmail && facts.idle;
    plan[&mForm.blocking.urls.on] = hasUrl && facts.idle;
}

void StateOfControls::criteria(Plan &plan)
{
    const bool contain = mForm.criteria.mustContain.on.value() == 1;
    const bool notContain = mForm.criteria.mustNotContain.on.value() == 1;
    const bool hasSet = mForm.criteria.cboANMCMNCMask.listIndex() >= 0;
    plan[&mForm.criteria.cmdANMCMaskAdd] = contain || notContain;
    plan[&mForm.criteria.cmdANMCMaskMinus] = (contain || notContain) && hasSet;
    plan[&mForm.criteria.cboANMCMNCMask] = (contain || notContain) && hasSet;
    for (Control *control : {static_cast<Control *>(&mForm.criteria.mustContain.items),
                             static_cast<Control *>(&mForm.criteria.mustContain.add),
                             static_cast<Control *>(&mForm.criteria.mustContain.demand),
                             static_cast<Control *>(&mForm.criteria.mustContain.caseSensitive)})
        plan[control] = hasSet && contain;
    for (Control *control : {static_cast<Control *>(&mForm.criteria.mustNotContain.items),
                             static_cast<Control *>(&mForm.criteria.mustNotContain.add),
                             static_cast<Control *>(&mForm.criteria.mustNotContain.demand),
                             static_cast<Control *>(&mForm.criteria.mustNotContain.caseSensitive)})
        plan[control] = hasSet && notContain;
}

void StateOfControls::saving(Plan &plan, const Facts &facts)
{
    for (Control *control :
         {static_cast<Control *>(&mForm.outputs.chkSavePhone), static_cast<Control *>(&mForm.outputs.chkSaveSummary),
          static_cast<Control *>(&mForm.collect.lblAutoPgUrls), static_cast<Control *>(&mForm.outputs.chkSavePages),
          static_cast<Control *>(&mForm.outputs.chkMCMNCStop)})
        plan[control] = facts.idle;
    const bool savesPages = facts.idle && mForm.outputs.chkSavePages.value() == 1;
    for (Control *control :
         {static_cast<Control *>(&mForm.outputs.txtANStartTag), static_cast<Control *>(&mForm.outputs.txtANStopTag),
          static_cast<Control *>(&mForm.outputs.cboANSaveType)})
        plan[control] = savesPages;
    if (!facts.idle)
        return;
    for (Label *lamp : {&mForm.outputs.lblUrlSaved, &mForm.outputs.lblSummarySaved, &mForm.outputs.lblEmailSaved,
                        &mForm.outputs.lblPageSaved, &mForm.outputs.lblPhoneSaved, &mForm.criteria.mustContain.lamp,
                        &mForm.criteria.mustNotContain.lamp})
        lamp->setBackColor(Colours::ButtonFace);
    if (mForm.saved.mbPassUrlsLoaded)
        mForm.outputs.chkSaveUrl.setValue(0);
    plan[&mForm.outputs.chkSaveUrl] = !mForm.saved.mbPassUrlsLoaded;
}

void StateOfControls::savedUrls(Plan &plan, const Facts &facts)
{
    const bool hasEntries = mForm.saved.cboANSavedUrls.listCount() > 0;
    if (facts.idle && !hasEntries)
        mForm.saved.chkUseSavedUrls.setValue(0);
    const bool used = mForm.saved.chkUseSavedUrls.value() == 1;
    const bool editable = facts.idle && !used;
    const bool chosen = mForm.saved.cboANSavedUrls.listIndex() >= 0;
    plan[&mForm.saved.chkUseSavedUrls] = facts.idle && hasEntries;
    plan[&mForm.saved.cmdANSavedAdd] = editable && !mForm.saved.mbPassUrlsLoaded;
    plan[&mForm.saved.cboANSavedUrls] = editable && hasEntries;
    plan[&mForm.saved.cmdANSavedMinus] = editable && hasEntries && chosen;
    plan[&mForm.saved.cmdANSavedGo] = editable && hasEntries && chosen;
}

void StateOfControls::apply(const Plan &plan)
{
    for (auto row = plan.begin(); row != plan.end(); ++row)
        row.key()->setEnabled(row.value());
}
