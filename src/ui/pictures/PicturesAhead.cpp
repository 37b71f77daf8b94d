#include "ui/pictures/PicturesAhead.h"

using namespace Qt::StringLiterals;

PicturesAhead::PicturesAhead()
{
    constexpr int mostThreads = 4;
    mThreads.setMaxThreadCount(std::clamp(QThread::idealThreadCount(), 1, mostThreads));
}

PicturesAhead::~PicturesAhead()
{
    prepare({});
    mThreads.waitForDone();
}

QString PicturesAhead::keyOf(const QString &path) const
{
    return u"%1|%2|%3"_s.arg(mRoom.width()).arg(mRoom.height()).arg(PictureReader::keyOf(path));
}

Picture PicturesAhead::take(const QString &path)
{
    const auto found = mReadings.constFind(keyOf(path));
    return found == mReadings.constEnd() ? PictureReader::read(path, mRoom) : found->picture.get();
}

void PicturesAhead::prepare(const QStringList &paths)
{
    QHash<QString, Reading> kept;
    QStringList missing;
    for (const QString &path : paths) {
        const QString key = keyOf(path);
        if (mReadings.contains(key))
            kept.insert(key, mReadings.take(key));
        else
            missing.append(path);
    }
    for (const Reading &reading : std::as_const(mReadings))
        *reading.isWanted = false;
    mReadings = kept;
    for (const QString &path : std::as_const(missing))
        mReadings.insert(keyOf(path), start(path));
}

PicturesAhead::Reading PicturesAhead::start(const QString &path)
{
    const auto isWanted = std::make_shared<std::atomic<bool>>(true);
    const auto task = std::make_shared<std::packaged_task<Picture()>>(
        [isWanted, path, room = mRoom] { return *isWanted ? PictureReader::read(path, room) : Picture(); });
    mThreads.start([task] { (*task)(); });
    return {isWanted, task->get_future().share()};
}
