#include "ui/pictures/ThumbnailStore.h"

#include "ui/pictures/PictureReader.h"

ThumbnailStore::ThumbnailStore(QObject *parent) : QObject(parent)
{
    mThread.setMaxThreadCount(1);
    mThread.setThreadPriority(QThread::LowPriority);
}

ThumbnailStore::~ThumbnailStore()
{
    mThread.clear();
    mThread.waitForDone();
}

QPixmap ThumbnailStore::pixmap(const QString &path, int pixels)
{
    if (const QPixmap *const kept = mKept.object(path))
        return *kept;
    want(path, pixels);
    return {};
}

void ThumbnailStore::want(const QString &path, int pixels)
{
    if (path.isEmpty() || mWaiting.contains(path))
        return;
    if (mWaiting.size() == mostWaiting) {
        mThread.clear();
        mWaiting.clear();
    }
    mWaiting.append(path);
    mThread.start([this, path, pixels] {
        const Picture picture = PictureReader::read(path, {pixels, pixels});
        QMetaObject::invokeMethod(
            this, [this, path, image = picture.image] { take(path, image); }, Qt::QueuedConnection);
    });
}

/// What cannot be read is kept as nothing, and not asked for again.
void ThumbnailStore::take(const QString &path, const QImage &image)
{
    mWaiting.removeOne(path);
    mKept.insert(path, new QPixmap(QPixmap::fromImage(image)));
    Q_EMIT arrived();
}
