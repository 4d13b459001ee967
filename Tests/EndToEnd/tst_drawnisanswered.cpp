#include "simulatorrun.h"
#include "testbase.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

/// What is drawn at a field point is what the terminal answers there.
class TestDrawnIsAnswered : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void classesAgree_data();
    void classesAgree();
};

void TestDrawnIsAnswered::classesAgree_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("options");
    QTest::newRow("sample field") << sampleField() << "{}";
    for (const char *name :
         {"grid-clipped/grid-clipped.shp", "cells-three-products/cells.shp", "cells-three-products/zones_8c.shp",
          "cells-17k/cells.shp", "cells-17k/zones_4c.shp", "cells-17k/zones_8c.shp", "blocks-utm/treatment_blocks.shp",
          "blocks-utm/treatment_blocks.gpkg", "zones-geojson/app_map_vector.geojson",
          "zones-geojson/isoxmljs_test.geojson"})
        QTest::newRow(name) << realData(QString::fromLatin1(name)) << "{}";
    QTest::newRow("parcels-holes/parcels.shp")
        << realData(QStringLiteral("parcels-holes/parcels.shp")) << "{columns: [\"AREA_HA\"]}";
}

void TestDrawnIsAnswered::classesAgree()
{
    QFETCH(QString, file);
    QFETCH(QString, options);
    if (file.isEmpty())
        QSKIP("no folder with real prescriptions beside the project");
    QVERIFY2(QFileInfo::exists(file), qPrintable(file));
    const QString head = QStringLiteral("var path = \"%1\"; var options = %2; var points = 400;\n").arg(file, options);
    const SimulatorRun run = runScript(head + scriptText(QStringLiteral("drawn-is-answered.js")));
    const QString said = run.output.join(QLatin1Char('\n')) + run.errors;
    QVERIFY2(run.exitCode == 0, qPrintable(said));
    const QJsonObject result = QJsonDocument::fromJson(run.output.constLast().toUtf8()).object();
    QVERIFY2(result.value(QStringLiteral("wrong")).toInt(-1) == 0, qPrintable(said));
    // Colours that are no class's are left out of the comparison, so there may be next to none.
    QVERIFY2(result.value(QStringLiteral("mixedShare")).toDouble(1.0) <= 0.01, qPrintable(said));
    // Enough points lie far from edges, on the map and beside it, to mean something.
    QVERIFY2(result.value(QStringLiteral("compared")).toInt() > 200, qPrintable(said));
    qInfo("%s", qPrintable(run.output.constLast()));
}

QTEST_MAIN(TestDrawnIsAnswered)
#include "tst_drawnisanswered.moc"
