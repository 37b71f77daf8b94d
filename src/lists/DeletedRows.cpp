#include "lists/DeletedRows.h"

#include "store/FixNull.h"
#include "store/Schema.h"
#include "store/Transaction.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace {
constexpr auto cache = "UrlsCache"_L1;

/// Which of its own values a row of a family keeps.
struct KeptFields
{
    QLatin1StringView name;
    bool date, index, maskName;
};
constexpr KeptFields families[] = {
    {"RPgUrls"_L1, true, false, true}, {"PassUrls"_L1, true, true, true}, {"MNUrls"_L1, false, false, false}};

const KeptFields &familyOf(const QString &table)
{
    const auto found = std::find_if(std::begin(families), std::end(families),
                                    [&](const KeptFields &family) { return table.chopped(1) == family.name; });
    return found == std::end(families) ? families[2] : *found;
}
} // namespace

QList<QStringList> DeletedRows::records(const QString &table)
{
    const KeptFields &family = familyOf(table);
    const QString now = QDateTime::currentDateTime().toString(Qt::ISODate);
    QList<QStringList> found;
    Recordset rows = mDatabase->GetRecordset("SELECT * FROM "_L1 + table);
    const auto value = [&](bool own, QLatin1StringView field, const QString &otherwise) {
        return recordElement(field, own ? FixNull(rows.Fields()[field]) : otherwise);
    };
    for (; !rows.Eof() && mWork.goOn(found.size()); rows.MoveNext())
        found.append({value(family.date, "Date"_L1, now), value(family.index, "SSIndex"_L1, u"0"_s),
                      value(family.maskName, "MaskName"_L1, {}), value(true, "Url"_L1, {})});
    return found;
}

bool DeletedRows::write(const QString &table, const QList<QStringList> &records)
{
    Transaction transaction(*mDatabase);
    mDatabase->DeleteRecords(cache, {}, {}, false);
    for (const QStringList &record : records) {
        if (!mDatabase->AddRecord(record, -1, cache, rowMarker))
            return false;
    }
    mDatabase->DeleteRecords(table, {}, {}, false);
    return transaction.commit();
}

DeletedRows::Outcome DeletedRows::CacheDeletedData(const QString &table)
{
    Outcome outcome = Outcome::Refused;
    guarded(mLog, {"frmSearch"_L1, "Sub CacheDeletedData"_L1}, [&] {
        const QList<QStringList> found = records(table);
        if (mWork.isCancelled())
            outcome = Outcome::Cancelled;
        else if (found.isEmpty())
            outcome = Outcome::WasEmpty;
        else if (write(table, found))
            outcome = Outcome::Moved;
    });
    return outcome;
}
