#include "FuzzInput.h"
#include "ui/pictures/PictureReader.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

// Any bytes under the name of a picture: there is a picture within its room, or a reason why there is none.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*=false"));
    constexpr int side = 200;
    QFile file(folder.filePath(QStringLiteral("picture.jpg")));
    if (!file.open(QIODevice::WriteOnly) || file.write(reinterpret_cast<const char *>(data), qint64(size)) < 0)
        std::abort();
    file.close();
    for (const QSize room : {QSize(), QSize(side, side)}) {
        const Picture picture = PictureReader::read(file.fileName(), room);
        demandEqual(picture.image.isNull(), !picture.refusal.isEmpty(), "refusal");
        const bool fits = room.isEmpty() || (picture.image.width() <= side && picture.image.height() <= side);
        demandEqual(fits, true, "room");
        demandEqual(picture.image.isNull() ||
                        qint64(picture.size.width()) * picture.size.height() <= PictureReader::mostPixels,
                    true, "pixels");
    }
    return 0;
}
