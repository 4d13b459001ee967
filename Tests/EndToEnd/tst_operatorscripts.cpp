#include "paths.h"
#include "simulatorrun.h"
#include "testbase.h"

#include <QFile>
#include <QTemporaryDir>

/// What an operator does, from the outside: the built simulator with the loaded plug-in, driven by scripts.
class TestOperatorScripts : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theWholeRoundTripOfTheSettings();
    void theDialogLocksWhileTheVehicleDrivesOff();
    void doneWhileMovingWritesNothing();
    void twoMapsShareProducts();
    void doneGivesEachOfTwoMapsItsOwnMappings();
    void aTouchTellsTheRateInEveryUnitSystem();
    void aNewMapIsShownAtOnce();
    void aProductNotUnderControlShowsItsMessage();
    void aFailedLoadLeavesEverythingAsItWas();

private:
    /// Runs a script that uses check(condition, text); everything it complains of fails the test.
    static void runChecked(const QString &script, const QStringList &arguments = {});
};

namespace {

const QString helpers = QStringLiteral(R"js(
function check(condition, text) { if (!condition) throw new Error(text); }
function same(actual, expected, text) {
  var a = JSON.stringify(actual), e = JSON.stringify(expected);
  if (a !== e) throw new Error(text + ": " + a + " instead of " + e);
}
function control(name) {
  var found = terminal.find(name);
  check(found !== null, "no control " + name);
  return found;
}
function openDialog() {
  control("rxOptions").longTouch();
  check(terminal.find("rxMapSettings") !== null, "the dialog did not open");
}
function done() {
  control("doneButton").touch();
  terminal.wait(50);
  check(terminal.find("rxMapSettings") === null, "the dialog did not close");
}
var sample = "%1";
)js");

/// Zones that feed products 1 to 3, and strips over the western two of the zones that feed products 1 and 3.
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
    const SimulatorRun run = runScript(helpers.arg(sampleField()) + script, arguments);
    QVERIFY2(run.exitCode == 0, qPrintable(run.output.join(QLatin1Char('\n')) + run.errors));
    QVERIFY2(run.output.contains(QStringLiteral("finished")), qPrintable(run.output.join(QLatin1Char('\n'))));
}

void TestOperatorScripts::theWholeRoundTripOfTheSettings()
{
    runChecked(QStringLiteral(R"js(
var group = terminal.open(sample).group;
openDialog();
control("productButton1").touch();
control("lookAheadEdit").enter("2.5");
control("defaultRateEdit").enter("77.5");
control("zeroRateShutoffBox").touch();
control("applyToAllBox").touch();
same(control("applyToAllBox").image, 1, "apply to all");
done();
var settings = terminal.get(group, "settings");
same(settings[1].onLookAheadMs, 2500, "look-ahead");
same(settings.map(function (s) { return s.isMaster; }), [false, true, false], "master");
same(settings.map(function (s) { return s.zeroRateShutoff; }), [true, true, true], "shut-off");
same(terminal.get(group, "rateCalMappings")[1].defaultRate, 77.5, "default rate");
check(terminal.get("quillSpan", "reInit") === true, "no re-initialisation");
openDialog();
same(control("lookAheadEdit").text, "2.5", "look-ahead shown again");
same(control("defaultRateEdit").text, "77.5", "default rate shown again");
same(control("productButton1").image, 1, "master selected again");
done();
print("finished");
)js"));
}

void TestOperatorScripts::theDialogLocksWhileTheVehicleDrivesOff()
{
    runChecked(QStringLiteral(R"js(
var group = terminal.open(sample).group;
openDialog();
control("lookAheadEdit").enter("3.5");
terminal.drive(3);
terminal.wait(700);
check(control("vehicleMovingLabel").visible, "no message");
check(!control("lookAheadEdit").enabled, "still editable");
same(control("doneButton").image, 1, "Cancel");
terminal.stop();
terminal.wait(700);
check(!control("vehicleMovingLabel").visible, "message stays");
check(control("lookAheadEdit").enabled, "stays locked");
same(control("doneButton").image, 0, "Done");
done();
same(terminal.get(group, "settings")[0].onLookAheadMs, 3500, "look-ahead");
print("finished");
)js"));
}

void TestOperatorScripts::doneWhileMovingWritesNothing()
{
    runChecked(QStringLiteral(R"js(
var group = terminal.open(sample).group;
var before = terminal.get(group, "settings");
openDialog();
control("lookAheadEdit").enter("9.5");
terminal.drive(5);
terminal.wait(700);
done();
same(terminal.get(group, "settings"), before, "settings");
print("finished");
)js"));
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
        const SimulatorRun run = runScript(helpers.arg(sampleField()) + QStringLiteral(R"js(
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

void TestOperatorScripts::aProductNotUnderControlShowsItsMessage()
{
    QTemporaryDir folder;
    const QString products = folder.filePath(QStringLiteral("products.json"));
    QFile file(products);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        R"([{"name":"Seed","kind":"weight","bin":1},{"name":"Water","kind":"volume","bin":2,"underVra":false}])");
    file.close();
    runChecked(QStringLiteral(R"js(
terminal.open(sample, {columns: ["FERT_KG_HA"]});
openDialog();
check(control("lookAheadEdit").visible, "the first product has its controls");
control("productButton1").touch();
check(control("notUnderVraLabel").visible, "no message");
check(!control("lookAheadEdit").visible, "controls of a product that is not under control");
control("productButton0").touch();
check(!control("notUnderVraLabel").visible, "the message stays");
done();
print("finished");
)js"),
               {QStringLiteral("--products"), products});
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

QTEST_MAIN(TestOperatorScripts)
#include "tst_operatorscripts.moc"
