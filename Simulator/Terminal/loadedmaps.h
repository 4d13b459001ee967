#pragma once

#include "Backend/loadreport.h"
#include "activemap.h"
#include "result.h"

#include <QPointF>
#include <QRectF>

#include <optional>

class DataBroker;
class Machine;
class PrescriptionBackend;

/// The maps that are loaded, as the machine takes them: which of them feed its products, and where they lie.
class LoadedMaps {
public:
    /// None is owned; all outlive this.
    LoadedMaps(const DataBroker &broker, const PrescriptionBackend &backend, const Machine &machine);

    /// The map that feeds the active product.
    ActiveMap active() const;
    /// The report of the map's load; an empty one where there is no map.
    LoadReport reportOf(const ActiveMap &map) const;

    /// Extent of what is loaded, metres (top = least y); nothing when no map is. When maps are too far apart for one
    /// plane, those on the machine's plane count (Machine::planeOrigin).
    std::optional<QRectF> bounds() const;
    /// Converts degrees of longitude and latitude to metres of that plane, and back; the reason when that is not
    /// possible.
    Result<QPointF> toField(const QPointF &degrees) const;
    Result<QPointF> toEarth(const QPointF &field) const;
    /// Where the maps lie that feed a product, metres of the plane of bounds(); null without any.
    QRectF boundsInUse() const;

private:
    const DataBroker &broker;
    const PrescriptionBackend &backend;
    const Machine &machine;
};
