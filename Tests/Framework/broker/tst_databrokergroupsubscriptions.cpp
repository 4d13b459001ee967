#include "accessjournal.h"
#include "samplegroup.h"
#include "setreceiver.h"
#include "testbase.h"

/// Who is notified of a write, through connectPropertySetSlot().
class TestDataBrokerGroupSubscriptions : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void subscribersGetTheNewValue();
    void aSubscriberWithoutParametersIsCalled();
    void aUniqueSubscriptionIsMadeOnce();
    void aSubscriptionEndsWhenGroupAndReceiverAreDisconnected();
    void aSubscriptionEndsWithItsReceiver();
    void aQueuedSubscriptionGetsTheValueLater();
    void failedSubscriptionsAreReportedOnRequest_data();
    void failedSubscriptionsAreReportedOnRequest();
    void anotherPropertysWriteTellsNobody();
    void theValueIsReadForSubscribersOnly();
    void propertySetOfAnUnknownPropertyTellsNobody();
};

void TestDataBrokerGroupSubscriptions::subscribersGetTheNewValue()
{
    SampleGroup group(QStringLiteral("sample"));
    SetReceiver subscriber;
    int target = 0;
    QVERIFY(group.connectPropertySetSlot("text", &subscriber, SLOT(onText(QString)), Qt::UniqueConnection, true));
    QVERIFY(group.connectPropertySetSlot("count", &subscriber, SLOT(onCount(unsigned int)), Qt::AutoConnection, true));
    QVERIFY(group.connectPropertySetSlot("buffer", &subscriber, SLOT(onBuffer(void *)), Qt::AutoConnection, true));
    QVERIFY(group.connectPropertySetSlot("settings", &subscriber, SLOT(onSettings(QList<OrvikTypes::RX_SETTINGS>)),
                                         Qt::AutoConnection, true));
    group.setText(QStringLiteral("new"));
    group.setCount(3000000000u);
    group.setBuffer(&target);
    group.setSettings(taggedSettings(2, 2));
    QCOMPARE(subscriber.texts, QStringList{QStringLiteral("new")});
    QCOMPARE(subscriber.counts, QList<unsigned int>{3000000000u});
    QCOMPARE(subscriber.buffers, QList<void *>{&target});
    QCOMPARE(subscriber.settings, QList<QList<OrvikTypes::RX_SETTINGS>>{taggedSettings(2, 2)});
}

void TestDataBrokerGroupSubscriptions::aSubscriberWithoutParametersIsCalled()
{
    SampleGroup group(QStringLiteral("sample"));
    SetReceiver subscriber;
    QVERIFY(group.connectPropertySetSlot("count", &subscriber, "1onSet()", Qt::UniqueConnection, true));
    group.setCount(1);
    QCOMPARE(subscriber.calls, 1);
}

void TestDataBrokerGroupSubscriptions::aUniqueSubscriptionIsMadeOnce()
{
    SampleGroup group(QStringLiteral("sample"));
    SetReceiver subscriber;
    QVERIFY(group.connectPropertySetSlot("count", &subscriber, SLOT(onSet()), Qt::UniqueConnection, true));
    QVERIFY(!group.connectPropertySetSlot("count", &subscriber, SLOT(onSet()), Qt::UniqueConnection, true));
    group.setCount(1);
    QCOMPARE(subscriber.calls, 1);
    QVERIFY(group.connectPropertySetSlot("count", &subscriber, SLOT(onSet()), Qt::AutoConnection, true));
    group.setCount(1);
    QCOMPARE(subscriber.calls, 3);
    QVERIFY(messages().debugLines().isEmpty());
}

void TestDataBrokerGroupSubscriptions::aSubscriptionEndsWhenGroupAndReceiverAreDisconnected()
{
    SampleGroup group(QStringLiteral("sample"));
    SetReceiver subscriber;
    SetReceiver other;
    group.connectPropertySetSlot("count", &subscriber, SLOT(onSet()), Qt::UniqueConnection, true);
    group.connectPropertySetSlot("count", &other, SLOT(onSet()), Qt::UniqueConnection, true);
    QVERIFY(QObject::disconnect(&group, nullptr, &subscriber, nullptr));
    group.setCount(1);
    QCOMPARE(subscriber.calls, 0);
    QCOMPARE(other.calls, 1);
    QVERIFY(group.connectPropertySetSlot("count", &subscriber, SLOT(onSet()), Qt::UniqueConnection, true));
    group.setCount(1);
    QCOMPARE(subscriber.calls, 1);
}

void TestDataBrokerGroupSubscriptions::aSubscriptionEndsWithItsReceiver()
{
    SampleGroup group(QStringLiteral("sample"));
    AccessJournal journal;
    group.setBeforeReadHook("count", AccessJournal::noteBefore, &journal);
    {
        SetReceiver subscriber;
        group.connectPropertySetSlot("count", &subscriber, SLOT(onSet()), Qt::UniqueConnection, true);
        group.setCount(1);
    }
    QCOMPARE(journal.taken(), QStringList{"before"});
    group.setCount(2);
    QCOMPARE(journal.taken(), QStringList());
}

void TestDataBrokerGroupSubscriptions::aQueuedSubscriptionGetsTheValueLater()
{
    SampleGroup group(QStringLiteral("sample"));
    SetReceiver subscriber;
    QVERIFY(group.connectPropertySetSlot("settings", &subscriber, SLOT(onSettings(QList<OrvikTypes::RX_SETTINGS>)),
                                         Qt::QueuedConnection, true));
    group.setSettings(taggedSettings(1, 1));
    group.setSettings(taggedSettings(1, 2));
    QVERIFY(subscriber.settings.isEmpty());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(subscriber.settings, (QList<QList<OrvikTypes::RX_SETTINGS>>{taggedSettings(1, 1), taggedSettings(1, 2)}));
}

void TestDataBrokerGroupSubscriptions::failedSubscriptionsAreReportedOnRequest_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<bool>("hasReceiver");
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("unknown property") << QByteArray("height") << true << QByteArray("1onSet()");
    QTest::newRow("unknown slot") << QByteArray("count") << true << QByteArray("1onNothing()");
    QTest::newRow("slot of another type") << QByteArray("count") << true << QByteArray("1onObject(QObject*)");
    QTest::newRow("no slot code") << QByteArray("count") << true << QByteArray("onSet()");
    QTest::newRow("empty slot") << QByteArray("count") << true << QByteArray("");
    QTest::newRow("no receiver") << QByteArray("count") << false << QByteArray("1onSet()");
}

void TestDataBrokerGroupSubscriptions::failedSubscriptionsAreReportedOnRequest()
{
    QFETCH(QByteArray, property);
    QFETCH(bool, hasReceiver);
    QFETCH(QByteArray, slot);
    SampleGroup group(QStringLiteral("sample"));
    SetReceiver subscriber;
    QObject *const receiver = hasReceiver ? &subscriber : nullptr;
    QVERIFY(!group.connectPropertySetSlot(property.constData(), receiver, slot.constData(), Qt::AutoConnection, false));
    QVERIFY(messages().debugLines().isEmpty());
    QVERIFY(!group.connectPropertySetSlot(property.constData(), receiver, slot.constData(), Qt::AutoConnection, true));
    QCOMPARE(messages().debugLines(),
             QStringList{QStringLiteral("connectPropertySetSlot() failure: \"sample\" \"%1\" "
                                        "\"%2\"")
                             .arg(QLatin1String(property), QLatin1String(slot))});
    group.setCount(1);
    QCOMPARE(subscriber.calls, 0);
}

void TestDataBrokerGroupSubscriptions::anotherPropertysWriteTellsNobody()
{
    SampleGroup group(QStringLiteral("sample"));
    SetReceiver subscriber;
    group.connectPropertySetSlot("count", &subscriber, SLOT(onSet()), Qt::AutoConnection, true);
    group.setLevel(1);
    QCOMPARE(subscriber.calls, 0);
}

void TestDataBrokerGroupSubscriptions::theValueIsReadForSubscribersOnly()
{
    SampleGroup group(QStringLiteral("sample"));
    AccessJournal journal;
    group.setBeforeReadHook("count", AccessJournal::noteBefore, &journal);
    group.setCount(1);
    QCOMPARE(journal.taken(), QStringList());
    SetReceiver subscriber;
    group.connectPropertySetSlot("count", &subscriber, SLOT(onSet()), Qt::AutoConnection, true);
    group.setCount(2);
    QCOMPARE(journal.taken(), QStringList{"before"});
}

void TestDataBrokerGroupSubscriptions::propertySetOfAnUnknownPropertyTellsNobody()
{
    SampleGroup group(QStringLiteral("sample"));
    SetReceiver subscriber;
    group.connectPropertySetSlot("count", &subscriber, SLOT(onSet()), Qt::AutoConnection, true);
    group.propertySet(&group, "height");
    group.propertySet(&group, nullptr);
    group.propertySet(nullptr, "count");
    QCOMPARE(subscriber.calls, 0);
    group.propertySet(&group, "count");
    QCOMPARE(subscriber.calls, 1);
}

RXMAP_TEST(TestDataBrokerGroupSubscriptions, Core)
#include "tst_databrokergroupsubscriptions.moc"
