#include "samplegroup.h"
#include "testbase.h"

#include <algorithm>
#include <cstddef>
#include <functional>

using OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING;
using OrvikTypes::RX_SETTINGS;

/// The settings records as values, and what an accepted write leaves in its group.
class TestSettingsRecords : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyFieldTellsSettingsApart();
    void everyFieldTellsMappingsApart();
    void fieldsComeInTheirOrder();
    void anAcceptedWriteClearsTheFormerResult();
    void aSuspendedValidatorIsNotAsked();
    void theWarningOfARejectionComesBeforeItsDebugLine();
};

void TestSettingsRecords::everyFieldTellsSettingsApart()
{
    const QList<std::function<void(RX_SETTINGS &)>> changes{
        [](RX_SETTINGS &s) { s.name = QStringLiteral("x"); }, [](RX_SETTINGS &s) { s.onLookAheadMs = 1; },
        [](RX_SETTINGS &s) { s.zeroRateShutoff = true; }, [](RX_SETTINGS &s) { s.isMaster = true; },
        [](RX_SETTINGS &s) { s.followsMaster = true; }};
    for (const auto &change : changes) {
        RX_SETTINGS changed;
        change(changed);
        const RX_SETTINGS copy = changed;
        QVERIFY(copy == changed);
        QVERIFY(copy != RX_SETTINGS());
    }
}

void TestSettingsRecords::everyFieldTellsMappingsApart()
{
    using Mapping = RX_DBFCOLUMN_TO_RATECAL_MAPPING;
    const QList<std::function<void(Mapping &)>> changes{
        [](Mapping &m) { m.auxFlag = true; },   [](Mapping &m) { m.rateCalName = QStringLiteral("x"); },
        [](Mapping &m) { m.auxNumber = 1; },    [](Mapping &m) { m.dbfColumnName = QStringLiteral("x"); },
        [](Mapping &m) { m.auxValue1 = 1.0; },  [](Mapping &m) { m.auxValue2 = 1.0; },
        [](Mapping &m) { m.auxValue3 = 1.0; },  [](Mapping &m) { m.defaultRate = 1.0; },
        [](Mapping &m) { m.auxIndices = {1}; }, [](Mapping &m) { m.auxNumber2 = 1; }};
    for (const auto &change : changes) {
        Mapping changed;
        change(changed);
        const Mapping copy = changed;
        QVERIFY(copy == changed);
        QVERIFY(copy != Mapping());
    }
}

void TestSettingsRecords::fieldsComeInTheirOrder()
{
    const QList<std::size_t> settings{offsetof(RX_SETTINGS, name), offsetof(RX_SETTINGS, onLookAheadMs),
                                      offsetof(RX_SETTINGS, zeroRateShutoff), offsetof(RX_SETTINGS, isMaster),
                                      offsetof(RX_SETTINGS, followsMaster)};
    using Mapping = RX_DBFCOLUMN_TO_RATECAL_MAPPING;
    const QList<std::size_t> mapping{offsetof(Mapping, auxFlag),       offsetof(Mapping, rateCalName),
                                     offsetof(Mapping, dbfColumnName), offsetof(Mapping, auxNumber),
                                     offsetof(Mapping, auxValue1),     offsetof(Mapping, auxValue2),
                                     offsetof(Mapping, auxValue3),     offsetof(Mapping, defaultRate),
                                     offsetof(Mapping, auxIndices),    offsetof(Mapping, auxNumber2)};
    QVERIFY(std::is_sorted(settings.cbegin(), settings.cend()));
    QVERIFY(std::is_sorted(mapping.cbegin(), mapping.cend()));
}

void TestSettingsRecords::anAcceptedWriteClearsTheFormerResult()
{
    SampleGroup group(QStringLiteral("sample"));
    group.setWriteValidator(
        "level", [](QVariant, void *) { return 5; }, nullptr);
    messages().expectWarning(QStringLiteral("set sample::level failed: 5"));
    group.setLevel(1);
    QCOMPARE(group.mostRecentErr(), 5);
    group.setCount(1);
    QCOMPARE(group.mostRecentErr(), 0);
}

void TestSettingsRecords::aSuspendedValidatorIsNotAsked()
{
    SampleGroup group(QStringLiteral("sample"));
    group.setWriteValidator(
        "level", [](QVariant, void *) { return 5; }, nullptr);
    messages().expectWarning(QStringLiteral("set sample::level failed: 5"));
    group.setLevel(1);
    group.setValidationSuspended(true);
    QCOMPARE(group.setProperty("level", 2), 0);
    QCOMPARE(group.getLevel(), 2);
    QCOMPARE(group.mostRecentErr(), 0);
}

static QStringList order;

void TestSettingsRecords::theWarningOfARejectionComesBeforeItsDebugLine()
{
    SampleGroup group(QStringLiteral("sample"));
    group.setWriteValidator(
        "level", [](QVariant, void *) { return 5; }, nullptr);
    messages().expectWarning(QStringLiteral("set sample::level failed: 5"));
    order.clear();
    static QtMessageHandler former;
    former = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &text) {
        order.append(type == QtDebugMsg ? QStringLiteral("debug") : QStringLiteral("warning"));
        former(type, context, text);
    });
    group.setLevel(1);
    qInstallMessageHandler(former);
    QCOMPARE(order, (QStringList{"warning", "debug"}));
}

RXMAP_TEST(TestSettingsRecords, None)
#include "tst_settingsrecords.moc"
