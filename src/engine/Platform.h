// What the browser engines need of the operating system itself. The only file of the folder that calls it directly.
#pragma once

#include <QtGlobal>

namespace Platform {
/// True when the program runs with the rights of the superuser, under which the browsers' sandbox refuses to start.
[[nodiscard]] bool runsAsRoot();
/// True when the machine shows a graphics processor that the browser can draw with.
[[nodiscard]] bool hasGraphicsProcessor();
/// True while the process `pid` runs; False for a `pid` that is no process of its own.
[[nodiscard]] bool isRunning(qint64 pid);
/// Ends the process `pid` at once, without asking it; does nothing for a `pid` that is no process of its own.
void endProcess(qint64 pid);
} // namespace Platform
