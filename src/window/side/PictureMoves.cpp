#include "window/side/PictureMoves.h"

#include "util/Disk.h"
#include "util/Errors.h"
#include "util/FileNames.h"
#include "util/Incr.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryFile>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {
constexpr QStringView separator = u"-";
constexpr qint64 block = qint64(1024) * 1024;

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw RuntimeError(ErrorNumber::PathAccessError, path + ": "_L1 + reason);
}

QString folderOf(const QString &path)
{
    return path.first(path.lastIndexOf(cUtility::FolderSeparator) + 1);
}

void demandFile(const QString &path)
{
    if (!QFileInfo(path).isFile())
        throw RuntimeError(ErrorNumber::FileNotFound, u"File not found: "_s + path);
}

/// The file under a second name: at no moment it has none. "" where the file system gives none, as across two of them.
QString secondName(const QString &source, const QString &wanted)
{
    const QFileInfo file(source);
    if (file.isSymLink())
        return {};
    const QString path = PictureMoves::vacantName(wanted);
    std::error_code error;
    std::filesystem::create_hard_link(file.filesystemFilePath(), QFileInfo(path).filesystemFilePath(), error);
    return error ? QString() : path;
}

void copyContent(QFile &from, QFile &to)
{
    while (!from.atEnd()) {
        const QByteArray bytes = from.read(block);
        if (bytes.isEmpty())
            fail(from.fileName(), from.errorString());
        if (to.write(bytes) != bytes.size())
            fail(to.fileName(), to.errorString());
    }
}
} // namespace

QString PictureMoves::vacantName(const QString &path)
{
    QString vacant = path;
    while (cUtility::isNameTaken(vacant)) {
        const bool hasNumber = cUtility::Incr(vacant, 2, true, 1, {}, {}, {}, false) != "0"_L1;
        vacant = cUtility::nextFileName(vacant, separator);
        if (!hasNumber) // it has got a 0 only
            vacant = cUtility::nextFileName(vacant, separator);
    }
    return vacant;
}

QString PictureMoves::copy(const QString &source, const QString &wanted)
{
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        fail(source, from.errorString());
    // Without a name until it is whole; where file systems have no such files, a hidden one beside its place.
    QTemporaryFile to(folderOf(wanted) + ".XXXXXX.part"_L1);
    if (!to.open())
        fail(wanted, to.errorString());
    copyContent(from, to);
    if (!to.flush()) // what is written later makes it new again
        fail(wanted, to.errorString());
    to.setPermissions(from.permissions());
    to.setFileTime(from.fileTime(QFile::FileModificationTime), QFile::FileModificationTime);
    if (!cUtility::flushToDisk(to))
        fail(wanted, to.errorString());
    QString path = vacantName(wanted);
    if (!to.rename(path))
        fail(path, to.errorString());
    to.setAutoRemove(false);
    return path;
}

QString PictureMoves::move(const QString &source, const QString &wanted)
{
    demandFile(source);
    QString path = secondName(source, wanted);
    if (path.isEmpty())
        path = copy(source, wanted);
    try {
        kill(source);
    } catch (const RuntimeError &) {
        QFile::remove(path);
        throw;
    }
    return path;
}

void PictureMoves::kill(const QString &path)
{
    if (!cUtility::isNameTaken(path))
        demandFile(path);
    QFile file(path);
    if (!file.remove())
        fail(path, file.errorString());
}

QString PictureMoves::toTrash(const QString &path)
{
    demandFile(path);
    QString inTrash;
    if (!QFile::moveToTrash(path, &inTrash))
        fail(path, u"cannot be put into the trash"_s);
    return inTrash;
}

QString PictureMoves::fromTrash(const QString &inTrash, const QString &wanted)
{
    QString path = move(inTrash, wanted);
    // What the desktop keeps about a file in the trash stands beside the folder of the files.
    const QFileInfo file(inTrash);
    QFile::remove(QDir(file.path()).filePath("../info/"_L1 + file.fileName() + ".trashinfo"_L1));
    return path;
}
