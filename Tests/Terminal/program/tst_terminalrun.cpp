#include "terminalruntest.h"

#include <QApplication>
#include <QFileInfo>
#include <QImage>
#include <QThread>

/// What the command line asks for, done within this process.
class TestTerminalRun : public TerminalRunTest {
    Q_OBJECT

private Q_SLOTS:
    void whatCannotBeDoneIsOneLine_data();
    void whatCannotBeDoneIsOneLine();
    void namesMayHoldWhatStandsForArguments();
    void tasksAreDoneInTheirOrder();
    void aScriptThatFailsEndsTheTasks();
    void theSampleComesWithTheProgram();
    void withoutATaskItRunsUntilTheDisplayIsClosed();
    void aDisplayThatIsClosedBeforeTheMapsAreLoadedEndsTheRun();
};

void TestTerminalRun::whatCannotBeDoneIsOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("missing prescription") << QStringList{"/no/such.shp"} << "/no/such.shp";
    QTest::newRow("bad products") << QStringList{"--products", write("[]", "empty.json")} << "empty.json";
    QTest::newRow("folder") << QStringList{"/tmp"} << "/tmp";
    QTest::newRow("text file") << QStringList{TerminalHost::fixture("README.md")} << "README.md";
    QTest::newRow("second file bad") << QStringList{zones(), "/no/such.shp"} << "/no/such.shp";
    QTest::newRow("missing column") << QStringList{"--columns", "NOPE", zones()} << "NOPE";
    QTest::newRow("column in no file") << QStringList{"--columns", "SEED_K_HA,NOPE", zones(),
                                                      TerminalHost::fixture("overlap.geojson")}
                                       << "--columns: no column \"NOPE\" in ";
    QTest::newRow("more columns than products")
        << QStringList{"--columns", QString(16, ',') + "FERT_KG_HA", zones()} << "17 columns";
    QTest::newRow("no such unit") << QStringList{"--source-units", "bags", zones()} << "\"bags\" is no unit of a rate";
    QTest::newRow("no plug-in") << QStringList{"--plugin-dir", folder.path()} << folder.path();
    QTest::newRow("place without a map") << QStringList{"--at", "9,48"} << "--at 9,48: no map is loaded";
    QTest::newRow("place in another country")
        << QStringList{"--at", "-100.5,40", zones()} << "--at -100.5,40: is more than 1000 km from the field";
    QTest::newRow("unknown language") << QStringList{"--language", "xx"} << "xx";
    QTest::newRow("picture in no folder")
        << QStringList{"--screenshot", "/no/such/folder/p.png"} << "/no/such/folder/p.png";
}

void TestTerminalRun::whatCannotBeDoneIsOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, mentioned);
    const Outcome outcome = run(arguments);
    QVERIFY2(outcome.error.contains(mentioned), qPrintable(outcome.error));
    QVERIFY2(!outcome.error.contains(QLatin1Char('\n')), qPrintable(outcome.error));
    QVERIFY2(!outcome.error.startsWith(QLatin1String("not understood")), qPrintable(outcome.error));
    QCOMPARE(outcome.errors, QString());
}

void TestTerminalRun::namesMayHoldWhatStandsForArguments()
{
    const QString name = QStringLiteral("50%1 %2 %3.geojson");
    const QString map = folder.filePath(name);
    QVERIFY(QFile::copy(zones(), map));
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("copy")));
    const QString copy = folder.filePath(QStringLiteral("copy/") + name);
    QVERIFY(QFile::copy(zones(), copy));
    const QString script = write("print(terminal.groups('rxMap.*').join());\nthrow new Error('end');", "100%1%2.js");
    const Outcome outcome = run({"--script", script, map, copy});
    QVERIFY2(outcome.output.contains(copy + QStringLiteral(": product 2 (Fert): FERT_KG_HA (kg/ha, from the name)\n")),
             qPrintable(outcome.output));
    QVERIFY2(outcome.output.endsWith(QStringLiteral("rxMap.%1,rxMap.%1 (2)\n").replace(QStringLiteral("%1"), name)),
             qPrintable(outcome.output));
    QCOMPARE(outcome.error, script + QStringLiteral(":2: Error: end"));
    const QString refusal = run({"--columns", QString(16, ',') + "FERT_KG_HA", map}).error;
    QVERIFY2(refusal.startsWith(map + QStringLiteral(": 17 columns are named, but the machine has 16")),
             qPrintable(refusal));
}

void TestTerminalRun::tasksAreDoneInTheirOrder()
{
    const QString picture = folder.filePath(QStringLiteral("map.png"));
    const QString script =
        write("print(terminal.activeProduct); terminal.close(terminal.groups('rxMap.*')[0]);", "t.js");
    const Outcome outcome =
        run({"--columns", "SEED_K_HA", "--script", script, "--screenshot", picture, "--describe", "0,0", zones()});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.answer,
             QStringLiteral("product 1 (Seed): Rx Rate: 80.00 (SEED_K_HA, k/ha)\n"
                            "product 2 (Fertiliser): No rate is prescribed at 0,0\n"
                            "product 3 (Herbicide): No rate is prescribed at 0,0\n1\n"));
    QCOMPARE(QImage(picture).size(), QSize(1280, 800));
    // The script took the map away before the picture was taken.
    const QString before = folder.filePath(QStringLiteral("before.png"));
    QCOMPARE(run({"--columns", "SEED_K_HA", "--screenshot", before, "--describe", "0,0", zones()}).error, QString());
    const QRect field(500, 300, 200, 200);
    QVERIFY(QImage(picture).copy(field) != QImage(before).copy(field));
}

void TestTerminalRun::aScriptThatFailsEndsTheTasks()
{
    const QString picture = folder.filePath(QStringLiteral("never.png"));
    const Outcome outcome =
        run({"--script", write("print('before');\nterminal.get('x', 'y');", "bad.js"), "--screenshot", picture});
    QCOMPARE(outcome.error, folder.filePath("bad.js") + QStringLiteral(":2: Error: no group \"x\""));
    QCOMPARE(outcome.output, QStringLiteral("before\n"));
    QVERIFY(!QFileInfo::exists(picture));
}

void TestTerminalRun::theSampleComesWithTheProgram()
{
    const QString script = write("terminal.find('placeSample').touch();\n"
                                 "function isShown(name) { return terminal.find(name).visible; }\n"
                                 "for (var i = 0; i < 200 && !isShown('openAccept'); ++i) terminal.wait(50);\n"
                                 "terminal.find('openAccept').touch();\n"
                                 "for (i = 0; i < 200 && isShown('openWindow'); ++i) terminal.wait(50);\n"
                                 "print(terminal.groups('rxMap.*').join());",
                                 "sample.js");
    const Outcome outcome = run({"--open", "--script", script});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.output, QStringLiteral("rxMap.sample-field.shp\n"));
}

void TestTerminalRun::withoutATaskItRunsUntilTheDisplayIsClosed()
{
    bool hasRun = false;
    QTimer closing;
    connect(&closing, &QTimer::timeout, this, [&hasRun] {
        if (QThread::currentThread()->loopLevel() == 0)
            return;
        hasRun = true;
        QApplication::closeAllWindows();
    });
    closing.start(0);
    QCOMPARE(run({}).error, QString());
    QVERIFY(hasRun);
}

void TestTerminalRun::aDisplayThatIsClosedBeforeTheMapsAreLoadedEndsTheRun()
{
    QTimer::singleShot(0, this, &QApplication::closeAllWindows);
    QCOMPARE(run({zones()}).error, QString());
}

RXMAP_TEST(TestTerminalRun, Widgets)
#include "tst_terminalrun.moc"
