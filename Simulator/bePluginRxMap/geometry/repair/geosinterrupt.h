#pragma once

#include <QtGlobal>

#include <atomic>

/// While it lives, GEOS gives up what it does in this thread as soon as `cancelled` is set; the call fails then as it
/// does for any other reason. All threads share GEOS's own request flag, and whichever asks first takes it; so the
/// callback, which runs in the working thread, throws itself.
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
