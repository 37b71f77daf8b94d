#include "ui/pictures/PictureReader.h"

#include <QBuffer>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace {
constexpr qsizetype headSize = 6;

/// A file that ends where the time for it is over: a picture made to be read for ever is read no longer than that.
template <typename Device> class Timed : public Device
{
  public:
    using Device::Device;

  protected:
    qint64 readData(char *data, qint64 most) override { return mEnd.hasExpired() ? -1 : Device::readData(data, most); }

  private:
    QDeadlineTimer mEnd{PictureReader::mostMilliseconds};
};

Picture refused(const QString &reason)
{
    return {{}, {}, false, reason};
}

/// `size` made to fit, never larger than it is.
QSize fitted(QSize size, QSize room)
{
    const bool fits = room.isEmpty() || (size.width() <= room.width() && size.height() <= room.height());
    return fits ? size : size.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
}

Picture readWith(QImageReader &reader, QSize room)
{
    const QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > PictureReader::mostPixels)
        return refused(size.isValid() ? u"has too many pixels"_s : u"is damaged"_s);
    reader.setAutoTransform(true);
    // The camera was held upright: what is read is turned afterwards.
    const bool turns = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize within = fitted(size, turns ? room.transposed() : room);
    if (within != size)
        reader.setScaledSize(within);
    Picture picture;
    picture.moves = reader.supportsAnimation() && reader.imageCount() > 1;
    picture.size = turns ? size.transposed() : size;
    if (!reader.read(&picture.image))
        return refused(reader.error() == QImageReader::InvalidDataError ? u"is damaged"_s : reader.errorString());
    // A gif's head and its pictures may tell different sizes.
    if (within == size)
        picture.size = picture.image.size();
    if (const QSize now = fitted(picture.size, room); within == size && now != picture.size)
        picture.image = picture.image.scaled(now, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return picture;
}

Picture readFrom(QIODevice &device, QSize room)
{
    static const bool limited = (QImageReader::setAllocationLimit(PictureReader::mostMegabytes), true);
    static_cast<void>(limited);
    const QByteArray format = PictureReader::formatOf(device.peek(headSize));
    if (format.isEmpty())
        return refused(u"is no jpg, gif or bmp"_s);
    if (device.size() > PictureReader::largestFile)
        return refused(u"is too large a file"_s);
    QImageReader reader(&device, format);
    reader.setAutoDetectImageFormat(false);
    return readWith(reader, room);
}
} // namespace

QByteArray PictureReader::formatOf(QByteArrayView head)
{
    if (head.startsWith("\xFF\xD8\xFF"))
        return "jpeg";
    if (head.startsWith("GIF87a") || head.startsWith("GIF89a"))
        return "gif";
    return head.startsWith("BM") ? "bmp" : QByteArray();
}

Picture PictureReader::read(const QString &path, QSize room)
{
    static const QStringList endings{u"jpg"_s, u"jpeg"_s, u"gif"_s, u"bmp"_s};
    if (!endings.contains(QFileInfo(path).suffix().toLower()))
        return refused(u"is no jpg, gif or bmp by its name"_s);
    Timed<QFile> file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refused(file.errorString());
    return readFrom(file, room);
}

Picture PictureReader::read(const QByteArray &bytes, QSize room)
{
    Timed<QBuffer> buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return readFrom(buffer, room);
}

QString PictureReader::keyOf(const QString &path)
{
    const QFileInfo file(path);
    return u"%1|%2|%3"_s.arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch()).arg(path);
}
