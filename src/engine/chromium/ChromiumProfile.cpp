#include "engine/chromium/ChromiumProfile.h"
#include "engine/EngineResources.h"
#include "util/Errors.h"

#include <QDir>
#include <QFile>

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

QString endpointFile(const QString &folder)
{
    return folder + u"/DevToolsActivePort"_s;
}

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

// Two lines: the port, and the path of the browser's own endpoint.
QUrl ChromiumProfile::endpoint() const
{
    QFile file(endpointFile(mFolder));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines = QString::fromLatin1(file.readAll()).split(u'\n');
    if (lines.size() < 2 || !lines[1].startsWith(u'/'))
        return {};
    return QUrl(u"ws://127.0.0.1:%1%2"_s.arg(lines[0], lines[1]));
}

void ChromiumProfile::forgetEndpoint()
{
    QFile::remove(endpointFile(mFolder));
}
