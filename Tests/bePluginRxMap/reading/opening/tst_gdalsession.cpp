#include "gdalsession.h"
#include "testbase.h"

#include <cpl_error.h>
#include <thread>

class GdalSessionTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void keepsTheFirstFailure();
    void overlooksWarnings();
    void keepsFailuresOfItsOwnThreadOnly();
    void nests();
};

void GdalSessionTest::keepsTheFirstFailure()
{
    const GdalSession session;
    QVERIFY(session.firstFailure().isEmpty());
    CPLError(CE_Failure, CPLE_AppDefined, "first\nof   two");
    CPLError(CE_Failure, CPLE_AppDefined, "second");
    QCOMPARE(session.firstFailure(), QStringLiteral("first of two"));
}

void GdalSessionTest::overlooksWarnings()
{
    const GdalSession session;
    CPLError(CE_Warning, CPLE_AppDefined, "only a warning");
    QVERIFY(session.firstFailure().isEmpty());
}

void GdalSessionTest::keepsFailuresOfItsOwnThreadOnly()
{
    const GdalSession session;
    QString other;
    std::thread([&other] {
        const GdalSession inner;
        CPLError(CE_Failure, CPLE_AppDefined, "elsewhere");
        other = inner.firstFailure();
    }).join();
    QCOMPARE(other, QStringLiteral("elsewhere"));
    QVERIFY(session.firstFailure().isEmpty());
}

void GdalSessionTest::nests()
{
    const GdalSession outer;
    {
        const GdalSession inner;
        CPLError(CE_Failure, CPLE_AppDefined, "inner");
    }
    QVERIFY(outer.firstFailure().isEmpty());
    CPLError(CE_Failure, CPLE_AppDefined, "outer");
    QCOMPARE(outer.firstFailure(), QStringLiteral("outer"));
}

RXMAP_TEST(GdalSessionTest, Core)
#include "tst_gdalsession.moc"
