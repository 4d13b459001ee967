// Damaged files: whatever the bytes, a load ends either with a consistent map or with one line that says why it failed.
#include "chaincheck.h"
#include "files.h"
#include "fixture.h"
#include "layerwriter.h"
#include "prescriptionloader.h"
#include "taskdatasketch.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <random>

namespace {

/// Flips a few bits, cuts off the end, or doubles a part.
QByteArray damaged(QByteArray bytes, std::mt19937 &random)
{
    const auto place = [&bytes, &random] { return static_cast<int>(random() % static_cast<unsigned>(bytes.size())); };
    switch (random() % 4) {
    case 0:
        return bytes.left(place());
    case 1:
        return bytes.insert(place(), bytes.mid(place(), 20));
    default:
        for (unsigned i = 0; i <= random() % 4; ++i)
            bytes[place()] = static_cast<char>(random());
        return bytes;
    }
}

} // namespace

class PrescriptionLoaderFuzz : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void survivesDamage_data();
    void survivesDamage();
    void survivesDamagedTaskData_data();
    void survivesDamagedTaskData();

private:
    /// Damages `part` of the prescription in many ways, and loads it each time. Undamaged, its chain has `records`
    /// records.
    void loadDamaged(const QString &target, const QString &part, unsigned records, int rounds);
};

void PrescriptionLoaderFuzz::survivesDamage_data()
{
    QTest::addColumn<QByteArray>("driver");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<int>("rounds");
    QTest::newRow("shapes") << QByteArray("ESRI Shapefile") << "shp" << 250;
    QTest::newRow("index") << QByteArray("ESRI Shapefile") << "shx" << 80;
    QTest::newRow("table") << QByteArray("ESRI Shapefile") << "dbf" << 150;
    QTest::newRow("coordinate system") << QByteArray("ESRI Shapefile") << "prj" << 40;
    QTest::newRow("GeoJSON") << QByteArray("GeoJSON") << "geojson" << 200;
    QTest::newRow("GeoPackage") << QByteArray("GPKG") << "gpkg" << 60;
    QTest::newRow("GeoJSON text sequence") << QByteArray("GeoJSONSeq") << "geojsonl" << 120;
    QTest::newRow("KML") << QByteArray("LIBKML") << "kml" << 200;
    QTest::newRow("FlatGeobuf") << QByteArray("FlatGeobuf") << "fgb" << 200;
    QTest::newRow("GML") << QByteArray("GML") << "gml" << 200;
    QTest::newRow("archive") << QByteArray("GeoJSON") << "zip" << 200;
}

void PrescriptionLoaderFuzz::survivesDamage()
{
    QFETCH(QByteArray, driver);
    QFETCH(QString, extension);
    QFETCH(int, rounds);
    const QTemporaryDir folder;
    const bool isShapefile = driver == "ESRI Shapefile";
    const QString target = QStringLiteral("map.") + (isShapefile ? QStringLiteral("shp") : extension);
    LayerSketch sketch;
    sketch.driver = driver.constData();
    sketch.fields = {{"rate", 1.0}, {"dose", 1}};
    for (int i = 0; i < 6; ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * i, 48.0, 0.001), {10.0 * i, i}});
    sketch.rows.append({QStringLiteral("POLYGON ((11 48.01, 11.01 48.01, 11.01 48.02, 11 48.02, 11 48.01), "
                                       "(11.002 48.012, 11.008 48.012, 11.005 48.018, 11.002 48.012))"),
                        {70.0, 7}});
    const QString plain = QStringLiteral("map.geojson");
    const bool isPacked = extension == QLatin1String("zip");
    QVERIFY(sketch.write(folder.filePath(isPacked ? plain : target)));
    if (isPacked)
        QVERIFY(packFiles(folder.filePath(target), {{plain, folder.filePath(plain)}}));
    loadDamaged(folder.filePath(target), folder.filePath(QStringLiteral("map.") + extension), 8, rounds);
}

void PrescriptionLoaderFuzz::survivesDamagedTaskData_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("part");
    QTest::addColumn<int>("rounds");
    QTest::newRow("XML") << "."
                         << "TASKDATA.XML" << 400;
    QTest::newRow("file that it refers to") << "."
                                            << "TSK00001.XML" << 150;
    QTest::newRow("grid") << "."
                          << "GRD00001.BIN" << 60;
    QTest::newRow("archive") << "map.zip"
                             << "map.zip" << 150;
}

void PrescriptionLoaderFuzz::survivesDamagedTaskData()
{
    QFETCH(QString, target);
    QFETCH(QString, part);
    QFETCH(int, rounds);
    using Sketch = TaskDataSketch;
    const QTemporaryDir folder;
    const QByteArray zones = Sketch::zone(1, Sketch::value(6, 90) + Sketch::value(1, 10))
        + Sketch::zone(2, Sketch::polygon({{11.01, 48.0, 0.001}, {11.0102, 48.0002, 0.0002}}) + Sketch::value(6, 70));
    const QByteArray field = "<PFD A=\"PFD1\">" + Sketch::polygon({{11.0, 48.0, 0.02}}, 1) + "</PFD>\n";
    const QByteArray other = Sketch::task("TSK2", Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}})));
    const Sketch sketch{field + Sketch::task("TSK1", Sketch::grid(3, 2, 1) + zones, "E=\"PFD1\" H=\"2\"")
                            + "<XFR A=\"TSK00001\"/>",
                        4,
                        {{"GRD00001.BIN", "\1\2\1\2\1\1"}, {"TSK00001.XML", "<XFC>" + other + "</XFC>"}}};
    QVERIFY(sketch.write(folder.path()));
    QVERIFY(sketch.writeArchive(folder.filePath("map.zip")));
    loadDamaged(target == "." ? folder.path() : folder.filePath(target), folder.filePath(part), 7, rounds);
}

void PrescriptionLoaderFuzz::loadDamaged(const QString &target, const QString &part, unsigned records, int rounds)
{
    const QByteArray whole = readFile(part);

    const auto load = [&target] { return PrescriptionLoader(requestFor(target), {}, LoadControl()).load(); };
    const auto undamaged = load();
    QVERIFY2(undamaged->report.isOk(), qPrintable(undamaged->report.error));
    QVERIFY(holdsTogether(*undamaged));
    QCOMPARE(undamaged->chain->size(), records);

    std::mt19937 random(static_cast<unsigned>(whole.size()));
    int loaded = 0;
    for (int round = 0; round < rounds; ++round) {
        writeFile(part, damaged(whole, random));
        const auto map = load();
        if (map->report.isOk())
            QVERIFY(holdsTogether(*map));
        else
            QVERIFY(map->report.error.startsWith(target) && !map->report.error.contains(QLatin1Char('\n')));
        loaded += map->report.isOk() ? 1 : 0;
    }
    QVERIFY(loaded < rounds);
}

RXMAP_TEST(PrescriptionLoaderFuzz, Core)
#include "tst_prescriptionloader_fuzz.moc"
