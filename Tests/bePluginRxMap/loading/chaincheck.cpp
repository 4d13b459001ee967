#include "chaincheck.h"

#include <cmath>

using OrvikTypes::RX_POLYGON;

bool holdsTogether(const LoadedMap &map)
{
    unsigned records = 0;
    for (const RX_POLYGON *record = map.chain->first(); record != nullptr; record = record->next, ++records) {
        if (record->vertexCount < 3 || !(record->area > 0.0))
            return false;
        for (unsigned i = 0; i < record->vertexCount; ++i) {
            if (!std::isfinite(record->vertices[i].x) || !std::isfinite(record->vertices[i].y))
                return false;
        }
        map.lookup->ratesAt(record->vertices[0].x, record->vertices[0].y);
    }
    return records == map.chain->size() && records > 0;
}
