#include "scriptrunner.h"
#include "terminalhost.h"
#include "terminalwindow.h"
#include "testbase.h"

#include <QApplication>
#include <QTemporaryDir>

#include <sys/stat.h>

/// Every call of the scripts, on a terminal with the plug-in.
class TestScriptRunner : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void callsDoWhatTheySay_data();
    void callsDoWhatTheySay();
    void failuresAreThrownWithTheirReason_data();
    void failuresAreThrownWithTheirReason();
    void anUncaughtErrorNamesFileAndLine_data();
    void anUncaughtErrorNamesFileAndLine();
    void aMissingScriptIsNamed();
    void onlyAPlainFileIsRunAsScript();
    void aScriptGoesOnWhileADialogIsOpen();
    void aDialogThatWasLeftOpenIsClosedAtTheEnd();
    void theDialogsEditsComeThrough();
    void screenshotsShowTheOpenDialog();
    void aScriptThatNeverEndsCanBeInterrupted();

private:
    QString run(const QString &program);

    QScopedPointer<TerminalHost> host;
    QScopedPointer<QTemporaryDir> folder;
};

void TestScriptRunner::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
    host.reset(new TerminalHost);
    QCOMPARE(host->problem(), QString());
}

void TestScriptRunner::cleanup()
{
    host.reset();
    TestBase::cleanup();
}

QString TestScriptRunner::run(const QString &program)
{
    const QString prelude =
        QStringLiteral("function same(a, b) { a = JSON.stringify(a); b = JSON.stringify(b);"
                       " if (a !== b) throw new Error(a + ' is not ' + b); }"
                       "var zones = '%1'; var sample = '%2'; var folder = '%3'; ")
            .arg(TerminalHost::fixture("three-zones.geojson"), TerminalHost::sampleField(), folder->path());
    return ScriptRunner(&host->terminal()).evaluate(prelude + program, QStringLiteral("test.js"));
}

void TestScriptRunner::callsDoWhatTheySay_data()
{
    QTest::addColumn<QString>("program");
    const auto row = [](const char *name, const char *program) { QTest::newRow(name) << QString::fromUtf8(program); };
    row("open",
        "var m = terminal.open(zones, {columns: ['SEED_K_HA', 'HERB_L_HA']});"
        "same(m.group, 'rxMap.three-zones.geojson'); same(m.polygons, 3); same(m.outers, 3); same(m.holes, 0);"
        "same(m.columns, ['SEED_K_HA', 'HERB_L_HA']); same(m.repaired, 0); same(m.skipped, 0);"
        "same(m.warnings, []); same(m.legend.map(function (c) { return c.rate; }), [70, 80, 90]);"
        "same(/^#[0-9a-f]{6}$/.test(m.legend[0].color), true);");
    row("open for the active product",
        "terminal.activeProduct = 2;"
        "var m = terminal.open(zones, {columns: ['SEED_K_HA', 'FERT_KG_HA']});"
        "same(m.legend[0].rate, 0); same(m.legends.length, 2);");
    row("open with gaps in a column",
        "var m = terminal.open(zones.replace('three-zones', 'partly-without-rate'));"
        "same(m.legends.map(function (l) { return l.length; }), [2, 2]); same(m.legend, m.legends[0]);"
        "terminal.set(m.group, 'rateColors', terminal.get(m.group, 'rateColors'));"
        "same(terminal.get(m.group, 'rateColors')[0][2].color, '#00000000');");
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
        "terminal.set('quillSpan', 'reInit', true); same(terminal.get('quillSpan', 'reInitCount'), 1);"
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
    row("wait", "var start = Date.now(); terminal.wait(120); same(Date.now() - start >= 119, true);");
    row("screenshot", "terminal.screenshot(folder + '/picture.png');");
    row("caught errors do not count",
        "try { terminal.get('nothing', 'x'); } catch (e) { same(e instanceof Error, true); }");
}

void TestScriptRunner::callsDoWhatTheySay()
{
    QFETCH(QString, program);
    QCOMPARE(run(program), QString());
}

void TestScriptRunner::failuresAreThrownWithTheirReason_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const char *program, const char *reason) {
        QTest::newRow(name) << QString::fromUtf8(program) << QString::fromUtf8(reason);
    };
    row("missing file", "terminal.open('/no/such.shp');", "/no/such.shp: ");
    row("missing column", "terminal.open(zones, {columns: ['NOPE']});", "\"NOPE\"");
    row("columns no list", "terminal.open(zones, {columns: 'SEED_K_HA'});", "\"columns\" is no list");
    row("unknown option", "terminal.open(zones, {colums: ['SEED_K_HA']});",
        "\"colums\" is no option of open(); it knows \"columns\"");
    row("options no object", "terminal.open(zones, ['SEED_K_HA']);", "the options of open() are no object");
    row("options a text", "terminal.open(zones, 'SEED_K_HA');", "the options of open() are no object");
    row("options null", "terminal.open(zones, null);", "the options of open() are no object");
    row("no such map", "terminal.close('rxMap.nothing');", "no map \"rxMap.nothing\" is loaded");
    row("product 0", "terminal.activeProduct = 0;", "no product 0");
    row("product 4", "terminal.activeProduct = 4;", "no product 4");
    row("product 1.7", "terminal.activeProduct = 1.7;", "no product 1.7");
    row("product NaN", "terminal.activeProduct = NaN;", "no product NaN");
    row("endless product", "terminal.activeProduct = -Infinity;", "no product -Infinity");
    row("product beyond whole numbers", "terminal.activeProduct = 4294967297;", "no product 4294967297");
    row("product in words", "terminal.activeProduct = 'two';", "no product two");
    row("product true", "terminal.activeProduct = true;", "no product true");
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
    row("picture without a name", "terminal.screenshot('');", "a picture needs a file name");
    row("touch what is hidden",
        "var m = terminal.open(zones); terminal.find('rxOptions').longTouch();"
        "var e = terminal.find('notUnderVraLabel'); e.touch();",
        "is not on the display");
}

void TestScriptRunner::failuresAreThrownWithTheirReason()
{
    QFETCH(QString, program);
    QFETCH(QString, reason);
    const QString error = run(program);
    QVERIFY2(error.startsWith(QLatin1String("test.js:1: Error: ")), qPrintable(error));
    QVERIFY2(error.contains(reason), qPrintable(error));
    QVERIFY2(!error.contains(QLatin1Char('\n')), qPrintable(error));
}

void TestScriptRunner::anUncaughtErrorNamesFileAndLine_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("error");
    QTest::newRow("thrown error") << "\n\nthrow new Error('broken');"
                                  << "test.js:3: Error: broken";
    QTest::newRow("thrown text") << "throw 'broken';"
                                 << "test.js: Error: broken";
    QTest::newRow("unknown name") << "var a = 1;\nnothing();"
                                  << "test.js:2: ReferenceError: nothing is not defined";
    QTest::newRow("syntax") << "\nvar = 3;"
                            << "test.js:2: SyntaxError: ";
}

void TestScriptRunner::anUncaughtErrorNamesFileAndLine()
{
    QFETCH(QString, program);
    QFETCH(QString, error);
    const QString result = ScriptRunner(&host->terminal()).evaluate(program, QStringLiteral("test.js"));
    QVERIFY2(result.startsWith(error), qPrintable(result));
}

void TestScriptRunner::aMissingScriptIsNamed()
{
    const QString error = ScriptRunner(&host->terminal()).run(QStringLiteral("/no/such.js"));
    QVERIFY2(error.startsWith(QLatin1String("/no/such.js: ")), qPrintable(error));
}

void TestScriptRunner::onlyAPlainFileIsRunAsScript()
{
    const QString pipe = folder->filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    ScriptRunner runner(&host->terminal());
    QCOMPARE(runner.run(QStringLiteral("/dev/null")), QStringLiteral("/dev/null: is no plain file"));
    QCOMPARE(runner.run(folder->path()), folder->path() + QStringLiteral(": is a folder, not a file"));
    QCOMPARE(runner.run(pipe), pipe + QStringLiteral(": is no plain file"));
}

void TestScriptRunner::aScriptGoesOnWhileADialogIsOpen()
{
    QCOMPARE(run("terminal.open(zones, {columns: ['SEED_K_HA']}); terminal.find('rxOptions').longTouch();"
                 "var d = terminal.find('rxMapSettings'); same([d.visible, d.x, d.y, d.width, d.height], [true, 240, "
                 "0, 800, 800]);"
                 "same(terminal.find('doneButton').x, 715);"
                 "terminal.drive(2); terminal.wait(700); same(terminal.find('lookAheadEdit').enabled, false);"
                 "same(terminal.find('doneButton').image, 1); terminal.stop(); terminal.wait(700);"
                 "same(terminal.find('lookAheadEdit').enabled, true);"
                 "same(terminal.touchMap(0, 0), 'Rx Rate: 80.00');"
                 "terminal.find('productButton1').touch(); same(terminal.find('notUnderVraLabel').visible, true);"
                 "terminal.find('doneButton').touch(); same(terminal.find('rxMapSettings'), null);"
                 "terminal.find('rxOptions').longTouch(); same(terminal.find('rxMapSettings').visible, true);"
                 "terminal.find('doneButton').touch();"),
             QString());
}

void TestScriptRunner::aDialogThatWasLeftOpenIsClosedAtTheEnd()
{
    QCOMPARE(run("terminal.open(zones); terminal.find('rxOptions').longTouch();"), QString());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(run("terminal.find('rxOptions').longTouch(); throw new Error('left');").contains(QLatin1String("left")));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestScriptRunner::theDialogsEditsComeThrough()
{
    QCOMPARE(run("var m = terminal.open(zones, {columns: ['SEED_K_HA']}); terminal.find('rxOptions').longTouch();"
                 "var e = terminal.find('lookAheadEdit'); e.enter('2.5'); same(e.text, '2.5');"
                 "e.enter('3'); same(e.text, '3'); terminal.find('zeroRateShutoffBox').touch();"
                 "same(terminal.find('zeroRateShutoffBox').image, 1);"
                 "terminal.find('doneButton').touch(); var s = terminal.get(m.group, 'settings')[0];"
                 "same([s.onLookAheadMs, s.zeroRateShutoff], [3000, true]);"
                 "same(terminal.get('quillSpan', 'reInitCount'), 1);"),
             QString());
}

void TestScriptRunner::screenshotsShowTheOpenDialog()
{
    QCOMPARE(run("terminal.open(zones); terminal.find('rxOptions').longTouch();"
                 "terminal.screenshot(folder + '/open.png'); terminal.find('doneButton').touch();"
                 "terminal.screenshot(folder + '/closed.png');"),
             QString());
    const QImage open(folder->filePath("open.png"));
    const QImage closed(folder->filePath("closed.png"));
    QCOMPARE(open.size(), TerminalWindow::DisplaySize);
    QVERIFY(open.copy(240, 0, 800, 800) != closed.copy(240, 0, 800, 800));
    QCOMPARE(open.copy(0, 0, 240, 800), closed.copy(0, 0, 240, 800));
}

void TestScriptRunner::aScriptThatNeverEndsCanBeInterrupted()
{
    for (const QString &program : {QStringLiteral("for (;;) {}"), QStringLiteral("terminal.wait(1e9);")}) {
        ScriptRunner runner(&host->terminal());
        QTimer::singleShot(200, &runner, &ScriptRunner::interrupt);
        QCOMPARE(runner.evaluate(program, QStringLiteral("endless.js")), QStringLiteral("endless.js: interrupted"));
    }
}

QTEST_MAIN(TestScriptRunner)
#include "tst_scriptrunner.moc"
