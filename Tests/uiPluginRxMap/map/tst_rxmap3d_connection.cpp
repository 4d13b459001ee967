#include "maphost.h"
#include "recordingglu.h"
#include "rxmap3dprobe.h"
#include "testbase.h"

#include "Framework/dbgroupaam.h"
#include "bePluginRxMap/dbgrouprxmap.h"

/// How the drawable follows the map that it shows when there are connections other than its own.
class TestRxMap3DConnection : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aConnectionThatIsThereIsNotMadeAgain();
    void bindingTheSameMapAnewEndsItsOtherConnections();
    void leavingAMapEndsTheConnectionsOfAllItsSignals();

private:
    /// Makes one more connection, as other code might.
    void connectByHand();
    int rebuildsOfOneSet();

    QScopedPointer<MapHost> host;
    DbGroupRxMap *group = nullptr;
    QScopedPointer<RxMap3D> map;
};

void TestRxMap3DConnection::init()
{
    TestBase::init();
    host.reset(new MapHost);
    group = host->addMap(QStringLiteral("field"), {1});
    map.reset(new RxMap3D(&host->broker, nullptr));
    map->setAamGroup(host->aam(1));
}

void TestRxMap3DConnection::cleanup()
{
    map.reset();
    host.reset();
    TestBase::cleanup();
}

void TestRxMap3DConnection::connectByHand()
{
    QVERIFY(
        group->connectPropertySetSlot("polygonCount", map.data(), SLOT(updatePolygons()), Qt::AutoConnection, true));
}

int TestRxMap3DConnection::rebuildsOfOneSet()
{
    RecordingGlu::clear();
    group->setPolygonCount(0);
    return RecordingGlu::count(QStringLiteral("gluNewTess"));
}

void TestRxMap3DConnection::aConnectionThatIsThereIsNotMadeAgain()
{
    connectByHand();
    map->setDbGroup(group);
    QCOMPARE(rebuildsOfOneSet(), 1);
}

void TestRxMap3DConnection::bindingTheSameMapAnewEndsItsOtherConnections()
{
    map->setDbGroup(group);
    connectByHand();
    QCOMPARE(rebuildsOfOneSet(), 2);
    map->setDbGroup(group);
    QCOMPARE(rebuildsOfOneSet(), 1);
}

void TestRxMap3DConnection::leavingAMapEndsTheConnectionsOfAllItsSignals()
{
    map->setDbGroup(group);
    int calls = 0;
    connect(group, &DataBrokerGroup::removed, map.data(), [&calls] { ++calls; });
    Q_EMIT group->removed(group);
    QCOMPARE(calls, 1);
    map->setDbGroup(nullptr);
    Q_EMIT group->removed(group);
    QCOMPARE(calls, 1);
}

RXMAP_TEST(TestRxMap3DConnection, Widgets)
#include "tst_rxmap3d_connection.moc"
