// Every published chain can be drawn as it is: a tessellator that has no way to make new vertices, fed as the renderer
// feeds it, fills exactly what the outer rings cover less their holes.
#include "fixture.h"
#include "prescriptionloader.h"
#include "wholemaptest.h"

#include <GL/glu.h>
#include <cmath>

using OrvikTypes::RX_POLYGON;

namespace {

struct Fill {
    std::vector<const RX_POLYGON *> contours;
    std::vector<PlaneVertex> vertices;
    std::vector<PlaneVertex> triangles;
    bool hasFailed = false;
};

Fill *current = nullptr;

void beginShape(GLenum) { }

void endShape() { }

void takeEdgeFlag(GLboolean) { }

void takeVertex(void *data)
{
    current->triangles.push_back(*static_cast<PlaneVertex *>(data));
}

void makeNoVertex(GLdouble *, void **, GLfloat *, void **) { }

void takeError(GLenum)
{
    current->hasFailed = true;
}

using Callback = void (*)();

/// Square metres that the tessellator fills for the contours of one polygon.
double filledArea(Fill &fill)
{
    current = &fill;
    fill.vertices.clear();
    fill.triangles.clear();
    size_t count = 0;
    for (const RX_POLYGON *contour : fill.contours)
        count += contour->vertexCount;
    fill.vertices.reserve(count);
    GLUtesselator *tessellator = gluNewTess();
    gluTessCallback(tessellator, GLU_TESS_BEGIN, reinterpret_cast<Callback>(beginShape));
    gluTessCallback(tessellator, GLU_TESS_VERTEX, reinterpret_cast<Callback>(takeVertex));
    gluTessCallback(tessellator, GLU_TESS_EDGE_FLAG, reinterpret_cast<Callback>(takeEdgeFlag));
    gluTessCallback(tessellator, GLU_TESS_COMBINE, reinterpret_cast<Callback>(makeNoVertex));
    gluTessCallback(tessellator, GLU_TESS_END, reinterpret_cast<Callback>(endShape));
    gluTessCallback(tessellator, GLU_TESS_ERROR, reinterpret_cast<Callback>(takeError));
    gluTessBeginPolygon(tessellator, nullptr);
    for (const RX_POLYGON *contour : fill.contours) {
        gluTessBeginContour(tessellator);
        for (unsigned i = 0; i < contour->vertexCount; ++i) {
            fill.vertices.push_back(contour->vertices[i]);
            double place[] = {contour->vertices[i].x, -4.99, -contour->vertices[i].y};
            gluTessVertex(tessellator, place, &fill.vertices.back());
        }
        gluTessEndContour(tessellator);
    }
    gluTessEndPolygon(tessellator);
    gluDeleteTess(tessellator);
    double area = 0.0;
    for (size_t i = 0; i + 2 < fill.triangles.size(); i += 3)
        area += 0.5 * std::fabs(turn(fill.triangles[i], fill.triangles[i + 1], fill.triangles[i + 2]));
    return area;
}

} // namespace

class PolygonChainDrawing : public WholeMapTest {
    Q_OBJECT

private Q_SLOTS:
    void fillsWhatItCovers_data();
    void fillsWhatItCovers();
};

void PolygonChainDrawing::fillsWhatItCovers_data()
{
    addMapRows({"three-zones.geojson", "pond-and-island.geojson", "overlap.geojson", "bow-tie.geojson",
                "two-parts.geojson", "touching-holes.geojson"},
               {"grid-clipped/grid-clipped.shp", "cells-three-products/cells.shp", "cells-three-products/zones_8c.shp",
                "cells-17k/cells.shp", "cells-17k/zones_4c.shp", "cells-17k/zones_8c.shp",
                "blocks-utm/treatment_blocks.shp", "blocks-utm/treatment_blocks.gpkg",
                "zones-geojson/app_map_vector.geojson", "zones-geojson/*_test.geojson"});
}

void PolygonChainDrawing::fillsWhatItCovers()
{
    QFETCH(QString, path);
    QFETCH(QStringList, columns);
    const LoadControl control;
    const LoadRequest request = requestFor(path, columns);
    const auto map = PrescriptionLoader(request, {}, control).load();
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    Fill fill;
    int polygons = 0;
    for (const RX_POLYGON *record = map->chain->first(); record != nullptr; ++polygons) {
        fill.contours = {record};
        double expected = record->area;
        for (record = record->next; record != nullptr && record->isHole; record = record->next) {
            fill.contours.push_back(record);
            expected -= record->area;
        }
        const double area = filledArea(fill);
        QVERIFY(!fill.hasFailed);
        QVERIFY2(std::fabs(area - expected) <= 1e-9 * fill.contours.front()->area,
                 qPrintable(QStringLiteral("polygon %1: %2, not %3").arg(polygons).arg(area).arg(expected)));
    }
    QCOMPARE(polygons, static_cast<int>(map->chain->outers()));
}

RXMAP_TEST(PolygonChainDrawing, Core)
#include "tst_polygonchain_drawing.moc"
