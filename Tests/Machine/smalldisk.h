#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// A limit on the size of files stands for a full disk.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before);
        formerAction = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small = {bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, formerAction);
    }
    Q_DISABLE_COPY(SmallDisk)

private:
    rlimit before{};
    void (*formerAction)(int);
};
