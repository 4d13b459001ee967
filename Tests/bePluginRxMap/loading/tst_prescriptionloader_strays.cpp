#include "loadertest.h"

/// Polygons that lie far from the rest of a map.
class PrescriptionLoaderStraysTest : public LoaderTest {
    Q_OBJECT

private Q_SLOTS:
    void leavesStraysOut_data();
    void leavesStraysOut();
    void keepsMapsOfSeveralPlaces_data();
    void keepsMapsOfSeveralPlaces();

private:
    /// Cells in a row, followed by these shapes.
    std::unique_ptr<LoadedMap> loadWith(int epsg, int cells, const QStringList &shapes);
};

std::unique_ptr<LoadedMap> PrescriptionLoaderStraysTest::loadWith(int epsg, int cells, const QStringList &shapes)
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.epsg = epsg;
    sketch.kind = "GEOMETRY";
    sketch.fields = {{"rate_kg_ha", 1.0}};
    const double x = epsg == 4326 ? 11.0 : 500000.0;
    const double y = epsg == 4326 ? 48.0 : 5300000.0;
    const double side = epsg == 4326 ? 0.001 : 100.0;
    for (int i = 0; i < cells; ++i)
        sketch.rows.append({squareText(x + side * i, y, side), {1.0 + i}});
    for (const QString &shape : shapes)
        sketch.rows.append({shape, {99.0}});
    return load(write(sketch, "a.gpkg"));
}

void PrescriptionLoaderStraysTest::leavesStraysOut_data()
{
    QTest::addColumn<int>("epsg");
    QTest::addColumn<int>("cells");
    QTest::addColumn<QStringList>("shapes");
    QTest::addColumn<QString>("records");
    const QString lost = squareText(0.0, 0.0, 0.001);
    const QString away = squareText(14.0, 48.0, 0.001);
    QTest::newRow("at 0, 0") << 4326 << 3 << QStringList{lost} << "record 3";
    QTest::newRow("at 0, 0 of a grid") << 32632 << 3 << QStringList{squareText(-0.5, -0.5, 1.0)} << "record 3";
    QTest::newRow("one cell alone beside one at 0, 0") << 4326 << 1 << QStringList{lost} << "record 1";
    QTest::newRow("most at 0, 0") << 4326 << 1 << QStringList{lost, lost, lost} << "records 1, 2, 3";
    QTest::newRow("one corner at 0, 0") << 4326 << 3 << QStringList{"POLYGON ((0 0, 11.001 48, 11 48.001, 0 0))"}
                                        << "record 3";
    QTest::newRow("200 km away") << 4326 << 3 << QStringList{away} << "record 3";
    QTest::newRow("200 km away, before the others")
        << 4326 << 0 << QStringList{away, squareText(11.0, 48.0, 0.001), squareText(11.002, 48.0, 0.001)} << "record 0";
    QTest::newRow("200 km away, between others")
        << 4326 << 1 << QStringList{away, squareText(11.002, 48.0, 0.001)} << "record 1";
    QTest::newRow("200 km from a field on the zero meridian")
        << 4326 << 0
        << QStringList{squareText(-0.0005, 51.5, 0.001), squareText(-0.0004, 51.502, 0.001),
                       squareText(3.0, 51.5, 0.001)}
        << "record 2";
    QTest::newRow("200 km from a field on the equator")
        << 4326 << 0
        << QStringList{squareText(11.0, -0.0005, 0.001), squareText(11.002, -0.0004, 0.001),
                       squareText(14.0, 0.5, 0.001)}
        << "record 2";
    QTest::newRow("beyond the earth") << 4326 << 3 << QStringList{squareText(5000.0, 48.0, 1.0)} << "record 3";
    QTest::newRow("a tenth of them") << 4326 << 18 << QStringList{away, squareText(14.01, 48.0, 0.001)}
                                     << "records 18, 19";
    QTest::newRow("a part, with its hole") << 4326 << 3
                                           << QStringList{"MULTIPOLYGON (((14 48, 14.01 48, 14 48.01, 14 48), (14.001 "
                                                          "48.001, 14.002 48.001, 14.001 48.002, 14.001 48.001)), "
                                                          "((11.004 48, 11.005 48, 11.004 48.001, 11.004 48)))"}
                                           << "record 3";
}

void PrescriptionLoaderStraysTest::leavesStraysOut()
{
    QFETCH(int, epsg);
    QFETCH(int, cells);
    QFETCH(QStringList, shapes);
    QFETCH(QString, records);
    const auto map = loadWith(epsg, cells, shapes);
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QVERIFY2(map->report.bounds.width() < 3000.0, qPrintable(QString::number(map->report.bounds.width())));
    QCOMPARE(map->report.warnings.size(), 1);
    QVERIFY2(map->report.warnings.first().contains(QStringLiteral("more than 100 km from the others"))
                 && map->report.warnings.first().contains(records),
             qPrintable(map->report.warnings.first()));
    QCOMPARE(map->report.findings.first().kind, MapFinding::Kind::StrayPolygon);
}

void PrescriptionLoaderStraysTest::keepsMapsOfSeveralPlaces_data()
{
    QTest::addColumn<int>("cells");
    QTest::addColumn<QStringList>("shapes");
    QTest::addColumn<QString>("error");
    QTest::newRow("80 km away") << 2 << QStringList{squareText(12.07, 48.0, 0.001)} << "";
    QTest::newRow("one of two 200 km away") << 1 << QStringList{squareText(14.0, 48.0, 0.001)} << "";
    QTest::newRow("half of it 200 km away")
        << 2 << QStringList{squareText(14.0, 48.0, 0.001), squareText(14.01, 48.0, 0.001)} << "";
    QTest::newRow("half of it beyond any region")
        << 2 << QStringList{squareText(50.0, 48.0, 0.001), squareText(50.01, 48.0, 0.001)} << "extends over";
}

void PrescriptionLoaderStraysTest::keepsMapsOfSeveralPlaces()
{
    QFETCH(int, cells);
    QFETCH(QStringList, shapes);
    QFETCH(QString, error);
    const auto map = loadWith(4326, cells, shapes);
    QVERIFY2(error.isEmpty() ? map->report.isOk() : map->report.error.contains(error), qPrintable(map->report.error));
    if (error.isEmpty())
        QCOMPARE(map->report.outers, cells + shapes.size());
}

RXMAP_TEST(PrescriptionLoaderStraysTest, Core)
#include "tst_prescriptionloader_strays.moc"
