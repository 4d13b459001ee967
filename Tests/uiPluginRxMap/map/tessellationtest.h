#pragma once

#include "maphost.h"
#include "rxmap3dprobe.h"
#include "testbase.h"

#include "Framework/rxpolygon.h"

/// Base of the tests of a rebuild: each test function gets a map bound to the empty prescription group "rxMap.field" of
/// product 1, with no GLU call recorded yet.
class TessellationTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// Publishes the chain with a legend of one class; returns the triangles drawn for it, those of the map's first
    /// bank.
    const QVector<Vertex> &rebuild(HandMadeChain &chain);

    /// A legend of one opaque red class.
    const QList<OrvikTypes::RX_RATECOLOR> oneClass{{100.0, QColor(255, 0, 0)}};
    MapHost *host = nullptr;
    DbGroupRxMap *group = nullptr;
    RxMap3D *map = nullptr;
};
