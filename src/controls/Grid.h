// A grid of texts as a plain object: what stands behind it, the cell in use, the block of selected cells, the widths of
// its columns. Its rows are read when they are looked at. Rows and columns count from 0; the heads are no row.
#pragma once

#include "controls/Control.h"

#include <QStringList>
#include <memory>
#include <vector>

/// The column by which rows are sorted; -1 for none.
struct SortMark
{
    int column = -1;
    Qt::SortOrder order = Qt::AscendingOrder;
    friend bool operator==(const SortMark &, const SortMark &) = default;
    /// What follows from a click on a head: the first sorts up, the second down, the third no more.
    [[nodiscard]] SortMark clicked(int head) const;
};

/// What stands behind a grid. While a grid shows it, rows may be added at its end, and nothing else changes.
class GridRows
{
  public:
    virtual ~GridRows() = default;
    [[nodiscard]] virtual QStringList heads() const = 0;
    /// Those that are known.
    [[nodiscard]] virtual int rowCount() const = 0;
    /// "" for what is not there.
    [[nodiscard]] virtual QString text(int row, int column) const = 0;
    /// The same where a cell shows the beginning of a long text alone.
    [[nodiscard]] virtual QString wholeText(int row, int column) const { return text(row, column); }
    /// Goes on looking for rows for about so many milliseconds. True once all are known; sorted ones are known
    /// together.
    [[nodiscard]] virtual bool advance(int /*milliseconds*/) const { return true; }

    [[nodiscard]] virtual SortMark order() const { return {}; }
    [[nodiscard]] virtual bool canSort() const { return false; }
    /// The rows in another order; nothing where they can have none.
    [[nodiscard]] virtual std::shared_ptr<const GridRows> sorted(SortMark /*order*/) const { return {}; }
};

/// A block of cells, both ends included. Without cells all four are -1.
struct CellBlock
{
    int top = -1, left = -1, bottom = -1, right = -1;
    [[nodiscard]] bool isEmpty() const { return top < 0 || left < 0 || bottom < top || right < left; }
    friend bool operator==(const CellBlock &, const CellBlock &) = default;
};

class Grid : public Control
{
    Q_OBJECT

  public:
    Grid(const QString &name, QObject *parent);

    /// Shows `rows` from their first cell on; null shows nothing.
    void setDataSource(std::shared_ptr<const GridRows> rows);
    /// The rows on show have become more.
    void takeMoreRows();
    [[nodiscard]] const std::shared_ptr<const GridRows> &dataSource() const { return mRows; }

    [[nodiscard]] int cols() const { return static_cast<int>(mHeads.size()); }
    [[nodiscard]] int rows() const { return mRows ? mRows->rowCount() : 0; }
    [[nodiscard]] QString head(int column) const { return mHeads.value(column); }
    [[nodiscard]] QString textMatrix(int row, int column) const;

    [[nodiscard]] int row() const { return mRow; }
    [[nodiscard]] int col() const { return mColumn; }
    /// The text of the cell in use.
    [[nodiscard]] QString text() const { return textMatrix(mRow, mColumn); }
    [[nodiscard]] const CellBlock &selection() const { return mSelection; }
    /// The user's choice, or the program's: the cell in use, and the selected cells around it. What lies outside the
    /// grid is cut off; a cell outside selects nothing.
    void select(int row, int column, const CellBlock &block);
    void select(int row, int column) { select(row, column, {row, column, row, column}); }
    /// The selected cells: a tab between columns, a carriage return between rows.
    [[nodiscard]] QString clip() const;

    /// In twips; -1 where nobody has set one.
    [[nodiscard]] int colWidth(int column) const;
    void setColWidth(int column, int twips);

    /// Shown in a head.
    [[nodiscard]] SortMark sortMark() const { return mRows ? mRows->order() : SortMark(); }
    /// A click on a head has a meaning.
    [[nodiscard]] bool canSort() const { return mRows && mRows->canSort(); }
    /// The user's click on a column's head.
    void clickHead(int column) { Q_EMIT headClicked(column); }
    /// The user's key for copying.
    void askForCopy() { Q_EMIT copyAsked(); }

  Q_SIGNALS:
    void selectionMoved();
    void headClicked(int column);
    void copyAsked();

  private:
    std::shared_ptr<const GridRows> mRows;
    QStringList mHeads;
    std::vector<int> mWidths;
    CellBlock mSelection;
    int mRow = -1, mColumn = -1;
};
