#include "tesscallbacks.h"
#include "testbase.h"

#include <limits>

class TestTessCallbacks : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aVertexIsNarrowedAndItsColourPacked();
    void colourComponentsAreRoundedToBytes_data();
    void colourComponentsAreRoundedToBytes();
    void anIndexBeyondTheListDoesNothing_data();
    void anIndexBeyondTheListDoesNothing();
    void combiningMakesNoVertexAndLeavesTheResultUntouched();
    void beginEdgeAndEndDoNothing();
};

void TestTessCallbacks::cleanup()
{
    coordList.clear();
    vList.clear();
    TestBase::cleanup();
}

void TestTessCallbacks::aVertexIsNarrowedAndItsColourPacked()
{
    RXVERT first{0, 0, 0, 0, 0, 0, 0};
    RXVERT second{0.1, -4.99, 1e10, 1.0, 0.5, 0.0, 0.5};
    coordList = {&first, &second};
    tessVertexCB(1);
    QCOMPARE(vList.size(), 1);
    QCOMPARE(vList.at(0).x, 0.1F);
    QCOMPARE(vList.at(0).y, -4.99F);
    QCOMPARE(vList.at(0).z, 1e10F);
    QCOMPARE(vList.at(0).color, 0x800080FFU);
}

void TestTessCallbacks::colourComponentsAreRoundedToBytes_data()
{
    QTest::addColumn<double>("component");
    QTest::addColumn<quint32>("expected");
    QTest::newRow("0") << 0.0 << 0U;
    QTest::newRow("1") << 1.0 << 255U;
    QTest::newRow("half") << 0.5 << 128U;
    QTest::newRow("below the range") << -0.5 << 0U;
    QTest::newRow("above the range") << 1.5 << 255U;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0U;
    QTest::newRow("just below a half step") << 0.4999 / 255.0 << 0U;
    QTest::newRow("just above a half step") << 0.5001 / 255.0 << 1U;
}

void TestTessCallbacks::colourComponentsAreRoundedToBytes()
{
    QFETCH(double, component);
    QFETCH(quint32, expected);
    RXVERT vertex{0, 0, 0, component, component, component, component};
    coordList = {&vertex};
    tessVertexCB(0);
    QCOMPARE(vList.at(0).color, expected | expected << 8 | expected << 16 | expected << 24);
}

void TestTessCallbacks::anIndexBeyondTheListDoesNothing_data()
{
    QTest::addColumn<quint32>("index");
    QTest::newRow("size") << 1U;
    QTest::newRow("negative when signed") << 0x80000000U;
    QTest::newRow("largest") << 0xFFFFFFFFU;
}

void TestTessCallbacks::anIndexBeyondTheListDoesNothing()
{
    QFETCH(quint32, index);
    RXVERT vertex{0, 0, 0, 0, 0, 0, 0};
    coordList = {&vertex};
    tessVertexCB(index);
    QVERIFY(vList.isEmpty());
}

void TestTessCallbacks::combiningMakesNoVertexAndLeavesTheResultUntouched()
{
    RXVERT vertex{0, 0, 0, 0, 0, 0, 0};
    RXVERT *sources[4] = {&vertex, &vertex, &vertex, &vertex};
    float weights[4] = {0.25F, 0.25F, 0.25F, 0.25F};
    double location[3] = {1, 2, 3};
    RXVERT *result = &vertex;
    tessCombineCB(location, sources, weights, &result);
    QCOMPARE(result, &vertex);
    QVERIFY(coordList.isEmpty());
    QVERIFY(vList.isEmpty());
}

void TestTessCallbacks::beginEdgeAndEndDoNothing()
{
    tessBeginCB(4);
    tessEdgeCB(1);
    tessEndCB();
    QVERIFY(coordList.isEmpty());
    QVERIFY(vList.isEmpty());
}

RXMAP_TEST(TestTessCallbacks, None)
#include "tst_tesscallbacks.moc"
