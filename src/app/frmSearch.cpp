#include "app/frmSearch.h"

Control *frmSearch::control(const QString &name) const
{
    return findChild<Control *>(name, Qt::FindDirectChildrenOnly);
}
