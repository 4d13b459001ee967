#pragma once

#include <cstddef>

struct RawPrescription;
class OGRGeometry;
class OGRLinearRing;
class OGRPolygon;

/// Appends the rings of one record after another to a map. Curves are straightened, heights and measures dropped.
/// Shapes that enclose nothing, are not areas or are not finite are left out and counted in the map.
class ShapeReader {
public:
    /// `map` is not owned and outlives this object.
    explicit ShapeReader(RawPrescription &map);

    /// Appends the shape of record `map.records`; null counts as an empty one.
    void read(const OGRGeometry *geometry);

private:
    /// False when the geometry holds no areas, but points or lines.
    bool appendGeometry(const OGRGeometry &geometry);
    void appendPolygon(const OGRPolygon &polygon);
    /// Appends the ring's vertices but the closing one; whether they are finite.
    bool appendVertices(const OGRLinearRing &ring);
    /// Whether the vertices from `first` on hold at least three different places.
    bool enclosesSomething(size_t first) const;

    RawPrescription &map;
    bool isRecordFinite = true;
};
