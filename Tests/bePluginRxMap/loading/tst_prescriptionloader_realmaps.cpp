#include "gdalsession.h"
#include "loadertest.h"

#include <cmath>
#include <ogrsf_frmts.h>

namespace {

/// What GDAL alone finds in a file.
struct Census {
    int records = 0;
    int polygons = 0;
    int holes = 0;
    int invalid = 0;
    int withoutRate = 0;
};

void count(const OGRPolygon &polygon, Census &census)
{
    ++census.polygons;
    census.holes += polygon.getNumInteriorRings();
}

Census censusOf(const QString &path, const QStringList &columns)
{
    const GdalSession session;
    Census census;
    const GDALDatasetUniquePtr file(GDALDataset::Open(qPrintable(path), GDAL_OF_VECTOR));
    for (const OGRFeatureUniquePtr &feature : file->GetLayer(0)) {
        ++census.records;
        bool hasRate = false;
        for (const QString &column : columns)
            hasRate = hasRate || feature->IsFieldSetAndNotNull(feature->GetFieldIndex(qPrintable(column)));
        const OGRGeometry *geometry = feature->GetGeometryRef();
        if (!hasRate || geometry == nullptr) {
            ++census.withoutRate;
            continue;
        }
        census.invalid += geometry->IsValid() ? 0 : 1;
        if (wkbFlatten(geometry->getGeometryType()) == wkbPolygon)
            count(*geometry->toPolygon(), census);
        else
            for (const OGRPolygon *part : *geometry->toMultiPolygon())
                count(*part, census);
    }
    return census;
}

} // namespace

/// Real prescriptions, compared with what GDAL alone finds in them.
class PrescriptionLoaderRealMapsTest : public LoaderTest {
    Q_OBJECT

private Q_SLOTS:
    void loadsRealMaps_data();
    void loadsRealMaps();
    void refusesParcelsForWantOfARate();
};

void PrescriptionLoaderRealMapsTest::loadsRealMaps_data()
{
    QTest::addColumn<QStringList>("named");
    QTest::addColumn<QStringList>("columns");
    const QStringList none;
    QTest::newRow("grid-clipped/grid-clipped.shp") << none << QStringList("RATE_kg_");
    QTest::newRow("cells-three-products/cells.shp") << none << QStringList({"SEED_kg_ha", "HERB_l_ha", "FERT_kg_ha"});
    QTest::newRow("cells-three-products/zones_8c.shp") << none << QStringList("RATE_KG_HA");
    QTest::newRow("cells-17k/cells.shp") << none << QStringList("RATE_l_ha");
    QTest::newRow("cells-17k/zones_4c.shp") << none << QStringList("RATE_l_ha");
    QTest::newRow("cells-17k/zones_8c.shp") << none << QStringList("RATE_l_ha");
    QTest::newRow("blocks-utm/treatment_blocks.shp") << none << QStringList("target_rat");
    QTest::newRow("blocks-utm/treatment_blocks.gpkg") << none << QStringList("target_rate");
    QTest::newRow("zones-geojson/app_map_vector.geojson") << none << QStringList("dose");
    QTest::newRow("zones-geojson/*_test.geojson") << none << QStringList("DOSE");
    QTest::newRow("parcels-holes/parcels.shp") << QStringList("AREA_HA") << QStringList("AREA_HA");
}

void PrescriptionLoaderRealMapsTest::loadsRealMaps()
{
    RXMAP_NEED_REAL_DATA();
    QFETCH(QStringList, named);
    QFETCH(QStringList, columns);
    const QString path = realData(QLatin1String(QTest::currentDataTag()));
    const Census census = censusOf(path, columns);
    const auto map = load(path, named);
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.columns, columns);
    QCOMPARE(map->report.skipped, census.withoutRate);
    QCOMPARE(map->report.repaired, census.invalid);
    if (census.invalid == 0) {
        QCOMPARE(map->report.outers, census.polygons);
        QCOMPARE(map->report.holes, census.holes);
    } else {
        QVERIFY(map->report.outers > census.polygons);
    }
    QVERIFY(census.polygons > 0);
}

void PrescriptionLoaderRealMapsTest::refusesParcelsForWantOfARate()
{
    RXMAP_NEED_REAL_DATA();
    const QString path = realData(QStringLiteral("parcels-holes/parcels.shp"));
    const auto map = load(path);
    QVERIFY2(map->report.error.startsWith(path + QStringLiteral(": has no column that looks like a rate")),
             qPrintable(map->report.error));
}

RXMAP_TEST(PrescriptionLoaderRealMapsTest, Core)
#include "tst_prescriptionloader_realmaps.moc"
