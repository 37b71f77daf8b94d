// What a transfer brings: kept in memory, or in a file that has no name yet beside the place that it is meant for.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

class QTemporaryFile;

class Body
{
  public:
    /// The most that is kept in memory.
    static constexpr qint64 LargestText = qint64(64) * 1024 * 1024;

    /// For the file `target`, a folder and a name; for memory where that is empty. Nobody but the user may read the
    /// file. Throws RuntimeError when it cannot be made there.
    explicit Body(const QString &target);
    ~Body();
    Q_DISABLE_COPY_MOVE(Body)

    /// False when the disk or the memory allowed for a text is full.
    [[nodiscard]] bool take(QByteArrayView bytes);
    /// Throws RuntimeError when take() has refused something.
    void demandRoom() const;
    /// Drops what has been taken.
    void startAnew();
    [[nodiscard]] qint64 size() const { return mSize; }

    /// What came, each byte as its character of the code page; "" where it went into a file.
    [[nodiscard]] QString text() const;
    /// Gives the file its name, with all that it is meant to hold in it: the target's own, made safe, or the next free
    /// one of its numbers. Nothing that exists is touched. The path; "" where there is no target. Throws RuntimeError.
    QString keep();

  private:
    [[noreturn]] void fail() const;

    QString mTarget;
    std::unique_ptr<QTemporaryFile> mFile; ///< goes with this object until it has been kept
    QByteArray mText;
    qint64 mSize = 0;
    bool mIsFull = false;
};
