#include "app/StopSignals.h"

#include <QSocketNotifier>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace {
int sockets[2] = {-1, -1};

// A handler may do next to nothing; one byte wakes the event loop.
void wake(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(sockets[1], &byte, 1);
}
} // namespace

StopSignals::StopSignals()
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, sockets) != 0)
        return;
    mNotifier = std::make_unique<QSocketNotifier>(sockets[0], QSocketNotifier::Read);
    connect(mNotifier.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (::read(sockets[0], &byte, 1) == 1)
            Q_EMIT stopRequested();
    });
    std::signal(SIGINT, wake);
    std::signal(SIGTERM, wake);
    std::signal(SIGHUP, wake);
}

StopSignals::~StopSignals()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGHUP, SIG_DFL);
    mNotifier.reset();
    for (int &each : sockets)
        ::close(std::exchange(each, -1));
}
