#include "store/SiteSummaryIndex.h"
#include "store/AdoErrors.h"
#include "store/cAdoMdb.h"
#include "store/rows/GrowthMarks.h"
#include "store/rows/SummaryKeys.h"
#include "util/Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
// More rows than these move into the kept index.
constexpr std::size_t longestTail = 100;

QString markName()
{
    return u"Keys"_s;
}
} // namespace

struct SiteSummaryIndex::Keys
{
    QString key;
    QString server;
    [[nodiscard]] bool operator==(const Keys &) const = default;
};

SiteSummaryIndex::SiteSummaryIndex(ServerOf serverOf) : mServerOf(std::move(serverOf)) {}
SiteSummaryIndex::~SiteSummaryIndex() = default;

qint64 SiteSummaryIndex::find(cAdoMdb &database, const QString &key, const QString &keyServer)
{
    const std::shared_ptr<Connection> &connection = database.connection();
    if (!connection)
        throw AdoError::error(AdoError::ConnectionClosed);
    const auto table = connection->requireTable(u"SiteSummary"_s);
    const Keys keys{cUtility::lowered(key), cUtility::lowered(keyServer)};
    if (!refresh(connection, *table))
        return walk(*connection, *table, keys);
    if (!mAsked || *mAsked != keys) {
        mAnswer = search(*connection, *table, keys);
        mAsked = std::make_unique<Keys>(keys);
    }
    return mAnswer;
}

bool SiteSummaryIndex::refresh(const std::shared_ptr<Connection> &connection, const TableInfo &table)
{
    const bool upToDate = isUpToDate(connection, table);
    const State now{table.changes->revision, connection->rollBacks(), connection->outsideVersion(), mState.mark};
    const quint64 additions = table.changes->additions;
    if (upToDate && now == mState && mAdditions == additions)
        return true;
    // Forgotten first, so that a fault half-way leaves nothing that looks up to date.
    mConnection.reset();
    mAsked.reset();
    if (!upToDate && !beginTail(*connection, table))
        return false;
    takeRows(*connection, table);
    if (mTail.size() > longestTail && connection->inTransaction())
        moveTail(*connection, table);
    mState = {now.revision, now.rollBacks, now.outsideVersion, mState.mark};
    mAdditions = additions;
    mConnection = connection;
    return true;
}

/// True if what is known of the rows holds, whatever was added behind them.
bool SiteSummaryIndex::isUpToDate(const std::shared_ptr<Connection> &connection, const TableInfo &table) const
{
    if (mConnection.lock() != connection || mState.revision != table.changes->revision ||
        mState.rollBacks != connection->rollBacks())
        return false;
    if (mState.outsideVersion == connection->outsideVersion())
        return true;
    const auto mark = GrowthMarks(*connection, table).read(markName());
    return mark && mark->id == mState.mark;
}

/// Starts anew behind the last row of the kept index, which is made where it is missing.
bool SiteSummaryIndex::beginTail(Connection &connection, const TableInfo &table)
{
    SummaryKeys keys(connection, table);
    GrowthMarks marks(connection, table);
    auto mark = marks.read(markName());
    const bool complete = keys.exist() && mark;
    if (!complete && (!connection.inTransaction() || connection.isReadOnly()))
        return false;
    if (!keys.exist())
        makeKeys(connection, table);
    if (!mark)
        mark = marks.set(markName(), {});
    mTail.clear();
    mRowKeyss.clear();
    mLastRow = keys.lastRow();
    mState.mark = mark->id;
    return true;
}

SiteSummaryIndex::RowKeys SiteSummaryIndex::keysOf(qint64 row, const QString &url) const
{
    return {row, SummaryKeys::keyOf(cUtility::lowered(url)), SummaryKeys::keyOf(cUtility::lowered(mServerOf(url)))};
}

void SiteSummaryIndex::makeKeys(Connection &connection, const TableInfo &table) const
{
    // They come from the index of the addresses, in its order, since the table itself holds the pages; the keys go in
    // by row, one behind the other.
    std::vector<RowKeys> all;
    {
        Statement rows = connection.prepare("SELECT " + table.key + ",[Url] FROM " + table.quoted);
        while (rows.step())
            all.push_back(keysOf(rows.integer(0), rows.text(1)));
    }
    std::sort(all.begin(), all.end(), [](const RowKeys &left, const RowKeys &right) { return left.row < right.row; });
    SummaryKeys keys(connection, table);
    keys.make();
    for (const RowKeys &row : all)
        keys.add(row.row, row.urlKey, row.serverKey);
    keys.finish();
}

void SiteSummaryIndex::takeRows(Connection &connection, const TableInfo &table)
{
    Statement rows = connection.prepare("SELECT " + table.key + ",[Url] FROM " + table.quoted + " WHERE " + table.key +
                                        ">?1 ORDER BY " + table.key);
    rows.bind(1, mLastRow);
    while (rows.step()) {
        mLastRow = rows.integer(0);
        mTail.push_back(keysOf(mLastRow, rows.text(1)));
        mRowKeyss.insert(mTail.back().urlKey, mLastRow);
        mRowKeyss.insert(mTail.back().serverKey, mLastRow);
    }
}

void SiteSummaryIndex::moveTail(Connection &connection, const TableInfo &table)
{
    SummaryKeys keys(connection, table);
    for (const RowKeys &row : mTail)
        keys.add(row.row, row.urlKey, row.serverKey);
    mTail.clear();
    mRowKeyss.clear();
}

qint64 SiteSummaryIndex::firstInTail(quint32 key, qint64 after) const
{
    qint64 first = SummaryKeys::noRow;
    const auto [begin, end] = mRowKeyss.equal_range(key);
    for (auto row = begin; row != end; ++row) {
        if (*row > after)
            first = std::min(first, *row);
    }
    return first;
}

qint64 SiteSummaryIndex::search(Connection &connection, const TableInfo &table, const Keys &keys) const
{
    const quint32 key = SummaryKeys::keyOf(keys.key);
    const quint32 server = SummaryKeys::keyOf(keys.server);
    SummaryKeys index(connection, table);
    for (qint64 after = std::numeric_limits<qint64>::min();;) {
        qint64 row = index.firstRow(key, server, after);
        if (row == SummaryKeys::noRow)
            row = std::min(firstInTail(key, after), firstInTail(server, after));
        if (row == SummaryKeys::noRow)
            return notFound;
        if (rowMatches(connection, table, row, keys))
            return row;
        after = row;
    }
}

bool SiteSummaryIndex::matches(const QString &url, const Keys &keys) const
{
    const QString rowUrl = cUtility::lowered(url);
    if (keys.key == rowUrl || keys.server == rowUrl)
        return true;
    const QString rowServer = cUtility::lowered(mServerOf(url));
    return keys.key == rowServer || keys.server == rowServer;
}

bool SiteSummaryIndex::rowMatches(Connection &connection, const TableInfo &table, qint64 row, const Keys &keys) const
{
    Statement url = connection.prepare("SELECT [Url] FROM " + table.quoted + " WHERE " + table.key + "=?1");
    return url.bind(1, row).step() && matches(url.text(0), keys);
}

qint64 SiteSummaryIndex::walk(Connection &connection, const TableInfo &table, const Keys &keys) const
{
    Statement rows =
        connection.prepare("SELECT " + table.key + ",[Url] FROM " + table.quoted + " ORDER BY " + table.key);
    while (rows.step()) {
        if (matches(rows.text(1), keys))
            return rows.integer(0);
    }
    return notFound;
}
