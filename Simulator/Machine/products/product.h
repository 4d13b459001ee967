#pragma once

#include "actuatorsettings.h"

#include "Framework/dbgroupproductgroupinfo.h"

#include <QList>
#include <QString>

/// One product of the machine, as the operator set it up.
struct Product {
    /// How the rate is measured. Unknown: the terminal has no unit for it.
    enum class Kind { Count, Ratio, Injection, Volume, Weight, Pressure, Unknown };

    QString name;
    /// A few letters for small buttons.
    QString shortName;
    Kind kind = Kind::Weight;
    /// Bin or tank number from 1.
    int bin = 1;
    /// Rate where the prescription gives none, base units.
    double defaultRate = 0.0;
    /// A prescription may drive the product.
    bool underVra = true;
    /// The product's node carries the tank mix itself.
    bool isCarrier = false;
    ActuatorSettings actuator;

    /// What meters a product of that kind when nothing else is said.
    static ActuatorSettings usualActuator(Kind kind);
    /// The kind by which the rate is counted: what a carrier node meters is a plain volume.
    DbGroupProductGroupInfo::RateKind rateKind() const;
    /// Whether it has the same name as the other one and is measured in the same way, which a carrier may not be.
    bool isSameAs(const Product &other) const
    {
        return name == other.name && kind == other.kind && isCarrier == other.isCarrier;
    }
};

using Products = QList<Product>;
