// The forms in which other programs' database files hold texts, dates and decimals, as UTF-8. Functions of their
// arguments alone.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A text of two bytes a character, or in the shortened form that begins with FF FE. A half of a pair that stands alone
/// becomes the replacement character; a last odd byte is dropped.
[[nodiscard]] std::string textFromUnits(std::string_view bytes);

/// A day count from 30 December 1899 with the time as its fraction, in ISO 8601. "" outside the years 100 to 9999.
[[nodiscard]] std::string dateFromDays(double days);

/// An amount in ten-thousandths as a decimal without needless zeros.
[[nodiscard]] std::string amountText(std::int64_t tenThousandths);

/// A number of 16 bytes as programs write it: "{8-4-4-4-12}" hexadecimal digits. "" for fewer bytes.
[[nodiscard]] std::string guidText(std::string_view bytes);

/// The extended date of newer files, "days:ticks:7" in 42 characters: days from 1 January of the year 1, ticks of a
/// tenth of a microsecond. In ISO 8601 to the second; "" for every other text.
[[nodiscard]] std::string extendedDate(std::string_view text);

/// Where in the value of a calculated column the value itself lies: behind a head, as long as the head says.
struct InnerValue
{
    std::size_t start = 0;
    std::size_t length = 0;
};
/// Nothing for bytes that are shorter than their head says.
[[nodiscard]] std::optional<InnerValue> calculatedValue(std::string_view bytes);
