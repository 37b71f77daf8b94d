// Sets a control by its name, as a user would at the window.
#pragma once

#include "app/frmSearch.h"

/// 0 or 1 for a box, an index or a text for a combo, digits for a number box, text for a text box; for a list box one
/// more item; 1 clicks a menu item, unless it is checked already, and 0 one that is. What the control does not take
/// raises a RuntimeError with one clear line.
void setControl(frmSearch &form, const QString &name, const QString &value);
