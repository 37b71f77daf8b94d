#include "window/commands/CriteriaPanel.h"

CriteriaPanel::CriteriaPanel(frmSearch &form, StatusLine &status, ControlStates &states, CriteriaSets &criteria)
    : mForm(form), mStatus(status), mStates(states), mCriteria(criteria)
{
    connect(&form.cboANMCMNCMask, &ComboBox::Click, this, [this] {
        mCriteria.AssignMaskElements();
        mStates.SetStateOfControls();
    });
    connect(&form.cmdANMCMaskAdd, &Button::Click, this, [this] {
        mStatus.UpDateStatus(mCriteria.AddMCMNCSet());
        mStates.SetStateOfControls();
    });
    connect(&form.cmdANMCMaskMinus, &Button::Click, this, [this] {
        mStatus.UpDateStatus(mCriteria.RemoveMCMNCSet());
        mStates.SetStateOfControls();
    });
    connectList(CriteriaSets::List::MustContain, form.lstANMC, form.cmdANAddMC, form.lstANMCAllAny);
    connectList(CriteriaSets::List::MustNotContain, form.lstANMNC, form.cmdANAddMNC, form.lstANMNCAllAny);
}

void CriteriaPanel::connectList(CriteriaSets::List list, ListBox &box, Button &add, ComboBox &demand)
{
    connect(&add, &Button::Click, this, [this, list] {
        mCriteria.AddMC(list); // what it answers is not told
        mStates.SetStateOfControls();
    });
    connect(&demand, &ComboBox::Click, this, [this, list] { mCriteria.demandChosen(list); });
    connect(&box, &ListBox::Click, this, [this, list] { mCriteria.showTip(list); });
}
