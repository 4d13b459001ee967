#include "accessjournal.h"
#include "samplegroup.h"
#include "setreceiver.h"
#include "testbase.h"

#include "Framework/databroker.h"

#include <QSignalSpy>

namespace {

int refuseWithFive(QVariant, void *)
{
    return 5;
}

} // namespace

/// A group whose class declares its properties by hand.
class PlainGroup : public DataBrokerGroup {
    Q_OBJECT
    Q_PROPERTY(int plain READ plain WRITE setPlain)
    Q_PROPERTY(int fixed READ fixed CONSTANT)

public:
    using DataBrokerGroup::DataBrokerGroup;
    int plain() const { return value; }
    void setPlain(int newValue) { value = newValue; }
    int fixed() const { return 3; }

private:
    int value = 0;
};

class TestDataBrokerGroup : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyKindOfValueIsReadAndWrittenByName();
    void theTypeReadByNameIsTheRegisteredOne_data();
    void theTypeReadByNameIsTheRegisteredOne();
    void aWrongTypeChangesNothing_data();
    void aWrongTypeChangesNothing();
    void anUnknownPropertyIsAnErrorAndReadsNothing();
    void propertiesOfQObjectAreNoGroupProperties();
    void aWriteByNameHoldsNoToken();
    void aWriteByNameGivesTheValidatorsCode();
    void aListenersOwnFailureIsNotTheWritersOutcome();
    void aRemovedProtectedGroupAnswersAlikeByNameAndType();
    void aListenerMayDeleteTheGroup();
    void aRemovedGroupIsAnErrorByName();
    void aWriteByNameIsAnnouncedLikeATypedOne();
    void readsByNameRunTheHooks();
    void handMadePropertiesAreReadAndWrittenToo();
    void aReadOnlyPropertyIsNotWritten();
    void warningsGoToTheLogAsTheyAre();
};

void TestDataBrokerGroup::everyKindOfValueIsReadAndWrittenByName()
{
    SampleGroup group(QStringLiteral("sample"));
    int target = 0;
    OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING mapping;
    mapping.rateCalName = QStringLiteral("Product 1");
    mapping.auxIndices = {3, 4};
    const QList<QList<OrvikTypes::RX_RATECOLOR>> legends{{{12.5, Qt::red}}, {}};

    QCOMPARE(group.setProperty("settings", QVariant::fromValue(taggedSettings(2, 1))), 0);
    QCOMPARE(group.setProperty("rateCalMappings",
                               QVariant::fromValue(QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>{mapping})),
             0);
    QCOMPARE(group.setProperty("rateColors", QVariant::fromValue(legends)), 0);
    QCOMPARE(group.setProperty("rates", QVariant::fromValue(QList<float>{1.5f, 2.5f})), 0);
    QCOMPARE(group.setProperty("point", QVariant::fromValue(OrvikTypes::XYZ(1, 2, 3))), 0);
    QCOMPARE(group.setProperty("buffer", QVariant::fromValue<void *>(&target)), 0);
    QCOMPARE(group.setProperty("count", 4294967295u), 0);
    QCOMPARE(group.setProperty("level", -3), 0);
    QCOMPARE(group.setProperty("factor", 0.1), 0);
    QCOMPARE(group.setProperty("valid", true), 0);
    QCOMPARE(group.setProperty("text", QStringLiteral("text")), 0);

    QCOMPARE(group.getSettings(), taggedSettings(2, 1));
    QCOMPARE(group.getRateCalMappings(), QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>{mapping});
    QCOMPARE(group.getRateColors(), legends);
    QCOMPARE(group.getRates(), (QList<float>{1.5f, 2.5f}));
    QVERIFY(group.getPoint() == OrvikTypes::XYZ(1, 2, 3));
    QCOMPARE(group.getBuffer(), static_cast<void *>(&target));
    QCOMPARE(group.getCount(), 4294967295u);
    QCOMPARE(group.getLevel(), -3);
    QCOMPARE(group.getFactor(), 0.1);
    QCOMPARE(group.getValid(), true);
    QCOMPARE(group.getText(), QStringLiteral("text"));

    QVariant value;
    QCOMPARE(group.getProperty("buffer", value), 0);
    QCOMPARE(value.value<void *>(), static_cast<void *>(&target));
    QCOMPARE(group.getProperty("rateColors", value), 0);
    QCOMPARE(value.value<QList<QList<OrvikTypes::RX_RATECOLOR>>>(), legends);
}

void TestDataBrokerGroup::theTypeReadByNameIsTheRegisteredOne_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("type");
    QTest::newRow("settings") << QByteArray("settings") << qMetaTypeId<QList<OrvikTypes::RX_SETTINGS>>();
    QTest::newRow("rateCalMappings") << QByteArray("rateCalMappings")
                                     << qMetaTypeId<QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>>();
    QTest::newRow("rateColors") << QByteArray("rateColors") << qMetaTypeId<QList<QList<OrvikTypes::RX_RATECOLOR>>>();
    QTest::newRow("rates") << QByteArray("rates") << qMetaTypeId<QList<float>>();
    QTest::newRow("point") << QByteArray("point") << qMetaTypeId<OrvikTypes::XYZ>();
    QTest::newRow("buffer") << QByteArray("buffer") << int(QMetaType::VoidStar);
    QTest::newRow("count") << QByteArray("count") << int(QMetaType::UInt);
    QTest::newRow("valid") << QByteArray("valid") << int(QMetaType::Bool);
}

void TestDataBrokerGroup::theTypeReadByNameIsTheRegisteredOne()
{
    QFETCH(QByteArray, property);
    QFETCH(int, type);
    const SampleGroup group(QStringLiteral("sample"));
    QVariant value;
    QCOMPARE(group.getProperty(property.constData(), value), 0);
    QCOMPARE(value.userType(), type);
}

void TestDataBrokerGroup::aWrongTypeChangesNothing_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("no value") << QByteArray("level") << QVariant();
    QTest::newRow("negative count") << QByteArray("count") << QVariant(-1);
    QTest::newRow("broken count") << QByteArray("count") << QVariant(3.5);
    QTest::newRow("count out of range") << QByteArray("count") << QVariant(1e12);
    QTest::newRow("not a number in a number") << QByteArray("level") << QVariant(qQNaN());
    QTest::newRow("text that is no number") << QByteArray("factor") << QVariant(QStringLiteral("12,5"));
    QTest::newRow("number in a list") << QByteArray("settings") << QVariant(1);
    QTest::newRow("list of another record")
        << QByteArray("settings") << QVariant::fromValue(QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>());
    QTest::newRow("record in a text") << QByteArray("text") << QVariant::fromValue(OrvikTypes::XYZ(1, 2, 3));
    QTest::newRow("number in a pointer") << QByteArray("buffer") << QVariant(1);
    QTest::newRow("number in a record") << QByteArray("point") << QVariant(1.0);
}

void TestDataBrokerGroup::aWrongTypeChangesNothing()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    SampleGroup group(QStringLiteral("sample"));
    group.setCount(9);
    group.setLevel(9);
    group.setFactor(9.0);
    group.setText(QStringLiteral("9"));
    group.setSettings(taggedSettings(1, 9));
    group.setWriteValidator("valid", refuseWithFive, nullptr);
    messages().expectWarning(QStringLiteral("set sample::valid failed: 5"));
    group.setValid(true);
    SetReceiver subscriber;
    group.connectPropertySetSlot(property.constData(), &subscriber, SLOT(onSet()), Qt::AutoConnection, true);

    QCOMPARE(group.setProperty(property.constData(), value), int(DataBrokerGroup::ErrWrongType));

    QCOMPARE(group.getCount(), 9u);
    QCOMPARE(group.getLevel(), 9);
    QCOMPARE(group.getFactor(), 9.0);
    QCOMPARE(group.getText(), QStringLiteral("9"));
    QCOMPARE(group.getSettings(), taggedSettings(1, 9));
    QCOMPARE(group.getBuffer(), nullptr);
    QCOMPARE(group.mostRecentErr(), 5);
    QCOMPARE(subscriber.calls, 0);
}

void TestDataBrokerGroup::anUnknownPropertyIsAnErrorAndReadsNothing()
{
    SampleGroup group(QStringLiteral("sample"));
    QVariant value = 1;
    QCOMPARE(group.getProperty("height", value), int(DataBrokerGroup::ErrUnknownProperty));
    QCOMPARE(value, QVariant(1));
    QCOMPARE(group.setProperty("height", 1), int(DataBrokerGroup::ErrUnknownProperty));
    QCOMPARE(group.setProperty("", 1), int(DataBrokerGroup::ErrUnknownProperty));
    QVERIFY(group.dynamicPropertyNames().isEmpty());
}

void TestDataBrokerGroup::propertiesOfQObjectAreNoGroupProperties()
{
    SampleGroup group(QStringLiteral("sample"));
    QVariant value;
    QCOMPARE(group.getProperty("objectName", value), int(DataBrokerGroup::ErrUnknownProperty));
    QCOMPARE(group.setProperty("objectName", QStringLiteral("x")), int(DataBrokerGroup::ErrUnknownProperty));
    QCOMPARE(group.objectName(), QString());
}

void TestDataBrokerGroup::aWriteByNameHoldsNoToken()
{
    SampleGroup group(QStringLiteral("sample"));
    group.setWriteAccessToken(QUuid::createUuid());
    group.setWriteProtected("level", true);
    messages().expectWarning(QStringLiteral("set sample::level failed: invalid write access token"));
    QCOMPARE(group.setProperty("level", 1), int(DataBrokerGroup::ErrInvalidToken));
    QCOMPARE(messages().debugLines(),
             QStringList{QStringLiteral("\"ERROR: set sample::level failed: invalid write access token\"")});
    QCOMPARE(group.getLevel(), 0);
}

void TestDataBrokerGroup::aWriteByNameGivesTheValidatorsCode()
{
    SampleGroup group(QStringLiteral("sample"));
    group.setWriteValidator("level", refuseWithFive, nullptr);
    messages().expectWarning(QStringLiteral("set sample::level failed: 5"));
    QCOMPARE(group.setProperty("level", 1), 5);
    QCOMPARE(group.getLevel(), 0);
    QCOMPARE(group.mostRecentErr(), 5);
}

void TestDataBrokerGroup::aListenersOwnFailureIsNotTheWritersOutcome()
{
    SampleGroup group(QStringLiteral("sample"));
    group.setWriteValidator("count", refuseWithFive, nullptr);
    connect(&group, &SampleGroup::levelChanged, this, [&]() { QCOMPARE(group.setProperty("count", 1u), 5); });
    connect(&group, &SampleGroup::levelChanged, this, [&]() { group.setCount(2); });
    messages().expectWarning(QStringLiteral("set sample::count failed: 5"));
    messages().expectWarning(QStringLiteral("set sample::count failed: 5"));
    QCOMPARE(group.setProperty("level", 1), int(DataBrokerGroup::Success));
    QCOMPARE(group.mostRecentErr(), 5);
}

void TestDataBrokerGroup::aRemovedProtectedGroupAnswersAlikeByNameAndType()
{
    DataBroker broker;
    auto *group = new SampleGroup(QStringLiteral("sample"));
    broker.publishGroup(group);
    group->setWriteProtected("level", true);
    broker.removeGroup(QStringLiteral("sample"));
    for (int way = 0; way < 2; ++way)
        messages().expectWarning(QStringLiteral("set sample::level failed: invalid write access token"));
    QCOMPARE(group->setLevel(2), int(DataBrokerGroup::ErrInvalidToken));
    QCOMPARE(group->setProperty("level", 2), int(DataBrokerGroup::ErrInvalidToken));
    QCOMPARE(group->mostRecentErr(), int(DataBrokerGroup::Success));
}

void TestDataBrokerGroup::aListenerMayDeleteTheGroup()
{
    QPointer<SampleGroup> group = new SampleGroup(QStringLiteral("sample"));
    connect(group, &SampleGroup::levelChanged, this, [&group] { delete group; });
    group->setLevel(1);
    QVERIFY(group.isNull());
}

void TestDataBrokerGroup::aRemovedGroupIsAnErrorByName()
{
    DataBroker broker;
    auto *const group = new SampleGroup(QStringLiteral("sample"));
    broker.publishGroup(group);
    group->setLevel(1);
    broker.removeGroup(QStringLiteral("sample"));
    QVariant value;
    QCOMPARE(group->getProperty("level", value), int(DataBrokerGroup::ErrGroupRemoved));
    QVERIFY(!value.isValid());
    QCOMPARE(group->setProperty("level", 2), int(DataBrokerGroup::ErrGroupRemoved));
    QCOMPARE(group->mostRecentErr(), int(DataBrokerGroup::ErrGroupRemoved));
    QCOMPARE(group->getLevel(), 1);
    QCOMPARE(messages().debugLines(),
             QStringList{QStringLiteral("mostRecentErr = DataBrokerGroup::ErrGroupRemoved, while setting \"level\"")});
}

void TestDataBrokerGroup::aWriteByNameIsAnnouncedLikeATypedOne()
{
    SampleGroup group(QStringLiteral("sample"));
    SetReceiver subscriber;
    group.connectPropertySetSlot("count", &subscriber, SLOT(onCount(unsigned int)), Qt::AutoConnection, true);
    QSignalSpy changed(&group, &SampleGroup::countChanged);
    QCOMPARE(group.setProperty("count", 5), 0);
    QCOMPARE(group.setProperty("count", 5), 0);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(subscriber.counts, (QList<unsigned int>{5, 5}));
    QVERIFY(group.holdsRuntimeValue("count"));
}

void TestDataBrokerGroup::readsByNameRunTheHooks()
{
    SampleGroup group(QStringLiteral("sample"));
    AccessJournal journal;
    group.setBeforeReadHook("level", AccessJournal::noteBefore, &journal);
    group.setAfterReadHook("level", AccessJournal::noteAfter, &journal);
    QVariant value;
    group.getProperty("level", value);
    QCOMPARE(journal.taken(), (QStringList{"before", "after"}));
    group.setBeforeReadHook("level", nullptr, nullptr);
    group.setAfterReadHook("level", nullptr, nullptr);
    group.getProperty("level", value);
    QCOMPARE(journal.taken(), QStringList());
}

void TestDataBrokerGroup::handMadePropertiesAreReadAndWrittenToo()
{
    PlainGroup group(QStringLiteral("plain"));
    QVariant value;
    QCOMPARE(group.setProperty("plain", QStringLiteral("7")), int(DataBrokerGroup::Success));
    QCOMPARE(group.getProperty("plain", value), int(DataBrokerGroup::Success));
    QCOMPARE(value, QVariant(7));

    // Such a property reports no outcome, and nothing of that write is left for the next one.
    SampleGroup next(QStringLiteral("sample"));
    next.setWriteValidator("level", refuseWithFive, nullptr);
    messages().expectWarning(QStringLiteral("set sample::level failed: 5"));
    next.setLevel(1);
    QCOMPARE(next.mostRecentErr(), 5);
}

void TestDataBrokerGroup::aReadOnlyPropertyIsNotWritten()
{
    PlainGroup group(QStringLiteral("plain"));
    QVariant value;
    QCOMPARE(group.setProperty("fixed", 4), int(DataBrokerGroup::ErrInvalidToken));
    QCOMPARE(group.getProperty("fixed", value), int(DataBrokerGroup::Success));
    QCOMPARE(value, QVariant(3));
    SetReceiver subscriber;
    QVERIFY(!group.connectPropertySetSlot("fixed", &subscriber, SLOT(onSet()), Qt::AutoConnection, false));
}

void TestDataBrokerGroup::warningsGoToTheLogAsTheyAre()
{
    SampleGroup group(QStringLiteral("sample"));
    messages().expectWarning(QStringLiteral("100 %s of \"it\""));
    group.log_group_warning(QStringLiteral("100 %s of \"it\""));
}

RXMAP_TEST(TestDataBrokerGroup, Core)
#include "tst_databrokergroup.moc"
