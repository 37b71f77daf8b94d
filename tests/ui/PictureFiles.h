// Picture files for the tests: whole ones, moving ones, and files that only pretend.
#pragma once

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace PictureFiles {
inline QString write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return path;
}

/// A picture of one colour, in the format that the name's ending says.
inline QString make(const QString &path, QSize size, QColor colour = Qt::red)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    EXPECT_TRUE(image.save(path));
    return path;
}

/// A gif of one pixel's width and height, with so many frames of alternating colours.
inline QByteArray gif(int frames)
{
    QByteArray bytes("GIF89a\x01\x00\x01\x00\x80\x00\x00\xFF\x00\x00\x00\x00\xFF", 19);
    for (int frame = 0; frame < frames; ++frame) {
        bytes += QByteArray("\x21\xF9\x04\x04\x02\x00\x00\x00", 8); // a fiftieth of a second
        bytes += QByteArray("\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02", 12);
        bytes += frame % 2 == 0 ? QByteArray("\x44\x01\x00", 3) : QByteArray("\x4C\x01\x00", 3);
    }
    return bytes + ';';
}

/// The head of a bmp of that size, with no pixels behind it.
inline QByteArray bmpHead(qint32 width, qint32 height)
{
    QByteArray bytes("BM\x36\x00\x00\x00\x00\x00\x00\x00\x36\x00\x00\x00\x28\x00\x00\x00", 18);
    for (const qint32 side : {width, height})
        for (int shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>(side >> shift);
    return bytes + QByteArray("\x01\x00\x18\x00", 4) + QByteArray(24, '\0');
}
} // namespace PictureFiles
