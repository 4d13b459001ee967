#include "currentcontext.h"
#include "dialoghost.h"
#include "dialogprobe.h"
#include "rxmapgraphicslist.h"
#include "testbase.h"

#include "Framework/dbgroupjob.h"

#include <QPointer>

/// Reads and writes of the host's properties run its hooks, validators and subscribers, and each of these may act while
/// the list or the dialog is in the middle of something: every action is tried at every such moment of one working day.
class TestHookSweep : public TestBase {
    Q_OBJECT

public Q_SLOTS:
    int moment();

private Q_SLOTS:
    void cleanup();
    void theHostMayActAtAnyMoment_data();
    void theHostMayActAtAnyMoment();

private:
    void prepare(int kind, const QByteArray &group, const QByteArray &property);
    void workThroughTheDay();
    void replaceMap();
    void fillMap();

    QScopedPointer<CurrentContext> context;
    HandMadeChain chain;
    QScopedPointer<DialogHost> host;
    QPointer<RxMapGraphicsList> list;
    QPointer<RxMapWidgetDialog01> dialog;
    QByteArray action;
    DataBrokerGroup *watched = nullptr;
    int moments = 0;   ///< Accesses of the watched property so far.
    int dueMoment = 0; ///< The access at which the host acts, counted from 1.
};

int TestHookSweep::moment()
{
    if (++moments != dueMoment)
        return 0;
    if (action == "delete list")
        delete list;
    else if (action == "delete dialog")
        delete dialog;
    else if (action == "remove group")
        host->broker.removeGroup(watched->name());
    else if (action == "replace map")
        replaceMap();
    else if (action == "fill map")
        fillMap();
    else if (action == "lose context")
        context.reset();
    else if (action == "press Done" && dialog)
        dialog->doneButtonReleased(0);
    else if (action == "switch product")
        host->host.activateProduct(host->host.job->getActiveAAMGroupName() == MapHost::aamName(1) ? 2 : 1);
    if (action == "switch product" && dialog)
        dialog->productSelectionChanged(1 - DialogProbe(*dialog).selectedProduct());
    return 0;
}

void TestHookSweep::cleanup()
{
    delete list;
    delete dialog;
    host.reset();
}

void TestHookSweep::prepare(int kind, const QByteArray &group, const QByteArray &property)
{
    cleanup();
    if (!context)
        context.reset(new CurrentContext);
    host.reset(new DialogHost(2));
    chain = HandMadeChain();
    chain.addOuter(square(0, 0, 10), {1.0F, 2.0F});
    MapHost::publish(*host->map, chain, {{10.0, QColor(255, 0, 0)}});
    host->host.addMap(QStringLiteral("other"), {2, 3});
    host->host.activateProduct(1);
    host->replaceProduct(1, ProductLineItem::Volume);
    host->setLoaded();
    watched = group == "node" ? host->nodes.at(1) : host->broker.getGroup(QLatin1String(group), false);
    moments = 0;
    const auto hook = [](void *test) { static_cast<TestHookSweep *>(test)->moment(); };
    const auto validator = [](QVariant, void *test) { return static_cast<TestHookSweep *>(test)->moment(); };
    if (kind == 0)
        watched->setBeforeReadHook(property, hook, this);
    else if (kind == 1)
        watched->setAfterReadHook(property, hook, this);
    else if (kind == 2)
        watched->setWriteValidator(property, validator, this);
    else
        watched->connectPropertySetSlot(property, this, SLOT(moment()), Qt::DirectConnection, true);
}

// The chain is freed once the count is 0, as a back-end does it.
void TestHookSweep::fillMap()
{
    host->map->setPolygonCount(0);
    chain = HandMadeChain();
    chain.addOuter(square(5, 5, 20), {3.0F, 4.0F});
    MapHost::publish(*host->map, chain, {{5.0, QColor(0, 255, 0)}});
}

void TestHookSweep::replaceMap()
{
    host->map->setPolygonCount(0);
    host->broker.removeGroup(host->map->name());
    host->host.addMap(QStringLiteral("field"), {1, 2});
}

void TestHookSweep::workThroughTheDay()
{
    list = new RxMapGraphicsList(&host->broker, nullptr);
    list->init();
    host->host.activateProduct(2);
    if (list)
        list->getPointDescription(QVector3D(5, 5, 0));
    host->map->setPolygonCount(chain.count());
    dialog = new RxMapWidgetDialog01(&host->broker, host->images, nullptr);
    dialog->show();
    for (const char *name :
         {"productButton1", "applyToAllBox", "zeroRateShutoffBox", "lookAheadEdit", "defaultRateEdit", "doneButton"}) {
        QObject *control = dialog ? dialog->findChild<QObject *>(QLatin1String(name)) : nullptr;
        if (auto *edit = qobject_cast<OrvikLineEdit *>(control))
            DialogProbe::type(edit, QStringLiteral("7"));
        else if (auto *button = qobject_cast<OrvikButton *>(control))
            DialogProbe::release(button);
        if (dialog)
            dialog->testForZeroSpeed();
    }
}

void TestHookSweep::theHostMayActAtAnyMoment_data()
{
    QTest::addColumn<QString>("properties");
    QTest::newRow("system.current.job") << "activeAAMGroupName";
    QTest::newRow("system.aam.1") << "productGroupName";
    QTest::newRow("system.aam.2") << "productGroupName";
    QTest::newRow("system.productGroup.2") << "rateKind";
    QTest::newRow("QmlUnitsConverter") << "areaUnitSystem weightRateToDisplay volumeRateFromDisplay";
    QTest::newRow("mainGpsSolution") << "vehicleIsStopped";
    QTest::newRow("quillSpan") << "reInit";
    QTest::newRow("system.binGroup.2") << "compositionShortName rxMapGroupName";
    QTest::newRow("node") << "isCarrier operationalSettings switchByteCalSettings";
    QTest::newRow("rxMap.field") << "settings rateCalMappings rateColors polygonBuffer polygonCount queryRatesAtXYZ "
                                    "ratesAtXYZ ratesAtXYZValid";
    QTest::newRow("rxMap.other") << "rateCalMappings";
}

void TestHookSweep::theHostMayActAtAnyMoment()
{
    QFETCH(QString, properties);
    for (const QString &property : properties.split(QLatin1Char(' '))) {
        int actions = 0;
        for (const char *what : {"delete list", "switch product", "remove group", "press Done", "delete dialog",
                                 "replace map", "fill map", "lose context"}) {
            action = what;
            for (int kind = 0; kind < 4; ++kind) {
                for (dueMoment = 1, moments = 1; moments >= dueMoment; ++dueMoment) {
                    prepare(kind, QTest::currentDataTag(), property.toLatin1());
                    workThroughTheDay();
                    actions += moments >= dueMoment ? 1 : 0;
                    QCOMPARE(host->map->getRateCalMappings().last().rateCalName, MapHost::productGroup(2));
                }
            }
        }
        QVERIFY2(actions > 0, qPrintable(property));
    }
}

RXMAP_TEST(TestHookSweep, Widgets)
#include "tst_hooksweep.moc"
