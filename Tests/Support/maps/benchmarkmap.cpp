#include "benchmarkmap.h"

#include <cmath>
#include <utility>

namespace {

/// Shoelace formula (Meister 1769), square metres.
double areaOf(const BenchmarkMap::Ring &ring)
{
    double doubled = 0.0;
    for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++)
        doubled += ring[j].x * ring[i].y - ring[i].x * ring[j].y;
    return std::fabs(doubled) / 2.0;
}

} // namespace

BenchmarkMap::BenchmarkMap(std::string name)
    : mapName(std::move(name))
{
}

void BenchmarkMap::add(Ring ring, float rate, bool isHole)
{
    polygons.push_back({areaOf(ring), 0, nullptr, static_cast<quint32>(ring.size()), nullptr, isHole, nullptr});
    if (!isHole)
        outerPositions.push_back(polygons.size() - 1);
    vertexCount += ring.size();
    rates.push_back(rate);
    rings.push_back(std::move(ring));
}

void BenchmarkMap::finish()
{
    for (std::size_t i = 0; i < polygons.size(); ++i) {
        polygons[i].vertices = rings[i].data();
        polygons[i].rates = &rates[i];
        polygons[i].next = i + 1 < polygons.size() ? &polygons[i + 1] : nullptr;
    }
}
