#include "taskdata.h"

#include <algorithm>

bool Task::hasPrescription() const
{
    return !grids.empty()
        || std::any_of(zones.begin(), zones.end(), [](const TreatmentZone &zone) { return !zone.polygons.empty(); });
}

const TreatmentZone *Task::zone(int code) const
{
    const auto found =
        std::find_if(zones.begin(), zones.end(), [code](const TreatmentZone &zone) { return zone.code == code; });
    return code == noZone || found == zones.end() ? nullptr : &*found;
}
