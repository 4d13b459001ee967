#include "dialogtest.h"

/// What Done writes when a group refuses, is gone or has changed.
class TestDialogRefusals : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void refusedWritesAreLoggedAndTheDialogCloses_data();
    void refusedWritesAreLoggedAndTheDialogCloses();
    void aGroupThatRefusesDoesNotHoldUpTheNext_data();
    void aGroupThatRefusesDoesNotHoldUpTheNext();
    void aRemovedGroupIsRefusedAndTheDialogCloses();
    void aMissingQuillSpanIsIgnored();
    void fewerSettingsThanTheGroupHoldsNow();
};

void TestDialogRefusals::refusedWritesAreLoggedAndTheDialogCloses_data()
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

void TestDialogRefusals::refusedWritesAreLoggedAndTheDialogCloses()
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
    // The other property is written nevertheless.
    const bool settingsRefused = property == "settings";
    QCOMPARE(host->entry(0).onLookAheadMs, settingsRefused ? 1000 : 4200);
    QCOMPARE(host->map->getRateCalMappings().at(0).defaultRate, settingsRefused ? 7.0 : 0.0);
    QVERIFY(messages().debugLines().join(QLatin1Char('\n')).contains(debugLine));
}

void TestDialogRefusals::aGroupThatRefusesDoesNotHoldUpTheNext_data()
{
    QTest::addColumn<QString>("refusal");
    QTest::addColumn<QString>("warning");
    const QString set = QStringLiteral("set rxMap.field::rateCalMappings failed: ");
    QTest::newRow("protected") << "protected" << set + QStringLiteral("invalid write access token");
    QTest::newRow("rejected") << "rejected" << set + QStringLiteral("5");
    QTest::newRow("removed") << "removed" << QString();
}

void TestDialogRefusals::aGroupThatRefusesDoesNotHoldUpTheNext()
{
    QFETCH(QString, refusal);
    QFETCH(QString, warning);
    DbGroupRxMap *second = host->host.addMap(QStringLiteral("second"), {4});
    open();
    probe->mappings()[0].defaultRate = 10.0;
    probe->mappings()[3].defaultRate = 40.0;
    if (refusal == QLatin1String("protected"))
        host->map->setWriteProtected("rateCalMappings", true);
    else if (refusal == QLatin1String("rejected"))
        host->map->setWriteValidator(
            "rateCalMappings", [](QVariant, void *) { return 5; }, nullptr);
    else
        host->broker.removeGroup(QStringLiteral("rxMap.field"));
    if (!warning.isEmpty())
        messages().expectWarning(warning);
    done();
    QCOMPARE(host->map->getRateCalMappings().at(0).defaultRate, 0.0);
    QCOMPARE(second->getRateCalMappings().at(0).defaultRate, 40.0);
}

void TestDialogRefusals::aRemovedGroupIsRefusedAndTheDialogCloses()
{
    open();
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("4.2"));
    DialogProbe::release(probe->zeroRateShutoffBox());
    DbGroupRxMap *group = host->map;
    host->broker.removeGroup(QStringLiteral("rxMap.field"));
    done();
    QCOMPARE(group->mostRecentErr(), int(DataBrokerGroup::ErrGroupRemoved));
    QCOMPARE(group->getSettings().at(0).onLookAheadMs, 1000);
    const QString refused = QStringLiteral("mostRecentErr = DataBrokerGroup::ErrGroupRemoved, while setting");
    QCOMPARE(
        messages().debugLines().filter(refused),
        (QStringList{refused + QStringLiteral(" \"rateCalMappings\""), refused + QStringLiteral(" \"settings\"")}));
    QCOMPARE(host->reInitialisations, 1);
}

void TestDialogRefusals::aMissingQuillSpanIsIgnored()
{
    host->broker.removeGroup(QStringLiteral("quillSpan"));
    open();
    DialogProbe::release(probe->zeroRateShutoffBox());
    done();
    QVERIFY(host->entry(0).zeroRateShutoff);
}

void TestDialogRefusals::fewerSettingsThanTheGroupHoldsNow()
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

RXMAP_TEST(TestDialogRefusals, Widgets)
#include "tst_rxmapwidgetdialog01_refusals.moc"
