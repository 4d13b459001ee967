#pragma once

#include "Framework/rxpolygon.h"

#include <QColor>
#include <QList>
#include <QString>

class DataBroker;

/// The prescription column that feeds a product, as the broker shows it.
struct ActiveMap {
    /// Empty when no map feeds the product.
    QString groupName;
    QString columnName;
    /// Place among the group's mappings; -1 without a map.
    int mapping = -1;
    /// The classes that are drawn.
    QList<OrvikTypes::RX_RATECOLOR> legend;

    bool isValid() const { return mapping >= 0; }
    /// A published legend without its fully transparent entries, which stand for polygons without a rate.
    static QList<OrvikTypes::RX_RATECOLOR> drawnClasses(QList<OrvikTypes::RX_RATECOLOR> legend);
    /// Place in the legend of the class that holds `rate` (base units): the last one for what is above them all; -1
    /// without a legend, and where there is no rate.
    int classOf(double rate) const;
    /// Colour of the legend class that holds `rate` (base units); invalid without a legend, and where there is no rate.
    QColor classColor(double rate) const;

    /// Colour of a rate as a machine applied it, which comes near the prescribed one without ever meeting it: where
    /// each class holds one single rate that of the nearest, else that of the class that holds all but a hundredth of
    /// it; unplannedColor() half or more beyond all of them.
    QColor appliedColor(double rate, bool hasSingleRates) const;

    /// Ground that got what no class stands for; in no legend.
    static QColor unplannedColor() { return QColor(0x88, 0x88, 0x88); }

    /// The first published map with a mapping for that rate channel.
    static ActiveMap find(const DataBroker &broker, const QString &rateCalName);
};
