#include "allocationmeter.h"
#include "glustub.h"
#include "maphost.h"
#include "mapkinds.h"
#include "rxmap3dprobe.h"
#include "tesscallbacks.h"
#include "testbase.h"

#include "bePluginRxMap/dbgrouprxmap.h"

/// What a rebuild requires of memory and of GLU: costs that are the same on every machine.
class TestRebuildCost : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void littleMemoryIsTakenBesideTheBank_data();
    void littleMemoryIsTakenBesideTheBank();
    void gluIsCalledOnceForEachPolygonContourAndVertex_data();
    void gluIsCalledOnceForEachPolygonContourAndVertex();
    void nothingIsLeftBetweenRebuilds();
};

namespace {

/// A drawable that can be bound to a map of the benchmarks and released from it.
class Drawn {
public:
    explicit Drawn(BenchmarkMap &map)
        : group(host.addMap(QStringLiteral("cost"), {1}))
        , drawable(&host.broker, nullptr)
    {
        group->setRateColors({{{1e9, QColor(Qt::red)}}});
        group->setPolygonBuffer(map.chain());
        group->setPolygonCount(map.count());
        drawable.setAamGroup(host.aam(1));
    }

    ~Drawn() { drawable.setDbGroup(nullptr); }

    void rebuild() { drawable.setDbGroup(group); }
    void forget()
    {
        drawable.setDbGroup(nullptr);
        coordList = QVector<RXVERT *>();
        vList = QVector<Vertex>();
    }
    std::size_t bankBytes() const
    {
        return static_cast<std::size_t>(RxMap3DProbe::banks(drawable).at(0).vertices.size()) * sizeof(Vertex);
    }

private:
    MapHost host;
    DbGroupRxMap *group;
    RxMap3D drawable;
};

void addKinds()
{
    QTest::addColumn<int>("kind");
    const std::vector<MapKind> kinds = mapKinds();
    for (std::size_t i = 0; i < kinds.size(); ++i)
        QTest::newRow(kinds[i].name.c_str()) << static_cast<int>(i);
}

BenchmarkMap mapOf(int kind)
{
    return mapKinds()[static_cast<std::size_t>(kind)].make(3000);
}

} // namespace

void TestRebuildCost::littleMemoryIsTakenBesideTheBank_data()
{
    addKinds();
}

void TestRebuildCost::littleMemoryIsTakenBesideTheBank()
{
    QFETCH(int, kind);
    BenchmarkMap map = mapOf(kind);
    Drawn drawn(map);
    const GluStub stub;
    drawn.forget();
    const AllocationMeter meter;
    drawn.rebuild();
    const auto peak = static_cast<double>(meter.peak());
    const auto largest = static_cast<double>(stub.largestPolygonVertices() * sizeof(RXVERT)
                                             + 3 * stub.largestPolygonTriangles() * sizeof(Vertex));
    const double needed = static_cast<double>(drawn.bankBytes()) + largest;
    QVERIFY(peak >= static_cast<double>(drawn.bankBytes()));
    QVERIFY2(peak <= 1.15 * needed, qPrintable(QStringLiteral("%1 of %2 bytes").arg(peak).arg(needed)));
}

void TestRebuildCost::gluIsCalledOnceForEachPolygonContourAndVertex_data()
{
    addKinds();
}

void TestRebuildCost::gluIsCalledOnceForEachPolygonContourAndVertex()
{
    QFETCH(int, kind);
    BenchmarkMap map = mapOf(kind);
    Drawn drawn(map);
    const GluStub stub;
    drawn.rebuild();
    QCOMPARE(stub.polygons(), std::size_t(map.outers()));
    // Every hole of these maps lies in an outer ring.
    QCOMPARE(stub.contours(), std::size_t(map.count()));
    QCOMPARE(stub.vertices(), map.vertices());
}

void TestRebuildCost::nothingIsLeftBetweenRebuilds()
{
    BenchmarkMap map = mapOf(2);
    Drawn drawn(map);
    drawn.rebuild();
    QCOMPARE(coordList.size(), 0);
    QCOMPARE(vList.size(), 0);
}

RXMAP_TEST(TestRebuildCost, Widgets)
#include "tst_rebuildcost.moc"
