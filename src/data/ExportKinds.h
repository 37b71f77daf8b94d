// What can be exported, as a table: each kind has a number and an item in the menu, a word on the command line, the end
// of its files' names, and a form. Knows nobody but the forms.
#pragma once

#include "data/RowWriters.h"

struct ExportKind
{
    int number;
    QLatin1StringView menuItem;
    QLatin1StringView word;
    QLatin1StringView extension;
    DataFormat format;
    bool longColumns; ///< pages and pictures of the site summary go with it
};

namespace ExportKinds {
using namespace Qt::Literals::StringLiterals;

inline constexpr int html = 1;
inline constexpr ExportKind all[] = {
    {html, "mnuDBStatusHtmlTable"_L1, "html"_L1, ".htm"_L1, DataFormat::HtmlLinks, false},
    {2, "mnuDBStatusCommaDelimited"_L1, "comma"_L1, ".txt"_L1, DataFormat::Comma, false},
    {3, "mnuDBStatusTabDelimited"_L1, "tab"_L1, ".txt"_L1, DataFormat::Tab, false},
    {4, "mnuDBStatusReloadableRS"_L1, "dat"_L1, ".dat"_L1, DataFormat::Saved, false},
    {5, "mnuDBStatusCsv"_L1, "csv"_L1, ".csv"_L1, DataFormat::Csv, false},
    {6, "mnuDBStatusJsonLines"_L1, "jsonl"_L1, ".jsonl"_L1, DataFormat::JsonLines, false},
    {7, "mnuDBStatusSpreadsheet"_L1, "xlsx"_L1, ".xlsx"_L1, DataFormat::Spreadsheet, false},
    {8, "mnuDBStatusSqlite"_L1, "sqlite"_L1, ".sqlite"_L1, DataFormat::Database, true},
};

/// Null where there is none.
[[nodiscard]] constexpr const ExportKind *ofNumber(int number)
{
    return number >= 1 && number <= int(std::size(all)) ? &all[number - 1] : nullptr;
}
[[nodiscard]] constexpr const ExportKind *ofWord(QStringView word)
{
    for (const ExportKind &kind : all) {
        if (word == kind.word)
            return &kind;
    }
    return nullptr;
}
} // namespace ExportKinds
