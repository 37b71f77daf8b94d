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
        plan[&mForm.cmdANInitialize] = !mForm.mbInitialized;
        if (mForm.mbInitialized) {
            const Facts facts{mForm.mbANRunning, mForm.mbMNRunning, !mForm.mbANRunning && !mForm.mbMNRunning};
            anyTab(plan, facts);
            withoutOutput(plan);
            if (mForm.sstSearch.tab() == autoTabIndex)
                autoTab(plan, facts);
            plan[&mForm.chkSaveEmail] = facts.idle;
            if (mForm.sstSearch.tab() == settingsTabIndex) {
                for (Control *control :
                     {static_cast<Control *>(&mForm.chkSaveToFile), static_cast<Control *>(&mForm.chkSaveToSS),
                      static_cast<Control *>(&mForm.txtSBSelAreaCodes)})
                    plan[control] = facts.idle;
                plan[&mForm.chkPutInOneFile] = facts.idle && mForm.chkSaveToFile.value() == 1;
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
         {static_cast<Control *>(&mForm.lblAutoIncrPos), static_cast<Control *>(&mForm.lblAutoPgUrls),
          static_cast<Control *>(&mForm.lblAutoCollect), static_cast<Control *>(&mForm.incMNAutoUrl),
          static_cast<Control *>(&mForm.incMNStep)})
        plan[control] = false;
    return plan;
}

void StateOfControls::anyTab(Plan &plan, const Facts &facts)
{
    Label &timer = mForm.lblTrawlexTimer;
    timer.setBackColor(facts.autoRun ? Colours::Red : facts.manualRun ? Colours::Blue : Colours::ButtonFace);
    timer.setForeColor(facts.idle ? Colours::WindowText : Colours::White);
    plan[&mForm.cmdANStart] = !facts.manualRun;
    plan[&mForm.cmdMNStart] = !facts.autoRun;
    for (Control *control :
         {static_cast<Control *>(&mForm.lblAutoIncrPos), static_cast<Control *>(&mForm.lblAutoPgUrls),
          static_cast<Control *>(&mForm.lblAutoCollect), static_cast<Control *>(&mForm.chkSMA(3)),
          static_cast<Control *>(&mForm.cboANList)})
        plan[control] = facts.idle;
}

/// Without any output chosen there is nothing to test pages for.
void StateOfControls::withoutOutput(Plan &plan)
{
    const CheckBox *outputs[] = {&mForm.chkSaveSummary, &mForm.chkSavePages, &mForm.chkSaveUrl,
                                 &mForm.chkSaveEmail,   &mForm.chkSavePhone, &mForm.chkMCMNCStop};
    const bool any =
        std::any_of(std::begin(outputs), std::end(outputs), [](const CheckBox *box) { return box->isOn(); });
    if (!any) {
        for (CheckBox *box : {&mForm.chkMustContain, &mForm.chkMCCS, &mForm.chkMustNotContain, &mForm.chkMNCCS})
            box->setValue(0);
    }
    plan[&mForm.chkMustContain] = any;
    plan[&mForm.chkMustNotContain] = any;
}

void StateOfControls::autoTab(Plan &plan, const Facts &facts)
{
    plan[&mForm.lblAutoCollect] = true;
    blocking(plan, facts);
    criteria(plan);
    saving(plan, facts);
    savedUrls(plan, facts);
}

void StateOfControls::blocking(Plan &plan, const Facts &facts)
{
    const bool hasEmail = mForm.lstBlockedEmailC.listCount() > 0;
    const bool hasUrl = mForm.lstBlockedUrlC.listCount() > 0;
    if (!hasEmail)
        mForm.chkEmailBlocking.setValue(0);
    if (!hasUrl)
        mForm.chkUrlBlocking.setValue(0);
    plan[&mForm.chkEmailBlocking] = mForm.chkSaveEmail.value() == 1 && hasEmail && facts.idle;
    plan[&mForm.chkUrlBlocking] = hasUrl && facts.idle;
}

void StateOfControls::criteria(Plan &plan)
{
    const bool contain = mForm.chkMustContain.value() == 1;
    const bool notContain = mForm.chkMustNotContain.value() == 1;
    const bool hasSet = mForm.cboANMCMNCMask.listIndex() >= 0;
    plan[&mForm.cmdANMCMaskAdd] = contain || notContain;
    plan[&mForm.cmdANMCMaskMinus] = (contain || notContain) && hasSet;
    plan[&mForm.cboANMCMNCMask] = (contain || notContain) && hasSet;
    for (Control *control : {static_cast<Control *>(&mForm.lstANMC), static_cast<Control *>(&mForm.cmdANAddMC),
                             static_cast<Control *>(&mForm.lstANMCAllAny), static_cast<Control *>(&mForm.chkMCCS)})
        plan[control] = hasSet && contain;
    for (Control *control : {static_cast<Control *>(&mForm.lstANMNC), static_cast<Control *>(&mForm.cmdANAddMNC),
                             static_cast<Control *>(&mForm.lstANMNCAllAny), static_cast<Control *>(&mForm.chkMNCCS)})
        plan[control] = hasSet && notContain;
}

void StateOfControls::saving(Plan &plan, const Facts &facts)
{
    for (Control *control : {static_cast<Control *>(&mForm.chkSavePhone), static_cast<Control *>(&mForm.chkSaveSummary),
                             static_cast<Control *>(&mForm.lblAutoPgUrls), static_cast<Control *>(&mForm.chkSavePages),
                             static_cast<Control *>(&mForm.chkMCMNCStop)})
        plan[control] = facts.idle;
    const bool savesPages = facts.idle && mForm.chkSavePages.value() == 1;
    for (Control *control : {static_cast<Control *>(&mForm.txtANStartTag), static_cast<Control *>(&mForm.txtANStopTag),
                             static_cast<Control *>(&mForm.cboANSaveType)})
        plan[control] = savesPages;
    if (!facts.idle)
        return;
    for (Label *lamp : {&mForm.lblUrlSaved, &mForm.lblSummarySaved, &mForm.lblEmailSaved, &mForm.lblPageSaved,
                        &mForm.lblPhoneSaved, &mForm.lblMCColor, &mForm.lblMNCColor})
        lamp->setBackColor(Colours::ButtonFace);
    if (mForm.mbPassUrlsLoaded)
        mForm.chkSaveUrl.setValue(0);
    plan[&mForm.chkSaveUrl] = !mForm.mbPassUrlsLoaded;
}

void StateOfControls::savedUrls(Plan &plan, const Facts &facts)
{
    const bool hasEntries = mForm.cboANSavedUrls.listCount() > 0;
    if (facts.idle && !hasEntries)
        mForm.chkUseSavedUrls.setValue(0);
    const bool used = mForm.chkUseSavedUrls.value() == 1;
    const bool editable = facts.idle && !used;
    const bool chosen = mForm.cboANSavedUrls.listIndex() >= 0;
    plan[&mForm.chkUseSavedUrls] = facts.idle && hasEntries;
    plan[&mForm.cmdANSavedAdd] = editable && !mForm.mbPassUrlsLoaded;
    plan[&mForm.cboANSavedUrls] = editable && hasEntries;
    plan[&mForm.cmdANSavedMinus] = editable && hasEntries && chosen;
    plan[&mForm.cmdANSavedGo] = editable && hasEntries && chosen;
}

void StateOfControls::apply(const Plan &plan)
{
    for (auto row = plan.begin(); row != plan.end(); ++row)
        row.key()->setEnabled(row.value());
}
