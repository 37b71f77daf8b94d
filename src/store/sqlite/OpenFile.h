// Opens the files of databases, each in the way that leaves least behind. Inside store/ only.
#pragma once

#include "store/sqlite/Connection.h"

#include <SQLiteCpp/Database.h>

/// Throws SQLite::Exception for a file that is missing, no database, damaged or locked.
[[nodiscard]] std::unique_ptr<SQLite::Database> openDatabaseFile(const QString &path, Connection::Access access);
