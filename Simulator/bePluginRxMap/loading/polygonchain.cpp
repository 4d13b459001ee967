#include "polygonchain.h"

#include "ringtree.h"

#include <algorithm>

using OrvikTypes::RX_POLYGON;
using OrvikTypes::RX_POLYGONVERTEX;

namespace {

struct Sizes {
    size_t records = 0;
    size_t vertices = 0;
};

Sizes sizesOf(const std::vector<PlanePolygon> &polygons)
{
    Sizes sizes;
    for (const PlanePolygon &polygon : polygons) {
        sizes.records += 1 + polygon.holes.size();
        sizes.vertices += polygon.outer.size();
        for (const PlaneRing &hole : polygon.holes)
            sizes.vertices += hole.size();
    }
    return sizes;
}

QRectF extentOfOuters(const std::vector<PlanePolygon> &polygons)
{
    RingExtent all;
    for (const PlanePolygon &polygon : polygons) {
        const RingExtent extent = RingExtent::of(polygon.outer.data(), polygon.outer.size());
        all.include(extent.minX, extent.minY);
        all.include(extent.maxX, extent.maxY);
    }
    return all.isEmpty() ? QRectF() : QRectF(all.minX, all.minY, all.maxX - all.minX, all.maxY - all.minY);
}

} // namespace

PolygonChain::PolygonChain(const std::vector<PlanePolygon> &polygons, const std::vector<float> &rates, size_t mappings)
    : mappingCount(mappings)
    , extent(extentOfOuters(polygons))
{
    const Sizes sizes = sizesOf(polygons);
    const size_t recordBytes = sizes.records * sizeof(RX_POLYGON);
    const size_t vertexBytes = sizes.vertices * sizeof(RX_POLYGONVERTEX);
    const size_t rateCount = polygons.size() * mappings;
    // Records, vertices and rates in this order leave each of them aligned.
    static_assert(alignof(RX_POLYGON) >= alignof(RX_POLYGONVERTEX) && alignof(RX_POLYGONVERTEX) >= alignof(float),
                  "the parts of the block would not be aligned");
    block.reset(new unsigned char[recordBytes + vertexBytes + rateCount * sizeof(float)]);
    records = reinterpret_cast<RX_POLYGON *>(block.get());
    freeVertices = reinterpret_cast<RX_POLYGONVERTEX *>(block.get() + recordBytes);
    auto *freeRates = reinterpret_cast<float *>(block.get() + recordBytes + vertexBytes);
    for (const PlanePolygon &polygon : polygons) {
        const auto from = rates.begin() + static_cast<std::ptrdiff_t>(static_cast<size_t>(polygon.record) * mappings);
        std::copy(from, from + static_cast<std::ptrdiff_t>(mappings), freeRates);
        append(polygon.outer, false, freeRates);
        for (const PlaneRing &hole : polygon.holes)
            append(hole, true, freeRates);
        freeRates += mappings;
    }
}

void PolygonChain::append(const PlaneRing &ring, bool isHole, float *rates)
{
    std::copy(ring.begin(), ring.end(), freeVertices);
    records[count] = {ringArea(ring), 0, freeVertices, static_cast<quint32>(ring.size()), rates, isHole, nullptr};
    if (count > 0)
        records[count - 1].next = &records[count];
    freeVertices += ring.size();
    ++count;
    outerCount += isHole ? 0 : 1;
}

std::vector<double> PolygonChain::polygonAreas() const
{
    std::vector<double> areas;
    areas.reserve(outerCount);
    for (const RX_POLYGON *record = first(); record != nullptr; record = record->next) {
        if (record->isHole)
            areas.back() -= record->area;
        else
            areas.push_back(record->area);
    }
    return areas;
}
