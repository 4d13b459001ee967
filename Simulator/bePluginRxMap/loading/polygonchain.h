#pragma once

#include "planering.h"
#include "ringtree.h"

#include "Framework/rxpolygon.h"

#include <QRectF>

#include <memory>
#include <memory_resource>
#include <vector>

/// The published form of a map: one linked chain of records, with their rates in one block of memory, and their
/// vertices in another; both live as long as this object. Each outer ring is followed by its holes, which share its
/// rates.
class PolygonChain {
public:
    /// Frees nothing before it goes itself, so that a ring may go before its vertices do.
    using RingMemory = std::pmr::monotonic_buffer_resource;

    /// `polygons` in the order of drawing; `rates`: `mappings` entries for each record of the source file. Rings in
    /// `ringMemory` stay where they are, and are not changed any more; others are copied into it.
    PolygonChain(const std::vector<PlanePolygon> &polygons, const std::vector<float> &rates, size_t mappings,
                 std::shared_ptr<RingMemory> ringMemory = std::make_shared<RingMemory>());

    /// Null for an empty chain.
    OrvikTypes::RX_POLYGON *first() const { return count == 0 ? nullptr : records; }
    unsigned size() const { return count; }
    unsigned outers() const { return outerCount; }
    size_t mappings() const { return mappingCount; }
    /// The area of each outer ring less its holes, square metres.
    std::vector<double> polygonAreas() const;
    /// Metres: left is the least x, top the least y.
    QRectF bounds() const;

private:
    Q_DISABLE_COPY(PolygonChain)

    OrvikTypes::RX_POLYGONVERTEX *kept(const PlaneRing &ring);
    void append(const PlaneRing &ring, bool isHole, float *rates);

    std::shared_ptr<RingMemory> memory;
    std::unique_ptr<unsigned char[]> block;
    OrvikTypes::RX_POLYGON *records = nullptr;
    unsigned count = 0;
    unsigned outerCount = 0;
    size_t mappingCount;
    RingExtent extent; ///< Of the outer rings.
};
