#pragma once

#include "planering.h"

#include "Framework/rxpolygon.h"

#include <QRectF>

#include <memory>
#include <vector>

/// The published form of a map: one linked chain of records, with their vertices and rates, in one block of memory that
/// lives and dies with this object. Each outer ring is followed by its holes, which share its rates.
class PolygonChain {
public:
    /// `polygons` in the order of drawing; `rates`: `mappings` entries for each record of the source file.
    PolygonChain(const std::vector<PlanePolygon> &polygons, const std::vector<float> &rates, size_t mappings);

    /// Null for an empty chain.
    OrvikTypes::RX_POLYGON *first() const { return count == 0 ? nullptr : records; }
    unsigned size() const { return count; }
    unsigned outers() const { return outerCount; }
    size_t mappings() const { return mappingCount; }
    /// The area of each outer ring less its holes, square metres.
    std::vector<double> polygonAreas() const;
    /// Metres: left is the least x, top the least y.
    QRectF bounds() const { return extent; }

private:
    Q_DISABLE_COPY(PolygonChain)

    void append(const PlaneRing &ring, bool isHole, float *rates);

    std::unique_ptr<unsigned char[]> block;
    OrvikTypes::RX_POLYGON *records = nullptr;
    OrvikTypes::RX_POLYGONVERTEX *freeVertices = nullptr;
    unsigned count = 0;
    unsigned outerCount = 0;
    size_t mappingCount;
    QRectF extent;
};
