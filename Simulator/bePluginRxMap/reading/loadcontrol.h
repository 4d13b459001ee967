#pragma once

#include <atomic>
#include <functional>

/// How a running load talks to whoever started it. Used in the loading thread.
struct LoadControl {
    /// Called with the share that is done, 0 to 1. May be empty.
    std::function<void(double)> progress;
    /// Set, from any thread, to end the load. Not owned; may be null.
    const std::atomic<bool> *cancelled = nullptr;

    bool isCancelled() const { return cancelled != nullptr && cancelled->load(std::memory_order_relaxed); }
    void report(double fraction) const
    {
        if (progress)
            progress(fraction);
    }
};
