#include "maphost.h"
#include "placement/ringbox.h"
#include "testbase.h"

#include <cmath>
#include <limits>

class TestRingBox : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aHolesBoxIsOfItsNarrowedVertices();
    void aHoleThatIsNotFiniteHasNone_data();
    void aHoleThatIsNotFiniteHasNone();
    void anOutersBoxIsWiderByWhatACrossingCanErr();
};

void TestRingBox::aHolesBoxIsOfItsNarrowedVertices()
{
    HandMadeChain chain;
    Box box{};
    QVERIFY(boxOfHole(chain.addHole({{16777217, 0.1}, {16777220, 3}, {16777221, 2}}), box));
    QCOMPARE(box.minX, 16777216.0);
    QCOMPARE(box.maxX, 16777220.0);
    QCOMPARE(box.minY, static_cast<double>(0.1F));
    QCOMPARE(box.maxY, 3.0);
}

void TestRingBox::aHoleThatIsNotFiniteHasNone_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("not a number") << std::nan("") << 0.0;
    QTest::newRow("height not a number") << 0.0 << std::nan("");
    QTest::newRow("infinite") << 0.0 << -std::numeric_limits<double>::infinity();
    QTest::newRow("more than a float holds") << 1e39 << 0.0;
}

void TestRingBox::aHoleThatIsNotFiniteHasNone()
{
    QFETCH(double, x);
    QFETCH(double, y);
    HandMadeChain chain;
    Box box{};
    QVERIFY(!boxOfHole(chain.addHole({{0, 0}, {1, 0}, {x, y}}), box));
}

void TestRingBox::anOutersBoxIsWiderByWhatACrossingCanErr()
{
    HandMadeChain chain;
    Box box{};
    QVERIFY(boxOfOuter(chain.addOuter({{1.0, 2.0}, {4e5, 3.0}, {2e5, 7.0}}), box));
    // Five rounding errors of the larger abscissa.
    const double error = 5.0 * std::numeric_limits<double>::epsilon() * 4e5;
    QVERIFY(box.minX <= 1.0 - error && box.minX > 1.0 - 100.0 * error);
    QVERIFY(box.maxX >= 4e5 + error && box.maxX < 4e5 + 100.0 * error);
    QCOMPARE(box.minY, 2.0);
    QCOMPARE(box.maxY, 7.0);
}

RXMAP_TEST(TestRingBox, None)
#include "tst_ringbox.moc"
