#include "dbgroupquillspan.h"
#include "testbase.h"

#include "Framework/databroker.h"

#include <QSignalSpy>

/// The rate controller's group, which counts the requests made to it.
class TestDbGroupQuillSpan : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void nothingWasAskedOfANewOne();
    void everyRequestCountsHoweverItComes();
    void takingARequestBackIsNone();
    void theCountIsCurrentForWhoeverHearsOfIt();
    void aRefusedRequestIsNotCounted();
};

void TestDbGroupQuillSpan::nothingWasAskedOfANewOne()
{
    const DbGroupQuillSpan group(QStringLiteral("quillSpan"));
    QVERIFY(!group.getReInit());
    QCOMPARE(group.getReInitCount(), 0);
}

void TestDbGroupQuillSpan::everyRequestCountsHoweverItComes()
{
    DataBroker broker(QString(), QSize(1280, 800));
    auto *group = new DbGroupQuillSpan(QStringLiteral("quillSpan"));
    broker.publishGroup(group);
    group->setReInit(true);
    QCOMPARE(group->getReInitCount(), 1);
    QCOMPARE(broker.setProperty("quillSpan", "reInit", true), int(DataBrokerGroup::Success));
    QCOMPARE(group->getReInitCount(), 2);
    QVERIFY(group->getReInit());
}

void TestDbGroupQuillSpan::takingARequestBackIsNone()
{
    DbGroupQuillSpan group(QStringLiteral("quillSpan"));
    group.setReInit(true);
    group.setReInit(false);
    QVERIFY(!group.getReInit());
    QCOMPARE(group.getReInitCount(), 1);
}

void TestDbGroupQuillSpan::theCountIsCurrentForWhoeverHearsOfIt()
{
    DbGroupQuillSpan group(QStringLiteral("quillSpan"));
    QList<int> heard;
    connect(&group, &DbGroupQuillSpan::reInitCountChanged, this, [&](int count) {
        heard.append(count);
        heard.append(group.getReInitCount());
    });
    group.setReInit(true);
    group.setReInit(false);
    group.setReInit(true);
    QCOMPARE(heard, (QList<int>{1, 1, 2, 2}));
}

void TestDbGroupQuillSpan::aRefusedRequestIsNotCounted()
{
    DataBroker broker(QString(), QSize(1280, 800));
    auto *group = new DbGroupQuillSpan(QStringLiteral("quillSpan"));
    broker.publishGroup(group);
    QVERIFY(broker.setProperty("quillSpan", "reInit", QStringLiteral("soon")) != DataBrokerGroup::Success);
    QCOMPARE(group->getReInitCount(), 0);
}

RXMAP_TEST(TestDbGroupQuillSpan, Core)
#include "tst_dbgroupquillspan.moc"
