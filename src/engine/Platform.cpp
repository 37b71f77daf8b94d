#include "engine/Platform.h"

#include <QDir>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <cerrno>
#include <csignal>
#include <unistd.h>
#endif

namespace Platform {

bool runsAsRoot()
{
#ifdef Q_OS_WIN
    return false;
#else
    return geteuid() == 0;
#endif
}

bool hasGraphicsProcessor()
{
#ifdef Q_OS_LINUX
    return !QDir(QStringLiteral("/dev/dri")).entryList({QStringLiteral("renderD*")}, QDir::System).isEmpty();
#else
    return true;
#endif
}

namespace {
// 0 and negative numbers mean groups of processes, 1 is the first of all.
bool isProcess(qint64 pid)
{
    return pid > 1;
}
} // namespace

bool isRunning(qint64 pid)
{
    if (!isProcess(pid))
        return false;
#ifdef Q_OS_WIN
    HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, DWORD(pid));
    const bool running = process != nullptr && WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    if (process != nullptr)
        CloseHandle(process);
    return running;
#else
    return ::kill(pid_t(pid), 0) == 0 || errno == EPERM;
#endif
}

void endProcess(qint64 pid)
{
    if (!isProcess(pid))
        return;
#ifdef Q_OS_WIN
    if (HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, DWORD(pid))) {
        TerminateProcess(process, 1);
        CloseHandle(process);
    }
#else
    ::kill(pid_t(pid), SIGKILL);
#endif
}

} // namespace Platform
