#include "files.h"
#include "fixture.h"
#include "paths.h"
#include "prescriptionloader.h"
#include "testbase.h"

#include <QProcess>
#include <QTemporaryDir>

#include <cmath>

using OrvikTypes::RX_POLYGON;

class SampleFieldTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void isWhatItsProgramMakes_data();
    void isWhatItsProgramMakes();
    void coversAboutFortyHectares();
    void holdsThreeProductsInThreeColumns();
    void leavesThePondAndTheTreesOut();
    void givesTheWaterwayNothingOfAnything();

private:
    static std::unique_ptr<LoadedMap> load();
    static QString folder() { return sourcePath("Simulator/Resources/sample"); }
};

std::unique_ptr<LoadedMap> SampleFieldTest::load()
{
    return PrescriptionLoader(requestFor(folder() + QStringLiteral("/sample-field.shp")), {}, {}).load();
}

void SampleFieldTest::isWhatItsProgramMakes_data()
{
    QTest::addColumn<QString>("extension");
    for (const char *extension : {"shp", "shx", "dbf", "prj", "cpg"})
        QTest::newRow(extension) << QString::fromLatin1(extension);
}

void SampleFieldTest::isWhatItsProgramMakes()
{
    QFETCH(QString, extension);
    QTemporaryDir made;
    const QString path = made.filePath(QStringLiteral("sample-field.shp"));
    QCOMPARE(QProcess::execute(QStringLiteral(RXMAP_MAKE_SAMPLE), {path}), 0);
    const QByteArray kept = readFile(folder() + QStringLiteral("/sample-field.") + extension);
    QVERIFY(!kept.isEmpty());
    QVERIFY(readFile(made.filePath(QStringLiteral("sample-field.") + extension)) == kept);
}

void SampleFieldTest::coversAboutFortyHectares()
{
    const auto map = load();
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    double area = 0.0;
    for (const RX_POLYGON *record = map->chain->first(); record != nullptr; record = record->next)
        area += record->isHole ? -record->area : record->area;
    QVERIFY2(std::fabs(area - 400000.0) < 5000.0, qPrintable(QString::number(area)));
    QVERIFY(map->report.warnings.isEmpty());
}

void SampleFieldTest::holdsThreeProductsInThreeColumns()
{
    const auto map = load();
    QCOMPARE(map->report.columns,
             QStringList({QStringLiteral("SEED_KS_HA"), QStringLiteral("FERT_KG_HA"), QStringLiteral("HERB_L_HA")}));
    for (const auto &legend : map->report.legends)
        QVERIFY(legend.size() >= 4);
}

void SampleFieldTest::leavesThePondAndTheTreesOut()
{
    const auto map = load();
    QCOMPARE(map->report.holes, 2);
    for (const RX_POLYGON *record = map->chain->first(); record != nullptr; record = record->next) {
        if (!record->isHole)
            continue;
        double x = 0.0;
        double y = 0.0;
        for (unsigned i = 0; i < record->vertexCount; ++i) {
            x += record->vertices[i].x / record->vertexCount;
            y += record->vertices[i].y / record->vertexCount;
        }
        QVERIFY(record->area > 1000.0);
        QVERIFY(map->lookup->ratesAt(x, y).rates.isEmpty());
    }
}

void SampleFieldTest::givesTheWaterwayNothingOfAnything()
{
    const auto map = load();
    double area = 0.0;
    for (const RX_POLYGON *record = map->chain->first(); record != nullptr; record = record->next) {
        const bool isZero = record->rates[0] == 0.0F;
        QCOMPARE(record->rates[1] == 0.0F, isZero);
        QCOMPARE(record->rates[2] == 0.0F, isZero);
        area += isZero ? record->area : 0.0;
    }
    QVERIFY(area > 5000.0);
    for (const auto &legend : map->report.legends)
        QCOMPARE(legend.first().rate, 0.0);
}

RXMAP_TEST(SampleFieldTest, Core)
#include "tst_samplefield.moc"
