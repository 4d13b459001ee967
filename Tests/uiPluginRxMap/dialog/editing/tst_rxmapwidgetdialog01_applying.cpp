#include "dialogtest.h"

/// What Done writes.
class TestDialogApplying : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
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
    void aShutoffChangedMeanwhileCountsAsAChange();
    void anEditToWhatTheGroupHoldsMeanwhileSendsNoReInit();
    void reInitIsATruthValue();
    void mappingsAreWrittenBeforeSettings();
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
    // It differs in every field.
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

void TestDialogApplying::aShutoffChangedMeanwhileCountsAsAChange()
{
    open();
    OrvikTypes::RX_SETTINGS entry = host->entry(1);
    entry.zeroRateShutoff = true;
    host->editSettings(1, entry);
    done();
    QCOMPARE(host->reInitialisations, 1);
    QVERIFY(!host->entry(1).zeroRateShutoff);
}

void TestDialogApplying::anEditToWhatTheGroupHoldsMeanwhileSendsNoReInit()
{
    open();
    DialogProbe::release(probe->zeroRateShutoffBox());
    OrvikTypes::RX_SETTINGS entry = host->entry(0);
    entry.zeroRateShutoff = true;
    host->editSettings(0, entry);
    done();
    QCOMPARE(host->reInitialisations, 0);
}

void TestDialogApplying::reInitIsATruthValue()
{
    host->broker.removeGroup(QStringLiteral("quillSpan"));
    auto *quillSpan = new TextQuillSpanGroup(QStringLiteral("quillSpan"));
    host->broker.publishGroup(quillSpan);
    open();
    DialogProbe::release(probe->zeroRateShutoffBox());
    done();
    // Had a number been written, it would have arrived as digits.
    QCOMPARE(quillSpan->getReInit(), QStringLiteral("true"));
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

RXMAP_TEST(TestDialogApplying, Widgets)
#include "tst_rxmapwidgetdialog01_applying.moc"
