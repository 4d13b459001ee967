#pragma once

#include <QPointF>
#include <QString>

#include <memory>
#include <optional>

/// The local plane that the back-end puts its maps on: x metres east, y north of where it touches the earth.
class FieldPlane {
public:
    /// Degrees of longitude and latitude, as a load reports them.
    explicit FieldPlane(const QPointF &origin);
    ~FieldPlane();

    /// How far from its origin the plane pictures the earth, metres.
    static constexpr double reach = 1.0e6;
    /// Whether these can be degrees of longitude and latitude.
    static bool areDegrees(const QPointF &degrees);

    /// Nothing for a place that the plane does not reach.
    std::optional<QPointF> toField(const QPointF &degrees) const;
    /// Degrees of longitude and latitude; nothing for a point beyond the plane's reach.
    std::optional<QPointF> toEarth(const QPointF &field) const;
    /// The plane as PROJ writes it.
    static QString definition(const QPointF &origin);

private:
    Q_DISABLE_COPY(FieldPlane)

    struct Transformation;
    std::unique_ptr<Transformation> transformation;
};
