#include "dialogtest.h"

/// What the dialog's controls do between construction and Done.
class TestDialogEditing : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void selectingAProductShowsItsValues();
    void lookAheadIsShownWithOneDecimal_data();
    void lookAheadIsShownWithOneDecimal();
    void typedLookAheadIsStoredInMilliseconds_data();
    void typedLookAheadIsStoredInMilliseconds();
    void otherIdsDoNothing();
};

void TestDialogEditing::selectingAProductShowsItsValues()
{
    OrvikTypes::RX_SETTINGS entry = host->entry(2);
    entry.zeroRateShutoff = true;
    host->editSettings(2, entry);
    open();
    DialogProbe::release(probe->productButton(2));
    QCOMPARE(probe->selectedProduct(), 2);
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("3.0"));
    QCOMPARE(probe->zeroRateShutoffBox()->currentImage(), 1);
    QCOMPARE(probe->applyToAllBox()->currentImage(), 0);
    QCOMPARE(probe->productButton(0)->currentImage(), 0);
    QCOMPARE(probe->productButton(0)->textColor(0), QColor(129, 129, 129, 255));
    QCOMPARE(probe->productButton(2)->currentImage(), 1);
    QCOMPARE(probe->productButton(2)->textColor(0), QColor(Qt::white));
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->zeroRateShutoffBox()->currentImage(), 0);
    QCOMPARE(probe->productButton(2)->currentImage(), 0);
    QCOMPARE(probe->productButton(2)->textColor(0), QColor(129, 129, 129, 255));
}

void TestDialogEditing::lookAheadIsShownWithOneDecimal_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("2500") << 2500 << "2.5";
    QTest::newRow("0") << 0 << "0.0";
    QTest::newRow("1260") << 1260 << "1.3";
    QTest::newRow("negative") << -1500 << "-1.5";
    QTest::newRow("long") << 123456 << "123.5";
}

void TestDialogEditing::lookAheadIsShownWithOneDecimal()
{
    QFETCH(int, milliseconds);
    OrvikTypes::RX_SETTINGS entry = host->entry(2);
    entry.onLookAheadMs = milliseconds;
    host->editSettings(2, entry);
    open();
    DialogProbe::release(probe->productButton(2));
    QTEST(probe->lookAheadEdit()->getText(), "text");
    QCOMPARE(probe->settings().at(2).onLookAheadMs, milliseconds);
}

void TestDialogEditing::typedLookAheadIsStoredInMilliseconds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("two decimals") << "2.57" << 2570;
    QTest::newRow("below a millisecond") << "0.0004" << 0;
    QTest::newRow("truncated") << "1.9999" << 1999;
    QTest::newRow("truncated toward zero") << "-1.9999" << -1999;
    QTest::newRow("no number") << "abc" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("not a number") << "nan" << 0;
    QTest::newRow("too small") << "-1e300" << std::numeric_limits<int>::min();
    QTest::newRow("too large") << "1e300" << std::numeric_limits<int>::max();
}

void TestDialogEditing::typedLookAheadIsStoredInMilliseconds()
{
    QFETCH(QString, text);
    open();
    DialogProbe::release(probe->productButton(1));
    DialogProbe::type(probe->lookAheadEdit(), text);
    QTEST(probe->settings().at(1).onLookAheadMs, "milliseconds");
    QCOMPARE(host->entry(1).onLookAheadMs, 2000);
}

void TestDialogEditing::otherIdsDoNothing()
{
    open();
    const auto settings = probe->settings();
    for (int id : {-1, 4, 99})
        dialog->onValueChanged(id);
    QCOMPARE(probe->settings(), settings);
    QCOMPARE(probe->applyToAllBox()->currentImage(), 0);
    QCOMPARE(probe->zeroRateShutoffBox()->currentImage(), 0);
}

RXMAP_TEST(TestDialogEditing, Widgets)
#include "tst_rxmapwidgetdialog01_editing.moc"
