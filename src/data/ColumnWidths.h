// How wide the columns of a grid are, by their names. Knows controls.
#pragma once

#include "controls/Grid.h"

#include <span>

namespace ColumnWidths {
struct Width
{
    QLatin1StringView names; ///< parted by blanks
    int twips;
};
using Table = std::span<const Width>;

/// Sets each column's width; one whose name is in no row is as wide as the column before it, the first 0.
void set(Grid &grid, Table widths);
} // namespace ColumnWidths
