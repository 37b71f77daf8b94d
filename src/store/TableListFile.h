// The table list file: "[table]" on a line, then one field a line. Knows no database.
#pragma once

#include <QStringList>
#include <vector>

/// The tables of the file in order, each its name followed by its fields, as they stand. Blank lines do not count; CR
/// LF, CR or LF end a line. A table without a name is passed over with its fields, since an empty name would end the
/// list for its readers. Nothing for an empty file name, a missing file, and a file without "[" and "]" behind it.
/// Error 5 for a "[" that is never closed.
[[nodiscard]] std::vector<QStringList> readTableListFile(const QString &fileName);
