#include "window/commands/CriteriaPanel.h"

CriteriaPanel::CriteriaPanel(frmSearch &form, StatusLine &status, ControlStates &states, CriteriaSets &criteria)
    : mForm(form), mStatus(status), mStates(states), mCriteria(criteria)
{
    connect(&form.criteria.cboANMCMNCMask, &ComboBox::Click, this, [this] {
        mCriteria.AssignMaskElements();
        mStates.SetStateOfControls();
    });
    connect(&form.criteria.cmdANMCMaskAdd, &Button::Click, this, [this] {
        mStatus.UpDateStatus(mCriteria.AddMCMNCSet());
        mStates.SetStateOfControls();
    });
    connect(&form.criteria.cmdANMCMaskMinus, &Button::Click, this, [this] {
        mStatus.UpDateStatus(mCriteria.RemoveMCMNCSet());
        mStates.SetStateOfControls();
    });
    connectList(CriteriaSets::List::MustContain, form.criteria.mustContain.items, form.criteria.mustContain.add,
                form.criteria.mustContain.demand);
    connectList(CriteriaSets::List::MustNotContain, form.criteria.mustNotContain.items,
                form.criteria.mustNotContain.add, form.criteria.mustNotContain.demand);
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
