// Which files of a directory are pictures. Pure, but for reading the directory.
#pragma once

#include <QStringList>

namespace PictureFolder {
/// The names of the pictures in `directory`, hidden ones too: all jpg, then gif, then bmp, each in the order of their
/// names, case ignored. Empty where there is no such directory.
[[nodiscard]] QStringList pictures(const QString &directory);

/// `path` itself, if it is a directory, or the one in which a file stands, with a separator behind it; "" where `path`
/// is neither.
[[nodiscard]] QString directoryOf(const QString &path);

/// Whether two texts lead to one and the same directory.
[[nodiscard]] bool isSameDirectory(const QString &one, const QString &other);
} // namespace PictureFolder
