// The forms in which rows are written to a file, one row after another: nothing of what has been written is kept.
#pragma once

#include "data/Cells.h"

#include <memory>

/// Takes the rows of one export.
class RowWriter
{
  public:
    virtual ~RowWriter() = default;
    virtual void row(const DataRow &values) = 0;
    /// Completes what has been written; that may take long. It touches nothing but the file, in whatever thread.
    virtual void complete() {}
    /// Gives the complete file its name. Without this call no file is left.
    virtual void finish() = 0;
    /// How many texts did not fit and were cut.
    [[nodiscard]] virtual qint64 cutTexts() const { return 0; }
};

enum class DataFormat {
    Comma,       ///< values parted by commas, as they are
    Tab,         ///< values that each end in a tab, a blank line behind each row
    HtmlCells,   ///< a table of bare cells, "N/A" for Null
    HtmlLinks,   ///< a table in which addresses are links; a Null is error 94
    Csv,         ///< RFC 4180 with heads
    JsonLines,   ///< one object a line
    Spreadsheet, ///< XLSX
    Database,    ///< an SQLite file with the one table
    Saved,       ///< a saved recordset that can be loaded again
    SavedXml     ///< the same as XML
};

namespace RowWriters {
/// A writer of a form in text, Comma to JsonLines.
[[nodiscard]] std::unique_ptr<RowWriter> text(DataFormat format, const QString &path, const DataColumns &columns);
/// A writer of a spreadsheet; `table` names its sheets.
[[nodiscard]] std::unique_ptr<RowWriter> spreadsheet(const QString &path, const QString &table,
                                                     const DataColumns &columns);
/// A writer of an SQLite file with one table.
[[nodiscard]] std::unique_ptr<RowWriter> database(const QString &path, const QString &table,
                                                  const DataColumns &columns);
} // namespace RowWriters
