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
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
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

#ifdef Q_OS_WIN
PipedProcess startPiped(const QString &program, const QStringList &, const QStringList &)
{
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, QStringLiteral("Cannot start %1.").arg(program));
}
#else
namespace {

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

// What a child is to be given: its files, and a session of its own, so that keys of our terminal do not reach it.
class SpawnPlan
{
  public:
    explicit SpawnPlan(int line)
    {
        posix_spawn_file_actions_init(&mFiles);
        posix_spawnattr_init(&mAttributes);
        posix_spawnattr_setflags(&mAttributes, POSIX_SPAWN_SETSID);
        for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&mFiles, standard, "/dev/null", O_RDWR, 0);
        for (const int file : {readFile, writeFile})
            posix_spawn_file_actions_adddup2(&mFiles, line, file);
    }
    ~SpawnPlan()
    {
        posix_spawn_file_actions_destroy(&mFiles);
        posix_spawnattr_destroy(&mAttributes);
    }
    Q_DISABLE_COPY_MOVE(SpawnPlan)

    /// The error number of the system, 0 for success.
    [[nodiscard]] int run(const QStringList &words, const QStringList &environment, pid_t &pid) const
    {
        Words command(words);
        Words variables(environment);
        return ::posix_spawn(&pid, command.list()[0], &mFiles, &mAttributes, command.list(), variables.list());
    }

  private:
    static constexpr int readFile = 3, writeFile = 4;
    posix_spawn_file_actions_t mFiles{};
    posix_spawnattr_t mAttributes{};
};

} // namespace

PipedProcess startPiped(const QString &program, const QStringList &arguments, const QStringList &variables)
{
    const QStringList environment = QProcess::systemEnvironment() + variables;
    int ends[2] = {-1, -1};
    int error = ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) == 0 ? 0 : errno;
    pid_t pid = 0;
    if (error == 0) {
        error = SpawnPlan(ends[1]).run(QStringList{program} + arguments, environment, pid);
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
