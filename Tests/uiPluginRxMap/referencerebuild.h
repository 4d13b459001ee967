#pragma once

#include "vertexbank.h"

#include "Framework/rxpolygon.h"

#include <QColor>
#include <QList>
#include <QVector>

/// A rebuild of the map as it is defined, step by step and with nothing from the drawable: each hole compared with each
/// outer ring, vertices taken as GLU emits them, each triangle turned round. A faster way must give the same to the
/// last bit.
struct ReferenceRebuild {
    QVector<Vertex> vertices;
    QVector<int> drawIndexes; ///< One for each record of the chain, in order.
    QColor carriedOver;       ///< The colour of the last polygon.
};

/// `carriedOver`: the colour of the polygon before the first. Writes nothing into the records.
ReferenceRebuild referenceRebuild(OrvikTypes::RX_POLYGON *chain, unsigned int count,
                                  const QList<OrvikTypes::RX_RATECOLOR> &legend, QColor carriedOver = QColor());
