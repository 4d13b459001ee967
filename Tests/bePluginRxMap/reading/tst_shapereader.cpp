#include "readertest.h"

#include <cmath>
#include <cstring>

class ShapeReaderTest : public ReaderTest {
    Q_OBJECT

private Q_SLOTS:
    void readsPartsHolesAndHeights();
    void straightensCurves();
    void countsRecordsWithoutArea();
    void countsRecordsWithCoordinatesThatAreNotFinite();
    void countsRingsOfFewerThanThreePlaces();
};

void ShapeReaderTest::readsPartsHolesAndHeights()
{
    QVERIFY(read(fixture("two-parts.geojson")));
    QCOMPARE(map.records, 2);
    QCOMPARE(map.rings.size(), size_t(4));
    QVERIFY(!map.rings[0].isHole && !map.rings[1].isHole && map.rings[2].isHole && !map.rings[3].isHole);
    QCOMPARE(map.rings[2].record, 0);
    // Without the closing vertex.
    QCOMPARE(map.rings[0].count, size_t(4));
    QCOMPARE(map.rings[1].first, size_t(4));
    QCOMPARE(map.xs[map.rings[1].first], 500100.0);
    QCOMPARE(map.ys[map.rings[2].first], 5500010.0);
}

void ShapeReaderTest::straightensCurves()
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.kind = "CURVEPOLYGON";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {
        {QStringLiteral("CURVEPOLYGON (CIRCULARSTRING (11 48, 11.001 48.001, 11.002 48, 11.001 47.999, 11 48))"),
         {5.0}}};
    QVERIFY(sketch.write(path("curve.gpkg")));
    QVERIFY2(read(path("curve.gpkg")), qPrintable(error));
    QCOMPARE(map.rings.size(), size_t(1));
    QVERIFY(map.rings[0].count > 50);
    for (size_t i = 0; i < map.xs.size(); ++i)
        QVERIFY(std::fabs(std::hypot(map.xs[i] - 11.001, map.ys[i] - 48.0) - 0.001) < 1e-9);
}

void ShapeReaderTest::countsRecordsWithoutArea()
{
    LayerSketch sketch;
    sketch.driver = "GeoJSON";
    sketch.kind = "GEOMETRY";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {
        {squareText(11.0, 48.0, 0.001), {1.0}},
        {QString(), {2.0}},
        {QStringLiteral("POLYGON EMPTY"), {3.0}},
        {QStringLiteral("POINT (11 48)"), {4.0}},
        {QStringLiteral("LINESTRING (11 48, 12 48)"), {5.0}},
        {QStringLiteral("GEOMETRYCOLLECTION (POINT (11 48), %1)").arg(squareText(11.1, 48.0, 0.001)), {6.0}}};
    QVERIFY(sketch.write(path("a.geojson")));
    QVERIFY2(read(path("a.geojson")), qPrintable(error));
    QCOMPARE(map.records, 6);
    QCOMPARE(map.rings.size(), size_t(2));
    QCOMPARE(map.rings[1].record, 5);
    QCOMPARE(map.emptyRecords.size(), size_t(2));
    QCOMPARE(map.otherRecords.size(), size_t(2));
}

void ShapeReaderTest::countsRecordsWithCoordinatesThatAreNotFinite()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < 3; ++i)
        sketch.rows.append({squareText(11.0 + 0.01 * i, 48.0, 0.001), {1.0 + i}});
    QVERIFY(sketch.write(path("a.shp")));
    QFile shapes(path("a.shp"));
    QVERIFY(shapes.open(QIODevice::ReadWrite));
    QByteArray bytes = shapes.readAll();
    constexpr int recordSize = 136;
    constexpr int firstVertex = 100 + 8 + 48;
    const double none = std::nan("");
    const double endless = HUGE_VAL;
    memcpy(bytes.data() + firstVertex, &none, sizeof none);
    memcpy(bytes.data() + firstVertex + recordSize + 24, &endless, sizeof endless);
    shapes.seek(0);
    shapes.write(bytes);
    shapes.close();
    QVERIFY2(read(path("a.shp")), qPrintable(error));
    QCOMPARE(map.notFiniteRecords.size(), size_t(2));
    QCOMPARE(map.rings.size(), size_t(1));
    QCOMPARE(map.rings[0].record, 2);
    QCOMPARE(map.xs.size(), size_t(4));
}

void ShapeReaderTest::countsRingsOfFewerThanThreePlaces()
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {
        {QStringLiteral("POLYGON ((11 48, 11.1 48, 11 48))"), {1.0}},
        {QStringLiteral("POLYGON ((11 48, 11.1 48, 11.1 48.1, 11 48), (11.05 48.01, 11.06 48.01, 11.05 48.01))"),
         {2.0}}};
    QVERIFY(sketch.write(path("a.gpkg")));
    QVERIFY2(read(path("a.gpkg")), qPrintable(error));
    QCOMPARE(map.droppedRings.size(), size_t(2));
    QCOMPARE(map.emptyRecords.size(), size_t(1));
    QCOMPARE(map.rings.size(), size_t(1));
    QCOMPARE(map.rings[0].record, 1);
}

RXMAP_TEST(ShapeReaderTest, Core)
#include "tst_shapereader.moc"
