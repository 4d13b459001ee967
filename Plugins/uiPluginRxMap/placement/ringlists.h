#pragma once

#include "Framework/rxpolygon.h"

#include <QVector>

/// The rings of a chain, outers and holes apart, each in chain order. The records are not owned.
struct RingLists {
    /// Walks `published` records; a chain that ends early is taken as far as it goes.
    RingLists(OrvikTypes::RX_POLYGON *chain, unsigned int published);

    /// Of all rings together.
    qint64 vertices() const;

    QVector<OrvikTypes::RX_POLYGON *> outers;
    QVector<OrvikTypes::RX_POLYGON *> holes;
};
