#include "store/sqlite/SqliteErrors.h"
#include "store/sqlite/PlatformFiles.h"

#include <QFileInfo>
#include <algorithm>
#include <array>
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

// SQLite says no more than that it cannot open the file or one beside it.
StoreFault whyNotOpened(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return StoreFault::Gone;
    if (!file.isFile() || !PlatformFiles::mayRead(path))
        return StoreFault::Unreadable;
    const StoreFault folder = StoreFaults::ofFolder(file.absolutePath());
    return folder == StoreFault::None ? StoreFault::Failed : folder;
}

// The system's last words about the file and the log beside it.
std::array<int, 2> lastSystemErrors(sqlite3 *handle)
{
    std::array<int, 2> errors{};
    sqlite3_file *log = nullptr;
    if (handle == nullptr)
        return errors;
    sqlite3_file_control(handle, "main", SQLITE_FCNTL_LAST_ERRNO, &errors[0]);
    sqlite3_file_control(handle, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log);
    if (log != nullptr && log->pMethods != nullptr)
        log->pMethods->xFileControl(log, SQLITE_FCNTL_LAST_ERRNO, &errors[1]);
    return errors;
}

StoreFault whyNotTransferred(int code, const QString &path, sqlite3 *handle)
{
    if (code == SQLITE_IOERR_SHORT_READ)
        return StoreFault::Damaged;
    const std::array told = lastSystemErrors(handle);
    if (std::any_of(told.begin(), told.end(), PlatformFiles::meansFull) || PlatformFiles::isFull(path))
        return StoreFault::Full;
    if (std::any_of(told.begin(), told.end(), PlatformFiles::meansReadOnly))
        return StoreFault::ReadOnly;
    return QFileInfo::exists(path) ? StoreFault::Failed : StoreFault::Gone;
}

StoreFault faultOf(int code, const QString &path, sqlite3 *handle)
{
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
        return StoreFault::Locked;
    case SQLITE_FULL:
        return StoreFault::Full;
    case SQLITE_READONLY:
        return code == SQLITE_READONLY_DBMOVED ? StoreFault::Gone : StoreFault::ReadOnly;
    case SQLITE_PERM:
        return StoreFault::Unreadable;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return StoreFault::Damaged;
    case SQLITE_CANTOPEN:
        return whyNotOpened(path);
    case SQLITE_IOERR:
        return whyNotTransferred(code, path, handle);
    default:
        return StoreFault::None;
    }
}
} // namespace

void raiseEngineError(const SQLite::Exception &error, const QString &path, sqlite3 *handle)
{
    const QString words = QString::fromUtf8(error.what());
    const StoreFault fault = faultOf(error.getErrorCode(), path, handle);
    if (fault != StoreFault::None)
        throw StoreError(fault, numberOf(error.getErrorCode()), words);
    throw RuntimeError(numberOf(error.getErrorCode()), words);
}

void EngineSteps::note(StoreFault fault)
{
    if (mFirstFault == StoreFault::None)
        mFirstFault = fault;
}

void EngineSteps::raise(int code)
{
    raise(SQLite::Exception(mHandle, code));
}

void EngineSteps::raise(const SQLite::Exception &error)
{
    try {
        raiseEngineError(error, mPath, mHandle);
    } catch (const StoreError &fault) {
        note(fault.fault());
        throw;
    }
}
