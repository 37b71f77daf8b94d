// Names of files: their parts, and the next one that is free. Pure, but for the two that look for a free name.
#pragma once

#include <QString>

namespace cUtility {
/// What stands between the folders of a path, and behind the last one.
inline constexpr QStringView FolderSeparator = u"/";

/// The parts of a path or address, numbered as `GetFileSpecParts` takes them.
enum class FilePart {
    Name,
    NameWithDot,
    NameAndExtension,
    Extension,
    DotExtension,
    Folder,
    FolderWithoutSeparator,
    Drive
};

/// The part of `spec` (trimmed) that `part` names; the file part is what stands behind the last `separator`.
/// It has an extension, beginning at its last ".", when a "." stands 4 or 5 places from the end of `spec` (".jpg",
/// ".jpeg") and `spec` has at least 5 characters. Without one the three name parts are the whole file part and the two
/// extensions are "". Without a separator both folders are "". The view is into `spec`.
[[nodiscard]] QStringView filePart(FilePart part, QStringView spec, QStringView separator);

/// `filePart` by number, 0 to 7; mode 8 gives the first `lngMax` characters of the name, "" if it has fewer.
/// "" for an unknown mode or a negative `lngMax`.
[[nodiscard]] QString GetFileSpecParts(int mode, QStringView spec, qsizetype lngMax, QStringView separator);

/// True when something (a file, a folder, a link to nowhere) has this name.
[[nodiscard]] bool isNameTaken(const QString &path);

/// True for two files that hold the same bytes; false where one cannot be read.
[[nodiscard]] bool isSameContent(const QString &path, const QString &other);

/// `path` while nothing has that name; otherwise the first free one, number 1 of the name raised by 1 at each try.
[[nodiscard]] QString GetVacantFileSpecs(const QString &path);

/// `path` as long as no name of its folder equals it, case ignored; otherwise the number behind the last "_" of the
/// name is raised by 1, without keeping its width, until that is so. A name without such a number gets "_1".
[[nodiscard]] QString OutPutFileName(const QString &path);
} // namespace cUtility
