#include "desktop/OneInstance.h"

#include "window/ProgramFolder.h"

#include <QCryptographicHash>
#include <QLocalSocket>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {
constexpr int answerLimit = 1000; // milliseconds

QString pathIn(const QString &folder, const QString &appName)
{
    const QByteArray mark = QCryptographicHash::hash(appName.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return folder + "/trawlex-"_L1 + QString::fromLatin1(mark);
}
} // namespace

OneInstance::OneInstance(const QString &appName, const QString &folder)
    : mPath(pathIn(folder, appName)), mLock(mPath + ".lock"_L1), mFirst(false)
{
    mLock.setStaleLockTime(0);
    mFirst = mLock.tryLock();
    if (mFirst)
        listen();
}

QString OneInstance::usualFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return folder.isEmpty() ? dataFolder() : folder;
}

// Without a socket a second start ends without a word to the first.
void OneInstance::listen()
{
    const QString path = mPath + ".socket"_L1;
    QLocalServer::removeServer(path); // of one that was killed
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    mServer.listen(path);
    connect(&mServer, &QLocalServer::newConnection, this, [this] {
        mServer.nextPendingConnection()->deleteLater(); // that it has come says it all
        Q_EMIT startedAgain();
    });
}

bool OneInstance::tellFirst() const
{
    QLocalSocket first;
    first.connectToServer(mPath + ".socket"_L1);
    return first.waitForConnected(answerLimit);
}
