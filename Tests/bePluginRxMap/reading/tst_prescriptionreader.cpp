#include "columnpolicy.h"
#include "files.h"
#include "readertest.h"

#include <algorithm>
#include <cmath>
#include <gdal_priv.h>
#include <sys/stat.h>
#include <thread>

namespace {

/// Replaces the file's only layer by a view. False when GDAL fails.
bool makeView(const QString &path, const QByteArray &query)
{
    CPLErrorReset();
    const GDALDatasetUniquePtr data(
        GDALDataset::Open(QFile::encodeName(path).constData(), GDAL_OF_VECTOR | GDAL_OF_UPDATE));
    if (!data)
        return false;
    for (const QByteArray &statement :
         {QByteArray("CREATE VIEW zones AS " + query),
          QByteArray("INSERT INTO gpkg_contents (table_name, data_type, identifier, srs_id) "
                     "VALUES ('zones', 'features', 'zones', 4326)"),
          QByteArray("INSERT INTO gpkg_geometry_columns VALUES ('zones', 'geom', 'POLYGON', 4326, 0, 0)"),
          QByteArray("DELETE FROM gpkg_geometry_columns WHERE table_name = 'layer'"),
          QByteArray("DELETE FROM gpkg_contents WHERE table_name = 'layer'")})
        data->ExecuteSQL(statement.constData(), nullptr, nullptr);
    return CPLGetLastErrorType() < CE_Failure;
}

} // namespace

class PrescriptionReaderTest : public ReaderTest {
    Q_OBJECT

private Q_SLOTS:
    void readsEachFormat_data();
    void readsEachFormat();
    void refusesFilesThatItCannotRead_data();
    void refusesFilesThatItCannotRead();
    void saysThatADatabaseIsDamaged();
    void refusesWhatIsNoPlainFile_data();
    void refusesWhatIsNoPlainFile();
    void readsNoFileWhoseSizeIsZero();
    void endsWhenItIsCancelled();
    void aViewWithoutEndEndsWhenItIsCancelled_data();
    void aViewWithoutEndEndsWhenItIsCancelled();
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
    QTest::newRow("GeoJSON text sequence") << QByteArray("GeoJSONSeq") << "a.geojsonl";
    QTest::newRow("KML") << QByteArray("LIBKML") << "a.kml";
    QTest::newRow("FlatGeobuf") << QByteArray("FlatGeobuf") << "a.fgb";
    QTest::newRow("GML") << QByteArray("GML") << "a.gml";
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
    QVERIFY(map.reference != nullptr);
    const auto column = [this](const char *wanted) {
        return *std::find_if(map.columns.begin(), map.columns.end(),
                             [wanted](const SourceColumn &any) { return any.name == QLatin1String(wanted); });
    };
    const SourceColumn rate = column("rate");
    const SourceColumn dose = column("dose");
    QVERIFY(!rate.isInteger && dose.isInteger);
    // A spatial index puts the records in another order.
    const size_t first = dose.values[0] == 3.0 ? 0 : 1;
    QCOMPARE(rate.values[first], 12.5);
    QVERIFY(std::isnan(rate.values[1 - first]));
    QCOMPARE(dose.values[1 - first], 4.0);
    // Some formats add columns of their own.
    for (const char *other : {"rate", "product", "dose"})
        QVERIFY(map.columnNames.contains(QLatin1String(other)));
    QCOMPARE(map.columns.size(), size_t(2));
}

void PrescriptionReaderTest::refusesFilesThatItCannotRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("text") << "a.geojson" << QByteArray("just some text")
                          << "is none of the formats that are read: Shapefile, GeoPackage";
    QTest::newRow("nothing") << "a.gpkg" << QByteArray() << "is empty";
    QTest::newRow("text called Shapefile") << "a.shp" << QByteArray("just some text") << "is no Shapefile";
    QTest::newRow("cut GeoJSON") << "a.geojson" << QByteArray("{\"type\": \"FeatureCollection\", \"features\": [")
                                 << "";
    QTest::newRow("no records") << "a.geojson" << QByteArray("{\"type\": \"FeatureCollection\", \"features\": []}")
                                << "holds no";
    QTest::newRow("cut GML") << "a.gml"
                             << QByteArray("<ogr:FeatureCollection xmlns:ogr=\"http://ogr.maptools.org/\" "
                                           "xmlns:gml=\"http://www.opengis.net/gml\"><gml:featureMember>"
                                           "<ogr:layer><ogr:rate>1.5</ogr:rate></ogr:layer></gml:featureMember>")
                             << "XML parsing of GML file failed";
    QTest::newRow("cut GeoPackage") << "a.gpkg" << QByteArray("SQLite format 3\0 and no more", 28) << "";
}

void PrescriptionReaderTest::refusesFilesThatItCannotRead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    QVERIFY(!read(writeFile(folder->filePath(name), content)));
    QVERIFY(!error.isEmpty());
    QVERIFY(!error.contains(QLatin1Char('\n')));
    QVERIFY2(error.contains(reason), qPrintable(error));
    QVERIFY(!read(folder->path()));
    QCOMPARE(error, QStringLiteral("is a folder, not a file"));
    QVERIFY(!read(path("none.shp")));
    QCOMPARE(error, QStringLiteral("there is no such file"));
}

void PrescriptionReaderTest::saysThatADatabaseIsDamaged()
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < 300; ++i)
        sketch.rows.append({squareText(10.0 + 0.001 * i, 50.0, 0.001), {100.0 + i}});
    QVERIFY(sketch.write(path("a.gpkg")));
    QByteArray bytes = readFile(path("a.gpkg"));
    bytes.replace(bytes.size() / 2, bytes.size() / 3, QByteArray(bytes.size() / 3, '\xff'));
    QVERIFY(!read(writeFile(path("a.gpkg"), bytes)));
    QVERIFY2(error.startsWith(QStringLiteral("is damaged (")), qPrintable(error));
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

void PrescriptionReaderTest::readsNoFileWhoseSizeIsZero()
{
    // The system's own files nevertheless have content, some of it endless.
    QVERIFY(!read(QStringLiteral("/proc/self/status")));
    QCOMPARE(error, QStringLiteral("is empty"));
}

void PrescriptionReaderTest::aViewWithoutEndEndsWhenItIsCancelled_data()
{
    QTest::addColumn<QByteArray>("view");
    // The kind of each column is taken from the first record.
    QTest::newRow("without a record") << QByteArray("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                                                    "SELECT fid, geom, rate FROM n, layer WHERE n.i < 0");
    QTest::newRow("of endless records") << QByteArray(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
        "SELECT n.i AS fid, geom, rate FROM n, layer WHERE n.i < 2 OR n.i < 0");
}

void PrescriptionReaderTest::aViewWithoutEndEndsWhenItIsCancelled()
{
    QFETCH(QByteArray, view);
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0}}};
    QVERIFY(sketch.write(path("a.gpkg")));
    QVERIFY(makeView(path("a.gpkg"), view));
    std::atomic<bool> cancelled(false);
    LoadControl control;
    control.cancelled = &cancelled;
    std::thread operatorThread([&cancelled] {
        QThread::msleep(300);
        cancelled = true;
    });
    PrescriptionReader reader({path("a.gpkg")}, ColumnPolicy::chanceOf, control);
    QVERIFY(!reader.read(map));
    const bool wasCancelled = cancelled;
    operatorThread.join();
    QVERIFY(wasCancelled);
    QCOMPARE(reader.error(), QStringLiteral("loading was cancelled"));
}

void PrescriptionReaderTest::endsWhenItIsCancelled()
{
    const std::atomic<bool> cancelled(true);
    LoadControl control;
    control.cancelled = &cancelled;
    PrescriptionReader reader({fixture("three-zones.geojson")}, ColumnPolicy::chanceOf, control);
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
    QVERIFY(PrescriptionReader({path("a.shp")}, ColumnPolicy::chanceOf, control).read(map));
    QCOMPARE(fractions, QList<double>({0.256, 0.512, 0.768}));
}

RXMAP_TEST(PrescriptionReaderTest, Core)
#include "tst_prescriptionreader.moc"
