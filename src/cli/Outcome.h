// Keeps what a harvest has done, for the report at its end.
#pragma once

#include "window/Program.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QMap>

class Outcome : public QObject
{
    Q_OBJECT

  public:
    explicit Outcome(Program &program);

    [[nodiscard]] bool isFinished() const;
    /// One JSON object: status, links visited, rows added by table, files fetched and refused, what the manual lists
    /// hold, seconds; with `list` also what the list on show holds.
    [[nodiscard]] QByteArray json(bool list = false) const;

  private:
    QString mStatus;
    QStringList mLinks;
    QJsonArray mFiles, mRefused;
    const ManualLists &mLists;
    QMap<QString, int> mRows;
    QElapsedTimer mElapsed;
};
