#include "recordingglu.h"
#include "tessellationtest.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QCoreApplication>

#include <thread>

/// What makes the drawable rebuild, and in which order it then reads the bound group.
class TestRxMap3DRebuilding : public TessellationTest {
    Q_OBJECT

private Q_SLOTS:
    void everySetOfPolygonCountRebuilds();
    void bindingTwiceLeavesOneConnection();
    void aFormerGroupNoLongerRebuilds();
    void destructionEndsTheConnectionAndLeavesTheRecords();
    void propertiesAreReadInOrder();
    void theConnectionIsUnique();
    void aSetFromAnotherThreadRebuildsLater();
};

void TestRxMap3DRebuilding::everySetOfPolygonCountRebuilds()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    QCOMPARE(rebuild(chain).size(), 6);
    RecordingGlu::clear();
    QCOMPARE(host->broker.setProperty("rxMap.field", "polygonCount", 1U), 0);
    group->setPolygonCount(1);
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluNewTess")), 2);
}

void TestRxMap3DRebuilding::bindingTwiceLeavesOneConnection()
{
    map->setDbGroup(group);
    map->setDbGroup(group);
    RecordingGlu::clear();
    group->setPolygonCount(0);
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluNewTess")), 1);
}

void TestRxMap3DRebuilding::aFormerGroupNoLongerRebuilds()
{
    DbGroupRxMap *next = host->addMap(QStringLiteral("next"), {1});
    map->setDbGroup(next);
    RecordingGlu::clear();
    group->setPolygonCount(0);
    QVERIFY(RecordingGlu::calls().isEmpty());
    next->setPolygonCount(0);
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluNewTess")), 1);
}

void TestRxMap3DRebuilding::destructionEndsTheConnectionAndLeavesTheRecords()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    rebuild(chain);
    delete map;
    map = nullptr;
    RecordingGlu::clear();
    group->setPolygonCount(1);
    QVERIFY(RecordingGlu::calls().isEmpty());
    QCOMPARE(chain.at(0).drawIndex, 1);
    QCOMPARE(chain.at(0).vertices[2].x, 10.0);
}

void TestRxMap3DRebuilding::propertiesAreReadInOrder()
{
    static QStringList order;
    order.clear();
    static const char *const names[] = {"polygonBuffer", "polygonCount", "rateCalMappings", "rateColors"};
    for (const char *const &name : names) {
        const auto note = [](void *argument) {
            order.append(QString::fromLatin1(*static_cast<const char *const *>(argument)));
        };
        group->setBeforeReadHook(name, note, const_cast<char **>(const_cast<char *const *>(&name)));
    }
    map->updatePolygons();
    QCOMPARE(order, (QStringList{"polygonBuffer", "polygonCount", "rateCalMappings", "rateColors"}));
}

void TestRxMap3DRebuilding::theConnectionIsUnique()
{
    QVERIFY(!group->connectPropertySetSlot("polygonCount", map, SLOT(updatePolygons()), Qt::UniqueConnection, true));
}

void TestRxMap3DRebuilding::aSetFromAnotherThreadRebuildsLater()
{
    RecordingGlu::clear();
    std::thread([this] { group->setPolygonCount(0); }).join();
    QVERIFY(RecordingGlu::calls().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluNewTess")), 1);
}

RXMAP_TEST(TestRxMap3DRebuilding, Widgets)
#include "tst_rxmap3d_rebuilding.moc"
