#include "data/NewFile.h"

#include "store/StoreFault.h"
#include "util/Errors.h"
#include "util/FileNames.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 fileExists = 58, diskFull = 61;

[[noreturn]] void refuseTaken(const QString &path)
{
    throw RuntimeError(fileExists, u"File already exists: "_s + path);
}
} // namespace

NewFile::NewFile(const QString &path) : mPath(path), mFile(path + ".XXXXXX"_L1)
{
    if (cUtility::isNameTaken(path))
        refuseTaken(path);
    const QString folder = QFileInfo(path).absolutePath();
    if (!QFileInfo(folder).isDir())
        throw RuntimeError(ErrorNumber::PathNotFound, u"Path not found: "_s + folder);
    if (!mFile.open()) {
        const QString reason = StoreFaults::text(StoreFaults::ofFolder(folder));
        throw RuntimeError(ErrorNumber::PathAccessError,
                           u"No file can be made in "_s + folder + (reason.isEmpty() ? reason : ": "_L1 + reason));
    }
}

void NewFile::fail() const
{
    const bool full = StoreFaults::ofFolder(QFileInfo(mPath).absolutePath()) == StoreFault::Full ||
                      mFile.error() == QFileDevice::ResourceError;
    throw RuntimeError(full ? diskFull : ErrorNumber::DeviceIoError, mPath + ": "_L1 + mFile.errorString());
}

void NewFile::write(const QByteArray &bytes)
{
    if (mFile.write(bytes) != bytes.size())
        fail();
}

void NewFile::commit()
{
    if (!mFile.flush())
        fail();
    // Does not replace: a file that somebody else has made meanwhile stays.
    if (!mFile.rename(mPath)) {
        if (cUtility::isNameTaken(mPath))
            refuseTaken(mPath);
        fail();
    }
    mFile.setAutoRemove(false);
}
