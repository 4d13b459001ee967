#pragma once

#include "legendpanel.h"

class Machine;
struct ActiveMap;
struct LoadReport;

/// What the legend says of the map that feeds the active product. `report`: the report of its load.
LegendPanel::Content legendContent(const Machine &machine, const LoadReport &report, const ActiveMap &map);
