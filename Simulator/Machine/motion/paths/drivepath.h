#pragma once

#include "pose.h"

#include <vector>

/// A stretch of a path: straight, or an arc.
struct PathPiece {
    double length = 0.0;    ///< Metres, from 0.
    double curvature = 0.0; ///< Per metre, positive to the right.
    bool isWorked = false;  ///< The implement is down.
};

/// A path of straight lines and arcs that has no corners.
class DrivePath {
public:
    struct Point {
        Pose pose;
        bool isWorked = false;
    };

    DrivePath() = default;
    explicit DrivePath(const Pose &start)
        : last(start)
    {
    }

    void append(const PathPiece &piece);
    /// Appends `path`, which begins where this one ends.
    void append(const DrivePath &path);

    /// Metres.
    double length() const { return total; }
    /// The pose at its end; its start when it has no pieces.
    Pose end() const { return last; }
    /// `distance` metres from the start; beyond either end, that end.
    Point at(double distance) const;
    const std::vector<PathPiece> &pieces() const { return allPieces; }

private:
    std::vector<PathPiece> allPieces;
    /// Where each piece begins, and how far from the path's start.
    std::vector<Pose> starts;
    std::vector<double> offsets;
    Pose last;
    double total = 0.0;
};
