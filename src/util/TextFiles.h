// Text files of the user: whole, as lines and fields, and the folders that hold them.
// A file is read as UTF-8 or UTF-16 when it says so with a byte order mark, as UTF-8 when all of it is valid UTF-8, and
// as Windows-1252 otherwise. A file that is missing or cannot be read is an empty text.
#pragma once

#include <QStringList>

namespace cUtility {
/// The whole file; "" if it does not exist or cannot be read.
[[nodiscard]] QString LoadTextFile(const QString &file);

/// The non-empty fields of the file, split by `delimiter` (not empty); the empty list when the file is missing or does
/// not hold the delimiter. The name is trimmed.
[[nodiscard]] QStringList LoadDelimitedFileAs1DArray(const QString &file, const QString &delimiter);

/// The lines of the file (CR LF) that are not empty when trimmed, each trimmed and split by `delimiter`.
[[nodiscard]] QList<QStringList> LoadDelimitedFileAs2DArray(const QString &file, const QString &delimiter);

/// "" when each non-empty line holds `delimiter` exactly `expected` times; otherwise a report on the first line that
/// does not, its lines joined by CR LF. Lines are counted from 1, empty ones too.
[[nodiscard]] QString CheckFileLinesForDelimiter(const QString &file, const QString &delimiter, qsizetype expected);

/// True when the named file exists and can be read.
[[nodiscard]] bool TestForText(const QString &file);

/// The full paths of the files in `directory` with this extension (without ".", in any case), hidden ones too, in the
/// order of their names; the empty list when there is none.
[[nodiscard]] QStringList CollectFiles(const QString &directory, const QString &extension);

/// The folders that `GetActiveDrive` tries: the drives C to H where there are drives, elsewhere the user's own folder,
/// the folder for temporary files and the root.
[[nodiscard]] QStringList driveCandidates();

/// The first of `candidates` (each ends in the separator) on which a file can be created and removed; "" if on none.
[[nodiscard]] QString GetActiveDrive(const QStringList &candidates = driveCandidates());
} // namespace cUtility
