// Databases other than the open one, to read: files of this system, and files of the other kinds that the reader
// process knows. Nothing is written to them. Inside store/ only.
#pragma once

#include "store/rows/RecordsetState.h"

namespace ForeignDatabase {
struct Table
{
    QString name;
    bool isUserTable = false;
    QStringList columns;
};

/// All tables in the order of the catalog. Errors: AdoError::Engine for a file that cannot be read.
[[nodiscard]] std::vector<Table> catalog(const QString &path);

/// The rows that a query gives. Rows of another program's file are copied into a private store first.
/// Errors: AdoError::BadSql (also for a DELETE), AdoError::NoSuchTable, AdoError::Engine.
[[nodiscard]] std::shared_ptr<KeySet> query(const QString &path, const QString &statement);
} // namespace ForeignDatabase
