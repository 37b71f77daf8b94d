// Names under which files that came from elsewhere may stand in a folder: no way out of it, nothing that a program or a
// file system would take for something else. Pure.
#pragma once

#include <QString>

namespace TargetNames {
/// The longest name, in bytes of UTF-8, that file systems take.
inline constexpr qsizetype LongestName = 255;

/// `name` as it may be given to a file: "?", "*", the folder separator, control characters and halves of pairs become
/// "_", as do the dots of "." and ".."; what is longer than 255 bytes is cut before its extension. "" stays "".
[[nodiscard]] QString safeName(QStringView name);

/// `path` with the number behind a "-" in its name raised, or given; its name is never longer than 255 bytes.
[[nodiscard]] QString nextPath(const QString &path);
} // namespace TargetNames
