// Numbers inside texts: a number is a run of ASCII digits of any length, counted by its place among the numbers (the
// second number of a text is number 2 wherever it stands). All functions are total. Knows nobody.
#pragma once

#include <QString>

namespace cUtility {
/// Reads or changes numbers of `text`, which is trimmed first; "" answers "". By `intMode`:
///   0 the digits of number `lngPos` (from 1)          1 the last run of other characters
///   2 the count of numbers, as text                   3 number `lngPos` replaced with `strNew`
///   4 `strStep` added to number `lngPos`              5 `strStep` taken from it; 0 or less wraps to 9s of the run's
///   width
/// `bPad` keeps the run's width in modes 4 and 5 with zeros in front (mode 4 does so for a text of digits alone in any
/// case). A text without digits gets `strSep` and "0" behind it in modes 3 to 5, whatever the position and the step.
/// `bIsFile` works on the name between folder and extension alone: modes 0 to 2 answer for the name, modes 3 to 5 give
/// the whole path, with `strSep` between the changed number and a neighbour that does not already touch it with
/// `strSep`. `strStep` is a whole number of any length, with or without a sign. "" for an unknown mode, a position that
/// does not exist and a step that is no number.
[[nodiscard]] QString Incr(QStringView text, int intMode, bool bIsFile, qsizetype lngPos, QStringView strNew,
                           QStringView strStep, QStringView strSep, bool bPad);

/// What looks for a free name takes next: number 1 of the file's name raised by 1, its width kept.
[[nodiscard]] QString nextFileName(QStringView path, QStringView separator = {});

/// How many numbers `text` holds.
[[nodiscard]] qsizetype countNumbers(QStringView text);

/// The first number of `text`, or with `bFromLeft` False the last one; "" if there is none.
[[nodiscard]] QString GetNumberInString(bool bFromLeft, QStringView text);

/// All digits of `text`, joined.
[[nodiscard]] QString CollectNumbers(QStringView text);

/// `number` with as many "0" in front as it takes to reach `width` characters.
[[nodiscard]] QString PaddDigits(QStringView number, qsizetype width);
} // namespace cUtility
