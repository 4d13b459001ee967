#include "drivepath.h"
#include "fieldscene.h"
#include "fieldview.h"
#include "files.h"
#include "layerwriter.h"
#include "legendpanel.h"
#include "machine.h"
#include "paintedtexts.h"
#include "simulation.h"
#include "statusbar.h"
#include "terminaltest.h"
#include "terminalwindow.h"
#include "vehicle.h"

#include "bePluginRxMap/dbgrouprxmap.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QFile>
#include <QTemporaryDir>

Q_DECLARE_METATYPE(UnitSystem)

/// The terminal with the plug-in: maps are loaded, feed products and are unloaded.
class TestTerminal : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void twoMapsFeedTwoProducts();
    void theNewestMapTakesAProductOverAndGivesItBack();
    void aMapThatIsLoadedAgainTakesTheDefaultRatesInUse();
    void farMapsAreFramedOneByOne();
    void aMapThatFeedsNothingIsNotFramed();
    void aBadFileLeavesTheMapAsItWas();
    void moreColumnsThanProductsAreRefused();
    void theThreeUnitSystemsAgree();
    void ratesInTheOperatorsUnitAreTheFilesNumbers_data();
    void ratesInTheOperatorsUnitAreTheFilesNumbers();
    void boundsAreThoseOfEverythingLoaded();
    void aPictureThatCannotBeSavedIsReported();
    void aPauseIsToldWhereTheSpeedIs();
    void twoTerminalsMayFollowEachOther();
};

void TestTerminal::twoMapsFeedTwoProducts()
{
    const LoadReport zones = open("three-zones.geojson", {"SEED_K_HA"});
    QVERIFY(zones.isOk());
    const LoadReport overlap = open("overlap.geojson", {QString(), "rate"});
    QVERIFY2(overlap.isOk(), qPrintable(overlap.error));
    QCOMPARE(terminal().columnsOf(zones.group).keys(), QList<int>{1});
    QCOMPARE(terminal().columnsOf(overlap.group).keys(), QList<int>{2});
    QCOMPARE(terminal().broker()->findGroup("rxMap.*", true, false).size(), 2);
    QCOMPARE(terminal().touch(QPointF(0, 0)), QStringLiteral("Rx Rate: 80.00"));
    terminal().machine()->setActiveProduct(2);
    QVERIFY(terminal().touch(QPointF(0, 0)) != QStringLiteral("Rx Rate: 80.00"));
}

void TestTerminal::theNewestMapTakesAProductOverAndGivesItBack()
{
    const LoadReport zones = open("three-zones.geojson", {"SEED_K_HA"});
    QVERIFY(zones.isOk());
    const QColor before = terminal().mapColor(QPointF(-100, 0));
    const LoadReport overlap = open("overlap.geojson", {"rate"});
    QVERIFY(overlap.isOk());
    QCOMPARE(terminal().columnsOf(zones.group).size(), 0);
    QCOMPARE(terminal().columnsOf(overlap.group).size(), 1);
    QVERIFY(terminal().close(overlap.group));
    QCOMPARE(terminal().columnsOf(zones.group).size(), 1);
    QCOMPARE(terminal().mapColor(QPointF(-100, 0)), before);
}

void TestTerminal::aMapThatIsLoadedAgainTakesTheDefaultRatesInUse()
{
    const LoadReport report = open("three-zones.geojson", {"SEED_K_HA", "FERT_KG_HA"});
    auto *map = qobject_cast<DbGroupRxMap *>(terminal().broker()->getGroup(report.group, false));
    QCOMPARE(map->getRateCalMappings().at(1).defaultRate, 150.0);
    // As the dialog writes it.
    terminal().backend()->loader(1)->defaultRate = 77.5;
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA", "FERT_KG_HA"}).isOk());
    QCOMPARE(map->getRateCalMappings().at(0).defaultRate, 80.0);
    QCOMPARE(map->getRateCalMappings().at(1).defaultRate, 77.5);
}

void TestTerminal::farMapsAreFramedOneByOne()
{
    QTemporaryDir folder;
    const QString far = writeFile(folder.filePath(QStringLiteral("far.geojson")),
                                  readFile(TerminalHost::fixture("overlap.geojson")).replace("5500", "5530"));
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    const QRectF near = terminal().bounds().value();
    const LoadReport report = terminal().open({{far}, {QString(), QStringLiteral("rate")}}).first();
    QVERIFY(report.isOk());
    QVERIFY(report.warnings.join(QLatin1Char(' ')).contains(QStringLiteral("30 km")));
    QCOMPARE(terminal().bounds().value(), near);
    terminal().machine()->setActiveProduct(2);
    QCOMPARE(terminal().bounds().value(), report.bounds);
    // The field view has moved to the map that it shows.
    QVERIFY(terminal().mapColor(report.bounds.topLeft() + QPointF(1.0, 1.0)) != FieldScene::groundColor());
    terminal().machine()->setActiveProduct(3);
    QCOMPARE(terminal().bounds().value(), report.bounds);
    QVERIFY(terminal().close(report.group));
    QCOMPARE(terminal().bounds().value(), near);
}

void TestTerminal::aMapThatFeedsNothingIsNotFramed()
{
    QTemporaryDir folder;
    const QString neighbour = writeFile(folder.filePath(QStringLiteral("neighbour.geojson")),
                                        readFile(TerminalHost::fixture("overlap.geojson")).replace("5500", "5509"));
    QVERIFY(open("overlap.geojson", {"rate"}).isOk());
    const LoadReport report = terminal().open({{neighbour}, {QStringLiteral("rate")}}).first();
    QVERIFY(report.isOk());
    // Both lie on one plane, and only the second feeds the product.
    QVERIFY(terminal().bounds()->height() > 9000.0);
    QVERIFY(terminal().window()->fieldView()->camera().metresPerPixel(report.bounds.center()) < 1.0);
    QVERIFY(terminal().mapColor(report.bounds.topLeft() + QPointF(1.0, 1.0)) != FieldScene::groundColor());
}

void TestTerminal::aBadFileLeavesTheMapAsItWas()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    const QColor before = terminal().mapColor(QPointF(0, 0));
    for (const QString &path : {QStringLiteral("/no/such.shp"), TerminalHost::fixture("README.md")}) {
        const LoadReport report = terminal().open({{path}}).first();
        QVERIFY(!report.isOk());
        QVERIFY2(report.error.contains(path), qPrintable(report.error));
    }
    QVERIFY(!open("three-zones.geojson", {"NOPE"}).isOk());
    QCOMPARE(terminal().mapColor(QPointF(0, 0)), before);
    QCOMPARE(terminal().touch(QPointF(0, 0)), QStringLiteral("Rx Rate: 80.00"));
}

void TestTerminal::moreColumnsThanProductsAreRefused()
{
    const LoadReport report = open("three-zones.geojson", {"SEED_K_HA", "FERT_KG_HA", "HERB_L_HA", "SEED_K_HA"});
    QVERIFY2(report.error.contains(QLatin1String("4 columns")), qPrintable(report.error));
    QVERIFY(!terminal().bounds());
}

void TestTerminal::theThreeUnitSystemsAgree()
{
    // The factors' own definitions: an acre is 4046.8564224 square metres, turf is 1000 square feet.
    const QMap<UnitSystem, double> hectares{
        {UnitSystem::Metric, 1.0}, {UnitSystem::Us, 0.40468564224}, {UnitSystem::Turf, 0.009290304}};
    for (auto entry = hectares.begin(); entry != hectares.end(); ++entry) {
        host.reset();
        host.reset(new TerminalHost(entry.key()));
        QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
        QCOMPARE(terminal().touch(QPointF(100, 0)),
                 QStringLiteral("Rx Rate: ") + QString::number(90.0 * *entry, 'f', 2));
    }
}

void TestTerminal::ratesInTheOperatorsUnitAreTheFilesNumbers_data()
{
    QTest::addColumn<int>("product");
    QTest::addColumn<UnitSystem>("system");
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("legend");
    const auto row = [](const char *unit, int product, UnitSystem system, double rate, const char *shown,
                        const char *legend) {
        QTest::newRow(unit) << product << system << rate << QString::fromLatin1(shown) << QString::fromLatin1(legend);
    };
    row("lb/ac", 2, UnitSystem::Us, 100.5, "100.50", "100.5");
    row("lb/1000 ft2", 2, UnitSystem::Turf, 4.07, "4.07", "4.07");
    row("kg/ha", 2, UnitSystem::Metric, 112.64, "112.64", "112.64");
    row("dt/ha", 2, UnitSystem::Metric, 1.25, "125.00", "125");
    row("gal/ac", 3, UnitSystem::Us, 15.35, "15.35", "15.35");
    row("fl oz/ac", 3, UnitSystem::Us, 64.0, "0.50", "0.5");
    row("L/ha", 3, UnitSystem::Metric, 0.07, "0.07", "0.07");
    row("seeds/ac", 1, UnitSystem::Us, 32150.0, "32.15", "32.15");
    row("1000/ac", 1, UnitSystem::Us, 32.1, "32.10", "32.1");
    row("seeds/m2", 1, UnitSystem::Metric, 310.5, "3105.00", "3,105");
}

void TestTerminal::ratesInTheOperatorsUnitAreTheFilesNumbers()
{
    QFETCH(int, product);
    QFETCH(UnitSystem, system);
    QFETCH(double, rate);
    QFETCH(QString, shown);
    QFETCH(QString, legend);
    host.reset();
    host.reset(new TerminalHost(system));
    LayerSketch sketch;
    sketch.driver = "GeoJSON";
    sketch.fields = {{"dose", 1.0}, {"unit", QStringLiteral("text")}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {rate, QString::fromLatin1(QTest::currentDataTag())}}};
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("map.geojson"));
    QVERIFY(sketch.write(path));
    const LoadReport report = terminal().open({{path}}).first();
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QCOMPARE(report.warnings, QStringList());
    QCOMPARE(report.sources.first().product, product);
    terminal().machine()->setActiveProduct(product);
    QCOMPARE(terminal().touch(report.bounds.center()), QStringLiteral("Rx Rate: ") + shown);
    const QStringList texts = paintedTexts(*terminal().window()->legend());
    QVERIFY2(texts.contains(legend), qPrintable(texts.join(QLatin1Char('|'))));
}

void TestTerminal::boundsAreThoseOfEverythingLoaded()
{
    QVERIFY(!terminal().bounds());
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    const QRectF bounds = terminal().bounds().value();
    QVERIFY(std::abs(bounds.width() - 300.0) < 1.0);
    QVERIFY(std::abs(bounds.height() - 100.0) < 1.0);
    const LoadReport other = open("overlap.geojson", {QString(), "rate"});
    QVERIFY(terminal().bounds()->contains(bounds));
    QVERIFY(terminal().bounds()->contains(other.bounds));
}

void TestTerminal::aPictureThatCannotBeSavedIsReported()
{
    const QString error = terminal().saveScreenshot(QStringLiteral("/no/such/folder/map.png"));
    QVERIFY2(error.startsWith(QLatin1String("/no/such/folder/map.png: ")), qPrintable(error));
    QTemporaryDir folder;
    QCOMPARE(terminal().saveScreenshot(folder.filePath("map.png")), QString());
    QCOMPARE(QImage(folder.filePath("map.png")).size(), TerminalWindow::displaySize);
}

void TestTerminal::aPauseIsToldWhereTheSpeedIs()
{
    StatusBar &bar = *terminal().window()->statusBar();
    QCOMPARE(paintedTexts(bar).first(), QStringLiteral("Stopped"));
    terminal().simulation()->setTimeFactor(0.0);
    QCOMPARE(paintedTexts(bar).first(), QStringLiteral("Stopped"));
    // An operator who starts now sees why nothing moves.
    terminal().vehicle()->drive(2.5);
    QCOMPARE(paintedTexts(bar).first(), QStringLiteral("Paused"));
    terminal().simulation()->run(5.0);
    QCOMPARE(paintedTexts(bar).first(), QStringLiteral("Paused"));
    terminal().simulation()->setTimeFactor(1.0);
    QCOMPARE(paintedTexts(bar).first(), QStringLiteral("9.0 km/h"));
    // At the end of a way nothing waits for time to pass, though the speed is still set.
    terminal().simulation()->setTimeFactor(0.0);
    DrivePath way(Pose{QPointF(0, 0), 0.0});
    way.append(PathPiece{20.0});
    terminal().vehicle()->follow(way);
    QCOMPARE(paintedTexts(bar).first(), QStringLiteral("Paused"));
    terminal().simulation()->run(60.0);
    QVERIFY(terminal().vehicle()->isOver());
    QCOMPARE(paintedTexts(bar).first(), QStringLiteral("Stopped"));
}

void TestTerminal::twoTerminalsMayFollowEachOther()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    host.reset();
    host.reset(new TerminalHost);
    QCOMPARE(host->problem(), QString());
    QCOMPARE(terminal().mapColor(QPointF(0, 0)), FieldScene::groundColor());
    QVERIFY(open("three-zones.geojson", {"FERT_KG_HA"}).isOk());
    QCOMPARE(terminal().touch(QPointF(0, 0)), QStringLiteral("Rx Rate: 150.00"));
}

RXMAP_TEST(TestTerminal, Widgets)
#include "tst_terminal.moc"
