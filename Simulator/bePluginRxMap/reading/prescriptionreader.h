#pragma once

#include "loadcontrol.h"
#include "rawprescription.h"
#include "readrequest.h"

#include <memory>

class GDALDataset;
class GdalSession;
class OGRFeature;
class OGRLayer;
struct GDALDatasetUniquePtrDeleter;

/// Reads the polygons and the likely or wanted columns of a Shapefile, GeoPackage, GeoJSON file or task data. Blocks;
/// use in the loading thread.
class PrescriptionReader {
public:
    /// Whether a column, of which name and type are known, is worth reading.
    using ColumnFilter = bool (*)(const SourceColumn &);

    PrescriptionReader(const ReadRequest &request, ColumnFilter isWorthReading, const LoadControl &control);

    /// Whether the path may be that of a prescription: a file of that name, or task data.
    static bool mayRead(const QString &path);

    /// False when the file cannot be used; the reason, without the file's name, is then in error().
    bool read(RawPrescription &map);
    /// Names of all columns of the table, without its records. False like read().
    bool readColumnNames(QStringList &names);
    QString error() const { return reason; }

private:
    bool fail(const QString &text);
    bool checkFile();
    bool isShapefile() const;
    std::unique_ptr<GDALDataset, GDALDatasetUniquePtrDeleter> openDataset(const GdalSession &session);
    bool checkTask();
    OGRLayer *chooseLayer(GDALDataset &dataset, RawPrescription &map);
    bool chooseColumns(OGRLayer &layer, RawPrescription &map);
    bool takeWantedColumns(const std::vector<SourceColumn> &table, RawPrescription &map);
    /// Lets GDAL leave the columns alone that are not read.
    static void skipOtherColumns(OGRLayer &layer, const RawPrescription &map);
    void readReference(OGRLayer &layer, RawPrescription &map);
    bool readRecords(OGRLayer &layer, RawPrescription &map);
    static void readValues(const OGRFeature &feature, RawPrescription &map);

    ReadRequest asked;
    QString path;
    QStringList wanted;
    QString wantedLayer;
    QString wantedTask;
    ColumnFilter isWorthReading;
    const LoadControl &control;
    QString reason;
};
