#include "Backend/prescriptionbackend.h"
#include "Backend/shownrate.h"
#include "layerwriter.h"
#include "machine.h"
#include "openwindow.h"
#include "paintedtexts.h"
#include "paths.h"
#include "productfile.h"
#include "testbase.h"
#include "theme.h"
#include "touchbutton.h"

#include "Framework/databroker.h"

#include <QAbstractButton>
#include <QLabel>

#include <ogrsf_frmts.h>

/// The window in which the operator opens prescriptions, with the real back-end behind it.
class TestOpenWindow : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void eachColumnHasARow_data();
    void eachColumnHasARow();
    void theColumnTouchedIsShown();
    void productAndUnitChosenAreLoaded();
    void openAsksForUnitsThatAreNotKnown();
    void classesAreThoseOfTheLoadedMap();
    void longNamesAreShownWhole();
    void choicesAreRememberedUntilTheColumnsChange();
    void whatIsRefusedIsSaidWithItsReason_data();
    void whatIsRefusedIsSaidWithItsReason();
    void readingIsCancelled();
    void loadingIsCancelled();
    void filesComeOneAfterTheOther();
    void openedFilesAreRecentAndGoneOnesCannotBeTouched();
    void foldersAreEntered();
    void theFolderUsedLastIsShownFirst();
    void anotherLayerIsChosen();
    void keysDoWhatTouchesDo();
    void allControlsAreBigEnoughForAGlove();

private:
    static QString fixture(const char *name) { return sourcePath("Tests/fixtures/%1").arg(QLatin1String(name)); }
    /// The control of that name that is seen.
    QWidget *find(const QString &name) const;
    void touch(const QString &name);
    /// Opens what is shown; units that are not known are taken as they are assumed.
    void accept();
    QString text(const QString &name) const;
    /// Until the page with this control is seen.
    bool waitFor(const char *name) const;
    void startWindow();
    /// A prescription with these columns, each of rate 1 and 2 in its two records.
    QString write(const QList<QByteArray> &columns, const QString &name = QStringLiteral("sketch.shp"));
    /// A file that takes seconds to read.
    QString writeTangle();

    QScopedPointer<QTemporaryDir> folder;
    QScopedPointer<QSettings> settings;
    QScopedPointer<DataBroker> broker;
    QScopedPointer<PrescriptionBackend> backend;
    QScopedPointer<Machine> machine;
    QScopedPointer<OpenWindow> window;
    QList<OpenRequest> requests;
};

void TestOpenWindow::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
    settings.reset(new QSettings(folder->filePath(QStringLiteral("settings.ini")), QSettings::IniFormat));
    broker.reset(new DataBroker);
    backend.reset(new PrescriptionBackend(broker.data()));
    machine.reset(new Machine(broker.data(), backend.data(), ProductFile::standard(), UnitSystem::Metric));
    requests.clear();
    startWindow();
}

void TestOpenWindow::startWindow()
{
    window.reset(new OpenWindow(machine.data(), *settings));
    window->resize(1280, 728);
    connect(window.data(), &OpenWindow::wanted, this, [this](const OpenRequest &request) {
        requests.append(request);
        QMetaObject::invokeMethod(
            window.data(),
            [this, request] {
                const LoadReport report =
                    backend->loadAndWait({request.paths.first(), request.columns, request.units,
                                          machine->loadedProducts(), request.layer, request.task});
                window->finish(report);
            },
            Qt::QueuedConnection);
    });
}

void TestOpenWindow::cleanup()
{
    window.reset();
    machine.reset();
    backend.reset();
    broker.reset();
    TestBase::cleanup();
}

QWidget *TestOpenWindow::find(const QString &name) const
{
    const QList<QWidget *> all = window->findChildren<QWidget *>(name);
    const auto seen = std::find_if(all.begin(), all.end(), [](const QWidget *any) { return any->isVisible(); });
    return seen == all.end() ? nullptr : *seen;
}

void TestOpenWindow::touch(const QString &name)
{
    QWidget *control = find(name);
    QVERIFY2(control != nullptr, qPrintable(name));
    QTest::mouseClick(control, Qt::LeftButton);
}

void TestOpenWindow::accept()
{
    touch(QStringLiteral("openAccept"));
    if (find(QStringLiteral("choice0")) != nullptr)
        touch(QStringLiteral("choice0"));
}

QString TestOpenWindow::text(const QString &name) const
{
    QWidget *control = find(name);
    if (const auto *label = qobject_cast<QLabel *>(control))
        return label->text().remove(QChar(0x200b));
    const auto *button = qobject_cast<QAbstractButton *>(control);
    return button != nullptr ? button->text() : QStringLiteral("(not seen)");
}

bool TestOpenWindow::waitFor(const char *name) const
{
    return QTest::qWaitFor([this, name] { return find(QLatin1String(name)) != nullptr; }, 20000);
}

QString TestOpenWindow::write(const QList<QByteArray> &columns, const QString &name)
{
    LayerSketch sketch;
    QList<QVariant> low;
    QList<QVariant> high;
    for (const QByteArray &column : columns) {
        sketch.fields.append({column.constData(), 1.0});
        low.append(1.0);
        high.append(2.0);
    }
    sketch.rows = {{squareText(10, 50, 0.001), low}, {squareText(10.001, 50, 0.001), high}};
    if (name.endsWith(QLatin1String(".geojson")))
        sketch.driver = "GeoJSON";
    const QString path = folder->filePath(name);
    return sketch.write(path) ? path : QString();
}

QString TestOpenWindow::writeTangle()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{scribbleText(1000), {1.0}}, {scribbleText(10), {1.0}}};
    const QString path = folder->filePath(QStringLiteral("tangle.shp"));
    return sketch.write(path) ? path : QString();
}

void TestOpenWindow::eachColumnHasARow_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("sure, with units") << "three-zones.geojson"
                                      << QStringList{"SEED_K_HA, Seed, 1000/ha", "FERT_KG_HA, Fertiliser, kg/ha",
                                                     "HERB_L_HA, Herbicide, L/ha"};
    QTest::newRow("guesses") << "two-strips.geojson" << QStringList{"A, Seed, ?", "B, Fertiliser, ?"};
}

void TestOpenWindow::eachColumnHasARow()
{
    QFETCH(QString, file);
    QFETCH(QStringList, rows);
    window->preview({fixture(qPrintable(file))});
    QVERIFY(waitFor("openAccept"));
    for (int i = 0; i < rows.size(); ++i) {
        const QString name = QStringLiteral("columnRow%1").arg(i);
        QCOMPARE(QStringList({text(name), text(name + QStringLiteral("Product")), text(name + QStringLiteral("Unit"))})
                     .join(QStringLiteral(", ")),
                 rows.at(i));
        const QStringList painted = paintedTexts(*find(name));
        QCOMPARE(painted.contains(QStringLiteral("guess")), rows.at(i).endsWith(QLatin1Char('?')));
    }
    QVERIFY(find(QStringLiteral("columnRow%1").arg(rows.size())) == nullptr);
}

void TestOpenWindow::theColumnTouchedIsShown()
{
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    const auto middle = [this] {
        QWidget *map = find(QStringLiteral("openMap"));
        return map->grab().toImage().pixelColor(map->rect().center());
    };
    const QStringList seed = paintedTexts(*find(QStringLiteral("openLegend")));
    for (const char *text : {"Seed", "k/ha", "SEED_K_HA", "80"})
        QVERIFY2(seed.contains(QLatin1String(text)), qPrintable(seed.join(QLatin1Char('|'))));
    const QColor seedColor = middle();
    touch(QStringLiteral("columnRow1"));
    const QStringList fertiliser = paintedTexts(*find(QStringLiteral("openLegend")));
    QVERIFY(fertiliser.contains(QStringLiteral("120.5")));
    QVERIFY(middle() != seedColor);
}

void TestOpenWindow::productAndUnitChosenAreLoaded()
{
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    touch(QStringLiteral("columnRow0Product"));
    QCOMPARE(text(QStringLiteral("choice0")), QStringLiteral("None"));
    touch(QStringLiteral("choice0"));
    touch(QStringLiteral("columnRow1Unit"));
    touch(QStringLiteral("unitAmount5"));
    touch(QStringLiteral("unitArea1"));
    touch(QStringLiteral("unitAccept"));
    QCOMPARE(text(QStringLiteral("columnRow1Unit")), QStringLiteral("lb/ac"));
    touch(QStringLiteral("columnRow1"));
    QVERIFY(paintedTexts(*find(QStringLiteral("openLegend"))).contains(QStringLiteral("135.06")));
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(requests.first().columns, QStringList({"", "FERT_KG_HA", "HERB_L_HA"}));
    QCOMPARE(requests.first().units, QStringList({"", "lb/ac", ""}));
    QCOMPARE(backend->maps().size(), 1);
    QCOMPARE(backend->maps().first().sources.first().unitFrom, RateSource::UnitFrom::Operator);
}

void TestOpenWindow::openAsksForUnitsThatAreNotKnown()
{
    const auto isCaution = [this](const char *name) {
        return static_cast<TouchButton *>(find(QLatin1String(name)))->isCaution();
    };
    window->preview({fixture("two-strips.geojson")});
    QVERIFY(waitFor("openAccept"));
    QVERIFY(isCaution("columnRow0Unit") && isCaution("columnRow1Unit"));
    touch(QStringLiteral("openAccept"));
    QCOMPARE(text(QStringLiteral("choice0")), QStringLiteral("Open as 1000/ha, kg/ha"));
    QCOMPARE(text(QStringLiteral("choice1")), QStringLiteral("Choose the unit of A"));
    touch(QStringLiteral("choice1"));
    touch(QStringLiteral("unitAmount2"));
    touch(QStringLiteral("unitArea0"));
    touch(QStringLiteral("unitAccept"));
    // It goes on with the other one.
    QCOMPARE(text(QStringLiteral("choice0")), QStringLiteral("Open as kg/ha"));
    QCOMPARE(text(QStringLiteral("choice1")), QStringLiteral("Choose the unit of B"));
    QVERIFY(requests.isEmpty());
    touch(QStringLiteral("openBack"));
    QVERIFY(!isCaution("columnRow0Unit") && isCaution("columnRow1Unit"));
    // Only "Open" opens.
    touch(QStringLiteral("columnRow0Unit"));
    touch(QStringLiteral("unitAccept"));
    QVERIFY(find(QStringLiteral("openAccept")) != nullptr);
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(requests.first().units, QStringList({"million/ha", "kg/ha"}));
    // What was told once is not asked again.
    window->preview({fixture("two-strips.geojson")});
    QVERIFY(waitFor("openAccept"));
    QVERIFY(!isCaution("columnRow1Unit"));
}

void TestOpenWindow::classesAreThoseOfTheLoadedMap()
{
    LayerSketch sketch;
    sketch.fields = {{"UREA_KG_HA", 1.0}};
    for (int record = 0; record < 60; ++record)
        sketch.rows.append({squareText(10 + 0.001 * record, 50, 0.001), {100.0 + 3.7 * record}});
    const QString path = folder->filePath(QStringLiteral("many.shp"));
    QVERIFY(sketch.write(path));
    window->preview({path});
    QVERIFY(waitFor("openAccept"));
    touch(QStringLiteral("columnRow0Unit"));
    touch(QStringLiteral("unitAmount5"));
    touch(QStringLiteral("unitArea1"));
    touch(QStringLiteral("unitAccept"));
    const QString shown = paintedTexts(*find(QStringLiteral("openLegend"))).join(QLatin1Char('|'));
    accept();
    QTRY_VERIFY(!window->isVisible());
    const QList<OrvikTypes::RX_RATECOLOR> classes = backend->maps().first().legends.first();
    QCOMPARE(classes.size(), 7);
    for (const OrvikTypes::RX_RATECOLOR &entry : classes)
        QVERIFY2(shown.contains(ShownRate::text(entry.rate)), qPrintable(shown));
}

void TestOpenWindow::longNamesAreShownWhole()
{
    machine->leaveProductsOpen();
    window->preview({write({"Winter wheat compound fertiliser in autumn kg/ha"}, QStringLiteral("long.geojson"))});
    QVERIFY(waitFor("openAccept"));
    for (const char *name : {"columnRow0", "columnRow0Product"}) {
        const QString painted = paintedTexts(*find(QLatin1String(name))).join(QLatin1Char(' '));
        QVERIFY2(!painted.contains(QChar(0x2026)), qPrintable(painted));
        QVERIFY2(painted.contains(QLatin1String("utumn")), qPrintable(painted));
    }
}

void TestOpenWindow::choicesAreRememberedUntilTheColumnsChange()
{
    QString path = write({"UREA_KG_HA", "SEED_K_HA"});
    window->preview({path});
    QVERIFY(waitFor("openAccept"));
    QCOMPARE(text(QStringLiteral("columnRow0")), QStringLiteral("SEED_K_HA"));
    touch(QStringLiteral("columnRow0Product"));
    touch(QStringLiteral("choice0"));
    accept();
    QTRY_VERIFY(!window->isVisible());
    startWindow();
    window->preview({path});
    QVERIFY(waitFor("openAccept"));
    QCOMPARE(text(QStringLiteral("columnRow0Product")), QStringLiteral("None"));
    QCOMPARE(text(QStringLiteral("columnRow1Product")), QStringLiteral("Fertiliser"));
    path = write({"UREA_KG_HA", "SEED_K_HA", "MORE_L_HA"});
    window->leave();
    window->preview({path});
    QVERIFY(waitFor("openAccept"));
    QCOMPARE(text(QStringLiteral("columnRow0Product")), QStringLiteral("Seed"));
}

void TestOpenWindow::whatIsRefusedIsSaidWithItsReason_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("gone") << "/no/such.shp"
                          << "/no/such.shp: there is no such file";
    QTest::newRow("no prescription") << sourcePath("Tests/fixtures/README.md") << "is none of the formats";
    QTest::newRow("a folder") << sourcePath("Tests/fixtures") << "is a folder";
}

void TestOpenWindow::whatIsRefusedIsSaidWithItsReason()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    window->preview({fixture("overlap.geojson")});
    QVERIFY(waitFor("openAccept"));
    accept();
    QTRY_VERIFY(!window->isVisible());
    window->preview({path});
    QVERIFY(waitFor("openMessage"));
    QVERIFY2(text(QStringLiteral("openMessage")).contains(reason), qPrintable(text(QStringLiteral("openMessage"))));
    QCOMPARE(backend->maps().size(), 1);
    touch(QStringLiteral("openBack"));
    QVERIFY(waitFor("fileRow0"));
}

void TestOpenWindow::readingIsCancelled()
{
    window->preview({writeTangle()});
    QVERIFY(find(QStringLiteral("openProgress")) != nullptr);
    QVERIFY(window->isBusy());
    QTest::qWait(200);
    touch(QStringLiteral("openCancel"));
    QTRY_VERIFY(!window->isBusy());
    QTRY_VERIFY(find(QStringLiteral("placeRecent")) != nullptr);
    // The next one is not mistaken for it.
    window->preview({fixture("overlap.geojson")});
    QVERIFY(waitFor("openAccept"));
}

void TestOpenWindow::loadingIsCancelled()
{
    const QString path = write({"UREA_KG_HA"});
    window->preview({path});
    QVERIFY(waitFor("openAccept"));
    // The file grows behind the operator's back to one that takes its time.
    const QString tangle = writeTangle();
    for (const char *ending : {".shp", ".shx"}) {
        QFile::remove(QString(path).replace(QLatin1String(".shp"), QLatin1String(ending)));
        QVERIFY(QFile::copy(QString(tangle).replace(QLatin1String(".shp"), QLatin1String(ending)),
                            QString(path).replace(QLatin1String(".shp"), QLatin1String(ending))));
    }
    bool wasLoading = false;
    QTimer::singleShot(500, window.data(), [this, &wasLoading] {
        wasLoading = backend->isLoading();
        touch(QStringLiteral("openCancel"));
    });
    accept();
    QTRY_VERIFY(wasLoading);
    QVERIFY(waitFor("openAccept"));
    QVERIFY(backend->maps().isEmpty());
    QVERIFY(!window->isBusy());
}

void TestOpenWindow::filesComeOneAfterTheOther()
{
    window->preview({fixture("overlap.geojson"), QStringLiteral("/no/such.shp"), fixture("three-zones.geojson"),
                     fixture("two-strips.geojson")});
    QVERIFY(waitFor("openAccept"));
    QVERIFY(find(QStringLiteral("openSkip")) != nullptr);
    accept();
    QVERIFY(waitFor("openMessage"));
    touch(QStringLiteral("openBack"));
    QVERIFY(waitFor("columnRow2"));
    touch(QStringLiteral("openSkip"));
    QTRY_COMPARE(text(QStringLiteral("columnRow0")), QStringLiteral("A"));
    QVERIFY(find(QStringLiteral("openSkip")) == nullptr);
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(backend->maps().size(), 2);
}

void TestOpenWindow::openedFilesAreRecentAndGoneOnesCannotBeTouched()
{
    const QString path = write({"UREA_KG_HA"});
    for (const QString &file : {path, fixture("overlap.geojson")}) {
        window->preview({file});
        QVERIFY(waitFor("openAccept"));
        accept();
        QTRY_VERIFY(!window->isVisible());
    }
    window->showFiles();
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("overlap.geojson"));
    QCOMPARE(text(QStringLiteral("fileRow1")), QStringLiteral("sketch.shp"));
    QVERIFY(find(QStringLiteral("fileRow1"))->isEnabled());
    QVERIFY(QFile::remove(path));
    window->showFiles();
    QVERIFY(!find(QStringLiteral("fileRow1"))->isEnabled());
    QVERIFY(paintedTexts(*find(QStringLiteral("fileRow1"))).contains(QStringLiteral("is no longer there")));
    touch(QStringLiteral("fileRow0"));
    QVERIFY(waitFor("openAccept"));
}

void TestOpenWindow::foldersAreEntered()
{
    QVERIFY(QDir(folder->path()).mkpath(QStringLiteral("farm/field")));
    QVERIFY(QFile::copy(fixture("overlap.geojson"), folder->filePath(QStringLiteral("farm/field/map.geojson"))));
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder->path().toLocal8Bit());
    startWindow();
    window->showFiles();
    qputenv("HOME", home);
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("farm"));
    touch(QStringLiteral("fileRow0"));
    touch(QStringLiteral("fileRow0"));
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map.geojson"));
    touch(QStringLiteral("folderUp"));
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("field"));
    touch(QStringLiteral("placeRoot"));
    QVERIFY(!find(QStringLiteral("folderUp"))->isEnabled());
    touch(QStringLiteral("pageDown"));
    touch(QStringLiteral("openCancel"));
    QVERIFY(!window->isVisible());
}

void TestOpenWindow::theFolderUsedLastIsShownFirst()
{
    const QString stick = folder->filePath(QStringLiteral("stick"));
    QVERIFY(QDir().mkpath(stick));
    QVERIFY(QFile::copy(fixture("overlap.geojson"), stick + QStringLiteral("/map.geojson")));
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder->path().toLocal8Bit());
    startWindow();
    window->showFiles();
    qputenv("HOME", home);
    touch(QStringLiteral("fileRow0"));
    touch(QStringLiteral("fileRow0"));
    QVERIFY(waitFor("openAccept"));
    accept();
    QTRY_VERIFY(!window->isVisible());
    startWindow();
    window->showFiles();
    QVERIFY(find(QStringLiteral("folderUp"))->isEnabled());
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map.geojson"));
    // Back from a recent file is back to these.
    touch(QStringLiteral("placeRecent"));
    touch(QStringLiteral("fileRow0"));
    QVERIFY(waitFor("openAccept"));
    touch(QStringLiteral("openBack"));
    QVERIFY(!find(QStringLiteral("folderUp"))->isEnabled());
    QVERIFY(QDir(stick).removeRecursively());
    window->showFiles();
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map.geojson"));
    QVERIFY(!find(QStringLiteral("fileRow0"))->isEnabled());
}

void TestOpenWindow::anotherLayerIsChosen()
{
    const QString path = folder->filePath(QStringLiteral("layers.gpkg"));
    for (const char *name : {"first", "second"}) {
        GDALAllRegister();
        GDALDriver *driver = GetGDALDriverManager()->GetDriverByName("GPKG");
        const GDALDatasetUniquePtr file(
            QFile::exists(path) ? GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_UPDATE | GDAL_OF_VECTOR)
                                : driver->Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
        OGRSpatialReference reference;
        reference.importFromEPSG(4326);
        reference.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        OGRLayer *layer = file->CreateLayer(name, &reference, wkbPolygon);
        OGRFieldDefn rate(QByteArray(name).append("_rate").constData(), OFTReal);
        layer->CreateField(&rate);
        OGRFeature feature(layer->GetLayerDefn());
        OGRGeometry *geometry = nullptr;
        const QByteArray square = squareText(10, 50, 0.001).toLatin1();
        OGRGeometryFactory::createFromWkt(square.constData(), nullptr, &geometry);
        feature.SetGeometryDirectly(geometry);
        feature.SetField(0, 5.0);
        QCOMPARE(layer->CreateFeature(&feature), OGRERR_NONE);
    }
    window->preview({path});
    QVERIFY(waitFor("openLayer"));
    QVERIFY(find(QStringLiteral("openTask")) == nullptr);
    QCOMPARE(text(QStringLiteral("columnRow0")), QStringLiteral("first_rate"));
    touch(QStringLiteral("openLayer"));
    touch(QStringLiteral("choice1"));
    QTRY_COMPARE(text(QStringLiteral("columnRow0")), QStringLiteral("second_rate"));
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(requests.first().layer, QStringLiteral("second"));
    // It is chosen at once the next time.
    window->preview({path});
    QTRY_COMPARE(text(QStringLiteral("columnRow0")), QStringLiteral("second_rate"));
}

void TestOpenWindow::keysDoWhatTouchesDo()
{
    const auto press = [this](Qt::Key key) {
        QWidget *focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : window.data(), key);
    };
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    QApplication::setActiveWindow(window.data());
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), find(QStringLiteral("columnRow0")));
    press(Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), find(QStringLiteral("columnRow0Product")));
    press(Qt::Key_Return);
    QVERIFY(find(QStringLiteral("choice0")) != nullptr);
    press(Qt::Key_Escape);
    QVERIFY(find(QStringLiteral("openAccept")) != nullptr);
    press(Qt::Key_Return);
    QTRY_COMPARE(backend->maps().size(), 1);
    QTRY_VERIFY(!window->isVisible());
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    press(Qt::Key_Escape);
    QVERIFY(find(QStringLiteral("fileRow0")) != nullptr);
    press(Qt::Key_Escape);
    QVERIFY(!window->isVisible());
}

void TestOpenWindow::allControlsAreBigEnoughForAGlove()
{
    const auto check = [this] {
        const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (!button->isVisible())
                continue;
            QVERIFY2(button->width() >= Theme::touchTarget && button->height() >= Theme::touchTarget,
                     qPrintable(button->objectName()));
            const QRect area(button->mapTo(window.data(), QPoint(0, 0)), button->size());
            QVERIFY2(window->rect().contains(area), qPrintable(button->objectName()));
        }
    };
    window->showFiles();
    touch(QStringLiteral("placeRoot"));
    check();
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    check();
    touch(QStringLiteral("columnRow2Unit"));
    check();
    touch(QStringLiteral("openBack"));
    touch(QStringLiteral("columnRow2Product"));
    check();
}

RXMAP_TEST(TestOpenWindow, Widgets)
#include "tst_openwindow.moc"
