#pragma once

#include "rxmap3d.h"

/// Lets tests see the drawable's private state.
class RxMap3DProbe {
public:
    static const QList<VertexBank> &banks(const RxMap3D &map) { return map.vertexBanks; }
    static QList<VertexBank> &editableBanks(RxMap3D &map) { return map.vertexBanks; }
    static DataBrokerGroup *boundGroup(const RxMap3D &map) { return map.rxMapGroup; }
    static DbGroupAAM *aamGroup(const RxMap3D &map) { return map.aamGroup; }
    static QColor currentColor(const RxMap3D &map) { return map.currentColor; }
};
