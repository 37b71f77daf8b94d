// Finds the summary row of a page. The rule is a walk: the first row of SiteSummary, in table order, whose Url, or
// whose Url's server, equals the page's address or the page's server, all compared in lower case. The answer is that of
// the walk, and the cost is that of a look into an index.
//
// The index lies in the database: it is made in the first transaction that asks, and kept for all later runs. The rows
// behind its end, a few hundred at most, are known to this object alone; they are read when it is asked first, and each
// time only what was added since, by whomever. Rows that were changed or removed are noticed (see GrowthMarks). Outside
// a transaction nothing is written: while there is no index the rows are walked then.
#pragma once

#include <QHash>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

class Connection;
class cAdoMdb;
struct TableInfo;

class SiteSummaryIndex
{
  public:
    /// The server of an address, as rows are compared by it. It is a function of its argument alone, and the same one
    /// for as long as databases live; a program that changes it changes the form of the kept index (SummaryKeys) too.
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
    // What must stand still for the tail to hold.
    struct State
    {
        quint64 revision = 0;
        quint64 rollBacks = 0;
        qint64 outsideVersion = 0;
        qint64 mark = 0;
        [[nodiscard]] bool operator==(const State &) const = default;
    };
    struct RowKeys
    {
        qint64 row;
        quint32 urlKey;
        quint32 serverKey;
    };

    /// False while the rows can only be walked.
    [[nodiscard]] bool refresh(const std::shared_ptr<Connection> &connection, const TableInfo &table);
    [[nodiscard]] bool isUpToDate(const std::shared_ptr<Connection> &connection, const TableInfo &table) const;
    [[nodiscard]] bool beginTail(Connection &connection, const TableInfo &table);
    [[nodiscard]] RowKeys keysOf(qint64 row, const QString &url) const;
    void makeKeys(Connection &connection, const TableInfo &table) const;
    void takeRows(Connection &connection, const TableInfo &table);
    void moveTail(Connection &connection, const TableInfo &table);
    [[nodiscard]] qint64 search(Connection &connection, const TableInfo &table, const Keys &keys) const;
    [[nodiscard]] qint64 firstInTail(quint32 key, qint64 after) const;
    [[nodiscard]] bool matches(const QString &url, const Keys &keys) const;
    [[nodiscard]] bool rowMatches(Connection &connection, const TableInfo &table, qint64 row, const Keys &keys) const;
    [[nodiscard]] qint64 walk(Connection &connection, const TableInfo &table, const Keys &keys) const;

    ServerOf mServerOf;
    // The connection that the rest was read from. Held weakly: the index keeps no file open.
    std::weak_ptr<Connection> mConnection;
    State mState;
    quint64 mAdditions = 0;
    // The rows behind the kept index's end, and where they stand by their keys.
    std::vector<RowKeys> mTail;
    QMultiHash<quint32, qint64> mRowKeyss;
    qint64 mLastRow = 0;
    // The last question and its answer, which hold while nothing changes: a page asks the same for each kind of row.
    std::unique_ptr<Keys> mAsked;
    qint64 mAnswer = notFound;
};
