// What the browser engines need of the operating system itself. The only file of the folder that calls it directly.
#pragma once

#include <QStringList>

namespace Platform {
/// A process that was started with a line to it.
struct PipedProcess
{
    qint64 pid = 0;
    qintptr socket = -1; ///< our end of the line; closed by whoever takes it
};
/// Starts `program` in a session of its own. It reads from its file 3 what we write to the line, and what it writes to
/// its file 4 comes back; the line ends with either process, whatever ends it. It is ended at once when the thread that
/// has started it ends. `environment` is all that it has of that ("NAME=value"). Raises a RuntimeError.
[[nodiscard]] PipedProcess startPiped(const QString &program, const QStringList &arguments,
                                      const QStringList &environment);
/// The process that listens at the other end of a local socket which we have connected; 0 where it cannot be told.
[[nodiscard]] qint64 peer(qintptr socket);
/// The command line of the process `pid`, its words parted by zero bytes; "" where it cannot be told.
[[nodiscard]] QByteArray commandLine(qint64 pid);
/// True when the program runs with the rights of the superuser, under which the browsers' sandbox refuses to start.
[[nodiscard]] bool runsAsRoot();
/// True when the machine shows a graphics processor that the browser can draw with.
[[nodiscard]] bool hasGraphicsProcessor();
/// True while the process `pid` runs; False for a `pid` that is no process of its own.
[[nodiscard]] bool isRunning(qint64 pid);
/// Ends the process `pid` at once, without asking it; does nothing for a `pid` that is no process of its own.
void endProcess(qint64 pid);
} // namespace Platform
