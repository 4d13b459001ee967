#include "testbase.h"

#include "Framework/dbgroupqmlunitsconverter.h"

#include <QMetaProperty>

#include <cmath>
#include <thread>

namespace {

const char *const kinds[] = {"countRate", "ratioRate", "injectionRate", "volumeRate", "weightRate", "pressure"};

double factor(const DbGroupQmlUnitsConverter &units, const QByteArray &property)
{
    QVariant value;
    return units.getProperty(property.constData(), value) == DataBrokerGroup::Success ? value.toDouble() : qQNaN();
}

bool isClose(double actual, double expected)
{
    return std::fabs(actual - expected) <= 1e-12 * std::fabs(expected);
}

} // namespace

class TestDbGroupQmlUnitsConverter : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void ratesTakeTheAreaUnitSystem_data();
    void ratesTakeTheAreaUnitSystem();
    void pressureTakesThePressureUnit_data();
    void pressureTakesThePressureUnit();
    void eachPairIsItsOwnInverse_data();
    void eachPairIsItsOwnInverse();
    void theFactorsStandWhenTheNewUnitIsAnnounced();
    void aUnitSetByAListenerWins();
    void everyFactorIsAnnounced();
    void aUnitSetByNameRenewsTheFactorsToo();
    void unitsSetFromTwoThreadsEndWithTheirOwnFactors();
};

void TestDbGroupQmlUnitsConverter::ratesTakeTheAreaUnitSystem_data()
{
    QTest::addColumn<int>("areaUnitSystem");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<double>("expected");
    // One hectare is 10000/4046.8564224 acres and 10000/92.90304 turf areas.
    const double acre = 4046.8564224 / 10000.0;
    const double turf = 92.90304 / 10000.0;
    const double fluidOunceMl = 29.5735295625;
    const double gallon = 3.785411784;
    const double pound = 0.45359237;
    QTest::newRow("acre, count") << 0 << QByteArray("countRateToDisplay") << acre;
    QTest::newRow("acre, ratio") << 0 << QByteArray("ratioRateToDisplay") << 128.0;
    QTest::newRow("acre, injection") << 0 << QByteArray("injectionRateToDisplay") << acre / fluidOunceMl;
    QTest::newRow("acre, volume") << 0 << QByteArray("volumeRateToDisplay") << acre / gallon;
    QTest::newRow("acre, weight") << 0 << QByteArray("weightRateToDisplay") << acre / pound;
    for (const char *kind : {"countRate", "ratioRate", "injectionRate", "volumeRate", "weightRate"})
        QTest::addRow("hectare, %s", kind) << 1 << QByteArray(kind) + "ToDisplay" << 1.0;
    for (int system : {2, 3, -1}) {
        QTest::addRow("turf %d, count", system) << system << QByteArray("countRateToDisplay") << turf;
        QTest::addRow("turf %d, ratio", system) << system << QByteArray("ratioRateToDisplay") << 128.0;
        QTest::addRow("turf %d, injection", system)
            << system << QByteArray("injectionRateToDisplay") << turf / fluidOunceMl;
        QTest::addRow("turf %d, volume", system) << system << QByteArray("volumeRateToDisplay") << turf / gallon;
        QTest::addRow("turf %d, weight", system) << system << QByteArray("weightRateToDisplay") << turf / pound;
    }
}

void TestDbGroupQmlUnitsConverter::ratesTakeTheAreaUnitSystem()
{
    QFETCH(int, areaUnitSystem);
    QFETCH(QByteArray, property);
    QFETCH(double, expected);
    DbGroupQmlUnitsConverter units(QStringLiteral("QmlUnitsConverter"));
    units.setAreaUnitSystem(areaUnitSystem);
    const double actual = factor(units, property);
    QVERIFY2(isClose(actual, expected), qPrintable(QString::number(actual, 'g', 17)));
}

void TestDbGroupQmlUnitsConverter::pressureTakesThePressureUnit_data()
{
    QTest::addColumn<int>("pressureUnit");
    QTest::addColumn<double>("kilopascals");
    QTest::newRow("psi") << 0 << 6.894757293168361;
    QTest::newRow("kPa") << 1 << 1.0;
    QTest::newRow("bar") << 2 << 100.0;
    QTest::newRow("inHg") << 3 << 3.386388640341;
    QTest::newRow("mmHg") << 4 << 0.133322387415;
    QTest::newRow("atm") << 5 << 101.325;
    QTest::newRow("hPa") << 6 << 0.1;
    QTest::newRow("any above") << 7 << 1.0;
    QTest::newRow("any below") << -1 << 1.0;
}

void TestDbGroupQmlUnitsConverter::pressureTakesThePressureUnit()
{
    QFETCH(int, pressureUnit);
    QFETCH(double, kilopascals);
    DbGroupQmlUnitsConverter units(QStringLiteral("QmlUnitsConverter"));
    units.setAreaUnitSystem(1);
    units.setPressureUnit(pressureUnit);
    const double actual = units.getPressureFromDisplay();
    QVERIFY2(isClose(actual, kilopascals), qPrintable(QString::number(actual, 'g', 17)));
    QVERIFY(isClose(units.getPressureToDisplay(), 1.0 / kilopascals));
}

void TestDbGroupQmlUnitsConverter::eachPairIsItsOwnInverse_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : kinds)
        QTest::newRow(kind) << QByteArray(kind);
}

void TestDbGroupQmlUnitsConverter::eachPairIsItsOwnInverse()
{
    QFETCH(QByteArray, kind);
    DbGroupQmlUnitsConverter units(QStringLiteral("QmlUnitsConverter"));
    for (int system : {0, 1, 2}) {
        for (int pressure = 0; pressure < 8; ++pressure) {
            units.setAreaUnitSystem(system);
            units.setPressureUnit(pressure);
            QVERIFY(isClose(factor(units, kind + "ToDisplay") * factor(units, kind + "FromDisplay"), 1.0));
        }
    }
}

void TestDbGroupQmlUnitsConverter::theFactorsStandWhenTheNewUnitIsAnnounced()
{
    DbGroupQmlUnitsConverter units(QStringLiteral("QmlUnitsConverter"));
    double seen = 0.0;
    connect(&units, &DbGroupQmlUnitsConverter::areaUnitSystemChanged, this,
            [&]() { seen = units.getWeightRateToDisplay(); });
    units.setAreaUnitSystem(1);
    QCOMPARE(seen, 1.0);
}

void TestDbGroupQmlUnitsConverter::aUnitSetByAListenerWins()
{
    DbGroupQmlUnitsConverter units(QStringLiteral("QmlUnitsConverter"));
    // Called while the factors of the first unit are being stored.
    const auto connection = connect(&units, &DbGroupQmlUnitsConverter::countRateToDisplayChanged, this, [&]() {
        if (units.getAreaUnitSystem() == 2)
            units.setAreaUnitSystem(1);
    });
    units.setAreaUnitSystem(2);
    for (const char *kind : {"countRate", "ratioRate", "injectionRate", "volumeRate", "weightRate"})
        QCOMPARE(factor(units, QByteArray(kind) + "ToDisplay"), 1.0);
    disconnect(connection);
}

void TestDbGroupQmlUnitsConverter::everyFactorIsAnnounced()
{
    DbGroupQmlUnitsConverter units(QStringLiteral("QmlUnitsConverter"));
    for (const char *kind : kinds) {
        for (const char *direction : {"ToDisplay", "FromDisplay"}) {
            const QByteArray property = QByteArray(kind) + direction;
            const int index = units.metaObject()->indexOfProperty(property.constData());
            QSignalSpy changed(&units,
                               units.metaObject()->property(index).notifySignal().methodSignature().prepend('2'));
            units.setAreaUnitSystem(1);
            QCOMPARE(changed.count(), 1);
        }
    }
}

void TestDbGroupQmlUnitsConverter::aUnitSetByNameRenewsTheFactorsToo()
{
    DbGroupQmlUnitsConverter units(QStringLiteral("QmlUnitsConverter"));
    QCOMPARE(units.setProperty("areaUnitSystem", 1), 0);
    QCOMPARE(units.setProperty("pressureUnit", 2), 0);
    QCOMPARE(units.getVolumeRateToDisplay(), 1.0);
    QVERIFY(isClose(units.getPressureToDisplay(), 0.01));
}

void TestDbGroupQmlUnitsConverter::unitsSetFromTwoThreadsEndWithTheirOwnFactors()
{
    DbGroupQmlUnitsConverter units(QStringLiteral("QmlUnitsConverter"));
    units.setThreadSafe(true);
    for (int round = 0; round < 200; ++round) {
        std::thread first([&]() { units.setAreaUnitSystem(0); });
        std::thread second([&]() { units.setAreaUnitSystem(1); });
        first.join();
        second.join();
        QCOMPARE(units.getRatioRateToDisplay(), units.getAreaUnitSystem() == 1 ? 1.0 : 128.0);
        QCOMPARE(units.getCountRateToDisplay() == 1.0, units.getAreaUnitSystem() == 1);
    }
}

RXMAP_TEST(TestDbGroupQmlUnitsConverter, Core)
#include "tst_dbgroupqmlunitsconverter.moc"
