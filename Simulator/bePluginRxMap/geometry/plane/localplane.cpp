#include "localplane.h"

#include "Backend/backendtext.h"
#include "dateline.h"
#include "projectionapproximation.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <ogr_spatialref.h>

namespace {

/// Mean radius of the WGS 84 ellipsoid, (2a + b) / 3, metres.
constexpr double earthRadius = 6371008.8;
/// A wider map no longer fits a plane, and no machine drives that far.
constexpr double widestMap = 1.0e6;
/// Up to this many vertices are projected one by one; for more, it pays to fit a smooth stand-in.
constexpr size_t fewVertices = 500;

struct TransformationDelete {
    void operator()(OGRCoordinateTransformation *transformation) const
    {
        OGRCoordinateTransformation::DestroyCT(transformation);
    }
};
using Transformation = std::unique_ptr<OGRCoordinateTransformation, TransformationDelete>;

/// Transforms in parts: there may be more coordinates than one call takes, which GDAL counts by int or by size_t, as
/// its version goes.
void transform(const Transformation &transformation, size_t count, double *xs, double *ys)
{
    constexpr size_t part = 1U << 15U;
    for (size_t first = 0; first < count; first += part)
        transformation->Transform(static_cast<quint16>(std::min(part, count - first)), xs + first, ys + first);
}

double radians(double degrees)
{
    return degrees * std::acos(-1.0) / 180.0;
}

SpatialReference worldReference()
{
    // A copy of the one that the process has: a new one would be looked up in the projection database.
    SpatialReference reference(OGRSpatialReference::GetWGS84SRS()->Clone());
    reference->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return reference;
}

/// The coordinate system that the map names, with x (or longitude) first.
SpatialReference sourceReference(const RawPrescription &map)
{
    SpatialReference reference(map.reference->Clone());
    reference->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return reference;
}

/// Whether the map's coordinates are longitudes and latitudes of WGS 84, which is also assumed when it names no system.
bool isOfTheWorld(const RawPrescription &map)
{
    const char *const options[] = {"IGNORE_DATA_AXIS_TO_SRS_AXIS_MAPPING=YES", nullptr};
    return !map.reference || map.reference->IsSame(worldReference().get(), options) != 0;
}

/// From the map's own coordinate system to a transverse Mercator projection on WGS 84; null when there is none.
Transformation toProjection(const RawPrescription &map, const QByteArray &projection)
{
    if (isOfTheWorld(map)) {
        // The same steps as between the two systems. Naming the systems would look them up in the projection database,
        // which each thread opens again; this takes a tenth of the time.
        OGRCoordinateTransformationOptions options;
        options.SetCoordinateOperation("+proj=pipeline +step +proj=unitconvert +xy_in=deg +xy_out=rad +step "
                                           + projection + " +ellps=WGS84",
                                       false);
        return Transformation(OGRCreateCoordinateTransformation(nullptr, nullptr, options));
    }
    OGRSpatialReference plane;
    if (plane.importFromProj4((projection + " +datum=WGS84 +units=m +no_defs").constData()) != OGRERR_NONE)
        return {};
    return Transformation(OGRCreateCoordinateTransformation(sourceReference(map).get(), &plane));
}

struct Range {
    double min = 0.0;
    double max = 0.0;
};

Range rangeOf(const std::vector<double> &values)
{
    const auto [min, max] = std::minmax_element(values.begin(), values.end());
    return {*min, *max};
}

/// Longitudes may go on across the date line.
bool areDegrees(const Range &x, const Range &y)
{
    return x.min >= -360.0 && x.max <= 360.0 && y.min >= -90.0 && y.max <= 90.0;
}

/// Longitudes and latitudes of places along the edges of the extent. False when any of the places has none.
bool edgePlaces(const RawPrescription &map, const Range &x, const Range &y, std::vector<double> &longitudes,
                std::vector<double> &latitudes)
{
    constexpr int steps = 8;
    for (int i = 0; i <= steps; ++i) {
        for (int k = 0; k <= steps; ++k) {
            longitudes.push_back(x.min + (x.max - x.min) * i / steps);
            latitudes.push_back(y.min + (y.max - y.min) * k / steps);
        }
    }
    if (!LocalPlane::toDegrees(map, longitudes, latitudes))
        return false;
    const auto isFinite = [](double value) { return std::isfinite(value); };
    return std::all_of(longitudes.begin(), longitudes.end(), isFinite)
        && std::all_of(latitudes.begin(), latitudes.end(), isFinite);
}

} // namespace

LocalPlane::LocalPlane(double longitude, double latitude)
    : originLongitude(longitude)
    , originLatitude(latitude)
{
}

double LocalPlane::distanceTo(double longitude, double latitude) const
{
    // The haversine formula.
    const double halfNorth = std::sin(0.5 * radians(latitude - originLatitude));
    const double halfEast = std::sin(0.5 * radians(longitude - originLongitude));
    const double haversine =
        halfNorth * halfNorth + std::cos(radians(originLatitude)) * std::cos(radians(latitude)) * halfEast * halfEast;
    return 2.0 * earthRadius * std::asin(std::min(1.0, std::sqrt(haversine)));
}

bool LocalPlane::toDegrees(const RawPrescription &map, std::vector<double> &xs, std::vector<double> &ys)
{
    if (!isOfTheWorld(map)) {
        const SpatialReference source = sourceReference(map);
        const SpatialReference world = worldReference();
        const Transformation toWorld(OGRCreateCoordinateTransformation(source.get(), world.get()));
        if (!toWorld)
            return false;
        transform(toWorld, xs.size(), xs.data(), ys.data());
        DateLine::join(xs);
    }
    const bool isGeographic = !map.reference || map.reference->IsGeographic() != 0;
    for (size_t i = 0; i < xs.size() && isGeographic; ++i) {
        if (!areDegrees({xs[i], xs[i]}, {ys[i], ys[i]}))
            xs[i] = ys[i] = std::numeric_limits<double>::infinity();
    }
    return true;
}

bool LocalPlane::locate(const RawPrescription &map, GeographicExtent &extent, QString &error)
{
    const Range x = rangeOf(map.xs);
    const Range y = rangeOf(map.ys);
    const bool isGeographic = !map.reference || map.reference->IsGeographic();
    if (isGeographic && !areDegrees(x, y)) {
        error = map.reference || map.lackOfReference.isEmpty()
            ? BackendText::tr("its coordinates are no longitudes and latitudes")
            : map.lackOfReference + BackendText::tr(", and its coordinates are no longitudes and latitudes");
        return false;
    }
    std::vector<double> longitudes;
    std::vector<double> latitudes;
    if (!edgePlaces(map, x, y, longitudes, latitudes)) {
        error = BackendText::tr("its coordinate system \"%1\" cannot be projected there")
                    .arg(QString::fromUtf8(map.reference ? map.reference->GetName() : "WGS 84"));
        return false;
    }
    const Range longitude = rangeOf(longitudes);
    const Range latitude = rangeOf(latitudes);
    extent = {longitude.min, latitude.min, longitude.max, latitude.max};
    const double height = earthRadius * radians(extent.north - extent.south);
    const double nearestEquator =
        extent.south <= 0.0 && extent.north >= 0.0 ? 0.0 : std::min(std::fabs(extent.south), std::fabs(extent.north));
    const double width = earthRadius * radians(extent.east - extent.west) * std::cos(radians(nearestEquator));
    if (std::max(width, height) <= widestMap)
        return true;
    error = BackendText::tr("extends over %1 km; no field does").arg(std::max(width, height) / 1000.0, 0, 'f', 0);
    return false;
}

bool LocalPlane::project(const RawPrescription &map, std::vector<double> &xs, std::vector<double> &ys,
                         QString &error) const
{
    const QString projection = QStringLiteral("+proj=tmerc +lat_0=%1 +lon_0=%2 +k=1 +x_0=0 +y_0=0")
                                   .arg(originLatitude, 0, 'f', 12)
                                   .arg(originLongitude, 0, 'f', 12);
    const Transformation toPlane = toProjection(map, projection.toLatin1());
    if (!toPlane) {
        error = BackendText::tr("its coordinate system \"%1\" cannot be projected")
                    .arg(QString::fromUtf8(map.reference ? map.reference->GetName() : "WGS 84"));
        return false;
    }
    const auto exact = [&toPlane](size_t count, double *x, double *y) { transform(toPlane, count, x, y); };
    xs = map.xs;
    ys = map.ys;
    const Range x = rangeOf(xs);
    const Range y = rangeOf(ys);
    ProjectionApproximation smooth;
    if (xs.size() > fewVertices && smooth.fit(exact, x.min, x.max, y.min, y.max)) {
        smooth.apply(xs.size(), xs.data(), ys.data());
        return true;
    }
    exact(xs.size(), xs.data(), ys.data());
    return true;
}
