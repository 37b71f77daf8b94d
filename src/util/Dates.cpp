#include "util/Dates.h"

#include "util/Incr.h"
#include "util/Text.h"

#include <QList>
#include <algorithm>
#include <array>
#include <map>
#include <optional>

using namespace Qt::StringLiterals;

namespace {
struct MonthDay
{
    int month;
    int day;
};

constexpr std::array<MonthDay, 19> holidays{{{1, 1},
                                             {1, 21},
                                             {2, 12},
                                             {2, 14},
                                             {2, 18},
                                             {3, 17},
                                             {3, 31},
                                             {5, 12},
                                             {5, 27},
                                             {6, 16},
                                             {7, 4},
                                             {9, 1},
                                             {10, 14},
                                             {10, 31},
                                             {11, 11},
                                             {11, 28},
                                             {12, 24},
                                             {12, 25},
                                             {12, 31}}};

constexpr QStringView badFormat =
    u"InPut format string must be mmddy, mmddyy, mmddyyyy, only item (mm, dd, yy) position can "
    u"vary not count.";
constexpr QStringView noDelimiter = u"A Date or Date string delimiter MUST be provided.";

/// The items of a format in their order, as its letters: "mm", "dd" and one of "y", "yy", "yyyy". Empty for a bad one.
QList<QStringView> itemsOf(QStringView format)
{
    QList<QStringView> items;
    for (qsizetype begin = 0, end = 0; begin < format.size(); begin = end) {
        while (end < format.size() && format[end] == format[begin])
            ++end;
        items += format.sliced(begin, end - begin);
    }
    const auto countOf = [&](QStringView item) { return std::count(items.begin(), items.end(), item); };
    const bool isGood = items.size() == 3 && countOf(u"mm") == 1 && countOf(u"dd") == 1 &&
                        countOf(u"y") + countOf(u"yy") + countOf(u"yyyy") == 1;
    return isGood ? items : QList<QStringView>();
}

QString widenedYear(const QString &year, QDate today)
{
    constexpr int firstOfLastCentury = 51;
    if (year.size() == 1)
        return (year.toInt() > today.year() % 10 ? u"199"_s : u"200"_s) + year;
    if (year.size() == 2)
        return (year.toInt() < firstOfLastCentury ? u"20"_s : u"19"_s) + year;
    return year;
}

QString firstNonDigit(QStringView date)
{
    const auto found = std::find_if(date.begin(), date.end(), [](QChar c) { return !cUtility::isDigit(c.unicode()); });
    return found == date.end() ? QString() : QString(*found);
}

/// The items of a date by the first letter of their format item.
using DateItems = std::map<char16_t, QString>;

QString written(QStringView format, const DateItems &items)
{
    constexpr std::array<QStringView, 5> tokens{u"yyyy", u"yy", u"y", u"mm", u"dd"};
    QString text;
    while (!format.isEmpty()) {
        const auto token = std::find_if(tokens.begin(), tokens.end(),
                                        [&](QStringView t) { return cUtility::startsWithIgnoringCase(format, t); });
        if (token == tokens.end()) {
            text += format.front();
            format = format.sliced(1);
            continue;
        }
        text += cUtility::PaddDigits(items.at(token->front().unicode()), token->size()).last(token->size());
        format = format.sliced(token->size());
    }
    return text;
}
} // namespace

cUtility::DateText cUtility::CnvDateString(QStringView date, QStringView inputFormat, QStringView outputFormat,
                                           QStringView delimiter, QDate today)
{
    const QString format = lowered(Trim(inputFormat));
    const QList<QStringView> order = itemsOf(format);
    if (order.isEmpty())
        return {{}, badFormat.toString()};
    date = Trim(date);
    const QString divider = delimiter.isEmpty() ? firstNonDigit(date) : delimiter.toString();
    if (divider.isEmpty() || !date.contains(divider))
        return {{}, noDelimiter.toString()};

    const QList<QStringView> parts = date.split(divider);
    if (parts.size() != order.size())
        return {};
    DateItems items;
    for (qsizetype place = 0; place < order.size(); ++place) {
        const QString part = Trim(parts[place]).toString();
        if (part.isEmpty() || CollectNumbers(part) != part)
            return {};
        items[order[place].front().unicode()] = part;
    }
    items[u'y'] = widenedYear(items[u'y'], today);
    return {written(outputFormat, items), {}};
}

bool cUtility::IsDateHoliday(QDate date)
{
    if (!date.isValid())
        return false;
    const bool isListed = std::any_of(holidays.begin(), holidays.end(), [&](MonthDay holiday) {
        return holiday.month == date.month() && holiday.day == date.day();
    });
    return isListed || date.dayOfWeek() == Qt::Saturday || date.dayOfWeek() == Qt::Sunday;
}
