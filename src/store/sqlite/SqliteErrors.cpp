#include "store/sqlite/SqliteErrors.h"

#include <sqlite3.h>

namespace {
qint64 numberOf(int code)
{
    switch (code & 0xFF) {
    case SQLITE_ERROR:
    case SQLITE_AUTH:
        return AdoError::BadSql;
    case SQLITE_MISMATCH:
    case SQLITE_TOOBIG:
    case SQLITE_CONSTRAINT:
        return AdoError::MultipleStep;
    default:
        return AdoError::Engine;
    }
}
} // namespace

RuntimeError engineError(const SQLite::Exception &error)
{
    return {numberOf(error.getErrorCode()), QString::fromUtf8(error.what())};
}
