#pragma once

#include "loadcontrol.h"
#include "sourcemap.h"

#include <QStringList>

#include <memory>

class GDALDataset;
class GdalSession;
class OGRFeature;
class OGRLayer;
struct GDALDatasetUniquePtrDeleter;

/// Reads the polygons and the likely or wanted columns of a Shapefile, GeoPackage or GeoJSON file. Blocks; use
/// in the loading thread.
class PrescriptionReader {
public:
    /// `columns`: the names wanted; empty entries are ignored, an empty list reads every column that may be a rate.
    PrescriptionReader(const QString &path, const QStringList &columns, const LoadControl &control);

    /// False when the file cannot be used; the reason, without the file's name, is then in error().
    bool read(SourceMap &map);
    /// Names of all columns of the table, without its records. False like read().
    bool readColumnNames(QStringList &names);
    QString error() const { return reason; }

private:
    bool fail(const QString &text);
    bool checkFile();
    bool isShapefile() const;
    std::unique_ptr<GDALDataset, GDALDatasetUniquePtrDeleter> openDataset(const GdalSession &session);
    OGRLayer *chooseLayer(GDALDataset &dataset, SourceMap &map);
    bool chooseColumns(OGRLayer &layer, SourceMap &map);
    bool takeWantedColumns(const std::vector<SourceColumn> &table, SourceMap &map);
    /// Lets GDAL leave the columns alone that are not read.
    static void skipOtherColumns(OGRLayer &layer, const SourceMap &map);
    void readReference(OGRLayer &layer, SourceMap &map);
    bool readRecords(OGRLayer &layer, SourceMap &map);
    void readValues(const OGRFeature &feature, SourceMap &map);

    QString path;
    QStringList wanted;
    const LoadControl &control;
    QString reason;
};
