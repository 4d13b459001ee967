#include "files.h"
#include "simulatorrun.h"
#include "testbase.h"

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

/// What an operator does in the settings dialog, seen from outside: scripts of this folder drive the built simulator.
class TestSettingsScripts : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void whatTheOperatorSetsIsShownAndWritten_data();
    void whatTheOperatorSetsIsShownAndWritten();
    void defaultRatesAreInTheOperatorsUnits_data();
    void defaultRatesAreInTheOperatorsUnits();
};

namespace {

/// What 1 of a shown unit is in the product's base unit: kg/ha, L/ha, 1000/ha, mL/ha, L/L or kPa.
double inBaseUnits(const QString &unit)
{
    constexpr double acre = 0.40468564224;                 // ha
    constexpr double turf = 0.009290304;                   // ha, 1000 ft²
    constexpr double pound = 0.45359237;                   // kg
    constexpr double gallon = 3.785411784;                 // L
    constexpr double fluidOunce = 1000.0 * gallon / 128.0; // mL
    static const QHash<QString, double> amounts{{"k/ac", 1.0 / acre},
                                                {"k/tu", 1.0 / turf},
                                                {"lb/ac", pound / acre},
                                                {"lb/tu", pound / turf},
                                                {"gal/ac", gallon / acre},
                                                {"gal/tu", gallon / turf},
                                                {"fl oz/gal", 1.0 / 128.0},
                                                {"fl oz/ac", fluidOunce / acre},
                                                {"fl oz/tu", fluidOunce / turf},
                                                {"psi", 6.894757293168}};
    return amounts.value(unit, 1.0);
}

QString writeProducts(const QTemporaryDir &folder, const QByteArray &products)
{
    return writeFile(folder.filePath(QStringLiteral("products.json")), products);
}

} // namespace

void TestSettingsScripts::whatTheOperatorSetsIsShownAndWritten_data()
{
    QTest::addColumn<QByteArray>("products");
    const QByteArray firstUnderControl = R"([{"name":"Seed","kind":"weight","bin":1},)"
                                         R"({"name":"Water","kind":"volume","bin":2,"underVra":false}])";
    const QByteArray secondUnderControl = R"([{"name":"Seed","kind":"weight","bin":1,"underVra":false},)"
                                          R"({"name":"Water","kind":"volume","bin":2}])";
    QTest::newRow("settings-round-trip") << QByteArray();
    QTest::newRow("cancel-while-moving") << QByteArray();
    QTest::newRow("lock-under-the-keypad") << QByteArray();
    QTest::newRow("not-under-control") << firstUnderControl;
    QTest::newRow("not-under-control-from-the-start") << secondUnderControl;
}

void TestSettingsScripts::whatTheOperatorSetsIsShownAndWritten()
{
    QFETCH(QByteArray, products);
    QTemporaryDir folder;
    QStringList arguments;
    if (!products.isEmpty()) {
        arguments = QStringList{QStringLiteral("--products"), writeProducts(folder, products)};
    }
    const QString script = scriptText(QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(".js"));
    const SimulatorRun run = runOperatorScript(script, arguments);
    const QString output = run.output.join(QLatin1Char('\n'));
    QVERIFY2(run.exitCode == 0, qPrintable(output + run.errors));
    QVERIFY2(run.output.contains(QStringLiteral("finished")), qPrintable(output));
}

void TestSettingsScripts::defaultRatesAreInTheOperatorsUnits_data()
{
    QTest::addColumn<QStringList>("units");
    // In the order of weight, volume, count, ratio, injection and pressure.
    QTest::newRow("us") << QStringList{"lb/ac", "gal/ac", "k/ac", "fl oz/gal", "fl oz/ac", "psi"};
    QTest::newRow("metric") << QStringList{"kg/ha", "L/ha", "k/ha", "L/L", "mL/ha", "kPa"};
    QTest::newRow("turf") << QStringList{"lb/tu", "gal/tu", "k/tu", "fl oz/gal", "fl oz/tu", "psi"};
}

void TestSettingsScripts::defaultRatesAreInTheOperatorsUnits()
{
    QFETCH(QStringList, units);
    const QStringList kinds{"weight", "volume", "count", "ratio", "injection", "pressure"};
    QJsonArray machine;
    QJsonArray expected;
    for (int i = 0; i < kinds.size(); ++i) {
        const double amount = inBaseUnits(units.at(i));
        machine.append(
            QJsonObject{{"name", kinds.at(i)}, {"kind", kinds.at(i)}, {"bin", i + 1}, {"defaultRate", 30.0}});
        expected.append(QJsonObject{{"unit", units.at(i)}, {"shown", 30.0 / amount}, {"ten", 10.0 * amount}});
    }
    QTemporaryDir folder;
    const QString script = QStringLiteral("var columns = [\"SEED_KS_HA\", \"FERT_KG_HA\", \"HERB_L_HA\"];\n"
                                          "columns = columns.concat(columns);\nvar products = ")
        + QString::fromUtf8(QJsonDocument(expected).toJson()) + QStringLiteral(";\n")
        + scriptText(QStringLiteral("rates-in-units.js"));
    const SimulatorRun run =
        runOperatorScript(script,
                          {QStringLiteral("--products"), writeProducts(folder, QJsonDocument(machine).toJson()),
                           QStringLiteral("--units"), QString::fromLatin1(QTest::currentDataTag())});
    const QString output = run.output.join(QLatin1Char('\n'));
    QVERIFY2(run.exitCode == 0, qPrintable(output + run.errors));
    QVERIFY2(run.output.contains(QStringLiteral("finished")), qPrintable(output));
}

RXMAP_TEST(TestSettingsScripts, Widgets)
#include "tst_settingsscripts.moc"
