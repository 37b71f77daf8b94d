#include "desktop/OneInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

namespace {
QString lockPath(const QString &appName)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    const QByteArray mark = QCryptographicHash::hash(appName.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return folder + QStringLiteral("/trawlex-%1.lock").arg(QString::fromLatin1(mark));
}
} // namespace

OneInstance::OneInstance(const QString &appName) : mLock(lockPath(appName)), mFirst(false)
{
    mLock.setStaleLockTime(0);
    mFirst = mLock.tryLock();
}
