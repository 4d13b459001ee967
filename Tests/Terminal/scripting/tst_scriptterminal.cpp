#include "machine.h"
#include "scriptterminal.h"
#include "simulation.h"
#include "terminalhost.h"
#include "testbase.h"
#include "vehicle.h"

#include <QEventLoop>
#include <QImage>
#include <QJSEngine>
#include <QTemporaryDir>
#include <QThread>

/// Every call that scripts can make, on a terminal with the plug-in. Each test starts without a map and with product 1.
class TestScriptTerminal : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void callsDoWhatTheySay_data();
    void callsDoWhatTheySay();
    void failuresAreThrownWithTheirReason_data();
    void failuresAreThrownWithTheirReason();
    void aPictureOfTheWholeWindowIsSaved();
    void theTerminalIsChangedOnTheUserInterfaceThread();
    void anInterruptEndsAWait();

private:
    /// Runs a program on a thread of its own; returns what it throws, empty for nothing.
    QString run(const QString &program);

    QScopedPointer<TerminalHost> host;
    QScopedPointer<QTemporaryDir> folder;
    std::atomic<bool> isInterrupted{false};
};

void TestScriptTerminal::initTestCase()
{
    folder.reset(new QTemporaryDir);
    host.reset(new TerminalHost);
    QCOMPARE(host->problem(), QString());
}

void TestScriptTerminal::init()
{
    TestBase::init();
    isInterrupted = false;
    Terminal &terminal = host->terminal();
    for (const LoadReport &map : terminal.backend()->maps())
        QVERIFY(terminal.close(map.group));
    QVERIFY(terminal.machine()->setActiveProduct(1));
    terminal.vehicle()->stop();
    terminal.vehicle()->setSize(MachineSize());
    terminal.vehicle()->shuttle();
    QVERIFY(terminal.simulation()->setTimeFactor(1.0));
}

void TestScriptTerminal::cleanupTestCase()
{
    host.reset();
}

QString TestScriptTerminal::run(const QString &program)
{
    QString thrown;
    QEventLoop loop;
    const QScopedPointer<QThread> thread(QThread::create([&] {
        QJSEngine engine;
        ScriptTerminal calls(&host->terminal(), &isInterrupted, &engine);
        engine.globalObject().setProperty(QStringLiteral("terminal"), engine.newQObject(&calls));
        const QJSValue result = engine.evaluate(TerminalHost::scriptStart(folder->path()) + program);
        thrown = result.isError() ? result.toString() : QString();
    }));
    connect(thread.data(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    return thrown;
}

void TestScriptTerminal::callsDoWhatTheySay_data()
{
    QTest::addColumn<QString>("program");
    const auto row = [](const char *name, const char *program) { QTest::newRow(name) << QString::fromUtf8(program); };
    row("open",
        "var m = terminal.open(zones, {columns: ['SEED_K_HA', '', 'HERB_L_HA']});"
        "same(m.group, 'rxMap.three-zones.geojson'); same(m.polygons, 3); same(m.outers, 3); same(m.holes, 0);"
        "same(m.columns, ['SEED_K_HA', 'HERB_L_HA']); same(m.repaired, 0); same(m.skipped, 0);"
        "same(m.warnings, []); same(m.legend.map(function (c) { return c.rate; }), [70, 80, 90]);"
        "same(/^#[0-9a-f]{6}$/.test(m.legend[0].color), true);"
        "m.legend.forEach(function (c) { same(c.area > 0, true); }); same(Object.keys(m.origin), ['lat', 'lon']);");
    row("open says where rates come from",
        "var m = terminal.open(zones, {columns: ['', 'FERT_KG_HA', 'zone_id'], units: [null, 'lbs/acre']});"
        "same(m.sources, [{column: 'FERT_KG_HA', product: 2, sure: true, unit: 'lb/ac', unitFrom: 'operator'},"
        " {column: 'zone_id', product: 3, sure: true, unit: 'L/ha', unitFrom: 'assumed'}]);"
        "same(m.legends[1][0].rate, 1);"
        "same(m.warnings.length, 1);"
        "same(terminal.open(zones).sources[0],"
        " {column: 'SEED_K_HA', product: 1, sure: true, unit: 'k/ha', unitFrom: 'name'});");
    row("open for the active product",
        "terminal.activeProduct = 2;"
        "var m = terminal.open(zones, {columns: ['SEED_K_HA', 'FERT_KG_HA']});"
        "same(m.legend[0].rate, 0); same(m.legends.length, 2);");
    row("open with gaps in a column",
        "var m = terminal.open(zones.replace('three-zones', 'partly-without-rate'));"
        "same(m.legends.map(function (l) { return l.length; }), [2, 2]); same(m.legend, m.legends[0]);"
        "terminal.set(m.group, 'rateColors', terminal.get(m.group, 'rateColors'));"
        "same(terminal.get(m.group, 'rateColors')[0][2].color, '#00000000');");
    row("open with products left out",
        "['', null, undefined].forEach(function (none) {"
        " same(terminal.open(zones, {columns: [none, 'FERT_KG_HA']}).columns, ['FERT_KG_HA']);"
        " same(terminal.get('rxMap.three-zones.geojson', 'rateCalMappings')[0].rateCalName,"
        " 'system.productGroup.2'); });");
    row("open reads its options once",
        "var reads = 0; var options = {get columns() { ++reads; return ['SEED_K_HA']; }};"
        "terminal.open(zones, options); same(reads, 1);");
    row("open a layer by name",
        "same(terminal.open(zones, {layer: 'three-zones', task: ''}).columns[0], 'SEED_K_HA');");
    row("open with likely columns", "same(terminal.open(sample).columns.length, 3);");
    row("close",
        "var m = terminal.open(zones); terminal.close(m.group); same(terminal.groups('rxMap.*'), []);"
        "same(terminal.bounds(), null);");
    row("active product",
        "same(terminal.activeProduct, 1); terminal.activeProduct = 3; same(terminal.activeProduct, 3);");
    row("touch the map",
        "same(terminal.touchMap(0, 0), ''); terminal.open(zones, {columns: ['SEED_K_HA']});"
        "same(terminal.touchMap(-100, 0), 'Rx Rate: 70.00'); same(terminal.touchMap(0, 400), '');");
    row("bounds",
        "same(terminal.bounds(), null); terminal.open(zones); var b = terminal.bounds();"
        "same(Math.round(b.maxX - b.minX), 300); same(Math.round(b.maxY - b.minY), 100);");
    row("degrees and metres",
        "var o = terminal.open(zones).origin; var p = terminal.toField(o.lon, o.lat);"
        "same(Math.abs(p.x) < 0.001 && Math.abs(p.y) < 0.001, true);"
        "var e = terminal.toEarth(-100, 20); same(e.lon < o.lon && e.lat > o.lat, true);"
        "var b = terminal.toField(e.lon, e.lat); same(Math.round(b.x * 1000), -100000);"
        "same(Math.round(b.y * 1000), 20000);");
    row("map colour",
        "var ground = terminal.mapColor(0, 0); same(ground.length, 3);"
        "terminal.open(zones, {columns: ['SEED_K_HA']}); var c = terminal.mapColor(0, 0);"
        "same(JSON.stringify(c) === JSON.stringify(ground), false); terminal.touchMap(0, 0);"
        "same(terminal.mapColor(0, 0), c); same(terminal.mapColor(0, 9999), ground);");
    row("find",
        "same(terminal.find('nobody'), null); var b = terminal.find('selectProduct2');"
        "same(b.text, 'Fertiliser'); same(b.visible, true); same(b.enabled, true); same(b.image, -1);"
        "same(b.width > 100 && b.height > 60 && b.x >= 0 && b.y >= 0, true);");
    row("find nothing",
        "same(terminal.find(''), null); same(terminal.find(null), null);"
        " same(terminal.find(undefined), null);");
    row("find what is hidden", "var e = terminal.find('guidancePage'); same(e !== null, true);");
    row("touch", "terminal.find('selectProduct3').touch(); same(terminal.activeProduct, 3);");
    row("a control outlives its widget",
        "var b = terminal.find('rxOptions'); same(b.image, 1);"
        "terminal.open(zones); same(b.image, 0);");
    row("get",
        "same(terminal.get('system.current.job', 'activeAAMGroupName'), 'system.aam.1');"
        "same(terminal.get('mainGpsSolution', 'vehicleIsStopped'), true);"
        "var m = terminal.open(zones, {columns: ['SEED_K_HA']});"
        "same(terminal.get(m.group, 'rateCalMappings')[0].dbfColumnName, 'SEED_K_HA');"
        "same(terminal.get(m.group, 'settings').length, 3); same(terminal.get(m.group, 'polygonCount'), 3);");
    row("set",
        "terminal.set('mainGpsSolution', 'position', {x: 1, y: 2});"
        "same(terminal.get('mainGpsSolution', 'position'), {x: 1, y: 2, z: 0});"
        "var n = terminal.get('quillSpan', 'reInitCount'); terminal.set('quillSpan', 'reInit', true);"
        "same(terminal.get('quillSpan', 'reInitCount'), n + 1);"
        "var m = terminal.open(zones); var s = terminal.get(m.group, 'settings'); s[1].onLookAheadMs = 750;"
        "terminal.set(m.group, 'settings', s); same(terminal.get(m.group, 'settings')[1].onLookAheadMs, 750);");
    row("set shows at once",
        "var m = terminal.open(zones, {columns: ['SEED_K_HA']}); var c = terminal.mapColor(0, 0);"
        "var l = terminal.get(m.group, 'rateColors'); l[0].forEach(function (e) { e.color = '#000000'; });"
        "terminal.set(m.group, 'rateColors', l);"
        "terminal.set(m.group, 'polygonCount', terminal.get(m.group, 'polygonCount'));"
        "same(JSON.stringify(terminal.mapColor(0, 0)) === JSON.stringify(c), false);");
    row("groups", "same(terminal.groups('system.binGroup.*').length, 3); same(terminal.groups('nothing.*'), []);");
    row("drive and stop",
        "terminal.drive(5); same(terminal.get('mainGpsSolution', 'vehicleIsStopped'), false);"
        "var before = terminal.get('mainGpsSolution', 'position').y; terminal.wait(150);"
        "same(terminal.get('mainGpsSolution', 'position').y > before, true); terminal.stop();"
        "same(terminal.get('mainGpsSolution', 'vehicleIsStopped'), true);");
    row("follow swaths",
        "terminal.machine.timeFactor = 0; terminal.open(zones, {columns: ['SEED_K_HA']});"
        "var length = terminal.follow({kind: 'swaths', width: 20, angle: 90}); same(length > 5 * 300, true);"
        "var m = terminal.machine; same(m.mode, 'swaths'); same(m.timeFactor, 0); same(m.arrived, false);"
        "same(Math.round(m.x), -150); same(m.heading, 90); same(m.speed, 0);"
        "var before = m.worked; terminal.drive(4); terminal.run(10); same(Math.round(1e6 * m.speed), 4e6);"
        "same(Math.round(m.x), -118); same(Math.round(m.worked - before), 32 * 20);"
        "terminal.run(1000); same(m.arrived, true); same(m.speed, 0);");
    row("follow with headlands",
        "terminal.open(zones, {columns: ['SEED_K_HA']});"
        "var plain = terminal.follow({kind: 'swaths'});"
        "same(terminal.follow({kind: 'swaths', headlands: 1}) !== plain, true);");
    row("drive by hand",
        "terminal.machine.timeFactor = 0; terminal.follow({kind: 'hand'}); same(terminal.machine.mode, 'hand');"
        "terminal.steer(0.1); terminal.drive(2); terminal.run(5); same(terminal.machine.heading > 30, true);"
        "terminal.drive(-2); terminal.run(5); same(terminal.machine.speed, -2);");
    row("rates",
        "terminal.machine.timeFactor = 0; terminal.open(zones, {columns: ['SEED_K_HA']});"
        "same(terminal.rates(1).source, 'stopped'); same(terminal.rates(2).source, 'notControlled');"
        "same(terminal.rates(2).prescribed, null);"
        "terminal.follow({kind: 'swaths', angle: 90}); terminal.drive(3); terminal.run(10);"
        "var r = terminal.rates(1); same(r.prescribed, 70); same(r.commanded, 70); same(Math.round(r.applied), 70);"
        "same(r.source, 'prescription'); same(r.unit, 'k/ha');"
        "terminal.signal(false); terminal.run(2.5); same(terminal.rates(1).source, 'noPosition');"
        "terminal.signal(true); terminal.run(0.1); same(terminal.rates(1).source, 'prescription');");
    row("record",
        "terminal.record(folder + '/drive.csv'); terminal.run(1); terminal.record('');"
        "terminal.record(folder + '/drive.gpkg'); terminal.run(1); terminal.record('');");
    row("wait", "var start = Date.now(); terminal.wait(120); same(Date.now() - start >= 119, true);");
    row("caught errors do not count",
        "try { terminal.get('nothing', 'x'); } catch (e) { same(e instanceof Error, true); }");
}

void TestScriptTerminal::callsDoWhatTheySay()
{
    QFETCH(QString, program);
    QCOMPARE(run(program), QString());
}

void TestScriptTerminal::failuresAreThrownWithTheirReason_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const char *program, const char *reason) {
        QTest::newRow(name) << QString::fromUtf8(program) << QString::fromUtf8(reason);
    };
    row("missing file", "terminal.open('/no/such.shp');", "/no/such.shp: ");
    row("missing column", "terminal.open(zones, {columns: ['NOPE']});", "\"NOPE\"");
    row("columns no list", "terminal.open(zones, {columns: 'SEED_K_HA'});", "\"columns\" is no list");
    row("column an object", "terminal.open(zones, {columns: [{a: 1}]});", "entry 1 of \"columns\" is no text");
    row("column true", "terminal.open(zones, {columns: ['SEED_K_HA', true]});", "entry 2 of \"columns\" is no text");
    row("column a number", "terminal.open(zones, {columns: ['', null, 7]});", "entry 3 of \"columns\" is no text");
    row("column a list", "terminal.open(zones, {columns: [['SEED_K_HA']]});", "entry 1 of \"columns\" is no text");
    row("endless columns", "terminal.open(zones, {columns: new Array(4294967295)});",
        "\"columns\" has more than 16 entries");
    row("unknown option", "terminal.open(zones, {colums: ['SEED_K_HA']});",
        "\"colums\" is no option of open(); it knows columns, units, layer, task");
    row("units no list", "terminal.open(zones, {units: 'lb/ac'});", "\"units\" is no list");
    row("unit that is none", "terminal.open(zones, {units: ['bags']});", "\"bags\" is no unit of a rate");
    row("missing layer", "terminal.open(zones, {layer: 'north'});", "has no layer \"north\"");
    row("missing task", "terminal.open(zones, {task: 'spring'});", "has no task \"spring\"");
    row("layer a number", "terminal.open(zones, {layer: 1});", "\"layer\" is no text");
    row("options no object", "terminal.open(zones, ['SEED_K_HA']);", "the options of open() are no object");
    row("options a text", "terminal.open(zones, 'SEED_K_HA');", "the options of open() are no object");
    row("options null", "terminal.open(zones, null);", "the options of open() are no object");
    row("no such map", "terminal.close('rxMap.nothing');", "no map \"rxMap.nothing\" is loaded");
    row("no way to move", "terminal.follow({kind: 'fly'});", "\"kind\" is \"swaths\" or \"hand\"");
    row("unknown option of follow", "terminal.follow({kind: 'swaths', wide: 3});", "\"wide\" is no option of follow()");
    row("width in words", "terminal.open(zones); terminal.follow({kind: 'swaths', width: 'wide'});",
        "\"width\" is no number");
    row("no width", "terminal.open(zones); terminal.follow({kind: 'swaths', width: 0});",
        "a working width of 0 is out of range (0.5 to 200 m)");
    row("half a headland", "terminal.open(zones); terminal.follow({kind: 'swaths', headlands: 0.5});",
        "\"headlands\" is no whole number");
    row("field too narrow", "terminal.open(zones); terminal.follow({kind: 'swaths', width: 150});",
        "the field is 100.0 m wide, narrower than the machine's 150 m");
    row("no field", "terminal.follow({kind: 'swaths'});", "there is no field to drive");
    row("tight turn", "terminal.steer(1);", "tighter than the machine can turn");
    row("no track", "terminal.replay('/no/such.nmea');", "/no/such.nmea: there is no such file");
    row("a track without a name", "terminal.replay('');", "replay() needs the name of a file");
    row("a map without a name", "terminal.open(null);", "open() needs the name of a file");
    row("a track that is none", "terminal.replay(zones);", "holds no position; line 1: is no head");
    row("rates of no product", "terminal.rates(4);", "no product 4");
    row("record nowhere", "terminal.record('/nowhere/a.csv');", "/nowhere/a.csv: No such file or directory");
    row("run backwards", "terminal.run(-1);", "cannot run -1 s");
    row("time factor", "terminal.machine.timeFactor = 51;", "a time factor of 51 is out of range (0 to 50)");
    row("product 0", "terminal.activeProduct = 0;", "no product 0");
    row("product 4", "terminal.activeProduct = 4;", "no product 4");
    row("product 1.7", "terminal.activeProduct = 1.7;", "no product 1.7");
    row("product NaN", "terminal.activeProduct = NaN;", "no product NaN");
    row("endless product", "terminal.activeProduct = -Infinity;", "no product -Infinity");
    row("product beyond whole numbers", "terminal.activeProduct = 4294967297;", "no product 4294967297");
    row("product in words", "terminal.activeProduct = 'two';", "no product two");
    row("product true", "terminal.activeProduct = true;", "no product true");
    row("no field point to touch", "terminal.touchMap('a', 0);", "is no field point");
    row("degrees without a map", "terminal.toField(9, 48);", "(9, 48): no map is loaded");
    row("metres without a map", "terminal.toEarth(1, 2);", "(1, 2): no map is loaded");
    row("no degrees", "terminal.toField('north', 1);", "is no longitude and latitude");
    row("degrees out of range", "terminal.open(zones); terminal.toField(9, 91);",
        "(9, 91): is no longitude and latitude");
    row("degrees elsewhere", "terminal.open(zones); terminal.toField(-100, -40);", "(-100, -40): is more than 1000 km");
    row("no metres", "terminal.toEarth(NaN, 1);", "is no field point");
    row("metres elsewhere", "terminal.open(zones); terminal.toEarth(0, 2e6);", "(0, 2000000): is more than 1000 km");
    row("no field point", "terminal.mapColor(NaN, 0);", "is no field point");
    row("unknown group", "terminal.get('nothing', 'x');", "no group \"nothing\"");
    row("unknown property", "terminal.get('quillSpan', 'x');", "group \"quillSpan\" has no property \"x\"");
    row("set in unknown group", "terminal.set('nothing', 'x', 1);", "no group \"nothing\"");
    row("set unknown property", "terminal.set('quillSpan', 'x', 1);", "has no property \"x\"");
    row("set wrong type", "terminal.set('mainGpsSolution', 'position', 7);", "an object is expected");
    row("set refused", "terminal.set('mainGpsSolution', 'speed', 'fast');", "wrong type");
    row("set an address", "var m = terminal.open(zones); terminal.set(m.group, 'polygonBuffer', 1);", "cannot be set");
    row("backwards", "terminal.drive(-1);", "out of range");
    row("wait backwards", "terminal.wait(-5);", "cannot wait");
    row("picture in no folder", "terminal.screenshot('/no/such/folder/p.png');", "/no/such/folder/p.png: ");
    row("picture over another file",
        "terminal.record(folder + '/drive.csv'); terminal.run(1); terminal.record('');"
        "terminal.screenshot(folder + '/drive.csv');",
        "drive.csv: is there already and no PNG picture");
    row("picture without a name", "terminal.screenshot('');", "a picture needs a file name");
}

void TestScriptTerminal::failuresAreThrownWithTheirReason()
{
    QFETCH(QString, program);
    QFETCH(QString, reason);
    const QString error = run(program);
    QVERIFY2(error.startsWith(QLatin1String("Error: ")), qPrintable(error));
    QVERIFY2(error.contains(reason), qPrintable(error));
    QVERIFY2(!error.contains(QLatin1Char('\n')), qPrintable(error));
}

void TestScriptTerminal::aPictureOfTheWholeWindowIsSaved()
{
    QCOMPARE(run("terminal.screenshot(folder + '/picture.png');"), QString());
    const QImage picture(folder->filePath(QStringLiteral("picture.png")));
    QCOMPARE(picture.size(), QSize(1280, 800));
    QVERIFY(picture.pixel(640, 400) != picture.pixel(20, 20));
}

void TestScriptTerminal::theTerminalIsChangedOnTheUserInterfaceThread()
{
    QThread *ranOn = nullptr;
    connect(
        host->terminal().machine(), &Machine::activeProductChanged, this,
        [&ranOn] { ranOn = QThread::currentThread(); }, Qt::DirectConnection);
    QCOMPARE(run("terminal.activeProduct = 2;"), QString());
    disconnect(host->terminal().machine(), nullptr, this, nullptr);
    QCOMPARE(ranOn, thread());
}

void TestScriptTerminal::anInterruptEndsAWait()
{
    QTimer::singleShot(50, this, [this] { isInterrupted = true; });
    QCOMPARE(run("terminal.wait(1e9);"), QString());
}

RXMAP_TEST(TestScriptTerminal, Widgets)
#include "tst_scriptterminal.moc"
