#pragma once

#include <QPointF>

/// Where something is, and which way it faces.
struct Pose {
    /// Metres of the local plane.
    QPointF place;
    /// Radians clockwise from north.
    double heading = 0.0;

    /// Unit vectors: forward, and to the right.
    QPointF forward() const;
    QPointF rightward() const;
    /// After `distance` metres (negative: backwards) on a circle of that curvature (per metre, positive to the right).
    Pose advanced(double distance, double curvature) const;
    /// The heading in degrees, 0 up to 360.
    double degrees() const;
};

/// The direction of a vector, radians clockwise from north.
double headingOf(const QPointF &vector);
double radiansOf(double degrees);
