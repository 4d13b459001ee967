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

    /// Colour of an applied rate, which comes near the prescribed one but hardly ever equals it. Where each class holds
    /// a single rate, the colour of the nearest class; else that of the class that holds the rate less a hundredth.
    /// unplannedColor() when the rate is more than half beyond all classes.
    QColor appliedColor(double rate, bool hasSingleRates) const;

    /// For ground that got a rate that no class stands for; in no legend.
    static QColor unplannedColor() { return QColor(0x88, 0x88, 0x88); }

    /// The first published map with a mapping for that rate channel.
    static ActiveMap find(const DataBroker &broker, const QString &rateCalName);
};
