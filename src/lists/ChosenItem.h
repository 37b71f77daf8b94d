// The one item of a list box that a command acts on.
#pragma once

#include "controls/ListControls.h"

/// The selected item where exactly one is, otherwise the one with the focus; "" where there is neither.
[[nodiscard]] inline QString chosenItem(const ListBox &list)
{
    for (int i = 0; list.selCount() == 1 && i < list.listCount(); ++i) {
        if (list.isSelected(i))
            return list.list(i);
    }
    return list.list(list.listIndex());
}
