#include "activemap.h"
#include "machine.h"
#include "querylistener.h"
#include "terminalhost.h"
#include "testbase.h"

#include "Framework/databroker.h"
#include "Framework/xyz.h"

#include <cmath>

class TestQueryListener : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takesTheAnswerToAQueryOfItsTime();
    void takesNoAnswerToAnEarlierQuery();
    void withoutAMapThereIsNoRate();

private:
    void query(double x);

    DataBroker broker;
    PrescriptionBackend backend{&broker};
    LoadReport report;
    ActiveMap map;
};

void TestQueryListener::init()
{
    TestBase::init();
    LoadRequest request;
    request.path = TerminalHost::fixture(QStringLiteral("three-zones.geojson"));
    request.columns = QStringList{"SEED_K_HA"};
    request.products = {{QString(), Machine::productGroupName(1)}};
    report = backend.loadAndWait(request);
    QVERIFY(report.isOk());
    map = ActiveMap::find(broker, Machine::productGroupName(1));
}

void TestQueryListener::query(double x)
{
    broker.setProperty(report.group.toLatin1().constData(), "queryRatesAtXYZ",
                       QVariant::fromValue(OrvikTypes::XYZ(x, 0, 0)));
}

void TestQueryListener::takesTheAnswerToAQueryOfItsTime()
{
    const QueryListener listener(broker, map);
    query(-100);
    QCOMPARE(listener.rate(), 70.0);
    query(100);
    QCOMPARE(listener.rate(), 90.0);
    query(100);
    QCOMPARE(listener.rate(), 90.0);
    query(5000);
    QVERIFY(std::isnan(listener.rate()));
}

void TestQueryListener::takesNoAnswerToAnEarlierQuery()
{
    query(-100);
    QVERIFY(std::isnan(QueryListener(broker, map).rate()));
}

void TestQueryListener::withoutAMapThereIsNoRate()
{
    QVERIFY(std::isnan(QueryListener(broker, ActiveMap()).rate()));
}

RXMAP_TEST(TestQueryListener, Core)
#include "tst_querylistener.moc"
