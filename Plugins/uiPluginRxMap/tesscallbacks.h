#pragma once

#include "vertexbank.h"

#include <QVector>

/// A vertex as the tessellator reads it; its first three doubles are the location.
struct RXVERT {
    double x; ///< View coordinates, metres.
    double y;
    double z;
    double r; ///< Colour components, 0.0 to 1.0.
    double g;
    double b;
    double a;
};

static_assert(sizeof(RXVERT) == 7 * sizeof(double), "the tessellator reads the location from the first doubles");

/// Every vertex made for the polygon being tessellated, in the order handed to the tessellator; owned. The data that
/// the tessellator carries for a vertex is its position here. Global, with vList, because the callbacks get no user
/// pointer: one tessellation at a time in the whole process.
extern QVector<RXVERT *> coordList;
/// The vertices that the tessellator emitted for that polygon.
extern QVector<Vertex> vList;

void tessBeginCB(unsigned int type);
/// Appends vertex `index` of coordList to vList; does nothing when there is none.
void tessVertexCB(unsigned int index);
/// By design: makes no vertex; a polygon whose rings cross is not split at the crossings.
void tessCombineCB(double *coords, RXVERT **vertexData, float *weight, RXVERT **outData);
/// Registered only so that GLU emits separate triangles, never fans or strips.
void tessEdgeCB(unsigned char flag);
void tessEndCB();
