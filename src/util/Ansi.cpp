#include "util/Ansi.h"

#include <algorithm>
#include <array>

namespace {
// Codes 128 to 159; all others are the Unicode number itself. 0 stands for a code that is not in use.
constexpr std::array<char16_t, 32> upperControls{
    u'\u20AC', 0,         u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', 0,         u'\u017D', 0,
    0,         u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', 0,         u'\u017E', u'\u0178'};
constexpr quint8 firstListed = 128;
constexpr quint8 firstBehind = 160;
} // namespace

char16_t Ansi::Chr(quint8 code)
{
    if (code < firstListed || code >= firstBehind)
        return code;
    const char16_t listed = upperControls[code - firstListed];
    return listed == 0 ? u'?' : listed;
}

quint8 Ansi::Asc(char16_t unit)
{
    if (unit < firstListed || (unit >= firstBehind && unit <= 0xFF))
        return quint8(unit);
    const auto found = std::find(upperControls.begin(), upperControls.end(), unit);
    return found == upperControls.end() ? quint8('?') : quint8(firstListed + (found - upperControls.begin()));
}

QString Ansi::decode(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) { return QChar(Chr(quint8(byte))); });
    return text;
}

QByteArray Ansi::encode(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), bytes.begin(), [](QChar unit) { return char(Asc(unit.unicode())); });
    return bytes;
}
