#pragma once

#include "pose.h"
#include "ratecommand.h"

#include <QPointF>

#include <vector>

/// How the machine stood at the end of a step.
struct RecordEntry {
    struct Channel {
        RateCommand command;
        double applied = 0.0;
    };

    /// Seconds since the simulation began.
    double time = 0.0;
    /// The implement's middle, and where it was when the step began.
    Pose pose;
    Pose start;
    /// Metres per second; below 0 backwards.
    double speed = 0.0;
    bool isWorking = false;
    /// Metres.
    double width = 0.0;
    /// By product.
    std::vector<Channel> channels;
};
