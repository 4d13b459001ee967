#include "dialogtest.h"

/// What a master product does to the others.
class TestDialogMaster : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void applyToAllMakesTheSelectedProductMaster();
    void aMasterWithoutShutoffSwitchesTheOthersOff();
    void applyToAllOffClearsTheMasterAndNothingElse();
    void applyToAllRefreshesOnlyWhenSwitchedOn();
    void aMasterBeyondTheButtonsFallsToTheFirst();
    void zeroRateShutoffReachesFollowersOfTheMaster();
    void zeroRateShutoffReachesAMasterThatFollows();
    void zeroRateShutoffWithoutMasterReachesTheSelectedProductAlone();
};

void TestDialogMaster::applyToAllMakesTheSelectedProductMaster()
{
    OrvikTypes::RX_SETTINGS entry = host->entry(2);
    entry.zeroRateShutoff = true;
    host->editSettings(2, entry);
    entry = host->entry(0);
    entry.followsMaster = false;
    host->editSettings(0, entry);
    open();
    DialogProbe::release(probe->productButton(2));
    probe->productButton(1)->setEnabled(false);
    DialogProbe::release(probe->applyToAllBox());
    QVERIFY(probe->settings().at(2).isMaster);
    QVERIFY(!probe->settings().at(0).isMaster && !probe->settings().at(1).isMaster);
    // Also those that do not follow.
    QVERIFY(probe->settings().at(0).zeroRateShutoff && probe->settings().at(1).zeroRateShutoff);
    QCOMPARE(probe->selectedProduct(), 2);
    QCOMPARE(probe->applyToAllBox()->currentImage(), 1);
    QVERIFY(probe->productButton(1)->isEnabled());
}

void TestDialogMaster::aMasterWithoutShutoffSwitchesTheOthersOff()
{
    OrvikTypes::RX_SETTINGS entry = host->entry(1);
    entry.zeroRateShutoff = true;
    host->editSettings(1, entry);
    open();
    DialogProbe::release(probe->applyToAllBox());
    for (const OrvikTypes::RX_SETTINGS &any : qAsConst(probe->settings()))
        QVERIFY2(!any.zeroRateShutoff, qPrintable(any.name));
}

void TestDialogMaster::applyToAllOffClearsTheMasterAndNothingElse()
{
    open();
    DialogProbe::release(probe->productButton(1));
    DialogProbe::release(probe->zeroRateShutoffBox());
    DialogProbe::release(probe->applyToAllBox());
    DialogProbe::release(probe->productButton(2));
    auto expected = probe->settings();
    expected[1].isMaster = false;
    probe->productButton(1)->setEnabled(false);
    DialogProbe::release(probe->applyToAllBox());
    QVERIFY(probe->productButton(1)->isEnabled());
    QCOMPARE(probe->settings(), expected);
    QCOMPARE(probe->selectedProduct(), 2);
    QCOMPARE(probe->applyToAllBox()->currentImage(), 0);
}

void TestDialogMaster::applyToAllRefreshesOnlyWhenSwitchedOn()
{
    open();
    DialogProbe::release(probe->productButton(2));
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("2.57"));
    DialogProbe::release(probe->applyToAllBox());
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("2.6"));
    QCOMPARE(probe->settings().at(2).onLookAheadMs, 2570);
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("3.14"));
    host->gps->setVehicleIsStopped(false);
    DialogProbe::release(probe->applyToAllBox());
    // The standstill is not looked at either, until the next poll.
    QVERIFY(probe->lookAheadEdit()->isEnabled());
    QVERIFY(!probe->vehicleMovingLabel()->isVisible());
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("3.14"));
}

void TestDialogMaster::aMasterBeyondTheButtonsFallsToTheFirst()
{
    auto settings = host->map->getSettings();
    settings.append(OrvikTypes::RX_SETTINGS());
    settings[3].isMaster = true;
    settings[0].zeroRateShutoff = true;
    host->map->setSettings(settings);
    open();
    QCOMPARE(probe->selectedProduct(), 0);
    settings[3].isMaster = false;
    settings[0].isMaster = true;
    // The shut-off is the first product's, too.
    for (OrvikTypes::RX_SETTINGS &entry : settings)
        entry.zeroRateShutoff = true;
    QCOMPARE(probe->settings(), settings);
}

void TestDialogMaster::zeroRateShutoffReachesFollowersOfTheMaster()
{
    for (int index : {0, 1}) {
        OrvikTypes::RX_SETTINGS entry = host->entry(index);
        entry.followsMaster = false;
        host->editSettings(index, entry);
    }
    open();
    DialogProbe::release(probe->applyToAllBox());
    DialogProbe::release(probe->zeroRateShutoffBox());
    QCOMPARE(probe->zeroRateShutoffBox()->currentImage(), 1);
    // Not even the selected product's, which does not follow.
    QVERIFY(!probe->settings().at(0).zeroRateShutoff);
    QVERIFY(!probe->settings().at(1).zeroRateShutoff);
    QVERIFY(probe->settings().at(2).zeroRateShutoff);
    DialogProbe::release(probe->zeroRateShutoffBox());
    QVERIFY(!probe->settings().at(2).zeroRateShutoff);
}

void TestDialogMaster::zeroRateShutoffReachesAMasterThatFollows()
{
    open();
    DialogProbe::release(probe->productButton(1));
    DialogProbe::release(probe->applyToAllBox());
    for (const bool shutoff : {true, false}) {
        DialogProbe::release(probe->zeroRateShutoffBox());
        for (const OrvikTypes::RX_SETTINGS &entry : qAsConst(probe->settings()))
            QCOMPARE(entry.zeroRateShutoff, shutoff);
    }
}

void TestDialogMaster::zeroRateShutoffWithoutMasterReachesTheSelectedProductAlone()
{
    open();
    DialogProbe::release(probe->productButton(1));
    DialogProbe::release(probe->zeroRateShutoffBox());
    QVERIFY(!probe->settings().at(0).zeroRateShutoff);
    QVERIFY(probe->settings().at(1).zeroRateShutoff);
    QVERIFY(!probe->settings().at(2).zeroRateShutoff);
    DialogProbe::release(probe->zeroRateShutoffBox());
    QVERIFY(!probe->settings().at(1).zeroRateShutoff);
}

RXMAP_TEST(TestDialogMaster, Widgets)
#include "tst_rxmapwidgetdialog01_master.moc"
