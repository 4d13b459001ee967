#include "openeddialog.h"
#include "testbase.h"

/// The dialog on a host that lacks something that it needs.
class TestDialogMissing : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aGroupThatWasNeverWrittenGivesNoSettings();
    void settingsComeFromTheFirstNameEvenIfItIsNoMap();
    void missingPiecesLeaveAUsableDialog_data();
    void missingPiecesLeaveAUsableDialog();
    void withoutAPictureItIsSeenAndCanBeLeft();
    void aGroupThatIsDeletedMeanwhileIsNotWritten();
};

namespace {

/// Types and switches whatever the third product offers, and unlocks it first.
void useEveryControl(Opened &opened)
{
    opened.dialog.productSelectionChanged(2);
    opened.dialog.setControlsEnabledState(true);
    DialogProbe::type(opened.probe.lookAheadEdit(), QStringLiteral("1.5"));
    DialogProbe::type(opened.probe.defaultRateEdit(), QStringLiteral("12.5"));
    DialogProbe::release(opened.probe.zeroRateShutoffBox());
    DialogProbe::release(opened.probe.applyToAllBox());
    DialogProbe::release(opened.probe.applyToAllBox());
    opened.dialog.setControlsEnabledState(true);
}

void takeAway(DialogHost &host, const QString &missing)
{
    const auto isMissing = [&missing](const char *piece) {
        return missing == QLatin1String("everything") || missing == QLatin1String(piece);
    };
    if (isMissing("map") || missing == QLatin1String("map of another class"))
        host.broker.removeGroup(QStringLiteral("rxMap.field"));
    if (missing == QLatin1String("map of another class"))
        host.broker.publishGroup(new BinGroup(QStringLiteral("rxMap.other")));
    if (missing == QLatin1String("settings"))
        host.map->setSettings({OrvikTypes::RX_SETTINGS()});
    if (isMissing("units"))
        host.broker.removeGroup(QStringLiteral("QmlUnitsConverter"));
    if (isMissing("gps"))
        host.broker.removeGroup(QStringLiteral("mainGpsSolution"));
    if (missing == QLatin1String("node"))
        host.products.at(2)->setPrimaryProductNodeGroup(nullptr);
    if (missing == QLatin1String("loader"))
        host.products.at(2)->setRxMapLoader(nullptr);
    if (isMissing("products")) {
        host.products.clear();
        host.setLoaded();
    }
    if (isMissing("bins")) {
        for (BinGroup *bin : qAsConst(host.bins))
            host.broker.removeGroup(bin->name());
    }
    if (isMissing("images"))
        host.images = QDir(QStringLiteral("/nowhere"));
}

} // namespace

void TestDialogMissing::aGroupThatWasNeverWrittenGivesNoSettings()
{
    DialogHost host;
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    DbGroupRxMap *group = host.host.addMap(QStringLiteral("fresh"), {1, 2, 3});
    Opened opened(host);
    opened.dialog.show();
    QVERIFY(opened.probe.settings().isEmpty());
    QCOMPARE(opened.probe.selectedProduct(), 0);
    QCOMPARE(opened.probe.lookAheadEdit()->getText(), QStringLiteral("0.0"));
    QCOMPARE(opened.probe.zeroRateShutoffBox()->currentImage(), 0);
    QCOMPARE(opened.probe.applyToAllBox()->currentImage(), 0);
    useEveryControl(opened);
    QVERIFY(opened.probe.settings().isEmpty());
    DialogProbe::release(opened.probe.doneButton());
    QVERIFY(group->getSettings().isEmpty());
    // The mappings can do without the settings.
    QCOMPARE(group->getRateCalMappings().at(2).defaultRate, 12.5);
    QCOMPARE(host.reInitialisations, 0);
}

void TestDialogMissing::settingsComeFromTheFirstNameEvenIfItIsNoMap()
{
    DialogHost host;
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    host.broker.publishGroup(new BinGroup(QStringLiteral("rxMap.other")));
    DbGroupRxMap *group = host.host.addMap(QStringLiteral("second"), {1, 2, 3});
    OrvikTypes::RX_SETTINGS entry;
    entry.onLookAheadMs = 2500;
    entry.zeroRateShutoff = true;
    const QList<OrvikTypes::RX_SETTINGS> settings{entry, entry, entry};
    group->setSettings(settings);
    Opened opened(host);
    opened.dialog.show();
    QVERIFY(opened.probe.settings().isEmpty());
    QCOMPARE(opened.probe.lookAheadEdit()->getText(), QStringLiteral("0.0"));
    QCOMPARE(opened.probe.mappings(), group->getRateCalMappings());
    useEveryControl(opened);
    DialogProbe::release(opened.probe.doneButton());
    QCOMPARE(group->getSettings(), settings);
    QCOMPARE(group->getRateCalMappings().at(2).defaultRate, 12.5);
    QCOMPARE(host.reInitialisations, 0);
}

void TestDialogMissing::missingPiecesLeaveAUsableDialog_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("lookAhead");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("rate");
    QTest::addColumn<bool>("settingsWritten");
    QTest::addColumn<double>("mappingRate");
    QTest::addColumn<double>("loaderRate");
    const auto row = [](const char *title, const char *missing, const char *lookAhead, const QString &caption,
                        const char *rate, bool settingsWritten, double mappingRate, double loaderRate) {
        QTest::newRow(title) << missing << lookAhead << caption << rate << settingsWritten << mappingRate << loaderRate;
    };
    const QString caption = QStringLiteral("Default Rate (kg/ha)");
    row("nothing", "nothing", "3.0", caption, "4", true, 12.5, 12.5);
    row("map", "map", "0.0", caption, "????", false, 4.0, 12.5);
    row("other class", "map of another class", "0.0", caption, "????", false, 4.0, 12.5);
    row("settings", "settings", "0.0", caption, "4", false, 12.5, 12.5);
    row("units", "units", "3.0", "", "0", true, 4.0, 3.0);
    row("gps", "gps", "3.0", caption, "4", true, 12.5, 12.5);
    // No product has set its factors yet, so what is typed counts as 0.
    row("products", "products", "3.0", "", "0", true, 0.0, 3.0);
    // The factors are still those of the product before.
    row("node", "node", "3.0", "", "4", true, 12.5, 12.5);
    row("loader", "loader", "3.0", caption, "4", true, 12.5, 3.0);
    // Without bins no product is under control, so Done cancels; the master falls to the first product.
    row("bins", "bins", "3.0", caption, "4", false, 4.0, 12.5);
    row("images", "images", "3.0", caption, "4", true, 12.5, 12.5);
    row("group removed", "group removed while open", "3.0", caption, "4", false, 4.0, 12.5);
    row("everything", "everything", "0.0", "", "????", false, 4.0, 3.0);
}

void TestDialogMissing::missingPiecesLeaveAUsableDialog()
{
    QFETCH(QString, missing);
    QFETCH(bool, settingsWritten);
    DialogHost host;
    // Every value differs from that of a fresh record.
    auto mappings = host.map->getRateCalMappings();
    mappings[2].defaultRate = 4.0;
    host.map->setRateCalMappings(mappings);
    host.loaders[2].defaultRate = 3.0;
    takeAway(host, missing);
    auto expected = host.map->getSettings();
    if (settingsWritten) {
        expected[2].onLookAheadMs = 1500;
        for (OrvikTypes::RX_SETTINGS &entry : expected)
            entry.zeroRateShutoff = true;
    }

    Opened opened(host);
    opened.dialog.show();
    if (missing == QLatin1String("group removed while open"))
        host.broker.removeGroup(QStringLiteral("rxMap.field"));
    for (int product = 0; product < 3; ++product)
        opened.dialog.productSelectionChanged(product);
    QTEST(opened.probe.lookAheadEdit()->getText(), "lookAhead");
    QTEST(opened.probe.defaultRateLabel()->text(), "caption");
    QTEST(opened.probe.defaultRateEdit()->getText(), "rate");
    // Without a bin a product is not under control. Otherwise even a rate field without a node is shown, as intended.
    const bool hasBins = missing != QLatin1String("bins") && missing != QLatin1String("everything");
    QCOMPARE(opened.probe.defaultRateEdit()->isVisible(), hasBins);
    useEveryControl(opened);
    QCOMPARE(messages().debugLines(), QStringList());
    DialogProbe::release(opened.probe.doneButton());
    QCOMPARE(opened.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(host.map->getSettings(), expected);
    QTEST(host.map->getRateCalMappings().at(2).defaultRate, "mappingRate");
    QTEST(host.loaders[2].defaultRate, "loaderRate");
}

void TestDialogMissing::withoutAPictureItIsSeenAndCanBeLeft()
{
    DialogHost host;
    host.images = QDir(QStringLiteral("/no/such/images"));
    Opened opened(host);
    bool wasSeen = false;
    QTimer::singleShot(0, &opened.dialog, [&] {
        wasSeen = QTest::qWaitForWindowExposed(&opened.dialog);
        if (wasSeen)
            QTest::keyClick(opened.dialog.windowHandle(), Qt::Key_Escape);
    });
    // Makes the test end even if the key does not close the dialog.
    QTimer::singleShot(10000, &opened.dialog, &QDialog::accept);
    QCOMPARE(opened.dialog.exec(), int(QDialog::Rejected));
    QVERIFY(wasSeen);
    QVERIFY(opened.dialog.rect().contains(opened.probe.doneButton()->pos()));
}

void TestDialogMissing::aGroupThatIsDeletedMeanwhileIsNotWritten()
{
    DialogHost host;
    Opened opened(host);
    opened.dialog.setControlsEnabledState(true);
    DialogProbe::type(opened.probe.lookAheadEdit(), QStringLiteral("1.5"));
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    delete host.map;
    opened.dialog.doneButtonReleased(0);
    QCOMPARE(opened.dialog.result(), int(QDialog::Accepted));
}

RXMAP_TEST(TestDialogMissing, Widgets)
#include "tst_rxmapwidgetdialog01_missing.moc"
