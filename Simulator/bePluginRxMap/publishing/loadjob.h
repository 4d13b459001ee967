#pragma once

#include "Backend/loadreport.h"
#include "Backend/loadrequest.h"

#include <atomic>
#include <functional>

/// A load that waits, or runs in the loading thread.
struct LoadJob {
    LoadRequest request;
    std::atomic<bool> cancelled{false};
    /// Called once with the outcome, on the user-interface thread. May be empty.
    std::function<void(const LoadReport &)> done;
};
