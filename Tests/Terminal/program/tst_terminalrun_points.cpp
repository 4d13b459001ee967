#include "taskdatasketch.h"
#include "terminalruntest.h"

/// What the program tells about a point of the field.
class TestTerminalRunPoints : public TerminalRunTest {
    Q_OBJECT

private Q_SLOTS:
    void aPointIsDescribed_data();
    void aPointIsDescribed();
    void everyProductIsDescribed();
    void aMapOnAPlaneOfItsOwnIsAskedForTheSamePlace();
    void theUnitOfTheFileIsTold_data();
    void theUnitOfTheFileIsTold();
    void theRatesAroundATaskAreTold();
};

void TestTerminalRunPoints::aPointIsDescribed_data()
{
    QTest::addColumn<QString>("point");
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *title, const char *point, const char *units, const char *line) {
        QTest::newRow(title) << point << units << line;
    };
    row("west", "-100,0", "metric", "Rx Rate: 70.00 (SEED_K_HA, k/ha)");
    row("per acre", "-100,0", "us", "Rx Rate: 28.33 (SEED_K_HA, k/ha), shown in k/ac");
    row("per 1000 square feet", "-100,0", "turf", "Rx Rate: 0.65 (SEED_K_HA, k/ha), shown in k/tu");
    row("outside", "-1000,0", "metric", "No rate is prescribed at -1000,0");
}

void TestTerminalRunPoints::aPointIsDescribed()
{
    QFETCH(QString, point);
    QFETCH(QString, units);
    QFETCH(QString, line);
    const Outcome outcome = run({"--describe", point, "--units", units, "--columns", "SEED_K_HA", zones()});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.answer.section(QLatin1Char('\n'), 0, 0), QStringLiteral("product 1 (Seed): ") + line);
}

void TestTerminalRunPoints::everyProductIsDescribed()
{
    // In metres and in degrees; afterwards the same product is active as before.
    const QString script = write("var e = terminal.toEarth(-100, 0); print(e.lon.toFixed(9) + ',' + e.lat.toFixed(9));"
                                 "print(terminal.activeProduct, terminal.groups('rxMap.*').length);",
                                 "place.js");
    const Outcome metres =
        run({"--columns", ",FERT_KG_HA,HERB_L_HA", "--describe", "-100,0", "--script", script, zones()});
    QCOMPARE(metres.error, QString());
    const QStringList lines = metres.answer.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines.at(0), QStringLiteral("product 1 (Seed): No rate is prescribed at -100,0"));
    QCOMPARE(lines.at(1), QStringLiteral("product 2 (Fert): Rx Rate: 120.50 (FERT_KG_HA, kg/ha)"));
    QCOMPARE(lines.at(2), QStringLiteral("product 3 (Herb): Rx Rate: 0.00 (HERB_L_HA, L/ha)"));
    QCOMPARE(lines.at(4), QStringLiteral("2 1"));
    const Outcome degrees = run({"--columns", ",FERT_KG_HA,HERB_L_HA", "--at", lines.at(3), zones()});
    QCOMPARE(degrees.error, QString());
    QCOMPARE(degrees.answer.split(QLatin1Char('\n')).mid(1, 2), lines.mid(1, 2));
}

void TestTerminalRunPoints::aMapOnAPlaneOfItsOwnIsAskedForTheSamePlace()
{
    const QByteArray far = square("Urea_kg_ha", 45, 11.0, 48.0);
    const QStringList files = {write(square("SEED_K_HA", 77, 9.0, 48.0), "near.geojson"), write(far, "far.geojson")};
    const Outcome outcome = run(QStringList{"--at", "11.0005,48.0005"} + files);
    QCOMPARE(outcome.error, QString());
    QVERIFY2(outcome.answer.contains(QLatin1String("product 1 (Seed): No rate is prescribed at 11.0005,48.0005\n")),
             qPrintable(outcome.answer));
    QVERIFY2(outcome.answer.contains(QLatin1String("): Rx Rate: 45.00 (Urea_kg_ha, kg/ha)\n")),
             qPrintable(outcome.answer));
}

void TestTerminalRunPoints::theUnitOfTheFileIsTold_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("told");
    QTest::newRow("by its name") << QStringList{"--columns", "SEED_K_HA"} << "Rx Rate: 80.00 (SEED_K_HA, k/ha)"
                                 << "SEED_K_HA (k/ha, from the name)";
    QTest::newRow("by the operator") << QStringList{"--columns", "SEED_K_HA", "--source-units", "seeds/m2"}
                                     << "Rx Rate: 800.00 (SEED_K_HA, seeds/m2), shown in k/ha"
                                     << "SEED_K_HA (seeds/m2, named by the operator)";
    QTest::newRow("by the operator, for a likely column")
        << QStringList{"--source-units", "1000/ac"} << "Rx Rate: 197.68 (SEED_K_HA, k/ac), shown in k/ha"
        << "SEED_K_HA (k/ac, named by the operator)";
}

void TestTerminalRunPoints::theUnitOfTheFileIsTold()
{
    QFETCH(QStringList, options);
    QFETCH(QString, told);
    const Outcome outcome = run(options + QStringList{"--describe", "0,0", zones()});
    QCOMPARE(outcome.error, QString());
    QFETCH(QString, answer);
    QCOMPARE(outcome.answer.section(QLatin1Char('\n'), 0, 0), QStringLiteral("product 1 (Seed): ") + answer);
    QVERIFY2(outcome.output.startsWith(zones() + QStringLiteral(": product 1 (Seed): ") + told + QLatin1Char('\n')),
             qPrintable(outcome.output));
}

void TestTerminalRunPoints::theRatesAroundATaskAreTold()
{
    using Sketch = TaskDataSketch;
    const auto task = [](const QByteArray &name, int steps) {
        const QByteArray zones = Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + Sketch::value(6, steps))
            + Sketch::zone(2, Sketch::value(6, 12345678)) + Sketch::zone(3, Sketch::value(6, 0));
        return Sketch::task(name, zones, "H=\"2\" J=\"3\"");
    };
    QVERIFY(Sketch{task("TSK1", 10000) + task("TSK2", 20000)}.write(folder.path()));
    const Outcome outcome = run({"--task", "TSK2", "--describe", "0,0", folder.path()});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.errors, QString());
    const QString column = QStringLiteral("Setpoint Mass Per Area Application Rate");
    const QString product = QStringLiteral("product 1 (Mass): ");
    QCOMPARE(outcome.answer.section(QLatin1Char('\n'), 0, 0),
             QStringLiteral("%1Rx Rate: 200.00 (%2, mg/m2), shown in kg/ha").arg(product, column));
    const QString told = folder.path() + QStringLiteral(": ") + product;
    QCOMPARE(QString(outcome.output).remove(outcome.answer),
             told + column + QStringLiteral(" (mg/m2, from the format)\n") + told
                 + QStringLiteral("default rate 0 kg/ha (out of the field 0, elsewhere 123456.78)\n"));
    const QString script =
        write("print(terminal.open('" + folder.path().toUtf8() + "').sources[0].elsewhere);", "a.js");
    QCOMPARE(run({"--script", script}).output, QStringLiteral("123456.78\n"));
}

RXMAP_TEST(TestTerminalRunPoints, Widgets)
#include "tst_terminalrun_points.moc"
