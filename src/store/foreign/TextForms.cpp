#include "store/foreign/TextForms.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace {
void appendUtf8(std::string &text, char32_t point)
{
    const auto tail = [&](unsigned shift) { text.push_back(char(0x80U | ((point >> shift) & 0x3FU))); };
    if (point < 0x80) {
        text.push_back(char(point));
    } else if (point < 0x800) {
        text.push_back(char(0xC0U | (point >> 6U)));
        tail(0);
    } else if (point < 0x10000) {
        text.push_back(char(0xE0U | (point >> 12U)));
        tail(6);
        tail(0);
    } else {
        text.push_back(char(0xF0U | (point >> 18U)));
        tail(12);
        tail(6);
        tail(0);
    }
}

std::u16string unitsOf(std::string_view bytes)
{
    std::u16string units;
    for (std::size_t place = 0; place + 1 < bytes.size(); place += 2)
        units.push_back(char16_t(static_cast<unsigned char>(bytes[place]) |
                                 (static_cast<unsigned>(static_cast<unsigned char>(bytes[place + 1])) << 8U)));
    return units;
}

// Runs of one byte a character and of two bytes take turns; a zero byte parts them.
std::u16string expanded(std::string_view bytes)
{
    std::u16string units;
    bool narrow = true;
    while (!bytes.empty()) {
        if (bytes.front() == '\0') {
            narrow = !narrow;
            bytes.remove_prefix(1);
        } else if (narrow) {
            units.push_back(static_cast<unsigned char>(bytes.front()));
            bytes.remove_prefix(1);
        } else {
            units += unitsOf(bytes.substr(0, 2));
            bytes.remove_prefix(std::min<std::size_t>(2, bytes.size()));
        }
    }
    return units;
}

bool isHigh(char16_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLow(char16_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

// A date, and behind it the time unless that is midnight.
std::string isoText(std::chrono::sys_days date, std::int64_t seconds)
{
    const std::chrono::year_month_day day{date};
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", int(day.year()), unsigned(day.month()),
                                     unsigned(day.day()));
    std::string iso(text.data(), static_cast<std::size_t>(length));
    if (seconds == 0)
        return iso;
    const int more = std::snprintf(text.data(), text.size(), "T%02d:%02d:%02d", int(seconds / 3600),
                                   int(seconds / 60 % 60), int(seconds % 60));
    return iso.append(text.data(), static_cast<std::size_t>(more));
}

// The number that all of `digits` is; -1 for any other text.
std::int64_t wholeNumber(std::string_view digits)
{
    std::int64_t number = -1;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size() && number >= 0 ? number : -1;
}
} // namespace

std::string textFromUnits(std::string_view bytes)
{
    const bool shortened = bytes.substr(0, 2) == "\xFF\xFE";
    const std::u16string units = shortened ? expanded(bytes.substr(2)) : unitsOf(bytes);
    constexpr char32_t replacement = 0xFFFD;
    std::string text;
    for (std::size_t place = 0; place < units.size(); ++place) {
        const char16_t unit = units[place];
        if (isHigh(unit) && place + 1 < units.size() && isLow(units[place + 1]))
            appendUtf8(text, 0x10000U + ((char32_t(unit) - 0xD800U) << 10U) + (char32_t(units[++place]) - 0xDC00U));
        else
            appendUtf8(text, isHigh(unit) || isLow(unit) ? replacement : char32_t(unit));
    }
    return text;
}

std::string dateFromDays(double days)
{
    constexpr double firstDay = -657'434;
    constexpr double lastDay = 2'958'466;
    constexpr int daySeconds = 86'400;
    if (!(days > firstDay && days < lastDay))
        return {};
    // The fraction is a time of day counted forwards, also before the first day.
    auto whole = static_cast<std::int64_t>(std::trunc(days));
    auto seconds = static_cast<std::int64_t>(std::llround(std::fabs(days - std::trunc(days)) * daySeconds));
    whole += seconds / daySeconds;
    seconds %= daySeconds;
    using namespace std::chrono;
    return isoText(sys_days{year{1899} / December / 30} + std::chrono::days{whole}, seconds);
}

std::string amountText(std::int64_t tenThousandths)
{
    constexpr std::uint64_t unit = 10'000;
    const bool negative = tenThousandths < 0;
    const std::uint64_t size =
        negative ? 0U - static_cast<std::uint64_t>(tenThousandths) : static_cast<std::uint64_t>(tenThousandths);
    std::string text(negative ? 1 : 0, '-');
    text += std::to_string(size / unit);
    if (size % unit == 0)
        return text;
    std::string fraction = std::to_string(unit + size % unit).substr(1);
    fraction.erase(fraction.find_last_not_of('0') + 1);
    return text.append(".").append(fraction);
}

std::string guidText(std::string_view bytes)
{
    // The first three groups are numbers, the lowest byte first.
    constexpr std::array order{3, 2, 1, 0, -1, 5, 4, -1, 7, 6, -1, 8, 9, -1, 10, 11, 12, 13, 14, 15};
    constexpr std::string_view digits = "0123456789ABCDEF";
    if (bytes.size() < 16)
        return {};
    std::string text("{");
    for (const int place : order) {
        if (place < 0) {
            text.push_back('-');
            continue;
        }
        const auto byte = static_cast<unsigned char>(bytes[static_cast<std::size_t>(place)]);
        text.push_back(digits[byte >> 4U]);
        text.push_back(digits[byte & 0xFU]);
    }
    return text + "}";
}

std::string extendedDate(std::string_view text)
{
    constexpr std::size_t numberLength = 19;
    constexpr std::int64_t daySeconds = 86'400;
    constexpr std::int64_t secondTicks = 10'000'000;
    constexpr std::int64_t lastDay = 3'652'058;
    if (text.size() < 2 * numberLength + 3 || text[numberLength] != ':' || text.substr(2 * numberLength + 1, 2) != ":7")
        return {};
    const std::int64_t days = wholeNumber(text.substr(0, numberLength));
    const std::int64_t ticks = wholeNumber(text.substr(numberLength + 1, numberLength));
    if (days < 0 || days > lastDay || ticks < 0 || ticks >= daySeconds * secondTicks)
        return {};
    using namespace std::chrono;
    return isoText(sys_days{year{1} / January / 1} + std::chrono::days{days}, ticks / secondTicks);
}

std::optional<InnerValue> calculatedValue(std::string_view bytes)
{
    constexpr std::size_t lengthPlace = 16;
    constexpr std::size_t headLength = 20;
    if (bytes.size() < headLength)
        return std::nullopt;
    std::size_t length = 0;
    for (std::size_t byte = 4; byte > 0; --byte)
        length = (length << 8U) | static_cast<unsigned char>(bytes[lengthPlace + byte - 1]);
    if (length > bytes.size() - headLength)
        return std::nullopt;
    return InnerValue{headLength, length};
}
