// Pictures go from files into fields and back. A field's value is whole in memory in any case; what is written from a
// large one is taken in pieces.
#pragma once

#include <QByteArray>
#include <QString>

class Field;

/// Up to this length a value is written in one piece.
constexpr qint64 blobThreshold = 1'048'576;
constexpr qint64 blobChunk = 16'384;

/// The bytes of a file. Error 53 for a missing file, 75 for one that cannot be read.
[[nodiscard]] QByteArray fileToBlob(const QString &fileName);

/// Writes a field's bytes to a file, which is replaced. `size` is the number of bytes that are wanted; -1 takes all
/// that the field holds. Errors: 75 for a file that cannot be written, and those of reading the field.
void blobToFile(const Field &field, const QString &fileName, qint64 size);
