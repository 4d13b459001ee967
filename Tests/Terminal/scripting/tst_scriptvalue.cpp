#include "scriptvalue.h"
#include "testbase.h"

#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"
#include "Framework/rxsettings.h"
#include "Framework/spnoperationalsetstruct.h"
#include "Framework/spnswitchbytecalsettingsstruct.h"
#include "Framework/xyz.h"

using namespace OrvikTypes;

/// Broker values as scripts see them.
class TestScriptValue : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void recordsComeBackAsTheyWent();
    void fieldsThatAreLeftOutKeepTheirDefaults();
    void whatIsNoSuchRecordIsRefused_data();
    void whatIsNoSuchRecordIsRefused();
    void plainValuesStayAsTheyAre_data();
    void plainValuesStayAsTheyAre();
    void coloursAreWrittenInSixDigits();
    void pointersAreReadOnly();

private:
    template <typename T> static T roundTrip(const T &value)
    {
        const QVariant plain = ScriptValue::fromBroker(QVariant::fromValue(value));
        return ScriptValue::toBroker(plain, qMetaTypeId<T>()).value.template value<T>();
    }
};

void TestScriptValue::recordsComeBackAsTheyWent()
{
    QCOMPARE(roundTrip(XYZ(1.5, -2, 3)), XYZ(1.5, -2, 3));
    QVERIFY(roundTrip(SPN_OperationalSetStruct(true)).isRatioRate());
    QVERIFY(roundTrip(SPN_SwitchByteCalSettingsStruct(true)).isInjection());
    QCOMPARE(roundTrip(QList<float>{1.5F, 0.0F}), (QList<float>{1.5F, 0.0F}));

    RX_SETTINGS settings;
    settings.name = QStringLiteral("Seed");
    settings.onLookAheadMs = 1200;
    settings.zeroRateShutoff = true;
    settings.isMaster = true;
    settings.followsMaster = true;
    QCOMPARE(roundTrip(QList<RX_SETTINGS>{settings, {}}), (QList<RX_SETTINGS>{settings, {}}));

    RX_DBFCOLUMN_TO_RATECAL_MAPPING mapping;
    mapping.auxFlag = true;
    mapping.rateCalName = QStringLiteral("system.productGroup.1");
    mapping.dbfColumnName = QStringLiteral("RATE");
    mapping.auxNumber = 4;
    mapping.auxValue1 = 1.25;
    mapping.auxValue2 = 2.25;
    mapping.auxValue3 = 3.25;
    mapping.defaultRate = 99.5;
    mapping.auxIndices = {3, 1, 2};
    mapping.auxNumber2 = -7;
    QCOMPARE(roundTrip(QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>{mapping}),
             QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>{mapping});

    const QList<QList<RX_RATECOLOR>> legends{{{0.0, Qt::red}, {5.5, QColor(1, 2, 3)}}, {}};
    QCOMPARE(roundTrip(legends), legends);
}

void TestScriptValue::fieldsThatAreLeftOutKeepTheirDefaults()
{
    const QVariant plain = QVariantList{QVariantMap{{"onLookAheadMs", 700}}};
    const Result<QVariant> result = ScriptValue::toBroker(plain, qMetaTypeId<QList<RX_SETTINGS>>());
    QVERIFY2(result.isOk(), qPrintable(result.error));
    RX_SETTINGS expected;
    expected.onLookAheadMs = 700;
    QCOMPARE(result.value.value<QList<RX_SETTINGS>>(), QList<RX_SETTINGS>{expected});
}

void TestScriptValue::whatIsNoSuchRecordIsRefused_data()
{
    QTest::addColumn<QVariant>("plain");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *title, const QVariant &plain, int type, const char *reason) {
        QTest::newRow(title) << plain << type << reason;
    };
    const int settings = qMetaTypeId<QList<RX_SETTINGS>>();
    row("no list", QVariant(5), settings, "a list is expected");
    row("list of numbers", QVariant(QVariantList{5}), settings, "an object is expected");
    row("unknown field", QVariant(QVariantList{QVariantMap{{"speed", 5}}}), settings, "unknown field \"speed\"");
    row("wrong type", QVariant(QVariantMap{{"x", "east"}}), qMetaTypeId<XYZ>(), "\"x\" has the wrong type");
    const auto setting = [](const char *field, const QVariant &value) {
        return QVariant(QVariantList{QVariantMap{{field, value}}});
    };
    row("fraction for a whole number", setting("onLookAheadMs", 1.6), settings, "\"onLookAheadMs\" has the wrong type");
    row("too great a number", setting("onLookAheadMs", 1e12), settings, "\"onLookAheadMs\" has the wrong type");
    row("no number", setting("onLookAheadMs", qQNaN()), settings, "\"onLookAheadMs\" has the wrong type");
    row("word for a truth", setting("isMaster", "nonsense"), settings, "\"isMaster\" has the wrong type");
    row("word for a colour",
        QVariant(QVariantList{QVariant(QVariantList{QVariantMap{{"rate", 1.0}, {"color", "reddish"}}})}),
        qMetaTypeId<QList<QList<RX_RATECOLOR>>>(), "\"color\" has the wrong type");
    row("fraction for an index", QVariant(QVariantList{QVariantMap{{"auxIndices", QVariantList{1, 2.5}}}}),
        qMetaTypeId<QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>>(), "a whole number is expected");
    row("rate beyond single precision", QVariant(QVariantList{1e300}), qMetaTypeId<QList<float>>(),
        "a number is expected");
    row("texts for rates", QVariant(QVariantList{"much"}), qMetaTypeId<QList<float>>(), "a number is expected");
}

void TestScriptValue::whatIsNoSuchRecordIsRefused()
{
    QFETCH(QVariant, plain);
    QFETCH(int, type);
    QTEST(ScriptValue::toBroker(plain, type).error, "reason");
}

void TestScriptValue::plainValuesStayAsTheyAre_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("number") << QVariant(1.5);
    QTest::newRow("count") << QVariant(7U);
    QTest::newRow("truth") << QVariant(true);
    QTest::newRow("text") << QVariant(QStringLiteral("text"));
}

void TestScriptValue::plainValuesStayAsTheyAre()
{
    QFETCH(QVariant, value);
    QCOMPARE(ScriptValue::fromBroker(value), value);
    QCOMPARE(ScriptValue::toBroker(value, value.userType()).value, value);
}

void TestScriptValue::coloursAreWrittenInSixDigits()
{
    const QList<QList<RX_RATECOLOR>> legends{{{1.0, QColor(255, 128, 0)}}};
    const QVariantMap entry =
        ScriptValue::fromBroker(QVariant::fromValue(legends)).toList().value(0).toList().value(0).toMap();
    QCOMPARE(entry.value("color").toString(), QStringLiteral("#ff8000"));
    QCOMPARE(entry.value("rate").toDouble(), 1.0);
}

void TestScriptValue::pointersAreReadOnly()
{
    int something = 0;
    const QVariant plain = ScriptValue::fromBroker(QVariant::fromValue(static_cast<void *>(&something)));
    QVERIFY(plain.toString().startsWith(QLatin1String("0x")));
    QVERIFY(!ScriptValue::toBroker(plain, QMetaType::VoidStar).isOk());
}

RXMAP_TEST(TestScriptValue, None)
#include "tst_scriptvalue.moc"
