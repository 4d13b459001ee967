#include "handmadechain.h"

#include <cmath>
#include <utility>

using OrvikTypes::RX_POLYGON;

Ring square(double left, double bottom, double size)
{
    return {{left, bottom}, {left + size, bottom}, {left + size, bottom + size}, {left, bottom + size}};
}

double shoelaceArea(const Ring &ring)
{
    double doubled = 0.0;
    for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++)
        doubled += ring[j].x * ring[i].y - ring[i].x * ring[j].y;
    return doubled / 2.0;
}

RX_POLYGON &HandMadeChain::addOuter(const Ring &ring, std::vector<float> rates)
{
    return add(ring, std::move(rates), false);
}

RX_POLYGON &HandMadeChain::addHole(const Ring &ring)
{
    return add(ring, {0.0F}, true);
}

RX_POLYGON *HandMadeChain::first()
{
    return polygons.empty() ? nullptr : &polygons.front();
}

RX_POLYGON &HandMadeChain::add(const Ring &ring, std::vector<float> rates, bool isHole)
{
    rings.push_back(ring);
    rateLists.push_back(std::move(rates));
    polygons.push_back({ring.empty() ? 0.0 : std::fabs(shoelaceArea(ring)), 0, rings.back().data(),
                        static_cast<quint32>(ring.size()), rateLists.back().data(), isHole, nullptr});
    if (polygons.size() > 1)
        polygons[polygons.size() - 2].next = &polygons.back();
    return polygons.back();
}
