#include "store/sqlite/OpenFile.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {
std::unique_ptr<SQLite::Database> openFile(const std::string &name, int flags)
{
    auto database = std::make_unique<SQLite::Database>(name, flags | SQLite::OPEN_NOMUTEX, Connection::usualPatience);
    // The head is read now, so that a file that is no database is refused here.
    sqlite3_extended_result_codes(database->getHandle(), 1);
    database->exec("PRAGMA schema_version");
    return database;
}

// A file in a folder where nothing can be made is read as it stands, which is right as long as no log lies beside it.
std::unique_ptr<SQLite::Database> openForReading(const QString &path)
{
    try {
        return openFile(path.toStdString(), SQLite::OPEN_READONLY);
    } catch (const SQLite::Exception &error) {
        const int code = error.getErrorCode() & 0xFF;
        const bool logged = QFileInfo(path + "-wal"_L1).size() > 0 || QFile::exists(path + "-journal"_L1);
        if ((code != SQLITE_CANTOPEN && code != SQLITE_READONLY) || logged || !QFile::exists(path))
            throw;
    }
    const QByteArray address = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded() + "?immutable=1";
    return openFile(address.toStdString(), SQLite::OPEN_READONLY | SQLite::OPEN_URI);
}

// A file that is only to be read is opened to write too where it may be: the last one who can write clears away what
// the engine keeps beside the file.
std::unique_ptr<SQLite::Database> openExisting(const QString &path)
{
    try {
        return openFile(path.toStdString(), SQLite::OPEN_READWRITE);
    } catch (const SQLite::Exception &error) {
        if ((error.getErrorCode() & 0xFF) != SQLITE_CANTOPEN && (error.getErrorCode() & 0xFF) != SQLITE_READONLY)
            throw;
    }
    return openForReading(path);
}
} // namespace

std::unique_ptr<SQLite::Database> openDatabaseFile(const QString &path, Connection::Access access)
{
    switch (access) {
    case Connection::Access::Create:
        return openFile(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    case Connection::Access::Temporary:
        return openFile(std::string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    case Connection::Access::Read:
    case Connection::Access::Write:
        break;
    }
    return openExisting(path);
}
