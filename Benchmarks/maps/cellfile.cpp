#include "cellfile.h"

#include "gdalsession.h"

#include <cmath>
#include <ogrsf_frmts.h>
#include <random>
#include <stdexcept>

namespace {

const char *const rateColumns[] = {"SEED_K_HA", "FERT_KG_HA", "HERB_L_HA"};

void addColumns(OGRLayer &layer)
{
    OGRFieldDefn id("ID", OFTInteger);
    layer.CreateField(&id);
    for (const char *name : rateColumns) {
        OGRFieldDefn rate(name, OFTReal);
        rate.SetWidth(12);
        rate.SetPrecision(3);
        layer.CreateField(&rate);
    }
}

/// Corner of a field of 10 m cells whose rows run 20 degrees north of east, in degrees.
OGRPoint cornerOf(int column, int row)
{
    constexpr double metresPerDegree = 111195.0;
    constexpr double latitude = 48.0;
    const double radian = std::acos(-1.0) / 180.0;
    const double turn = 20.0 * radian;
    const double east = 10.0 * (column * std::cos(turn) - row * std::sin(turn));
    const double north = 10.0 * (column * std::sin(turn) + row * std::cos(turn));
    return {11.0 + east / (metresPerDegree * std::cos(latitude * radian)), latitude + north / metresPerDegree};
}

void addCell(OGRLayer &layer, int column, int row, int id, std::mt19937 &random)
{
    OGRLinearRing ring;
    for (const auto &[x, y] : {std::pair(0, 0), std::pair(0, 1), std::pair(1, 1), std::pair(1, 0), std::pair(0, 0)}) {
        const OGRPoint corner = cornerOf(column + x, row + y);
        ring.addPoint(corner.getX(), corner.getY());
    }
    OGRPolygon cell;
    cell.addRing(&ring);
    OGRFeature feature(layer.GetLayerDefn());
    feature.SetField("ID", id);
    for (const char *name : rateColumns)
        feature.SetField(name, static_cast<double>(random() % 200000) / 1000.0);
    feature.SetGeometry(&cell);
    if (layer.CreateFeature(&feature) != OGRERR_NONE)
        throw std::runtime_error("the cells cannot be written");
}

} // namespace

void writeCellFile(const QString &path, int side)
{
    const GdalSession session;
    GDALDriver *format = GetGDALDriverManager()->GetDriverByName("ESRI Shapefile");
    const GDALDatasetUniquePtr file(format->Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
    OGRSpatialReference reference;
    reference.SetWellKnownGeogCS("WGS84");
    OGRLayer *layer = file->CreateLayer("cells", &reference, wkbPolygon, nullptr);
    addColumns(*layer);
    std::mt19937 random(7);
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column)
            addCell(*layer, column, row, row * side + column, random);
    }
}
