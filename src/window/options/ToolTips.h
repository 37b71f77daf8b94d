// The tool tips of the controls.
#pragma once

#include "app/frmSearch.h"

/// Sets every control's tool tip, or clears it.
void showToolTips(frmSearch &form, bool show);
