#pragma once

#include "planering.h"

#include <vector>

/// Which polygon the renderer cuts each hole from, and the joining that makes this the polygon to which the hole
/// belongs. The order of the polygons, which says who covers whom, stays as it is.
struct HoleArrangement {
    /// For each hole, polygon by polygon: the place of the polygon from which it is cut, or RendererHoleRule::nowhere.
    std::vector<int> takers;
    /// The record of each hole that stays in the wrong place.
    std::vector<int> misplaced;
    /// The holes that became part of their outer rings.
    std::vector<PlaneRing> joined;

    /// Joins holes of `polygons` to their outer rings where another polygon would lose them: the hole itself, or those
    /// in which its polygon lies.
    static HoleArrangement arrange(std::vector<PlanePolygon> &polygons);
};
