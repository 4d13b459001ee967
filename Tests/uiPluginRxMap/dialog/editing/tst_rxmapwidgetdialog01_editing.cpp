#include "dialogtest.h"

#include <limits>

/// What the dialog's controls do between construction and Done.
class TestDialogEditing : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void selectingAProductShowsItsValues();
    void lookAheadIsShownWithOneDecimal_data();
    void lookAheadIsShownWithOneDecimal();
    void typedLookAheadIsKeptUntilDone();
    void otherIdsDoNothing();
    void aProductThatIsNotThereChangesNothing_data();
    void aProductThatIsNotThereChangesNothing();
    void aProductSelectedWhileAnotherIsShownStays_data();
    void aProductSelectedWhileAnotherIsShownStays();
    void theDialogMayGoWhenALoaderTakesARate();

private:
    int readsToGo = 0;
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

void TestDialogEditing::typedLookAheadIsKeptUntilDone()
{
    open();
    DialogProbe::release(probe->productButton(1));
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("2.57"));
    QCOMPARE(probe->settings().at(1).onLookAheadMs, 2570);
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

void TestDialogEditing::aProductThatIsNotThereChangesNothing_data()
{
    QTest::addColumn<int>("product");
    QTest::newRow("before the first") << -1;
    QTest::newRow("beyond the last") << 3;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void TestDialogEditing::aProductThatIsNotThereChangesNothing()
{
    QFETCH(int, product);
    open();
    const auto settings = probe->settings();
    const auto mappings = probe->mappings();
    dialog->productSelectionChanged(product);
    QVERIFY(probe->notUnderVraLabel()->isVisible());
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("0.0"));
    QCOMPARE(probe->defaultRateEdit()->getText(), QStringLiteral("????"));
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("9.0"));
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("7"));
    DialogProbe::release(probe->zeroRateShutoffBox());
    QCOMPARE(probe->settings(), settings);
    QCOMPARE(probe->mappings(), mappings);
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("2.0"));
}

void TestDialogEditing::aProductSelectedWhileAnotherIsShownStays_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("read");
    QTest::newRow("while its unit is read again") << "QmlUnitsConverter" << QByteArray("weightRateToDisplay") << 2;
    QTest::newRow("while its map is asked for") << "system.binGroup.2" << QByteArray("rxMapGroupName") << 1;
}

void TestDialogEditing::aProductSelectedWhileAnotherIsShownStays()
{
    QFETCH(QString, group);
    QFETCH(QByteArray, property);
    QFETCH(int, read);
    host->bins.at(2)->setRxMapGroupName(QString());
    auto mappings = host->map->getRateCalMappings();
    mappings[1].defaultRate = 20.0;
    mappings[2].defaultRate = 30.0;
    host->map->setRateCalMappings(mappings);
    open();
    readsToGo = read;
    const auto selectThird = [](void *test) {
        auto &editing = *static_cast<TestDialogEditing *>(test);
        if (--editing.readsToGo == 0)
            DialogProbe::release(editing.probe->productButton(2));
    };
    QVERIFY(host->broker.getGroup(group, false)->setAfterReadHook(property, selectThird, this));
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->selectedProduct(), 2);
    QCOMPARE(probe->defaultRateEdit()->getText(), QStringLiteral("30"));
    QVERIFY(probe->notUnderVraLabel()->isVisible());
}

void TestDialogEditing::theDialogMayGoWhenALoaderTakesARate()
{
    open();
    connect(&host->loaders.front(), &RxMapLoader::defaultRateTaken, this, [this] { dialog.reset(); });
    dialog->onValueChanged(3);
    QVERIFY(dialog);
    host->loaders.front().defaultRate = 1.0;
    dialog->onValueChanged(3);
    QVERIFY(!dialog);
}

RXMAP_TEST(TestDialogEditing, Widgets)
#include "tst_rxmapwidgetdialog01_editing.moc"
