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

std::vector<bool> CoveredFaces::among(const std::vector<PlanePolygon> &faces)
{
    std::vector<bool> isReached(faces.size(), false);
    const Neighbours neighbours = neighboursOf(faces, isReached);
    std::vector<bool> isCovered(faces.size(), false);
    std::vector<size_t> layer;
    for (size_t face = 0; face < faces.size(); ++face) {
        if (isReached[face])
            layer.push_back(face);
    }
    for (bool isOdd = true; !layer.empty(); isOdd = !isOdd) {
        std::vector<size_t> next;
        for (const size_t face : layer) {
            isCovered[face] = isOdd;
            for (const size_t neighbour : neighbours[face]) {
                if (isReached[neighbour])
                    continue;
                isReached[neighbour] = true;
                next.push_back(neighbour);
            }
        }
        layer.swap(next);
    }
    return isCovered;
}
