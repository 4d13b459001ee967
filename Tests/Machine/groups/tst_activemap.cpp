#include "activemap.h"
#include "machine.h"
#include "productfile.h"
#include "terminalhost.h"
#include "testbase.h"

/// The map that feeds a product, and the class of a rate.
class TestActiveMap : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aRateBelongsToTheFirstClassThatIsNotBelowIt_data();
    void aRateBelongsToTheFirstClassThatIsNotBelowIt();
    void anAppliedRateNeedsOnlyComeNear_data();
    void anAppliedRateNeedsOnlyComeNear();
    void farBelowAllRatesIsUnplanned();
    void withoutALegendThereIsNoColour();
    void whatIsNotDrawnIsNoClass();
    void theMappingOfTheProductIsFound();
    void withoutAMapNothingIsFound();
};

void TestActiveMap::aRateBelongsToTheFirstClassThatIsNotBelowIt_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QColor>("color");
    QTest::newRow("zero") << 0.0 << QColor(Qt::red);
    QTest::newRow("between") << 5.0 << QColor(Qt::green);
    QTest::newRow("on the limit") << 10.0 << QColor(Qt::green);
    QTest::newRow("just above") << 10.001 << QColor(Qt::blue);
    QTest::newRow("above all") << 99.0 << QColor(Qt::blue);
}

void TestActiveMap::aRateBelongsToTheFirstClassThatIsNotBelowIt()
{
    QFETCH(double, rate);
    ActiveMap map;
    map.legend = {{0.0, Qt::red}, {10.0, Qt::green}, {20.0, Qt::blue}};
    QTEST(map.classColor(rate), "color");
}

void TestActiveMap::anAppliedRateNeedsOnlyComeNear_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<bool>("hasSingleRates");
    QTest::addColumn<QColor>("color");
    QTest::newRow("a hair above a limit") << 10.0001 << false << QColor(Qt::green);
    QTest::newRow("well above a limit") << 10.2 << false << QColor(Qt::blue);
    QTest::newRow("a hair above a rate") << 10.0001 << true << QColor(Qt::green);
    QTest::newRow("nearer to the rate below") << 14.9 << true << QColor(Qt::green);
    QTest::newRow("nearer to the rate above") << 15.1 << true << QColor(Qt::blue);
    QTest::newRow("a little above all") << 29.9 << true << QColor(Qt::blue);
    QTest::newRow("far above all") << 30.1 << true << ActiveMap::unplannedColor();
    QTest::newRow("far above a range") << 30.1 << false << ActiveMap::unplannedColor();
    QTest::newRow("no rate") << qQNaN() << true << QColor();
    QTest::newRow("no rate in a range") << qQNaN() << false << QColor();
}

void TestActiveMap::anAppliedRateNeedsOnlyComeNear()
{
    QFETCH(double, rate);
    QFETCH(bool, hasSingleRates);
    ActiveMap map;
    map.legend = {{0.0, Qt::red}, {10.0, Qt::green}, {20.0, Qt::blue}};
    QTEST(map.appliedColor(rate, hasSingleRates), "color");
}

void TestActiveMap::farBelowAllRatesIsUnplanned()
{
    ActiveMap map;
    map.legend = {{49.0, Qt::red}, {60.0, Qt::blue}};
    QCOMPARE(map.appliedColor(2.0, true), ActiveMap::unplannedColor());
    QCOMPARE(map.appliedColor(45.0, true), QColor(Qt::red));
    // A class that is a range of rates has no lower end.
    QCOMPARE(map.appliedColor(2.0, false), QColor(Qt::red));
}

void TestActiveMap::withoutALegendThereIsNoColour()
{
    QVERIFY(!ActiveMap().classColor(1.0).isValid());
    QVERIFY(!ActiveMap().appliedColor(1.0, true).isValid());
    QVERIFY(!ActiveMap().appliedColor(1.0, false).isValid());
}

void TestActiveMap::whatIsNotDrawnIsNoClass()
{
    DataBroker broker;
    PrescriptionBackend backend(&broker);
    LoadRequest request;
    request.path = TerminalHost::fixture(QStringLiteral("partly-without-rate.geojson"));
    request.columns = QStringList{"fert_rate"};
    request.columns.append(QStringLiteral("seed_rate"));
    request.products = {{QString(), Machine::productGroupName(1)}, {QString(), Machine::productGroupName(2)}};
    const LoadReport report = backend.loadAndWait(request);
    QCOMPARE(report.legends.first().size(), 3);
    const ActiveMap map = ActiveMap::find(broker, Machine::productGroupName(1));
    QCOMPARE(map.legend.size(), 2);
    QCOMPARE(map.legend.last().rate, 110.0);
    QCOMPARE(map.classColor(200.0), map.legend.last().color);
    QVERIFY(!map.classColor(qQNaN()).isValid());
}

void TestActiveMap::theMappingOfTheProductIsFound()
{
    DataBroker broker;
    PrescriptionBackend backend(&broker);
    LoadRequest request;
    request.path = TerminalHost::fixture(QStringLiteral("three-zones.geojson"));
    request.columns = QStringList{"SEED_K_HA", "HERB_L_HA"};
    request.products = {{QString(), Machine::productGroupName(1)}, {QString(), Machine::productGroupName(2)}};
    QVERIFY(backend.loadAndWait(request).isOk());
    const ActiveMap map = ActiveMap::find(broker, Machine::productGroupName(2));
    QVERIFY(map.isValid());
    QCOMPARE(map.mapping, 1);
    QCOMPARE(map.columnName, QStringLiteral("HERB_L_HA"));
    QVERIFY(!map.legend.isEmpty());
    QVERIFY(!ActiveMap::find(broker, Machine::productGroupName(3)).isValid());
}

void TestActiveMap::withoutAMapNothingIsFound()
{
    DataBroker broker;
    const ActiveMap map = ActiveMap::find(broker, Machine::productGroupName(1));
    QVERIFY(!map.isValid());
    QVERIFY(map.groupName.isEmpty());
}

RXMAP_TEST(TestActiveMap, Core)
#include "tst_activemap.moc"
