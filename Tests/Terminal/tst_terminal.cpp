#include "activemap.h"
#include "fieldscene.h"
#include "fieldview.h"
#include "legendpanel.h"
#include "machine.h"
#include "mapoverlay.h"
#include "terminalhost.h"
#include "terminalwindow.h"
#include "testbase.h"

#include "bePluginRxMap/dbgrouprxmap.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QFile>
#include <QTemporaryDir>

#include <cmath>

namespace {

/// Writes a map of cells in a row, with the rates 1, 2, ... in the column RATE; its path.
QString writeRow(const QTemporaryDir &folder, int cells)
{
    QStringList features;
    for (int i = 0; i < cells; ++i) {
        const double west = 10.0 + i * 0.001;
        features.append(QStringLiteral(R"({"type":"Feature","properties":{"RATE":%3},"geometry":{"type":"Polygon",)"
                                       R"("coordinates":[[[%1,50],[%2,50],[%2,50.001],[%1,50.001],[%1,50]]]}})")
                            .arg(west, 0, 'f', 3)
                            .arg(west + 0.001, 0, 'f', 3)
                            .arg(i + 1));
    }
    QFile file(folder.filePath(QStringLiteral("row.geojson")));
    file.open(QIODevice::WriteOnly);
    file.write(QStringLiteral(R"({"type":"FeatureCollection","features":[%1]})").arg(features.join(',')).toUtf8());
    return file.fileName();
}

} // namespace

/// The terminal with the plug-in: maps come, are drawn, answered and go.
class TestTerminal : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aMapIsDrawnAsSoonAsItIsLoaded();
    void everyClassOfTheLegendIsSeenHalfTransparentOverTheGround_data();
    void everyClassOfTheLegendIsSeenHalfTransparentOverTheGround();
    void whatIsDrawnIsWhatIsAnswered_data();
    void whatIsDrawnIsWhatIsAnswered();
    void theLegendNamesRatesOrRangesAsTheMapHasThem();
    void anotherProductIsDrawnAtOnce();
    void twoMapsFeedTwoProducts();
    void theNewestMapTakesAProductOverAndGivesItBack();
    void loadingAgainWhileDrawingReplacesTheMap();
    void unloadingWhileDrawingLeavesTheGround();
    void aMapThatIsLoadedAgainTakesTheDefaultRatesInUse();
    void farMapsAreFramedOneByOne();
    void aBadFileLeavesTheMapAsItWas();
    void moreColumnsThanProductsAreRefused();
    void theBubbleShowsWhatIsSaidAndGoes();
    void theThreeUnitSystemsAgree();
    void boundsAreThoseOfEverythingLoaded();
    void aPictureThatCannotBeSavedIsReported();
    void twoTerminalsMayFollowEachOther();

private:
    /// Colour distance that rounding of the blend leaves.
    static constexpr int blendTolerance = 2;

    static bool isNear(const QColor &a, const QColor &b);
    LoadReport open(const QString &file, const QStringList &columns);
    /// Touches the point; the colour of its answer's class, invalid where there is no answer.
    QColor answered(const ActiveMap &map, const QPointF &point);
    Terminal &terminal() { return host->terminal(); }

    QScopedPointer<TerminalHost> host;
};

bool TestTerminal::isNear(const QColor &a, const QColor &b)
{
    return std::abs(a.red() - b.red()) <= blendTolerance && std::abs(a.green() - b.green()) <= blendTolerance
        && std::abs(a.blue() - b.blue()) <= blendTolerance;
}

LoadReport TestTerminal::open(const QString &file, const QStringList &columns)
{
    return terminal().open(TerminalHost::fixture(file), columns);
}

QColor TestTerminal::answered(const ActiveMap &map, const QPointF &point)
{
    const QString text = terminal().touch(point);
    return text.isEmpty() ? QColor() : map.queriedColor(*terminal().broker());
}

void TestTerminal::init()
{
    TestBase::init();
    host.reset(new TerminalHost);
    QCOMPARE(host->problem(), QString());
}

void TestTerminal::cleanup()
{
    host.reset();
    TestBase::cleanup();
}

void TestTerminal::aMapIsDrawnAsSoonAsItIsLoaded()
{
    QCOMPARE(terminal().mapColor(QPointF(0, 0)), FieldScene::groundColor());
    const LoadReport report = open("three-zones.geojson", {"SEED_K_HA"});
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QVERIFY(terminal().mapColor(QPointF(0, 0)) != FieldScene::groundColor());
    QCOMPARE(terminal().touch(QPointF(0, 0)), QStringLiteral("Rx Rate: 80.00"));
    QCOMPARE(terminal().window()->legend()->classTexts().size(), report.legends.first().size());
}

void TestTerminal::everyClassOfTheLegendIsSeenHalfTransparentOverTheGround_data()
{
    QTest::addColumn<int>("product");
    QTest::newRow("first column") << 1;
    QTest::newRow("second column") << 2;
    QTest::newRow("third column") << 3;
}

void TestTerminal::everyClassOfTheLegendIsSeenHalfTransparentOverTheGround()
{
    QFETCH(int, product);
    const LoadReport report = terminal().open(TerminalHost::sampleField(), {"SEED_KS_HA", "FERT_KG_HA", "HERB_L_HA"});
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QVERIFY(terminal().machine()->setActiveProduct(product));
    const ActiveMap map = ActiveMap::find(*terminal().broker(), Machine::productGroupName(product));

    QMap<QString, int> seen;
    const QRectF area = terminal().bounds().value();
    for (double x = area.left() + 3.0; x < area.right(); x += 7.0) {
        for (double y = area.top() + 3.0; y < area.bottom(); y += 7.0) {
            const QColor expected = answered(map, QPointF(x, y));
            if (expected.isValid() && isNear(terminal().mapColor(QPointF(x, y)), FieldScene::onGround(expected)))
                ++seen[expected.name()];
        }
    }
    for (const OrvikTypes::RX_RATECOLOR &entry : map.legend)
        QVERIFY2(seen.value(entry.color.name()) > 10, qPrintable(QStringLiteral("class up to %1").arg(entry.rate)));
}

void TestTerminal::whatIsDrawnIsWhatIsAnswered_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("column");
    QTest::newRow("sample seed") << TerminalHost::sampleField() << "SEED_KS_HA";
    QTest::newRow("sample herbicide") << TerminalHost::sampleField() << "HERB_L_HA";
    if (realData(QString()).isEmpty())
        return;
    QTest::newRow("clipped grid") << realData("grid-clipped/grid-clipped.shp") << "RATE_kg_";
    QTest::newRow("three products") << realData("cells-three-products/cells.shp") << "FERT_kg_ha";
    QTest::newRow("zones at corners") << realData("cells-three-products/zones_8c.shp") << "RATE_KG_HA";
    QTest::newRow("spots") << realData("cells-17k/cells.shp") << "RATE_l_ha";
    QTest::newRow("spot zones") << realData("cells-17k/zones_4c.shp") << "RATE_l_ha";
    QTest::newRow("repaired zones") << realData("cells-17k/zones_8c.shp") << "RATE_l_ha";
    QTest::newRow("trial blocks") << realData("blocks-utm/treatment_blocks.gpkg") << "target_rate";
    QTest::newRow("null polygon") << realData("zones-geojson/app_map_vector.geojson") << "dose";
    QTest::newRow("two zones") << realData("zones-geojson/isoxmljs_test.geojson") << "DOSE";
}

void TestTerminal::whatIsDrawnIsWhatIsAnswered()
{
    QFETCH(QString, file);
    QFETCH(QString, column);
    const LoadReport report = terminal().open(file, {column});
    QVERIFY2(report.isOk(), qPrintable(report.error));
    const ActiveMap map = ActiveMap::find(*terminal().broker(), Machine::productGroupName(1));
    const auto colorOf = [&](const QPointF &point) {
        const QColor color = answered(map, point);
        return color.isValid() ? FieldScene::onGround(color) : FieldScene::groundColor();
    };
    const QRectF area = terminal().bounds().value();
    int compared = 0;
    int disagreeing = 0;
    QString first;
    for (int i = 0; i < 4000; ++i) {
        // A low-discrepancy walk over the field.
        const QPointF point(area.left() + area.width() * std::fmod(0.5 + i * 0.7548776662466927, 1.0),
                            area.top() + area.height() * std::fmod(0.5 + i * 0.5698402909980532, 1.0));
        const QColor expected = colorOf(point);
        const QColor drawn = terminal().mapColor(point);
        if (isNear(drawn, expected)) {
            ++compared;
            continue;
        }
        // Within a pixel of an edge, what is drawn may be what is answered beside the point.
        const double pixel = 1.5 * terminal().window()->fieldView()->camera().metresPerPixel(point);
        const auto isSame = [&](double east, double north) {
            return colorOf(point + QPointF(east, north)) == expected;
        };
        if (!isSame(pixel, pixel) || !isSame(-pixel, pixel) || !isSame(pixel, -pixel) || !isSame(-pixel, -pixel)
            || !isSame(0, pixel) || !isSame(0, -pixel) || !isSame(pixel, 0) || !isSame(-pixel, 0))
            continue;
        ++compared;
        ++disagreeing;
        if (first.isEmpty())
            first = QStringLiteral("%1,%2 is drawn %3, answered %4")
                        .arg(point.x())
                        .arg(point.y())
                        .arg(drawn.name(), expected.name());
    }
    QVERIFY2(compared > 1000, qPrintable(QString::number(compared)));
    QVERIFY2(disagreeing == 0, qPrintable(QStringLiteral("%1 of %2: %3").arg(disagreeing).arg(compared).arg(first)));
}

void TestTerminal::theLegendNamesRatesOrRangesAsTheMapHasThem()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA", "FERT_KG_HA"}).isOk());
    const LegendPanel *legend = terminal().window()->legend();
    QCOMPARE(legend->classTexts(), (QStringList{"70", "80", "90"}));
    QVERIFY(terminal().machine()->setActiveProduct(2));
    QCOMPARE(legend->classTexts(), (QStringList{"0", "120.5", "150"}));
    // Another file feeds the first product now, with more rates than the legend has classes.
    QTemporaryDir folder;
    QVERIFY2(terminal().open(writeRow(folder, 12), {"RATE"}).isOk(), "twelve rates");
    QVERIFY(terminal().machine()->setActiveProduct(1));
    QCOMPARE(legend->classTexts().size(), 7);
    QVERIFY(legend->classTexts().first().startsWith(QStringLiteral("\u2264 ")));
    QCOMPARE(legend->classTexts().filter(QStringLiteral(" \u2013 ")).size(), 6);
}

void TestTerminal::anotherProductIsDrawnAtOnce()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA", "FERT_KG_HA"}).isOk());
    const QPointF east(100, 0);
    const QColor seed = terminal().mapColor(east);
    QCOMPARE(terminal().touch(east), QStringLiteral("Rx Rate: 90.00"));
    QVERIFY(terminal().machine()->setActiveProduct(2));
    QVERIFY(terminal().mapColor(east) != seed);
    QCOMPARE(terminal().touch(east), QStringLiteral("Rx Rate: 0.00"));
    QVERIFY(terminal().machine()->setActiveProduct(3));
    QCOMPARE(terminal().mapColor(east), FieldScene::groundColor());
    QCOMPARE(terminal().touch(east), QString());
}

void TestTerminal::twoMapsFeedTwoProducts()
{
    const LoadReport zones = open("three-zones.geojson", {"SEED_K_HA"});
    QVERIFY(zones.isOk());
    const LoadReport overlap = terminal().openFor(TerminalHost::fixture("overlap.geojson"), {2});
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
    const LoadReport overlap = terminal().openFor(TerminalHost::fixture("overlap.geojson"), {1});
    QVERIFY(overlap.isOk());
    QCOMPARE(terminal().columnsOf(zones.group).size(), 0);
    QCOMPARE(terminal().columnsOf(overlap.group).size(), 1);
    QVERIFY(terminal().close(overlap.group));
    QCOMPARE(terminal().columnsOf(zones.group).size(), 1);
    QCOMPARE(terminal().mapColor(QPointF(-100, 0)), before);
}

void TestTerminal::loadingAgainWhileDrawingReplacesTheMap()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    FieldView *view = terminal().window()->fieldView();
    // The view goes on drawing while each load runs.
    QTimer redraw;
    bool isLoading = false;
    int frames = 0;
    connect(&redraw, &QTimer::timeout, view, [&isLoading, &frames, view] {
        view->repaint();
        frames += isLoading ? 1 : 0;
    });
    redraw.start(0);
    for (int i = 0; i < 10; ++i) {
        const QString column = i % 2 == 0 ? "FERT_KG_HA" : "SEED_K_HA";
        frames = 0;
        isLoading = true;
        const LoadReport report = open("three-zones.geojson", {column});
        isLoading = false;
        QVERIFY2(report.isOk(), qPrintable(report.error));
        QVERIFY(frames > 0);
        QCOMPARE(terminal().touch(QPointF(0, 0)),
                 i % 2 == 0 ? QStringLiteral("Rx Rate: 150.00") : QStringLiteral("Rx Rate: 80.00"));
    }
    QCOMPARE(terminal().broker()->findGroup("rxMap.*", true, false).size(), 1);
}

void TestTerminal::unloadingWhileDrawingLeavesTheGround()
{
    const LoadReport report = open("three-zones.geojson", {"SEED_K_HA"});
    terminal().touch(QPointF(0, 0));
    QVERIFY(terminal().close(report.group));
    terminal().window()->fieldView()->repaint();
    QCOMPARE(terminal().mapColor(QPointF(0, 0)), FieldScene::groundColor());
    QCOMPARE(terminal().touch(QPointF(0, 0)), QString());
    QVERIFY(terminal().window()->legend()->classTexts().isEmpty());
    QVERIFY(!terminal().bounds());
    QVERIFY(!terminal().close(report.group));
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
    QFile source(TerminalHost::fixture("overlap.geojson"));
    QFile far(folder.filePath(QStringLiteral("far.geojson")));
    QVERIFY(source.open(QIODevice::ReadOnly) && far.open(QIODevice::WriteOnly));
    far.write(source.readAll().replace("5500", "5530"));
    far.close();
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    const QRectF near = terminal().bounds().value();
    const LoadReport report = terminal().open(far.fileName(), {QString(), QStringLiteral("rate")});
    QVERIFY(report.isOk());
    QVERIFY(report.warnings.join(QLatin1Char(' ')).contains(QStringLiteral("30 km")));
    QCOMPARE(terminal().bounds().value(), near);
    terminal().machine()->setActiveProduct(2);
    QCOMPARE(terminal().bounds().value(), report.bounds);
    // The field view stands over the map that it shows.
    QVERIFY(terminal().mapColor(report.bounds.topLeft() + QPointF(1.0, 1.0)) != FieldScene::groundColor());
    terminal().machine()->setActiveProduct(3);
    QCOMPARE(terminal().bounds().value(), report.bounds);
    QVERIFY(terminal().close(report.group));
    QCOMPARE(terminal().bounds().value(), near);
}

void TestTerminal::aBadFileLeavesTheMapAsItWas()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    const QColor before = terminal().mapColor(QPointF(0, 0));
    for (const QString &path : {QStringLiteral("/no/such.shp"), TerminalHost::fixture("README.md")}) {
        const LoadReport report = terminal().open(path, {});
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

void TestTerminal::theBubbleShowsWhatIsSaidAndGoes()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA", "FERT_KG_HA"}).isOk());
    MapOverlay *overlay = terminal().window()->overlay();
    FieldView *view = terminal().window()->fieldView();
    const auto touchView = [view](const QPointF &field) {
        QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, view->camera().project(field).value().toPoint());
    };
    touchView(QPointF(-100, 0));
    QCOMPARE(overlay->bubbleText(), QStringLiteral("Rx Rate: 70.00"));
    touchView(QPointF(100, 0));
    QCOMPARE(overlay->bubbleText(), QStringLiteral("Rx Rate: 90.00"));
    touchView(QPointF(0, 90));
    QCOMPARE(overlay->bubbleText(), QString());
    touchView(QPointF(100, 0));
    terminal().machine()->setActiveProduct(2);
    QCOMPARE(overlay->bubbleText(), QString());
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

void TestTerminal::boundsAreThoseOfEverythingLoaded()
{
    QVERIFY(!terminal().bounds());
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    const QRectF bounds = terminal().bounds().value();
    QVERIFY(std::abs(bounds.width() - 300.0) < 1.0);
    QVERIFY(std::abs(bounds.height() - 100.0) < 1.0);
    const LoadReport other = terminal().openFor(TerminalHost::fixture("overlap.geojson"), {2});
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

QTEST_MAIN(TestTerminal)
#include "tst_terminal.moc"
