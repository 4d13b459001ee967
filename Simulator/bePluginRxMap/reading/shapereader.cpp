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
        const size_t first = map.xs.size();
        const bool isRingFinite = ring == nullptr || appendVertices(*ring);
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

bool ShapeReader::appendVertices(const OGRLinearRing &ring)
{
    int count = ring.getNumPoints();
    if (count > 1 && ring.getX(0) == ring.getX(count - 1) && ring.getY(0) == ring.getY(count - 1))
        --count;
    const size_t first = map.xs.size();
    map.xs.resize(first + static_cast<size_t>(count));
    map.ys.resize(first + static_cast<size_t>(count));
    bool isFinite = true;
    for (int i = 0; i < count; ++i) {
        const double x = map.xs[first + static_cast<size_t>(i)] = ring.getX(i);
        const double y = map.ys[first + static_cast<size_t>(i)] = ring.getY(i);
        isFinite = isFinite && std::isfinite(x) && std::isfinite(y);
    }
    return isFinite;
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
