#pragma once

/// What another library made of a map.
struct PeerResult {
    int triangles = 0;
    int refused = 0; ///< Polygons that it could not cut.
};
