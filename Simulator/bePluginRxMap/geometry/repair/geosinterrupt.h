#pragma once

#include <QtGlobal>

#include <atomic>

/// While it lives, GEOS gives up what it does in this thread as soon as `cancelled` is set; the call fails then as it
/// does for any other reason. GEOS's own request flag is one for all threads, and whichever asks first takes it; so its
/// callback, which runs in the thread that works, throws by itself.
class GeosInterrupt {
public:
    /// `cancelled` is not owned and may be null.
    explicit GeosInterrupt(const std::atomic<bool> *cancelled);
    ~GeosInterrupt();

    /// Whether the work of this thread is to be given up.
    static bool isRequested();

private:
    Q_DISABLE_COPY(GeosInterrupt)

    const std::atomic<bool> *former;
};
