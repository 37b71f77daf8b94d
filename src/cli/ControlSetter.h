// Sets controls by their names, as a user would at the window. In which order they were given does not matter: what
// fills other controls comes first, and what the events do is done once all values are in place.
#pragma once

#include "app/Ports.h"
#include "app/frmSearch.h"
#include "cli/Arguments.h"

/// The order in which the controls take their values; values of one control stay in theirs. A RuntimeError with one
/// clear line for a name that no control has.
[[nodiscard]] QList<Arguments::Setting> inOrderOfSetting(const frmSearch &form, QList<Arguments::Setting> settings);
/// 0 or 1 for a box and a menu item, an index or a text for a combo, digits for a number box, text for a text box; for
/// a list box one more item. What a control does not take raises a RuntimeError with one clear line.
void setControls(frmSearch &form, ControlStates &states, const QList<Arguments::Setting> &settings);
