#include "legendpanel.h"
#include "testbase.h"

/// The legend's texts.
class TestLegendPanel : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void classesReadAsRangesInTheOperatorsUnit_data();
    void classesReadAsRangesInTheOperatorsUnit();
    void anEmptyLegendHasNoClasses();
};

void TestLegendPanel::classesReadAsRangesInTheOperatorsUnit_data()
{
    QTest::addColumn<QList<double>>("limits");
    QTest::addColumn<double>("factor");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("with zero") << QList<double>{0.0, 49.0, 300.0} << 1.0 << QStringList{"0", "0 – 49", "49 – 300"};
    QTest::newRow("without zero") << QList<double>{23.0, 60.0} << 1.0 << QStringList{"≤ 23", "23 – 60"};
    QTest::newRow("converted") << QList<double>{10.0, 20.0} << 0.25 << QStringList{"≤ 2.5", "2.5 – 5"};
    QTest::newRow("small") << QList<double>{0.0123, 0.5} << 1.0 << QStringList{"≤ 0.0123", "0.0123 – 0.5"};
    QTest::newRow("large") << QList<double>{70000.0, 81234.5} << 1.0 << QStringList{"≤ 70000", "70000 – 81235"};
}

void TestLegendPanel::classesReadAsRangesInTheOperatorsUnit()
{
    QFETCH(QList<double>, limits);
    QFETCH(double, factor);
    QList<OrvikTypes::RX_RATECOLOR> legend;
    for (const double limit : limits)
        legend.append({limit, Qt::green});
    LegendPanel panel;
    panel.show(QStringLiteral("Seed"), QStringLiteral("RATE"), legend, factor, QStringLiteral("kg/ha"));
    QTEST(panel.classTexts(), "texts");
    QCOMPARE(panel.size(), panel.sizeHint());
}

void TestLegendPanel::anEmptyLegendHasNoClasses()
{
    LegendPanel panel;
    panel.show(QStringLiteral("Seed"), QString(), {}, 1.0, QStringLiteral("kg/ha"));
    QVERIFY(panel.classTexts().isEmpty());
    QVERIFY(!panel.grab().isNull());
}

QTEST_MAIN(TestLegendPanel)
#include "tst_legendpanel.moc"
