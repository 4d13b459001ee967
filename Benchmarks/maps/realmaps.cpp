#include "realmaps.h"

#include "Backend/prescriptionbackend.h"
#include "paths.h"

#include "Framework/databroker.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr qint64 smallestFile = 10000;

/// The map as the back-end publishes it, for the first product.
BenchmarkMap published(const std::string &name, const QString &path)
{
    DataBroker broker;
    PrescriptionBackend backend(&broker);
    LoadRequest request;
    request.path = path;
    request.products = {{QString(), QStringLiteral("product.1")}};
    // This file has no rates but many rings: any numeric column will do.
    if (path.endsWith(QLatin1String("parcels.shp")))
        request.columns = QStringList{QStringLiteral("AREA_HA")};
    const LoadReport report = backend.loadAndWait(request);
    if (!report.isOk())
        throw std::runtime_error(report.error.toStdString());
    const auto *group = qobject_cast<DbGroupRxMap *>(broker.getGroup(report.group, false));
    BenchmarkMap map(name);
    const auto *polygon = static_cast<const OrvikTypes::RX_POLYGON *>(group->getPolygonBuffer());
    for (; polygon != nullptr; polygon = polygon->next) {
        const bool hasRate = polygon->rates != nullptr;
        map.add({polygon->vertices, polygon->vertices + polygon->vertexCount}, hasRate ? polygon->rates[0] : 0.0F,
                polygon->isHole);
    }
    map.finish();
    return map;
}

} // namespace

std::vector<NamedMap> allMaps()
{
    std::vector<NamedMap> maps = rebuildMaps();
    const QDir folder(realDataFolder());
    if (realDataFolder().isEmpty())
        return maps;
    QStringList paths;
    QDirIterator files(folder.path(), {QStringLiteral("*.shp"), QStringLiteral("*.geojson")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        if (files.fileInfo().size() >= smallestFile)
            paths.append(files.filePath());
    }
    std::sort(paths.begin(), paths.end());
    for (const QString &path : qAsConst(paths)) {
        const std::string name = folder.relativeFilePath(path).section(QLatin1Char('.'), 0, -2).toStdString();
        maps.push_back({name, [name, path] { return published(name, path); }});
    }
    return maps;
}
