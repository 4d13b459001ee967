#pragma once

#include "recordwriter.h"

class GDALDataset;
class OGRGeometry;
class OGRLayer;

/// A record as a GeoPackage: a layer "points" of the steps, and a layer "strips" of what the implement passed over in
/// those that it worked in, both with the values of the step.
class GeoPackageRecord : public RecordWriter {
public:
    /// The reason, without the file's name, when it cannot be written.
    static Result<std::shared_ptr<RecordWriter>> create(const QString &path, int products, const QPointF &origin);
    ~GeoPackageRecord() override;

protected:
    QString add(const RecordEntry &entry) override;
    QString keep() override;
    void close() override;

private:
    explicit GeoPackageRecord(const QString &path);
    QString begin(int products, const QPointF &origin);
    bool addLayer(const char *name, int geometry, int products, const QString &plane, OGRLayer *&layer);
    static bool writeStep(OGRLayer *layer, OGRGeometry &geometry, const RecordEntry &entry);

    GDALDataset *file = nullptr;
    OGRLayer *points = nullptr;
    OGRLayer *strips = nullptr;
};
