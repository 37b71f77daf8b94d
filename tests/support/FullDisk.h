// As on a full disk: no file of this process grows beyond so many bytes while it stands.
#pragma once

#include <QtGlobal>
#include <csignal>
#include <sys/resource.h>

class FullDisk
{
  public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &mBefore);
        const rlimit limit{bytes, mBefore.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &mBefore); }
    Q_DISABLE_COPY_MOVE(FullDisk)

  private:
    rlimit mBefore{};
};
