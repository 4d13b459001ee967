#include "dubinspath.h"

#include <array>
#include <cmath>
#include <optional>

namespace {

const double fullTurn = 2.0 * std::acos(-1.0);

/// The sides of the circles that a path follows: 1 to the right, -1 to the left, 0 straight on.
struct Word {
    std::array<int, 3> sides;
    /// Metres.
    std::array<double, 3> lengths;

    double length() const { return lengths[0] + lengths[1] + lengths[2]; }
};

/// Radians of a turn from one heading to another to the given side, 0 up to a full turn.
double turn(double from, double to, int side)
{
    double angle = std::fmod(side * (to - from), fullTurn);
    if (angle < 0.0)
        angle += fullTurn;
    // A full circle that comes from rounding is no turn at all.
    return fullTurn - angle < 1e-9 ? 0.0 : angle;
}

QPointF centre(const Pose &pose, int side, double radius)
{
    return pose.place + side * radius * pose.rightward();
}

/// The heading on a circle to the given side where the circle's middle lies at `towards` from the place.
double headingBeside(const QPointF &towards, int side)
{
    return std::atan2(-side * towards.y(), side * towards.x());
}

std::optional<Word> arcLineArc(const Pose &from, const Pose &to, double radius, int first, int last)
{
    const QPointF between = centre(to, last, radius) - centre(from, first, radius);
    const double across = (first - last) * radius;
    const double squared = QPointF::dotProduct(between, between) - across * across;
    if (squared < 0.0)
        return {};
    const double line = std::sqrt(squared);
    const double heading = line == 0.0 && across == 0.0 ? from.heading : headingOf(between) + std::atan2(across, line);
    return Word{{first, 0, last},
                {radius * turn(from.heading, heading, first), line, radius * turn(heading, to.heading, last)}};
}

std::optional<Word> threeArcs(const Pose &from, const Pose &to, double radius, int side, int middleSide)
{
    const QPointF first = centre(from, side, radius);
    const QPointF last = centre(to, side, radius);
    const QPointF between = last - first;
    const double apart = std::hypot(between.x(), between.y());
    if (apart > 4.0 * radius || apart == 0.0)
        return {};
    const double height = std::sqrt(4.0 * radius * radius - 0.25 * apart * apart);
    const QPointF middle = 0.5 * (first + last) + middleSide * height / apart * QPointF(-between.y(), between.x());
    const double enter = headingBeside(first - middle, side);
    const double leave = headingBeside(last - middle, side);
    return Word{{side, -side, side},
                {radius * turn(from.heading, enter, side), radius * turn(enter, leave, -side),
                 radius * turn(leave, to.heading, side)}};
}

} // namespace

DrivePath dubinsPath(const Pose &from, const Pose &to, double radius)
{
    std::optional<Word> best;
    const auto consider = [&best](const std::optional<Word> &word) {
        if (word && (!best || word->length() < best->length()))
            best = word;
    };
    for (const int one : {1, -1}) {
        for (const int other : {1, -1}) {
            consider(arcLineArc(from, to, radius, one, other));
            consider(threeArcs(from, to, radius, one, other));
        }
    }
    DrivePath path(from);
    for (size_t i = 0; best && i < best->sides.size(); ++i)
        path.append(PathPiece{best->lengths[i], best->sides[i] / radius, false});
    return path;
}
