// Reads picture files that anybody may have made: jpg, gif and bmp by their content, within limits of size, memory and
// time. Can be used from any thread.
#pragma once

#include <QImage>
#include <QString>

struct Picture
{
    QImage image;       ///< the picture, or its first one
    QSize size;         ///< in full, as the user sees it
    bool moves = false; ///< a gif of several pictures
    QString refusal;    ///< why there is no image
};

namespace PictureReader {
constexpr qint64 largestFile = qint64(256) * 1024 * 1024;
constexpr qint64 mostPixels = qint64(8192) * 8192;
constexpr int mostMegabytes = 256; ///< of one picture in memory
constexpr int mostMilliseconds = 5000;

/// The format of a file that begins with `head`; "" for anything but the three.
[[nodiscard]] QByteArray formatOf(QByteArrayView head);

/// The picture, no larger than `room` in either direction; as it is with an empty room. What cannot be read has a
/// refusal and no image.
[[nodiscard]] Picture read(const QString &path, QSize room = {});
/// The same for the bytes of a file.
[[nodiscard]] Picture read(const QByteArray &bytes, QSize room);

/// What a picture that has been read may be kept under: a file that has been written anew is another one.
[[nodiscard]] QString keyOf(const QString &path);
} // namespace PictureReader
