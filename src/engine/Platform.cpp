#include "engine/Platform.h"

#include "util/Errors.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <vector>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif
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

#ifdef Q_OS_WIN
PipedProcess startPiped(const QString &program, const QStringList &, const QStringList &)
{
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, QStringLiteral("Cannot start %1.").arg(program));
}
#else
namespace {

constexpr int readFile = 3, writeFile = 4; // of a child

// Texts as the system takes them.
class Words
{
  public:
    explicit Words(const QStringList &texts)
    {
        for (const QString &each : texts)
            mWords.push_back(each.toLocal8Bit());
        for (QByteArray &word : mWords)
            mPointers.push_back(word.data());
        mPointers.push_back(nullptr);
    }
    [[nodiscard]] char **list() { return mPointers.data(); }

  private:
    std::vector<QByteArray> mWords;
    std::vector<char *> mPointers;
};

// A file of ours, above those that a child is given.
int aboveChildFiles(int file)
{
    const int moved = ::fcntl(file, F_DUPFD_CLOEXEC, writeFile + 1);
    ::close(file);
    return moved;
}

// The life of the child until it is the program: between fork and exec it may do next to nothing, so all stands ready.
// Only an error of the system comes back.
class Child
{
  public:
    Child(const QStringList &words, const QStringList &environment, int line)
        : mWords(words), mVariables(environment), mLine(line)
    {
    }
    [[nodiscard]] int become()
    {
#ifdef Q_OS_LINUX
        // Also one that is stopped, and never finds that its line has gone, ends with us.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != mParent)
            return ESRCH;
#endif
        ::setsid(); // keys of our terminal do not reach it
        const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
        for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            ::dup2(nothing, standard);
        for (const int file : {readFile, writeFile})
            ::dup2(mLine, file);
        ::execve(mWords.list()[0], mWords.list(), mVariables.list());
        return errno;
    }

  private:
    Words mWords;
    Words mVariables;
    int mLine;
    pid_t mParent = ::getpid();
};

// Starts `child` and waits until it is the program. The error number of the system, 0 for success.
int startChild(Child &child, pid_t &pid)
{
    int report[2] = {-1, -1};
    if (::pipe2(report, O_CLOEXEC) != 0)
        return errno;
    report[1] = aboveChildFiles(report[1]);
    pid = ::fork();
    if (pid == 0) {
        const int error = child.become();
        [[maybe_unused]] const ssize_t told = ::write(report[1], &error, sizeof error);
        ::_exit(EXIT_FAILURE);
    }
    int error = pid < 0 ? errno : 0;
    ::close(report[1]);
    // The program's start closes the pipe, and nothing comes.
    while (pid > 0 && ::read(report[0], &error, sizeof error) < 0 && errno == EINTR) {
    }
    ::close(report[0]);
    if (error != 0 && pid > 0)
        ::waitpid(pid, nullptr, 0);
    return error;
}

} // namespace

PipedProcess startPiped(const QString &program, const QStringList &arguments, const QStringList &environment)
{
    int ends[2] = {-1, -1};
    int error = ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) == 0 ? 0 : errno;
    pid_t pid = 0;
    if (error == 0) {
        ends[1] = aboveChildFiles(ends[1]);
        Child child(QStringList{program} + arguments, environment, ends[1]);
        error = startChild(child, pid);
        ::close(ends[1]);
    }
    if (error != 0) {
        ::close(ends[0]);
        throw RuntimeError(
            ErrorNumber::FileNotFound,
            QStringLiteral("Cannot start %1: %2").arg(program, QString::fromLocal8Bit(std::strerror(error))));
    }
    return {pid, ends[0]};
}
#endif

qint64 peer([[maybe_unused]] qintptr socket)
{
#ifdef Q_OS_LINUX
    ucred who{};
    socklen_t size = sizeof who;
    if (::getsockopt(int(socket), SOL_SOCKET, SO_PEERCRED, &who, &size) == 0)
        return who.pid;
#endif
    return 0;
}

QByteArray commandLine(qint64 pid)
{
    QFile file(QStringLiteral("/proc/%1/cmdline").arg(pid));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
    ::waitpid(pid_t(pid), nullptr, WNOHANG); // a child of ours that has ended is no process any more
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
