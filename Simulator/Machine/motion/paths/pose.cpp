#include "pose.h"

#include <cmath>

namespace {

const double pi = std::acos(-1.0);

}

QPointF Pose::forward() const
{
    return {std::sin(heading), std::cos(heading)};
}

QPointF Pose::rightward() const
{
    return {std::cos(heading), -std::sin(heading)};
}

Pose Pose::advanced(double distance, double curvature) const
{
    // By the chord, which stays exact where the circle becomes a straight line.
    const double halfTurn = 0.5 * distance * curvature;
    const double chord = std::fabs(halfTurn) > 1e-8 ? distance * std::sin(halfTurn) / halfTurn : distance;
    const Pose middle{place, heading + halfTurn};
    return {place + chord * middle.forward(), heading + 2.0 * halfTurn};
}

double Pose::degrees() const
{
    const double turned = std::fmod(heading * 180.0 / pi, 360.0);
    const double positive = turned < 0.0 ? turned + 360.0 : turned;
    return positive < 360.0 ? positive : 0.0;
}

double headingOf(const QPointF &vector)
{
    return std::atan2(vector.x(), vector.y());
}

double radiansOf(double degrees)
{
    return degrees * pi / 180.0;
}
