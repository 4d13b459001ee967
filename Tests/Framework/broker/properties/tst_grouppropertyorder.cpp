#include "accessjournal.h"
#include "samplegroup.h"
#include "testbase.h"

#include "Framework/grouplock.h"

namespace {

/// A thread-safe group whose "level" is 0 and marked as stored, with a journal of everything that a write does to it.
/// Each entry says what the group held at that moment.
class WatchedGroup : private GroupLock {
public:
    WatchedGroup()
    {
        group.setHoldsStoredValue("level", true);
        group.setWriteValidator("level", validate, this);
        group.setLock(this);
        group.setThreadSafe(true);
    }

    void note(const QString &event)
    {
        // Asking the group takes its lock as well, which is not recorded.
        isAsking = true;
        QString state = QStringLiteral("%1: %2").arg(event).arg(group.getLevel());
        if (group.holdsStoredValue("level"))
            state += QLatin1String(" stored");
        if (group.holdsRuntimeValue("level"))
            state += QLatin1String(" run-time");
        journal.note(state + QStringLiteral(" result %1").arg(group.mostRecentErr()));
        isAsking = false;
    }

    SampleGroup group{QStringLiteral("sample")};
    AccessJournal journal;
    int answer = DataBrokerGroup::Success;

private:
    void lock(int mode) override
    {
        if (!isAsking)
            note(QStringLiteral("lock %1").arg(mode));
    }

    void unlock() override
    {
        if (!isAsking)
            note(QStringLiteral("unlock"));
    }

    static int validate(QVariant value, void *self)
    {
        auto *const watched = static_cast<WatchedGroup *>(self);
        watched->note(QStringLiteral("validate %1").arg(value.toInt()));
        return watched->answer;
    }

    bool isAsking = false;
};

WatchedGroup *heard = nullptr;

void hearMessage(QtMsgType type, const QMessageLogContext &, const QString &)
{
    heard->note(type == QtDebugMsg ? QStringLiteral("debug line") : QStringLiteral("warning"));
}

} // namespace

/// The steps of a write to a thread-safe group, in their order, however the value is given.
class TestGroupPropertyOrder : public TestBase {
    Q_OBJECT

public Q_SLOTS:
    void onSet(int level) { watched->note(QStringLiteral("subscriber %1").arg(level)); }

private Q_SLOTS:
    void init();
    void anAcceptedWrite_data() { addWays(); }
    void anAcceptedWrite();
    void aRejectedWrite_data() { addWays(); }
    void aRejectedWrite();

private:
    static void addWays();
    void write(int level);

    QScopedPointer<WatchedGroup> watched;
};

void TestGroupPropertyOrder::init()
{
    TestBase::init();
    watched.reset(new WatchedGroup);
    connect(&watched->group, &SampleGroup::levelChanged, this,
            [this](int level) { watched->note(QStringLiteral("notified %1").arg(level)); });
    QVERIFY(watched->group.connectPropertySetSlot("level", this, SLOT(onSet(int)), Qt::AutoConnection, true));
}

void TestGroupPropertyOrder::addWays()
{
    QTest::addColumn<bool>("byName");
    QTest::newRow("typed") << false;
    QTest::newRow("by name") << true;
}

void TestGroupPropertyOrder::write(int level)
{
    QFETCH(bool, byName);
    if (byName)
        watched->group.setProperty("level", level);
    else
        watched->group.setLevel(level);
}

void TestGroupPropertyOrder::anAcceptedWrite()
{
    write(7);
    QCOMPARE(watched->journal.taken(),
             (QStringList{"lock 0: 0 stored result 0", "validate 7: 0 stored result 0", "unlock: 7 run-time result 0",
                          "notified 7: 7 run-time result 0",
                          // The value for the subscribers is read again, like any value.
                          "lock 0: 7 run-time result 0", "unlock: 7 run-time result 0",
                          "subscriber 7: 7 run-time result 0"}));
}

void TestGroupPropertyOrder::aRejectedWrite()
{
    watched->answer = 5;
    heard = watched.data();
    const QtMessageHandler former = qInstallMessageHandler(hearMessage);
    write(7);
    qInstallMessageHandler(former);
    QCOMPARE(watched->journal.taken(),
             (QStringList{"lock 0: 0 stored result 0", "validate 7: 0 stored result 0", "unlock: 0 stored result 5",
                          "warning: 0 stored result 5", "debug line: 0 stored result 5"}));
}

RXMAP_TEST(TestGroupPropertyOrder, Core)
#include "tst_grouppropertyorder.moc"
