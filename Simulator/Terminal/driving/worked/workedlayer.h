#pragma once

#include "Framework/object3d.h"

#include <QOpenGLBuffer>

class WorkedGround;

/// Draws worked ground over the map, in the full colours of the legend, which the map shows at half their opacity. A
/// buffer on the graphics card takes what is new and keeps the rest: 96 bytes per strip, 6 MiB at most.
class WorkedLayer : public Object3D {
public:
    /// `ground` is not owned and outlives the layer.
    explicit WorkedLayer(WorkedGround *ground);

    void init() override;
    void draw(QMatrix4x4 mvp) override;
    /// Above maps.
    float drawingOrder() const override;

private:
    void upload();
    void uploadFrom(qint64 first);

    WorkedGround *ground;
    QOpenGLBuffer buffer;
    /// Strips that the buffer has room for.
    int capacity = 0;
    bool isInitialised = false;
};
