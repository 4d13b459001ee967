#include "fieldplane.h"

#include <cmath>
#include <cpl_error.h>
#include <ogr_spatialref.h>

struct FieldPlane::Transformation {
    explicit Transformation(OGRCoordinateTransformation *givenToPlane)
        : toPlane(givenToPlane)
        , toEarth(givenToPlane != nullptr ? givenToPlane->GetInverse() : nullptr)
    {
    }
    ~Transformation()
    {
        OGRCoordinateTransformation::DestroyCT(toEarth);
        OGRCoordinateTransformation::DestroyCT(toPlane);
    }
    Q_DISABLE_COPY(Transformation)

    static std::optional<QPointF> run(OGRCoordinateTransformation *direction, const QPointF &point);

    OGRCoordinateTransformation *toPlane;
    OGRCoordinateTransformation *toEarth;
};

std::optional<QPointF> FieldPlane::Transformation::run(OGRCoordinateTransformation *direction, const QPointF &point)
{
    double x = point.x();
    double y = point.y();
    CPLPushErrorHandler(CPLQuietErrorHandler);
    const bool isThere =
        direction != nullptr && direction->Transform(1, &x, &y) != 0 && std::isfinite(x) && std::isfinite(y);
    CPLPopErrorHandler();
    return isThere ? std::optional<QPointF>({x, y}) : std::nullopt;
}

namespace {

bool isWithinReach(const QPointF &field)
{
    return std::hypot(field.x(), field.y()) <= FieldPlane::reach;
}

} // namespace

QString FieldPlane::definition(const QPointF &origin)
{
    return QStringLiteral("+proj=tmerc +lat_0=%1 +lon_0=%2 +k=1 +x_0=0 +y_0=0 +datum=WGS84 +units=m +no_defs")
        .arg(origin.y(), 0, 'f', 12)
        .arg(origin.x(), 0, 'f', 12);
}

FieldPlane::FieldPlane(const QPointF &origin)
{
    OGRSpatialReference earth;
    earth.SetWellKnownGeogCS("WGS84");
    earth.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference plane;
    plane.importFromProj4(definition(origin).toLatin1().constData());
    transformation = std::make_unique<Transformation>(OGRCreateCoordinateTransformation(&earth, &plane));
}

FieldPlane::~FieldPlane() = default;

bool FieldPlane::areDegrees(const QPointF &degrees)
{
    return std::fabs(degrees.x()) <= 180.0 && std::fabs(degrees.y()) <= 90.0;
}

std::optional<QPointF> FieldPlane::toField(const QPointF &degrees) const
{
    const std::optional<QPointF> field = Transformation::run(transformation->toPlane, degrees);
    return field && isWithinReach(*field) ? field : std::nullopt;
}

std::optional<QPointF> FieldPlane::toEarth(const QPointF &field) const
{
    return isWithinReach(field) ? Transformation::run(transformation->toEarth, field) : std::nullopt;
}
