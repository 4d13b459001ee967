#include "testbase.h"
#include "writeoutcome.h"

#include <thread>

class TestWriteOutcome : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void silenceIsSuccess();
    void itHearsTheFirstReportOnly();
    void aReportThatNobodyAwaitsIsLost();
    void theInnerOneHearsAndTheOuterOneWaitsOn();
    void whatTheInnerOneNoLongerHearsIsLost();
    void aPausedOneHearsOnAfterwards();
    void anotherThreadIsNotHeard();
};

void TestWriteOutcome::silenceIsSuccess()
{
    const WriteOutcome outcome;
    QCOMPARE(outcome.code(), 0);
}

void TestWriteOutcome::itHearsTheFirstReportOnly()
{
    const WriteOutcome outcome;
    WriteOutcome::report(5);
    WriteOutcome::report(6);
    QCOMPARE(outcome.code(), 5);
}

void TestWriteOutcome::aReportThatNobodyAwaitsIsLost()
{
    WriteOutcome::report(5);
    const WriteOutcome outcome;
    QCOMPARE(outcome.code(), 0);
}

void TestWriteOutcome::theInnerOneHearsAndTheOuterOneWaitsOn()
{
    const WriteOutcome outer;
    {
        const WriteOutcome inner;
        WriteOutcome::report(5);
        QCOMPARE(inner.code(), 5);
        QCOMPARE(outer.code(), 0);
    }
    WriteOutcome::report(6);
    QCOMPARE(outer.code(), 6);
}

void TestWriteOutcome::whatTheInnerOneNoLongerHearsIsLost()
{
    const WriteOutcome outer;
    {
        const WriteOutcome inner;
        WriteOutcome::report(5);
        WriteOutcome::report(6);
    }
    QCOMPARE(outer.code(), 0);
}

void TestWriteOutcome::aPausedOneHearsOnAfterwards()
{
    const WriteOutcome outcome;
    {
        const WriteOutcome::Pause pause;
        WriteOutcome::report(5);
    }
    QCOMPARE(outcome.code(), 0);
    WriteOutcome::report(6);
    QCOMPARE(outcome.code(), 6);
}

void TestWriteOutcome::anotherThreadIsNotHeard()
{
    const WriteOutcome outcome;
    std::thread other([]() { WriteOutcome::report(5); });
    other.join();
    QCOMPARE(outcome.code(), 0);
}

RXMAP_TEST(TestWriteOutcome, None)
#include "tst_writeoutcome.moc"
