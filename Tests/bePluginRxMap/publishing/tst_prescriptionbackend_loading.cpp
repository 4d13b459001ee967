#include "backendtest.h"
#include "layerwriter.h"
#include "taskdatasketch.h"

#include "bePluginRxMap/rxmaploader.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

/// Loads that wait, run or are cancelled.
class PrescriptionBackendLoadingTest : public BackendTest {
    Q_OBJECT

private Q_SLOTS:
    void worksRequestsOffInOrder();
    void reportsProgressUpToTheWhole();
    void keepsTheEventLoopRunningWhileItLoads();
    void reportsProgressAndAnswersWhileABigMapLoads();
    void cancelsWhatRunsAndWhatWaits();
    void cancelsALoadThatWaitsToBePublished();
    void cancelsTheRepairOfATangleAtOnce();
    void putsDefaultRatesOfTaskDataIntoUse();
    void givesProductsThatItMakesTheMapsRates();
    void isDestroyedWhileItLoads();
    void letsAListenerDestroyIt_data();
    void letsAListenerDestroyIt();
    void givesALoadUpWhenTheProgramEnds_data();
    void givesALoadUpWhenTheProgramEnds();
};

void PrescriptionBackendLoadingTest::worksRequestsOffInOrder()
{
    QStringList finished;
    connect(backend.data(), &PrescriptionBackend::finished, this,
            [&finished](const LoadReport &report) { finished.append(QFileInfo(report.path).fileName()); });
    backend->load(requestFor(fixture("three-zones.geojson")));
    backend->load(requestFor(fixture("no-such-file.shp")));
    backend->load(requestFor(fixture("overlap.geojson")));
    QVERIFY(backend->isLoading());
    QVERIFY(backend->maps().isEmpty());
    QTRY_VERIFY(!backend->isLoading());
    QTRY_COMPARE(finished.size(), 3);
    QCOMPARE(finished,
             QStringList({QStringLiteral("three-zones.geojson"), QStringLiteral("no-such-file.shp"),
                          QStringLiteral("overlap.geojson")}));
    QCOMPARE(backend->maps().size(), 2);
}

void PrescriptionBackendLoadingTest::reportsProgressUpToTheWhole()
{
    QList<double> fractions;
    connect(backend.data(), &PrescriptionBackend::progress, this,
            [&fractions](const QString &, double fraction) { fractions.append(fraction); });
    load("three-zones.geojson");
    QVERIFY(!fractions.isEmpty());
    QVERIFY(std::is_sorted(fractions.begin(), fractions.end()));
    QVERIFY(fractions.first() >= 0.0);
    QCOMPARE(fractions.last(), 1.0);
}

void PrescriptionBackendLoadingTest::keepsTheEventLoopRunningWhileItLoads()
{
    bool ran = false;
    QMetaObject::invokeMethod(
        this, [&ran] { ran = true; }, Qt::QueuedConnection);
    load("three-zones.geojson");
    QVERIFY(ran);
}

void PrescriptionBackendLoadingTest::reportsProgressAndAnswersWhileABigMapLoads()
{
    constexpr int side = 100;
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < side * side; ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * (i % side), 48.0 + 0.001 * (i / side), 0.001), {i + 1.0}});
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("big.shp"));
    QVERIFY(sketch.write(path));

    int handled = 0;
    QTimer whenIdle;
    connect(&whenIdle, &QTimer::timeout, this, [&handled] { ++handled; });
    whenIdle.start(0);
    QList<double> fractions;
    QList<int> handledBefore;
    connect(backend.data(), &PrescriptionBackend::progress, this, [&](const QString &, double fraction) {
        fractions.append(fraction);
        handledBefore.append(handled);
    });
    // On a busy machine a load may be over before this thread gets its turn; of many loads at least one is not.
    bool answered = false;
    for (int round = 0; round < 50 && !answered; ++round) {
        fractions.clear();
        handledBefore.clear();
        const LoadReport report = backend->loadAndWait(requestFor(path));
        QCOMPARE(report.polygons, side * side);
        QVERIFY(fractions.size() >= 3);
        QVERIFY(fractions.first() < 0.1);
        QCOMPARE(fractions.last(), 1.0);
        for (int i = 1; i < fractions.size(); ++i)
            QVERIFY(fractions.at(i) > fractions.at(i - 1));
        answered = handledBefore.last() > handledBefore.first();
    }
    QVERIFY(answered);
}

void PrescriptionBackendLoadingTest::cancelsWhatRunsAndWhatWaits()
{
    const LoadReport before = load("overlap.geojson");
    QList<LoadReport> reports;
    connect(backend.data(), &PrescriptionBackend::finished, this,
            [&reports](const LoadReport &report) { reports.append(report); });
    backend->load(requestFor(fixture("three-zones.geojson")));
    backend->load(requestFor(fixture("overlap.geojson")));
    backend->cancel();
    QTRY_COMPARE(reports.size(), 2);
    for (const LoadReport &report : reports)
        QVERIFY2(report.error.contains(QStringLiteral("cancelled")), qPrintable(report.error));
    QVERIFY(reports.first().error.contains(QStringLiteral("three-zones.geojson")));
    QCOMPARE(backend->maps().size(), 1);
    QCOMPARE(backend->maps().first().group, before.group);
    QVERIFY(load("three-zones.geojson").isOk());
}

void PrescriptionBackendLoadingTest::cancelsALoadThatWaitsToBePublished()
{
    connect(backend.data(), &PrescriptionBackend::progress, this, [this](const QString &, double fraction) {
        if (fraction == 1.0)
            backend->cancel();
    });
    const LoadReport report = load("three-zones.geojson");
    QVERIFY2(report.error.contains(QStringLiteral("cancelled")), qPrintable(report.error));
    QVERIFY(backend->maps().isEmpty());
    QVERIFY(broker->findGroup(QStringLiteral("rxMap.*"), true, false).isEmpty());
}

void PrescriptionBackendLoadingTest::cancelsTheRepairOfATangleAtOnce()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{scribbleText(1000), {1.0}}};
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("tangle.shp"));
    QVERIFY(sketch.write(path));
    QElapsedTimer sinceCancel;
    QTimer::singleShot(500, backend.data(), [this, &sinceCancel] {
        QVERIFY(backend->isLoading());
        sinceCancel.start();
        backend->cancel();
    });
    const LoadReport report = backend->loadAndWait(requestFor(path));
    QVERIFY2(report.error.contains(QStringLiteral("cancelled")), qPrintable(report.error));
    // Without being cancelled it takes more than twice as long, even in the quickest build.
    QVERIFY2(sinceCancel.elapsed() < 5000, qPrintable(QString::number(sinceCancel.elapsed())));
}

void PrescriptionBackendLoadingTest::putsDefaultRatesOfTaskDataIntoUse()
{
    using Sketch = TaskDataSketch;
    const QTemporaryDir folder;
    const QByteArray zones = Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + Sketch::value(6, 9))
        + Sketch::zone(2, Sketch::value(6, 14815));
    QVERIFY(Sketch{Sketch::task("TSK1", zones, "H=\"2\"")}.write(folder.path()));
    LoadRequest request = requestFor(folder.path());
    request.products[1].kind = DbGroupProductGroupInfo::WeightRate;
    request.products.first().isDriven = false;
    RxMapLoader *loader = backend->loader(1);
    const QSignalSpy taken(loader, &RxMapLoader::defaultRateTaken);
    loader->defaultRate = 150.0;
    const LoadReport report = backend->loadAndWait(request);
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QCOMPARE(loader->defaultRate, 148.15);
    QCOMPARE(taken.size(), 1);
    QCOMPARE(group(report.group)->getRateCalMappings().value(0).defaultRate, 148.15);
    QCOMPARE(backend->loader(0)->defaultRate, 0.0);
}

void PrescriptionBackendLoadingTest::givesProductsThatItMakesTheMapsRates()
{
    LoadRequest request = requestFor(fixture("three-zones.geojson"));
    request.columns = QStringList{"FERT_KG_HA", "HERB_L_HA"};
    request.makeProducts = [](const QList<ColumnProduct> &columns) {
        QList<MachineProduct> made;
        for (const ColumnProduct &column : columns)
            made.append({column.name, QString::number(column.number), column.kind, column.defaultRate()});
        return made;
    };
    const LoadReport report = backend->loadAndWait(request);
    QVERIFY2(report.isOk(), qPrintable(report.error));
    const auto mappings = group(report.group)->getRateCalMappings();
    const double rates[] = {135.0, 2.75};
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(report.columnProducts.at(i).typicalRate, rates[i]);
        QCOMPARE(mappings.at(i).defaultRate, rates[i]);
    }
}

void PrescriptionBackendLoadingTest::isDestroyedWhileItLoads()
{
    backend->load(requestFor(fixture("three-zones.geojson")));
    backend->load(requestFor(fixture("overlap.geojson")));
    backend.reset();
    QCoreApplication::processEvents();
    QVERIFY(broker->findGroup(QStringLiteral("rxMap.*"), true, false).isEmpty());

    backend.reset(new PrescriptionBackend(broker.data()));
    QMetaObject::invokeMethod(
        this, [this] { backend.reset(); }, Qt::QueuedConnection);
    const LoadReport report = load("three-zones.geojson");
    QVERIFY(report.error.contains(QStringLiteral("cancelled")));
}

void PrescriptionBackendLoadingTest::letsAListenerDestroyIt_data()
{
    QTest::addColumn<bool>("isPublished");
    QTest::newRow("before the map is published") << false;
    QTest::newRow("when the map is published") << true;
}

void PrescriptionBackendLoadingTest::letsAListenerDestroyIt()
{
    QFETCH(bool, isPublished);
    const auto destroy = [this] { delete backend.take(); };
    if (isPublished)
        connect(backend.data(), &PrescriptionBackend::mapsChanged, this, destroy);
    else
        connect(backend.data(), &PrescriptionBackend::productsMade, this, destroy);
    LoadRequest request = requestFor(fixture("three-zones.geojson"));
    request.makeProducts = [products = request.products](const QList<ColumnProduct> &) { return products; };
    const LoadReport report = backend->loadAndWait(request);
    QCOMPARE(report.isOk(), isPublished);
    QVERIFY(backend.isNull());
    QVERIFY(broker->findGroup(QStringLiteral("rxMap.*"), true, false).isEmpty());
}

void PrescriptionBackendLoadingTest::givesALoadUpWhenTheProgramEnds_data()
{
    QTest::addColumn<bool>("isDestroyed");
    QTest::newRow("the back-end stays") << false;
    QTest::newRow("the back-end goes, too") << true;
}

void PrescriptionBackendLoadingTest::givesALoadUpWhenTheProgramEnds()
{
    QFETCH(bool, isDestroyed);
    const QString path = fixture("three-zones.geojson");
    LoadReport report;
    QTimer::singleShot(0, this, [&] {
        QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
        backend->load(requestFor(fixture("overlap.geojson")));
        report = backend->loadAndWait(requestFor(path));
        if (isDestroyed)
            backend.reset();
    });
    QCoreApplication::exec();
    QCOMPARE(report.path, path);
    QCOMPARE(report.error, path + QStringLiteral(": loading was given up"));
    if (isDestroyed)
        return;
    QTRY_VERIFY(!backend->isLoading());
    QCOMPARE(backend->maps().size(), 1);
    QVERIFY(backend->maps().first().path.endsWith(QStringLiteral("overlap.geojson")));
}

RXMAP_TEST(PrescriptionBackendLoadingTest, Core)
#include "tst_prescriptionbackend_loading.moc"
