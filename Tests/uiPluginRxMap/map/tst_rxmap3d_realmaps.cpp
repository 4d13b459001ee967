#include "paths.h"
#include "rxmap3dprobe.h"
#include "testbase.h"
#include "wholeprescription.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <cmath>

using OrvikTypes::RX_POLYGON;

/// Whole prescriptions, from file to triangles: what is drawn is what the rings enclose.
class TestRxMap3DRealMaps : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void smallMapsAreCovered_data();
    void smallMapsAreCovered();
    void realMapsAreCovered_data();
    void realMapsAreCovered();

private:
    void checkCover(const QString &path);
};

namespace {

/// What the rings of a chain enclose, as drawn.
struct Enclosed {
    double area = 0.0; ///< Outer rings less the holes that were placed, square metres.
    int outers = 0;
    int placedHoles = 0;
    bool isNumberedInOrder = true;
};

Enclosed enclosedBy(const RX_POLYGON *polygon, unsigned int count)
{
    Enclosed all;
    for (; polygon != nullptr && count > 0; polygon = polygon->next, --count) {
        Ring ring(polygon->vertices, polygon->vertices + polygon->vertexCount);
        // Drawn vertices are floats.
        for (OrvikTypes::RX_POLYGONVERTEX &vertex : ring) {
            vertex.x = static_cast<double>(static_cast<float>(vertex.x));
            vertex.y = static_cast<double>(static_cast<float>(vertex.y));
        }
        if (!polygon->isHole) {
            all.area += std::fabs(shoelaceArea(ring));
            ++all.outers;
            all.isNumberedInOrder = all.isNumberedInOrder && polygon->drawIndex == all.outers;
        } else if (polygon->drawIndex != -1) {
            all.area -= std::fabs(shoelaceArea(ring));
            ++all.placedHoles;
        }
    }
    return all;
}

double coveredArea(const QVector<Vertex> &vertices)
{
    double doubled = 0.0;
    for (int i = 0; i + 2 < vertices.size(); i += 3) {
        const Vertex *corner = &vertices.at(i);
        const double ux = static_cast<double>(corner[1].x) - static_cast<double>(corner[0].x);
        const double uz = static_cast<double>(corner[1].z) - static_cast<double>(corner[0].z);
        const double vx = static_cast<double>(corner[2].x) - static_cast<double>(corner[0].x);
        const double vz = static_cast<double>(corner[2].z) - static_cast<double>(corner[0].z);
        doubled += std::fabs(ux * vz - uz * vx);
    }
    return doubled / 2.0;
}

} // namespace

void TestRxMap3DRealMaps::checkCover(const QString &path)
{
    WholePrescription prescription(path);
    QCOMPARE(prescription.problem(), QString());
    RxMap3D map(&prescription.host.broker, nullptr);
    map.setAamGroup(prescription.host.aam(1));
    map.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(map), prescription.group());
    QCOMPARE(RxMap3DProbe::banks(map).size(), 1);
    const Enclosed expected = enclosedBy(prescription.chain(), prescription.group()->getPolygonCount());
    QVERIFY(expected.outers > 0);
    QVERIFY(expected.isNumberedInOrder);
    const double covered = coveredArea(RxMap3DProbe::banks(map).at(0).vertices);
    const QString found = QStringLiteral("%1 m² drawn of %2, %3 outers, %4 holes placed")
                              .arg(covered, 0, 'f', 3)
                              .arg(expected.area, 0, 'f', 3)
                              .arg(expected.outers)
                              .arg(expected.placedHoles);
    QVERIFY2(std::fabs(covered - expected.area) <= 1e-5 * expected.area, qPrintable(found));
}

void TestRxMap3DRealMaps::smallMapsAreCovered_data()
{
    QTest::addColumn<QString>("path");
    WholePrescription::addRows(sourcePath("Tests/fixtures"));
    WholePrescription::addRows(sourcePath("Simulator/Resources/sample"));
}

void TestRxMap3DRealMaps::smallMapsAreCovered()
{
    QFETCH(QString, path);
    checkCover(path);
}

void TestRxMap3DRealMaps::realMapsAreCovered_data()
{
    QTest::addColumn<QString>("path");
    if (!realData(QString()).isEmpty())
        WholePrescription::addRows(realData(QString()));
}

void TestRxMap3DRealMaps::realMapsAreCovered()
{
    RXMAP_NEED_REAL_DATA();
    QFETCH(QString, path);
    checkCover(path);
}

RXMAP_TEST(TestRxMap3DRealMaps, Widgets)
#include "tst_rxmap3d_realmaps.moc"
