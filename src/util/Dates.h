// Dates as texts, and the days that count as holidays. Knows nobody.
#pragma once

#include <QDate>
#include <QString>

namespace cUtility {
/// A converted date, or the message that says why there is none.
struct DateText
{
    QString text;
    QString message;

    [[nodiscard]] bool operator==(const DateText &) const = default;
};

/// `date`, written as `inputFormat` tells, in the form of `outputFormat`.
/// The input format is mmddy, mmddyy or mmddyyyy, its three items in any order; the date's items stand in that order,
/// divided by `delimiter` or, where that is "", by the first character of the date that is no digit. In the output
/// format yyyy, yy, y, mm and dd, in any case, stand for the items, everything else for itself. A year of two digits is
/// widened with 20 below 51 and with 19 otherwise; a year of one digit with 199 when it is above the last digit of
/// `today`'s year, with 200 otherwise. A bad format and a date without delimiter give their message, a date that does
/// not have three numeric items gives neither text nor message.
[[nodiscard]] DateText CnvDateString(QStringView date, QStringView inputFormat, QStringView outputFormat,
                                     QStringView delimiter = {}, QDate today = QDate::currentDate());

/// True on Saturdays and Sundays and on the fixed days of the list.
[[nodiscard]] bool IsDateHoliday(QDate date);
} // namespace cUtility
