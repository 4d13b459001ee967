#include "planesketch.h"
#include "polygonchain.h"
#include "testbase.h"

using OrvikTypes::RX_POLYGON;

namespace {

std::vector<PlanePolygon> twoPolygons()
{
    PlanePolygon first;
    first.record = 2;
    first.outer = square(0, 0, 100);
    first.holes = {square(10, 10, 20), {{50, 50}, {60, 50}, {60, 60}}};
    PlanePolygon second;
    second.record = 0;
    second.outer = square(100, -20, 10);
    return {first, second};
}

const std::vector<float> rates = {1.0F, 10.0F, 2.0F, 20.0F, 3.0F, 30.0F};

} // namespace

class PolygonChainTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void linksOuterRingsWithTheirHolesBehindThem();
    void holdsRingsAndTheirAreas();
    void givesHolesTheRatesOfTheirOuterRing();
    void holdsRecordsAndRatesInOneBlock();
    void copiesOnlyRingsOutsideItsMemory();
    void knowsItsExtent();
    void isEmptyWithoutPolygons();
};

void PolygonChainTest::linksOuterRingsWithTheirHolesBehindThem()
{
    const PolygonChain chain(twoPolygons(), rates, 2);
    QCOMPARE(chain.size(), 4U);
    QCOMPARE(chain.outers(), 2U);
    QCOMPARE(chain.mappings(), size_t(2));
    QList<bool> holes;
    const RX_POLYGON *record = chain.first();
    for (; record != nullptr; record = record->next) {
        holes.append(record->isHole);
        QCOMPARE(record->drawIndex, 0);
    }
    QCOMPARE(holes, QList<bool>({false, true, true, false}));
}

void PolygonChainTest::holdsRingsAndTheirAreas()
{
    const PolygonChain chain(twoPolygons(), rates, 2);
    const RX_POLYGON *record = chain.first();
    QCOMPARE(record->area, 10000.0);
    QCOMPARE(record->next->area, 400.0);
    QCOMPARE(record->next->next->area, 50.0);
    QCOMPARE(record->next->next->vertexCount, 3U);
    QCOMPARE(record->next->next->vertices[1].x, 60.0);
    QCOMPARE(record->next->next->next->vertices[2].y, -10.0);
}

void PolygonChainTest::givesHolesTheRatesOfTheirOuterRing()
{
    const PolygonChain chain(twoPolygons(), rates, 2);
    const RX_POLYGON *first = chain.first();
    QCOMPARE(first->rates[0], 3.0F);
    QCOMPARE(first->rates[1], 30.0F);
    QCOMPARE(first->next->rates, first->rates);
    QCOMPARE(first->next->next->rates, first->rates);
    QCOMPARE(first->next->next->next->rates[1], 10.0F);
}

void PolygonChainTest::holdsRecordsAndRatesInOneBlock()
{
    const PolygonChain chain(twoPolygons(), rates, 2);
    const RX_POLYGON *first = chain.first();
    QCOMPARE(first[3].next, static_cast<RX_POLYGON *>(nullptr));
    QCOMPARE(first[2].next, first + 3);
    QCOMPARE(static_cast<const void *>(first[0].rates), static_cast<const void *>(first + 4));
}

void PolygonChainTest::copiesOnlyRingsOutsideItsMemory()
{
    const auto memory = std::make_shared<PolygonChain::RingMemory>();
    std::vector<PlanePolygon> polygons = twoPolygons();
    polygons.push_back({PlaneRing(square(0, 300, 7), memory.get()), {}, 1});
    const PolygonChain chain(polygons, rates, 2, memory);
    const RX_POLYGON *first = chain.first();
    QVERIFY(first[0].vertices != polygons.front().outer.data());
    QCOMPARE(first[0].vertices[2].x, 100.0);
    QVERIFY(first[4].vertices == polygons.back().outer.data());
}

void PolygonChainTest::knowsItsExtent()
{
    QCOMPARE(PolygonChain(twoPolygons(), rates, 2).bounds(), QRectF(0, -20, 110, 120));
}

void PolygonChainTest::isEmptyWithoutPolygons()
{
    const PolygonChain chain({}, {}, 1);
    QVERIFY(chain.first() == nullptr);
    QCOMPARE(chain.size(), 0U);
    QVERIFY(chain.bounds().isNull());
}

RXMAP_TEST(PolygonChainTest, Core)
#include "tst_polygonchain.moc"
