#include "shapereader.h"

#include "rawprescription.h"

#include <cmath>
#include <memory>
#include <ogr_geometry.h>

ShapeReader::ShapeReader(RawPrescription &givenMap)
    : map(givenMap)
{
}

void ShapeReader::read(const OGRGeometry *geometry)
{
    if (geometry == nullptr || geometry->IsEmpty()) {
        map.emptyRecords.push_back(map.records);
        return;
    }
    const size_t firstRing = map.rings.size();
    const size_t firstVertex = map.xs.size();
    isRecordFinite = true;
    const bool hasAreas = appendGeometry(*geometry);
    if (hasAreas && isRecordFinite && map.rings.size() > firstRing)
        return;
    if (!hasAreas)
        map.otherRecords.push_back(map.records);
    else if (!isRecordFinite)
        map.notFiniteRecords.push_back(map.records);
    else
        map.emptyRecords.push_back(map.records);
    map.rings.resize(firstRing);
    map.xs.resize(firstVertex);
    map.ys.resize(firstVertex);
}

bool ShapeReader::appendGeometry(const OGRGeometry &geometry)
{
    const OGRwkbGeometryType kind = wkbFlatten(geometry.getGeometryType());
    if (kind == wkbPolygon || kind == wkbTriangle) {
        appendPolygon(*geometry.toPolygon());
        return true;
    }
    if (OGR_GT_IsNonLinear(kind)) {
        const std::unique_ptr<OGRGeometry> linear(geometry.getLinearGeometry());
        return linear && !OGR_GT_IsNonLinear(linear->getGeometryType()) && appendGeometry(*linear);
    }
    bool hasAreas = false;
    if (OGR_GT_IsSubClassOf(kind, wkbGeometryCollection)) {
        for (const OGRGeometry *member : *geometry.toGeometryCollection())
            hasAreas = appendGeometry(*member) || hasAreas;
    } else if (OGR_GT_IsSubClassOf(kind, wkbPolyhedralSurface)) {
        for (const OGRPolygon *face : *geometry.toPolyhedralSurface()) {
            appendPolygon(*face);
            hasAreas = true;
        }
    }
    return hasAreas;
}

void ShapeReader::appendPolygon(const OGRPolygon &polygon)
{
    const int holes = polygon.getNumInteriorRings();
    for (int i = -1; i < holes; ++i) {
        const OGRLinearRing *ring = i < 0 ? polygon.getExteriorRing() : polygon.getInteriorRing(i);
        const auto count = static_cast<size_t>(ring == nullptr ? 0 : ring->getNumPoints());
        const size_t first = map.xs.size();
        map.xs.resize(first + count);
        map.ys.resize(first + count);
        if (count > 0)
            ring->getPoints(&map.xs[first], sizeof(double), &map.ys[first], sizeof(double));
        dropClosingVertex(first);
        const bool isRingFinite = isFinite(first);
        isRecordFinite = isRecordFinite && isRingFinite;
        if (isRingFinite && !enclosesSomething(first)) {
            map.xs.resize(first);
            map.ys.resize(first);
            map.droppedRings.push_back(map.records);
            if (i < 0)
                return;
            continue;
        }
        map.rings.emplace_back() = {first, map.xs.size() - first, map.records, i >= 0};
    }
}

void ShapeReader::dropClosingVertex(size_t first)
{
    const size_t count = map.xs.size() - first;
    if (count < 2 || map.xs.back() != map.xs[first] || map.ys.back() != map.ys[first])
        return;
    map.xs.pop_back();
    map.ys.pop_back();
}

bool ShapeReader::isFinite(size_t first) const
{
    for (size_t i = first; i < map.xs.size(); ++i) {
        if (!std::isfinite(map.xs[i]) || !std::isfinite(map.ys[i]))
            return false;
    }
    return true;
}

bool ShapeReader::enclosesSomething(size_t first) const
{
    size_t second = 0;
    for (size_t i = first + 1; i < map.xs.size(); ++i) {
        if (map.xs[i] == map.xs[first] && map.ys[i] == map.ys[first])
            continue;
        if (second == 0)
            second = i;
        else if (map.xs[i] != map.xs[second] || map.ys[i] != map.ys[second])
            return true;
    }
    return false;
}
