#pragma once

#include "loadcontrol.h"
#include "rawprescription.h"

#include <QStringList>

class OGRFeature;
class OGRLayer;

/// Reads the records of one layer, with the columns that are wanted, or else with those that may hold rates.
class RecordReader {
public:
    /// Nothing is owned. `wanted`: names or numbers; empty entries are ignored; an empty list reads every column that
    /// `judge` accepts.
    RecordReader(OGRLayer &layer, const QStringList &wanted, ColumnJudge judge, const LoadControl &control);

    /// False, with the reason in error(), when the layer cannot be used.
    bool read(RawPrescription &map);
    QString error() const { return reason; }

private:
    bool fail(const QString &text);
    bool chooseColumns(RawPrescription &map);
    bool takeWantedColumns(const std::vector<SourceColumn> &table, RawPrescription &map);
    /// Lets GDAL skip the columns that are not read.
    void skipOtherColumns(const RawPrescription &map);
    bool readRecords(RawPrescription &map);
    static void readValues(const OGRFeature &feature, RawPrescription &map);

    OGRLayer &layer;
    QStringList wanted;
    ColumnJudge judge;
    const LoadControl &control;
    QString reason;
};
