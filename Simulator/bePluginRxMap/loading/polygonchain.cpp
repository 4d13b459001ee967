#include "polygonchain.h"

#include <algorithm>
#include <utility>

using OrvikTypes::RX_POLYGON;
using OrvikTypes::RX_POLYGONVERTEX;

PolygonChain::PolygonChain(const std::vector<PlanePolygon> &polygons, const std::vector<float> &rates, size_t mappings,
                           std::shared_ptr<RingMemory> ringMemory)
    : memory(std::move(ringMemory))
    , mappingCount(mappings)
{
    size_t rings = polygons.size();
    for (const PlanePolygon &polygon : polygons)
        rings += polygon.holes.size();
    const size_t recordBytes = rings * sizeof(RX_POLYGON);
    // Records and rates in this order leave both aligned.
    static_assert(alignof(RX_POLYGON) >= alignof(float), "the parts of the block would not be aligned");
    block.reset(new unsigned char[recordBytes + polygons.size() * mappings * sizeof(float)]);
    records = reinterpret_cast<RX_POLYGON *>(block.get());
    auto *freeRates = reinterpret_cast<float *>(block.get() + recordBytes);
    for (const PlanePolygon &polygon : polygons) {
        const auto from = rates.begin() + static_cast<std::ptrdiff_t>(static_cast<size_t>(polygon.record) * mappings);
        std::copy(from, from + static_cast<std::ptrdiff_t>(mappings), freeRates);
        append(polygon.outer, false, freeRates);
        for (const PlaneRing &hole : polygon.holes)
            append(hole, true, freeRates);
        freeRates += mappings;
    }
}

RX_POLYGONVERTEX *PolygonChain::kept(const PlaneRing &ring)
{
    // The host declares vertices that can be written, but nobody may.
    if (ring.get_allocator().resource() == memory.get())
        return const_cast<RX_POLYGONVERTEX *>(ring.data());
    void *room = memory->allocate(ring.size() * sizeof(RX_POLYGONVERTEX), alignof(RX_POLYGONVERTEX));
    auto *copy = static_cast<RX_POLYGONVERTEX *>(room);
    std::uninitialized_copy(ring.begin(), ring.end(), copy);
    return copy;
}

void PolygonChain::append(const PlaneRing &ring, bool isHole, float *rates)
{
    records[count] = {ringArea(ring), 0, kept(ring), static_cast<quint32>(ring.size()), rates, isHole, nullptr};
    if (!isHole)
        extent.include(RingExtent::of(ring.data(), ring.size()));
    if (count > 0)
        records[count - 1].next = &records[count];
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

QRectF PolygonChain::bounds() const
{
    return extent.isEmpty() ? QRectF()
                            : QRectF(extent.minX, extent.minY, extent.maxX - extent.minX, extent.maxY - extent.minY);
}
