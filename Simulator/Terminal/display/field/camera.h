#pragma once

#include <QMatrix4x4>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <optional>

/// A perspective look at the field from the south, north up. Field points are metres of the local plane (x east,
/// y north) at the height at which maps are drawn; screen points are pixels from the view's top left corner.
class Camera {
public:
    /// Height of the map plane in the view's world (metres, up).
    static constexpr double planeHeight = -4.99;
    static constexpr double minDistance = 8.0;
    static constexpr double maxDistance = 5.0e6;

    QSizeF viewport() const { return view; }
    /// Pixels; an empty size is ignored.
    void setViewport(const QSizeF &size);
    /// The field point in the middle of the view.
    QPointF target() const { return middle; }
    void setTarget(const QPointF &field);
    /// From the eye to the target, metres; kept within the limits above.
    double distance() const { return range; }
    void setDistance(double metres);

    /// Looks at `field` (metres) so that all of it lies in `free`, the part of the view that nothing covers (pixels).
    void frame(const QRectF &field, const QRectF &free);
    /// Moves so that the field point seen at `from` is then seen at `to`.
    void pan(const QPointF &from, const QPointF &to);
    /// Comes nearer by `factor` (above 1) or moves away (below 1); the field point under `anchor` stays where it is.
    void zoom(double factor, const QPointF &anchor);

    /// Where a field point is seen; nothing for one behind the eye.
    std::optional<QPointF> project(const QPointF &field) const;
    /// The field point under a screen point; nothing above the horizon.
    std::optional<QPointF> fieldPoint(const QPointF &screen) const;
    /// Metres per pixel across the view at a field point.
    double metresPerPixel(const QPointF &field) const;
    /// Takes the view's world (x east, y up, z south) to clip coordinates.
    QMatrix4x4 matrix() const;

private:
    struct Vector {
        double east;
        double north;
        double up;
    };

    Vector eye() const;
    double halfHeight() const;
    double halfWidth() const;

    QSizeF view{1.0, 1.0};
    QPointF middle;
    double range = 500.0;
};
