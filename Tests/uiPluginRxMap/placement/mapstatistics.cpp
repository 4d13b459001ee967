#include "mapstatistics.h"

#include "referenceplacement.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

using OrvikTypes::RX_POLYGON;
using OrvikTypes::RX_POLYGONVERTEX;

namespace {

struct Edge {
    RX_POLYGONVERTEX from;
    RX_POLYGONVERTEX to;
};

Edge edgeOf(const RX_POLYGON &ring, int index)
{
    const int count = referenceVertexCount(ring);
    return {ring.vertices[(index + count - 1) % count], ring.vertices[index]};
}

bool areSame(const RX_POLYGONVERTEX &one, const RX_POLYGONVERTEX &other)
{
    return one.x == other.x && one.y == other.y;
}

RX_POLYGONVERTEX asFloats(const RX_POLYGONVERTEX &vertex)
{
    return {referenceNarrowed(vertex.x), referenceNarrowed(vertex.y)};
}

bool isFinite(const RX_POLYGONVERTEX &vertex)
{
    return std::isfinite(vertex.x) && std::isfinite(vertex.y);
}

bool isOrdinaryRing(const RX_POLYGON &ring)
{
    return std::all_of(ring.vertices, ring.vertices + referenceVertexCount(ring), [](const RX_POLYGONVERTEX &vertex) {
        const double height = std::fabs(vertex.y);
        return std::fabs(vertex.x) <= 1e100 && height <= 1e100 && (height == 0.0 || height >= 1e-180);
    });
}

bool isOnLine(const RX_POLYGON &ring, const RX_POLYGONVERTEX &point)
{
    for (int i = 0; i < referenceVertexCount(ring); ++i) {
        const Edge edge = edgeOf(ring, i);
        if (point.y < std::min(edge.from.y, edge.to.y) || point.y > std::max(edge.from.y, edge.to.y))
            continue;
        if (edge.from.y == edge.to.y) {
            if (std::min(edge.from.x, edge.to.x) <= point.x && point.x <= std::max(edge.from.x, edge.to.x))
                return true;
            continue;
        }
        const double beside = (edge.from.x - edge.to.x) * (point.y - edge.to.y) / (edge.from.y - edge.to.y);
        if (beside + edge.to.x == point.x)
            return true;
    }
    return false;
}

/// Whether the outer ring contains all vertices that are finite once narrowed, and there are any.
bool isInsideButForOddVertices(const RX_POLYGON &outer, const RX_POLYGON &hole)
{
    int inside = 0;
    for (int i = 0; i < referenceVertexCount(hole); ++i) {
        const RX_POLYGONVERTEX point = asFloats(hole.vertices[i]);
        if (!isFinite(point))
            continue;
        if (!referenceIsInside(outer.vertices, referenceVertexCount(outer), point.x, point.y))
            return false;
        ++inside;
    }
    return inside > 0;
}

bool isOdd(const RX_POLYGON &hole)
{
    return !std::all_of(hole.vertices, hole.vertices + referenceVertexCount(hole),
                        [](const RX_POLYGONVERTEX &vertex) { return isFinite(asFloats(vertex)); });
}

int sharedEdges(const RX_POLYGON &one, const RX_POLYGON &other)
{
    int shared = 0;
    for (int i = 0; i < referenceVertexCount(one); ++i) {
        const Edge edge = edgeOf(one, i);
        for (int j = 0; j < referenceVertexCount(other); ++j) {
            const Edge second = edgeOf(other, j);
            const bool isSame = (areSame(edge.from, second.from) && areSame(edge.to, second.to))
                || (areSame(edge.from, second.to) && areSame(edge.to, second.from));
            shared += isSame && !areSame(edge.from, edge.to) ? 1 : 0;
        }
    }
    return shared;
}

bool shareVertex(const RX_POLYGON &one, const RX_POLYGON &other)
{
    return std::any_of(
        one.vertices, one.vertices + referenceVertexCount(one), [&other](const RX_POLYGONVERTEX &vertex) {
            return std::any_of(other.vertices, other.vertices + referenceVertexCount(other),
                               [&vertex](const RX_POLYGONVERTEX &second) { return areSame(vertex, second); });
        });
}

} // namespace

void MapStatistics::add(HandMadeChain &chain)
{
    QVector<RX_POLYGON *> outers;
    QVector<RX_POLYGON *> holes;
    for (RX_POLYGON *polygon = chain.first(); polygon != nullptr; polygon = polygon->next)
        (polygon->isHole ? holes : outers).append(polygon);
    const QVector<QVector<int>> cut = referencePlacement(outers, holes);
    found[PlacedByNarrowing] += cut == referencePlacement(outers, holes, [](double value) { return value; }) ? 0 : 1;
    QVector<RX_POLYGON *> left = holes;
    for (int outer = 0; outer < outers.size(); ++outer) {
        QVector<RX_POLYGON *> candidates;
        for (RX_POLYGON *hole : qAsConst(left)) {
            if (outers.at(outer)->area - 10.0 > hole->area && referenceVertexCount(*hole) > 0)
                candidates.append(hole);
        }
        addOuter(*outers.at(outer), candidates);
        QVector<RX_POLYGON *> here;
        for (const int hole : cut.at(outer)) {
            here.append(holes.at(hole));
            left.removeOne(holes.at(hole));
        }
        addCut(*outers.at(outer), here);
    }
}

void MapStatistics::addOuter(const RX_POLYGON &outer, const QVector<RX_POLYGON *> &candidates)
{
    if (referenceVertexCount(outer) == 0)
        return;
    for (const RX_POLYGON *hole : candidates) {
        found[EdgeShared] += sharedEdges(outer, *hole);
        for (int i = 0; i < referenceVertexCount(*hole); ++i) {
            if (!isOnLine(outer, asFloats(hole->vertices[i])))
                continue;
            ++found[PointOnLine];
            found[PointNarrowedOntoLine] += isOnLine(outer, hole->vertices[i]) ? 0 : 1;
        }
    }
    if (!isOrdinaryRing(outer))
        return;
    for (const RX_POLYGON *hole : candidates)
        found[OddHole] += isOdd(*hole) && isInsideButForOddVertices(outer, *hole) ? 1 : 0;
}

void MapStatistics::addCut(const RX_POLYGON &outer, const QVector<RX_POLYGON *> &cut)
{
    found[CutHole] += cut.size();
    found[HoleInOddRing] += isOrdinaryRing(outer) ? 0 : cut.size();
    for (int i = 0; i < cut.size(); ++i) {
        for (int j = 0; j < i; ++j)
            found[HolesThatTouch] += shareVertex(*cut.at(i), *cut.at(j)) ? 1 : 0;
    }
}

QString MapStatistics::shortOf(const Counts &least) const
{
    static const QMap<Case, QString> names{
        {CutHole, QStringLiteral("cut holes")},
        {PointOnLine, QStringLiteral("points on lines")},
        {PointNarrowedOntoLine, QStringLiteral("points narrowed onto lines")},
        {OddHole, QStringLiteral("odd holes")},
        {HoleInOddRing, QStringLiteral("holes in odd rings")},
        {EdgeShared, QStringLiteral("shared edges")},
        {HolesThatTouch, QStringLiteral("holes that touch")},
        {PlacedByNarrowing, QStringLiteral("maps placed by narrowing")},
    };
    QStringList parts;
    for (auto wanted = least.cbegin(); wanted != least.cend(); ++wanted) {
        if (found.value(wanted.key()) < wanted.value())
            parts.append(QStringLiteral("%1 %2 instead of %3 or more")
                             .arg(found.value(wanted.key()))
                             .arg(names.value(wanted.key()))
                             .arg(wanted.value()));
    }
    return parts.join(QStringLiteral(", "));
}
