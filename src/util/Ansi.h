// The 8-bit code page of files and of character codes: Windows-1252, strictly. What it does not hold becomes "?".
// Knows nobody.
#pragma once

#include <QByteArray>
#include <QString>

namespace Ansi {
/// The character of `code`. The five codes that the code page leaves open give "?".
[[nodiscard]] char16_t Chr(quint8 code);

/// The code of `unit`; 63 ("?") for a UTF-16 unit that the code page does not hold.
[[nodiscard]] quint8 Asc(char16_t unit);

/// Each byte as its character, with the same length.
[[nodiscard]] QString decode(QByteArrayView bytes);

/// Each UTF-16 unit as its code, with the same length (a pair of surrogates gives "??").
[[nodiscard]] QByteArray encode(QStringView text);
} // namespace Ansi
