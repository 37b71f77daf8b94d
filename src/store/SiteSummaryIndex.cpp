#include "store/SiteSummaryIndex.h"
#include "store/AdoErrors.h"
#include "store/cAdoMdb.h"
#include "store/sqlite/Connection.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 noRow = std::numeric_limits<qint64>::max();

quint64 hashOf(const QString &text)
{
    static_assert(sizeof(std::size_t) == sizeof(quint64));
    return qHash(QStringView(text), std::size_t(0x9E3779B97F4A7C15));
}

const QString &summaryTable()
{
    static const QString name = u"SiteSummary"_s;
    return name;
}
} // namespace

struct SiteSummaryIndex::Keys
{
    QString key;
    QString server;
};

SiteSummaryIndex::SiteSummaryIndex(ServerOf serverOf) : mServerOf(std::move(serverOf)) {}
SiteSummaryIndex::~SiteSummaryIndex() = default;

qint64 SiteSummaryIndex::find(cAdoMdb &database, const QString &key, const QString &keyServer)
{
    const std::shared_ptr<Connection> &connection = database.connection();
    if (!connection)
        throw AdoError::error(AdoError::ConnectionClosed);
    refresh(connection);
    const Keys keys{cUtility::lowered(key), cUtility::lowered(keyServer)};
    const qint64 row = std::min(candidate(keys.key), candidate(keys.server));
    if (row == noRow)
        return notFound;
    // Two texts of one hash would give a row that does not match; then the rows themselves are asked.
    return rowMatches(*connection, row, keys) ? row : walk(*connection, keys);
}

void SiteSummaryIndex::refresh(const std::shared_ptr<Connection> &connection)
{
    const TableChanges changes = *connection->requireTable(summaryTable())->changes;
    const State now{changes.revision, connection->rollBacks(), connection->outsideVersion()};
    const bool same = mConnection.lock() == connection && mState == now;
    if (same && mAdditions == changes.additions)
        return;
    // Forgotten first, so that a fault half-way leaves nothing that looks up to date.
    mConnection.reset();
    if (!same) {
        mFirstRows.clear();
        mLastRow = std::numeric_limits<qint64>::min();
    }
    takeRows(*connection);
    mState = now;
    mAdditions = changes.additions;
    mConnection = connection;
}

void SiteSummaryIndex::takeRows(Connection &connection)
{
    const auto table = connection.requireTable(summaryTable());
    // All rows come from the index of the addresses, in its order; a few new ones from the table's end.
    const bool all = mFirstRows.isEmpty();
    const std::string text = "SELECT " + table->key + ",[Url] FROM " + table->quoted;
    Statement rows = connection.prepare(all ? text : text + " WHERE " + table->key + ">?1");
    if (!all)
        rows.bind(1, mLastRow);
    while (rows.step()) {
        const qint64 row = rows.integer(0);
        const QString url = rows.text(1);
        mLastRow = std::max(mLastRow, row);
        note(cUtility::lowered(url), row);
        note(cUtility::lowered(mServerOf(url)), row);
    }
}

void SiteSummaryIndex::note(const QString &text, qint64 row)
{
    const auto place = mFirstRows.find(hashOf(text));
    if (place == mFirstRows.end())
        mFirstRows.insert(hashOf(text), row);
    else
        *place = std::min(*place, row);
}

qint64 SiteSummaryIndex::candidate(const QString &text) const
{
    return mFirstRows.value(hashOf(text), noRow);
}

bool SiteSummaryIndex::matches(const QString &url, const Keys &keys) const
{
    const QString rowUrl = cUtility::lowered(url);
    if (keys.key == rowUrl || keys.server == rowUrl)
        return true;
    const QString rowServer = cUtility::lowered(mServerOf(url));
    return keys.key == rowServer || keys.server == rowServer;
}

bool SiteSummaryIndex::rowMatches(Connection &connection, qint64 row, const Keys &keys) const
{
    const auto table = connection.requireTable(summaryTable());
    Statement url = connection.prepare("SELECT [Url] FROM " + table->quoted + " WHERE " + table->key + "=?1");
    return url.bind(1, row).step() && matches(url.text(0), keys);
}

qint64 SiteSummaryIndex::walk(Connection &connection, const Keys &keys) const
{
    const auto table = connection.requireTable(summaryTable());
    Statement rows =
        connection.prepare("SELECT " + table->key + ",[Url] FROM " + table->quoted + " ORDER BY " + table->key);
    while (rows.step()) {
        if (matches(rows.text(1), keys))
            return rows.integer(0);
    }
    return notFound;
}
