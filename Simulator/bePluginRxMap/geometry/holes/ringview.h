#pragma once

#include "planering.h"

#include <cstddef>

/// An outer ring as the renderer gets it; the vertices are not owned.
struct RingView {
    const PlaneVertex *vertices;
    size_t count;
    double area; ///< Square metres.
};
