#include "controls/Grid.h"

#include <algorithm>

SortMark SortMark::clicked(int head) const
{
    if (column != head)
        return {head, Qt::AscendingOrder};
    return order == Qt::AscendingOrder ? SortMark{head, Qt::DescendingOrder} : SortMark();
}

Grid::Grid(const QString &name, QObject *parent) : Control(name, parent)
{
    setBackColor(Colours::Window);
    setForeColor(Colours::WindowText);
}

void Grid::setDataSource(std::shared_ptr<const GridRows> rows)
{
    mRows = std::move(rows);
    mHeads = mRows ? mRows->heads() : QStringList();
    mWidths.assign(static_cast<std::size_t>(cols()), -1);
    mRow = mColumn = -1;
    mSelection = {};
    Q_EMIT changed();
    select(0, 0);
}

void Grid::takeMoreRows()
{
    Q_EMIT changed();
    if (mRow < 0)
        select(0, 0);
}

QString Grid::textMatrix(int row, int column) const
{
    const bool there = row >= 0 && row < rows() && column >= 0 && column < cols();
    return there ? mRows->wholeText(row, column) : QString();
}

void Grid::select(int row, int column, const CellBlock &block)
{
    const bool there = row >= 0 && row < rows() && column >= 0 && column < cols();
    CellBlock wanted;
    if (there)
        wanted = {std::max(0, block.top), std::max(0, block.left), std::min(block.bottom, rows() - 1),
                  std::min(block.right, cols() - 1)};
    if (wanted.isEmpty())
        wanted = {};
    const int newRow = there ? row : -1;
    const int newColumn = there ? column : -1;
    if (newRow == mRow && newColumn == mColumn && wanted == mSelection)
        return;
    mRow = newRow;
    mColumn = newColumn;
    mSelection = wanted;
    Q_EMIT changed();
    Q_EMIT selectionMoved();
}

QString Grid::clip() const
{
    QStringList lines;
    for (int row = mSelection.top; !mSelection.isEmpty() && row <= mSelection.bottom; ++row) {
        QStringList cells;
        for (int column = mSelection.left; column <= mSelection.right; ++column)
            cells.append(textMatrix(row, column));
        lines.append(cells.join(u'\t'));
    }
    return lines.join(u'\r');
}

int Grid::colWidth(int column) const
{
    return column >= 0 && column < cols() ? mWidths[static_cast<std::size_t>(column)] : -1;
}

void Grid::setColWidth(int column, int twips)
{
    if (column >= 0 && column < cols())
        assign(mWidths[static_cast<std::size_t>(column)], std::max(0, twips));
}
