#include "swathplan.h"

#include "dubinspath.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int maxSwaths = 20000;

double length(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

QString optionProblem(const SwathOptions &options)
{
    const auto outOf = [](const char *what, double value, const char *range) {
        return QStringLiteral("%1 of %2 is out of range (%3)")
            .arg(QLatin1String(what))
            .arg(value)
            .arg(QLatin1String(range));
    };
    if (!(options.width >= SwathOptions::minWidth && options.width <= SwathOptions::maxWidth))
        return outOf("a working width", options.width, "0.5 to 200 m");
    if (!(options.minRadius > 0.0 && options.minRadius <= SwathOptions::maxWidth))
        return outOf("a turning radius", options.minRadius, "above 0, up to 200 m");
    if (options.headlands < 0 || options.headlands > SwathOptions::maxHeadlands)
        return outOf("a number of headlands", options.headlands, "0 to 20");
    if (options.angle && !std::isfinite(*options.angle))
        return outOf("an angle", *options.angle, "degrees");
    return {};
}

/// Turns to the beginning of `work` and drives it.
void turnAndDrive(DrivePath &path, const Pose &start, const DrivePath &work, double radius)
{
    if (path.length() > 0.0)
        path.append(dubinsPath(path.end(), start, radius));
    path.append(work);
}

struct Corner {
    double turn = 0.0;    ///< Radians, positive to the right.
    double tangent = 0.0; ///< Metres from the corner to where the arc begins.
};

Corner cornerAt(const QPolygonF &ring, int i, double radius)
{
    const int count = ring.size();
    const QPointF in = ring.at(i) - ring.at((i + count - 1) % count);
    const QPointF out = ring.at((i + 1) % count) - ring.at(i);
    const double turn = std::atan2(in.y() * out.x() - in.x() * out.y(), QPointF::dotProduct(in, out));
    return {turn, radius * std::tan(0.5 * std::fabs(turn))};
}

double triangle(const QPolygonF &ring, int i)
{
    const int count = ring.size();
    const QPointF a = ring.at((i + count - 1) % count) - ring.at(i);
    const QPointF b = ring.at((i + 1) % count) - ring.at(i);
    return std::fabs(a.x() * b.y() - a.y() * b.x());
}

/// Leaves corners out until the arcs of the others have room on every side.
QPolygonF drivable(QPolygonF ring, double radius)
{
    while (ring.size() >= 3) {
        int worst = -1;
        for (int i = 0; i < ring.size(); ++i) {
            const int next = (i + 1) % ring.size();
            const double room = length(ring.at(next) - ring.at(i));
            if (cornerAt(ring, i, radius).tangent + cornerAt(ring, next, radius).tangent <= room)
                continue;
            for (const int end : {i, next}) {
                if (worst < 0 || triangle(ring, end) < triangle(ring, worst))
                    worst = end;
            }
        }
        if (worst < 0)
            return ring;
        ring.remove(worst);
    }
    return {};
}

Result<FieldArea> driveHeadlands(const FieldArea &field, const SwathOptions &options, DrivePath &path)
{
    for (int i = 0; i < options.headlands; ++i) {
        const Result<FieldArea> edge = field.inset((i + 0.5) * options.width);
        if (!edge.isOk())
            return edge;
        for (const QPolygonF &ring : edge.value.rings()) {
            const DrivePath lap = SwathPlan::round(ring, options.minRadius);
            if (lap.length() > 0.0)
                turnAndDrive(path, lap.at(0.0).pose, lap, options.minRadius);
        }
    }
    return options.headlands > 0 ? field.inset(options.headlands * options.width) : Result<FieldArea>{field, {}};
}

Result<DrivePath> driveSwaths(const FieldArea &field, double heading, const SwathOptions &options, DrivePath path)
{
    const FieldArea::Span across = field.acrossExtent(heading);
    // Less than a centimetre is not worth another swath.
    const double count = std::max(1.0, std::ceil((across.length() - 0.01) / options.width));
    if (count > maxSwaths)
        return Result<DrivePath>::failure(
            QStringLiteral("the field is too wide for swaths of %1 m").arg(options.width));
    const auto strips = field.strips(heading, across.from, options.width, static_cast<int>(count));
    const Pose frame{{}, heading};
    bool isBack = false;
    for (size_t i = 0; i < strips.size(); ++i) {
        if (!strips[i] || strips[i]->length() < 0.01)
            continue;
        const double middle = across.from + (static_cast<double>(i) + 0.5) * options.width;
        const double begin = isBack ? strips[i]->to : strips[i]->from;
        const Pose start{middle * frame.rightward() + begin * frame.forward(),
                         isBack ? heading + std::acos(-1.0) : heading};
        DrivePath swath(start);
        swath.append(PathPiece{strips[i]->length(), 0.0, true});
        turnAndDrive(path, start, swath, options.minRadius);
        isBack = !isBack;
    }
    return {path, {}};
}

double headingOver(const FieldArea &field, const SwathOptions &options)
{
    return options.angle ? radiansOf(*options.angle) : field.longestSide();
}

} // namespace

double SwathPlan::widthAcross(const FieldArea &field, const SwathOptions &options)
{
    return field.acrossExtent(headingOver(field, options)).length();
}

Result<DrivePath> SwathPlan::make(const FieldArea &field, const SwathOptions &options)
{
    const QString problem = optionProblem(options);
    if (!problem.isEmpty())
        return Result<DrivePath>::failure(problem);
    if (field.rings().empty())
        return Result<DrivePath>::failure(QStringLiteral("there is no field to drive"));
    const double heading = headingOver(field, options);
    const double across = widthAcross(field, options);
    if (across < options.width)
        return Result<DrivePath>::failure(QStringLiteral("the field is %1 m wide, narrower than the machine's %2 m")
                                              .arg(across, 0, 'f', 1)
                                              .arg(options.width));
    DrivePath path;
    const Result<FieldArea> inner = driveHeadlands(field, options, path);
    if (!inner.isOk())
        return Result<DrivePath>::failure(inner.error);
    if (inner.value.rings().empty()) {
        return path.length() > 0.0
            ? Result<DrivePath>{path, {}}
            : Result<DrivePath>::failure(QStringLiteral("the field is narrower than its headlands of %1 times %2 m")
                                             .arg(options.headlands)
                                             .arg(options.width));
    }
    return driveSwaths(inner.value, heading, options, path);
}

DrivePath SwathPlan::round(const QPolygonF &ring, double radius)
{
    const QPolygonF corners = drivable(ring, radius);
    if (corners.isEmpty())
        return {};
    const QPointF side = corners.at(1) - corners.at(0);
    const auto straight = [&corners, radius](int i, int next) {
        return length(corners.at(next) - corners.at(i)) - cornerAt(corners, i, radius).tangent
            - cornerAt(corners, next, radius).tangent;
    };
    const double first = straight(0, 1);
    const double begin = cornerAt(corners, 0, radius).tangent + 0.5 * first;
    DrivePath lap({corners.at(0) + begin / length(side) * side, headingOf(side)});
    lap.append(PathPiece{0.5 * first, 0.0, true});
    for (int step = 1; step <= corners.size(); ++step) {
        const int i = step % corners.size();
        const Corner corner = cornerAt(corners, i, radius);
        lap.append(PathPiece{radius * std::fabs(corner.turn), std::copysign(1.0 / radius, corner.turn), true});
        lap.append(PathPiece{i == 0 ? 0.5 * first : straight(i, (i + 1) % corners.size()), 0.0, true});
    }
    return lap;
}
