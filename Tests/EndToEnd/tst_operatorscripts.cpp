#include "files.h"
#include "paths.h"
#include "simulatorrun.h"
#include "testbase.h"

#include <QTemporaryDir>

/// What an operator does, seen from outside: scripts drive the built simulator with the loaded plug-in.
class TestOperatorScripts : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void twoMapsShareProducts();
    void doneGivesEachOfTwoMapsItsOwnMappings();
    void aTouchTellsTheRateInEveryUnitSystem();
    void aNewMapIsShownAtOnce();
    void aFailedLoadLeavesEverythingAsItWas();
    void theLookAheadIsSeenInTheRates();
    void masterAndShutoffAreSeenInTheRates();
    void theFieldIsDrivenByTouch();
    void aFileIsOpenedThroughTheWindow();
    void whatTheWindowTookForGrantedIsOnStandardError();

private:
    /// Runs a script that uses check(condition, text); every complaint of it fails the test.
    static void runChecked(const QString &script, const QStringList &arguments = {});
};

namespace {

/// Zones feed products 1 to 3; strips over the two western zones feed products 1 and 3.
const QString twoMaps =
    QStringLiteral(R"js(
function openZones() {
  return terminal.open("%1", {columns: ["SEED_K_HA", "FERT_KG_HA", "HERB_L_HA"]});
}
function openStrips() { return terminal.open("%2", {columns: ["A", "", "B"]}); }
)js")
        .arg(sourcePath("Tests/fixtures/three-zones.geojson"), sourcePath("Tests/fixtures/two-strips.geojson"));

} // namespace

void TestOperatorScripts::runChecked(const QString &script, const QStringList &arguments)
{
    const SimulatorRun run = runOperatorScript(script, arguments);
    QVERIFY2(run.exitCode == 0, qPrintable(run.output.join(QLatin1Char('\n')) + run.errors));
    QVERIFY2(run.output.contains(QStringLiteral("finished")), qPrintable(run.output.join(QLatin1Char('\n'))));
}

void TestOperatorScripts::twoMapsShareProducts()
{
    runChecked(twoMaps + scriptText(QStringLiteral("shared-products.js")));
}

void TestOperatorScripts::doneGivesEachOfTwoMapsItsOwnMappings()
{
    runChecked(twoMaps + scriptText(QStringLiteral("shared-mappings.js")));
}

void TestOperatorScripts::aTouchTellsTheRateInEveryUnitSystem()
{
    QList<double> rates;
    for (const char *units : {"metric", "us", "turf"}) {
        const SimulatorRun run = runOperatorScript(QStringLiteral(R"js(
terminal.open(sample);
terminal.activeProduct = 2;
var b = terminal.bounds();
for (var i = 1; i < 20; ++i) {
  var text = terminal.touchMap(b.minX + (b.maxX - b.minX) * i / 20, (b.minY + b.maxY) / 2);
  if (text !== "") break;
}
check(/^Rx Rate: \d+\.\d\d$/.test(text), "the text is " + text);
print(text.substr(9));
)js"),
                                                   {QStringLiteral("--units"), QString::fromLatin1(units)});
        QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
        rates.append(run.output.constLast().toDouble());
    }
    QVERIFY(rates.at(0) > 0.0);
    // 1 lb = 0.45359237 kg, 1 ac = 0.40468564224 ha, 1000 ft² = 0.009290304 ha.
    QCOMPARE(QString::number(rates.at(1), 'f', 2), QString::number(rates.at(0) * 0.40468564224 / 0.45359237, 'f', 2));
    QCOMPARE(QString::number(rates.at(2), 'f', 2), QString::number(rates.at(0) * 0.009290304 / 0.45359237, 'f', 2));
}

void TestOperatorScripts::aNewMapIsShownAtOnce()
{
    runChecked(QStringLiteral(R"js(
var first = terminal.open(sample);
var b = terminal.bounds();
var x = b.minX, y = (b.minY + b.maxY) / 2;
while (terminal.touchMap(x, y) === "") x += (b.maxX - b.minX) / 40;
x += 5;
var shown = terminal.mapColor(x, y);
terminal.close(first.group);
check(terminal.touchMap(x, y) === "", "the closed map still answers");
var bare = terminal.mapColor(x, y);
check(JSON.stringify(bare) !== JSON.stringify(shown), "the closed map is still drawn");
terminal.open(sample);
same(terminal.mapColor(x, y), shown, "the map opened again");
print("finished");
)js"));
}

void TestOperatorScripts::aFailedLoadLeavesEverythingAsItWas()
{
    runChecked(QStringLiteral(R"js(
var first = terminal.open(sample);
var before = terminal.get(first.group, "polygonCount");
var reason = "";
try { terminal.open("/nowhere/missing.shp"); } catch (error) { reason = String(error); }
check(reason.indexOf("missing.shp") >= 0, "the reason names the file: " + reason);
same(terminal.groups("rxMap.*"), [first.group], "groups");
same(terminal.get(first.group, "polygonCount"), before, "polygons");
print("finished");
)js"));
}

void TestOperatorScripts::theLookAheadIsSeenInTheRates()
{
    const QTemporaryDir folder;
    runChecked(QStringLiteral("var zones = \"%1\"; var folder = \"%2\";\n")
                   .arg(sourcePath("Tests/fixtures/three-zones.geojson"), folder.path())
               + scriptText(QStringLiteral("look-ahead.js")));
    QCOMPARE(readFile(folder.filePath(QStringLiteral("rest.csv"))).count('\n'), 201);
}

void TestOperatorScripts::masterAndShutoffAreSeenInTheRates()
{
    runChecked(QStringLiteral("var zones = \"%1\";\n").arg(sourcePath("Tests/fixtures/three-zones.geojson"))
               + scriptText(QStringLiteral("shut-off-on-the-ground.js")));
}

void TestOperatorScripts::theFieldIsDrivenByTouch()
{
    runChecked(QStringLiteral("var pictures = \"\";\n") + scriptText(QStringLiteral("drive-by-touch.js")));
}

void TestOperatorScripts::aFileIsOpenedThroughTheWindow()
{
    runChecked(QStringLiteral(R"js(
function seen(name) { const control = terminal.find(name); return control !== null && control.visible; }
check(seen("openAccept"), "the window shows the file");
check(terminal.groups("rxMap.*").length === 0, "nothing is opened yet");
for (const name of ["columnRow1Unit", "unitAmount5", "unitArea1", "unitAccept", "openAccept"])
  terminal.find(name).touch();
for (let i = 0; i < 400 && seen("openWindow"); ++i) terminal.wait(25);
check(terminal.groups("rxMap.*").length === 1, "the file is opened");
terminal.activeProduct = 2;
// 120.5 lb/ac.
check(terminal.touchMap(-100, 0).includes("135.06"), terminal.touchMap(-100, 0));
print("finished");
)js"),
               {QStringLiteral("--open"), sourcePath("Tests/fixtures/three-zones.geojson")});
}

void TestOperatorScripts::whatTheWindowTookForGrantedIsOnStandardError()
{
    const SimulatorRun run =
        runOperatorScript(QStringLiteral(R"js(
for (const name of ["openAccept", "choice0"]) terminal.find(name).touch();
for (let i = 0; i < 400 && terminal.groups("rxMap.*").length === 0; ++i) terminal.wait(25);
)js"),
                          {QStringLiteral("--open"), sourcePath("Tests/fixtures/two-strips.geojson")});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.errors.contains("two-strips.geojson: ") && run.errors.contains("is a guess"), qPrintable(run.errors));
}

RXMAP_TEST(TestOperatorScripts, Widgets)
#include "tst_operatorscripts.moc"
