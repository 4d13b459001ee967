#pragma once

#include "drivepath.h"
#include "fieldarea.h"
#include "result.h"

#include <optional>

/// How a field is to be driven.
struct SwathOptions {
    static constexpr double minWidth = 0.5;
    static constexpr double maxWidth = 200.0;
    static constexpr int maxHeadlands = 20;

    /// Degrees clockwise from north; nothing: along the field's longest side.
    std::optional<double> angle;
    /// Metres.
    double width = 12.0;
    /// Rounds along the edge before the swaths.
    int headlands = 0;
    /// Metres; no turn is tighter than this.
    double minRadius = 6.0;
};

/// A path over the whole field: rounds along its edge, then parallel swaths, each driven as far as the field reaches
/// anywhere across it, and between them the shortest turns.
class SwathPlan {
public:
    /// How far the field reaches across the swaths, metres: less than the machine's width is not driven. The field has
    /// an outline.
    static double widthAcross(const FieldArea &field, const SwathOptions &options);
    /// Gives the reason when the field cannot be driven like that.
    static Result<DrivePath> make(const FieldArea &field, const SwathOptions &options);
    /// A closed round along a ring, on arcs of that radius at its corners; corners that are too near to each other for
    /// that are left out, those first that change the ring's area least (Visvalingam and Whyatt 1993). It begins and
    /// ends in the middle of a side; empty where nothing is left.
    static DrivePath round(const QPolygonF &ring, double radius);
};
