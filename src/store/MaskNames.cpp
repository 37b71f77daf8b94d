#include "store/MaskNames.h"

#include "store/AdoErrors.h"
#include "store/FixNull.h"
#include "store/cAdoMdb.h"
#include "store/sqlite/Connection.h"
#include "util/Incr.h"

using namespace Qt::StringLiterals;

namespace {
QString following(const QString &name)
{
    return cUtility::Incr(name, 4, false, 1, u"", u"1", u"", false);
}
} // namespace

MaskNames::MaskNames(cAdoMdb &database, const QString &table, const QString &start) : mCandidate(start)
{
    Recordset rows = database.GetRecordset("SELECT MaskName FROM "_L1 + table);
    for (; !rows.Eof(); rows.MoveNext())
        mTaken.insert(FixNull(rows.Fields()["MaskName"_L1]).toLower());
}

QString MaskNames::next()
{
    do {
        mCandidate = following(mCandidate);
    } while (mTaken.contains(mCandidate.toLower()));
    return mCandidate;
}

NewMaskNames::Known NewMaskNames::stateOf(const std::shared_ptr<Connection> &connection, const QString &table)
{
    return {connection,
            connection->requireTable(table)->changes->revision,
            connection->rollBacks(),
            connection->outsideVersion(),
            {}};
}

bool NewMaskNames::isTaken(cAdoMdb &database, const QString &table, const QString &name)
{
    return !database.GetRecordset("SELECT MaskName FROM "_L1 + table + " WHERE MaskName='"_L1 + name + u'\'').isEmpty();
}

QString NewMaskNames::find(cAdoMdb &database, const QString &table, const QString &start)
{
    const std::shared_ptr<Connection> &connection = database.connection();
    if (!connection)
        throw AdoError::error(AdoError::ConnectionClosed);
    Known now = stateOf(connection, table);
    Known &known = mKnown[table + u'\n' + start];
    const bool onlyGrown = known.connection.lock() == connection && known.revision == now.revision &&
                           known.rollBacks == now.rollBacks && known.outsideVersion == now.outsideVersion;
    now.candidate = onlyGrown ? known.candidate : MaskNames(database, table, start).next();
    while (isTaken(database, table, now.candidate))
        now.candidate = following(now.candidate);
    known = now;
    return known.candidate;
}
