#include "store/rows/StoredDates.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
// A number of the match, 0 where the group took no part.
int number(const QRegularExpressionMatch &match, QStringView group)
{
    return match.captured(group).toInt();
}

// The hour of a clock with AM and PM; -1 for an hour that such a clock does not show.
int hourOf(const QRegularExpressionMatch &match)
{
    const int hour = number(match, u"hour");
    const QString half = match.captured(u"half").toUpper();
    if (half.isEmpty())
        return hour;
    if (hour < 1 || hour > 12)
        return -1;
    return hour % 12 + (half == "PM"_L1 ? 12 : 0);
}
} // namespace

QString StoredDates::text(const QDateTime &moment)
{
    const QString date = moment.date().toString(Qt::ISODate);
    return moment.time() == QTime(0, 0) ? date : date + u'T' + moment.time().toString(Qt::ISODate);
}

QString StoredDates::today()
{
    // Every row asks, and each look at the local date asks the time zone's file: once a second is enough.
    thread_local qint64 second = -1;
    thread_local QString text;
    if (const qint64 now = QDateTime::currentSecsSinceEpoch(); now != second) {
        text = QDate::currentDate().toString(Qt::ISODate);
        second = now;
    }
    return text;
}

bool StoredDates::isStored(QStringView text)
{
    constexpr QStringView form = u"0000-00-00T00:00:00", midnight = u"T00:00:00";
    constexpr qsizetype dateAlone = 10;
    const bool fits = (text.size() == dateAlone || text.size() == form.size()) &&
                      std::equal(text.begin(), text.end(), form.begin(), [](QChar unit, QChar expected) {
                          return expected == u'0' ? unit >= u'0' && unit <= u'9' : unit == expected;
                      });
    if (!fits || text.endsWith(midnight))
        return false;
    const auto at = [text](qsizetype place, qsizetype length) { return text.sliced(place, length).toInt(); };
    return QDate::isValid(at(0, 4), at(5, 2), at(8, 2)) &&
           (text.size() == dateAlone || QTime::isValid(at(11, 2), at(14, 2), at(17, 2)));
}

std::optional<QDateTime> StoredDates::parse(const QString &text)
{
    static const QRegularExpression form(
        uR"(^ *(?:(?<year>\d{4})-(?<month>\d{1,2})-(?<day>\d{1,2})|(?<month2>\d{1,2})/(?<day2>\d{1,2})/(?<year2>\d{4})))"
        uR"((?:(?:T| +)(?<hour>\d{1,2}):(?<minute>\d{2})(?::(?<second>\d{2})(?:\.\d+)?)? *(?<half>[AaPp][Mm])?Z?)? *$)"_s);
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const bool iso = match.hasCaptured(u"year");
    const QDate date = iso ? QDate(number(match, u"year"), number(match, u"month"), number(match, u"day"))
                           : QDate(number(match, u"year2"), number(match, u"month2"), number(match, u"day2"));
    const QTime time(hourOf(match), number(match, u"minute"), number(match, u"second"));
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC);
}
