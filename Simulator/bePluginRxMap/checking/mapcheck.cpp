#include "mapcheck.h"

#include "coveragecheck.h"
#include "geosinterrupt.h"
#include "narrowcheck.h"

std::optional<QList<MapFinding>> MapCheck::run(const MapView &map, const Settings &settings, const LoadControl &control)
{
    const GeosInterrupt interrupt(control.cancelled);
    FindingList findings;
    if (!CoverageCheck(map, control).run(findings))
        return {};
    if (!NarrowCheck(map, settings.machineWidth, control).run(findings))
        return {};
    for (size_t i = 0; i < map.mappings(); ++i)
        RateCheck(map, i, settings.columns.at(i)).run(findings);
    if (control.isCancelled())
        return {};
    return findings.take();
}
