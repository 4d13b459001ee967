#pragma once

#include "Framework/rxpolygon.h"

#include <QList>
#include <QMetaType>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>

/// How a product is measured out.
enum class Amount { Unknown, Count, Volume, Weight };

/// What to load, and for whom.
struct LoadRequest {
    /// A Shapefile, GeoPackage or GeoJSON file.
    QString path;
    /// Rate columns; entry i feeds rateCalNames[i]. An empty entry leaves that product out. An empty list lets the
    /// back-end choose the most likely columns, at most one per rateCalNames entry.
    QStringList columns;
    /// Product-group names in product order.
    QStringList rateCalNames;
    /// How rateCalNames' products are measured out, missing ones Unknown. Columns that the back-end chooses go to the
    /// products that their names suit.
    QList<Amount> amounts;
    /// Names for the entries of "settings", one per product of the machine, in product order.
    QStringList productNames;
    /// Default rates of rateCalNames' products, base units; missing ones are 0.
    QList<double> defaultRates;
};

/// Which columns a file's table has.
struct ColumnSearch {
    /// Those of the wanted columns that are there, as they were asked for.
    QStringList found;
    /// One line that names the file and the reason; empty on success.
    QString error;

    bool isOk() const { return error.isEmpty(); }
};

/// What came of a load.
struct LoadReport {
    /// One line that names the file and the reason; empty on success.
    QString error;
    QString path;
    /// Name of the published group, "rxMap.<file name>".
    QString group;
    int polygons = 0; ///< Records of the chain.
    /// Outer rings and holes of the prescription. The chain has fewer where a polygon is hidden under a later one of
    /// the same shape, and where a hole had to become part of its outer ring.
    int outers = 0;
    int holes = 0;
    /// The columns in mapping order.
    QStringList columns;
    /// One legend per column.
    QList<QList<OrvikTypes::RX_RATECOLOR>> legends;
    /// Per legend: every class holds one single rate, which is its limit.
    QList<bool> hasSingleRates;
    /// Rings that had to be repaired.
    int repaired = 0;
    /// Records left out: empty geometry, or no rate in any column.
    int skipped = 0;
    /// One line each, file named.
    QStringList warnings;
    /// Extent in the local plane, metres: left = least x, top = least y.
    QRectF bounds;
    /// Where the local plane touches the earth, degrees of longitude and latitude. Maps of one origin share a plane.
    QPointF origin;

    bool isOk() const { return error.isEmpty(); }
};

Q_DECLARE_METATYPE(LoadReport)
