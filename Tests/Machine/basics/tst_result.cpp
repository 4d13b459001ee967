#include "result.h"
#include "testbase.h"

/// A value, or the reason why there is none.
class TestResult : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aValueIsThereWithoutAReason();
    void aFailureHasItsReasonAndAScriptValue();
};

void TestResult::aValueIsThereWithoutAReason()
{
    const Result<int> result{42, {}};
    QVERIFY(result.isOk());
    QCOMPARE(result.value, 42);
    QCOMPARE(result.error, QString());
}

void TestResult::aFailureHasItsReasonAndAScriptValue()
{
    const Result<int> result = Result<int>::failure(QStringLiteral("machine.json: is empty"));
    QVERIFY(!result.isOk());
    QCOMPARE(result.error, QStringLiteral("machine.json: is empty"));
    QCOMPARE(result.value, 0);
}

RXMAP_TEST(TestResult, None)
#include "tst_result.moc"
