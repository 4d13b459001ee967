#include "paths.h"
#include "simulatorrun.h"
#include "testbase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryFile>

#include <cmath>

namespace {

QString fixture(const char *name)
{
    return sourcePath("Tests/fixtures/") + QLatin1String(name) + QStringLiteral(".geojson");
}

/// An environment without a display.
SimulatorRun check(const QStringList &arguments)
{
    return runSimulator(QStringList{QStringLiteral("--check")} + arguments,
                        {QStringLiteral("DISPLAY="), QStringLiteral("WAYLAND_DISPLAY=")});
}

} // namespace

/// The map check when started from a shell.
class CheckedFilesTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theStatusSaysWhetherSomethingIsWrong_data();
    void theStatusSaysWhetherSomethingIsWrong();
    void eachFindingIsALine();
    void jsonHoldsEveryFile();
    void columnsAndUnitsAreTakenForEachFile();
    void theMachinesWidthIsTaken();
    void aLanguageThatThereIsNotIsAMistake();
};

void CheckedFilesTest::theStatusSaysWhetherSomethingIsWrong_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<int>("status");
    QTest::newRow("clean") << QStringList(fixture("three-zones")) << 0;
    QTest::newRow("findings") << QStringList(fixture("overlap")) << 2;
    QTest::newRow("unreadable") << QStringList("no-such.shp") << 1;
    QTest::newRow("clean and findings") << QStringList({fixture("three-zones"), fixture("overlap")}) << 2;
    QTest::newRow("findings and unreadable") << QStringList({fixture("overlap"), "no-such.shp"}) << 1;
    QTest::newRow("unreadable and findings") << QStringList({"no-such.shp", fixture("overlap")}) << 1;
    QTest::newRow("no file") << QStringList() << 1;
    QTest::newRow("with another task") << QStringList({fixture("overlap"), "--describe", "0,0"}) << 1;
}

void CheckedFilesTest::theStatusSaysWhetherSomethingIsWrong()
{
    QFETCH(QStringList, files);
    QFETCH(int, status);
    const SimulatorRun run = check(files);
    QCOMPARE(run.exitCode, status);
    QCOMPARE(run.errors.isEmpty(), status != 1);
    QCOMPARE(check(files + QStringList("--json")).exitCode, status);
}

void CheckedFilesTest::eachFindingIsALine()
{
    const QString file = fixture("overlap");
    QCOMPARE(check({file}).output,
             QStringList({file + ": product 1 (rate): rate (unit not known, taken as kg/ha)",
                          file + ": origin of the plane: 9.0011083, 49.6532625 (longitude, latitude)",
                          file + ": unitUnknown: the unit of column \"rate\" is not known, taken as kg/ha",
                          file + ": overlap: records 0 and 1 overlap on 1601.3 m2"}));
}

void CheckedFilesTest::jsonHoldsEveryFile()
{
    const SimulatorRun run = check({"--json", fixture("overlap"), "no-such.shp", fixture("three-zones")});
    QJsonParseError error;
    const QJsonArray files =
        QJsonDocument::fromJson(run.output.join('\n').toUtf8(), &error).object().value("files").toArray();
    QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(error.errorString()));
    QCOMPARE(files.size(), 3);
    const QJsonObject overlap = files.at(0).toObject();
    QCOMPARE(overlap.value("file").toString(), fixture("overlap"));
    QCOMPARE(overlap.value("ok").toBool(), true);
    QVERIFY(std::fabs(overlap.value("origin").toObject().value("lon").toDouble() - 9.0011083) < 1e-6);
    const QJsonObject finding = overlap.value("findings").toArray().at(1).toObject();
    QCOMPARE(finding.value("kind").toString(), QStringLiteral("overlap"));
    QCOMPARE(finding.value("records").toArray(), QJsonArray({0, 1}));
    QVERIFY(std::fabs(finding.value("area").toDouble() - 1601.3) < 0.1);
    QCOMPARE(finding.value("at").toArray().size(), 2);
    QVERIFY(!finding.value("text").toString().isEmpty());
    QCOMPARE(files.at(1).toObject().value("ok").toBool(), false);
    QCOMPARE(files.at(1).toObject().value("error").toString(), QStringLiteral("no-such.shp: there is no such file"));
    QCOMPARE(files.at(2).toObject().value("findings").toArray(), QJsonArray());
}

void CheckedFilesTest::columnsAndUnitsAreTakenForEachFile()
{
    const QString file = fixture("overlap");
    const SimulatorRun run = check({file, fixture("two-strips"), "--columns", "rate", "--source-units", "seeds/m2"});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output.first(), file + ": product 1 (rate): rate (seeds/m2, named by the operator)");
    QVERIFY2(run.errors.contains(QStringLiteral("has no column \"rate\"")), qPrintable(run.errors));
}

void CheckedFilesTest::theMachinesWidthIsTaken()
{
    QTemporaryFile machine;
    QVERIFY(machine.open());
    machine.write(R"({"width": 150, "products": [{"name": "Urea", "kind": "weight"}]})");
    machine.close();
    const SimulatorRun run = check({fixture("three-zones"), "--products", machine.fileName()});
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output.filter(QStringLiteral(": narrow: record ")).size(), 3);
}

void CheckedFilesTest::aLanguageThatThereIsNotIsAMistake()
{
    for (const char *language : {"de", "pt-br", "EN"})
        QCOMPARE(check({"--language", language, fixture("three-zones")}).exitCode, 0);
    const SimulatorRun run = check({"--language", "xx", fixture("three-zones")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.startsWith(QLatin1String("terminal-simulator: --language xx: no catalogue for it in ")),
             qPrintable(run.errors));
    QCOMPARE(run.errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(run.output, QStringList());
}

RXMAP_TEST(CheckedFilesTest, Core)
#include "tst_checkedfiles.moc"
