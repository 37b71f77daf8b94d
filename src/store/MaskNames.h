// Names for rows of the tables that have a MaskName: the first of a numbered row of names that the table has not yet.
// The rule asks the table for one name after the other from the start; the answers here are the same, and a table that
// only grows is read once.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <memory>

class Connection;
class cAdoMdb;

/// The names that a table has when this is made. Told apart without regard to case, as the table does.
class MaskNames
{
  public:
    /// Names are counted up from `start`, which is not given itself. Errors of reading the table pass on.
    MaskNames(cAdoMdb &database, const QString &table, const QString &start);
    /// The next name that is free; each call gives another one.
    [[nodiscard]] QString next();

  private:
    QSet<QString> mTaken;
    QString mCandidate;
};

/// Answers for many tables over time.
class NewMaskNames
{
  public:
    /// The first name behind `start` that no row of `table` has now. Errors: AdoError::ConnectionClosed,
    /// AdoError::NoSuchTable, AdoError::Engine.
    [[nodiscard]] QString find(cAdoMdb &database, const QString &table, const QString &start);

  private:
    /// No name before `candidate` is free, as long as the table has only grown since.
    struct Known
    {
        std::weak_ptr<Connection> connection;
        quint64 revision = 0;
        quint64 rollBacks = 0;
        qint64 outsideVersion = 0;
        QString candidate;
    };
    [[nodiscard]] static Known stateOf(const std::shared_ptr<Connection> &connection, const QString &table);
    [[nodiscard]] static bool isTaken(cAdoMdb &database, const QString &table, const QString &name);

    QHash<QString, Known> mKnown;
};
