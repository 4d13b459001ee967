#include "ratecolumns.h"
#include "testbase.h"

class RateColumnsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void findsANameByItsCaseFirst();
    void readsNumbersThatMayBeRatesAndTextOnlyWhereTheNameSaysRate_data();
    void readsNumbersThatMayBeRatesAndTextOnlyWhereTheNameSaysRate();
};

void RateColumnsTest::findsANameByItsCaseFirst()
{
    const QStringList names = {QStringLiteral("RATE"), QStringLiteral("rate"), QStringLiteral("Dose")};
    QCOMPARE(RateColumns::find(names, QStringLiteral("rate")), 1);
    QCOMPARE(RateColumns::find(names, QStringLiteral("Rate")), 0);
    QCOMPARE(RateColumns::find(names, QStringLiteral("DOSE")), 2);
    QCOMPARE(RateColumns::find(names, QStringLiteral("lime")), -1);
}

void RateColumnsTest::readsNumbersThatMayBeRatesAndTextOnlyWhereTheNameSaysRate_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isWorthReading");
    QTest::newRow("text, a rate") << QByteArray("text") << "Rate" << true;
    QTest::newRow("text, a product") << QByteArray("text") << "product" << false;
    QTest::newRow("whole numbers, a rate") << QByteArray("integer") << "dose" << true;
    QTest::newRow("whole numbers of anything") << QByteArray("integer") << "grade" << false;
    QTest::newRow("numbers of anything") << QByteArray("real") << "grade" << true;
    QTest::newRow("an area") << QByteArray("real") << "AREA_HA" << false;
}

void RateColumnsTest::readsNumbersThatMayBeRatesAndTextOnlyWhereTheNameSaysRate()
{
    QFETCH(QByteArray, type);
    SourceColumn column;
    QFETCH(QString, name);
    column.name = name;
    column.isText = type == "text";
    column.isInteger = type == "integer";
    QTEST(RateColumns::isWorthReading(column), "isWorthReading");
}

RXMAP_TEST(RateColumnsTest, Core)
#include "tst_ratecolumns.moc"
