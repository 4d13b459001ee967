// Loading a prescription until it is published, beside GDAL's own reading of the same file.

#include "Backend/prescriptionbackend.h"
#include "cellfile.h"
#include "gdalsession.h"
#include "gridfile.h"
#include "paths.h"
#include "sidebyside.h"

#include "Framework/databroker.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>
#include <QXmlStreamReader>
#include <QtEndian>

#include <algorithm>
#include <memory>
#include <ogrsf_frmts.h>
#include <stdexcept>

namespace {

/// The least that a reader of all features must do: read each geometry, and each field by its type.
double readWithGdal(const QString &path)
{
    const GdalSession session;
    const char *const formats[] = {"ESRI Shapefile", nullptr};
    const GDALDatasetUniquePtr file(
        GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY, formats));
    OGRLayer *layer = file->GetLayer(0);
    double sum = 0.0;
    while (const OGRFeatureUniquePtr feature{layer->GetNextFeature()}) {
        benchmark::DoNotOptimize(feature->GetGeometryRef());
        for (int i = 0; i < feature->GetFieldCount(); ++i) {
            if (feature->GetFieldDefnRef(i)->GetType() == OFTString)
                benchmark::DoNotOptimize(feature->GetFieldAsString(i));
            else
                sum += feature->GetFieldAsDouble(i);
        }
    }
    return sum;
}

/// A host that loads the file into an empty broker, and watches how the user-interface thread fares meanwhile.
class Loading {
public:
    explicit Loading(const QString &file)
    {
        request.path = file;
        for (int i = 1; i <= 3; ++i)
            request.products.append({QString(), QStringLiteral("product%1").arg(i)});
        tick.setTimerType(Qt::PreciseTimer);
        QObject::connect(&tick, &QTimer::timeout, [this] { noteAnswer(); });
    }

    /// Leaves an empty broker.
    void reset()
    {
        backend.reset();
        broker = std::make_unique<DataBroker>();
        backend = std::make_unique<PrescriptionBackend>(broker.get());
        QObject::connect(backend.get(), &PrescriptionBackend::progress, [this] { ++progressReports; });
    }

    void load()
    {
        progressReports = 0;
        sinceAnswer.start();
        // Watching more often would take a hundredth of the load's time.
        tick.start(5);
        const LoadReport report = backend->loadAndWait(request);
        tick.stop();
        noteAnswer();
        if (!report.isOk())
            throw std::runtime_error(report.error.toStdString());
        polygons = report.polygons;
    }

    int polygons = 0;
    int progressReports = 0; ///< Of the last load.
    /// The longest time without an answer over all loads, seconds.
    double longestPause = 0.0;

private:
    void noteAnswer()
    {
        longestPause = std::max(longestPause, 1e-9 * static_cast<double>(sinceAnswer.nsecsElapsed()));
        sinceAnswer.start();
    }

    LoadRequest request;
    std::unique_ptr<DataBroker> broker;
    std::unique_ptr<PrescriptionBackend> backend;
    QTimer tick;
    QElapsedTimer sinceAnswer;
};

void load(benchmark::State &state, const QString &path)
{
    Loading loading(path);
    compareSideBySide(
        state, "over_gdal", [&loading] { loading.load(); }, [&path] { benchmark::DoNotOptimize(readWithGdal(path)); },
        [&loading] { loading.reset(); });
    state.counters["polygons"] = loading.polygons;
    state.counters["progress_reports"] = loading.progressReports;
    state.counters["longest_pause_seconds"] = loading.longestPause;
}

void loadCells(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("cells.shp"));
    writeCellFile(path, 317);
    load(state, path);
}

/// The least that a reader of task data must do: read each attribute of the XML, and each number of the binary file.
double readPlainly(const QString &folder)
{
    QFile tasks(folder + QStringLiteral("/TASKDATA.XML"));
    tasks.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&tasks);
    while (!xml.atEnd()) {
        xml.readNext();
        for (const QXmlStreamAttribute &attribute : xml.attributes())
            benchmark::DoNotOptimize(attribute.value().toDouble());
    }
    QFile grid(folder + QStringLiteral("/GRD00001.BIN"));
    grid.open(QIODevice::ReadOnly);
    const QByteArray bytes = grid.readAll();
    std::vector<double> rates(static_cast<size_t>(bytes.size()) / sizeof(qint32));
    for (size_t i = 0; i < rates.size(); ++i)
        rates[i] = 0.01 * qFromLittleEndian<qint32>(bytes.constData() + i * sizeof(qint32));
    return rates.back();
}

void loadGrid(benchmark::State &state, GridContent content)
{
    const QTemporaryDir folder;
    writeGridFile(folder.path(), content);
    Loading loading(folder.path());
    compareSideBySide(
        state, "over_read", [&loading] { loading.load(); },
        [&folder] { benchmark::DoNotOptimize(readPlainly(folder.path())); }, [&loading] { loading.reset(); });
    state.counters["polygons"] = loading.polygons;
}

/// Real prescriptions, where they are present.
const bool areRealMapsAdded = [] {
    for (const char *map : {"cells-17k/cells", "cells-three-products/cells"}) {
        const QString path = realDataFolder() + QStringLiteral("/%1.shp").arg(QLatin1String(map));
        if (QFileInfo::exists(path)) {
            benchmark::RegisterBenchmark((std::string("Load/") + map).c_str(), load, path)
                ->UseManualTime()
                ->Iterations(15);
        }
    }
    return true;
}();

} // namespace

BENCHMARK_CAPTURE(loadGrid, zones, GridContent::Zones)->Name("LoadGrid/250k")->UseManualTime()->Iterations(15);
BENCHMARK_CAPTURE(loadGrid, different, GridContent::Different)
    ->Name("LoadGrid/250k-different")
    ->UseManualTime()
    ->Iterations(15);
BENCHMARK(loadCells)->Name("Load/cells-100k")->UseManualTime()->Iterations(15);
