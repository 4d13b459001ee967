#include "commandline.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <sys/stat.h>

/// What the program makes of its arguments.
class TestCommandLine : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void badArgumentsAreRefusedInOneLine_data();
    void badArgumentsAreRefusedInOneLine();
    void aPipeIsRefusedWithoutWaitingForIt_data();
    void aPipeIsRefusedWithoutWaitingForIt();
    void everyOptionIsRead();
    void withoutArgumentsTheDefaultsHold();
    void theOpenWindowIsAskedForWithAndWithoutFiles();
    void unitSystemsAreKnownByName_data();
    void unitSystemsAreKnownByName();
    void aPointSouthWestOfTheOriginIsAPoint_data();
    void aPointSouthWestOfTheOriginIsAPoint();
    void columnsAreListedAsInCsv_data();
    void columnsAreListedAsInCsv();
    void aTaskIsNotInteractive_data();
    void aTaskIsNotInteractive();
    void theHelpIsShownWhateverElseIsWanted();
    void theHelpTellsWhatHoldsWithoutAnOption_data();
    void theHelpTellsWhatHoldsWithoutAnOption();

private:
    static Result<CommandLine> parse(const QStringList &arguments)
    {
        return CommandLine::parse(QStringList(QStringLiteral("terminal-simulator")) + arguments);
    }
};

void TestCommandLine::badArgumentsAreRefusedInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("unknown option") << QStringList{"--colour"} << "colour";
    QTest::newRow("unknown short option") << QStringList{"-x"} << "x";
    QTest::newRow("missing value") << QStringList{"--units"} << "units";
    QTest::newRow("unknown units") << QStringList{"--units", "imperial"} << "imperial";
    QTest::newRow("empty units") << QStringList{"--units", ""} << "--units";
    QTest::newRow("unknown theme") << QStringList{"--theme", "dusk"} << "--theme dusk: no such theme (day, night)";
    QTest::newRow("point of one number") << QStringList{"--describe", "12"} << "--describe 12";
    QTest::newRow("point of three numbers") << QStringList{"--describe", "1,2,3"} << "1,2,3";
    QTest::newRow("point of words") << QStringList{"--describe", "a,b"} << "a,b";
    QTest::newRow("point that is no number") << QStringList{"--describe", "nan,1"} << "nan,1";
    QTest::newRow("point at infinity") << QStringList{"--describe", "1,inf"} << "1,inf";
    QTest::newRow("place of words") << QStringList{"--at", "north,east"} << "--at north,east: not two numbers";
    QTest::newRow("longitude out of range") << QStringList{"--at", "181,0"} << "--at 181,0: no longitude";
    QTest::newRow("latitude out of range") << QStringList{"--at", "0,-91"} << "--at 0,-91: no longitude";
    QTest::newRow("missing products file") << QStringList{"--products", "/no/such.json"} << "/no/such.json";
    QTest::newRow("products file is a folder") << QStringList{"--products", "/"} << "--products /";
    QTest::newRow("products file is a device") << QStringList{"--products", "/dev/zero"} << "is no plain file";
    QTest::newRow("script is a folder") << QStringList{"--script", "/"} << "--script /: is a folder, not a file";
    QTest::newRow("script is a device") << QStringList{"--script", "/dev/null"} << "is no plain file";
    QTest::newRow("missing script") << QStringList{"--script", "/no/such.js"} << "/no/such.js";
    QTest::newRow("missing plug-in folder") << QStringList{"--plugin-dir", "/no/such"} << "/no/such";
    QTest::newRow("option twice") << QStringList{"--units", "us", "--units", "turf"} << "more than once";
    QTest::newRow("no column") << QStringList{"--columns", ",", "map.shp"} << "--columns";
    QTest::newRow("open quote") << QStringList{"--columns", "\"A,B", "map.shp"} << "a quote is left open";
    for (const char *option : {"--columns", "--source-units", "--layer", "--task"})
        QTest::addRow("%s with the open window", option)
            << QStringList{"--open", QLatin1String(option), "kg/ha", "map.shp"} << "does not go with --open";
    QTest::newRow("open window of a drive")
        << QStringList{"--open", "--drive", "report.json", "map.shp"} << "--drive does not go with --open";
    QTest::newRow("no unit") << QStringList{"--source-units", ",", "map.shp"} << "--source-units";
    QTest::newRow("units of nothing") << QStringList{"--source-units", "kg/ha"} << "--source-units";
    QTest::newRow("layer of nothing") << QStringList{"--layer", "north"} << "--layer needs a prescription";
    QTest::newRow("no task") << QStringList{"--task", "", "map.shp"} << "--task has an empty value";
    QTest::newRow("columns of nothing") << QStringList{"--columns", "RATE"} << "--columns";
    QTest::newRow("record without drive") << QStringList{"--record", "a.csv", "map.shp"} << "--record needs --drive";
    QTest::newRow("tuning without drive") << QStringList{"--tune", "map.shp"} << "--tune needs --drive";
    QTest::newRow("drive of nothing") << QStringList{"--drive", "a.json"} << "--drive needs a prescription";
    QTest::newRow("drive and point") << QStringList{"--drive", "a.json", "--describe", "1,2", "map.shp"}
                                     << "--drive does not go with --describe";
    QTest::newRow("drive and place") << QStringList{"--drive", "a.json", "--at", "1,2", "map.shp"}
                                     << "--drive does not go with --at";
    QTest::newRow("report of another kind")
        << QStringList{"--drive", "a.pdf", "map.shp"} << "--drive a.pdf: a report is a .json or .html file";
    QTest::newRow("prescription without a name")
        << QStringList{"--check", "map.shp", ""} << "the name of a prescription is missing";
    QTest::newRow("value for a switch") << QStringList{"--help=yes"} << "help";
}

void TestCommandLine::badArgumentsAreRefusedInOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, mentioned);
    const Result<CommandLine> line = parse(arguments);
    QVERIFY(!line.isOk());
    QVERIFY2(line.error.contains(mentioned), qPrintable(line.error));
    QVERIFY2(!line.error.contains(QLatin1Char('\n')), qPrintable(line.error));
}

void TestCommandLine::aPipeIsRefusedWithoutWaitingForIt_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("products") << "--products";
    QTest::newRow("script") << "--script";
}

void TestCommandLine::aPipeIsRefusedWithoutWaitingForIt()
{
    QFETCH(QString, option);
    QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(parse({option, pipe}).error, QStringLiteral("%1 %2: is no plain file").arg(option, pipe));
}

void TestCommandLine::everyOptionIsRead()
{
    QTemporaryDir folder;
    const QString products = folder.filePath(QStringLiteral("products.json"));
    const QString script = folder.filePath(QStringLiteral("script.js"));
    for (const QString &path : {products, script}) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const Result<CommandLine> line = parse(
        {"--columns",   "A, B",       "--source-units", ",lb/ac",     "--layer",    "north",        "--task",
         "spring",      "--products", products,         "--units=us", "--language", "de",           "--plugin-dir",
         folder.path(), "--describe", "1.5,2",          "--at",       "-9.25,48.5", "--screenshot", "map.png",
         "--script",    script,       "--theme",        "night",      "one.shp",    "two.gpkg"});
    QVERIFY2(line.isOk(), qPrintable(line.error));
    QCOMPARE(line.value.columns, QStringList({"A", "B"}));
    QCOMPARE(line.value.sourceUnits, QStringList({QString(), "lb/ac"}));
    QCOMPARE(line.value.layer, QStringLiteral("north"));
    QCOMPARE(line.value.task, QStringLiteral("spring"));
    QCOMPARE(line.value.productFile, products);
    QCOMPARE(line.value.units, UnitSystem::Us);
    QCOMPARE(line.value.language, QStringLiteral("de"));
    QCOMPARE(line.value.pluginDir, folder.path());
    QCOMPARE(line.value.describe.value(), QPointF(1.5, 2));
    QCOMPARE(line.value.at.value(), QPointF(-9.25, 48.5));
    QCOMPARE(line.value.screenshot, QStringLiteral("map.png"));
    QCOMPARE(line.value.script, script);
    QVERIFY(line.value.theme == Theme::Kind::Night);
    QCOMPARE(line.value.prescriptions, QStringList({"one.shp", "two.gpkg"}));
    QVERIFY(!line.value.wantsHelp);
}

void TestCommandLine::withoutArgumentsTheDefaultsHold()
{
    const Result<CommandLine> line = parse({});
    QVERIFY(line.isOk());
    QCOMPARE(line.value.units, UnitSystem::Metric);
    QVERIFY(line.value.prescriptions.isEmpty());
    QVERIFY(line.value.columns.isEmpty());
    QVERIFY(!line.value.describe);
}

void TestCommandLine::unitSystemsAreKnownByName_data()
{
    QTest::addColumn<int>("units");
    QTest::newRow("us") << int(UnitSystem::Us);
    QTest::newRow("metric") << int(UnitSystem::Metric);
    QTest::newRow("turf") << int(UnitSystem::Turf);
}

void TestCommandLine::unitSystemsAreKnownByName()
{
    QFETCH(int, units);
    const Result<CommandLine> line = parse({"--units", QString::fromLatin1(QTest::currentDataTag())});
    QVERIFY(line.isOk());
    QCOMPARE(int(line.value.units), units);
}

void TestCommandLine::aPointSouthWestOfTheOriginIsAPoint_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("value of its own") << QStringList{"--describe", "-10.5,-20"};
    QTest::newRow("value after =") << QStringList{"--describe=-10.5,-20"};
}

void TestCommandLine::aPointSouthWestOfTheOriginIsAPoint()
{
    QFETCH(QStringList, arguments);
    const Result<CommandLine> line = parse(arguments);
    QVERIFY2(line.isOk(), qPrintable(line.error));
    QCOMPARE(line.value.describe.value(), QPointF(-10.5, -20));
}

void TestCommandLine::columnsAreListedAsInCsv_data()
{
    QTest::addColumn<QStringList>("columns");
    QTest::newRow(",B") << QStringList{QString(), "B"};
    QTest::newRow(R"("Rate, kg/ha",B)") << QStringList{"Rate, kg/ha", "B"};
    QTest::newRow(R"("a ""b""", "c")") << QStringList{R"(a "b")", "c"};
}

void TestCommandLine::columnsAreListedAsInCsv()
{
    const Result<CommandLine> line = parse({"--columns", QString::fromLatin1(QTest::currentDataTag()), "map.shp"});
    QVERIFY2(line.isOk(), qPrintable(line.error));
    QTEST(line.value.columns, "columns");
}

void TestCommandLine::aTaskIsNotInteractive_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("isInteractive");
    QTest::newRow("nothing") << QStringList{} << true;
    QTest::newRow("the open window") << QStringList{"--open", "map.shp"} << true;
    QTest::newRow("a point") << QStringList{"--describe", "1,2"} << false;
    QTest::newRow("a place") << QStringList{"--at", "1,2"} << false;
    QTest::newRow("a picture") << QStringList{"--screenshot", "map.png"} << false;
    QTest::newRow("a drive") << QStringList{"--drive", "report.json", "map.shp"} << false;
    QTest::newRow("a check") << QStringList{"--check", "map.shp"} << false;
}

void TestCommandLine::aTaskIsNotInteractive()
{
    QFETCH(QStringList, arguments);
    const Result<CommandLine> line = parse(arguments);
    QVERIFY2(line.isOk(), qPrintable(line.error));
    QTEST(line.value.isInteractive(), "isInteractive");
    QVERIFY(!line.value.theme);
}

void TestCommandLine::theHelpIsShownWhateverElseIsWanted()
{
    const Result<CommandLine> line = parse({"--help", "--check"});
    QVERIFY2(line.isOk(), qPrintable(line.error));
    QVERIFY(line.value.wantsHelp);
}

void TestCommandLine::theHelpTellsWhatHoldsWithoutAnOption_data()
{
    QTest::addColumn<QString>("told");
    QTest::newRow("columns")
        << "--columns <A,B,...> rate columns for products 1, 2, ... (default: the most likely ones)";
    QTest::newRow("units") << "--units <SYSTEM> the operator's unit system: us, metric (default) or turf";
    QTest::newRow("language")
        << "--language <CODE> user-interface language: en, de, es, fr or pt_BR (default: the desktop's)";
    QTest::newRow("plug-ins") << "--plugin-dir <DIR> where plug-ins are searched (default: the plug-in of this build)";
    QTest::newRow("help") << "-h, --help show this help";
}

void TestCommandLine::theHelpTellsWhatHoldsWithoutAnOption()
{
    QFETCH(QString, told);
    const QString help = CommandLine::helpText().simplified();
    QVERIFY2(help.contains(told), qPrintable(help));
}

void TestCommandLine::theOpenWindowIsAskedForWithAndWithoutFiles()
{
    QVERIFY(!parse({"map.shp"}).value.open);
    QVERIFY(parse({"--open"}).value.open);
    const Result<CommandLine> line = parse({"--open", "map.shp"});
    QVERIFY2(line.isOk(), qPrintable(line.error));
    QVERIFY(line.value.open);
    QCOMPARE(line.value.prescriptions, QStringList("map.shp"));
}

RXMAP_TEST(TestCommandLine, Core)
#include "tst_commandline.moc"
