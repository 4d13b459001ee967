#pragma once

#include "rxmapgraphicslist.h"

/// Lets tests see what the list keeps private.
class RxMapGraphicsListProbe {
public:
    static DbGroupRxMap *rxMapGroup(const RxMapGraphicsList &list) { return list.rxMapGroup; }
    static DbGroupAAM *aamGroup(const RxMapGraphicsList &list) { return list.aamGroup; }
    static DbGroupProductGroupInfo *productGroupInfo(const RxMapGraphicsList &list) { return list.productGroupInfo; }
    static DbGroupQmlUnitsConverter *unitsConverter(const RxMapGraphicsList &list) { return list.unitsConverter; }
    static RxMap3D *map(const RxMapGraphicsList &list) { return list.rxMap3D; }
};
