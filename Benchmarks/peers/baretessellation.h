#pragma once

#include "vertexbank.h"

#include "Framework/rxpolygon.h"

#include <QList>
#include <QVector>

#include <vector>

/// Which holes are cut from which outer ring: one list per outer ring, in contour order.
using Placement = std::vector<std::vector<OrvikTypes::RX_POLYGON *>>;

/// Each hole compared with each outer ring, as hole placement is defined.
Placement referencePlacement(OrvikTypes::RX_POLYGON *chain, unsigned int count);

/// The same, but a hole is compared only with those outer rings whose box holds it.
Placement edgePlacement(OrvikTypes::RX_POLYGON *chain, unsigned int count);

/// The same, found as the plug-in finds it.
Placement fastPlacement(OrvikTypes::RX_POLYGON *chain, unsigned int count);

/// GLU with the plug-in's callbacks on the contours of a known placement: vertices allocated one by one, triangles
/// copied reversed into a bank with room for `corners` of them. What a rebuild cannot do without.
QVector<Vertex> bareTessellation(OrvikTypes::RX_POLYGON *chain, unsigned int count, const Placement &placement,
                                 const QList<OrvikTypes::RX_RATECOLOR> &legend, std::size_t corners);
