#include "store/MaskNames.h"

#include "store/AdoErrors.h"
#include "store/FixNull.h"
#include "store/cAdoMdb.h"
#include "store/rows/GrowthMarks.h"
#include "util/Incr.h"
#include "util/Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
// A mark that is so many names behind is brought up to date; as many looks at most are spent on it in a later run.
constexpr int mostStepsBehindMark = 100;

QString following(const QString &name)
{
    return cUtility::Incr(name, 4, false, 1, u"", u"1", u"", false);
}

bool isDigit(QChar unit)
{
    return cUtility::isDigit(unit.unicode());
}
} // namespace

MaskNames::MaskNames(cAdoMdb &database, const QString &table, const QString &start) : mCandidate(start)
{
    const QString name = following(start);
    const auto *const number = std::find_if(name.begin(), name.end(), isDigit);
    mBeginning = name.left(number - name.begin());
    mEnding = name.mid(std::find_if_not(number, name.end(), isDigit) - name.begin());
    Recordset rows = database.GetRecordset("SELECT MaskName FROM "_L1 + table);
    for (; !rows.Eof(); rows.MoveNext()) {
        if (const auto taken = numberIn(FixNull(rows.Fields()[0])))
            mTaken.push_back(*taken);
    }
    std::sort(mTaken.begin(), mTaken.end());
}

/// The number of a name in the form in which names are counted: no zeros in front.
std::optional<quint64> MaskNames::numberIn(const QString &name) const
{
    constexpr qsizetype mostDigits = 18;
    const qsizetype length = name.size() - mBeginning.size() - mEnding.size();
    if (length < 1 || length > mostDigits)
        return std::nullopt;
    const QStringView digits = QStringView(name).sliced(mBeginning.size(), length);
    const bool counted = (length == 1 || digits[0] != u'0') && std::all_of(digits.begin(), digits.end(), isDigit);
    if (!counted || !name.startsWith(mBeginning, Qt::CaseInsensitive) || !name.endsWith(mEnding, Qt::CaseInsensitive))
        return std::nullopt;
    return digits.toULongLong();
}

bool MaskNames::isTaken(const QString &name) const
{
    const auto number = numberIn(name);
    return number && std::binary_search(mTaken.begin(), mTaken.end(), *number);
}

QString MaskNames::next()
{
    do {
        mCandidate = following(mCandidate);
    } while (isTaken(mCandidate));
    return mCandidate;
}

bool NewMaskNames::isTaken(cAdoMdb &database, const QString &table, const QString &name)
{
    return !database.GetRecordset("SELECT MaskName FROM "_L1 + table + " WHERE MaskName='"_L1 + name + u'\'').isEmpty();
}

/// True if the table has only grown since, as far as this program knows and the mark tells of others.
bool NewMaskNames::holds(const Known &known, const std::shared_ptr<Connection> &connection, const TableInfo &table)
{
    if (known.connection.lock() != connection || known.revision != table.changes->revision ||
        known.rollBacks != connection->rollBacks())
        return false;
    return known.outsideVersion == connection->outsideVersion();
}

void NewMaskNames::learn(Known &known, cAdoMdb &database, const TableInfo &table, const QString &start)
{
    const std::shared_ptr<Connection> &connection = database.connection();
    const auto mark = GrowthMarks(*connection, table).read(start);
    const bool sameRows = known.connection.lock() == connection && known.rollBacks == connection->rollBacks() &&
                          known.revision == table.changes->revision;
    if (!mark) {
        known.candidate = MaskNames(database, table.name, start).next();
        known.stepsBehindMark = mostStepsBehindMark;
    } else if (!sameRows || mark->id != known.mark) {
        known.candidate = mark->value;
        known.stepsBehindMark = 0;
    }
    known.mark = mark ? mark->id : 0;
}

QString NewMaskNames::find(cAdoMdb &database, const QString &table, const QString &start)
{
    const std::shared_ptr<Connection> &connection = database.connection();
    if (!connection)
        throw AdoError::error(AdoError::ConnectionClosed);
    const auto info = connection->requireTable(table);
    Known known = mKnown.take(table + u'\n' + start);
    if (!holds(known, connection, *info))
        learn(known, database, *info, start);
    for (; isTaken(database, table, known.candidate); ++known.stepsBehindMark)
        known.candidate = following(known.candidate);
    if (known.stepsBehindMark >= mostStepsBehindMark && connection->inTransaction()) {
        known.mark = GrowthMarks(*connection, *info).set(start, known.candidate).id;
        known.stepsBehindMark = 0;
    }
    known.connection = connection;
    known.revision = info->changes->revision;
    known.rollBacks = connection->rollBacks();
    known.outsideVersion = connection->outsideVersion();
    mKnown.insert(table + u'\n' + start, known);
    return known.candidate;
}
