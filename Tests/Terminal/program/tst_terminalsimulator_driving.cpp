#include "files.h"
#include "programtest.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

/// The program when it drives a field without a display.
class TestTerminalSimulatorDriving : public ProgramTest {
    Q_OBJECT

private Q_SLOTS:
    void aFieldIsDrivenWithoutADisplay();
    void aReportIsAPageInTheChosenLanguageAndUnits();
    void whatCannotBeDrivenEndsWithOneLine_data();
    void whatCannotBeDrivenEndsWithOneLine();
    void aDriveWhoseOutputIsLostEndsAtOnce();
    void halfATuningIsNotReported();
    void fieldsOnPlanesOfTheirOwnAreNotDrivenTogether();
};

void TestTerminalSimulatorDriving::aFieldIsDrivenWithoutADisplay()
{
    const QProcessEnvironment environment = withoutDisplay();
    QByteArray records[2];
    for (QByteArray &record : records) {
        const QString report = folder.filePath(QStringLiteral("report.json"));
        const QString recordPath = folder.filePath(QStringLiteral("drive.csv"));
        // Tuning does not change the drive that is recorded.
        QStringList arguments{"--drive", report, "--record", recordPath, "--columns", "SEED_K_HA", zones()};
        const bool isTuned = &record == &records[0];
        if (isTuned)
            arguments.prepend("--tune");
        const Outcome outcome = run(arguments, environment);
        QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
        QVERIFY2(outcome.output.contains(QRegularExpression(QStringLiteral("driving: \\d0 %, about \\d+ s left"))),
                 qPrintable(outcome.output));
        for (const QString &written : {report + ": report written\n", recordPath + ": record written\n"})
            QVERIFY2(outcome.output.contains(written), qPrintable(outcome.output));
        const QJsonObject all = QJsonDocument::fromJson(readFile(report)).object();
        QCOMPARE(all.value(QStringLiteral("file")).toString(), zones());
        const QJsonObject seed = all.value(QStringLiteral("products")).toArray().at(0).toObject();
        QCOMPARE(seed.value(QStringLiteral("changes")).toObject().value(QStringLiteral("count")).toInt(), 16);
        // Dead time and time constant of the standard machine's seed, to within one step.
        QVERIFY(!isTuned || std::abs(seed.value(QStringLiteral("bestLookAheadMs")).toInt() - 700) <= 100);
        record = readFile(recordPath);
    }
    QVERIFY(records[0].count('\n') > 5000);
    QCOMPARE(records[0], records[1]);
}

void TestTerminalSimulatorDriving::aReportIsAPageInTheChosenLanguageAndUnits()
{
    const QString path = folder.filePath(QStringLiteral("report.html"));
    const Outcome outcome = run(
        {"--drive", path, "--language", "de", "--units", "us", "--columns", "SEED_K_HA", zones()}, withoutDisplay());
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    const QByteArray page = readFile(path);
    QVERIFY(page.startsWith("<!DOCTYPE html>") && page.endsWith("</html>\n"));
    for (const char *text : {"Bericht einer Fahrt", "Seed (k/ac)", "Ausgebracht", "three-zones.geojson"})
        QVERIFY2(page.contains(text), text);
}

void TestTerminalSimulatorDriving::whatCannotBeDrivenEndsWithOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const QString report = folder.filePath(QStringLiteral("report-of-nothing.json"));
    const QString linkedZones = folder.filePath(QStringLiteral("zones.gpkg"));
    QFile::link(zones(), linkedZones);
    const auto products = [this](const char *name, const QByteArray &machine) {
        return write("{" + machine + R"(, "products": [{"name": "A", "kind": "count"}]})", QLatin1String(name));
    };
    QTest::newRow("field narrower than the machine")
        << QStringList{"--drive", report, "--products", products("wide.json", R"("width": 150)")}
        << zones() + ": the field is 100.0 m wide, narrower than the machine's 150 m";
    QTest::newRow("no width") << QStringList{"--drive", report, "--products", products("none.json", R"("width": 0)")}
                              << folder.filePath(QStringLiteral("none.json"))
            + ": \"width\" is 0; a number from 0.5 to 200 is wanted";
    QTest::newRow("report nowhere") << QStringList{"--drive", "/nowhere/a.json"} << "/nowhere/a.json: ";
    QDir(folder.path()).mkdir(QStringLiteral("folder.html"));
    QTest::newRow("report is a folder") << QStringList{"--drive", folder.filePath(QStringLiteral("folder.html"))}
                                        << folder.filePath(QStringLiteral("folder.html")) + ": is a folder, not a file";
    QFile::link(QStringLiteral("/dev/full"), folder.filePath(QStringLiteral("full.html")));
    QTest::newRow("report on a full disk")
        << QStringList{"--drive", folder.filePath(QStringLiteral("full.html"))}
        << folder.filePath(QStringLiteral("full.html")) + ": No space left on device";
    QTest::newRow("record is the prescription")
        << QStringList{"--drive", report, "--record", linkedZones} << linkedZones + ": is the prescription itself";
    const QString productFile = products("mine.json", R"("width": 12)");
    QTest::newRow("report is the products' file") << QStringList{"--drive", productFile, "--products", productFile}
                                                  << productFile + ": is the products' file itself";
    QTest::newRow("record nowhere") << QStringList{"--drive", report, "--record", "/nowhere/a.csv"}
                                    << "/nowhere/a.csv: No such file or directory";
}

void TestTerminalSimulatorDriving::whatCannotBeDrivenEndsWithOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const Outcome outcome = run(arguments + QStringList{"--columns", "SEED_K_HA", zones()}, withoutDisplay());
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.startsWith("terminal-simulator: " + reason), qPrintable(outcome.errors));
    QCOMPARE(outcome.errors.count('\n'), 1);
    QVERIFY2(!outcome.output.contains(QLatin1String("report written")), qPrintable(outcome.output));
    QVERIFY(!QFileInfo::exists(folder.filePath(QStringLiteral("report-of-nothing.json"))));
}

void TestTerminalSimulatorDriving::aDriveWhoseOutputIsLostEndsAtOnce()
{
    const QString report = folder.filePath(QStringLiteral("lost.json"));
    const QString record = folder.filePath(QStringLiteral("lost.csv"));
    const Outcome outcome =
        runInShell(QStringLiteral("export ASAN_OPTIONS=detect_leaks=0; trap '' PIPE; { \"$@\"; echo $? >&2; } | true"),
                   {"--drive", report, "--record", record, "--columns", "SEED_K_HA", zones()});
    QVERIFY2(outcome.errors.endsWith(QLatin1String("standard output cannot be written\n1\n")),
             qPrintable(outcome.errors));
    QVERIFY(!QFileInfo::exists(report));
    // It would have more than 5,000 rows.
    QVERIFY(readFile(record).count('\n') < 2000);
}

void TestTerminalSimulatorDriving::halfATuningIsNotReported()
{
    // Narrow, so that the output is lost long before the first drive of the tuning is over.
    const QString machine = write(R"({"width": 3, "products": [{"name": "A", "kind": "count"}]})", "narrow.json");
    const QString report = folder.filePath(QStringLiteral("half.json"));
    const QString record = folder.filePath(QStringLiteral("whole.csv"));
    const Outcome outcome = runInShell(
        QStringLiteral("export ASAN_OPTIONS=detect_leaks=0; trap '' PIPE; "
                       "{ \"$@\"; echo $? >&2; } | sed '/record written/q'"),
        {"--tune", "--drive", report, "--record", record, "--products", machine, "--columns", "SEED_K_HA", zones()});
    QVERIFY2(outcome.output.endsWith(record + ": record written\n"), qPrintable(outcome.output));
    QVERIFY2(outcome.errors.endsWith(QLatin1String("standard output cannot be written\n1\n")),
             qPrintable(outcome.errors));
    QVERIFY(!QFileInfo::exists(report));
}

void TestTerminalSimulatorDriving::fieldsOnPlanesOfTheirOwnAreNotDrivenTogether()
{
    const QString report = folder.filePath(QStringLiteral("two-fields.json"));
    const QString far = write(R"({"type": "FeatureCollection", "features": [{"type": "Feature",
        "properties": {"UREA_KG_HA": 70}, "geometry": {"type": "Polygon", "coordinates":
        [[[11, 48], [11.01, 48], [11.01, 48.01], [11, 48.01], [11, 48]]]}}]})",
                              "far.geojson");
    const QStringList drive{"--drive", report, "--columns"};
    const Outcome both = run(drive + QStringList{"SEED_K_HA,UREA_KG_HA", zones(), far}, withoutDisplay());
    QCOMPARE(both.status, 1);
    QVERIFY2(
        both.errors.endsWith(
            QStringLiteral("\nterminal-simulator: %1: lies too far from %2 to be driven with it\n").arg(far, zones())),
        qPrintable(both.errors));
    QVERIFY(!QFileInfo::exists(report));
    // A map whose product the other one has taken over is not applied.
    const Outcome one = run(drive + QStringList{"SEED_K_HA", zones(), far}, withoutDisplay());
    QVERIFY2(one.status == 0, qPrintable(one.errors));
}

RXMAP_TEST(TestTerminalSimulatorDriving, Core)
#include "tst_terminalsimulator_driving.moc"
