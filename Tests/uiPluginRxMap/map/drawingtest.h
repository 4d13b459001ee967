#pragma once

#include "currentcontext.h"
#include "maphost.h"
#include "recordinggl.h"
#include "rxmap3dprobe.h"
#include "testbase.h"

/// Base of the tests of the map's drawing: each test function gets a context with a recording function table, and a map
/// that is not initialised.
class DrawingTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// Appends a bank of `vertices` vertices to the map.
    void addBank(int vertices, qint32 primitive = 4);

    QScopedPointer<CurrentContext> context;
    QScopedPointer<RecordingGl> gl;
    QScopedPointer<MapHost> host;
    QScopedPointer<RxMap3D> map;
};
