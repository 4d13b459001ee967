#include "dialoghost.h"
#include "dialogprobe.h"
#include "testbase.h"

#include <QAbstractEventDispatcher>

/// What Done writes.
class TestDialogApplying : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whileTheVehicleMovesNothingIsWritten();
    void notUnderVraFromTheStartCancels();
    void mappingsAreSplitByCount();
    void aGroupThatGrewTakesTheNextGroupsEntries();
    void aGroupThatShrankLeavesEntriesToTheNext();
    void allFieldsOfAMappingAreKept();
    void aRecordChangedMeanwhileIsReplacedWhole();
    void settingsGoToTheFirstGroupAlone();
    void lookAheadAloneSendsNoReInit();
    void aNewMasterSendsOneReInit();
    void aMasterAloneSendsReInit();
    void aChangedShutoffSendsReInit();
    void aToggleThatEndsWhereItBeganSendsNoReInit();
    void aMissingQuillSpanIsIgnored();
    void refusedWritesAreLoggedAndTheDialogCloses_data();
    void refusedWritesAreLoggedAndTheDialogCloses();
    void aRemovedGroupIsRefusedAndTheDialogCloses();
    void fewerSettingsThanTheGroupHoldsNow();
    void mappingsAreWrittenBeforeSettings();
    void openingAgainShowsWhatWasWritten();
    void aThousandDialogsLeaveNothingBehind();

private:
    void open();
    void done();

    QScopedPointer<DialogHost> host;
    QScopedPointer<RxMapWidgetDialog01> dialog;
    QScopedPointer<DialogProbe> probe;
};

namespace {

/// A record in which no field has its initial value.
OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING fullMapping()
{
    OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING mapping = mappingFor(MapHost::productGroup(1));
    mapping.auxFlag = true;
    mapping.dbfColumnName = QStringLiteral("RATE");
    mapping.auxNumber = -3;
    mapping.auxValue1 = 1.5;
    mapping.auxValue2 = 2.5;
    mapping.auxValue3 = 3.5;
    mapping.defaultRate = 4.5;
    mapping.auxIndices = {7, 8};
    mapping.auxNumber2 = 9;
    return mapping;
}

} // namespace

void TestDialogApplying::init()
{
    TestBase::init();
    host.reset(new DialogHost);
}

void TestDialogApplying::cleanup()
{
    probe.reset();
    dialog.reset();
    host.reset();
    TestBase::cleanup();
}

void TestDialogApplying::open()
{
    dialog.reset(new RxMapWidgetDialog01(&host->broker, host->images, nullptr));
    probe.reset(new DialogProbe(*dialog));
    dialog->show();
}

void TestDialogApplying::done()
{
    DialogProbe::release(probe->doneButton());
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
}

void TestDialogApplying::whileTheVehicleMovesNothingIsWritten()
{
    open();
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("9.0"));
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("7"));
    host->gps->setVehicleIsStopped(false);
    dialog->testForZeroSpeed();
    const auto settings = host->map->getSettings();
    const auto mappings = host->map->getRateCalMappings();
    int writes = 0;
    connect(host->map, &DbGroupRxMap::settingsChanged, this, [&writes] { ++writes; });
    connect(host->map, &DbGroupRxMap::rateCalMappingsChanged, this, [&writes] { ++writes; });
    done();
    QCOMPARE(writes, 0);
    QCOMPARE(host->map->getSettings(), settings);
    QCOMPARE(host->map->getRateCalMappings(), mappings);
    QCOMPARE(host->loaders[0].defaultRate, 7.0);
    QCOMPARE(host->reInitialisations, 0);
}

void TestDialogApplying::notUnderVraFromTheStartCancels()
{
    for (BinGroup *bin : qAsConst(host->bins))
        bin->setRxMapGroupName(QString());
    open();
    probe->settings()[0].onLookAheadMs = 9000;
    probe->settings()[0].isMaster = true;
    probe->mappings()[0].defaultRate = 7.0;
    int writes = 0;
    connect(host->map, &DbGroupRxMap::settingsChanged, this, [&writes] { ++writes; });
    connect(host->map, &DbGroupRxMap::rateCalMappingsChanged, this, [&writes] { ++writes; });
    done();
    QCOMPARE(writes, 0);
    QCOMPARE(host->reInitialisations, 0);
    QCOMPARE(host->entry(0).onLookAheadMs, 1000);
    QCOMPARE(host->map->getRateCalMappings().at(0).defaultRate, 0.0);
}

void TestDialogApplying::mappingsAreSplitByCount()
{
    DbGroupRxMap *second = host->host.addMap(QStringLiteral("second"), {4, 5});
    open();
    for (int i = 0; i < 5; ++i)
        probe->mappings()[i].defaultRate = 10.0 + i;
    done();
    QList<double> rates;
    for (const auto &mapping : host->map->getRateCalMappings() + second->getRateCalMappings())
        rates.append(mapping.defaultRate);
    QCOMPARE(rates, (QList<double>{10, 11, 12, 13, 14}));
    QCOMPARE(host->map->getRateCalMappings().size(), 3);
}

void TestDialogApplying::aGroupThatGrewTakesTheNextGroupsEntries()
{
    DbGroupRxMap *second = host->host.addMap(QStringLiteral("second"), {4, 5});
    open();
    for (int i = 0; i < 5; ++i)
        probe->mappings()[i].defaultRate = 10.0 + i;
    host->map->setRateCalMappings(host->map->getRateCalMappings() << mappingFor(QStringLiteral("new")));
    done();
    QCOMPARE(host->map->getRateCalMappings().size(), 4);
    QCOMPARE(host->map->getRateCalMappings().at(3).rateCalName, MapHost::productGroup(4));
    QCOMPARE(host->map->getRateCalMappings().at(3).defaultRate, 13.0);
    QCOMPARE(second->getRateCalMappings().at(0).rateCalName, MapHost::productGroup(5));
    QCOMPARE(second->getRateCalMappings().at(1).rateCalName, MapHost::productGroup(5));
    QCOMPARE(second->getRateCalMappings().at(1).defaultRate, 0.0);
}

void TestDialogApplying::aGroupThatShrankLeavesEntriesToTheNext()
{
    DbGroupRxMap *second = host->host.addMap(QStringLiteral("second"), {4, 5});
    open();
    host->map->setRateCalMappings({mappingFor(QStringLiteral("one"))});
    done();
    QCOMPARE(host->map->getRateCalMappings().size(), 1);
    QCOMPARE(host->map->getRateCalMappings().at(0).rateCalName, MapHost::productGroup(1));
    QCOMPARE(second->getRateCalMappings().at(0).rateCalName, MapHost::productGroup(2));
    QCOMPARE(second->getRateCalMappings().at(1).rateCalName, MapHost::productGroup(3));
}

void TestDialogApplying::allFieldsOfAMappingAreKept()
{
    const auto mapping = fullMapping();
    host->map->setRateCalMappings({mapping});
    open();
    done();
    QCOMPARE(host->map->getRateCalMappings(), (QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>{mapping}));
}

void TestDialogApplying::aRecordChangedMeanwhileIsReplacedWhole()
{
    const auto mapping = fullMapping();
    host->map->setRateCalMappings({mapping});
    open();
    // Differs in every field.
    host->map->setRateCalMappings({OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING()});
    done();
    QCOMPARE(host->map->getRateCalMappings(), (QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>{mapping}));
}

void TestDialogApplying::settingsGoToTheFirstGroupAlone()
{
    DbGroupRxMap *second = host->host.addMap(QStringLiteral("second"), {4});
    second->setSettings({OrvikTypes::RX_SETTINGS()});
    int secondWrites = 0;
    connect(second, &DbGroupRxMap::settingsChanged, this, [&secondWrites] { ++secondWrites; });
    open();
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("4.2"));
    done();
    QCOMPARE(host->entry(0).onLookAheadMs, 4200);
    QCOMPARE(secondWrites, 0);
}

void TestDialogApplying::lookAheadAloneSendsNoReInit()
{
    open();
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("4.2"));
    probe->settings()[1].followsMaster = false;
    probe->settings()[1].name = QStringLiteral("other");
    done();
    QCOMPARE(host->entry(0).onLookAheadMs, 4200);
    QCOMPARE(host->reInitialisations, 0);
}

void TestDialogApplying::aNewMasterSendsOneReInit()
{
    open();
    DialogProbe::release(probe->zeroRateShutoffBox());
    DialogProbe::release(probe->applyToAllBox());
    done();
    QCOMPARE(host->reInitialisations, 1);
    QVERIFY(host->entry(0).isMaster);
}

void TestDialogApplying::aMasterAloneSendsReInit()
{
    open();
    DialogProbe::release(probe->productButton(1));
    DialogProbe::release(probe->applyToAllBox());
    done();
    QVERIFY(host->entry(1).isMaster);
    for (const OrvikTypes::RX_SETTINGS &entry : host->map->getSettings())
        QVERIFY(!entry.zeroRateShutoff);
    QCOMPARE(host->reInitialisations, 1);
    open();
    DialogProbe::release(probe->applyToAllBox());
    done();
    QVERIFY(!host->entry(1).isMaster);
    QCOMPARE(host->reInitialisations, 2);
}

void TestDialogApplying::aChangedShutoffSendsReInit()
{
    open();
    DialogProbe::release(probe->productButton(2));
    DialogProbe::release(probe->zeroRateShutoffBox());
    done();
    QCOMPARE(host->reInitialisations, 1);
}

void TestDialogApplying::aToggleThatEndsWhereItBeganSendsNoReInit()
{
    open();
    int writes = 0;
    connect(host->map, &DbGroupRxMap::settingsChanged, this, [&writes] { ++writes; });
    DialogProbe::release(probe->zeroRateShutoffBox());
    DialogProbe::release(probe->zeroRateShutoffBox());
    done();
    QCOMPARE(host->reInitialisations, 0);
    QCOMPARE(writes, 1);
}

void TestDialogApplying::aMissingQuillSpanIsIgnored()
{
    host->broker.removeGroup(QStringLiteral("quillSpan"));
    open();
    DialogProbe::release(probe->zeroRateShutoffBox());
    done();
    QVERIFY(host->entry(0).zeroRateShutoff);
}

void TestDialogApplying::refusedWritesAreLoggedAndTheDialogCloses_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<bool>("isProtected");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<QString>("debugLine");
    const QString token = QStringLiteral("set rxMap.field::%1 failed: invalid write access token");
    const QString code = QStringLiteral("set rxMap.field::%1 failed: 5");
    for (const char *property : {"settings", "rateCalMappings"}) {
        const QString name = QString::fromLatin1(property);
        QTest::newRow(qPrintable(name + QStringLiteral(", protected")))
            << QByteArray(property) << true << token.arg(name) << QStringLiteral("ERROR: ") + token.arg(name);
        QTest::newRow(qPrintable(name + QStringLiteral(", rejected")))
            << QByteArray(property) << false << code.arg(name) << code.arg(name);
    }
}

void TestDialogApplying::refusedWritesAreLoggedAndTheDialogCloses()
{
    QFETCH(QByteArray, property);
    QFETCH(bool, isProtected);
    QFETCH(QString, warning);
    QFETCH(QString, debugLine);
    if (isProtected)
        host->map->setWriteProtected(property, true);
    else
        host->map->setWriteValidator(
            property, [](QVariant, void *) { return 5; }, nullptr);
    open();
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("4.2"));
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("7"));
    messages().expectWarning(warning);
    done();
    // The other property is written all the same.
    const bool settingsRefused = property == "settings";
    QCOMPARE(host->entry(0).onLookAheadMs, settingsRefused ? 1000 : 4200);
    QCOMPARE(host->map->getRateCalMappings().at(0).defaultRate, settingsRefused ? 7.0 : 0.0);
    QVERIFY(messages().debugLines().join(QLatin1Char('\n')).contains(debugLine));
}

void TestDialogApplying::aRemovedGroupIsRefusedAndTheDialogCloses()
{
    open();
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("4.2"));
    DbGroupRxMap *group = host->map;
    host->broker.removeGroup(QStringLiteral("rxMap.field"));
    done();
    QCOMPARE(group->mostRecentErr(), int(DataBrokerGroup::ErrGroupRemoved));
    QCOMPARE(group->getSettings().at(0).onLookAheadMs, 1000);
}

void TestDialogApplying::fewerSettingsThanTheGroupHoldsNow()
{
    open();
    auto grown = host->map->getSettings();
    OrvikTypes::RX_SETTINGS master;
    master.isMaster = true;
    grown.append(master);
    host->map->setSettings(grown);
    done();
    QCOMPARE(host->map->getSettings().size(), 3);
    QCOMPARE(host->reInitialisations, 0);
}

void TestDialogApplying::mappingsAreWrittenBeforeSettings()
{
    open();
    DialogProbe::release(probe->zeroRateShutoffBox());
    QStringList order;
    connect(host->map, &DbGroupRxMap::settingsChanged, this, [&order] { order.append(QStringLiteral("settings")); });
    connect(host->map, &DbGroupRxMap::rateCalMappingsChanged, this,
            [&order] { order.append(QStringLiteral("mappings")); });
    connect(host->quillSpan, &QuillSpanGroup::reInitChanged, this,
            [&order] { order.append(QStringLiteral("reInit")); });
    connect(dialog.data(), &QDialog::accepted, this, [&order] { order.append(QStringLiteral("closed")); });
    done();
    QCOMPARE(order, (QStringList{"mappings", "settings", "reInit", "closed"}));
}

void TestDialogApplying::openingAgainShowsWhatWasWritten()
{
    open();
    DialogProbe::release(probe->productButton(2));
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("4.2"));
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("120.5"));
    DialogProbe::release(probe->applyToAllBox());
    done();
    open();
    QCOMPARE(probe->selectedProduct(), 2);
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("4.2"));
    QCOMPARE(probe->defaultRateEdit()->getText(), QStringLiteral("120.5"));
    QCOMPARE(probe->applyToAllBox()->currentImage(), 1);
}

void TestDialogApplying::aThousandDialogsLeaveNothingBehind()
{
    // The children of the dispatcher are the polls that are due; those of earlier dialogs run out first.
    const QObject *dispatcher = QAbstractEventDispatcher::instance();
    QTRY_COMPARE_WITH_TIMEOUT(dispatcher->children().size(), 0, 3000);
    const int widgets = QApplication::allWidgets().size();
    const int objects = qApp->children().size();
    // Whatever listened to the groups before is taken off, so that a connection found later is a dialog's.
    const QList<DataBrokerGroup *> groups{host->map, host->gps, host->host.units, host->bins.at(0)};
    for (DataBrokerGroup *group : groups)
        QObject::disconnect(group, nullptr, nullptr, nullptr);
    for (int i = 0; i < 1000; ++i) {
        RxMapWidgetDialog01 opened(&host->broker, host->images, nullptr);
        if (i % 100 == 0)
            opened.show();
        opened.doneButtonReleased(0);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    QCOMPARE(qApp->children().size(), objects);
    QTRY_COMPARE_WITH_TIMEOUT(dispatcher->children().size(), 0, 3000);
    for (DataBrokerGroup *group : groups)
        QVERIFY2(!QObject::disconnect(group, nullptr, nullptr, nullptr), qPrintable(group->name()));
    QCOMPARE(host->map->getSettings().size(), 3);
}

QTEST_MAIN(TestDialogApplying)
#include "tst_rxmapwidgetdialog01_applying.moc"
