#pragma once

#include <vector>

struct RawPrescription;

/// The meridian of 180 degrees, at which longitudes jump by a full turn. A field that lies across it goes on beyond 180
/// (or -180) instead, so that its coordinates are as near each other as its places.
class DateLine {
public:
    /// Moves polygons of a map in longitudes and latitudes by full turns until they lie beside each other. A ring wider
    /// than half the earth is taken to lie across the date line. Polygons across the zero meridian stay where they are,
    /// as do coordinates that are not longitudes.
    static void join(RawPrescription &map);
    /// Moves longitudes by full turns until none is more than half a turn from the first.
    static void join(std::vector<double> &longitudes);
    /// The same longitude from -180 to 180.
    static double wrapped(double longitude);
};
