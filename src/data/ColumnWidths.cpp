#include "data/ColumnWidths.h"

#include <algorithm>

void ColumnWidths::set(Grid &grid, Table widths)
{
    int width = 0;
    for (int column = 0; column < grid.cols(); ++column) {
        const QString head = grid.head(column);
        const auto row = std::find_if(widths.begin(), widths.end(), [&](const Width &candidate) {
            return QString(candidate.names).split(u' ').contains(head);
        });
        if (row != widths.end())
            width = row->twips;
        grid.setColWidth(column, width);
    }
}
