#include "window/commands/CriteriaPanel.h"

CriteriaPanel::CriteriaPanel(const Context &context, frmSearch &form, CriteriaSets &criteria, ListMenu &menu)
    : mContext(context), mForm(form), mCriteria(criteria)
{
    connect(&form.criteria.cboANMCMNCMask, &ComboBox::Click, this, [this] {
        mCriteria.AssignMaskElements();
        mContext.states.SetStateOfControls();
    });
    connect(&form.criteria.cmdANMCMaskAdd, &Button::Click, this, [this] {
        mContext.status.UpDateStatus(mCriteria.AddMCMNCSet());
        mContext.states.SetStateOfControls();
    });
    connect(&form.criteria.cmdANMCMaskMinus, &Button::Click, this, [this] {
        mContext.status.UpDateStatus(mCriteria.RemoveMCMNCSet());
        mContext.states.SetStateOfControls();
    });
    connectList(CriteriaSets::List::MustContain, form.criteria.mustContain, menu);
    connectList(CriteriaSets::List::MustNotContain, form.criteria.mustNotContain, menu);
}

void CriteriaPanel::connectList(CriteriaSets::List list, Criterion &criterion, ListMenu &menu)
{
    // What the commands answer is not told.
    menu.serve({criterion.items, [this, list] { mCriteria.AddMC(list); }, [this, list] { mCriteria.RemoveMCMNC(list); },
                [this, list] { mCriteria.ClearMC(list); },
                [this, list](const QString &text) { mCriteria.drop(list, text); }});
    connect(&criterion.add, &Button::Click, this, [this, list] {
        mCriteria.AddMC(list);
        mContext.states.SetStateOfControls();
    });
    // Before the form is ready the list may still be on its way.
    connect(&criterion.demand, &ComboBox::Click, this, [this, list] {
        if (mForm.mbFormReady)
            mCriteria.demandChosen(list);
    });
    connect(&criterion.items, &ListBox::Click, this, [this, list] { mCriteria.showTip(list); });
}
