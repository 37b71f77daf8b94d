// Pictures that are read before they are wanted: while one is looked at, those beside it are read by other threads, so
// that a walk with a key held down does not wait.
#pragma once

#include "ui/pictures/PictureReader.h"

#include <QHash>
#include <QThreadPool>
#include <atomic>
#include <future>
#include <memory>

class PicturesAhead
{
  public:
    PicturesAhead();
    ~PicturesAhead();
    Q_DISABLE_COPY_MOVE(PicturesAhead)

    /// What is read from now on fits into `room`; empty: as it is.
    void setRoom(QSize room) { mRoom = room; }
    /// The picture, as soon as it is there. What has been read stays until prepare() is told something else.
    [[nodiscard]] Picture take(const QString &path);
    /// Has `paths` read, the first one first; what else was read ahead is let go.
    void prepare(const QStringList &paths);
    /// Whether a picture is read, or being read.
    [[nodiscard]] bool isPrepared(const QString &path) const { return mReadings.contains(keyOf(path)); }

  private:
    struct Reading
    {
        std::shared_ptr<std::atomic<bool>> isWanted;
        std::shared_future<Picture> picture;
    };
    [[nodiscard]] QString keyOf(const QString &path) const;
    [[nodiscard]] Reading start(const QString &path);

    QSize mRoom;
    QHash<QString, Reading> mReadings;
    QThreadPool mThreads;
};
