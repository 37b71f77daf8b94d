// Keeps what a harvest has done, for the report at its end.
#pragma once

#include "window/Program.h"

#include <QElapsedTimer>
#include <QMap>

class Outcome : public QObject
{
    Q_OBJECT

  public:
    explicit Outcome(Program &program);

    [[nodiscard]] bool isFinished() const;
    /// One JSON object: status, links visited, rows added by table, seconds.
    /// With a list its items too.
    [[nodiscard]] QByteArray json(const QStringList *list = nullptr) const;

  private:
    QString mStatus;
    QStringList mLinks;
    QMap<QString, int> mRows;
    QElapsedTimer mElapsed;
};
