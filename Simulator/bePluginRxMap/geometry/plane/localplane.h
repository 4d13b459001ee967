#pragma once

#include "rawprescription.h"

#include <QString>

#include <vector>

/// Extent in degrees of longitude and latitude; across the date line longitudes go on beyond 180 or -180.
struct GeographicExtent {
    double west = 0.0;
    double south = 0.0;
    double east = 0.0;
    double north = 0.0;
};

/// A level plane that touches the earth at one place: x metres east of it, y metres north (a transverse Mercator
/// projection at its centre). All maps that are loaded at one time share a plane where they lie near each other.
class LocalPlane {
public:
    LocalPlane() = default;
    /// Degrees.
    LocalPlane(double originLongitude, double originLatitude);

    double longitude() const { return originLongitude; }
    double latitude() const { return originLatitude; }
    /// Distance of a place from the origin along a sphere of the earth's mean radius, metres.
    double distanceTo(double longitude, double latitude) const;

    /// Where the coordinates lie on the earth. Empty `reference`: they are taken as WGS 84 longitudes and latitudes if
    /// they can be. False, with the reason in `error`, when they cannot be placed or cover more than a field region.
    static bool locate(const RawPrescription &map, GeographicExtent &extent, QString &error);
    /// Turns coordinates of the map's own system into degrees of longitude and latitude, which go on across the date
    /// line; those that have no place on the earth become infinite. False when the map's coordinate system cannot be
    /// projected.
    static bool toDegrees(const RawPrescription &map, std::vector<double> &xs, std::vector<double> &ys);
    /// Sets `xs` and `ys` to the map's coordinates in metres of the plane; those that have no place in it become
    /// infinite. False, with the reason in `error`, when the map's coordinate system cannot be projected.
    bool project(const RawPrescription &map, std::vector<double> &xs, std::vector<double> &ys, QString &error) const;

private:
    double originLongitude = 0.0;
    double originLatitude = 0.0;
};
