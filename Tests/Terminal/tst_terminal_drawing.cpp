#include "activemap.h"
#include "fieldscene.h"
#include "fieldview.h"
#include "files.h"
#include "legendpanel.h"
#include "machine.h"
#include "mapoverlay.h"
#include "paintedtexts.h"
#include "terminaltest.h"
#include "terminalwindow.h"

#include <QFile>
#include <QTemporaryDir>

#include <cmath>

namespace {

/// Writes a map of cells in a row, with the rates 1, 2, ... in the column RATE; returns its path.
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
    return writeFile(
        folder.filePath(QStringLiteral("row.geojson")),
        QStringLiteral(R"({"type":"FeatureCollection","features":[%1]})").arg(features.join(',')).toUtf8());
}

} // namespace

/// What the display shows of the maps: their colours, the legend and the bubble.
class TestTerminalDrawing : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void aMapIsDrawnAsSoonAsItIsLoaded();
    void everyClassOfTheLegendIsSeenHalfTransparentOverTheGround_data();
    void everyClassOfTheLegendIsSeenHalfTransparentOverTheGround();
    void whatIsDrawnIsWhatIsAnswered_data();
    void whatIsDrawnIsWhatIsAnswered();
    void theLegendNamesRatesOrRangesAsTheMapHasThem();
    void anotherProductIsDrawnAtOnce();
    void loadingAgainWhileDrawingReplacesTheMap();
    void unloadingWhileDrawingLeavesTheGround();
    void theBubbleShowsWhatIsSaidAndGoes();

private:
    /// Colour distance that rounding during blending may cause.
    static constexpr int blendTolerance = 2;

    static bool isNear(const QColor &a, const QColor &b);
    /// The texts of the legend that give its classes' rates.
    QStringList classesShown();
    /// The texts of the bubbles on the map.
    QStringList bubblesShown();
};

bool TestTerminalDrawing::isNear(const QColor &a, const QColor &b)
{
    return std::abs(a.red() - b.red()) <= blendTolerance && std::abs(a.green() - b.green()) <= blendTolerance
        && std::abs(a.blue() - b.blue()) <= blendTolerance;
}

QStringList TestTerminalDrawing::classesShown()
{
    const QStringList texts = paintedTexts(*terminal().window()->legend());
    if (terminal().activeColumn().isEmpty())
        return texts.mid(1);
    // Product, column, origin of the unit and units come first; areas stand beside the rates; two sums of two texts
    // follow.
    QStringList rates;
    for (int i = 5; i + 4 < texts.size(); i += 2)
        rates.append(texts.at(i));
    return rates;
}

QStringList TestTerminalDrawing::bubblesShown()
{
    return paintedTexts(*terminal().window()->overlay()).filter(QStringLiteral("Rx Rate"));
}

void TestTerminalDrawing::aMapIsDrawnAsSoonAsItIsLoaded()
{
    QCOMPARE(terminal().mapColor(QPointF(0, 0)), FieldScene::groundColor());
    const LoadReport report = open("three-zones.geojson", {"SEED_K_HA"});
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QVERIFY(terminal().mapColor(QPointF(0, 0)) != FieldScene::groundColor());
    QCOMPARE(terminal().touch(QPointF(0, 0)), QStringLiteral("Rx Rate: 80.00"));
    QCOMPARE(classesShown().size(), report.legends.first().size());
}

void TestTerminalDrawing::everyClassOfTheLegendIsSeenHalfTransparentOverTheGround_data()
{
    QTest::addColumn<int>("product");
    QTest::newRow("first column") << 1;
    QTest::newRow("second column") << 2;
    QTest::newRow("third column") << 3;
}

void TestTerminalDrawing::everyClassOfTheLegendIsSeenHalfTransparentOverTheGround()
{
    QFETCH(int, product);
    const LoadReport report =
        terminal().open({{TerminalHost::sampleField()}, {"SEED_KS_HA", "FERT_KG_HA", "HERB_L_HA"}}).first();
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QVERIFY(terminal().machine()->setActiveProduct(product));
    const ActiveMap map = ActiveMap::find(*terminal().broker(), Machine::productGroupName(product));

    QMap<QString, int> seen;
    const QRectF area = terminal().bounds().value();
    for (double x = area.left() + 3.0; x < area.right(); x += 7.0) {
        for (double y = area.top() + 3.0; y < area.bottom(); y += 7.0) {
            const QColor expected = terminal().answerAt(QPointF(x, y)).color;
            if (expected.isValid() && isNear(terminal().mapColor(QPointF(x, y)), FieldScene::onGround(expected)))
                ++seen[expected.name()];
        }
    }
    for (const OrvikTypes::RX_RATECOLOR &entry : map.legend)
        QVERIFY2(seen.value(entry.color.name()) > 10, qPrintable(QStringLiteral("class up to %1").arg(entry.rate)));
}

void TestTerminalDrawing::whatIsDrawnIsWhatIsAnswered_data()
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
    QTest::newRow("two zones") << realData("zones-geojson/*_test.geojson") << "DOSE";
}

void TestTerminalDrawing::whatIsDrawnIsWhatIsAnswered()
{
    QFETCH(QString, file);
    QFETCH(QString, column);
    const LoadReport report = terminal().open({{file}, {column}}).first();
    QVERIFY2(report.isOk(), qPrintable(report.error));
    const auto colorOf = [&](const QPointF &point) {
        const QColor color = terminal().answerAt(point).color;
        return color.isValid() ? FieldScene::onGround(color) : FieldScene::groundColor();
    };
    const QRectF area = terminal().bounds().value();
    int compared = 0;
    int disagreeing = 0;
    QString first;
    for (int i = 0; i < 4000; ++i) {
        // A low-discrepancy sequence over the field.
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

void TestTerminalDrawing::theLegendNamesRatesOrRangesAsTheMapHasThem()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA", "FERT_KG_HA"}).isOk());
    QCOMPARE(classesShown(), (QStringList{"70", "80", "90"}));
    QVERIFY(terminal().machine()->setActiveProduct(2));
    QCOMPARE(classesShown(), (QStringList{"0", "120.5", "150"}));
    // Another file now feeds the first product, with more rates than the legend has classes.
    QTemporaryDir folder;
    QVERIFY2(terminal().open({{writeRow(folder, 20)}, {"RATE"}}).first().isOk(), "twenty rates");
    QVERIFY(terminal().machine()->setActiveProduct(1));
    QCOMPARE(classesShown().size(), 7);
    QVERIFY(classesShown().first().startsWith(QStringLiteral("\u2264 ")));
    QCOMPARE(classesShown().filter(QStringLiteral(" \u2013 ")).size(), 6);
}

void TestTerminalDrawing::anotherProductIsDrawnAtOnce()
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

void TestTerminalDrawing::loadingAgainWhileDrawingReplacesTheMap()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    FieldView *view = terminal().window()->fieldView();
    // The view keeps drawing while each load runs.
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

void TestTerminalDrawing::unloadingWhileDrawingLeavesTheGround()
{
    const LoadReport report = open("three-zones.geojson", {"SEED_K_HA"});
    terminal().touch(QPointF(0, 0));
    QVERIFY(terminal().close(report.group));
    terminal().window()->fieldView()->repaint();
    QCOMPARE(terminal().mapColor(QPointF(0, 0)), FieldScene::groundColor());
    QCOMPARE(terminal().touch(QPointF(0, 0)), QString());
    QCOMPARE(classesShown(), QStringList(QStringLiteral("No map")));
    QVERIFY(!terminal().bounds());
    QVERIFY(!terminal().close(report.group));
}

void TestTerminalDrawing::theBubbleShowsWhatIsSaidAndGoes()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA", "FERT_KG_HA"}).isOk());
    FieldView *view = terminal().window()->fieldView();
    const auto touchView = [view](const QPointF &field) {
        QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, view->camera().project(field).value().toPoint());
    };
    touchView(QPointF(-100, 0));
    QCOMPARE(bubblesShown(), QStringList(QStringLiteral("Rx Rate: 70.00")));
    touchView(QPointF(100, 0));
    QCOMPARE(bubblesShown(), QStringList(QStringLiteral("Rx Rate: 90.00")));
    touchView(QPointF(0, 90));
    QCOMPARE(bubblesShown(), QStringList());
    touchView(QPointF(100, 0));
    terminal().machine()->setActiveProduct(2);
    QCOMPARE(bubblesShown(), QStringList());
}

RXMAP_TEST(TestTerminalDrawing, Widgets)
#include "tst_terminal_drawing.moc"
