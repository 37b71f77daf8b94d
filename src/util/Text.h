// Looking into texts and changing them. A text is a row of UTF-16 units; ignoring case means that each unit is mapped
// to its lower-case unit alone, without locale, so positions and lengths never move. All functions are total. Knows
// nobody.
#pragma once

#include <QString>

namespace cUtility {
/// The lower-case unit of `unit`, itself where there is none (or none of one unit).
[[nodiscard]] inline char16_t lowerUnit(char16_t unit)
{
    if (unit < 0x80)
        return unit >= u'A' && unit <= u'Z' ? char16_t(unit + 0x20) : unit;
    return QChar::toLower(char32_t(unit));
}

/// `text` with each unit lower-cased; always as long as `text`.
[[nodiscard]] QString lowered(QStringView text);

/// `text` with each control character, line end and change of the writing direction as a sign that stands for it, so
/// that a text of unknown origin cannot do anything to a terminal, a log or a label: it is shown as one line, as it is.
[[nodiscard]] QString shown(QString text);

/// True for the ASCII digits, the only single characters that count as numeric.
[[nodiscard]] constexpr bool isDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

/// `text` without the blanks (code 32, nothing else) at both ends.
[[nodiscard]] QStringView Trim(QStringView text);

/// Index (from 0) of the first `find` at or behind index `from`, -1 when there is none. An empty `find` is at `from` as
/// long as that is inside `text`; so it is nowhere in an empty text. A negative `from` counts as 0.
[[nodiscard]] qsizetype indexIn(QStringView text, QStringView find, qsizetype from = 0,
                                Qt::CaseSensitivity sensitivity = Qt::CaseSensitive);

/// As `indexIn` with case ignored.
[[nodiscard]] inline qsizetype indexIgnoringCase(QStringView text, QStringView find, qsizetype from = 0)
{
    return indexIn(text, find, from, Qt::CaseInsensitive);
}

/// True when `find` stands in `text`, case ignored; an empty `find` stands in every text but the empty one.
[[nodiscard]] inline bool holdsIgnoringCase(QStringView text, QStringView find)
{
    return indexIgnoringCase(text, find) >= 0;
}

/// `indexIn` with positions from 1 and 0 for "not found", as the rules of the program count.
[[nodiscard]] inline qsizetype InStr(qsizetype start, QStringView text, QStringView find,
                                     Qt::CaseSensitivity sensitivity = Qt::CaseSensitive)
{
    return indexIn(text, find, start - 1, sensitivity) + 1;
}

/// True when both are equal unit by unit, case ignored.
[[nodiscard]] bool equalIgnoringCase(QStringView left, QStringView right);

/// True when `text` begins with `start`, case ignored. An empty `start` begins every text.
[[nodiscard]] bool startsWithIgnoringCase(QStringView text, QStringView start);

/// How often `find` stands in `text`; occurrences may overlap. 0 when either is empty.
[[nodiscard]] qsizetype CountChar(QStringView text, QStringView find,
                                  Qt::CaseSensitivity sensitivity = Qt::CaseSensitive);

/// One line of all lines: each CR LF, CR or LF becomes one blank.
[[nodiscard]] QString MultipleLinesToSingle(QStringView text);

/// Only A to Z, a to z and 0 to 9 of `text`.
[[nodiscard]] QString StripToLettersAndNumbers(QStringView text);

/// What stands before the last `find`; "" when there is none.
[[nodiscard]] QString InStrRevGetBeginning(QStringView text, QStringView find);

/// What stands behind the last `find`; "" when there is none.
[[nodiscard]] QString InStrRevGetEnding(QStringView text, QStringView find);

/// The positions (from 1) of all occurrences, overlapping ones too, joined by ","; "" when there is none.
[[nodiscard]] QString DelimiterLocationsInString(QStringView text, QStringView delimiter);

/// The value of a hexadecimal text, "&H" or "&h" in front or not; of more than 8 digits the last 8 count.
/// 0 for what does not read as hexadecimal.
[[nodiscard]] quint32 ConvertHex(QStringView text);
} // namespace cUtility
