#pragma once

#include "Backend/loadrequest.h"
#include "planering.h"
#include "rawprescription.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

/// Which columns of a prescription feed which products, and the rates that these then take.
class ColumnChoice {
public:
    /// Takes the columns that the request names, or the most likely ones. `polygons`: those of the map, which say how
    /// large its records are. `source` is not owned and outlives this.
    ColumnChoice(const LoadRequest &request, const RawPrescription &source, const std::vector<PlanePolygon> &polygons);

    bool isOk() const { return reason.isEmpty(); }
    /// Why the columns cannot feed any product, without the file's name; empty when they can.
    const QString &error() const { return reason; }
    /// What was left out of them, without the file's name.
    const QStringList &warnings() const { return remarks; }

    /// Names in mapping order.
    const QStringList &columns() const { return names; }
    /// One for each column.
    const QStringList &rateCalNames() const { return channels; }
    /// One for each column, base units.
    const QList<double> &defaultRates() const { return defaults; }
    /// One for each column for each record, record by record; not a number for none, or for one that is too large to be
    /// published.
    std::vector<float> rates() const;

private:
    void chooseRequested(const LoadRequest &request);
    void chooseLikely(const LoadRequest &request, const std::vector<PlanePolygon> &polygons);
    void choose(int place, const LoadRequest &request, int product);
    void checkRates(const SourceColumn &column);

    const RawPrescription &source;
    std::vector<int> places; ///< In source.columns.
    QStringList names;
    QStringList channels;
    QList<double> defaults;
    QString reason;
    QStringList remarks;
};
