#pragma once

#include "Framework/rxpolygon.h"

#include <QColor>
#include <QVector>

struct Vertex;
class GLUtesselator;

/// Height at which the map lies in the view, metres; also its place among the host's drawables.
/// By design: the two are the same number.
constexpr float mapHeight = -4.99F;

/// Tessellates one polygon after the other with one GLU tessellator and appends their triangles to a bank. Sets no
/// property and no normal: GLU uses the odd winding rule and computes the normal. Registers no error callback either: a
/// polygon that GLU gives up on is silently not drawn.
class PolygonTessellation {
public:
    /// Registers the callbacks with `tessellator`.
    static void registerCallbacks(GLUtesselator *tessellator);

    /// Neither argument is owned; both outlive this object.
    PolygonTessellation(GLUtesselator *tessellator, QVector<Vertex> &triangles);

    /// Starts a polygon; all its contours get `color` at half its alpha.
    void beginPolygon(const QColor &color);
    void addContour(const OrvikTypes::RX_POLYGON &ring);
    /// Tessellates and appends the triangles, each with its winding reversed.
    void endPolygon();

private:
    Q_DISABLE_COPY(PolygonTessellation)

    GLUtesselator *tessellator;
    QVector<Vertex> &triangles;
    int contours = 0;
    qreal red = 0.0;
    qreal green = 0.0;
    qreal blue = 0.0;
    qreal alpha = 0.0;
};
