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
    const QString key = PictureReader::keyOf(path);
    if (const QPixmap *const kept = mKept.object(key))
        return *kept;
    want(key, path, pixels);
    return {};
}

void ThumbnailStore::want(const QString &key, const QString &path, int pixels)
{
    if (path.isEmpty() || mWaiting.contains(key))
        return;
    if (mWaiting.size() == mostWaiting) {
        mThread.clear();
        mWaiting.clear();
    }
    mWaiting.append(key);
    mThread.start([this, key, path, pixels] {
        const Picture picture = PictureReader::read(path, {pixels, pixels});
        QMetaObject::invokeMethod(
            this, [this, key, image = picture.image] { take(key, image); }, Qt::QueuedConnection);
    });
}

/// What cannot be read is kept as nothing, and not asked for again.
void ThumbnailStore::take(const QString &key, const QImage &image)
{
    mWaiting.removeOne(key);
    mKept.insert(key, new QPixmap(QPixmap::fromImage(image)));
    Q_EMIT arrived();
}
