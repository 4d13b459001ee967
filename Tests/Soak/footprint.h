#pragma once

#include <QtGlobal>

/// How much the process holds.
struct Footprint {
    /// Bytes that the allocator has given out; bytes that the process has in memory.
    qint64 heap = 0;
    qint64 resident = 0;
    /// Open file descriptors, and threads.
    int handles = 0;
    int threads = 0;
    int objects = 0;
    int timers = 0;
    int connections = 0;

    static Footprint now();
    /// Whether none of the counts is higher than the other footprint's.
    bool countsNoMoreThan(const Footprint &other) const;
};
