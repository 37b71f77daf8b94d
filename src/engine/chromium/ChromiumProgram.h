// The free-standing browser's program: which names are known, where it is, and how it is started.
#pragma once

#include "engine/chromium/ChromiumSwitches.h"

namespace ChromiumProgram {
/// File names of the programs that can be driven, in the order in which they are looked for.
[[nodiscard]] const QStringList &names();
/// True when the last part of `path` is one of the names; upper and lower case count as one.
[[nodiscard]] bool isKnown(const QString &path);
/// Full path of the first of the names on PATH; "" when there is none.
[[nodiscard]] QString find();
/// Starts `path`, which outlives this process. Raises a RuntimeError when it cannot be started. Gives its process.
qint64 start(const QString &path, const ChromiumStart &start);
} // namespace ChromiumProgram
