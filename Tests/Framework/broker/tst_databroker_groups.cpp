#include "samplegroup.h"
#include "testbase.h"

#include "Framework/databroker.h"

#include <QPointer>
#include <QSignalSpy>

#include <atomic>
#include <thread>

/// Publishing groups in the broker, finding them by name, and removing them.
class TestDataBrokerGroups : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aPublishedGroupIsFound();
    void aMissingGroupIsNullAndReportedOnRequest();
    void aNameInUseIsRefusedAndTheCallerKeepsItsGroup();
    void aGroupIsPublishedOnce();
    void noGroupIsNotPublished();
    void thePublisherNoLongerOwnsTheGroup();
    void patternsMatchNamesAndStartsOfNames_data();
    void patternsMatchNamesAndStartsOfNames();
    void namesComeInPublicationOrderOrSorted();
    void aNamePublishedAgainMovesToTheEnd();
    void removedGroupsAreListedOnRequestOnly();
    void aRemovedGroupStaysAliveUntilTheBrokerGoes();
    void deletedGroupsLeaveTheOthersInTheirPlaces();
    void removalIsAnnouncedOnceAfterTheGroupKnows();
    void removingAnUnknownGroupIsAnError();
    void aGroupDeletedByItsCreatorIsForgotten();
    void aListenerMayDeleteTheBroker_data();
    void aListenerMayDeleteTheBroker();
    void publishingAndSearchingRunFromManyThreads();
};

void TestDataBrokerGroups::aPublishedGroupIsFound()
{
    DataBroker broker;
    QSignalSpy published(&broker, &DataBroker::groupPublished);
    auto *const group = new SampleGroup(QStringLiteral("rxMap.a"));
    QCOMPARE(group->broker(), nullptr);
    QCOMPARE(broker.publishGroup(group), int(DataBrokerGroup::Success));
    QCOMPARE(broker.getGroup(QStringLiteral("rxMap.a"), true), group);
    QCOMPARE(group->broker(), &broker);
    QCOMPARE(published.count(), 1);
    QCOMPARE(published.first().first().toString(), QStringLiteral("rxMap.a"));
}

void TestDataBrokerGroups::aMissingGroupIsNullAndReportedOnRequest()
{
    const DataBroker broker;
    QCOMPARE(broker.getGroup(QStringLiteral("rxMap.a"), false), nullptr);
    QVERIFY(messages().debugLines().isEmpty());
    QCOMPARE(broker.getGroup(QStringLiteral("rxMap.a"), true), nullptr);
    QCOMPARE(messages().debugLines(), QStringList{QStringLiteral("no group of this name: \"rxMap.a\"")});
}

void TestDataBrokerGroups::aNameInUseIsRefusedAndTheCallerKeepsItsGroup()
{
    DataBroker broker;
    auto *const first = new SampleGroup(QStringLiteral("rxMap.a"));
    broker.publishGroup(first);
    QSignalSpy published(&broker, &DataBroker::groupPublished);
    {
        SampleGroup second(QStringLiteral("rxMap.a"));
        QCOMPARE(broker.publishGroup(&second), int(DataBrokerGroup::ErrNameTaken));
        QCOMPARE(second.broker(), nullptr);
    }
    QCOMPARE(published.count(), 0);
    QCOMPARE(broker.getGroup(QStringLiteral("rxMap.a"), false), first);
}

void TestDataBrokerGroups::aGroupIsPublishedOnce()
{
    DataBroker broker;
    DataBroker other;
    auto *const group = new SampleGroup(QStringLiteral("rxMap.a"));
    broker.publishGroup(group);
    QCOMPARE(broker.publishGroup(group), int(DataBrokerGroup::ErrNameTaken));
    QCOMPARE(other.publishGroup(group), int(DataBrokerGroup::ErrNameTaken));
    broker.removeGroup(QStringLiteral("rxMap.a"));
    QCOMPARE(broker.publishGroup(group), int(DataBrokerGroup::ErrGroupRemoved));
    QCOMPARE(other.findGroup(QStringLiteral("*"), true, true), QStringList());
}

void TestDataBrokerGroups::noGroupIsNotPublished()
{
    DataBroker broker;
    QCOMPARE(broker.publishGroup(nullptr), int(DataBrokerGroup::ErrUnknownGroup));
    QCOMPARE(broker.findGroup(QStringLiteral("*"), true, true), QStringList());
}

void TestDataBrokerGroups::thePublisherNoLongerOwnsTheGroup()
{
    DataBroker broker;
    QPointer<SampleGroup> group;
    {
        QObject publisher;
        group = new SampleGroup(QStringLiteral("rxMap.a"), &publisher);
        broker.publishGroup(group);
    }
    QVERIFY(!group.isNull());
    QCOMPARE(broker.getGroup(QStringLiteral("rxMap.a"), false), group.data());
}

void TestDataBrokerGroups::patternsMatchNamesAndStartsOfNames_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("start") << "rxMap.*" << QStringList{"rxMap.b", "rxMap.a"};
    QTest::newRow("start of a last part") << "rxMap.a*" << QStringList{"rxMap.a"};
    QTest::newRow("name") << "rxMap.a" << QStringList{"rxMap.a"};
    QTest::newRow("name without its end") << "rxMap" << QStringList();
    QTest::newRow("other letter case") << "rxmap.*" << QStringList();
    QTest::newRow("everything") << "*" << QStringList{"rxMap.b", "rxMapper", "rxMap.a"};
    QTest::newRow("star inside is a plain character") << "rx*.a" << QStringList();
    QTest::newRow("dot is a plain character") << "rxMap.pper" << QStringList();
    QTest::newRow("nothing") << "" << QStringList();
}

void TestDataBrokerGroups::patternsMatchNamesAndStartsOfNames()
{
    QFETCH(QString, pattern);
    QFETCH(QStringList, names);
    DataBroker broker;
    for (const char *name : {"rxMap.b", "rxMapper", "rxMap.a"})
        broker.publishGroup(new SampleGroup(QString::fromLatin1(name)));
    QCOMPARE(broker.findGroup(pattern, true, false), names);
}

void TestDataBrokerGroups::namesComeInPublicationOrderOrSorted()
{
    DataBroker broker;
    for (const char *name : {"bin.2", "bin.10", "bin.1"})
        broker.publishGroup(new SampleGroup(QString::fromLatin1(name)));
    QCOMPARE(broker.findGroup(QStringLiteral("bin.*"), true, false), (QStringList{"bin.2", "bin.10", "bin.1"}));
    QCOMPARE(broker.findGroup(QStringLiteral("bin.*"), false, false), (QStringList{"bin.1", "bin.10", "bin.2"}));
}

void TestDataBrokerGroups::aNamePublishedAgainMovesToTheEnd()
{
    DataBroker broker;
    broker.publishGroup(new SampleGroup(QStringLiteral("rxMap.a")));
    broker.publishGroup(new SampleGroup(QStringLiteral("rxMap.b")));
    broker.removeGroup(QStringLiteral("rxMap.a"));
    auto *const again = new SampleGroup(QStringLiteral("rxMap.a"));
    QCOMPARE(broker.publishGroup(again), int(DataBrokerGroup::Success));
    QCOMPARE(broker.getGroup(QStringLiteral("rxMap.a"), false), again);
    QCOMPARE(broker.findGroup(QStringLiteral("rxMap.*"), true, false), (QStringList{"rxMap.b", "rxMap.a"}));
    QCOMPARE(broker.findGroup(QStringLiteral("rxMap.*"), true, true), (QStringList{"rxMap.b", "rxMap.a"}));
}

void TestDataBrokerGroups::removedGroupsAreListedOnRequestOnly()
{
    DataBroker broker;
    broker.publishGroup(new SampleGroup(QStringLiteral("rxMap.a")));
    broker.publishGroup(new SampleGroup(QStringLiteral("rxMap.b")));
    broker.removeGroup(QStringLiteral("rxMap.a"));
    QCOMPARE(broker.getGroup(QStringLiteral("rxMap.a"), false), nullptr);
    QCOMPARE(broker.findGroup(QStringLiteral("rxMap.*"), true, false), QStringList{"rxMap.b"});
    QCOMPARE(broker.findGroup(QStringLiteral("rxMap.*"), true, true), (QStringList{"rxMap.a", "rxMap.b"}));
}

void TestDataBrokerGroups::aRemovedGroupStaysAliveUntilTheBrokerGoes()
{
    QPointer<SampleGroup> removed = new SampleGroup(QStringLiteral("rxMap.a"));
    QPointer<SampleGroup> published = new SampleGroup(QStringLiteral("rxMap.b"));
    {
        DataBroker broker;
        broker.publishGroup(removed);
        broker.publishGroup(published);
        broker.removeGroup(QStringLiteral("rxMap.a"));
        QVERIFY(!removed.isNull());
        QVERIFY(removed->isRemoved());
    }
    QVERIFY(removed.isNull());
    QVERIFY(published.isNull());
}

void TestDataBrokerGroups::deletedGroupsLeaveTheOthersInTheirPlaces()
{
    DataBroker broker;
    QStringList expected;
    for (int i = 0; i < 500; ++i) {
        auto *passing = new SampleGroup(QStringLiteral("rxMap.passing"));
        QCOMPARE(broker.publishGroup(passing), int(DataBrokerGroup::Success));
        broker.removeGroup(QStringLiteral("rxMap.passing"));
        delete passing;
        if (i % 50 == 0) {
            expected.append(QStringLiteral("rxMap.%1").arg(1000 - i));
            broker.publishGroup(new SampleGroup(expected.last()));
        }
        QCOMPARE(broker.findGroup(QStringLiteral("rxMap.*"), true, true), expected);
    }
    for (const QString &name : qAsConst(expected))
        QCOMPARE(broker.getGroup(name, false)->name(), name);
}

void TestDataBrokerGroups::removalIsAnnouncedOnceAfterTheGroupKnows()
{
    DataBroker broker;
    auto *const group = new SampleGroup(QStringLiteral("rxMap.a"));
    broker.publishGroup(group);
    QSignalSpy named(&broker, &DataBroker::groupRemoved);
    int announced = 0;
    connect(group, &DataBrokerGroup::removed, this, [&](DataBrokerGroup *gone) {
        ++announced;
        QCOMPARE(gone, group);
        QVERIFY(gone->isRemoved());
        QCOMPARE(broker.getGroup(QStringLiteral("rxMap.a"), false), nullptr);
    });

    QCOMPARE(broker.removeGroup(QStringLiteral("rxMap.a")), int(DataBrokerGroup::Success));
    QCOMPARE(broker.removeGroup(QStringLiteral("rxMap.a")), int(DataBrokerGroup::ErrUnknownGroup));

    QCOMPARE(announced, 1);
    QCOMPARE(named.count(), 1);
}

void TestDataBrokerGroups::removingAnUnknownGroupIsAnError()
{
    DataBroker broker;
    QSignalSpy named(&broker, &DataBroker::groupRemoved);
    QCOMPARE(broker.removeGroup(QStringLiteral("rxMap.a")), int(DataBrokerGroup::ErrUnknownGroup));
    QCOMPARE(named.count(), 0);
}

void TestDataBrokerGroups::aGroupDeletedByItsCreatorIsForgotten()
{
    DataBroker broker;
    auto *const group = new SampleGroup(QStringLiteral("rxMap.a"));
    broker.publishGroup(group);
    delete group;
    QCOMPARE(broker.getGroup(QStringLiteral("rxMap.a"), false), nullptr);
    QCOMPARE(broker.findGroup(QStringLiteral("*"), true, true), QStringList());
    QCOMPARE(broker.setProperty("rxMap.a", "level", 1), int(DataBrokerGroup::ErrUnknownGroup));
    QCOMPARE(broker.removeGroup(QStringLiteral("rxMap.a")), int(DataBrokerGroup::ErrUnknownGroup));
    QCOMPARE(broker.publishGroup(new SampleGroup(QStringLiteral("rxMap.a"))), int(DataBrokerGroup::Success));
}

void TestDataBrokerGroups::aListenerMayDeleteTheBroker_data()
{
    QTest::addColumn<int>("place");
    QTest::newRow("publication") << 0;
    QTest::newRow("write") << 1;
    QTest::newRow("removal, told by the group") << 2;
    QTest::newRow("removal, told by the broker") << 3;
}

void TestDataBrokerGroups::aListenerMayDeleteTheBroker()
{
    QFETCH(int, place);
    const QPointer<DataBroker> broker = new DataBroker;
    const QPointer<SampleGroup> group = new SampleGroup(QStringLiteral("rxMap.a"));
    int heard = 0;
    const auto hear = [&] {
        if (heard++ == place)
            delete broker;
    };
    connect(broker.data(), &DataBroker::groupPublished, this, hear);
    connect(group.data(), &SampleGroup::levelChanged, this, hear);
    connect(group.data(), &DataBrokerGroup::removed, this, hear);
    connect(broker.data(), &DataBroker::groupRemoved, this, hear);
    broker->publishGroup(group);
    if (broker)
        broker->setProperty("rxMap.a", "level", 1);
    if (broker)
        broker->removeGroup(QStringLiteral("rxMap.a"));
    QCOMPARE(heard, place + 1);
    QVERIFY(broker.isNull());
    QVERIFY(group.isNull());
}

void TestDataBrokerGroups::publishingAndSearchingRunFromManyThreads()
{
    constexpr int publishers = 4;
    constexpr int groupsEach = 200;
    DataBroker broker;
    std::atomic<bool> stop{false};
    std::atomic<int> failures{0};
    std::thread searcher([&]() {
        while (!stop) {
            for (const QString &name : broker.findGroup(QStringLiteral("rxMap.*"), true, true)) {
                QVariant value;
                const int code = broker.getProperty(name.toLatin1().constData(), "level", value);
                if (code != DataBrokerGroup::Success && code != DataBrokerGroup::ErrGroupRemoved)
                    ++failures;
            }
        }
    });
    std::vector<std::thread> threads;
    for (int thread = 0; thread < publishers; ++thread) {
        threads.emplace_back([&broker, &failures, thread]() {
            for (int i = 0; i < groupsEach; ++i) {
                const QString name = QStringLiteral("rxMap.%1.%2").arg(thread).arg(i);
                auto *const group = new SampleGroup(name);
                group->setThreadSafe(true);
                if (broker.publishGroup(group) != DataBrokerGroup::Success)
                    ++failures;
                if (i % 2 == 0 && broker.removeGroup(name) != DataBrokerGroup::Success)
                    ++failures;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    stop = true;
    searcher.join();

    QCOMPARE(failures.load(), 0);
    QCOMPARE(broker.findGroup(QStringLiteral("*"), true, false).size(), publishers * groupsEach / 2);
    QCOMPARE(broker.findGroup(QStringLiteral("*"), true, true).size(), publishers * groupsEach);
}

RXMAP_TEST(TestDataBrokerGroups, Core)
#include "tst_databroker_groups.moc"
