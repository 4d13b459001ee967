#include "backendtest.h"
#include "taskdatasketch.h"

#include "bePluginRxMap/rxmaploader.h"

#include <QMetaMethod>
#include <QTemporaryDir>

#include <climits>
#include <functional>

namespace {

/// Hears all that groups, broker, loaders and back-end announce, but for progress, which depends on time; acts once.
class Listener : public QObject {
    Q_OBJECT

public:
    /// `place` counts what is heard, from 1; 0 to hear only.
    Listener(int place, std::function<void()> action)
        : actsAt(place)
        , act(std::move(action))
    {
    }

    void follow(const QObject *sender)
    {
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("hear()"));
        const QMetaObject *meta = sender->metaObject();
        for (int i = QObject::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal && meta->method(i).name() != "progress")
                connect(sender, meta->method(i), this, slot);
        }
    }

    int heard = 0;
    /// Where it acted: the signal's sender and its signature.
    QByteArray where;

public Q_SLOTS:
    void hear()
    {
        if (++heard != actsAt)
            return;
        where = sender()->metaObject()->className() + QByteArrayLiteral("::")
            + sender()->metaObject()->method(senderSignalIndex()).methodSignature();
        act();
    }

private:
    int actsAt;
    std::function<void()> act;
};

} // namespace

/// Whoever hears of anything on a back-end's day may take its maps away there, or the back-end itself.
class PrescriptionBackendListenersTest : public BackendTest {
    Q_OBJECT

private Q_SLOTS:
    void mayActAtAnyTime_data();
    void mayActAtAnyTime();

private:
    /// Maps come, take products over, are loaded again and go, for as long as the back-end lives.
    void spendADay(const QString &taskData);
    void unloadOldest(int count);
    /// Whether no product is fed by two maps.
    bool isShared() const;
};

void PrescriptionBackendListenersTest::spendADay(const QString &taskData)
{
    LoadRequest request = requestFor(taskData);
    request.products[0].kind = DbGroupProductGroupInfo::VolumeRate;
    request.products[1].kind = DbGroupProductGroupInfo::WeightRate;
    const std::vector<std::function<void()>> steps = {
        [this] { load("overlap.geojson"); },
        [this] { load("three-zones.geojson"); },
        [&] { backend->loadAndWait(request); },
        [this] { load("three-zones.geojson"); },
        [this] { load("no-such-file.shp"); },
        [this] { backend->unload(QStringLiteral("rxMap.three-zones.geojson")); },
        [this] { unloadOldest(INT_MAX); },
    };
    for (size_t i = 0; i < steps.size() && backend; ++i) {
        steps[i]();
        QVERIFY(isShared());
    }
}

void PrescriptionBackendListenersTest::unloadOldest(int count)
{
    const QList<LoadReport> maps = backend->maps();
    for (int i = 0; i < qMin(count, maps.size()) && backend; ++i)
        backend->unload(maps.at(i).group);
}

bool PrescriptionBackendListenersTest::isShared() const
{
    QStringList fed;
    for (const QString &name : broker->findGroup(QStringLiteral("rxMap.*"), true, false))
        fed += channels(group(name));
    fed.removeAll(QString());
    return fed.removeDuplicates() == 0;
}

void PrescriptionBackendListenersTest::mayActAtAnyTime_data()
{
    QTest::addColumn<int>("unloads"); // Maps; -1: the back-end is deleted.
    QTest::newRow("delete the back-end") << -1;
    QTest::newRow("unload the oldest map") << 1;
    QTest::newRow("unload all maps") << INT_MAX;
}

void PrescriptionBackendListenersTest::mayActAtAnyTime()
{
    QFETCH(int, unloads);
    const QTemporaryDir folder;
    const QByteArray rates = TaskDataSketch::value(1, 9) + TaskDataSketch::value(6, 9);
    const QByteArray zones =
        TaskDataSketch::zone(1, TaskDataSketch::polygon({{11.0, 48.0, 0.01}}) + rates) + TaskDataSketch::zone(2, rates);
    QVERIFY(TaskDataSketch{TaskDataSketch::task("TSK1", zones, "H=\"2\"")}.write(folder.path()));
    const auto act = [this, unloads] {
        if (unloads < 0)
            delete backend.take();
        else
            unloadOldest(unloads);
    };
    int last = 1;
    for (int place = 0; place <= last; ++place) {
        backend.reset();
        broker.reset(new DataBroker);
        backend.reset(new PrescriptionBackend(broker.data()));
        Listener listener(place, act);
        connect(broker.data(), &DataBroker::groupPublished, &listener,
                [&](const QString &name) { listener.follow(broker->getGroup(name, false)); });
        listener.follow(broker.data());
        listener.follow(backend.data());
        listener.follow(backend->loader(0));
        listener.follow(backend->loader(1));
        spendADay(folder.path());
        if (place == 0)
            last = listener.heard;
        QVERIFY2(!QTest::currentTestFailed(), listener.where);
        QVERIFY2(broker->findGroup(QStringLiteral("rxMap.*"), true, false).isEmpty(), listener.where);
        QCOMPARE(listener.where.isEmpty(), place == 0);
        QCOMPARE(backend.isNull(), unloads < 0 && place > 0);
    }
}

RXMAP_TEST(PrescriptionBackendListenersTest, Core)
#include "tst_prescriptionbackend_listeners.moc"
