// The events of the criteria on the Auto tab, each led to the operation that answers it.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "lists/CriteriaSets.h"
#include "window/commands/ListMenu.h"

class CriteriaPanel : public QObject
{
    Q_OBJECT

  public:
    CriteriaPanel(const Context &context, frmSearch &form, CriteriaSets &criteria, ListMenu &menu);

  private:
    void connectList(CriteriaSets::List list, Criterion &criterion, ListMenu &menu);

    Context mContext;
    const frmSearch &mForm;
    CriteriaSets &mCriteria;
};
