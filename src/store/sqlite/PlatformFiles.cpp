#include "store/sqlite/PlatformFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <algorithm>
#include <cerrno>

#ifdef __unix__
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#ifdef __linux__
#include <sys/sysmacros.h>
#endif

using namespace Qt::StringLiterals;

#ifdef __unix__
namespace {
// As the user whose rights count, which need not be the one who started the program.
bool may(const QString &path, int mode)
{
    return faccessat(AT_FDCWD, QFile::encodeName(path).constData(), mode, AT_EACCESS) == 0;
}
} // namespace

std::optional<PlatformFiles::Identity> PlatformFiles::identityOf(const QByteArray &path)
{
    struct stat state = {};
    if (stat(path.constData(), &state) != 0)
        return std::nullopt;
    return Identity{state.st_dev, state.st_ino};
}

bool PlatformFiles::mayRead(const QString &path)
{
    return may(path, R_OK);
}

bool PlatformFiles::mayWrite(const QString &path)
{
    return may(path, QFileInfo(path).isDir() ? W_OK | X_OK : W_OK);
}

bool PlatformFiles::meansFull(int systemError)
{
    return systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG;
}

bool PlatformFiles::meansReadOnly(int systemError)
{
    return systemError == EROFS || systemError == EPERM || systemError == EACCES;
}
#else
std::optional<PlatformFiles::Identity> PlatformFiles::identityOf(const QByteArray &path)
{
    return QFile::exists(QFile::decodeName(path)) ? std::optional(Identity()) : std::nullopt;
}

bool PlatformFiles::mayRead(const QString &path)
{
    return QFileInfo(path).isReadable();
}

bool PlatformFiles::mayWrite(const QString &path)
{
    return QFileInfo(path).isWritable();
}

bool PlatformFiles::meansFull(int systemError)
{
    return systemError == ENOSPC;
}

bool PlatformFiles::meansReadOnly(int systemError)
{
    return systemError == EACCES;
}
#endif

bool PlatformFiles::isFull(const QString &path)
{
    constexpr qint64 leastRoom = 65'536;
    const QStorageInfo disk(path);
    return disk.isValid() && disk.bytesAvailable() < leastRoom;
}

#ifdef __linux__
namespace {
// A line of the system's list: "1: POSIX  ADVISORY  WRITE 4711 08:01:131090 120 120".
struct Lock
{
    explicit Lock(const QByteArray &line)
    {
        const QList<QByteArray> words = line.simplified().split(' ');
        const qsizetype kind = words.indexOf("WRITE");
        if (kind < 0 || kind + 2 >= words.size())
            return;
        const QList<QByteArray> place = words[kind + 2].split(':');
        if (place.size() != 3)
            return;
        process = words[kind + 1].toLongLong();
        file = {makedev(place[0].toUInt(nullptr, 16), place[1].toUInt(nullptr, 16)), place[2].toULongLong()};
    }

    qint64 process = 0;
    PlatformFiles::Identity file;
};

QString programName(qint64 process)
{
    QFile file(u"/proc/%1/comm"_s.arg(process));
    const QByteArray name = file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    return name.isEmpty() ? u"process %1"_s.arg(process) : u"%1 (%2)"_s.arg(QString::fromUtf8(name)).arg(process);
}
} // namespace

QStringList PlatformFiles::lockHolders(const QStringList &paths)
{
    QList<Identity> files;
    for (const QString &path : paths) {
        if (const auto identity = identityOf(QFile::encodeName(path)))
            files.append(*identity);
    }
    QFile list(u"/proc/locks"_s);
    QStringList holders;
    if (!list.open(QIODevice::ReadOnly))
        return holders;
    for (const QByteArray &line : list.readAll().split('\n')) {
        const Lock lock(line);
        if (lock.process > 0 && lock.process != getpid() && files.contains(lock.file))
            holders.append(programName(lock.process));
    }
    holders.removeDuplicates();
    return holders;
}
#else
QStringList PlatformFiles::lockHolders(const QStringList &)
{
    return {};
}
#endif
