#include "dbgroupgpssolution.h"
#include "propertycheck.h"
#include "testbase.h"

/// Position and motion, as the broker shows them.
class TestDbGroupGpsSolution : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aVehicleOfWhichNothingIsKnownStandsStill();
    void everyPropertyIsWrittenReadAndNotifiedOnItsOwn_data();
    void everyPropertyIsWrittenReadAndNotifiedOnItsOwn();
};

void TestDbGroupGpsSolution::aVehicleOfWhichNothingIsKnownStandsStill()
{
    const DbGroupGpsSolution group(QStringLiteral("mainGpsSolution"));
    QVERIFY(group.getVehicleIsStopped());
    QCOMPARE(group.getSpeed(), 0.0);
    QCOMPARE(group.getHeading(), 0.0);
    QCOMPARE(group.getPosition().x, 0.0);
    QCOMPARE(group.getPosition().y, 0.0);
    QCOMPARE(group.getPosition().z, 0.0);
}

void TestDbGroupGpsSolution::everyPropertyIsWrittenReadAndNotifiedOnItsOwn_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("vehicleIsStopped") << QVariant(false);
    QTest::newRow("position") << QVariant::fromValue(OrvikTypes::XYZ{12.5, -7.0, 0.25});
    QTest::newRow("speed") << QVariant(2.75);
    QTest::newRow("heading") << QVariant(180.0);
}

void TestDbGroupGpsSolution::everyPropertyIsWrittenReadAndNotifiedOnItsOwn()
{
    QFETCH(QVariant, value);
    QCOMPARE(problemOfProperty(new DbGroupGpsSolution(QStringLiteral("mainGpsSolution")),
                               QString::fromLatin1(QTest::currentDataTag()), value),
             QString());
}

RXMAP_TEST(TestDbGroupGpsSolution, Core)
#include "tst_dbgroupgpssolution.moc"
