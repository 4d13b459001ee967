#include "cgalpeer.h"

#include "ringtest.h"

#include <CGAL/Constrained_Delaunay_triangulation_2.h>
#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#include <CGAL/Triangulation_face_base_with_info_2.h>
#include <utility>

namespace {

using Kernel = CGAL::Exact_predicates_inexact_constructions_kernel;
/// A face's information is the number of rings around it; -1 before that is known.
using FaceBase =
    CGAL::Triangulation_face_base_with_info_2<int, Kernel, CGAL::Constrained_triangulation_face_base_2<Kernel>>;
using Structure = CGAL::Triangulation_data_structure_2<CGAL::Triangulation_vertex_base_2<Kernel>, FaceBase>;
using Triangulation = CGAL::Constrained_Delaunay_triangulation_2<Kernel, Structure>;

void addRing(Triangulation &triangulation, const OrvikTypes::RX_POLYGON &ring)
{
    std::vector<Kernel::Point_2> points;
    for (int i = 0; i < vertexCount(ring); ++i)
        points.emplace_back(ring.vertices[i].x, ring.vertices[i].y);
    triangulation.insert_constraint(points.begin(), points.end(), true);
}

/// Walks from outside inwards and counts the faces with an odd number of rings around them.
int facesInside(Triangulation &triangulation)
{
    for (Triangulation::Face_handle face : triangulation.all_face_handles())
        face->info() = -1;
    int inside = 0;
    std::vector<std::pair<Triangulation::Face_handle, int>> open{{triangulation.infinite_face(), 0}};
    while (!open.empty()) {
        const auto [face, rings] = open.back();
        open.pop_back();
        if (face->info() >= 0)
            continue;
        face->info() = rings;
        inside += rings % 2;
        for (int i = 0; i < 3; ++i) {
            if (face->neighbor(i)->info() < 0)
                open.emplace_back(face->neighbor(i), rings + (face->is_constrained(i) ? 1 : 0));
        }
    }
    return inside;
}

} // namespace

PeerResult triangulateWithCgal(const BenchmarkMap &map, const Placement &placement)
{
    PeerResult result;
    for (std::size_t outer = 0; outer < placement.size(); ++outer) {
        Triangulation triangulation;
        addRing(triangulation, map.outer(outer));
        for (const OrvikTypes::RX_POLYGON *hole : placement[outer])
            addRing(triangulation, *hole);
        result.triangles += facesInside(triangulation);
    }
    return result;
}
