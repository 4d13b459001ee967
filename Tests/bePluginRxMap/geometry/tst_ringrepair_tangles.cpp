#include "geosinterrupt.h"
#include "ringcrossings.h"
#include "ringrepair.h"
#include "testbase.h"

#include <QElapsedTimer>

#include <algorithm>
#include <atomic>
#include <random>
#include <thread>

Q_DECLARE_METATYPE(PlaneRing)

namespace {

/// A ring with vertices anywhere in a square of `places` grid places of `step` metres; neighbours never share a place.
PlaneRing scribble(int count, int places, double step, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> place(0, places);
    PlaneRing ring;
    while (ring.size() < static_cast<size_t>(count)) {
        const PlaneVertex vertex = {place(random) * step, place(random) * step};
        if (ring.empty() || (!samePlace(ring.back(), vertex) && !samePlace(ring.front(), vertex)))
            ring.push_back(vertex);
    }
    return ring;
}

PlaneRing fineScribble(int count, unsigned seed = 7)
{
    return scribble(count, 1000 * 1024, 1.0 / 1024, seed);
}

RawPrescription mapOf(const PlaneRing &ring)
{
    RawPrescription map;
    map.rings.push_back({0, ring.size(), 3, false});
    for (const PlaneVertex &vertex : ring) {
        map.xs.push_back(vertex.x);
        map.ys.push_back(vertex.y);
    }
    return map;
}

RingRepair::Outcome repair(const PlaneRing &ring)
{
    const RawPrescription map = mapOf(ring);
    RingRepair::Outcome outcome;
    RingRepair(1000.0).append(map, map.xs, map.ys, 0, outcome);
    return outcome;
}

/// GEOS without a wrapper class, to compare with.
class PlainGeos {
public:
    PlainGeos()
        : handle(GEOS_init_r())
    {
    }
    ~PlainGeos() { GEOS_finish_r(handle); }

    GeosContext::Geometry owned(GEOSGeometry *geometry) const { return {geometry, GeosContext::Release{handle}}; }

    GEOSGeometry *ring(PlaneRing vertices) const
    {
        vertices.push_back(vertices.front());
        return GEOSGeom_createLinearRing_r(
            handle,
            GEOSCoordSeq_copyFromBuffer_r(handle, &vertices[0].x, static_cast<unsigned>(vertices.size()), 0, 0));
    }

    /// GEOS's own repair on the grid, in GEOS's order of rings and vertices.
    GeosContext::Geometry madeValid(const PlaneRing &vertices) const
    {
        const auto polygon = owned(GEOSGeom_createPolygon_r(handle, ring(vertices), nullptr, 0));
        const auto valid = owned(GEOSMakeValid_r(handle, polygon.get()));
        std::vector<GEOSGeometry *> areas;
        collectPolygons(valid.get(), areas);
        const auto all = owned(
            GEOSGeom_createCollection_r(handle, GEOS_MULTIPOLYGON, areas.data(), static_cast<unsigned>(areas.size())));
        return normalised(owned(GEOSGeom_setPrecision_r(handle, all.get(), 1.0 / 1024, 0)));
    }

    GeosContext::Geometry normalised(GeosContext::Geometry geometry) const
    {
        GEOSNormalize_r(handle, geometry.get());
        return geometry;
    }

    bool isSame(const GeosContext::Geometry &geometry, const std::vector<PlanePolygon> &polygons) const
    {
        std::vector<GEOSGeometry *> areas;
        for (const PlanePolygon &polygon : polygons) {
            std::vector<GEOSGeometry *> holes;
            for (const PlaneRing &hole : polygon.holes)
                holes.push_back(ring(hole));
            areas.push_back(GEOSGeom_createPolygon_r(handle, ring(polygon.outer), holes.data(),
                                                     static_cast<unsigned>(holes.size())));
        }
        const auto all = normalised(owned(
            GEOSGeom_createCollection_r(handle, GEOS_MULTIPOLYGON, areas.data(), static_cast<unsigned>(areas.size()))));
        std::vector<GEOSGeometry *> expected;
        collectPolygons(geometry.get(), expected);
        const auto wanted = normalised(owned(GEOSGeom_createCollection_r(handle, GEOS_MULTIPOLYGON, expected.data(),
                                                                         static_cast<unsigned>(expected.size()))));
        return GEOSEqualsExact_r(handle, wanted.get(), all.get(), 0.0) == 1;
    }

    qint64 nanosecondsOfNoding(const PlaneRing &vertices) const
    {
        const auto line = owned(ring(vertices));
        QElapsedTimer timer;
        timer.start();
        owned(GEOSNode_r(handle, line.get()));
        return timer.nsecsElapsed();
    }

private:
    void collectPolygons(const GEOSGeometry *geometry, std::vector<GEOSGeometry *> &polygons) const
    {
        const int type = GEOSGeomTypeId_r(handle, geometry);
        if (type == GEOS_POLYGON && GEOSisEmpty_r(handle, geometry) == 0)
            polygons.push_back(GEOSGeom_clone_r(handle, geometry));
        for (int i = 0; type > GEOS_POLYGON && i < GEOSGetNumGeometries_r(handle, geometry); ++i)
            collectPolygons(GEOSGetGeometryN_r(handle, geometry, i), polygons);
    }

    GEOSContextHandle_t handle;
};

} // namespace

/// Rings that cross themselves very often.
class RingRepairTanglesTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void comesOutAsGeosMakesItValid_data();
    void comesOutAsGeosMakesItValid();
    void takesAtMostTenTimesTheNoding();
    void countsWhereEdgesMeet_data();
    void countsWhereEdgesMeet();
    void leavesOutWhatCrossesItselfTooOften();
    void endsWhenItIsCancelled();
    void leavesOtherThreadsAlone();
    void leavesLaterWorkOfTheThreadAlone();
};

void RingRepairTanglesTest::comesOutAsGeosMakesItValid_data()
{
    QTest::addColumn<int>("vertices");
    QTest::addColumn<int>("places");
    QTest::addColumn<double>("step");
    QTest::newRow("a crossing or two") << 5 << 1000 * 1024 << 1.0 / 1024;
    QTest::newRow("a tangle") << 30 << 1000 * 1024 << 1.0 / 1024;
    QTest::newRow("edges upon edges") << 12 << 4 << 1.0;
    QTest::newRow("a tangle of edges upon edges") << 40 << 7 << 1.0;
}

void RingRepairTanglesTest::comesOutAsGeosMakesItValid()
{
    QFETCH(int, vertices);
    QFETCH(int, places);
    QFETCH(double, step);
    const PlainGeos geos;
    int repaired = 0;
    for (unsigned seed = 0; seed < 40; ++seed) {
        const PlaneRing ring = scribble(vertices, places, step, seed);
        const RingRepair::Outcome outcome = repair(ring);
        repaired += int(outcome.repaired.size());
        if (!outcome.repaired.empty())
            QVERIFY2(geos.isSame(geos.madeValid(ring), outcome.polygons), qPrintable(QString::number(seed)));
    }
    QVERIFY(repaired > 20);
}

void RingRepairTanglesTest::takesAtMostTenTimesTheNoding()
{
    const PlainGeos geos;
    const PlaneRing ring = fineScribble(200);
    double least = HUGE_VAL;
    for (int round = 0; round < 5; ++round) {
        const qint64 noding = geos.nanosecondsOfNoding(ring);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(repair(ring).polygons.size() > 2000);
        least = std::min(least, static_cast<double>(timer.nsecsElapsed()) / static_cast<double>(noding));
    }
    QVERIFY2(least <= 10.0, qPrintable(QString::number(least)));
}

void RingRepairTanglesTest::countsWhereEdgesMeet_data()
{
    QTest::addColumn<PlaneRing>("outer");
    QTest::addColumn<PlaneRing>("hole");
    QTest::addColumn<int>("crossings");
    const PlaneRing square = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    QTest::newRow("a square") << square << PlaneRing() << 0;
    QTest::newRow("a bow tie") << PlaneRing{{0, 0}, {10, 10}, {10, 0}, {0, 10}} << PlaneRing() << 1;
    QTest::newRow("a vertex on an edge") << PlaneRing{{0, 0}, {10, 0}, {10, 10}, {5, 0}} << PlaneRing() << 1;
    QTest::newRow("a hole inside") << square << PlaneRing{{2, 2}, {5, 2}, {5, 5}} << 0;
    QTest::newRow("a hole that reaches out") << square << PlaneRing{{2, 2}, {15, 2}, {5, 5}} << 2;
}

void RingRepairTanglesTest::countsWhereEdgesMeet()
{
    QFETCH(PlaneRing, outer);
    QFETCH(PlaneRing, hole);
    QFETCH(int, crossings);
    PlanePolygon polygon;
    polygon.outer = outer;
    if (!hole.empty())
        polygon.holes.push_back(hole);
    QCOMPARE(RingCrossings::count(polygon, 1000), static_cast<size_t>(crossings));
}

void RingRepairTanglesTest::leavesOutWhatCrossesItselfTooOften()
{
    QElapsedTimer timer;
    timer.start();
    const RingRepair::Outcome outcome = repair(fineScribble(20000));
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(outcome.tangled, std::vector<int>({3}));
    QVERIFY(outcome.polygons.empty());
    QVERIFY(outcome.repaired.empty());
    QVERIFY(outcome.dropped.empty());
}

void RingRepairTanglesTest::endsWhenItIsCancelled()
{
    std::atomic<bool> cancelled(false);
    std::atomic<bool> ended(false);
    std::thread worker([&] {
        const GeosInterrupt interrupt(&cancelled);
        repair(fineScribble(1000));
        ended = true;
    });
    QTest::qWait(300);
    const bool wasRunning = !ended;
    cancelled = true;
    QElapsedTimer timer;
    timer.start();
    worker.join();
    QVERIFY(wasRunning);
    // Without being cancelled it takes more than twice as long, even in the quickest build.
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void RingRepairTanglesTest::leavesOtherThreadsAlone()
{
    const std::atomic<bool> cancelled(true);
    bool wasGivenUp = false;
    std::thread([&] {
        const GeosInterrupt interrupt(&cancelled);
        wasGivenUp = repair(fineScribble(50)).polygons.empty();
    }).join();
    QVERIFY(wasGivenUp);
    QVERIFY(!repair(fineScribble(50)).polygons.empty());
}

void RingRepairTanglesTest::leavesLaterWorkOfTheThreadAlone()
{
    const std::atomic<bool> cancelled(true);
    {
        const GeosInterrupt interrupt(&cancelled);
        QVERIFY(repair(fineScribble(50)).polygons.empty());
    }
    QVERIFY(!repair(fineScribble(50)).polygons.empty());
}

RXMAP_TEST(RingRepairTanglesTest, Core)
#include "tst_ringrepair_tangles.moc"
