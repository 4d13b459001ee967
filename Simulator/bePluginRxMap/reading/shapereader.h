#pragma once

#include <cstddef>

struct RawPrescription;
class OGRGeometry;
class OGRPolygon;

/// Appends the rings of one record after the other to a map. Curves are made straight, heights and measures dropped;
/// what encloses nothing, is no area or is not finite is left out and counted in the map.
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
    /// Of the ring whose vertices are those from `first` on.
    void dropClosingVertex(size_t first);
    /// Of the vertices from `first` on.
    bool isFinite(size_t first) const;
    /// Whether the vertices from `first` on hold at least three different places.
    bool enclosesSomething(size_t first) const;

    RawPrescription &map;
    bool isRecordFinite = true;
};
