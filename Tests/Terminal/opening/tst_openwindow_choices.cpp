#include "layerwriter.h"
#include "openwindowtest.h"
#include "paintedtexts.h"

#include <ogrsf_frmts.h>

/// Which of the operator's choices for a file the open window remembers.
class TestOpenWindowChoices : public OpenWindowTest {
    Q_OBJECT

private Q_SLOTS:
    void choicesAreRememberedUntilTheColumnsChange();
    void aTotalIsChosenWithAWarning();
    void anotherLayerIsChosen();
};

void TestOpenWindowChoices::choicesAreRememberedUntilTheColumnsChange()
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

void TestOpenWindowChoices::aTotalIsChosenWithAWarning()
{
    const QString path = write({"RATE_KG_HA", "QT_kg"});
    window->preview({path});
    QVERIFY(waitFor("openAccept"));
    const QString warning = QStringLiteral("QT_kg is called a total, not a rate");
    QCOMPARE(text(QStringLiteral("columnRow1")), QStringLiteral("QT_kg"));
    QVERIFY(paintedTexts(*find(QStringLiteral("columnRow1"))).contains(QStringLiteral("total")));
    QCOMPARE(text(QStringLiteral("columnRow1Product")), QStringLiteral("None"));
    QVERIFY(!text(QStringLiteral("openRemark")).contains(warning));
    touch(QStringLiteral("columnRow1Product"));
    touch(QStringLiteral("choice2"));
    QVERIFY2(text(QStringLiteral("openRemark")).contains(warning), qPrintable(text(QStringLiteral("openRemark"))));
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(requests.first().columns, QStringList({"", "QT_kg"}));
    QCOMPARE(backend->maps().first().columns, QStringList("QT_kg"));
}

void TestOpenWindowChoices::anotherLayerIsChosen()
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
    // Next time it is chosen right away.
    window->preview({path});
    QTRY_COMPARE(text(QStringLiteral("columnRow0")), QStringLiteral("second_rate"));
}

RXMAP_TEST(TestOpenWindowChoices, Widgets)
#include "tst_openwindow_choices.moc"
