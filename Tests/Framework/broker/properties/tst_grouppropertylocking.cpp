#include "journallock.h"
#include "samplegroup.h"
#include "setreceiver.h"
#include "testbase.h"
#include "validatorcall.h"

#include "Framework/databroker.h"

namespace {

using Settings = QList<OrvikTypes::RX_SETTINGS>;

} // namespace

/// When the accessors hold the lock of a thread-safe group, and whom they notify in which order.
class TestGroupPropertyLocking : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void readHooksEncloseTheCopyUnderTheLock();
    void theLockIsReleasedBeforeAnyoneIsTold();
    void theLockIsReleasedBeforeARejectionIsLogged();
    void aRefusedTokenTakesNoLock();
    void aRemovedGroupTakesNoLock();
    void outsideThreadSafeModeNothingIsLocked();
    void theNotifySignalComesBeforeTheSubscribers();
    void aListenerReadsTheNewValueFromInside();
};

void TestGroupPropertyLocking::readHooksEncloseTheCopyUnderTheLock()
{
    struct Hooks {
        AccessJournal journal;
        JournalLock lock{journal};
        SampleGroup group{QStringLiteral("rxMap.a")};
    } hooks;
    hooks.group.setLevel(1);
    hooks.group.setLock(&hooks.lock);
    // The value changes in both hooks: the copy is taken between them.
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

void TestGroupPropertyLocking::theLockIsReleasedBeforeAnyoneIsTold()
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

void TestGroupPropertyLocking::theLockIsReleasedBeforeARejectionIsLogged()
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

void TestGroupPropertyLocking::aRefusedTokenTakesNoLock()
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

void TestGroupPropertyLocking::aRemovedGroupTakesNoLock()
{
    AccessJournal journal;
    JournalLock lock(journal);
    DataBroker broker;
    auto *const group = new SampleGroup(QStringLiteral("rxMap.a"));
    broker.publishGroup(group);
    group->setLock(&lock);
    group->setThreadSafe(true);
    broker.removeGroup(QStringLiteral("rxMap.a"));
    group->setLevel(1);
    QCOMPARE(journal.taken(), QStringList());
}

void TestGroupPropertyLocking::outsideThreadSafeModeNothingIsLocked()
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

void TestGroupPropertyLocking::theNotifySignalComesBeforeTheSubscribers()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    QStringList order;
    SetReceiver subscriber;
    connect(&subscriber, &SetReceiver::passedOn, this, [&]() { order.append(QStringLiteral("subscriber")); });
    // The subscriber connects first, so the order is not that of connecting.
    QVERIFY(
        group.connectPropertySetSlot("count", &subscriber, SIGNAL(passedOn(unsigned int)), Qt::AutoConnection, true));
    connect(&group, &SampleGroup::countChanged, this, [&]() { order.append(QStringLiteral("notified")); });

    group.setCount(1);

    QCOMPARE(order, (QStringList{"notified", "subscriber"}));
}

void TestGroupPropertyLocking::aListenerReadsTheNewValueFromInside()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setThreadSafe(true);
    Settings read;
    connect(&group, &SampleGroup::settingsChanged, this, [&]() { read = group.getSettings(); });
    group.setSettings(taggedSettings(2, 9));
    QCOMPARE(read, taggedSettings(2, 9));
}

RXMAP_TEST(TestGroupPropertyLocking, Core)
#include "tst_grouppropertylocking.moc"
