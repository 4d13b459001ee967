#pragma once

#include "Backend/amount.h"

#include <QList>
#include <QString>
#include <QStringList>

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
