// Names for rows of the tables that have a MaskName: the first of a numbered row of names that the table has not yet.
// The rule asks the table for one name after the other from the start; the answers here are the same, and a table that
// only grows is not read again: not after another program has added to it, nor in a later run (see GrowthMarks).
#pragma once

#include <QHash>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

class Connection;
class cAdoMdb;
struct TableInfo;

/// The names that a table has when this is made. Told apart without regard to case, as the table does.
class MaskNames
{
  public:
    /// Names are counted up from `start`, which is not given itself. Errors of reading the table pass on.
    MaskNames(cAdoMdb &database, const QString &table, const QString &start);
    /// The next name that is free; each call gives another one.
    [[nodiscard]] QString next();

  private:
    [[nodiscard]] std::optional<quint64> numberIn(const QString &name) const;
    [[nodiscard]] bool isTaken(const QString &name) const;

    QString mCandidate;
    // What stands around the number of all candidates; the numbers that the table has there, in order.
    QString mBeginning;
    QString mEnding;
    std::vector<quint64> mTaken;
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
        qint64 mark = 0;
        int stepsBehindMark = 0;
        QString candidate;
    };
    [[nodiscard]] static bool isTaken(cAdoMdb &database, const QString &table, const QString &name);
    [[nodiscard]] static bool holds(const Known &known, const std::shared_ptr<Connection> &connection,
                                    const TableInfo &table);
    void learn(Known &known, cAdoMdb &database, const TableInfo &table, const QString &start);

    QHash<QString, Known> mKnown;
};
