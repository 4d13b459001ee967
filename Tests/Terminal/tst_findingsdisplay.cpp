#include "fieldview.h"
#include "findingunits.h"
#include "layerwriter.h"
#include "machine.h"
#include "mapoverlay.h"
#include "terminaltest.h"
#include "terminalwindow.h"
#include "theme.h"

#include <QAbstractButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>

/// How the operator sees what the map check finds.
class TestFindingsDisplay : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void aCleanMapShowsNoButton();
    void theButtonCountsAndGoesWithTheMap();
    void aMapThatFeedsNothingIsNotCounted();
    void aTouchedFindingIsShownOnTheMap();
    void theMapOfATouchedFindingIsShown();
    void theProductOfATouchedFindingIsShown();
    void whatLiesNowhereCannotBeTouched();
    void figuresAreInTheOperatorsUnits_data();
    void figuresAreInTheOperatorsUnits();
    void areasAreWrittenAsTheDisplayDoes_data();
    void areasAreWrittenAsTheDisplayDoes();

private:
    QAbstractButton *button(const char *name) { return find<QAbstractButton>(name); }
    template <typename Widget> Widget *find(const char *name)
    {
        return terminal().window()->findChild<Widget *>(QLatin1String(name));
    }
};

void TestFindingsDisplay::aCleanMapShowsNoButton()
{
    QSignalSpy checked(terminal().backend(), &PrescriptionBackend::checked);
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    QVERIFY(checked.wait());
    QVERIFY(!button("findingsButton")->isVisible());
    QVERIFY(!find<QWidget>("findingsPage")->isVisible());
}

void TestFindingsDisplay::theButtonCountsAndGoesWithTheMap()
{
    const LoadReport overlap = open("overlap.geojson", {"rate"});
    QTRY_VERIFY(button("findingsButton")->isVisible());
    QCOMPARE(button("findingsButton")->text(), QStringLiteral("2"));
    QVERIFY(!find<QWidget>("findingsPage")->isVisible());
    QVERIFY(open("bow-tie.geojson", {QString(), "rate"}).isOk());
    QTRY_COMPARE(button("findingsButton")->text(), QStringLiteral("4"));
    QVERIFY(terminal().close(overlap.group));
    QCOMPARE(button("findingsButton")->text(), QStringLiteral("2"));
}

void TestFindingsDisplay::aMapThatFeedsNothingIsNotCounted()
{
    QVERIFY(open("overlap.geojson", {"rate"}).isOk());
    QTRY_VERIFY(button("findingsButton")->isVisible());
    const LoadReport zones = open("three-zones.geojson", {"SEED_K_HA"});
    QVERIFY(!button("findingsButton")->isVisible());
    QVERIFY(terminal().close(zones.group));
    QCOMPARE(button("findingsButton")->text(), QStringLiteral("2"));
    QVERIFY(button("findingsButton")->isVisible());
}

void TestFindingsDisplay::aTouchedFindingIsShownOnTheMap()
{
    QVERIFY(open("overlap.geojson", {"rate"}).isOk());
    QTRY_VERIFY(button("findingsButton")->isVisible());
    button("findingsButton")->click();
    QVERIFY(find<QWidget>("findingsPage")->isVisible());
    QVERIFY(button("finding1")->text().contains(QStringLiteral("overlap")));
    QVERIFY(button("finding1")->height() >= 56);
    const double before = terminal().window()->fieldView()->camera().distance();
    button("finding1")->click();
    QVERIFY(!find<QWidget>("findingsPage")->isVisible());
    const Camera &camera = terminal().window()->fieldView()->camera();
    QVERIFY(camera.distance() < before);
    const auto marked = [this] {
        const QImage image = terminal().window()->overlay()->grab().toImage();
        int pixels = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                pixels += image.pixelColor(x, y) == Theme::colors().accent ? 1 : 0;
        }
        return pixels;
    };
    // A touch on the marked place keeps the mark, a touch elsewhere removes it.
    QVERIFY(terminal().touch(camera.target()).startsWith(QStringLiteral("Rx Rate")));
    const int withMark = marked();
    terminal().touch(camera.target() + QPointF(5000.0, 0.0));
    QVERIFY2(marked() < withMark, qPrintable(QString::number(withMark)));
}

void TestFindingsDisplay::theMapOfATouchedFindingIsShown()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    QVERIFY(open("overlap.geojson", {QString(), "rate"}).isOk());
    QTRY_VERIFY(button("findingsButton")->isVisible());
    QCOMPARE(terminal().machine()->activeProduct(), 1);
    button("findingsButton")->click();
    button("finding1")->click();
    QCOMPARE(terminal().machine()->activeProduct(), 2);
}

void TestFindingsDisplay::theProductOfATouchedFindingIsShown()
{
    QVERIFY(open("partly-without-rate.geojson", {"seed_rate", "fert_rate"}).isOk());
    QTRY_VERIFY(button("findingsButton")->isVisible());
    const auto touchGapsOf = [this](const QString &column) {
        button("findingsButton")->click();
        const auto *page = find<QWidget>("findingsPage");
        const QRegularExpression names(QStringLiteral("^finding\\d+$"));
        for (QAbstractButton *finding : page->findChildren<QAbstractButton *>(names)) {
            if (finding->text().contains(QStringLiteral("no rate in column")) && finding->text().contains(column))
                return finding->click();
        }
    };
    touchGapsOf(QStringLiteral("fert_rate"));
    QCOMPARE(terminal().machine()->activeProduct(), 2);
    touchGapsOf(QStringLiteral("seed_rate"));
    QCOMPARE(terminal().machine()->activeProduct(), 1);
}

void TestFindingsDisplay::whatLiesNowhereCannotBeTouched()
{
    QVERIFY(open("overlap.geojson", {"rate"}).isOk());
    QTRY_VERIFY(button("findingsButton")->isVisible());
    button("findingsButton")->click();
    QVERIFY(button("finding0")->text().contains(QStringLiteral("unit")));
    QVERIFY(!button("finding0")->isEnabled());
    button("findingsClose")->click();
    QVERIFY(!find<QWidget>("findingsPage")->isVisible());
}

void TestFindingsDisplay::figuresAreInTheOperatorsUnits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasArea");
    QTest::addColumn<QString>("metric");
    QTest::addColumn<QString>("us");
    const auto row = [](const char *text, bool hasArea, const char *metric, const char *us) {
        QTest::newRow(text) << text << hasArea << QString::fromUtf8(metric) << QString::fromUtf8(us);
    };
    row("record 3 is only 0.25 m wide", true, "record 3 is only 0.25 m wide", "record 3 is only 0.82 ft wide");
    row("no polygon covers 50.0 m2 inside the field (2.5 m wide)", true,
        "no polygon covers 50.0 m\u00b2 inside the field (2.5 m wide)",
        "no polygon covers 538.2 ft\u00b2 inside the field (8.2 ft wide)");
    row("7,50 m2 und 5000,0 m2, 12 m breit", true, "7.50 m\u00b2 und 0.50 ha, 12.0 m breit",
        "80.7 ft\u00b2 und 1.24 ac, 39.4 ft breit");
    row("9 in column \"Depth 12 m\" (kg/ha) is far", true, "9 in column \"Depth 12 m\" (kg/ha) is far",
        "9 in column \"Depth 12 m\" (kg/ha) is far");
    row("9 in Spalte „Tiefe 12 m“ (kg/ha), 3 m breit", true, "9 in Spalte „Tiefe 12 m“ (kg/ha), 3.0 m breit",
        "9 in Spalte „Tiefe 12 m“ (kg/ha), 9.8 ft breit");
    row("9 dans la colonne « Épaisseur 12 m » (kg/ha), 3 m de large", true,
        "9 dans la colonne « Épaisseur 12 m » (kg/ha), 3.0 m de large",
        "9 dans la colonne « Épaisseur 12 m » (kg/ha), 9.8 ft de large");
    row("9 na coluna “Fundo 12 m” (kg/ha), 3 m de largura", true, "9 na coluna “Fundo 12 m” (kg/ha), 3.0 m de largura",
        "9 na coluna “Fundo 12 m” (kg/ha), 9.8 ft de largura");
    row("huecos: 24 más, 3 m2 en total", true, "huecos: 24 más, 3.00 m\u00b2 en total",
        "huecos: 24 más, 32.3 ft\u00b2 en total");
    row("1700.5 in column \"Q 2000\" (lb/1000 ft2) of record 1234 is far from 12000 to 999", false,
        "1,700.5 in column \"Q 2000\" (lb/1000 ft2) of record 1234 is far from 12,000 to 999",
        "1,700.5 in column \"Q 2000\" (lb/1000 ft2) of record 1234 is far from 12,000 to 999");
    row("column 12 m has no unit", false, "column 12 m has no unit", "column 12 m has no unit");
}

void TestFindingsDisplay::figuresAreInTheOperatorsUnits()
{
    QFETCH(QString, text);
    QFETCH(bool, hasArea);
    MapFinding finding;
    finding.text = text;
    finding.records = {1234};
    if (hasArea)
        finding.area = 1.0;
    QTEST(FindingUnits(UnitSystem::Metric).textOf(finding), "metric");
    QTEST(FindingUnits(UnitSystem::Us).textOf(finding), "us");
    QTEST(FindingUnits(UnitSystem::Turf).textOf(finding), "us");
}

void TestFindingsDisplay::areasAreWrittenAsTheDisplayDoes_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<double>("overlap");
    QTest::addColumn<QString>("area");
    QTest::newRow("large") << int(UnitSystem::Metric) << 0.0005 << " on 0\\.40 ha$";
    QTest::newRow("large, in acres") << int(UnitSystem::Us) << 0.0005 << " on 0\\.9[89] ac$";
    QTest::newRow("small") << int(UnitSystem::Us) << 0.0001 << QStringLiteral(" on 8,[0-9]{3}\\.[0-9] ft\u00b2$");
    QTest::newRow("small, in square metres")
        << int(UnitSystem::Metric) << 0.0001 << QStringLiteral(" on 79[0-9]\\.[0-9] m\u00b2$");
}

void TestFindingsDisplay::areasAreWrittenAsTheDisplayDoes()
{
    QFETCH(int, units);
    QFETCH(double, overlap);
    QFETCH(QString, area);
    host.reset();
    host.reset(new TerminalHost(UnitSystem(units)));
    LayerSketch sketch;
    sketch.fields = {{"rate_kg_ha", 1.0}};
    sketch.rows = {{squareText(10, 50, 0.001), {50.0}}, {squareText(10.001 - overlap, 50, 0.001), {60.0}}};
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("two.shp"));
    QVERIFY(sketch.write(path));
    QVERIFY(terminal().open({{path}}).first().isOk());
    QTRY_VERIFY(button("finding0") != nullptr);
    const QString text = button("finding0")->text();
    QVERIFY2(QRegularExpression(area).match(text).hasMatch(), qPrintable(text));
}

RXMAP_TEST(TestFindingsDisplay, Widgets)
#include "tst_findingsdisplay.moc"
