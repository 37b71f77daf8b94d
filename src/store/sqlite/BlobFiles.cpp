#include "store/sqlite/BlobFiles.h"
#include "store/AdoErrors.h"
#include "store/Recordset.h"

#include <QFile>
#include <QSaveFile>
#include <algorithm>

namespace {
void requireWritten(bool good)
{
    if (!good)
        throw AdoError::error(ErrorNumber::PathAccessError);
}
} // namespace

QByteArray fileToBlob(const QString &fileName)
{
    QFile file(fileName);
    if (!file.exists())
        throw AdoError::error(ErrorNumber::FileNotFound);
    if (!file.open(QIODevice::ReadOnly))
        throw AdoError::error(ErrorNumber::PathAccessError);
    QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        throw AdoError::error(ErrorNumber::PathAccessError);
    return bytes;
}

void blobToFile(const Field &field, const QString &fileName, qint64 size)
{
    QSaveFile file(fileName);
    requireWritten(file.open(QIODevice::WriteOnly));
    if (size >= 0 && size <= blobThreshold) {
        requireWritten(file.write(field.Value().toByteArray().left(size)) >= 0);
    } else {
        Field source = field;
        for (qint64 written = 0; size < 0 || written < size;) {
            const qint64 wanted = size < 0 ? blobChunk : std::min(blobChunk, size - written);
            const QByteArray piece = source.GetChunk(wanted).toByteArray();
            requireWritten(file.write(piece) == piece.size());
            written += piece.size();
            if (piece.size() < wanted)
                break;
        }
    }
    requireWritten(file.commit());
}
