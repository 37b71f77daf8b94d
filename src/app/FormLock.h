// While one lives the user can do nothing in the main window but end the program: its other controls are disabled.
#pragma once

#include "app/frmSearch.h"

class FormLock
{
  public:
    /// `form` outlives it.
    explicit FormLock(frmSearch &form)
    {
        for (Control *const control : form.findChildren<Control *>(Qt::FindDirectChildrenOnly)) {
            if (!control->isEnabled() || control == &form.browser.picANEnd)
                continue;
            control->setEnabled(false);
            mLocked.append(control);
        }
    }
    ~FormLock()
    {
        for (Control *const control : mLocked)
            control->setEnabled(true);
    }
    Q_DISABLE_COPY_MOVE(FormLock)

  private:
    QList<Control *> mLocked;
};
