// The forms in which other programs' database files hold texts, dates and decimals, as UTF-8. Functions of their
// arguments alone.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// A text of two bytes a character, or in the shortened form that begins with FF FE. A half of a pair that stands alone
/// becomes the replacement character; a last odd byte is dropped.
[[nodiscard]] std::string textFromUnits(std::string_view bytes);

/// A day count from 30 December 1899 with the time as its fraction, in ISO 8601. "" outside the years 100 to 9999.
[[nodiscard]] std::string dateFromDays(double days);

/// An amount in ten-thousandths as a decimal without needless zeros.
[[nodiscard]] std::string amountText(std::int64_t tenThousandths);
