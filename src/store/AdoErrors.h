// The numbers of database errors, as the rules of the program know them, and the texts that go with them.
#pragma once

#include "util/Errors.h"

namespace AdoError {
/// A statement that is none of the statements of this system, or that names an unknown column.
constexpr qint64 BadSql = -2147217900;
constexpr qint64 NoSuchTable = -2147217865;
/// A step that found several things wrong at once: a text too long for its column, a number out of range.
constexpr qint64 MultipleStep = -2147217887;
constexpr qint64 TypeMismatch = -2147352571;
/// The row of a recordset has gone since the recordset was opened.
constexpr qint64 RowDeleted = -2147217885;
/// Anything the file or the engine refuses: no database, damaged, locked, read-only, full.
constexpr qint64 Engine = -2147467259;
constexpr qint64 NoCurrentRow = 3021;
constexpr qint64 NotAllowed = 3219;
constexpr qint64 NoReadWrite = 3251;
constexpr qint64 NoSuchField = 3265;
constexpr qint64 ObjectClosed = 3704;
constexpr qint64 ConnectionClosed = 3709;

constexpr qint64 NoSuchTableIndex = static_cast<qint32>(0x80040066U);
constexpr qint64 TableNotInMatrix = static_cast<qint32>(0x80040067U);
constexpr qint64 TooManyTables = static_cast<qint32>(0x80040068U);
constexpr qint64 TooManyFields = static_cast<qint32>(0x80040069U);

/// The error of that number with its usual text.
[[nodiscard]] RuntimeError error(qint64 number);
} // namespace AdoError
