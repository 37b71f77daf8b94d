// What is done with database files as a whole. Inside store/ only.
#pragma once

#include "store/TableFieldMatrix.h"
#include "store/sqlite/Connection.h"

#include <functional>

namespace DatabaseFiles {
/// True if there is a file of that name, or if one could be made: this is tried. False where the folder is missing.
/// Error 75 for a place that refuses.
[[nodiscard]] bool isFileOrCanBeOne(const QString &path);

/// True if the file begins as the engine's files do.
[[nodiscard]] bool isSqlite(const QString &path);

/// The other programs that hold the file for writing; see PlatformFiles.
[[nodiscard]] QStringList lockHolders(const QString &path);

/// Has `fill` build a file beside the place, for this user alone to read and write, and moves it there when it is
/// complete. A file that is there already goes, with its logs. Errors leave the old file, and nothing half made.
void build(const QString &path, const std::function<void(Connection &)> &fill);

/// Makes a database with the tables of the matrix in this way.
void create(const QString &path, const TableFieldMatrix &matrix);

/// Gives unused space of the file back. A fault at any moment leaves the rows as they were.
void compact(const QString &path);
} // namespace DatabaseFiles
