#pragma once

#include "Framework/sharedmetatype.h"

namespace OrvikTypes {

/// A point of the field's local plane: x east, y north, z up, in metres.
struct XYZ {
    XYZ() = default;
    XYZ(double givenX, double givenY, double givenZ)
        : x(givenX)
        , y(givenY)
        , z(givenZ)
    {
    }

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

inline bool operator==(const XYZ &a, const XYZ &b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

inline bool operator!=(const XYZ &a, const XYZ &b)
{
    return !(a == b);
}

} // namespace OrvikTypes

ORVIK_DECLARE_SHARED_METATYPE(OrvikTypes::XYZ)
