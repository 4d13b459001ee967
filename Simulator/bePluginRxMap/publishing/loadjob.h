#pragma once

#include "Backend/loadreport.h"
#include "Backend/loadrequest.h"

#include <atomic>
#include <functional>

/// A load, or a survey, that waits or runs in the loading thread.
struct LoadJob {
    LoadRequest request;
    /// The file is only surveyed, not published.
    bool isSurvey = false;
    std::atomic<bool> cancelled{false};
    /// Called once with a load's outcome, on the user-interface thread. May be empty.
    std::function<void(const LoadReport &)> done;
};
