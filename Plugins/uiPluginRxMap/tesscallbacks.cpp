#include "tesscallbacks.h"

#include <algorithm>

QVector<RXVERT *> coordList;
QVector<Vertex> vList;

namespace {

quint32 colorByte(double component)
{
    // Colours beyond the usual range, or not a number, must not reach the conversion.
    const double inRange = component > 0.0 ? std::min(component, 1.0) : 0.0;
    return static_cast<quint32>(255.0 * inRange + 0.5); // NOLINT(bugprone-incorrect-roundings): never negative.
}

} // namespace

void tessBeginCB(unsigned int /*type*/) { }

void tessVertexCB(unsigned int index)
{
    const int position = static_cast<int>(index);
    if (position >= coordList.size() || position < 0)
        return;
    const RXVERT &from = *coordList.at(position);
    const quint32 color =
        colorByte(from.r) | colorByte(from.g) << 8 | colorByte(from.b) << 16 | colorByte(from.a) << 24;
    vList.append({static_cast<float>(from.x), static_cast<float>(from.y), static_cast<float>(from.z), color});
}

void tessCombineCB(double * /*coords*/, RXVERT ** /*vertexData*/, float * /*weight*/, RXVERT ** /*outData*/) { }

void tessEdgeCB(unsigned char /*flag*/) { }

void tessEndCB() { }
