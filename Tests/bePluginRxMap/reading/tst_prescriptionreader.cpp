#include "columnpolicy.h"
#include "gdalsession.h"
#include "readertest.h"

#include <cmath>
#include <ogrsf_frmts.h>
#include <sys/stat.h>

class PrescriptionReaderTest : public ReaderTest {
    Q_OBJECT

private Q_SLOTS:
    void readsEachFormat_data();
    void readsEachFormat();
    void takesTheFirstLayerWithPolygons();
    void refusesFilesThatItCannotRead_data();
    void refusesFilesThatItCannotRead();
    void refusesWhatIsNoPlainFile_data();
    void refusesWhatIsNoPlainFile();
    void endsWhenItIsCancelled();
    void reportsProgress();
};

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
    QCOMPARE(map.layer, QStringLiteral("first"));
    QCOMPARE(map.layers, QStringList({"first", "second"}));
    QVERIFY2(read(ReadRequest{path("a.gpkg"), {}, QStringLiteral("second")}), qPrintable(error));
    QCOMPARE(map.columns[0].values[0], 2.0);
    QVERIFY(map.warnings.isEmpty());
    QVERIFY(!read(ReadRequest{path("a.gpkg"), {}, QStringLiteral("points")}));
    QCOMPARE(error, QStringLiteral("has no layer \"points\" with polygons; it has first, second"));
    QVERIFY(!read(ReadRequest{path("a.gpkg"), {}, {}, QStringLiteral("spring")}));
    QCOMPARE(error, QStringLiteral("has no task \"spring\"; it has no tasks"));
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
    PrescriptionReader reader({fixture("three-zones.geojson")}, ColumnPolicy::isWorthReading, control);
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
    QVERIFY(PrescriptionReader({path("a.shp")}, ColumnPolicy::isWorthReading, control).read(map));
    QCOMPARE(fractions, QList<double>({0.256, 0.512, 0.768}));
}

RXMAP_TEST(PrescriptionReaderTest, Core)
#include "tst_prescriptionreader.moc"
