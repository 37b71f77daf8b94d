// The form in which the database holds a date: a text in ISO 8601, "2024-05-01", with a time "2024-05-01T10:20:30".
// (The date texts of the user's own formats are made elsewhere.) Inside store/ only.
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace StoredDates {
/// The date alone where the time is midnight, else with "T" and the time to the second.
[[nodiscard]] QString text(const QDateTime &moment);

/// Today's date, without a time.
[[nodiscard]] QString today();

/// True for a text as `text` gives it. Nearly all dates that are written are.
[[nodiscard]] bool isStored(QStringView text);

/// The moment that `text` stands for: ISO 8601 with "T" or a blank between date and time, or month/day/year with an
/// optional time (24 hours, or with AM or PM). Nothing for any other text. Blanks around it do not matter.
[[nodiscard]] std::optional<QDateTime> parse(const QString &text);
} // namespace StoredDates
