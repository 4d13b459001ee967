#include "tessellationtest.h"

#include "recordingglu.h"

#include "bePluginRxMap/dbgrouprxmap.h"

void TessellationTest::init()
{
    TestBase::init();
    host = new MapHost;
    group = host->addMap(QStringLiteral("field"), {1});
    map = new RxMap3D(&host->broker, nullptr);
    map->setAamGroup(host->aam(1));
    map->setDbGroup(group);
    RecordingGlu::clear();
}

void TessellationTest::cleanup()
{
    delete map;
    delete host;
    TestBase::cleanup();
}

const QVector<Vertex> &TessellationTest::rebuild(HandMadeChain &chain)
{
    MapHost::publish(*group, chain, oneClass);
    return RxMap3DProbe::banks(*map).at(0).vertices;
}
