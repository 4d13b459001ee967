#include "loadertest.h"

/// Files that cannot be loaded, and the reason given.
class PrescriptionLoaderRefusalsTest : public LoaderTest {
    Q_OBJECT

private Q_SLOTS:
    void saysWhyItCannotLoad_data();
    void saysWhyItCannotLoad();
    void saysThatMemoryRanOut();
    void refusesColumnsThatCanFeedNothing();
    void refusesATruncatedShapefile();
    void refusesShapefilesWhosePartsDoNotFit();
    void countsWhatItSkipsButRefusesWhenNothingIsLeft();
    void namesTheRecordOfATangleThatItLeavesOut();
};

void PrescriptionLoaderRefusalsTest::saysWhyItCannotLoad_data()
{
    QTest::addColumn<QString>("geometry");
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QVariant>("rate");
    QTest::addColumn<QString>("reason");
    const QString square = squareText(11.0, 48.0, 0.001);
    QTest::newRow("points") << "POINT (11 48)" << QByteArray("POINT") << QVariant(1.0) << "holds no polygons";
    QTest::newRow("points in a layer of any kind")
        << "POINT (11 48)" << QByteArray("GEOMETRY") << QVariant(1.0) << "points or lines";
    QTest::newRow("no geometry") << "" << QByteArray("POLYGON") << QVariant(1.0) << "holds no polygon";
    QTest::newRow("a ring of two points")
        << "POLYGON ((11 48, 12 48, 11 48))" << QByteArray("POLYGON") << QVariant(1.0) << "holds no polygon";
    QTest::newRow("a ring on one line") << "POLYGON ((11 48, 11.001 48, 11.002 48, 11 48))" << QByteArray("POLYGON")
                                        << QVariant(1.0) << "encloses anything";
    QTest::newRow("nothing but null rates")
        << square << QByteArray("POLYGON") << QVariant() << "holds no rates: no record has one in rate";
    QTest::newRow("half the globe") << squareText(-90.0, -80.0, 150.0) << QByteArray("POLYGON") << QVariant(1.0)
                                    << "extends over";
    QTest::newRow("around the globe") << "POLYGON ((-180 48, 180 48, 180 60, -180 60, -180 48))"
                                      << QByteArray("POLYGON") << QVariant(1.0) << "extends over 1334 km";
    QTest::newRow("beyond the globe") << squareText(5000.0, 48.0, 1.0) << QByteArray("POLYGON") << QVariant(1.0)
                                      << "no longitudes and latitudes";
}

void PrescriptionLoaderRefusalsTest::saysWhyItCannotLoad()
{
    QFETCH(QString, geometry);
    QFETCH(QByteArray, kind);
    QFETCH(QVariant, rate);
    QFETCH(QString, reason);
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.kind = kind.constData();
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{geometry, {rate}}};
    const QString path = write(sketch, "a.gpkg");
    const auto map = load(path);
    QVERIFY(!map->report.isOk());
    QVERIFY(map->chain == nullptr && map->lookup == nullptr);
    QVERIFY2(map->report.error.startsWith(path + QStringLiteral(": ")), qPrintable(map->report.error));
    QVERIFY2(map->report.error.contains(reason), qPrintable(map->report.error));
    QVERIFY(!map->report.error.contains(QLatin1Char('\n')));
}

void PrescriptionLoaderRefusalsTest::saysThatMemoryRanOut()
{
    const QString path = fixture("bow-tie.geojson");
    LoadControl control;
    control.progress = [](double) { throw std::bad_alloc(); };
    const auto map = PrescriptionLoader(usualRequest(path), {}, control).load();
    QCOMPARE(map->report.error, path + QStringLiteral(": cannot be loaded, there is not enough memory"));
}

void PrescriptionLoaderRefusalsTest::refusesColumnsThatCanFeedNothing()
{
    const QString path = fixture("three-zones.geojson");
    QCOMPARE(load(path, {"", ""})->report.error, path + QStringLiteral(": no column is named for any product"));
    const QString error = load(path, {"SEED_K_HA", "LIME"})->report.error;
    QVERIFY2(error.contains(QLatin1String("\"LIME\"")), qPrintable(error));
}

void PrescriptionLoaderRefusalsTest::refusesATruncatedShapefile()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < 5; ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * i, 48.0, 0.001), {1.0 + i}});
    const QString path = write(sketch, "a.shp");
    QFile shapes(path);
    QVERIFY(shapes.resize(shapes.size() - 50));
    QVERIFY2(load(path)->report.error.contains(QStringLiteral("is cut short")), qPrintable(load(path)->report.error));
    // The same with a header that does not reveal it.
    QVERIFY(shapes.open(QIODevice::ReadWrite));
    const qint64 words = shapes.size() / 2;
    shapes.seek(24);
    const char length[] = {static_cast<char>(words >> 24), static_cast<char>(words >> 16),
                           static_cast<char>(words >> 8), static_cast<char>(words)};
    shapes.write(length, 4);
    shapes.close();
    QVERIFY(!load(path)->report.isOk());
    QVERIFY(!load(path)->report.error.contains(QLatin1Char('\n')));
}

void PrescriptionLoaderRefusalsTest::refusesShapefilesWhosePartsDoNotFit()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < 5; ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * i, 48.0, 0.001), {1.0 + i}});
    const QString path = write(sketch, "a.shp");
    LayerSketch fewer = sketch;
    fewer.rows = sketch.rows.mid(0, 2);
    const QString other = write(fewer, "b.shp");
    const QString table = path.left(path.size() - 3) + QStringLiteral("dbf");
    QVERIFY(QFile::remove(table));
    QVERIFY2(load(path)->report.error.contains(QStringLiteral("no .dbf")), qPrintable(load(path)->report.error));
    QVERIFY(QFile::copy(other.left(other.size() - 3) + QStringLiteral("dbf"), table));
    QVERIFY2(load(path)->report.error.contains(QStringLiteral("2 rows for 5 shapes")),
             qPrintable(load(path)->report.error));
}

void PrescriptionLoaderRefusalsTest::countsWhatItSkipsButRefusesWhenNothingIsLeft()
{
    LayerSketch sketch;
    sketch.driver = "GeoJSON";
    sketch.kind = "GEOMETRY";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0}},
                   {QString(), {2.0}},
                   {QStringLiteral("POINT (11 48)"), {3.0}},
                   {QStringLiteral("POLYGON ((11 48, 12 48, 11 48))"), {4.0}},
                   {squareText(11.001, 48.0, 0.001), {QVariant()}}};
    const auto map = load(write(sketch, "a.geojson"));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.outers, 1);
    QCOMPARE(map->report.skipped, 4);
    const QString warnings = map->report.warnings.join(QLatin1Char('\n'));
    for (const char *text : {"2 records without geometry were skipped", "1 record that is no polygon was skipped",
                             "1 record without a rate was skipped", "1 ring that encloses nothing was left out"})
        QVERIFY2(warnings.contains(QLatin1String(text)), qPrintable(warnings));
    sketch.rows.removeFirst();
    QVERIFY(!load(write(sketch, "a.geojson"))->report.isOk());
}

void PrescriptionLoaderRefusalsTest::namesTheRecordOfATangleThatItLeavesOut()
{
    const QString tangle = scribbleText(2500);
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0}}, {tangle, {2.0}}};
    const auto map = load(write(sketch, "a.shp"));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.outers, 1);
    QCOMPARE(map->report.skipped, 1);
    QCOMPARE(map->report.warnings.size(), 1);
    QVERIFY2(map->report.warnings.first().contains(QStringLiteral("a.shp: record 1 was left out, its rings cross")),
             qPrintable(map->report.warnings.first()));
    sketch.rows.removeFirst();
    const QString error = load(write(sketch, "a.shp"))->report.error;
    QVERIFY2(error.contains(QStringLiteral("a.shp: record 0 was left out, its rings cross")), qPrintable(error));
}

RXMAP_TEST(PrescriptionLoaderRefusalsTest, Core)
#include "tst_prescriptionloader_refusals.moc"
