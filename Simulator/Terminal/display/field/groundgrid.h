#pragma once

#include "Framework/object3d.h"

#include <QRectF>
#include <QVector>

/// The host's own drawable: a square grid on the ground that gives a sense of distance.
class GroundGrid : public Object3D {
public:
    /// Covers `region` (metres of the local plane) with lines `spacing` metres apart.
    void setRegion(const QRectF &region, double spacing);

    void draw(QMatrix4x4 mvp) override;
    void init() override;
    float drawingOrder() const override;

private:
    struct Vertex {
        float x;
        float y;
        float z;
        quint8 color[4];
    };

    void addLine(const QPointF &from, const QPointF &to, bool isMajor);

    QVector<Vertex> vertices;
    bool isInitialised = false;
};
