// The free-standing browser's program: which names are known, and where it is.
#pragma once

#include <QStringList>

namespace ChromiumProgram {
/// File names of the programs that can be driven, in the order in which they are looked for.
[[nodiscard]] const QStringList &names();
/// True when the last part of `path` is one of the names; upper and lower case count as one.
[[nodiscard]] bool isKnown(const QString &path);
/// Full path of the first of the names on PATH; "" when there is none.
[[nodiscard]] QString find();
/// Path of trawlex-browser-holder, beside the programs. Raises a RuntimeError when it is not installed.
[[nodiscard]] QString holder();
} // namespace ChromiumProgram
