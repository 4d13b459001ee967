#include "dialogtest.h"

/// Which products the dialog considers to be under prescription control.
class TestDialogUnderControl : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void aBinThatKnowsNoPrescriptionIsNotUnderVra();
    void anyTextNamesAPrescription_data();
    void anyTextNamesAPrescription();
    void aNumberNamesAPrescription();
    void thePollFollowsTheBin_data();
    void thePollFollowsTheBin();
    void binsCountInTheOrderOfTheirPublication();
    void binsThatAreGoneDoNotCount();

private:
    /// The selected product's controls are all shown, or the message is shown in their place.
    bool showsControls() const;
};

bool TestDialogUnderControl::showsControls() const
{
    for (const QWidget *control : probe->valueControls()) {
        if (control->isVisible() == probe->notUnderVraLabel()->isVisible())
            qFatal("%s and the message do not exclude each other", qPrintable(control->objectName()));
    }
    return !probe->notUnderVraLabel()->isVisible();
}

void TestDialogUnderControl::aBinThatKnowsNoPrescriptionIsNotUnderVra()
{
    host->broker.removeGroup(QStringLiteral("system.binGroup.3"));
    host->broker.publishGroup(new UnmappedBinGroup(QStringLiteral("system.binGroup.3")));
    open();
    QVERIFY(!probe->notUnderVraLabel()->isVisible());
    DialogProbe::release(probe->productButton(2));
    QVERIFY(probe->notUnderVraLabel()->isVisible());
    for (QWidget *control : probe->valueControls())
        QVERIFY2(!control->isVisible(), qPrintable(control->objectName()));
}

void TestDialogUnderControl::anyTextNamesAPrescription_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("underControl");
    QTest::newRow("a published map") << "rxMap.field" << true;
    QTest::newRow("a map that is not published") << "rxMap.other" << true;
    QTest::newRow("no map's name") << "other" << true;
    QTest::newRow("blank") << " " << true;
    QTest::newRow("zero") << "0" << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("null") << QString() << false;
}

void TestDialogUnderControl::anyTextNamesAPrescription()
{
    QFETCH(QString, name);
    host->bins.at(0)->setRxMapGroupName(name);
    open();
    QTEST(showsControls(), "underControl");
}

void TestDialogUnderControl::aNumberNamesAPrescription()
{
    host->broker.removeGroup(QStringLiteral("system.binGroup.3"));
    auto *bin = new NumberBinGroup(QStringLiteral("system.binGroup.3"));
    bin->setRxMapGroupName(5);
    host->broker.publishGroup(bin);
    open();
    DialogProbe::release(probe->productButton(2));
    QVERIFY(showsControls());
}

void TestDialogUnderControl::thePollFollowsTheBin_data()
{
    QTest::addColumn<bool>("mapped");
    QTest::newRow("a prescription comes") << true;
    QTest::newRow("a prescription goes") << false;
}

void TestDialogUnderControl::thePollFollowsTheBin()
{
    QFETCH(bool, mapped);
    const QString name = QStringLiteral("rxMap.field");
    host->bins.at(0)->setRxMapGroupName(mapped ? QString() : name);
    open();
    QCOMPARE(showsControls(), !mapped);
    host->bins.at(0)->setRxMapGroupName(mapped ? name : QString());
    QCOMPARE(showsControls(), !mapped);
    QTRY_COMPARE_WITH_TIMEOUT(showsControls(), mapped, 3000);
    if (mapped) {
        QVERIFY(!probe->vehicleMovingLabel()->isVisible());
        QVERIFY(probe->lookAheadEdit()->isEnabled());
    }
}

void TestDialogUnderControl::binsCountInTheOrderOfTheirPublication()
{
    host.reset(new DialogHost(11));
    host->bins.at(1)->setRxMapGroupName(QString());
    open();
    for (int product = 0; product < 11; ++product) {
        DialogProbe::release(probe->productButton(product));
        QCOMPARE(showsControls(), product != 1);
    }
}

void TestDialogUnderControl::binsThatAreGoneDoNotCount()
{
    host->bins.at(2)->setRxMapGroupName(QString());
    host->broker.removeGroup(QStringLiteral("system.binGroup.1"));
    open();
    QCOMPARE(probe->productButtonCount(), 2);
    QVERIFY(showsControls());
    DialogProbe::release(probe->productButton(1));
    QVERIFY(!showsControls());
}

RXMAP_TEST(TestDialogUnderControl, Widgets)
#include "tst_rxmapwidgetdialog01_undercontrol.moc"
