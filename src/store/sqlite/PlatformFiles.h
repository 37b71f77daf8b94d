// What the store asks of the system about files: the one place here that is not portable. Where the system does not
// tell, the answers are those that hold nothing up.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace PlatformFiles {
/// What makes a file the same file, whatever its name.
struct Identity
{
    quint64 device = 0;
    quint64 number = 0;
    [[nodiscard]] bool operator==(const Identity &) const = default;
};

/// Nothing for a file that is not there. The path is in the system's encoding (QFile::encodeName).
[[nodiscard]] std::optional<Identity> identityOf(const QByteArray &path);

/// True if this user may read the file; may write it, or make files in the folder.
[[nodiscard]] bool mayRead(const QString &path);
[[nodiscard]] bool mayWrite(const QString &path);

/// True if the disk on which `path` lies has no room for anything more.
[[nodiscard]] bool isFull(const QString &path);

/// True for an error number of the system that says: no more room, no more for this user, no longer file.
[[nodiscard]] bool meansFull(int systemError);
/// True for one that says: this is not to be written any more.
[[nodiscard]] bool meansReadOnly(int systemError);

/// The programs other than this one that hold one of the files locked for writing, each as "name (process number)".
[[nodiscard]] QStringList lockHolders(const QStringList &paths);
} // namespace PlatformFiles
