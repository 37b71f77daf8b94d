// The tool tips of the controls, and those that say what a control holds.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"

class ToolTips : public QObject
{
    Q_OBJECT

  public:
    ToolTips(const Context &context, frmSearch &form);

    /// Sets every control's tool tip, or clears it.
    void ShowTootTips(bool show);

  private:
    void mirror(TextBox &box, const QString &whenEmpty = {});
    void mirrorPath(TextBox &box, const QString &whileOff);
    void tellCase(CheckBox &box, const QString &items);

    Context mContext;
    frmSearch &mForm;
};
