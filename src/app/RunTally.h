// What a run has stored so far, by kind, and how long it will go on: a value that is told what happens and answers in
// words. A run begins with the first progress after the end of the one before.
#pragma once

#include <QMap>
#include <QString>

class RunTally
{
  public:
    /// Rows have reached the database: how many, by table.
    void stored(const QMap<QString, int> &rows);
    /// A walk over items begins. `anew`: how to begin it with the first item, where it goes on in its middle, else "".
    void walk(const QString &anew);
    /// Item `number` of `count`, from 1, is the next one; `now` are the milliseconds of a clock that never goes back.
    void progress(int number, int count, qint64 now);
    /// The run is over: what it has stored stays.
    void finished();

    /// "12 pages, 3 e-mail, 4 min left"; kinds without rows are left out, "" before there is anything to tell. On its
    /// first item a walk that was taken up in its middle says so, and how to begin it anew.
    [[nodiscard]] QString text() const;

  private:
    [[nodiscard]] QString timeLeft() const;

    QMap<QString, int> mRows; ///< by kind
    QString mAnew;
    bool mRunning = false, mWalkBegins = true;
    int mFirst = 1, mNumber = 1, mCount = 0;
    qint64 mBegan = 0, mNow = 0;
};
