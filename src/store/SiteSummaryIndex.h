// Finds the summary row of a page. The rule is a walk: the first row of SiteSummary, in table order, whose Url, or
// whose Url's server, equals the page's address or the page's server, all compared in lower case. The answer is that of
// the walk, and the cost is that of a look into a hash: texts' hashes with the first row of each are kept in memory (16
// bytes a text, some more for the hash itself) and brought up to date with what was added since. Rows that were changed
// or removed, a transaction that was taken back, another program's changes and another database make it read the
// addresses anew; nothing is read before the first question.
#pragma once

#include <QHash>
#include <QString>
#include <functional>
#include <memory>

class Connection;
class cAdoMdb;

class SiteSummaryIndex
{
  public:
    /// The server of an address, as rows are compared by it. It is a function of its argument alone.
    using ServerOf = std::function<QString(const QString &url)>;

    static constexpr qint64 notFound = -1;

    explicit SiteSummaryIndex(ServerOf serverOf);
    ~SiteSummaryIndex();
    SiteSummaryIndex(const SiteSummaryIndex &) = delete;
    SiteSummaryIndex &operator=(const SiteSummaryIndex &) = delete;

    /// The Index of the first row that matches `key` or `keyServer`, or notFound. Empty texts are compared like others.
    /// Errors: AdoError::ConnectionClosed, AdoError::NoSuchTable, AdoError::Engine.
    [[nodiscard]] qint64 find(cAdoMdb &database, const QString &key, const QString &keyServer);

  private:
    struct Keys;
    // What must stand still for the hash to hold.
    struct State
    {
        quint64 revision = 0;
        quint64 rollBacks = 0;
        qint64 outsideVersion = 0;
        [[nodiscard]] bool operator==(const State &) const = default;
    };

    void refresh(const std::shared_ptr<Connection> &connection);
    void takeRows(Connection &connection);
    void note(const QString &text, qint64 row);
    [[nodiscard]] qint64 candidate(const QString &text) const;
    [[nodiscard]] bool matches(const QString &url, const Keys &keys) const;
    [[nodiscard]] bool rowMatches(Connection &connection, qint64 row, const Keys &keys) const;
    [[nodiscard]] qint64 walk(Connection &connection, const Keys &keys) const;

    ServerOf mServerOf;
    // The connection that the rest was read from. Held weakly: the index keeps no file open.
    std::weak_ptr<Connection> mConnection;
    QHash<quint64, qint64> mFirstRows;
    qint64 mLastRow = 0;
    State mState;
    quint64 mAdditions = 0;
};
