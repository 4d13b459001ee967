// Writing the record of a drive beside GDAL's own bare writing of the same features.

#include "cellfile.h"
#include "drivingbench.h"
#include "recorder.h"
#include "sidebyside.h"
#include "vehicle.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <ogrsf_frmts.h>
#include <stdexcept>
#include <vector>

namespace {

constexpr int steps = 6000; // Ten minutes.

/// The steps of a drive as a recorder takes them.
std::vector<RecordEntry> entries(DrivingBench &bench)
{
    std::vector<RecordEntry> all;
    bench.begin(3.0);
    for (int i = 0; i < steps; ++i) {
        bench.simulated().step();
        all.push_back(Recorder::entryOf(bench.simulated()));
    }
    return all;
}

void record(const QString &path, const QPointF &origin, const std::vector<RecordEntry> &all)
{
    const auto writer = RecordWriter::open(path, DrivingBench::products, origin);
    if (!writer.isOk())
        throw std::runtime_error(writer.error.toStdString());
    for (const RecordEntry &entry : all)
        writer.value->write(entry);
    writer.value->finish();
    if (!writer.value->error().isEmpty())
        throw std::runtime_error(writer.value->error().toStdString());
}

/// The features of a record, and their layers' fields.
class RecordedFeatures {
public:
    explicit RecordedFeatures(const QString &path)
        : file(GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR))
    {
        for (OGRLayer *layer : file->GetLayers()) {
            for (OGRFeatureUniquePtr &feature : *layer) {
                feature->SetFID(OGRNullFID);
                features[layer == file->GetLayer(0) ? 0 : 1].push_back(std::move(feature));
            }
        }
    }

    /// All in one transaction.
    void write(const QString &path) const
    {
        GDALDriver *driver = GetGDALDriverManager()->GetDriverByName("GPKG");
        const GDALDatasetUniquePtr copy(driver->Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
        std::vector<OGRLayer *> layers;
        for (OGRLayer *layer : file->GetLayers()) {
            layers.push_back(
                copy->CreateLayer(layer->GetName(), layer->GetSpatialRef(), layer->GetGeomType(), nullptr));
            for (int i = 0; i < layer->GetLayerDefn()->GetFieldCount(); ++i)
                layers.back()->CreateField(layer->GetLayerDefn()->GetFieldDefn(i));
        }
        copy->StartTransaction();
        for (std::size_t layer = 0; layer < layers.size(); ++layer) {
            for (const OGRFeatureUniquePtr &feature : features[layer]) {
                // With the layer's own definition, as anybody who makes features does.
                OGRFeature own(layers[layer]->GetLayerDefn());
                own.SetFrom(feature.get());
                if (layers[layer]->CreateFeature(&own) != OGRERR_NONE)
                    throw std::runtime_error("a feature cannot be written");
            }
        }
        copy->CommitTransaction();
    }

private:
    GDALDatasetUniquePtr file;
    std::vector<OGRFeatureUniquePtr> features[2];
};

void writing(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString map = folder.filePath(QStringLiteral("cells.shp"));
    writeCellFile(map, 63);
    DrivingBench bench(map);
    const std::vector<RecordEntry> all = entries(bench);
    const QString path = folder.filePath(QStringLiteral("record.gpkg"));
    const QString copyPath = folder.filePath(QStringLiteral("copy.gpkg"));
    record(path, bench.origin(), all);
    const RecordedFeatures features(path);
    const QString againPath = folder.filePath(QStringLiteral("again.gpkg"));
    compareSideBySide(
        state, "over_gdal", [&] { record(againPath, bench.origin(), all); }, [&] { features.write(copyPath); },
        [&] {
            QFile::remove(againPath);
            QFile::remove(copyPath);
        });
    state.counters["step_seconds"] = state.counters["seconds"] / steps;
}

} // namespace

BENCHMARK(writing)->Name("Record")->UseManualTime()->Iterations(20);
