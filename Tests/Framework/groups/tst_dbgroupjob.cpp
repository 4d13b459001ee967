#include "setreceiver.h"
#include "testbase.h"

#include "Framework/dbgroupjob.h"

class TestDbGroupJob : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everySetOfTheActiveMapTellsTheSubscribersItsName();
};

void TestDbGroupJob::everySetOfTheActiveMapTellsTheSubscribersItsName()
{
    DbGroupJob job(QStringLiteral("system.current.job"));
    QCOMPARE(job.getActiveAAMGroupName(), QString());
    SetReceiver subscriber;
    QVERIFY(job.connectPropertySetSlot("activeAAMGroupName", &subscriber, SLOT(onText(QString)), Qt::UniqueConnection,
                                       true));
    job.setActiveAAMGroupName(QStringLiteral("aam.1"));
    job.setActiveAAMGroupName(QStringLiteral("aam.1"));
    job.setActiveAAMGroupName(QString());
    QCOMPARE(subscriber.texts, (QStringList{"aam.1", "aam.1", ""}));
}

RXMAP_TEST(TestDbGroupJob, Core)
#include "tst_dbgroupjob.moc"
