// The events of the criteria on the Auto tab, each led to the operation that answers it.
#pragma once

#include "app/frmSearch.h"
#include "lists/CriteriaSets.h"

class CriteriaPanel : public QObject
{
    Q_OBJECT

  public:
    CriteriaPanel(frmSearch &form, StatusLine &status, ControlStates &states, CriteriaSets &criteria);

  private:
    void connectList(CriteriaSets::List list, ListBox &box, Button &add, ComboBox &demand);

    frmSearch &mForm;
    StatusLine &mStatus;
    ControlStates &mStates;
    CriteriaSets &mCriteria;
};
