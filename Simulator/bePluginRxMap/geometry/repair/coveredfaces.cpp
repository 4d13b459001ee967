#include "coveredfaces.h"

#include <algorithm>
#include <tuple>

namespace {

/// An edge of a face, the same whichever way the face runs along it.
struct FaceEdge {
    PlaneVertex lower;
    PlaneVertex upper;
    size_t face;

    auto place() const { return std::tie(lower.x, lower.y, upper.x, upper.y); }
};

void appendEdges(const PlaneRing &ring, size_t face, std::vector<FaceEdge> &edges)
{
    for (size_t i = 0; i < ring.size(); ++i) {
        const PlaneVertex &from = ring[i];
        const PlaneVertex &to = ring[i + 1 < ring.size() ? i + 1 : 0];
        const bool isUpward = std::tie(from.x, from.y) < std::tie(to.x, to.y);
        edges.push_back(isUpward ? FaceEdge{from, to, face} : FaceEdge{to, from, face});
    }
}

} // namespace

CoveredFaces::Neighbours CoveredFaces::neighboursOf(const std::vector<PlanePolygon> &faces,
                                                    std::vector<bool> &isOutermost)
{
    std::vector<FaceEdge> edges;
    for (size_t face = 0; face < faces.size(); ++face) {
        appendEdges(faces[face].outer, face, edges);
        for (const PlaneRing &hole : faces[face].holes)
            appendEdges(hole, face, edges);
    }
    std::sort(edges.begin(), edges.end(), [](const FaceEdge &a, const FaceEdge &b) { return a.place() < b.place(); });
    Neighbours neighbours(faces.size());
    for (size_t i = 0; i < edges.size(); ++i) {
        const size_t face = edges[i].face;
        if (i + 1 == edges.size() || edges[i].place() != edges[i + 1].place()) {
            isOutermost[face] = true;
            continue;
        }
        const size_t other = edges[++i].face;
        neighbours[face].push_back(other);
        neighbours[other].push_back(face);
    }
    return neighbours;
}

std::vector<bool> CoveredFaces::oddDepths(const Neighbours &neighbours, const std::vector<bool> &isOutermost)
{
    std::vector<bool> isReached = isOutermost;
    std::vector<bool> isOdd(neighbours.size(), false);
    std::vector<size_t> layer;
    for (size_t face = 0; face < neighbours.size(); ++face) {
        if (isOutermost[face])
            layer.push_back(face);
    }
    for (bool odd = true; !layer.empty(); odd = !odd) {
        std::vector<size_t> next;
        for (const size_t face : layer) {
            isOdd[face] = odd;
            for (const size_t neighbour : neighbours[face]) {
                if (isReached[neighbour])
                    continue;
                isReached[neighbour] = true;
                next.push_back(neighbour);
            }
        }
        layer.swap(next);
    }
    return isOdd;
}

std::vector<std::vector<size_t>> CoveredFaces::groups(const std::vector<PlanePolygon> &faces)
{
    std::vector<bool> isOutermost(faces.size(), false);
    const Neighbours neighbours = neighboursOf(faces, isOutermost);
    std::vector<bool> isLeft = oddDepths(neighbours, isOutermost);
    std::vector<std::vector<size_t>> groups;
    for (size_t first = 0; first < faces.size(); ++first) {
        if (!isLeft[first])
            continue;
        isLeft[first] = false;
        std::vector<size_t> group = {first};
        for (size_t i = 0; i < group.size(); ++i) {
            for (const size_t neighbour : neighbours[group[i]]) {
                if (!isLeft[neighbour])
                    continue;
                isLeft[neighbour] = false;
                group.push_back(neighbour);
            }
        }
        groups.push_back(std::move(group));
    }
    return groups;
}
