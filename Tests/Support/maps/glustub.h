#pragma once

#include <cstddef>

/// While one of these lives, GLU's tessellator does no work: each polygon gets as many triangles as its contours have
/// when they do not cross, made of any of its vertices. What a rebuild then takes is the plug-in's own share. Memory
/// for the tessellator itself is GLU's, and is never metered.
class GluStub {
public:
    GluStub();
    ~GluStub();
    GluStub(const GluStub &) = delete;
    GluStub &operator=(const GluStub &) = delete;

    /// Number of polygons since this was made.
    std::size_t polygons() const;
    std::size_t contours() const;
    std::size_t vertices() const;
    /// Vertices of the polygon that had the most, contours taken together, and triangles of the one with most of those.
    std::size_t largestPolygonVertices() const;
    std::size_t largestPolygonTriangles() const;
};
