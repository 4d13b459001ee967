#include "dialogtest.h"

/// What Done writes where a group refuses, is gone or has changed.
class TestDialogRefusals : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void refusedWritesAreLoggedAndTheDialogCloses_data();
    void refusedWritesAreLoggedAndTheDialogCloses();
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
    // The other property is written all the same.
    const bool settingsRefused = property == "settings";
    QCOMPARE(host->entry(0).onLookAheadMs, settingsRefused ? 1000 : 4200);
    QCOMPARE(host->map->getRateCalMappings().at(0).defaultRate, settingsRefused ? 7.0 : 0.0);
    QVERIFY(messages().debugLines().join(QLatin1Char('\n')).contains(debugLine));
}

void TestDialogRefusals::aRemovedGroupIsRefusedAndTheDialogCloses()
{
    open();
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("4.2"));
    DbGroupRxMap *group = host->map;
    host->broker.removeGroup(QStringLiteral("rxMap.field"));
    done();
    QCOMPARE(group->mostRecentErr(), int(DataBrokerGroup::ErrGroupRemoved));
    QCOMPARE(group->getSettings().at(0).onLookAheadMs, 1000);
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

QTEST_MAIN(TestDialogRefusals)
#include "tst_rxmapwidgetdialog01_refusals.moc"
