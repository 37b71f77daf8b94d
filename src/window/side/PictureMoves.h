// Moving and deleting picture files so that none is ever lost: at each moment, also at that of a kill, a whole picture
// stands under its old name or under its new one. Nothing that exists is replaced. All throw RuntimeError, and then the
// file stands where it was.
#pragma once

#include <QString>

namespace PictureMoves {
/// `path` while nothing has that name; otherwise the first free one: the number in the name raised, or "-1" behind a
/// name without a number.
[[nodiscard]] QString vacantName(const QString &path);

/// Moves the file `source` to the path `wanted`, or to the next free name of that directory, which may lie on another
/// file system. The new path.
QString move(const QString &source, const QString &wanted);

/// A copy of `source` under the name `wanted` or the next free one, whole and on the disk when this returns. Its path.
QString copy(const QString &source, const QString &wanted);

/// Deletes a file for good.
void kill(const QString &path);

/// Puts a file into the desktop's trash. Its path there.
QString toTrash(const QString &path);

/// Takes a file out of the trash again. The new path.
QString fromTrash(const QString &inTrash, const QString &wanted);
} // namespace PictureMoves
