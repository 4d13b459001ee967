#include "maphost.h"
#include "placement/ringlists.h"
#include "testbase.h"

class TestRingLists : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void outersAndHolesAreTakenApartInChainOrder();
    void onlyTheCountedRecordsAreTaken_data();
    void onlyTheCountedRecordsAreTaken();
    void withoutAChainThereAreNoRings();
    void verticesOfAllRingsAreCounted();
};

void TestRingLists::outersAndHolesAreTakenApartInChainOrder()
{
    HandMadeChain chain;
    chain.addHole(square(0, 0, 1));
    chain.addOuter(square(1, 0, 1));
    chain.addOuter(square(2, 0, 1));
    chain.addHole(square(3, 0, 1));
    const RingLists rings(chain.first(), chain.count());
    QCOMPARE(rings.outers, (QVector<OrvikTypes::RX_POLYGON *>{&chain.at(1), &chain.at(2)}));
    QCOMPARE(rings.holes, (QVector<OrvikTypes::RX_POLYGON *>{&chain.at(0), &chain.at(3)}));
}

void TestRingLists::onlyTheCountedRecordsAreTaken_data()
{
    QTest::addColumn<unsigned int>("count");
    QTest::addColumn<int>("outers");
    QTest::addColumn<int>("holes");
    QTest::newRow("none") << 0U << 0 << 0;
    QTest::newRow("one") << 1U << 1 << 0;
    QTest::newRow("two") << 2U << 1 << 1;
    QTest::newRow("all") << 3U << 2 << 1;
    QTest::newRow("more than there are") << 0xFFFFFFFFU << 2 << 1;
}

void TestRingLists::onlyTheCountedRecordsAreTaken()
{
    QFETCH(unsigned int, count);
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 1));
    chain.addHole(square(1, 0, 1));
    chain.addOuter(square(2, 0, 1));
    const RingLists rings(chain.first(), count);
    QTEST(rings.outers.size(), "outers");
    QTEST(rings.holes.size(), "holes");
}

void TestRingLists::withoutAChainThereAreNoRings()
{
    const RingLists rings(nullptr, 5);
    QVERIFY(rings.outers.isEmpty());
    QVERIFY(rings.holes.isEmpty());
}

void TestRingLists::verticesOfAllRingsAreCounted()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 9));
    chain.addHole({{1, 1}, {2, 1}, {1, 2}});
    chain.addOuter({});
    chain.addOuter(square(0, 0, 9)).vertexCount = 0xFFFFFFFFU; // More than a ring can have, so it counts as 0.
    QCOMPARE(RingLists(chain.first(), chain.count()).vertices(), qint64(7));
}

RXMAP_TEST(TestRingLists, None)
#include "tst_ringlists.moc"
