#include "wholeprescription.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>

WholePrescription::WholePrescription(const QString &path)
{
    LoadRequest request;
    request.path = path;
    request.products = {{QString(), MapHost::productGroup(1)}};
    // This file holds no rates, but many rings: any numeric column will do.
    if (path.endsWith(QLatin1String("parcels.shp")))
        request.columns = QStringList{QStringLiteral("AREA_HA")};
    const LoadReport report = backend.loadAndWait(request);
    published = qobject_cast<DbGroupRxMap *>(host.broker.getGroup(report.group, false));
    if (!report.isOk())
        reason = report.error;
    else if (published == nullptr)
        reason = QStringLiteral("%1 was not published").arg(path);
}

void WholePrescription::addRows(const QString &folder)
{
    QDirIterator files(folder, {"*.shp", "*.gpkg", "*.geojson"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        QTest::newRow(qPrintable(QDir(folder).relativeFilePath(path))) << path;
    }
}

OrvikTypes::RX_POLYGON *WholePrescription::chain() const
{
    return static_cast<OrvikTypes::RX_POLYGON *>(published->getPolygonBuffer());
}
