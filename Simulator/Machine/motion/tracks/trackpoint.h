#pragma once

#include <QPointF>

#include <optional>

/// One entry of a recorded track.
struct TrackPoint {
    /// Seconds; never earlier than in the previous entry.
    double time = 0.0;
    /// Degrees of longitude and latitude, or metres of the local plane, as the track has them.
    QPointF place;
    bool isInDegrees = false;
    /// False: the receiver had no position then, and `place` means nothing.
    bool hasFix = true;
    /// Radians clockwise from north.
    std::optional<double> heading;
    /// Metres per second, from 0.
    std::optional<double> speed;
    /// Whether the implement was down. Only a record of the terminal tells that, and its places are the implement's
    /// middle instead of the antenna's.
    std::optional<bool> working;
};
