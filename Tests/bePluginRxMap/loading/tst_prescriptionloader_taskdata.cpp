#include "files.h"
#include "loadertest.h"
#include "taskdatasketch.h"

#include <QXmlStreamReader>

#include <cmath>
#include <memory>
#include <ogr_geometry.h>
#include <random>

namespace {

using Sketch = TaskDataSketch;

constexpr int litres = 1;
constexpr int weight = 6;
constexpr int points = 1000;

/// Zones as a simple reader sees them: polygons in degrees, and their rates.
struct PlainZone {
    std::unique_ptr<OGRPolygon> polygon;
    double rate = 0.0;
};

std::vector<PlainZone> plainZones(const QString &path)
{
    std::vector<PlainZone> zones;
    QXmlStreamReader xml(readFile(path));
    OGRLinearRing ring;
    bool isInZone = false;
    while (!xml.atEnd()) {
        xml.readNext();
        const auto attribute = [&xml](const char *name) { return xml.attributes().value(QLatin1String(name)); };
        if (xml.name() == QLatin1String("TZN")) {
            isInZone = xml.isStartElement();
            if (isInZone)
                ring.empty();
        } else if (isInZone && xml.isStartElement() && xml.name() == QLatin1String("PNT")) {
            ring.addPoint(attribute("D").toDouble(), attribute("C").toDouble());
        } else if (isInZone && xml.isStartElement() && xml.name() == QLatin1String("PDV") && !ring.IsEmpty()) {
            auto polygon = std::make_unique<OGRPolygon>();
            polygon->addRing(&ring);
            zones.push_back({std::move(polygon), attribute("B").toDouble() / 100.0});
        }
    }
    return zones;
}

} // namespace

/// Task data, from the file to the rates at field points.
class PrescriptionLoaderTaskDataTest : public LoaderTest {
    Q_OBJECT

private Q_SLOTS:
    void feedsProductsByTheUnitsOfTheirNumbers();
    void feedsNothingThatIsNoRatePerArea();
    void takesAnUnknownNumberForAPlainOne();
    void keepsProductsOfEqualRatesApart();
    void takesDefaultRatesFromTheTask_data();
    void takesDefaultRatesFromTheTask();
    void placesTheBoundary();
    void answersOnZonesAsAPlainReaderDoes();
};

void PrescriptionLoaderTaskDataTest::feedsProductsByTheUnitsOfTheirNumbers()
{
    const QByteArray values = Sketch::value(litres, 250000) + Sketch::value(weight, 17367) + Sketch::value(11, 8000);
    const QByteArray zone = Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + values);
    QVERIFY(Sketch{Sketch::task("TSK1", zone)}.write(folder.path()));
    const auto map = load(usualRequest(folder.path()));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.warnings, QStringList());
    QCOMPARE(map->report.task, QStringLiteral("TSK1"));
    // 8 seeds per square metre, 173.67 kg/ha, 25 L/ha.
    QCOMPARE(rateAt(*map, 0.0, 0.0, 0), double(80.0F));
    QCOMPARE(rateAt(*map, 0.0, 0.0, 1), double(173.67F));
    QCOMPARE(rateAt(*map, 0.0, 0.0, 2), double(25.0F));
    const char *const units[] = {"seeds/m2", "mg/m2", "mm3/m2"};
    for (int i = 0; i < 3; ++i) {
        const RateSource &source = map->report.sources.at(i);
        QCOMPARE(source.unit, QString::fromLatin1(units[i]));
        QVERIFY(source.unitFrom == RateSource::UnitFrom::Format && source.isSure);
    }
}

void PrescriptionLoaderTaskDataTest::feedsNothingThatIsNoRatePerArea()
{
    // A rate per time, and a working width.
    const QByteArray values = Sketch::value(36, 5) + Sketch::value(66, 7) + Sketch::value(weight, 100);
    const QByteArray zone = Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + values);
    QVERIFY(Sketch{Sketch::task("TSK1", zone)}.write(folder.path()));
    const auto map = load(folder.path());
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.columns, QStringList("Setpoint Mass Per Area Application Rate"));
    // A user who names such a column gets it, with a warning.
    const auto named = load(folder.path(), {"Setpoint Working Width"});
    QVERIFY2(named->report.isOk(), qPrintable(named->report.error));
    QVERIFY2(
        named->report.warnings.value(0).contains("\"mm\", given for column \"Setpoint Working Width\", is no unit"),
        qPrintable(named->report.warnings.join('\n')));
}

void PrescriptionLoaderTaskDataTest::takesAnUnknownNumberForAPlainOne()
{
    QByteArray zones;
    for (const int rate : {100, 150, 100})
        zones += Sketch::zone(1, Sketch::polygon({{11.0 + rate * 1e-4, 48.0, 0.001}}) + Sketch::value(0xE000, rate));
    QVERIFY(Sketch{Sketch::task("TSK1", zones)}.write(folder.path()));
    LoadRequest request = usualRequest(folder.path());
    request.products = request.products.mid(1, 1);
    const auto map = load(request);
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.columns, QStringList("DDI 57344"));
    QVERIFY(!map->report.sources.at(0).isSure);
    QVERIFY2(map->report.warnings.join('\n').contains("the unit of column \"DDI 57344\" is not known, taken as kg/ha"),
             qPrintable(map->report.warnings.join('\n')));
}

void PrescriptionLoaderTaskDataTest::keepsProductsOfEqualRatesApart()
{
    const QByteArray values = Sketch::value(litres, 9, "C=\"PDT1\"") + Sketch::value(litres, 9, "C=\"PDT2\"");
    const QByteArray zone = Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + values);
    QVERIFY(Sketch{Sketch::task("TSK1", zone) + "<PDT A=\"PDT1\" B=\"Total yield\"/><PDT A=\"PDT2\" B=\"B\"/>"}.write(
        folder.path()));
    const auto map = load(folder.path());
    QCOMPARE(map->report.columns, QStringList({"Total yield", "B"}));
}

void PrescriptionLoaderTaskDataTest::takesDefaultRatesFromTheTask_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<double>("rate");
    QTest::newRow("none") << QByteArray() << 2.0; // The product's own default rate.
    QTest::newRow("without a zone") << QByteArray("H=\"2\" I=\"3\"") << 148.15;
    QTest::newRow("out of the field") << QByteArray("H=\"2\" J=\"3\"") << 0.0;
}

void PrescriptionLoaderTaskDataTest::takesDefaultRatesFromTheTask()
{
    QFETCH(QByteArray, attributes);
    const QByteArray zones = Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + Sketch::value(weight, 9))
        + Sketch::zone(2, Sketch::value(weight, 14815)) + Sketch::zone(3, Sketch::value(weight, 0));
    QVERIFY(Sketch{Sketch::task("TSK1", zones, attributes)}.write(folder.path()));
    const auto map = load(usualRequest(folder.path()));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QTEST(map->defaultRates.value(0), "rate");
    QCOMPARE(map->report.sources.at(0).baseUnit, QStringLiteral("kg/ha"));
    QCOMPARE(map->report.polygons, 1);
}

void PrescriptionLoaderTaskDataTest::placesTheBoundary()
{
    const QByteArray field = "<PFD A=\"PFD9\">" + Sketch::polygon({{11.0, 48.0, 0.01}}, 1) + "</PFD>";
    QVERIFY(
        Sketch{Sketch::task("TSK1", Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + Sketch::value(weight, 1)),
                            "E=\"PFD9\"")
               + field}
            .write(folder.path()));
    const auto map = load(folder.path());
    QCOMPARE(map->report.boundary.size(), 1);
    QCOMPARE(map->report.boundary.first().size(), 5);
    const QRectF outline = map->report.boundary.first().boundingRect();
    const QRectF bounds = map->report.bounds;
    QVERIFY(std::fabs(outline.width() - bounds.width()) < 0.01 && std::fabs(outline.top() - bounds.top()) < 0.01);
    QVERIFY(outline.height() > 1000.0);
}

void PrescriptionLoaderTaskDataTest::answersOnZonesAsAPlainReaderDoes()
{
    RXMAP_NEED_REAL_DATA();
    const QString path = realData(QStringLiteral("taskdata-zones/TASKDATA.XML"));
    const auto map = load(usualRequest(path));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    const std::vector<PlainZone> zones = plainZones(path);
    QCOMPARE(size_t(map->report.polygons), zones.size());
    std::mt19937 random(17);
    int known = 0;
    for (const PlainZone &zone : zones) {
        OGREnvelope extent;
        zone.polygon->getEnvelope(&extent);
        std::uniform_real_distribution<double> longitude(extent.MinX, extent.MaxX);
        std::uniform_real_distribution<double> latitude(extent.MinY, extent.MaxY);
        for (int i = 0; i < points / int(zones.size()) + 1; ++i) {
            const OGRPoint place(longitude(random), latitude(random));
            double expected = std::nan("");
            for (const PlainZone &other : zones) {
                if (other.polygon->getExteriorRing()->isPointInRing(&place) != FALSE)
                    expected = other.rate;
            }
            RawPrescription one;
            one.xs = {place.getX()};
            one.ys = {place.getY()};
            std::vector<double> x;
            std::vector<double> y;
            QString reason;
            QVERIFY(map->plane.project(one, x, y, reason));
            const double rate = rateAt(*map, x[0], y[0]);
            QVERIFY2(std::isnan(rate) ? std::isnan(expected) : rate == double(float(expected)),
                     qPrintable(QString::number(rate)));
            known += std::isnan(rate) ? 0 : 1;
        }
    }
    QVERIFY(known > points / 2);
}

RXMAP_TEST(PrescriptionLoaderTaskDataTest, Core)
#include "tst_prescriptionloader_taskdata.moc"
