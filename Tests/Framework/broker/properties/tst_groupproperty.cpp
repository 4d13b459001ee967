#include "samplegroup.h"
#include "setreceiver.h"
#include "testbase.h"
#include "validatorcall.h"

#include "Framework/databroker.h"

#include <QSignalSpy>

namespace {

using Settings = QList<OrvikTypes::RX_SETTINGS>;

struct WritingValidator {
    SampleGroup *group = nullptr;

    static int answer(QVariant, void *self)
    {
        static_cast<WritingValidator *>(self)->group->setLevel(7);
        return 5;
    }
};

QUuid token(char last)
{
    const QByteArray bytes = QByteArray("0123456789abcde") + last;
    return QUuid::fromRfc4122(bytes);
}

} // namespace

class TestGroupProperty : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aPropertyNeverWrittenReadsAsEmpty();
    void anAcceptedWriteStoresAndIsAnnounced();
    void anEqualListIsAnnouncedAllTheSame();
    void theListThatIsReadSharesTheStoredData();
    void aProtectedPropertyRefusesANullToken();
    void aProtectedPropertyTakesTheGroupsOwnTokenOnly_data();
    void aProtectedPropertyTakesTheGroupsOwnTokenOnly();
    void theInternalSetterKnowsNoToken();
    void aRemovedGroupTakesNothing();
    void aRemovedGroupIsStillRead();
    void aRejectedValueLeavesTheOldOne();
    void theValidatorGetsTheNewListInAVariant();
    void anAcceptingValidatorClearsTheFormerResult();
    void aWriteWithoutValidatorClearsTheFormerResult();
    void suspendedValidationAsksNobody();
    void runtimeAndStoredFlagsFollowAWrite();
    void aRefusedWriteLeavesTheFlags();
    void aValidatorThatWritesDoesNotHideItsOwnRefusal();
};

void TestGroupProperty::aPropertyNeverWrittenReadsAsEmpty()
{
    const SampleGroup group(QStringLiteral("rxMap.a"));
    QVERIFY(group.getSettings().isEmpty());
    QVERIFY(group.getRateCalMappings().isEmpty());
    QCOMPARE(group.getBuffer(), nullptr);
    QCOMPARE(group.getCount(), 0u);
    QVERIFY(!group.holdsRuntimeValue("settings"));
    QVERIFY(messages().debugLines().isEmpty());
}

void TestGroupProperty::anAcceptedWriteStoresAndIsAnnounced()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    SetReceiver subscriber;
    QVERIFY(group.connectPropertySetSlot("settings", &subscriber, SLOT(onSettings(QList<OrvikTypes::RX_SETTINGS>)),
                                         Qt::AutoConnection, true));
    QSignalSpy changed(&group, &SampleGroup::settingsChanged);
    const Settings list = taggedSettings(3, 2500);

    QCOMPARE(group.setSettings(list, nullptr), 0);

    QCOMPARE(group.getSettings(), list);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().value<Settings>(), list);
    QCOMPARE(subscriber.settings, QList<Settings>{list});
    QCOMPARE(group.mostRecentErr(), 0);
}

void TestGroupProperty::anEqualListIsAnnouncedAllTheSame()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    SetReceiver subscriber;
    group.connectPropertySetSlot("settings", &subscriber, SLOT(onSet()), Qt::AutoConnection, true);
    const Settings list = taggedSettings(2, 1);
    group.setSettings(list);
    QSignalSpy changed(&group, &SampleGroup::settingsChanged);
    QCOMPARE(subscriber.calls, 1);

    group.setSettings(list);
    group.setSettings(taggedSettings(2, 1));

    QCOMPARE(changed.count(), 2);
    QCOMPARE(subscriber.calls, 3);
}

void TestGroupProperty::theListThatIsReadSharesTheStoredData()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    const Settings list = taggedSettings(2, 1);
    group.setSettings(list);
    QVERIFY(group.getSettings().isSharedWith(list));

    Settings copy = group.getSettings();
    copy[0].onLookAheadMs = 99;
    QCOMPARE(group.getSettings(), list);
}

void TestGroupProperty::aProtectedPropertyRefusesANullToken()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setWriteAccessToken(token('f'));
    group.setSettings(taggedSettings(1, 1));
    ValidatorCall validator(5);
    group.setWriteValidator("level", ValidatorCall::answer, &validator);
    messages().expectWarning(QStringLiteral("set rxMap.a::level failed: 5"));
    group.setLevel(1);
    QVERIFY(group.setWriteProtected("settings", true));
    QSignalSpy changed(&group, &SampleGroup::settingsChanged);
    const int linesBefore = messages().debugLines().size();

    messages().expectWarning(QStringLiteral("set rxMap.a::settings failed: invalid write access token"));
    QCOMPARE(group.setSettings(taggedSettings(1, 2), nullptr), 2);

    QCOMPARE(messages().debugLines().mid(linesBefore),
             QStringList{QStringLiteral("\"ERROR: set rxMap.a::settings failed: invalid write access token\"")});
    QCOMPARE(group.getSettings(), taggedSettings(1, 1));
    QCOMPARE(group.mostRecentErr(), 5);
    QCOMPARE(changed.count(), 0);
}

void TestGroupProperty::aProtectedPropertyTakesTheGroupsOwnTokenOnly_data()
{
    QTest::addColumn<QUuid>("offered");
    QTest::addColumn<int>("result");
    QTest::newRow("the group's token") << token('f') << 0;
    QTest::newRow("last byte differs") << token('g') << 2;
    QTest::newRow("first byte differs") << QUuid::fromRfc4122("1123456789abcdef") << 2;
    QTest::newRow("null token") << QUuid() << 2;
}

void TestGroupProperty::aProtectedPropertyTakesTheGroupsOwnTokenOnly()
{
    QFETCH(QUuid, offered);
    QFETCH(int, result);
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setWriteAccessToken(token('f'));
    group.setWriteProtected("settings", true);
    if (result != 0)
        messages().expectWarning(QStringLiteral("set rxMap.a::settings failed: invalid write access token"));

    QCOMPARE(group.setSettings(taggedSettings(1, 2), &offered), result);

    QCOMPARE(group.getSettings().size(), result == 0 ? 1 : 0);
}

void TestGroupProperty::theInternalSetterKnowsNoToken()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setWriteAccessToken(token('f'));
    group.setWriteProtected("settings", true);
    group.internalSetSettings(taggedSettings(1, 2));
    QCOMPARE(group.getSettings(), taggedSettings(1, 2));
}

void TestGroupProperty::aRemovedGroupTakesNothing()
{
    DataBroker broker;
    auto *const group = new SampleGroup(QStringLiteral("rxMap.a"));
    broker.publishGroup(group);
    group->setSettings(taggedSettings(1, 1));
    ValidatorCall validator(0);
    group->setWriteValidator("settings", ValidatorCall::answer, &validator);
    SetReceiver subscriber;
    group->connectPropertySetSlot("settings", &subscriber, SLOT(onSet()), Qt::AutoConnection, true);
    QSignalSpy changed(group, &SampleGroup::settingsChanged);
    broker.removeGroup(QStringLiteral("rxMap.a"));

    QCOMPARE(group->setSettings(taggedSettings(1, 2), nullptr), 0);

    QCOMPARE(group->mostRecentErr(), int(DataBrokerGroup::ErrGroupRemoved));
    QCOMPARE(
        messages().debugLines(),
        QStringList{QStringLiteral("mostRecentErr = DataBrokerGroup::ErrGroupRemoved, while setting \"settings\"")});
    QCOMPARE(group->getSettings(), taggedSettings(1, 1));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(subscriber.calls, 0);
    QCOMPARE(validator.calls, 0);
}

void TestGroupProperty::aRemovedGroupIsStillRead()
{
    DataBroker broker;
    auto *const group = new SampleGroup(QStringLiteral("rxMap.a"));
    broker.publishGroup(group);
    group->setSettings(taggedSettings(2, 1));
    broker.removeGroup(QStringLiteral("rxMap.a"));
    QCOMPARE(group->getSettings(), taggedSettings(2, 1));
}

void TestGroupProperty::aRejectedValueLeavesTheOldOne()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setSettings(taggedSettings(1, 1));
    ValidatorCall validator(5);
    QVERIFY(group.setWriteValidator("settings", ValidatorCall::answer, &validator));
    SetReceiver subscriber;
    group.connectPropertySetSlot("settings", &subscriber, SLOT(onSet()), Qt::AutoConnection, true);
    QSignalSpy changed(&group, &SampleGroup::settingsChanged);

    messages().expectWarning(QStringLiteral("set rxMap.a::settings failed: 5"));
    QCOMPARE(group.setSettings(taggedSettings(1, 2), nullptr), 0);

    QCOMPARE(group.mostRecentErr(), 5);
    QCOMPARE(group.getSettings(), taggedSettings(1, 1));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(subscriber.calls, 0);
    QCOMPARE(messages().debugLines(),
             QStringList{QStringLiteral("mostRecentErr != DataBrokerGroup::Success:  "
                                        "\"set rxMap.a::settings failed: 5\"")});
}

void TestGroupProperty::theValidatorGetsTheNewListInAVariant()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    ValidatorCall validator(0);
    group.setWriteValidator("settings", ValidatorCall::answer, &validator);

    group.setSettings(taggedSettings(2, 4));

    QCOMPARE(validator.calls, 1);
    QCOMPARE(validator.value.userType(), qMetaTypeId<Settings>());
    QCOMPARE(validator.value.value<Settings>(), taggedSettings(2, 4));
    QCOMPARE(group.getSettings(), taggedSettings(2, 4));
}

void TestGroupProperty::anAcceptingValidatorClearsTheFormerResult()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    ValidatorCall validator(5);
    group.setWriteValidator("level", ValidatorCall::answer, &validator);
    messages().expectWarning(QStringLiteral("set rxMap.a::level failed: 5"));
    group.setLevel(1);
    QCOMPARE(group.mostRecentErr(), 5);

    validator.code = 0;
    group.setLevel(2);

    QCOMPARE(group.mostRecentErr(), 0);
    QCOMPARE(group.getLevel(), 2);
}

void TestGroupProperty::aWriteWithoutValidatorClearsTheFormerResult()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    ValidatorCall validator(5);
    group.setWriteValidator("level", ValidatorCall::answer, &validator);
    messages().expectWarning(QStringLiteral("set rxMap.a::level failed: 5"));
    group.setLevel(1);
    group.setSettings(taggedSettings(1, 1));
    QCOMPARE(group.mostRecentErr(), 0);
}

void TestGroupProperty::suspendedValidationAsksNobody()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    ValidatorCall validator(5);
    group.setWriteValidator("level", ValidatorCall::answer, &validator);
    group.setValidationSuspended(true);
    group.setLevel(3);
    QCOMPARE(group.getLevel(), 3);
    QCOMPARE(validator.calls, 0);

    group.setValidationSuspended(false);
    messages().expectWarning(QStringLiteral("set rxMap.a::level failed: 5"));
    group.setLevel(4);
    QCOMPARE(group.getLevel(), 3);
    QCOMPARE(validator.calls, 1);
}

void TestGroupProperty::runtimeAndStoredFlagsFollowAWrite()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    QVERIFY(group.setHoldsStoredValue("level", true));
    QVERIFY(group.holdsStoredValue("level"));
    QVERIFY(!group.holdsRuntimeValue("level"));
    group.setLevel(1);
    QVERIFY(!group.holdsStoredValue("level"));
    QVERIFY(group.holdsRuntimeValue("level"));
    QVERIFY(!group.holdsRuntimeValue("count"));
}

void TestGroupProperty::aRefusedWriteLeavesTheFlags()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    ValidatorCall validator(5);
    group.setWriteValidator("level", ValidatorCall::answer, &validator);
    group.setHoldsStoredValue("level", true);
    messages().expectWarning(QStringLiteral("set rxMap.a::level failed: 5"));
    group.setLevel(1);
    QVERIFY(group.holdsStoredValue("level"));
    QVERIFY(!group.holdsRuntimeValue("level"));
}

void TestGroupProperty::aValidatorThatWritesDoesNotHideItsOwnRefusal()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    WritingValidator validator{&group};
    group.setWriteValidator("text", WritingValidator::answer, &validator);
    messages().expectWarning(QStringLiteral("set rxMap.a::text failed: 5"));
    QCOMPARE(group.setProperty("text", QStringLiteral("new")), 5);
    QCOMPARE(group.getLevel(), 7);
    QCOMPARE(group.getText(), QString());
    QCOMPARE(group.mostRecentErr(), 5);
}

RXMAP_TEST(TestGroupProperty, Core)
#include "tst_groupproperty.moc"
