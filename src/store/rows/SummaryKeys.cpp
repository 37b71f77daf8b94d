#include "store/rows/SummaryKeys.h"
#include "store/rows/GrowthMarks.h"

using namespace Qt::StringLiterals;

namespace {
// The number is the form of the keys: another one where keys are made in another way, so that old ones are not read.
const std::string keysTable = "SysSummaryKeys1";
} // namespace

quint32 SummaryKeys::keyOf(const QString &text)
{
    constexpr quint64 start = 0xCBF29CE484222325U;
    constexpr quint64 factor = 0x100000001B3U;
    quint64 hash = start;
    for (const QChar unit : text)
        hash = (hash ^ unit.unicode()) * factor;
    return static_cast<quint32>(hash ^ (hash >> 32U));
}

bool SummaryKeys::exist()
{
    return mSummary.name == "SiteSummary"_L1 && mConnection.table(QString::fromStdString(keysTable)) != nullptr;
}

qint64 SummaryKeys::lastRow()
{
    Statement last = mConnection.prepare("SELECT SummaryRow FROM " + keysTable + " ORDER BY SummaryRow DESC LIMIT 1");
    return last.step() ? last.integer(0) : std::numeric_limits<qint64>::min();
}

void SummaryKeys::add(qint64 row, quint32 urlKey, quint32 serverKey)
{
    mConnection.prepare("INSERT OR IGNORE INTO " + keysTable + " VALUES(?1,?2,?3)")
        .bind(1, row)
        .bind(2, qint64(urlKey))
        .bind(3, qint64(serverKey))
        .run();
}

qint64 SummaryKeys::firstRow(quint32 key, quint32 otherKey, qint64 after)
{
    static const std::string text = [] {
        std::string parts;
        for (const char *column : {"UrlKey", "ServerKey"}) {
            for (const char *place : {"?1", "?2"})
                parts += std::string(parts.empty() ? "" : " UNION ALL ") + "SELECT min(SummaryRow) AS First FROM " +
                         keysTable + " WHERE " + column + "=" + place + " AND SummaryRow>?3";
        }
        return "SELECT min(First) FROM (" + parts + ")";
    }();
    Statement row = mConnection.prepare(text);
    row.bind(1, qint64(key)).bind(2, qint64(otherKey)).bind(3, after);
    const QVariant first = row.step() ? row.value(0) : QVariant();
    return first.isValid() ? first.toLongLong() : noRow;
}

void SummaryKeys::removeAll()
{
    Statement statement = mConnection.prepare("DELETE FROM " + keysTable);
    mConnection.change(statement);
}

void SummaryKeys::make()
{
    mConnection.administer("CREATE TABLE " + keysTable +
                           "(SummaryRow INTEGER PRIMARY KEY,UrlKey INTEGER NOT NULL,"
                           "ServerKey INTEGER NOT NULL)");
    const std::string row = "." + mSummary.key;
    const std::string cutOff = "DELETE FROM " + keysTable + " WHERE SummaryRow>=";
    makeGrowthTriggers(mConnection, mSummary, "SysKeys", cutOff + "NEW" + row + ";",
                       cutOff + "min(OLD" + row + ",NEW" + row + ");",
                       "DELETE FROM " + keysTable + " WHERE SummaryRow=OLD" + row + ";");
}

void SummaryKeys::finish()
{
    mConnection.administer("CREATE INDEX SysByUrlKey ON " + keysTable + "(UrlKey)");
    mConnection.administer("CREATE INDEX SysByServerKey ON " + keysTable + "(ServerKey)");
}

void SummaryKeys::drop()
{
    mConnection.administer("DROP TABLE " + keysTable);
}
