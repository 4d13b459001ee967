#include "ringlists.h"

#include "ringtest.h"

#include <numeric>

using OrvikTypes::RX_POLYGON;

namespace {

/// No list can hold more pointers, nor memory that many records; without a limit a circular chain would never end.
constexpr unsigned int maxRings = 0x7FFFFF00U / sizeof(RX_POLYGON *);

} // namespace

RingLists::RingLists(RX_POLYGON *chain, unsigned int published)
{
    const unsigned int count = qMin(published, maxRings);
    int holeCount = 0;
    int outerCount = 0;
    RX_POLYGON *polygon = chain;
    for (unsigned int left = count; polygon != nullptr && left > 0; polygon = polygon->next, --left)
        ++(polygon->isHole ? holeCount : outerCount);
    outers.reserve(outerCount);
    holes.reserve(holeCount);
    polygon = chain;
    for (unsigned int left = count; polygon != nullptr && left > 0; polygon = polygon->next, --left)
        (polygon->isHole ? holes : outers).append(polygon);
}

qint64 RingLists::vertices() const
{
    const auto add = [](qint64 sum, const RX_POLYGON *ring) { return sum + vertexCount(*ring); };
    return std::accumulate(holes.cbegin(), holes.cend(),
                           std::accumulate(outers.cbegin(), outers.cend(), qint64(0), add), add);
}
