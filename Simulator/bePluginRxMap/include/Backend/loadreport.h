#pragma once

#include "Backend/columnproduct.h"
#include "Backend/mapfinding.h"
#include "Backend/ratesource.h"

#include "Framework/rxpolygon.h"
#include "bePluginRxMap/bepluginrxmapglobal.h"

#include <QList>
#include <QMetaType>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QStringList>

/// The outcome of a load.
struct LoadReport {
    /// One line that names the file and the reason; empty on success.
    QString error;
    QString path;
    /// The layer and the task that were taken, empty where the format has none.
    QString layer;
    QString task;
    /// All layers with polygons, and all tasks, that the file offers, in its order.
    QStringList layers;
    QStringList tasks;
    /// Name of the published group, "rxMap.<file name>".
    QString group;
    int polygons = 0; ///< Records of the chain.
    /// Outer rings and holes of the prescription. The chain has fewer where a polygon is hidden under a later one of
    /// the same shape, and where a hole had to become part of its outer ring.
    int outers = 0;
    int holes = 0;
    /// The columns in mapping order.
    QStringList columns;
    /// One per column.
    QList<RateSource> sources;
    /// The columns from which the machine's products were made; empty where it had its own.
    QList<ColumnProduct> columnProducts;
    /// One legend per column.
    QList<QList<OrvikTypes::RX_RATECOLOR>> legends;
    /// Per legend: whether the rates of each class are all shown alike; the greatest of them is its limit.
    QList<bool> hasSingleRates;
    /// Per legend and class, the area of its polygons less their holes, square metres. Ground that several polygons
    /// share counts for each of them.
    QList<QList<double>> areas;
    /// Per column the sum of rate times area, base unit times hectares; counted as the areas are.
    QList<double> amounts;
    /// Rings that had to be repaired.
    int repaired = 0;
    /// Records left out: empty geometry, or no rate in any column.
    int skipped = 0;
    /// One line each, with the file's name: what the findings say, and remarks that are not findings.
    QStringList warnings;
    /// What the load found to be wrong with the file, or took for granted.
    QList<MapFinding> findings;
    /// Extent in the local plane, metres: left = least x, top = least y.
    QRectF bounds;
    /// The field's boundary in the local plane, metres, closed rings, holes too; empty where the file has none.
    QList<QPolygonF> boundary;
    /// Where the local plane touches the earth, degrees of longitude and latitude. Maps of one origin share a plane.
    QPointF origin;

    bool isOk() const { return error.isEmpty(); }
    /// Distance over the earth from its plane's origin to another one, metres.
    BEPLUGINRXMAP_EXPORT double distanceTo(const QPointF &other) const;
};

Q_DECLARE_METATYPE(LoadReport)
