// Small pictures, read by a thread of their own as they come into sight.
#pragma once

#include <QCache>
#include <QPixmap>
#include <QThreadPool>

class ThumbnailStore : public QObject
{
    Q_OBJECT

  public:
    explicit ThumbnailStore(QObject *parent);
    ~ThumbnailStore() override;

    /// The picture of a file, no larger than `pixels` in either direction; none until it has been read.
    [[nodiscard]] QPixmap pixmap(const QString &path, int pixels);

  Q_SIGNALS:
    /// One more has been read.
    void arrived();

  private:
    void want(const QString &key, const QString &path, int pixels);
    void take(const QString &key, const QImage &image);

    static constexpr int mostKept = 1000;
    static constexpr int mostWaiting = 64; ///< more than a screen shows: what was scrolled past is not read

    QCache<QString, QPixmap> mKept{mostKept};
    QStringList mWaiting;
    QThreadPool mThread;
};
