#pragma once

#include "Backend/columnproduct.h"
#include "Backend/ratesource.h"

#include "Framework/rxpolygon.h"
#include "bePluginRxMap/bepluginrxmapglobal.h"

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QPointF>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

/// A column of a file that may hold rates. All its rates are in the file's own unit.
struct SurveyedColumn {
    /// How LoadRequest::columns names it: its name, or "#" and its number where the name stands for another column.
    QString key;
    QString name;
    /// "lb/ac"; empty where the file does not tell it.
    QString unit;
    RateSource::UnitFrom unitFrom = RateSource::UnitFrom::Assumed;
    double leastRate = 0.0;
    double greatestRate = 0.0;
    /// The share of the records with polygons that has no rate in this column, 0 to 1.
    double shareWithoutRate = 0.0;
    /// Whether its name says that it holds rates; else it is a guess.
    bool isSure = false;
    /// Its name says that it holds amounts per polygon; it feeds no product unasked.
    bool isTotal = false;
    /// Number from 1 of the product that it feeds unasked; 0 for none.
    int product = 0;
    /// The product that it makes where products are made from columns.
    ColumnProduct made = {};
    /// For each record; not a number where it has none.
    QVector<float> rates;
};

/// The rates of a surveyed column in the classes of a legend.
struct SurveyedClasses {
    /// As in LoadReport.
    QList<OrvikTypes::RX_RATECOLOR> legend;
    bool hasSingleRates = false;
    /// For each record the place of its class in `legend`.
    QByteArray ofRecords;
};

/// What a file holds, for the operator to choose from.
struct SurveyReport {
    /// A survey is drawn into a square with sides of this many pixels.
    static constexpr int pictureSide = 440;

    /// One line that names the file and the reason; empty on success.
    QString error;
    QString path;
    /// As in LoadReport.
    QString layer;
    QString task;
    QStringList layers;
    QStringList tasks;
    /// If the file is an archive with several prescriptions: the path of each. isOk() is then false.
    QStringList archived;
    /// All columns of the table.
    QStringList columnNames;
    /// The columns that feed products unasked, in product order, then the others in table order.
    QList<SurveyedColumn> columns;
    /// As in LoadReport.
    QList<ColumnProduct> columnProducts;
    /// Why no product can be fed unasked, in one line that names the file; empty when one can.
    QString lackOfFeeds;
    /// As in LoadReport, of the plane that a load would take.
    QPointF origin;
    int polygons = 0;
    /// The record of each polygon.
    QVector<int> records;
    /// The number of grid cells that each record stands for; empty where that is one each.
    QVector<int> cells;
    /// A picture of the map, north up: for each pixel, line by line, the record that is seen there, -1 for none.
    QSize pictureSize;
    QVector<int> recordAtPixel;

    bool isOk() const { return error.isEmpty(); }
    /// The classes that a load makes of a column (by place), for a product with that display factor. `factor` takes the
    /// column's rates to the product's base unit, in which the limits are.
    BEPLUGINRXMAP_EXPORT SurveyedClasses classesOf(int column, double factor, double displayFactor) const;
};

Q_DECLARE_METATYPE(SurveyReport)
