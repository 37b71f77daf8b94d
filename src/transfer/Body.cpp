#include "transfer/Body.h"

#include "transfer/TargetNames.h"
#include "util/Ansi.h"
#include "util/Errors.h"
#include "util/FileNames.h"

#include <QTemporaryFile>

using namespace Qt::StringLiterals;

Body::Body(const QString &target)
{
    if (target.isEmpty())
        return;
    const qsizetype folderSize = target.lastIndexOf(cUtility::FolderSeparator) + 1;
    const QString folder = target.first(folderSize);
    const QString name = TargetNames::safeName(QStringView(target).sliced(folderSize));
    if (folder.isEmpty() || name.isEmpty())
        throw RuntimeError(ErrorNumber::BadFileName, u"Bad file name: "_s + target);
    mTarget = folder + name;
    mFile = std::make_unique<QTemporaryFile>(folder + ".XXXXXX.part"_L1);
    if (!mFile->open())
        fail();
}

Body::~Body() = default;

void Body::fail() const
{
    throw RuntimeError(ErrorNumber::PathAccessError, mTarget + ": "_L1 + mFile->errorString());
}

bool Body::take(QByteArrayView bytes)
{
    if (mFile)
        mIsFull = mIsFull || mFile->write(bytes.data(), bytes.size()) != bytes.size();
    else if (mIsFull = mIsFull || mSize + bytes.size() > LargestText; !mIsFull)
        mText += bytes;
    mSize += bytes.size();
    return !mIsFull;
}

void Body::demandRoom() const
{
    if (mIsFull && !mFile)
        throw RuntimeError(ErrorNumber::OutOfMemory, u"Too long for a text"_s);
    if (mIsFull)
        fail();
}

void Body::startAnew()
{
    mText.clear();
    mSize = 0;
    mIsFull = mFile && (!mFile->resize(0) || !mFile->seek(0));
}

QString Body::text() const
{
    return Ansi::decode(mText);
}

QString Body::keep()
{
    if (!mFile)
        return {};
    if (!mFile->flush())
        fail();
    QString path = mTarget;
    while (cUtility::isNameTaken(path))
        path = TargetNames::nextPath(path);
    // Gives a nameless file its name in one step, and never that of a file that has come in the meantime.
    if (!mFile->rename(path))
        fail();
    mFile->setAutoRemove(false);
    return path;
}
