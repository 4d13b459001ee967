#pragma once

#include "Backend/mapfinding.h"
#include "loadcontrol.h"
#include "mapview.h"
#include "ratecheck.h"

#include <QList>

#include <optional>
#include <vector>

/// Looks for faults of a map that a load cannot know of: overlaps, gaps, slivers, areas of one rate that are narrower
/// than the machine, rates that are far from the rest or look like totals. Blocks; touches nothing that is shared.
namespace MapCheck {

struct Settings {
    /// The width that the machine works in one pass, metres.
    double machineWidth = 12.0;
    /// One for each of the map's mappings.
    std::vector<RateCheck::Column> columns;
};

/// By kind, the gravest of each first; nothing when it was cancelled.
std::optional<QList<MapFinding>> run(const MapView &map, const Settings &settings, const LoadControl &control);

} // namespace MapCheck
