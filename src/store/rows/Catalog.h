// Making, reading and testing the tables of a file. Inside store/ only.
#pragma once

#include "store/TableFieldMatrix.h"
#include "store/sqlite/Connection.h"

namespace Catalog {
/// A field of a table to be made. A kind of 3 under the name "Index" is counted up by the engine.
struct NewField
{
    QString name;
    int kind;
};

/// Makes a table. Error AdoError::BadSql for one that is there already and for one without fields.
void createTable(Connection &connection, const QString &name, const std::vector<NewField> &fields);

/// Removes a table with its rows. Error AdoError::NoSuchTable.
void dropTable(Connection &connection, const QString &name);

/// Makes all tables of the matrix with the kinds that follow from the fields' names, the indexes that the system's own
/// questions need, and the file's marks. All or nothing.
void createAll(Connection &connection, const TableFieldMatrix &matrix);

/// True for a table of the user's: not of the engine's own kind, no name that begins with "sys", not
/// "MSysAccessObjects".
[[nodiscard]] bool isUserTable(const QString &name);

/// The names of the user's tables in the order of the catalog.
[[nodiscard]] QStringList userTables(Connection &connection);

/// True if the file has exactly the tables of the matrix, with exactly their columns, by name and number.
[[nodiscard]] bool matches(Connection &connection, const TableFieldMatrix &matrix);
} // namespace Catalog
