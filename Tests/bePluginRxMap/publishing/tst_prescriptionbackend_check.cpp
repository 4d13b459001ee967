#include "Backend/prescriptionbackend.h"
#include "geoscontext.h"
#include "loadertest.h"
#include "mapview.h"
#include "paths.h"

#include "Framework/databroker.h"

#include <QDirIterator>
#include <QSignalSpy>

#include <cmath>

Q_DECLARE_METATYPE(MapFinding::Kind)
Q_DECLARE_METATYPE(LayerSketch)

namespace {

using Kind = MapFinding::Kind;

QList<MapFinding> ofKind(const LoadReport &report, Kind kind)
{
    QList<MapFinding> result;
    for (const MapFinding &finding : report.findings) {
        if (finding.kind == kind)
            result.append(finding);
    }
    return result;
}

LoadRequest requestOf(const QString &path, const QStringList &columns = {})
{
    LoadRequest request;
    request.path = path;
    request.columns = columns;
    MachineProduct product;
    product.name = QStringLiteral("Anything");
    product.kind = DbGroupProductGroupInfo::WeightRate;
    request.products = {product};
    return request;
}

QString boxText(double x, double y, double width, double height)
{
    return QStringLiteral("%1 %2, %3 %2, %3 %4, %1 %4, %1 %2").arg(x).arg(y).arg(x + width).arg(y + height);
}

/// Rectangles of a grid in metres, each with one value.
LayerSketch layerOf(const char *column, const QList<QPair<QString, QVariant>> &rows)
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.epsg = 32632;
    sketch.fields = {{column, 1.0}};
    for (const auto &row : rows)
        sketch.rows.append({QStringLiteral("POLYGON (%1)").arg(row.first), {row.second}});
    return sketch;
}

QString rings(const QStringList &texts)
{
    return QStringLiteral("(%1)").arg(texts.join(QStringLiteral("), (")));
}

QString field(int number, double side = 30.0)
{
    return rings({boxText(500000 + 100 * number, 5500000, side, side)});
}

} // namespace

/// What a check says about a file: what its load finds, and what the map looks like.
class PrescriptionBackendCheckTest : public LoaderTest {
    Q_OBJECT

private Q_SLOTS:
    void tells_data();
    void tells();
    void refusesWhatCannotBeLoaded();
    void checksAPublishedMapBesideTheProgram();
    void saysNothingOfAMapThatIsGone();
    void findsTheOverlapsOfRealMaps_data();
    void findsTheOverlapsOfRealMaps();
};

void PrescriptionBackendCheckTest::tells_data()
{
    QTest::addColumn<LayerSketch>("sketch");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("isFound");
    QTest::addColumn<QList<int>>("records");
    const auto row = [](const char *name, const LayerSketch &sketch, Kind kind, bool isFound,
                        const QList<int> &records = {}) {
        QTest::newRow(name) << sketch << kind << isFound << records;
    };
    const LayerSketch plain = layerOf("rate_kg_ha", {{field(0), 50.0}, {field(1), 60.0}});
    for (const Kind kind :
         {Kind::Repaired, Kind::Skipped, Kind::UnitUnknown, Kind::UnitMismatch, Kind::GuessedColumn,
          Kind::ReferenceSystem, Kind::NotANumber, Kind::Duplicate, Kind::LooseHole, Kind::Total, Kind::StrayPolygon})
        row(qPrintable(QStringLiteral("nothing %1").arg(int(kind))), plain, kind, false);
    row("unit not known", layerOf("rate", {{field(0), 50.0}}), Kind::UnitUnknown, true);
    row("guessed column", layerOf("thing", {{field(0), 50.5}, {field(1), 60.5}}), Kind::GuessedColumn, true);
    const QString bow =
        QStringLiteral("(500000 5500000, 500050 5500050, 500050 5500000, 500000 5500050, 500000 5500000)");
    row("repaired", layerOf("rate_kg_ha", {{field(2), 50.0}, {bow, 60.0}}), Kind::Repaired, true, {1});
    row("skipped", layerOf("rate_kg_ha", {{field(0), 50.0}, {field(1), QVariant()}}), Kind::Skipped, true, {1});
    row("below zero", layerOf("rate_kg_ha", {{field(0), -5.0}, {field(1), 60.0}}), Kind::NotANumber, true, {0});
    row("duplicate", layerOf("rate_kg_ha", {{field(0), 50.0}, {field(0), 60.0}}), Kind::Duplicate, true, {0});
    const QString outer = boxText(500000, 5500000, 50, 50);
    row("hole beside its polygon",
        layerOf("rate_kg_ha", {{field(3), 50.0}, {rings({outer, boxText(500060, 5500000, 20, 20)}), 60.0}}),
        Kind::LooseHole, true, {1});
    row("hole that reaches out of its polygon",
        layerOf("rate_kg_ha", {{rings({outer, boxText(500040, 5500000, 20, 20)}), 60.0}}), Kind::LooseHole, false);
    row("hole that touches its polygon from outside",
        layerOf("rate_kg_ha", {{rings({outer, boxText(500050, 5500000, 20, 20)}), 60.0}}), Kind::LooseHole, true, {0});
    QList<QPair<QString, QVariant>> totals;
    QList<QPair<QString, QVariant>> ratesOfCells;
    for (int i = 0; i < 8; ++i) {
        const double side = 20.0 + 5.0 * ((3 * i) % 8);
        totals.append({field(i, side), side * side * (0.010 + 0.0002 * (i % 3))});
        ratesOfCells.append({field(i, side), 100.0 + (5 * i) % 8});
    }
    row("totals", layerOf("rate_kg_ha", totals), Kind::Total, true);
    row("rates on cells of other sizes", layerOf("rate_kg_ha", ratesOfCells), Kind::Total, false);
    LayerSketch unknown = plain;
    unknown.epsg = 0;
    unknown.rows = {{squareText(11.0, 48.0, 0.001), {5.0}}};
    LayerSketch other = plain;
    other.fields.append({"water_l_ha", 1.0});
    for (auto &cell : other.rows)
        cell.values.append(200.0);
    row("unit that fits no product", other, Kind::UnitMismatch, true);
    row("polygon far away",
        layerOf("rate_kg_ha", {{field(0), 50.0}, {field(1), 60.0}, {rings({boxText(800000, 5500000, 30, 30)}), 70.0}}),
        Kind::StrayPolygon, true, {2});
    row("polygon of another field",
        layerOf("rate_kg_ha", {{field(0), 50.0}, {field(1), 60.0}, {rings({boxText(520000, 5500000, 30, 30)}), 70.0}}),
        Kind::StrayPolygon, false);
    row("coordinate system assumed", unknown, Kind::ReferenceSystem, true);
}

void PrescriptionBackendCheckTest::tells()
{
    QFETCH(LayerSketch, sketch);
    QFETCH(Kind, kind);
    QFETCH(bool, isFound);
    QFETCH(QList<int>, records);
    const LoadReport report = PrescriptionBackend::checkFile(requestOf(write(sketch, "a.gpkg")), 12.0);
    QVERIFY2(report.isOk(), qPrintable(report.error));
    const QList<MapFinding> findings = ofKind(report, kind);
    QCOMPARE(findings.size(), isFound ? 1 : 0);
    if (isFound)
        QCOMPARE(findings.first().records, records);
}

void PrescriptionBackendCheckTest::refusesWhatCannotBeLoaded()
{
    const LoadReport report =
        PrescriptionBackend::checkFile(requestOf(folder.filePath(QStringLiteral("no.shp"))), 12.0);
    QVERIFY(report.error.contains(QStringLiteral("no.shp: there is no such file")));
}

void PrescriptionBackendCheckTest::checksAPublishedMapBesideTheProgram()
{
    DataBroker broker;
    PrescriptionBackend backend(&broker);
    const LoadRequest request = requestOf(write(layerOf("rate", {{field(0), 50.0}, {field(0, 20), 60.0}}), "a.gpkg"));
    const LoadReport report = backend.loadAndWait(request);
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QSignalSpy checked(&backend, &PrescriptionBackend::checked);
    backend.startCheck(report.group, 25.0);
    QCOMPARE(checked.count(), 0);
    QVERIFY(checked.wait());
    QCOMPARE(checked.first().at(0).toString(), report.group);
    QStringList texts;
    for (const MapFinding &finding : checked.first().at(1).value<QList<MapFinding>>())
        texts.append(finding.text);
    const QString all = texts.join(QLatin1Char('\n'));
    for (const char *text : {"is not known", "records 0 and 1 overlap", "record 1 is 20.0 m wide"})
        QVERIFY2(all.contains(QLatin1String(text)), qPrintable(all));
}

void PrescriptionBackendCheckTest::saysNothingOfAMapThatIsGone()
{
    DataBroker broker;
    PrescriptionBackend backend(&broker);
    const LoadReport report = backend.loadAndWait(requestOf(write(layerOf("rate", {{field(0), 50.0}}), "a.gpkg")));
    QSignalSpy checked(&backend, &PrescriptionBackend::checked);
    backend.startCheck(report.group, 12.0);
    QVERIFY(backend.unload(report.group));
    const LoadReport again = backend.loadAndWait(requestOf(report.path));
    backend.startCheck(again.group, 12.0);
    QVERIFY(checked.wait());
    QCOMPARE(checked.count(), 1);
}

void PrescriptionBackendCheckTest::findsTheOverlapsOfRealMaps_data()
{
    QTest::addColumn<QString>("path");
    if (realDataFolder().isEmpty())
        QSKIP("RXMAP_REAL_DATA names no folder of real prescriptions");
    QDirIterator files(realDataFolder(), {QStringLiteral("*.shp"), QStringLiteral("*.geojson")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        QTest::newRow(qPrintable(QDir(realDataFolder()).relativeFilePath(path))) << path;
    }
}

void PrescriptionBackendCheckTest::findsTheOverlapsOfRealMaps()
{
    QFETCH(QString, path);
    const bool hasNoRates = path.endsWith(QLatin1String("parcels.shp"));
    LoadRequest request = requestOf(path, hasNoRates ? QStringList("AREA_HA") : QStringList());
    request.products.first().kind = DbGroupProductGroupInfo::UnknownRate;
    const LoadReport report = PrescriptionBackend::checkFile(request, 12.0);
    QVERIFY2(report.isOk(), qPrintable(report.error));
    // Every pair of polygons whose boxes meet, by GEOS alone; of a map with more cells than that, the first ones.
    constexpr size_t mostCompared = 2500;
    const auto map = load(request);
    std::vector<PlanePolygon> polygons;
    const MapView view(map->chain->first(), map->records, map->chain->mappings());
    for (size_t i = 0; i < std::min(mostCompared, view.polygons().size()); ++i)
        polygons.push_back(MapView::copy(view.polygons()[i]));
    const GeosContext geos;
    QMap<QPair<int, int>, double> expected;
    for (size_t a = 0; a < polygons.size(); ++a) {
        const RingExtent &one = view.polygons()[a].extent;
        const GeosContext::Geometry shape = geos.polygon(polygons[a].outer, polygons[a].holes);
        for (size_t b = a + 1; b < polygons.size(); ++b) {
            const RingExtent &other = view.polygons()[b].extent;
            if (one.minX > other.maxX || other.minX > one.maxX || one.minY > other.maxY || other.minY > one.maxY)
                continue;
            double area = 0.0;
            for (const PlanePolygon &part :
                 geos.polygons(geos.common(shape, geos.polygon(polygons[b].outer, polygons[b].holes)), 0)) {
                area += ringArea(part.outer);
                for (const PlaneRing &hole : part.holes)
                    area -= ringArea(hole);
            }
            if (area > 0.5)
                expected[{polygons[a].record, polygons[b].record}] += area;
        }
    }
    QMap<QPair<int, int>, double> found;
    const int last = polygons.back().record;
    for (const MapFinding &finding : ofKind(report, Kind::Overlap)) {
        if (finding.records.size() == 2 && *finding.area > 0.5 && finding.records.at(1) <= last)
            found[{finding.records.at(0), finding.records.at(1)}] += *finding.area;
    }
    QCOMPARE(found.keys(), expected.keys());
    for (const auto &pair : expected.keys())
        QVERIFY(std::fabs(found.value(pair) - expected.value(pair)) < 0.01 * expected.value(pair));
}

RXMAP_TEST(PrescriptionBackendCheckTest, Core)
#include "tst_prescriptionbackend_check.moc"
