#include "engine/Platform.h"

#include <QDir>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
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

void endProcess(qint64 pid)
{
    if (pid <= 1) // 0 and negative numbers mean groups of processes
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
