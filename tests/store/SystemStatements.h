// Every statement of the system into which a value is joined, as the operations build it, and a picture of all rows, so
// that a test can prove what a hostile value did to them: nothing. Shared with the fuzz targets.
#pragma once

#include "store/Schema.h"
#include "store/Transaction.h"
#include "store/cAdoMdb.h"

#include <QMap>
#include <QRegularExpression>

namespace SystemStatements {
/// The statements with `value` in their place, queries first. A statement that removes rows may remove those whose
/// field equals the value; each entry tells its table and field.
struct Statement
{
    QString text;
    bool removes = false;
    QString table;
    QString field;
    /// A number is joined without quotes.
    bool numeric = false;
};

/// How many of them are queries.
constexpr qsizetype queryCount = 57;

inline QList<Statement> with(const QString &value)
{
    using namespace Qt::StringLiterals;
    const QString quoted = u"'"_s + value + u"'"_s;
    QList<Statement> all;
    const QList<std::pair<QString, QString>> lookedFor{{u"SiteSummary"_s, u"Url"_s},
                                                       {u"PassUrlsA"_s, u"Url"_s},
                                                       {u"EmailAddress"_s, u"address"_s},
                                                       {u"PhoneNumber"_s, u"Number"_s},
                                                       {u"AutoTextA"_s, u"Url"_s},
                                                       {u"SearchSites"_s, u"SiteName"_s},
                                                       {u"MC"_s, u"MaskName"_s},
                                                       {u"MNC"_s, u"MaskName"_s},
                                                       {u"PassUrlsB"_s, u"MaskName"_s},
                                                       {u"RPgUrlsC"_s, u"MaskName"_s},
                                                       {u"RPgUrlsD"_s, u"Url"_s},
                                                       {u"MNUrlsE"_s, u"Url"_s},
                                                       {u"ANSelectUrls"_s, u"Url"_s},
                                                       {u"MNSelectUrls"_s, u"Url"_s},
                                                       {u"MNUrlFilters"_s, u"FilterOne"_s},
                                                       {u"MNUrlFilters"_s, u"FilterTwo"_s},
                                                       {u"MNUrlFilters"_s, u"ServerOne"_s},
                                                       {u"MNUrlFilters"_s, u"ServerTwo"_s}};
    for (const auto &[table, field] : lookedFor) {
        all.append({u"SELECT * FROM "_s + table + u" WHERE "_s + field + u"="_s + quoted, false, table, field});
        all.append(
            {u"SELECT "_s + field + u" FROM "_s + table + u" WHERE "_s + field + u"="_s + quoted, false, table, field});
        all.append({u"SELECT * FROM "_s + table + u" WHERE "_s + field + u" LIKE '%"_s + value + u"%'"_s, false, table,
                    field});
    }
    all.append(
        {u"SELECT StartNumber,IncrNum,IncrStep FROM AutoTextA WHERE Url="_s + quoted, false, u"AutoTextA"_s, u"Url"_s});
    all.append({u"SELECT FullPage FROM SiteSummary WHERE Index="_s + value, false, u"SiteSummary"_s, u"Index"_s, true});
    all.append({u"SELECT Index,Date,Title,Url FROM SiteSummary WHERE Title="_s + value, false, u"SiteSummary"_s,
                u"Title"_s, true});
    for (const auto &[table, field] : QList<std::pair<QString, QString>>{{u"SearchSites"_s, u"SiteName"_s},
                                                                         {u"MC"_s, u"MaskName"_s},
                                                                         {u"MNC"_s, u"MaskName"_s},
                                                                         {u"PassUrlsA"_s, u"Url"_s}})
        all.append({u"DELETE * FROM "_s + table + u" WHERE "_s + field + u"="_s + quoted, true, table, field});
    all.append({u"DELETE * FROM EmailAddress WHERE Index="_s + value, true, u"EmailAddress"_s, u"Index"_s, true});
    return all;
}

/// All rows of all tables as text, by table and Index.
using Picture = QMap<QString, QMap<qint64, QString>>;

inline Picture pictureOf(cAdoMdb &database)
{
    using namespace Qt::StringLiterals;
    Picture picture;
    for (const QStringList &table : LoadTblFldNames()) {
        Recordset rows = database.GetRecordset(u"SELECT * FROM "_s + table[0]);
        for (auto &values = picture[table[0]]; !rows.Eof();) {
            const qint64 index = rows.Fields()[0].Value().toLongLong();
            values[index] = rows.GetString(QString(QChar(1)), QString(), QString(QChar(2)), 1);
        }
    }
    return picture;
}

/// One row in every table, each text field holding a word of its own.
inline void fillAll(cAdoMdb &database)
{
    using namespace Qt::StringLiterals;
    Transaction transaction(database);
    for (const QStringList &table : LoadTblFldNames()) {
        for (int row = 0; row < 3; ++row) {
            QStringList elements;
            for (qsizetype field = 2; field < table.size() && !table[field].isEmpty(); ++field) {
                if (table[field] != "Date"_L1 && table[field] != "Picture"_L1)
                    elements.append(table[field] + rowMarker +
                                    (row == 0 ? u"1"_s : table[field] + QString::number(row)));
            }
            database.AddRecord(elements, -1, table[0], rowMarker);
        }
    }
    static_cast<void>(transaction.commit());
}

/// The rows of its table that a statement removes: those whose field equals the value.
inline QList<qint64> removedBy(const Statement &statement, const Picture &before, const QString &value,
                               const QStringList &fields)
{
    using namespace Qt::StringLiterals;
    QList<qint64> removed;
    if (!statement.removes || (!statement.numeric && value.contains(u'\'')))
        return removed;
    const qsizetype place = fields.indexOf(statement.field);
    // A number stands there bare, with the blanks that the language knows, or in quotes, with those of the engine.
    static const QString form = uR"(([-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?))"_s;
    static const QRegularExpression number(uR"(^[ \t\r\n]*(?:%1|'[ \t-\r]*%1[ \t-\r]*')[ \t\r\n]*$)"_s.arg(form));
    const auto wanted = number.match(value);
    const QMap<qint64, QString> rows = before.value(statement.table);
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        const QString held = row.value().split(QChar(1)).value(place - 1);
        if (statement.numeric
                ? wanted.hasMatch() && held.toDouble() == wanted.captured(wanted.lastCapturedIndex()).toDouble()
                : held.compare(value, Qt::CaseInsensitive) == 0)
            removed.append(row.key());
    }
    return removed;
}

/// What `run` of a statement must leave of `before`: everything, but for the rows that it removes.
inline Picture expectedAfter(Picture before, const Statement &statement, const QString &value,
                             const QStringList &fields)
{
    for (const qint64 row : removedBy(statement, before, value, fields))
        before[statement.table].remove(row);
    return before;
}
} // namespace SystemStatements
