#include "fieldplane.h"

#include <cmath>
#include <cpl_error.h>
#include <ogr_spatialref.h>

struct FieldPlane::Transformation {
    explicit Transformation(OGRCoordinateTransformation *toPlane)
        : toPlane(toPlane)
    {
    }
    ~Transformation() { OGRCoordinateTransformation::DestroyCT(toPlane); }
    Q_DISABLE_COPY(Transformation)

    OGRCoordinateTransformation *toPlane;
};

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

std::optional<QPointF> FieldPlane::toField(const QPointF &degrees) const
{
    double x = degrees.x();
    double y = degrees.y();
    CPLPushErrorHandler(CPLQuietErrorHandler);
    const bool isThere = transformation->toPlane != nullptr && transformation->toPlane->Transform(1, &x, &y) != 0
        && std::isfinite(x) && std::isfinite(y);
    CPLPopErrorHandler();
    return isThere ? std::optional<QPointF>({x, y}) : std::nullopt;
}
