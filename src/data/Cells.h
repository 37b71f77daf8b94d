// The cells of rows that leave the program: their columns, and their values as text. Knows store.
#pragma once

#include "store/Recordset.h"

#include <vector>

/// A column of what is written or read. `kind` is the number of its type: 3, 7, 130, 203, 205 in files of this system.
struct DataColumn
{
    QString name;
    int kind = 0;
    [[nodiscard]] bool isDate() const { return kind == 7; }
    [[nodiscard]] bool isBytes() const { return kind == 205; }
};
using DataColumns = std::vector<DataColumn>;
using DataRow = std::vector<QVariant>;

namespace Cells {
[[nodiscard]] DataColumns columnsOf(const Recordset &rows);

/// The value as text: a date as it is stored, its time behind a blank; Null is "".
[[nodiscard]] QString text(const DataColumn &column, const QVariant &value);

/// True for a number as it stands in a statement: a sign, digits, a point, an exponent, and nothing else.
[[nodiscard]] bool isNumber(QStringView text);

/// `text` as a spreadsheet shows it without running it: what begins like a formula and is no number gets an apostrophe.
[[nodiscard]] QString harmless(const QString &text);
} // namespace Cells
