#include "holeplacement.h"
#include "maphost.h"
#include "plainplacement.h"
#include "testbase.h"

#include <cmath>
#include <limits>
#include <random>

using OrvikTypes::RX_POLYGON;

class TestHolePlacement : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aHoleInsideTwoRingsIsCutFromTheFirstOnly();
    void aHoleMustBeMoreThanTenSquareMetresSmaller_data();
    void aHoleMustBeMoreThanTenSquareMetresSmaller();
    void aHoleWithOneVertexOutsideIsNotCut();
    void aHoleWithoutVerticesIsPlacedNowhere();
    void aRingWithoutAVertexArrayIsEmpty();
    void holeCoordinatesAreNarrowedToFloat();
    void theFastWayEqualsThePlainOne_data();
    void theFastWayEqualsThePlainOne();
};

namespace {

struct Rings {
    QVector<RX_POLYGON *> outers;
    QVector<RX_POLYGON *> holes;
};

Rings split(PolygonChain &chain)
{
    Rings rings;
    for (RX_POLYGON *polygon = chain.first(); polygon != nullptr; polygon = polygon->next)
        (polygon->isHole ? rings.holes : rings.outers).append(polygon);
    return rings;
}

QVector<QVector<int>> placed(const Rings &rings)
{
    const HolePlacement placement(rings.outers, rings.holes);
    QVector<QVector<int>> cut;
    for (int outer = 0; outer < rings.outers.size(); ++outer) {
        QVector<int> here;
        for (int hole = placement.firstHole(outer); hole >= 0; hole = placement.nextHole(hole))
            here.append(hole);
        cut.append(here);
    }
    for (int hole = 0; hole < rings.holes.size(); ++hole) {
        bool found = false;
        for (const QVector<int> &here : qAsConst(cut))
            found = found || here.contains(hole);
        if (found != placement.isPlaced(hole))
            return {};
    }
    return cut;
}

/// How random rings are made.
struct Kind {
    double grid = 0.0;      ///< Coordinates are multiples of this; 0: any.
    double offset = 0.0;    ///< Far from the origin, narrowing to float moves vertices.
    bool oddValues = false; ///< NaN, infinities, huge and tiny numbers among the coordinates.
    bool nested = false;    ///< Stars inside stars instead of tangles.
    double scale = 1.0;
};

class RandomMap {
public:
    RandomMap(const Kind &kind, unsigned int seed)
        : kind(kind)
        , random(seed)
    {
        const int rings = 2 + below(14);
        for (int i = 0; i < rings; ++i) {
            const Ring ring = kind.nested ? star() : tangle();
            RX_POLYGON &polygon = below(2) == 0 ? chain.addOuter(ring) : chain.addHole(ring);
            if (below(4) == 0)
                polygon.area = 100.0 * below(4);
        }
    }

    PolygonChain chain;

private:
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned int>(limit)); }

    double coordinate(double value)
    {
        if (kind.oddValues && below(12) == 0) {
            static const double odd[] = {std::numeric_limits<double>::quiet_NaN(),
                                         std::numeric_limits<double>::infinity(),
                                         -std::numeric_limits<double>::infinity(),
                                         1e300,
                                         -1e200,
                                         1e-300,
                                         5e-324,
                                         1e39};
            return odd[below(8)];
        }
        return kind.scale * ((kind.grid > 0.0 ? std::round(value / kind.grid) * kind.grid : value) + kind.offset);
    }

    Ring tangle()
    {
        std::uniform_real_distribution<double> position(-20.0, 20.0);
        Ring ring(static_cast<std::size_t>(below(9)));
        for (auto &vertex : ring)
            vertex = {coordinate(position(random)), coordinate(position(random))};
        return ring;
    }

    Ring star()
    {
        std::uniform_real_distribution<double> position(-12.0, 12.0);
        const double x = position(random);
        const double y = position(random);
        const double radius = 1.0 + below(30);
        const int vertices = 3 + below(80);
        Ring ring;
        for (int i = 0; i < vertices; ++i) {
            const double angle = 6.28318530717958648 * i / vertices;
            const double reach = radius * (0.8 + 0.02 * below(10));
            ring.push_back({coordinate(x + reach * std::cos(angle)), coordinate(y + reach * std::sin(angle))});
        }
        return ring;
    }

    Kind kind;
    std::mt19937 random;
};

} // namespace

void TestHolePlacement::aHoleInsideTwoRingsIsCutFromTheFirstOnly()
{
    PolygonChain chain;
    chain.addHole(square(4, 4, 2));
    chain.addOuter(square(0, 0, 10));
    chain.addOuter(square(1, 1, 8));
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{0}, {}}));
}

void TestHolePlacement::aHoleMustBeMoreThanTenSquareMetresSmaller_data()
{
    QTest::addColumn<double>("outerArea");
    QTest::addColumn<bool>("cut");
    QTest::newRow("equal") << 4.0 << false;
    QTest::newRow("ten more") << 14.0 << false;
    QTest::newRow("a little over ten more") << std::nextafter(14.0, 15.0) << true;
    QTest::newRow("not a number") << std::nan("") << false;
}

void TestHolePlacement::aHoleMustBeMoreThanTenSquareMetresSmaller()
{
    QFETCH(double, outerArea);
    QFETCH(bool, cut);
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10)).area = outerArea;
    chain.addHole(square(4, 4, 2));
    QCOMPARE(placed(split(chain)).at(0).size(), cut ? 1 : 0);
}

void TestHolePlacement::aHoleWithOneVertexOutsideIsNotCut()
{
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addHole({{4, 4}, {6, 4}, {5, 10.5}});
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}}));
}

void TestHolePlacement::aHoleWithoutVerticesIsPlacedNowhere()
{
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addHole({});
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}}));
}

void TestHolePlacement::aRingWithoutAVertexArrayIsEmpty()
{
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10)).vertices = nullptr;
    chain.addOuter(square(0, 0, 10));
    chain.addHole(square(4, 4, 2)).vertices = nullptr;
    chain.addHole(square(4, 4, 2));
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}, {1}}));
}

void TestHolePlacement::holeCoordinatesAreNarrowedToFloat()
{
    // 16777217 is not a float: narrowed it becomes 16777216 and lies left of the ring.
    PolygonChain chain;
    chain.addOuter(square(16777216.5, 0, 10));
    chain.addHole({{16777217, 2}, {16777220, 2}, {16777220, 4}});
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}}));
}

void TestHolePlacement::theFastWayEqualsThePlainOne_data()
{
    QTest::addColumn<double>("grid");
    QTest::addColumn<double>("offset");
    QTest::addColumn<bool>("oddValues");
    QTest::addColumn<bool>("nested");
    QTest::addColumn<double>("scale");
    QTest::newRow("tangles") << 0.0 << 0.0 << false << false << 1.0;
    QTest::newRow("tangles on a grid") << 2.0 << 0.0 << false << false << 1.0;
    QTest::newRow("tangles with odd values") << 1.0 << 0.0 << true << false << 1.0;
    QTest::newRow("nested") << 0.0 << 0.0 << false << true << 1.0;
    QTest::newRow("nested on a grid") << 1.0 << 0.0 << false << true << 1.0;
    QTest::newRow("nested far away") << 0.0 << 3.3e8 << false << true << 1.0;
    QTest::newRow("nested with odd values") << 0.0 << 0.0 << true << true << 1.0;
    QTest::newRow("nested and minute") << 0.0 << 0.0 << false << true << 1e-170;
}

void TestHolePlacement::theFastWayEqualsThePlainOne()
{
    QFETCH(double, grid);
    QFETCH(double, offset);
    QFETCH(bool, oddValues);
    QFETCH(bool, nested);
    QFETCH(double, scale);
    int cut = 0;
    for (unsigned int seed = 1; seed <= 1500; ++seed) {
        RandomMap map({grid, offset, oddValues, nested, scale}, seed);
        const Rings rings = split(map.chain);
        const QVector<QVector<int>> expected = plainPlacement(rings.outers, rings.holes);
        QCOMPARE(placed(rings), expected);
        for (const QVector<int> &here : expected)
            cut += here.size();
    }
    if (scale == 1.0)
        QVERIFY2(cut > 20, qPrintable(QString::number(cut)));
}

QTEST_APPLESS_MAIN(TestHolePlacement)
#include "tst_holeplacement.moc"
