#include "engine/chromium/ChromiumProfile.h"
#include "engine/EngineResources.h"
#include "engine/Platform.h"
#include "util/Errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int profilesAtMost = 100;
constexpr QFileDevice::Permissions ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

// What the browser begins with, as it would write it itself: once a file is there, it is the browser's and the user's.
// The first says what pages may do. The second switches every kind of password question of servers off: the page that a
// server sends along with its question is shown in its place.
constexpr std::pair<QLatin1StringView, QLatin1StringView> settingsFiles[] = {
    {"chromium-preferences.json"_L1, "Default/Preferences"_L1},
    {"chromium-local-state.json"_L1, "Local State"_L1},
};

} // namespace

ChromiumProfile::ChromiumProfile(const QString &dataFolder, const QString &name)
{
    if (!QDir().mkpath(dataFolder))
        throw RuntimeError(ErrorNumber::PathAccessError, u"Cannot make the folder %1."_s.arg(dataFolder));
    const QString first = QDir(dataFolder).absoluteFilePath(name);
    for (int number = 1; number <= profilesAtMost; ++number) {
        if (!take(number == 1 ? first : first + u'-' + QString::number(number)))
            continue;
        make();
        return;
    }
    throw RuntimeError(ErrorNumber::PathAccessError, u"Too many browsers run from %1."_s.arg(dataFolder));
}

// The lock stands beside the folder, whose content is the browser's own.
bool ChromiumProfile::take(const QString &folder)
{
    auto lock = std::make_unique<QLockFile>(folder + u".lock"_s);
    lock->setStaleLockTime(0); // a lock is stale when its process is gone, however old it is
    if (!lock->tryLock() && lock->error() == QLockFile::LockFailedError)
        return false;
    if (!lock->isLocked())
        throw RuntimeError(ErrorNumber::PathAccessError, u"Cannot write %1."_s.arg(folder + u".lock"_s));
    mFolder = folder;
    mLock = std::move(lock);
    return true;
}

void ChromiumProfile::make()
{
    if (!QDir().mkpath(mFolder + u"/Default"_s) || !QFile::setPermissions(mFolder, ownerOnly))
        throw RuntimeError(ErrorNumber::PathAccessError, u"Cannot make the folder %1."_s.arg(mFolder));
    for (const auto &[resource, name] : settingsFiles) {
        QFile file(mFolder + u'/' + name);
        if (file.exists())
            continue;
        const QByteArray content = engineResource(resource);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            throw RuntimeError(ErrorNumber::PathAccessError, u"Cannot write %1."_s.arg(file.fileName()));
    }
}

QString ChromiumProfile::socketPath() const
{
    return mFolder + u"/trawlex.socket"_s;
}

// The browser marks a profile that it uses by links: to "host-process", and to a socket in a folder of its own among
// the temporary ones. Where the host has another name by now it would not start, and ask somebody.
void ChromiumProfile::clear()
{
    const qint64 process = QFile::symLinkTarget(mFolder + u"/SingletonLock"_s).section(u'-', -1).toLongLong();
    if (Platform::commandLine(process).contains(mFolder.toLocal8Bit()))
        Platform::endProcess(process);
    const QFileInfo socket(QFile::symLinkTarget(mFolder + u"/SingletonSocket"_s));
    QStringList remains{socketPath()};
    for (const QString &name : {u"SingletonLock"_s, u"SingletonSocket"_s, u"SingletonCookie"_s})
        remains.append(mFolder + u'/' + name);
    if (socket.dir().dirName().startsWith("org.chromium."_L1)) {
        remains.append(socket.filePath());
        remains.append(socket.dir().filePath(u"SingletonCookie"_s));
    }
    for (const QString &path : std::as_const(remains))
        QFile::remove(path);
    if (socket.dir().dirName().startsWith("org.chromium."_L1))
        QDir().rmdir(socket.path()); // unless there is anything else in it
}
