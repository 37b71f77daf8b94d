#include "store/sqlite/DatabaseFiles.h"
#include "store/AdoErrors.h"
#include "store/rows/Catalog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTemporaryFile>
#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
// What the engine keeps beside a file. It belongs to that file and no other.
constexpr std::array companions{"-wal"_L1, "-shm"_L1, "-journal"_L1};

void removeCompanions(const QString &path)
{
    for (const auto &ending : companions)
        QFile::remove(path + ending);
}

[[noreturn]] void refusePlace(const QString &path)
{
    const StoreFault folder = StoreFaults::ofFolder(QFileInfo(path).absolutePath());
    const RuntimeError error = AdoError::error(ErrorNumber::PathAccessError);
    throw StoreError(folder == StoreFault::None ? StoreFault::Failed : folder, error.number(), error.description());
}

// Puts `from` at `to` in one step; whoever looks sees the old file or the new one.
void replaceFile(const QString &from, const QString &to)
{
    removeCompanions(to);
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        refusePlace(to);
}

// An empty file beside the place, for this user alone: the engine fills it as it stands, and gives what it keeps beside
// it the same rights.
QString makePrivateFile(const QString &path)
{
    QTemporaryFile file(path + ".XXXXXX"_L1);
    if (!file.open())
        refusePlace(path);
    file.setAutoRemove(false);
    return file.fileName();
}
} // namespace

bool DatabaseFiles::isFileOrCanBeOne(const QString &path)
{
    const QFileInfo info(path);
    if (info.isFile())
        return true;
    if (!info.dir().exists())
        return false;
    QFile trial(path);
    if (!trial.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        refusePlace(path);
    trial.close();
    trial.remove();
    return true;
}

bool DatabaseFiles::isSqlite(const QString &path)
{
    constexpr QByteArrayView head("SQLite format 3");
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(head.size()) == head;
}

QStringList DatabaseFiles::lockHolders(const QString &path)
{
    QStringList files{path};
    for (const auto &ending : companions)
        files.append(path + ending);
    return PlatformFiles::lockHolders(files);
}

void DatabaseFiles::build(const QString &path, const std::function<void(Connection &)> &fill)
{
    const QString place = makePrivateFile(path);
    const auto tidy = qScopeGuard([&] {
        QFile::remove(place);
        removeCompanions(place);
    });
    fill(*Connection::open(place, Connection::Access::Create));
    replaceFile(place, path);
}

void DatabaseFiles::create(const QString &path, const TableFieldMatrix &matrix)
{
    build(path, [&](Connection &connection) { Catalog::createAll(connection, matrix); });
}

void DatabaseFiles::compact(const QString &path)
{
    if (!QFileInfo(path).isFile())
        throw AdoError::error(ErrorNumber::FileNotFound);
    const auto connection = Connection::open(path, Connection::Access::Write);
    connection->administer("VACUUM");
    static_cast<void>(connection->administerTexts("PRAGMA wal_checkpoint(TRUNCATE)"));
}
