#include "ringlists.h"

using OrvikTypes::RX_POLYGON;

RingLists::RingLists(RX_POLYGON *chain, unsigned int count)
{
    int holeCount = 0;
    int outerCount = 0;
    RX_POLYGON *polygon = chain;
    for (unsigned int left = count; polygon != nullptr && left > 0; polygon = polygon->next, --left)
        ++(polygon->isHole ? holeCount : outerCount);
    outers.reserve(outerCount);
    holes.reserve(holeCount);
    polygon = chain;
    for (unsigned int left = count; polygon != nullptr && left > 0; polygon = polygon->next, --left)
        (polygon->isHole ? holes : outers).append(polygon);
}
