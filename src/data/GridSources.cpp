#include "data/GridSources.h"

#include "data/Cells.h"
#include "util/Errors.h"

QString TableRows::text(int row, int column) const
{
    return Cells::text({{}, mPages.kind(column)}, mPages.cell(row, column));
}

QString TableRows::wholeText(int row, int column) const
{
    const DataColumn described{{}, mPages.kind(column)};
    return described.isBytes() ? QString() : Cells::text(described, mPages.value(row, column));
}

SortMark TableRows::order() const
{
    return {static_cast<int>(heads().indexOf(mPages.sorting().column)), mPages.sorting().order};
}

std::shared_ptr<const GridRows> TableRows::sorted(SortMark order) const
{
    return std::make_shared<TableRows>(mPages.sorted({heads().value(order.column), order.order}));
}

SavedRows::SavedRows(const Recordset &rows) : mRows(rows.Clone()), mCount(static_cast<int>(rows.RecordCount()))
{
    for (const DataColumn &column : Cells::columnsOf(mRows))
        mHeads.append(column.name);
}

QString SavedRows::text(int row, int column) const
{
    // A file that has gone or changed shows empty cells; there is nobody to tell at each of them.
    try {
        mRows.setAbsolutePosition(row + 1);
        const Field field = mRows.Fields()[column];
        return Cells::text({{}, field.Type()}, field.Value());
    } catch (const RuntimeError &) {
        return {};
    }
}
