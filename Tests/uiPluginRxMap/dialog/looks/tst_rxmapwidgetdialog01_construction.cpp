#include "dialogtest.h"
#include "dialogwatch.h"

/// What the dialog reads when it is built, and in which order: the host notices every read.
class TestDialogConstruction : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void theFirstMasterIsSelected();
    void withoutAMasterTheFirstProductIsSelected();
    void mappingsOfAllGroupsAreJoinedInOrder();
    void settingsComeFromTheFirstGroup();
    void theFirstProductIsLitUntilAMasterIsFound();
    void theRateIsKnownBeforeTheGroupsAreRead();
    void standstillIsAskedForWithTheMasterSelected();
    void aMapThatIsGoneGivesNoSettings();
    void aGroupOfAnotherClassBetweenMapsIsLeftOut();
    void theFirstProductMayBeNameless();
    void binsAreReadByTheirLatin1Names();

private:
    void makeMaster(int index);
};

namespace {

/// Acts on the dialog that is under construction, once, before a property is read for the first time.
class FirstRead {
public:
    FirstRead(DataBrokerGroup &givenGroup, const char *givenProperty,
              std::function<void(RxMapWidgetDialog01 &)> givenAction)
        : group(givenGroup)
        , property(givenProperty)
        , action(givenAction)
    {
        group.setBeforeReadHook(property, &FirstRead::called, this);
    }
    ~FirstRead() { group.setBeforeReadHook(property, nullptr, nullptr); }

    bool hasCome = false;

private:
    Q_DISABLE_COPY(FirstRead)

    static void called(void *self)
    {
        auto *read = static_cast<FirstRead *>(self);
        RxMapWidgetDialog01 *dialog = openDialog();
        if (read->hasCome || dialog == nullptr)
            return;
        read->hasCome = true;
        read->action(*dialog);
    }

    DataBrokerGroup &group;
    const char *property;
    std::function<void(RxMapWidgetDialog01 &)> action;
};

} // namespace

void TestDialogConstruction::makeMaster(int index)
{
    OrvikTypes::RX_SETTINGS entry = host->entry(index);
    entry.isMaster = true;
    host->editSettings(index, entry);
}

void TestDialogConstruction::theFirstMasterIsSelected()
{
    host.reset(new DialogHost(4));
    for (int index : {2, 3}) {
        OrvikTypes::RX_SETTINGS entry = host->entry(index);
        entry.isMaster = true;
        entry.zeroRateShutoff = index == 2;
        host->editSettings(index, entry);
    }
    open();
    QCOMPARE(probe->selectedProduct(), 2);
    QCOMPARE(probe->productButton(0)->currentImage(), 0);
    QCOMPARE(probe->productButton(0)->textColor(0), QColor(129, 129, 129));
    QCOMPARE(probe->productButton(2)->currentImage(), 1);
    QCOMPARE(probe->productButton(2)->textColor(0), QColor(Qt::white));
    QCOMPARE(probe->applyToAllBox()->currentImage(), 1);
    QVERIFY(!probe->settings().at(3).isMaster);
    QVERIFY(probe->settings().at(0).zeroRateShutoff);
}

void TestDialogConstruction::withoutAMasterTheFirstProductIsSelected()
{
    open();
    QCOMPARE(probe->selectedProduct(), 0);
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("1.0"));
    QCOMPARE(probe->applyToAllBox()->currentImage(), 0);
}

void TestDialogConstruction::mappingsOfAllGroupsAreJoinedInOrder()
{
    host->host.addMap(QStringLiteral("another"), {5, 4});
    // Its name says that it is not a prescription.
    host->broker.publishGroup(new DbGroupRxMap(QStringLiteral("rxMapper")));
    open();
    QCOMPARE(probe->groupCount(), 2);
    QStringList channels;
    for (const auto &mapping : probe->mappings())
        channels.append(mapping.rateCalName.right(1));
    QCOMPARE(channels.join(QString()), QStringLiteral("12354"));
}

void TestDialogConstruction::settingsComeFromTheFirstGroup()
{
    host.reset(new DialogHost(2));
    DbGroupRxMap *second = host->host.addMap(QStringLiteral("another"), {1});
    second->setSettings({OrvikTypes::RX_SETTINGS()});
    open();
    QCOMPARE(probe->settings(), host->map->getSettings());
}

void TestDialogConstruction::theFirstProductIsLitUntilAMasterIsFound()
{
    makeMaster(2);
    int image = -1;
    QColor color;
    const FirstRead read(*host->bins.at(1), "compositionShortName", [&image, &color](RxMapWidgetDialog01 &building) {
        const auto *first = building.findChild<OrvikButton *>(QStringLiteral("productButton0"));
        if (first == nullptr)
            return;
        image = first->currentImage();
        color = first->textColor(0);
    });
    open();
    QVERIFY(read.hasCome);
    QCOMPARE(image, 1);
    QCOMPARE(color, QColor(Qt::white));
    QCOMPARE(probe->productButton(0)->currentImage(), 0);
    QCOMPARE(probe->productButton(0)->textColor(0), QColor(129, 129, 129, 255));
    QCOMPARE(probe->productButton(2)->currentImage(), 1);
    QCOMPARE(probe->productButton(2)->textColor(0), QColor(Qt::white));
}

void TestDialogConstruction::theRateIsKnownBeforeTheGroupsAreRead()
{
    QString caption;
    const FirstRead read(*host->map, "settings", [&caption](RxMapWidgetDialog01 &building) {
        const auto *label = building.findChild<QLabel *>(QStringLiteral("defaultRateLabel"));
        caption = label == nullptr ? QStringLiteral("none") : label->text();
    });
    open();
    QVERIFY(read.hasCome);
    QCOMPARE(caption, QStringLiteral("Default Rate (kg/ha)"));
}

void TestDialogConstruction::standstillIsAskedForWithTheMasterSelected()
{
    makeMaster(1);
    int selected = -1;
    const FirstRead read(*host->gps, "vehicleIsStopped", [&selected](RxMapWidgetDialog01 &building) {
        selected = DialogProbe(building).selectedProduct();
    });
    open();
    QVERIFY(read.hasCome);
    QCOMPARE(selected, 1);
}

void TestDialogConstruction::aMapThatIsGoneGivesNoSettings()
{
    DbGroupRxMap *second = host->host.addMap(QStringLiteral("second"), {3, 2, 1});
    OrvikTypes::RX_SETTINGS entry;
    entry.onLookAheadMs = 7500;
    second->setSettings({entry, entry, entry});
    host->broker.removeGroup(QStringLiteral("rxMap.field"));
    open();
    QCOMPARE(probe->settings(), second->getSettings());
    QCOMPARE(probe->mappings(), second->getRateCalMappings());
    QCOMPARE(probe->groupCount(), 1);
}

void TestDialogConstruction::aGroupOfAnotherClassBetweenMapsIsLeftOut()
{
    host->broker.publishGroup(new BinGroup(QStringLiteral("rxMap.other")));
    const DbGroupRxMap *last = host->host.addMap(QStringLiteral("last"), {5, 4});
    open();
    QCOMPARE(probe->groupCount(), 2);
    QCOMPARE(probe->settings(), host->map->getSettings());
    QCOMPARE(probe->mappings(), host->map->getRateCalMappings() + last->getRateCalMappings());
}

void TestDialogConstruction::theFirstProductMayBeNameless()
{
    host.reset(new DialogHost(0));
    host->broker.publishGroup(new NamelessBinGroup(QStringLiteral("system.binGroup.1")));
    open();
    QCOMPARE(probe->productButton(0)->text(0), QStringLiteral("P01"));
    QCOMPARE(probe->productButton(0)->textColor(0), QColor(Qt::white));
    QCOMPARE(probe->productButton(0)->currentImage(), 1);
}

void TestDialogConstruction::binsAreReadByTheirLatin1Names()
{
    auto *bin = new BinGroup(QStringLiteral("system.binGroup.l") + QChar(0xE4) + QStringLiteral("nge"));
    bin->setCompositionShortName(QStringLiteral("Late"));
    bin->setRxMapGroupName(QStringLiteral("rxMap.field"));
    host->broker.publishGroup(bin);
    open();
    QCOMPARE(probe->productButton(3)->text(0), QStringLiteral("Late"));
    DialogProbe::release(probe->productButton(3));
    QVERIFY(!probe->notUnderVraLabel()->isVisible());
}

RXMAP_TEST(TestDialogConstruction, Widgets)
#include "tst_rxmapwidgetdialog01_construction.moc"
