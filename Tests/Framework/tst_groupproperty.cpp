#include "journallock.h"
#include "samplegroup.h"
#include "setreceiver.h"
#include "testbase.h"

#include "Framework/databroker.h"

#include <QSignalSpy>

namespace {

using Settings = QList<OrvikTypes::RX_SETTINGS>;

/// A property that the group's class does not have.
struct MissingProperty {
    using Type = Settings;
    static const char *name() { return "noSuchProperty"; }
    static const char *typeName() { return "QList<OrvikTypes::RX_SETTINGS>"; }
};

struct ValidatorCall {
    explicit ValidatorCall(int answerCode)
        : code(answerCode)
    {
    }

    int code;
    int calls = 0;
    QVariant value;

    static int answer(QVariant value, void *call)
    {
        auto *const self = static_cast<ValidatorCall *>(call);
        ++self->calls;
        self->value = value;
        return self->code;
    }
};

struct WritingValidator {
    SampleGroup *group = nullptr;

    static int answer(QVariant, void *self)
    {
        static_cast<WritingValidator *>(self)->group->setLevel(7);
        return 5;
    }
};

struct Logged {
    QtMsgType type;
    QByteArray category;
    QByteArray file;
    int line;
    QByteArray function;
};

QList<Logged> *loggedContexts = nullptr;

void keepContext(QtMsgType type, const QMessageLogContext &context, const QString &)
{
    loggedContexts->append({type, context.category, context.file, context.line, context.function});
}

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
    void readHooksEncloseTheCopyUnderTheLock();
    void theLockIsReleasedBeforeAnyoneIsTold();
    void theLockIsReleasedBeforeARejectionIsLogged();
    void aRefusedTokenTakesNoLock();
    void outsideThreadSafeModeNothingIsLocked();
    void theNotifySignalComesBeforeTheSubscribers();
    void aListenerReadsTheNewValueFromInside();
    void runtimeAndStoredFlagsFollowAWrite();
    void aRefusedWriteLeavesTheFlags();
    void anUnknownPropertyIsLookedUpAndReportedAgain();
    void anUnknownPropertyHasNoHooksAndNoNotifySignal();
    void aGroupNameThatLooksLikeAPlaceholderIsLoggedAsItIs();
    void debugLinesHaveTheDefaultCategoryAndNoPlace();
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
    AccessJournal journal;
    JournalLock lock(journal);
    DataBroker broker;
    auto *const group = new SampleGroup(QStringLiteral("rxMap.a"));
    broker.publishGroup(group);
    group->setSettings(taggedSettings(1, 1));
    group->setLock(&lock);
    group->setThreadSafe(true);
    ValidatorCall validator(0);
    group->setWriteValidator("settings", ValidatorCall::answer, &validator);
    SetReceiver subscriber;
    group->connectPropertySetSlot("settings", &subscriber, SLOT(onSet()), Qt::AutoConnection, true);
    QSignalSpy changed(group, &SampleGroup::settingsChanged);
    broker.removeGroup(QStringLiteral("rxMap.a"));
    journal.taken();

    QCOMPARE(group->setSettings(taggedSettings(1, 2), nullptr), 0);

    QCOMPARE(group->mostRecentErr(), int(DataBrokerGroup::ErrGroupRemoved));
    QCOMPARE(journal.taken(), QStringList());
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

void TestGroupProperty::readHooksEncloseTheCopyUnderTheLock()
{
    struct Hooks {
        AccessJournal journal;
        JournalLock lock{journal};
        SampleGroup group{QStringLiteral("rxMap.a")};
    } hooks;
    hooks.group.setLevel(1);
    hooks.group.setLock(&hooks.lock);
    // The value changes in both hooks: the copy taken is the one between them.
    const auto before = [](void *argument) {
        auto *const self = static_cast<Hooks *>(argument);
        self->journal.note(QStringLiteral("before"));
        self->group.internalSetLevel(2);
    };
    const auto after = [](void *argument) {
        auto *const self = static_cast<Hooks *>(argument);
        self->journal.note(QStringLiteral("after"));
        self->group.internalSetLevel(3);
    };
    QVERIFY(hooks.group.setBeforeReadHook("level", before, &hooks));
    QVERIFY(hooks.group.setAfterReadHook("level", after, &hooks));

    QCOMPARE(hooks.group.getLevel(), 2);
    QCOMPARE(hooks.journal.taken(), (QStringList{"before", "after"}));

    hooks.group.setThreadSafe(true);
    QCOMPARE(hooks.group.getLevel(), 2);
    QCOMPARE(hooks.journal.taken(),
             (QStringList{"lock 0", "before", "lock 0", "unlock", "after", "lock 0", "unlock", "unlock"}));
}

void TestGroupProperty::theLockIsReleasedBeforeAnyoneIsTold()
{
    AccessJournal journal;
    JournalLock lock(journal);
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setLock(&lock);
    group.setThreadSafe(true);
    bool wasHeld = true;
    connect(&group, &SampleGroup::settingsChanged, this, [&]() {
        wasHeld = lock.isHeld();
        journal.note(QStringLiteral("notified"));
    });

    group.setSettings(taggedSettings(1, 1));

    QVERIFY(!wasHeld);
    QCOMPARE(journal.taken(), (QStringList{"lock 0", "unlock", "notified"}));
}

void TestGroupProperty::theLockIsReleasedBeforeARejectionIsLogged()
{
    static JournalLock *watched = nullptr;
    static QList<bool> heldWhileLogging;
    heldWhileLogging.clear();
    AccessJournal journal;
    JournalLock lock(journal);
    watched = &lock;
    SampleGroup group(QStringLiteral("rxMap.a"));
    ValidatorCall validator(5);
    group.setWriteValidator("level", ValidatorCall::answer, &validator);
    group.setLock(&lock);
    group.setThreadSafe(true);

    const QtMessageHandler former = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) { heldWhileLogging.append(watched->isHeld()); });
    group.setLevel(1);
    qInstallMessageHandler(former);

    QCOMPARE(heldWhileLogging, (QList<bool>{false, false}));
    QCOMPARE(journal.taken(), (QStringList{"lock 0", "unlock"}));
}

void TestGroupProperty::aRefusedTokenTakesNoLock()
{
    AccessJournal journal;
    JournalLock lock(journal);
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setWriteProtected("level", true);
    group.setLock(&lock);
    group.setThreadSafe(true);
    messages().expectWarning(QStringLiteral("set rxMap.a::level failed: invalid write access token"));
    group.setLevel(1);
    QCOMPARE(journal.taken(), QStringList());
}

void TestGroupProperty::outsideThreadSafeModeNothingIsLocked()
{
    AccessJournal journal;
    JournalLock lock(journal);
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setLock(&lock);
    group.setSettings(taggedSettings(1, 1));
    group.getSettings();
    QCOMPARE(journal.taken(), QStringList());

    group.setThreadSafe(true);
    group.getSettings();
    QCOMPARE(journal.taken(), (QStringList{"lock 0", "unlock"}));

    group.setThreadSafe(false);
    group.getSettings();
    QCOMPARE(journal.taken(), QStringList());
}

void TestGroupProperty::theNotifySignalComesBeforeTheSubscribers()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    QStringList order;
    SetReceiver subscriber;
    connect(&subscriber, &SetReceiver::passedOn, this, [&]() { order.append(QStringLiteral("subscriber")); });
    // The subscriber is there first; the order does not come from the order of connecting.
    QVERIFY(
        group.connectPropertySetSlot("count", &subscriber, SIGNAL(passedOn(unsigned int)), Qt::AutoConnection, true));
    connect(&group, &SampleGroup::countChanged, this, [&]() { order.append(QStringLiteral("notified")); });

    group.setCount(1);

    QCOMPARE(order, (QStringList{"notified", "subscriber"}));
}

void TestGroupProperty::aListenerReadsTheNewValueFromInside()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setThreadSafe(true);
    Settings read;
    connect(&group, &SampleGroup::settingsChanged, this, [&]() { read = group.getSettings(); });
    group.setSettings(taggedSettings(2, 9));
    QCOMPARE(read, taggedSettings(2, 9));
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

void TestGroupProperty::anUnknownPropertyIsLookedUpAndReportedAgain()
{
    using Missing = GroupProperty<MissingProperty>;
    SampleGroup group(QStringLiteral("rxMap.a"));
    Settings stored;
    const QString readLine = QStringLiteral("publicGetFn() propertyName failure: \"noSuchProperty\" -1");
    const QString writeLine = QStringLiteral("privateSetFn() propertyName failure: \"noSuchProperty\" -1");

    QVERIFY(Missing::get(group, stored).isEmpty());
    QVERIFY(Missing::get(group, stored).isEmpty());
    QCOMPARE(messages().debugLines(), (QStringList{readLine, readLine}));

    // One line from the public setter, one from the internal one that it calls.
    QCOMPARE(Missing::set(group, stored, taggedSettings(1, 1), nullptr), 0);
    QCOMPARE(messages().debugLines().mid(2), (QStringList{writeLine, writeLine}));
}

void TestGroupProperty::anUnknownPropertyHasNoHooksAndNoNotifySignal()
{
    using Missing = GroupProperty<MissingProperty>;
    SampleGroup group(QStringLiteral("rxMap.a"));
    QSignalSpy changed(&group, &SampleGroup::settingsChanged);
    Settings stored;
    Missing::internalSet(group, stored, taggedSettings(1, 1));
    QCOMPARE(stored, taggedSettings(1, 1));
    QCOMPARE(changed.count(), 0);

    QVERIFY(!group.setWriteProtected("noSuchProperty", true));
    QVERIFY(!group.setBeforeReadHook("noSuchProperty", AccessJournal::noteBefore, nullptr));
    QVERIFY(!group.setAfterReadHook("noSuchProperty", AccessJournal::noteAfter, nullptr));
    QVERIFY(!group.setWriteValidator("noSuchProperty", ValidatorCall::answer, nullptr));
    QVERIFY(!group.setHoldsStoredValue("noSuchProperty", true));
    QVERIFY(!group.holdsStoredValue("noSuchProperty"));
    QVERIFY(!group.holdsRuntimeValue("noSuchProperty"));
}

void TestGroupProperty::aGroupNameThatLooksLikeAPlaceholderIsLoggedAsItIs()
{
    SampleGroup group(QStringLiteral("rxMap.%2"));
    group.setWriteProtected("level", true);
    messages().expectWarning(QStringLiteral("set rxMap.%2::level failed: invalid write access token"));
    group.setLevel(1);
    group.setWriteProtected("level", false);
    ValidatorCall validator(5);
    group.setWriteValidator("level", ValidatorCall::answer, &validator);
    messages().expectWarning(QStringLiteral("set rxMap.%2::level failed: 5"));
    group.setLevel(1);
}

void TestGroupProperty::debugLinesHaveTheDefaultCategoryAndNoPlace()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setWriteProtected("level", true);
    QList<Logged> contexts;
    loggedContexts = &contexts;
    const QtMessageHandler former = qInstallMessageHandler(keepContext);
    group.setLevel(1);
    qInstallMessageHandler(former);

    QCOMPARE(contexts.size(), 2);
    QCOMPARE(contexts[0].type, QtWarningMsg);
    QCOMPARE(contexts[0].category, QByteArray("host.group"));
    QCOMPARE(contexts[1].type, QtDebugMsg);
    QCOMPARE(contexts[1].category, QByteArray("default"));
    QCOMPARE(contexts[1].file, QByteArray());
    QCOMPARE(contexts[1].line, 0);
    QCOMPARE(contexts[1].function, QByteArray());
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

QTEST_GUILESS_MAIN(TestGroupProperty)
#include "tst_groupproperty.moc"
