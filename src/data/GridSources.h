// What stands behind a grid of this system: the rows of a table, or those of a saved recordset. Rows are read as they
// are looked at. Knows controls and store.
#pragma once

#include "controls/Grid.h"
#include "store/Recordset.h"
#include "store/TablePages.h"

/// Rows of a table of the open database.
class TableRows : public GridRows
{
  public:
    explicit TableRows(TablePages pages) : mPages(std::move(pages)) {}
    [[nodiscard]] QStringList heads() const override { return mPages.columns(); }
    [[nodiscard]] int rowCount() const override { return static_cast<int>(mPages.knownRows()); }
    [[nodiscard]] QString text(int row, int column) const override;
    [[nodiscard]] QString wholeText(int row, int column) const override;
    [[nodiscard]] bool advance(int milliseconds) const override { return mPages.advance(milliseconds); }
    [[nodiscard]] SortMark order() const override;
    [[nodiscard]] bool canSort() const override { return true; }
    [[nodiscard]] std::shared_ptr<const GridRows> sorted(SortMark order) const override;

  private:
    TablePages mPages;
};

/// Rows of a saved recordset.
class SavedRows : public GridRows
{
  public:
    /// Error 3704 for a set that is not open.
    explicit SavedRows(const Recordset &rows);
    [[nodiscard]] QStringList heads() const override { return mHeads; }
    [[nodiscard]] int rowCount() const override { return mCount; }
    [[nodiscard]] QString text(int row, int column) const override;

  private:
    mutable Recordset mRows;
    QStringList mHeads;
    int mCount;
};
