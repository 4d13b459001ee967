#include "camera.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

const double halfAngle = qDegreesToRadians(20.0);
// Measured from straight down; small enough to keep the horizon out of the view.
const double tilt = qDegreesToRadians(32.0);
const double sinTilt = std::sin(tilt);
const double cosTilt = std::cos(tilt);
constexpr double nearFraction = 0.05;
constexpr double farFraction = 20.0;
constexpr int framingSteps = 24;

QRectF hull(const QPointF (&points)[4])
{
    QPointF least = points[0];
    QPointF most = points[0];
    for (const QPointF &point : points) {
        least = QPointF(std::min(least.x(), point.x()), std::min(least.y(), point.y()));
        most = QPointF(std::max(most.x(), point.x()), std::max(most.y(), point.y()));
    }
    return QRectF(least, most);
}

} // namespace

void Camera::setViewport(const QSizeF &size)
{
    if (!size.isEmpty())
        view = size;
}

void Camera::setTarget(const QPointF &field)
{
    middle = field;
}

void Camera::setDistance(double metres)
{
    range = std::clamp(metres, minDistance, maxDistance);
}

void Camera::frame(const QRectF &field, const QRectF &free)
{
    setTarget(field.center());
    setDistance(std::hypot(field.width(), field.height()) * 4.0);
    // Perspective makes the fit implicit: each step centres the seen outline and scales the distance by its excess.
    for (int step = 0; step < framingSteps; ++step) {
        const QPointF corners[4] = {
            project(field.topLeft()).value_or(QPointF()), project(field.topRight()).value_or(QPointF()),
            project(field.bottomLeft()).value_or(QPointF()), project(field.bottomRight()).value_or(QPointF())};
        const QRectF seen = hull(corners);
        pan(seen.center(), free.center());
        setDistance(range * std::max(seen.width() / free.width(), seen.height() / free.height()));
    }
}

void Camera::pan(const QPointF &from, const QPointF &to)
{
    const std::optional<QPointF> grabbed = fieldPoint(from);
    const std::optional<QPointF> now = fieldPoint(to);
    if (grabbed && now)
        middle += *grabbed - *now;
}

void Camera::zoom(double factor, const QPointF &anchor)
{
    const std::optional<QPointF> held = fieldPoint(anchor);
    setDistance(range / factor);
    if (!held)
        return;
    const std::optional<QPointF> moved = fieldPoint(anchor);
    if (moved)
        middle += *held - *moved;
}

Camera::Vector Camera::eye() const
{
    return {middle.x(), middle.y() - range * sinTilt, planeHeight + range * cosTilt};
}

double Camera::halfHeight() const
{
    return std::tan(halfAngle);
}

double Camera::halfWidth() const
{
    return halfHeight() * view.width() / view.height();
}

std::optional<QPointF> Camera::project(const QPointF &field) const
{
    const Vector from = eye();
    const Vector to{field.x() - from.east, field.y() - from.north, planeHeight - from.up};
    const double depth = to.north * sinTilt - to.up * cosTilt;
    if (!(depth > 0.0))
        return std::nullopt;
    const double across = to.east / (depth * halfWidth());
    const double upward = (to.north * cosTilt + to.up * sinTilt) / (depth * halfHeight());
    return QPointF((across + 1.0) * 0.5 * view.width(), (1.0 - upward) * 0.5 * view.height());
}

std::optional<QPointF> Camera::fieldPoint(const QPointF &screen) const
{
    const double across = (screen.x() / view.width() * 2.0 - 1.0) * halfWidth();
    const double upward = (1.0 - screen.y() / view.height() * 2.0) * halfHeight();
    const Vector ray{across, sinTilt + upward * cosTilt, -cosTilt + upward * sinTilt};
    if (!(ray.up < 0.0))
        return std::nullopt;
    const Vector from = eye();
    const double length = (planeHeight - from.up) / ray.up;
    return QPointF(from.east + ray.east * length, from.north + ray.north * length);
}

double Camera::metresPerPixel(const QPointF &field) const
{
    const Vector from = eye();
    const double depth = (field.y() - from.north) * sinTilt - (planeHeight - from.up) * cosTilt;
    return 2.0 * depth * halfWidth() / view.width();
}

QMatrix4x4 Camera::matrix() const
{
    const Vector from = eye();
    QMatrix4x4 result;
    result.perspective(float(qRadiansToDegrees(2.0 * halfAngle)), float(view.width() / view.height()),
                       float(range * nearFraction), float(range * farFraction));
    result.lookAt(QVector3D(float(from.east), float(from.up), float(-from.north)),
                  QVector3D(float(middle.x()), float(planeHeight), float(-middle.y())),
                  QVector3D(0.0F, float(sinTilt), float(-cosTilt)));
    return result;
}
