#pragma once

#include "Framework/dbgroupproductgroupinfo.h"

#include <QString>

/// The operator's unit system.
enum class UnitSystem { Us, Metric, Turf };

/// What the terminal writes behind a rate of that kind, translated; empty for a product of unknown kind.
QString rateUnit(DbGroupProductGroupInfo::RateKind kind, UnitSystem units);
/// What the host's units converter holds as "areaUnitSystem" and "pressureUnit".
int areaUnitSystem(UnitSystem units);
int pressureUnit(UnitSystem units);
