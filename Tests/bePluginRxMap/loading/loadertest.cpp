#include "loadertest.h"

#include <cmath>

using OrvikTypes::RX_POLYGON;

std::unique_ptr<LoadedMap> LoaderTest::load(const LoadRequest &request, const std::vector<LocalPlane> &planes)
{
    const LoadControl control;
    return PrescriptionLoader(request, planes, control).load();
}

std::unique_ptr<LoadedMap> LoaderTest::load(const QString &path, const QStringList &columns)
{
    return load(requestFor(path, columns));
}

LoadRequest LoaderTest::usualRequest(const QString &path)
{
    using Info = DbGroupProductGroupInfo;
    LoadRequest request = requestFor(path);
    request.products[0].kind = Info::CountRate;
    request.products[1].kind = Info::WeightRate;
    request.products[2].kind = Info::VolumeRate;
    return request;
}

double LoaderTest::rateAt(const LoadedMap &map, double x, double y, int mapping)
{
    const RateLookup::Answer answer = map.lookup->ratesAt(x, y);
    return answer.rates.isEmpty() ? std::nan("") : double(answer.rates.at(mapping));
}

double LoaderTest::areaOf(const LoadedMap &map)
{
    double area = 0.0;
    for (const RX_POLYGON *record = map.chain->first(); record != nullptr; record = record->next)
        area += record->isHole ? -record->area : record->area;
    return area;
}

QString LoaderTest::write(const LayerSketch &sketch, const char *name)
{
    const QString path = folder.filePath(QLatin1String(name));
    for (const char *extension : {"shp", "shx", "dbf", "prj", "cpg"})
        QFile::remove(path.left(path.size() - 3) + QLatin1String(extension));
    QFile::remove(path);
    return sketch.write(path) ? path : QString();
}
