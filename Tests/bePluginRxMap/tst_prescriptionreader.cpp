#include "fixture.h"
#include "gdalsession.h"
#include "layerwriter.h"
#include "prescriptionreader.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <cmath>
#include <ogrsf_frmts.h>
#include <sys/stat.h>

class PrescriptionReaderTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsEachFormat_data();
    void readsEachFormat();
    void readsPartsHolesAndHeights();
    void straightensCurves();
    void readsTextAsNumbersInTheCLocale();
    void readsColumnNamesInTheTablesOwnCodePage();
    void takesNegativeAndEndlessNumbersForNoRate();
    void takesANegativeZeroForZero();
    void countsRecordsWithoutArea();
    void countsRecordsWithCoordinatesThatAreNotFinite();
    void countsRingsOfFewerThanThreePlaces();
    void readsOnlyTheWantedColumns();
    void readsAColumnThatSharesItsName();
    void readsShapesBesideAColumnOfTheirName();
    void refusesAColumnThatIsNotThere();
    void refusesAColumnThatHoldsNoNumbers_data();
    void refusesAColumnThatHoldsNoNumbers();
    void leavesTrueAndFalseOutOfTheLikelyColumns();
    void takesTheFirstLayerWithPolygons();
    void refusesFilesThatItCannotRead_data();
    void refusesFilesThatItCannotRead();
    void refusesWhatIsNoPlainFile_data();
    void refusesWhatIsNoPlainFile();
    void endsWhenItIsCancelled();
    void reportsProgress();

private:
    QString path(const char *name) const { return folder->filePath(QLatin1String(name)); }
    bool read(const QString &file, const QStringList &columns = {});

    QScopedPointer<QTemporaryDir> folder;
    SourceMap map;
    QString error;
};

void PrescriptionReaderTest::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
    map = SourceMap();
    error.clear();
}

bool PrescriptionReaderTest::read(const QString &file, const QStringList &columns)
{
    const LoadControl control;
    PrescriptionReader reader(file, columns, control);
    const bool isRead = reader.read(map);
    error = reader.error();
    return isRead;
}

void PrescriptionReaderTest::readsEachFormat_data()
{
    QTest::addColumn<QByteArray>("driver");
    QTest::addColumn<QString>("name");
    QTest::newRow("Shapefile") << QByteArray("ESRI Shapefile") << "a.shp";
    QTest::newRow("Shapefile in capitals") << QByteArray("ESRI Shapefile") << "a.SHP";
    QTest::newRow("GeoPackage") << QByteArray("GPKG") << "a.gpkg";
    QTest::newRow("GeoJSON") << QByteArray("GeoJSON") << "a.geojson";
    QTest::newRow("GeoJSON under another name") << QByteArray("GeoJSON") << "a.json";
}

void PrescriptionReaderTest::readsEachFormat()
{
    QFETCH(QByteArray, driver);
    QFETCH(QString, name);
    LayerSketch sketch;
    sketch.driver = driver.constData();
    sketch.fields = {{"rate", 1.0}, {"product", QStringLiteral("a")}, {"dose", 1}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {12.5, QStringLiteral("NH3"), 3}},
                   {squareText(11.001, 48.0, 0.001), {QVariant(), QStringLiteral("NH3"), 4}}};
    QVERIFY(sketch.write(folder->filePath(name.toLower())));
    if (name != name.toLower()) {
        for (const char *extension : {"shp", "shx", "dbf", "prj"})
            QVERIFY(QFile::rename(path("a.") + QLatin1String(extension),
                                  path("a.") + QString::fromLatin1(extension).toUpper()));
    }
    QVERIFY2(read(folder->filePath(name)), qPrintable(error));
    QCOMPARE(map.records, 2);
    QCOMPARE(map.rings.size(), size_t(2));
    QCOMPARE(map.rings[1].record, 1);
    QCOMPARE(map.columns.size(), size_t(2));
    QCOMPARE(map.columns[0].name, QStringLiteral("rate"));
    QCOMPARE(map.columns[0].values[0], 12.5);
    QVERIFY(std::isnan(map.columns[0].values[1]));
    QVERIFY(map.columns[1].isInteger);
    QCOMPARE(map.columns[1].values[1], 4.0);
    QCOMPARE(map.columnNames, QStringList({QStringLiteral("rate"), QStringLiteral("product"), QStringLiteral("dose")}));
    QVERIFY(map.reference != nullptr);
}

void PrescriptionReaderTest::readsPartsHolesAndHeights()
{
    QVERIFY(read(fixture("two-parts.geojson")));
    QCOMPARE(map.records, 2);
    QCOMPARE(map.rings.size(), size_t(4));
    QVERIFY(!map.rings[0].isHole && !map.rings[1].isHole && map.rings[2].isHole && !map.rings[3].isHole);
    QCOMPARE(map.rings[2].record, 0);
    QCOMPARE(map.xs[map.rings[1].first], 500100.0);
    QCOMPARE(map.ys[map.rings[2].first], 5500010.0);
}

void PrescriptionReaderTest::straightensCurves()
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

void PrescriptionReaderTest::readsTextAsNumbersInTheCLocale()
{
    const QByteArray before = setlocale(LC_ALL, nullptr);
    setlocale(LC_ALL, "de_DE.UTF-8");
    QLocale::setDefault(QLocale(QLocale::German));
    const bool isRead = read(fixture("text-rates.geojson"));
    setlocale(LC_ALL, before.constData());
    QLocale::setDefault(QLocale::c());
    QVERIFY(isRead);
    QCOMPARE(map.columns.size(), size_t(1));
    const SourceColumn &column = map.columns[0];
    QVERIFY(column.isText);
    QCOMPARE(column.values[0], 12.5);
    QCOMPARE(column.values[1], 7.0);
    QVERIFY(std::isnan(column.values[2]));
    QVERIFY(std::isnan(column.values[3]));
    QCOMPARE(column.unreadable, 1);
}

void PrescriptionReaderTest::readsColumnNamesInTheTablesOwnCodePage()
{
    LayerSketch sketch;
    sketch.fields = {{"D_ngung", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {80.0}}};
    QVERIFY(sketch.write(path("a.shp")));
    QFile::remove(path("a.cpg"));
    QFile table(path("a.dbf"));
    QVERIFY(table.open(QIODevice::ReadWrite));
    QByteArray bytes = table.readAll();
    bytes.replace("D_ngung", "D\xfcngung");
    table.seek(0);
    table.write(bytes);
    table.close();
    QVERIFY2(read(path("a.shp"), {QString::fromUtf8("düngung")}), qPrintable(error));
    QCOMPARE(map.columns[0].values[0], 80.0);
}

void PrescriptionReaderTest::takesNegativeAndEndlessNumbersForNoRate()
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {-9999.0}}, {squareText(11.1, 48.0, 0.001), {HUGE_VAL}}};
    QVERIFY(sketch.write(path("a.gpkg")));
    QVERIFY(read(path("a.gpkg")));
    QVERIFY(std::isnan(map.columns[0].values[0]));
    QVERIFY(std::isnan(map.columns[0].values[1]));
    QCOMPARE(map.columns[0].unreadable, 2);
}

void PrescriptionReaderTest::takesANegativeZeroForZero()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", QStringLiteral("text")}};
    sketch.rows = {{squareText(11.2, 48.0, 0.001), {QStringLiteral("-0.0")}}};
    QVERIFY(sketch.write(path("a.shp")));
    QVERIFY(read(path("a.shp")));
    QCOMPARE(map.columns[0].values[0], 0.0);
    QVERIFY(!std::signbit(map.columns[0].values[0]));
}

void PrescriptionReaderTest::countsRecordsWithoutArea()
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
    QCOMPARE(map.emptyRecords, 2);
    QCOMPARE(map.otherRecords, 2);
}

void PrescriptionReaderTest::countsRecordsWithCoordinatesThatAreNotFinite()
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
    QCOMPARE(map.notFiniteRecords, 2);
    QCOMPARE(map.rings.size(), size_t(1));
    QCOMPARE(map.rings[0].record, 2);
    QCOMPARE(map.xs.size(), size_t(5));
}

void PrescriptionReaderTest::countsRingsOfFewerThanThreePlaces()
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
    QCOMPARE(map.droppedRings, 2);
    QCOMPARE(map.emptyRecords, 1);
    QCOMPARE(map.rings.size(), size_t(1));
    QCOMPARE(map.rings[0].record, 1);
}

void PrescriptionReaderTest::readsOnlyTheWantedColumns()
{
    QVERIFY(read(fixture("three-zones.geojson"),
                 {QStringLiteral("area_ha"), QString(), QStringLiteral("SEED_k_ha"), QStringLiteral("area_ha")}));
    QCOMPARE(map.columns.size(), size_t(2));
    QCOMPARE(map.columns[0].name, QStringLiteral("area_ha"));
    QCOMPARE(map.columns[1].name, QStringLiteral("SEED_K_HA"));
}

void PrescriptionReaderTest::readsAColumnThatSharesItsName()
{
    LayerSketch sketch;
    sketch.fields = {{"RATE_A", 1.0}, {"RATE_B", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {80.0, 90.0}}};
    QVERIFY(sketch.write(path("a.shp")));
    QFile table(path("a.dbf"));
    QVERIFY(table.open(QIODevice::ReadWrite));
    QByteArray bytes = table.readAll();
    bytes.replace("RATE_B", "RATE_A");
    table.seek(0);
    table.write(bytes);
    table.close();
    QVERIFY2(read(path("a.shp"), {QStringLiteral("RATE_A")}), qPrintable(error));
    QCOMPARE(map.columnNames, QStringList({QStringLiteral("RATE_A"), QStringLiteral("RATE_A")}));
    QCOMPARE(map.columns[0].values[0], 80.0);
}

void PrescriptionReaderTest::readsShapesBesideAColumnOfTheirName()
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.fields = {{"RATE", 1.0}, {"OGR_GEOMETRY", QString()}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {80.0, QStringLiteral("cell")}}};
    QVERIFY(sketch.write(path("a.gpkg")));
    QVERIFY2(read(path("a.gpkg"), {QStringLiteral("RATE")}), qPrintable(error));
    QCOMPARE(map.rings.size(), size_t(1));
}

void PrescriptionReaderTest::refusesAColumnThatIsNotThere()
{
    QVERIFY(!read(fixture("three-zones.geojson"), {QStringLiteral("LIME")}));
    QVERIFY2(error.contains(QStringLiteral("\"LIME\"")) && error.contains(QStringLiteral("FERT_KG_HA")),
             qPrintable(error));
}

void PrescriptionReaderTest::refusesAColumnThatHoldsNoNumbers_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("a list") << QByteArray("[1.0, 2.0]");
    QTest::newRow("true") << QByteArray("true");
    QTest::newRow("false") << QByteArray("false");
}

void PrescriptionReaderTest::refusesAColumnThatHoldsNoNumbers()
{
    QFETCH(QByteArray, value);
    LayerSketch sketch;
    sketch.driver = "GeoJSON";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0}}};
    QVERIFY(sketch.write(path("a.geojson")));
    QFile file(path("a.geojson"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    text.replace("\"rate\": 1.0", "\"rate\": " + value);
    file.resize(0);
    file.write(text);
    file.close();
    QVERIFY(!read(path("a.geojson"), {QStringLiteral("rate")}));
    QCOMPARE(error, QStringLiteral("column \"rate\" holds no numbers"));
}

void PrescriptionReaderTest::leavesTrueAndFalseOutOfTheLikelyColumns()
{
    QFile file(path("a.geojson"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"type": "FeatureCollection", "features": [{"type": "Feature",
        "properties": {"rate": true, "rate_b": 7.5},
        "geometry": {"type": "Polygon", "coordinates": [[[11, 48], [11.001, 48], [11, 48.001], [11, 48]]]}}]})");
    file.close();
    QVERIFY2(read(path("a.geojson")), qPrintable(error));
    QCOMPARE(map.columns.size(), size_t(1));
    QCOMPARE(map.columns[0].name, QStringLiteral("rate_b"));
    QCOMPARE(map.columnNames, QStringList({QStringLiteral("rate"), QStringLiteral("rate_b")}));
}

void PrescriptionReaderTest::takesTheFirstLayerWithPolygons()
{
    {
        const GdalSession session;
        GDALDriver *format = GetGDALDriverManager()->GetDriverByName("GPKG");
        const GDALDatasetUniquePtr file(format->Create(qPrintable(path("a.gpkg")), 0, 0, 0, GDT_Unknown, nullptr));
        OGRSpatialReference reference;
        reference.importFromEPSG(4326);
        for (const char *name : {"points", "first", "second"}) {
            const bool isPoint = QByteArray(name) == "points";
            OGRLayer *layer = file->CreateLayer(name, &reference, isPoint ? wkbPoint : wkbPolygon);
            OGRFieldDefn rate("rate", OFTReal);
            layer->CreateField(&rate);
            OGRFeature feature(layer->GetLayerDefn());
            feature.SetField(0, QByteArray(name) == "first" ? 1.0 : 2.0);
            OGRGeometry *geometry = nullptr;
            OGRGeometryFactory::createFromWkt(isPoint ? "POINT (11 48)" : "POLYGON ((11 48, 12 48, 12 49, 11 48))",
                                              nullptr, &geometry);
            feature.SetGeometryDirectly(geometry);
            QCOMPARE(layer->CreateFeature(&feature), OGRERR_NONE);
        }
    }
    QVERIFY2(read(path("a.gpkg")), qPrintable(error));
    QCOMPARE(map.columns[0].values[0], 1.0);
    QCOMPARE(map.warnings.size(), 1);
    QVERIFY(map.warnings.first().contains(QStringLiteral("\"second\"")));
}

void PrescriptionReaderTest::refusesFilesThatItCannotRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("text") << "a.geojson" << QByteArray("just some text") << "is no Shapefile, GeoPackage or GeoJSON";
    QTest::newRow("nothing") << "a.gpkg" << QByteArray() << "is no Shapefile, GeoPackage or GeoJSON";
    QTest::newRow("text called Shapefile") << "a.shp" << QByteArray("just some text") << "is no Shapefile";
    QTest::newRow("cut GeoJSON") << "a.geojson" << QByteArray("{\"type\": \"FeatureCollection\", \"features\": [")
                                 << "";
    QTest::newRow("no records") << "a.geojson" << QByteArray("{\"type\": \"FeatureCollection\", \"features\": []}")
                                << "holds no";
    QTest::newRow("cut GeoPackage") << "a.gpkg" << QByteArray("SQLite format 3\0 and no more", 28) << "";
}

void PrescriptionReaderTest::refusesFilesThatItCannotRead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    QFile file(folder->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QVERIFY(!read(folder->filePath(name)));
    QVERIFY(!error.isEmpty());
    QVERIFY(!error.contains(QLatin1Char('\n')));
    QVERIFY2(error.contains(reason), qPrintable(error));
    QVERIFY(!read(folder->path()));
    QCOMPARE(error, QStringLiteral("is a folder, not a file"));
    QVERIFY(!read(path("none.shp")));
    QCOMPARE(error, QStringLiteral("there is no such file"));
}

void PrescriptionReaderTest::refusesWhatIsNoPlainFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    for (const char *name : {"a.geojson", "a.gpkg", "a.shp"})
        QTest::newRow(name) << name << "is no plain file";
    for (const char *extension : {"shx", "dbf", "prj", "cpg"})
        QTest::newRow(extension) << QStringLiteral("a.%1").arg(extension)
                                 << QStringLiteral("the .%1 beside it is no plain file").arg(extension);
}

void PrescriptionReaderTest::refusesWhatIsNoPlainFile()
{
    QFETCH(QString, name);
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0}}};
    QVERIFY(sketch.write(path("a.shp")));
    const QString pipe = folder->filePath(name);
    QFile::remove(pipe);
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
    QVERIFY(
        !read(pipe.endsWith(QLatin1String("geojson")) || pipe.endsWith(QLatin1String("gpkg")) ? pipe : path("a.shp")));
    QTEST(error, "reason");
    QVERIFY(!read(QStringLiteral("/dev/null")));
    QCOMPARE(error, QStringLiteral("is no plain file"));
}

void PrescriptionReaderTest::endsWhenItIsCancelled()
{
    const std::atomic<bool> cancelled(true);
    LoadControl control;
    control.cancelled = &cancelled;
    PrescriptionReader reader(fixture("three-zones.geojson"), {}, control);
    QVERIFY(!reader.read(map));
    QVERIFY(reader.error().contains(QStringLiteral("cancelled")));
}

void PrescriptionReaderTest::reportsProgress()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < 1000; ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * i, 48.0, 0.001), {1.0}});
    QVERIFY(sketch.write(path("a.shp")));
    QList<double> fractions;
    LoadControl control;
    control.progress = [&fractions](double fraction) { fractions.append(fraction); };
    QVERIFY(PrescriptionReader(path("a.shp"), {}, control).read(map));
    QCOMPARE(fractions, QList<double>({0.256, 0.512, 0.768}));
}

QTEST_GUILESS_MAIN(PrescriptionReaderTest)
#include "tst_prescriptionreader.moc"
