// A chain of polygons that a map is rebuilt from. Each ring is a byte for its kind, a byte for its number of vertices,
// and their coordinates: any doubles, or places on a small grid.
#include "fuzzinput.h"
#include "maphost.h"
#include "rxmap3dprobe.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QCoreApplication>

namespace {

enum Kind : quint8 { Hole = 1, AnyDouble = 2, OtherArea = 4, SameAsBefore = 8 };

Ring readRing(FuzzInput &input, int kind)
{
    Ring ring(input.number<quint8>());
    for (auto &vertex : ring) {
        if ((kind & AnyDouble) != 0) {
            vertex.x = input.number<double>();
            vertex.y = input.number<double>();
        } else {
            vertex.x = input.number<qint8>();
            vertex.y = input.number<qint8>();
        }
    }
    return ring;
}

void readChain(FuzzInput &input, HandMadeChain &chain)
{
    constexpr unsigned mostRings = 60;
    Ring ring;
    while (!input.isAtEnd() && chain.count() < mostRings) {
        const int kind = input.number<quint8>();
        if ((kind & SameAsBefore) == 0)
            ring = readRing(input, kind);
        auto &record = (kind & Hole) != 0 ? chain.addHole(ring) : chain.addOuter(ring, {float(input.number<qint8>())});
        if ((kind & OtherArea) != 0)
            record.area = input.number<double>();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int argumentCount = 0;
    static const QCoreApplication application(argumentCount, nullptr);
    FuzzInput input(data, size);
    HandMadeChain chain;
    readChain(input, chain);

    MapHost host;
    DbGroupRxMap *const group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    MapHost::publish(*group, chain, {{0.0, QColor(255, 0, 0)}, {50.0, QColor(0, 255, 0)}});

    const auto &banks = RxMap3DProbe::banks(map);
    for (const VertexBank &bank : banks)
        require(bank.vertices.size() % 3 == 0, "what is drawn are triangles");
    int outers = 0;
    for (unsigned i = 0; i < chain.count(); ++i)
        outers += chain.at(i).isHole ? 0 : 1;
    for (unsigned i = 0; i < chain.count(); ++i)
        require(chain.at(i).drawIndex >= -1 && chain.at(i).drawIndex <= outers, "a ring has a place in the order");
    return 0;
}
