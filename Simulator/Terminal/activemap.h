#pragma once

#include "Framework/rxpolygon.h"

#include <QColor>
#include <QList>
#include <QPointF>
#include <QString>

class DataBroker;

/// The prescription column that feeds a product, as the broker shows it.
struct ActiveMap {
    /// Empty when no map feeds the product.
    QString groupName;
    QString columnName;
    /// Place among the group's mappings; -1 without a map.
    int mapping = -1;
    QList<OrvikTypes::RX_RATECOLOR> legend;

    bool isValid() const { return mapping >= 0; }
    /// Colour of the legend class that holds `rate` (base units); invalid without a legend.
    QColor classColor(double rate) const;
    /// The colour of the class at the point that was queried last in the map's group; invalid when it has no rate.
    QColor queriedColor(const DataBroker &broker) const;

    /// The first published map with a mapping for that rate channel.
    static ActiveMap find(const DataBroker &broker, const QString &rateCalName);
};
