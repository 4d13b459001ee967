// Makes the sample field: management zones of a field of about 40 ha in rolling farmland, with a pond and a stand of
// trees that are left out, and a grassed waterway that gets no product. Two smooth surfaces stand for the soil and for
// the weeds; their contour lines, the field's edge, the waterway and the two left-out places together divide the field.
//
//   rxmap-make-sample FILE.shp
#include <cmath>
#include <cstdio>
#include <gdal_alg.h>
#include <memory>
#include <ogrsf_frmts.h>
#include <string>
#include <vector>

namespace {

/// The field's middle, degrees.
constexpr double middleLongitude = -93.4125;
constexpr double middleLatitude = 42.1062;
/// Half the width of the square around the field, metres, and the step of the surfaces' grid.
constexpr double halfWidth = 400.0;
constexpr double gridStep = 8.0;

double hill(double x, double y, double centreX, double centreY, double radius)
{
    const double dx = (x - centreX) / radius;
    const double dy = (y - centreY) / radius;
    return std::exp(-(dx * dx + dy * dy));
}

/// Yield potential of the soil, about 0 to 1; x and y in metres from the field's middle.
double soil(double x, double y)
{
    return 0.46 + 0.34 * hill(x, y, -170.0, 150.0, 170.0) - 0.30 * hill(x, y, 190.0, 170.0, 150.0)
        + 0.28 * hill(x, y, 150.0, -190.0, 190.0) - 0.26 * hill(x, y, -220.0, -190.0, 140.0)
        + 0.05 * std::sin(x / 61.0) * std::cos(y / 47.0);
}

/// Weed pressure, about 0 to 1.
double weeds(double x, double y)
{
    return 0.35 + 0.45 * hill(x, y, 60.0, 60.0, 210.0) + 0.25 * hill(x, y, -260.0, -60.0, 130.0)
        + 0.04 * std::cos(x / 53.0 + y / 71.0);
}

const std::vector<double> soilLevels = {0.30, 0.42, 0.54, 0.66};
const std::vector<double> weedLevels = {0.48, 0.66};

size_t classOf(double value, const std::vector<double> &levels)
{
    size_t number = 0;
    while (number < levels.size() && value >= levels[number])
        ++number;
    return number;
}

/// Corners of the field, rounded off and bent by `wobble` metres.
OGRPolygon closedCurve(double centreX, double centreY, double radiusX, double radiusY, double squareness, double wobble,
                       int vertices)
{
    OGRLinearRing ring;
    for (int i = 0; i < vertices; ++i) {
        const double angle = 2.0 * std::acos(-1.0) * i / vertices;
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        const double scale =
            1.0 / std::pow(std::pow(std::fabs(c), squareness) + std::pow(std::fabs(s), squareness), 1.0 / squareness);
        const double bend = 1.0 + wobble * std::sin(3.0 * angle + 0.7) + 0.5 * wobble * std::sin(5.0 * angle);
        ring.addPoint(centreX + radiusX * c * scale * bend, centreY + radiusY * s * scale * bend);
    }
    ring.closeRings();
    OGRPolygon polygon;
    polygon.addRing(&ring);
    return polygon;
}

/// The waterway's middle line, from the north edge to the east edge and beyond either.
std::unique_ptr<OGRGeometry> waterway()
{
    constexpr double halfSwath = 9.0;
    OGRLineString middle;
    for (int i = 0; i <= 80; ++i) {
        const double t = i / 80.0;
        middle.addPoint(-90.0 + 520.0 * t + 22.0 * std::sin(9.0 * t), 420.0 - 470.0 * t + 26.0 * std::sin(7.0 * t));
    }
    return std::unique_ptr<OGRGeometry>(middle.Buffer(halfSwath, 6));
}

void addLines(OGRMultiLineString &lines, const OGRGeometry &polygon)
{
    const std::unique_ptr<OGRGeometry> boundary(polygon.Boundary());
    if (wkbFlatten(boundary->getGeometryType()) == wkbLineString)
        lines.addGeometry(boundary.get());
    else
        for (const OGRGeometry *part : *boundary->toGeometryCollection())
            lines.addGeometry(part);
}

/// Contour lines of a surface at the given levels, by GDAL's own contouring of a grid.
void addContours(OGRMultiLineString &lines, double (*surface)(double, double), const std::vector<double> &levels)
{
    const int size = static_cast<int>(2.0 * halfWidth / gridStep) + 1;
    const GDALDatasetUniquePtr grid(
        GetGDALDriverManager()->GetDriverByName("MEM")->Create("", size, size, 1, GDT_Float64, nullptr));
    double placement[6] = {-halfWidth - 0.5 * gridStep, gridStep, 0.0, halfWidth + 0.5 * gridStep, 0.0, -gridStep};
    grid->SetGeoTransform(placement);
    std::vector<double> row(static_cast<size_t>(size));
    for (int r = 0; r < size; ++r) {
        for (int c = 0; c < size; ++c)
            row[static_cast<size_t>(c)] = surface(-halfWidth + c * gridStep, halfWidth - r * gridStep);
        if (grid->GetRasterBand(1)->RasterIO(GF_Write, 0, r, size, 1, row.data(), size, 1, GDT_Float64, 0, 0, nullptr)
            != CE_None)
            return;
    }
    const GDALDatasetUniquePtr store(
        GetGDALDriverManager()->GetDriverByName("Memory")->Create("", 0, 0, 0, GDT_Unknown, nullptr));
    OGRLayer *layer = store->CreateLayer("contours", nullptr, wkbLineString, nullptr);
    std::string fixedLevels = "FIXED_LEVELS=";
    for (const double level : levels)
        fixedLevels += (level == levels.front() ? "" : ",") + std::to_string(level);
    char *options[] = {fixedLevels.data(), nullptr};
    GDALContourGenerateEx(grid->GetRasterBand(1), layer, options, nullptr, nullptr);
    for (const OGRFeatureUniquePtr &feature : *layer)
        lines.addGeometry(feature->GetGeometryRef());
}

struct Rates {
    double seed = 0.0;       ///< 1000 seeds/ha
    double fertiliser = 0.0; ///< kg/ha
    double herbicide = 0.0;  ///< L/ha
};

Rates ratesAt(double x, double y)
{
    const double seed[] = {68.0, 74.0, 79.0, 84.0, 88.5};
    const double fertiliser[] = {95.0, 120.0, 145.0, 170.0, 190.0};
    const double herbicide[] = {1.2, 1.8, 2.4};
    const size_t soilClass = classOf(soil(x, y), soilLevels);
    return {seed[soilClass], fertiliser[soilClass], herbicide[classOf(weeds(x, y), weedLevels)]};
}

/// Some place inside, away from the edges.
OGRPoint placeInside(const OGRGeometry &area)
{
    const std::unique_ptr<OGRGeometry> place(
        OGRGeometry::FromHandle(OGR_G_PointOnSurface(OGRGeometry::ToHandle(const_cast<OGRGeometry *>(&area)))));
    return place ? *place->toPoint() : OGRPoint();
}

/// From metres around the middle (in the UTM zone's grid) to degrees, rounded to 8 places so that every computer makes
/// the same file.
void placeOnEarth(OGRPolygon &polygon, OGRCoordinateTransformation &toDegrees, double east, double north)
{
    for (OGRLinearRing *ring : polygon) {
        for (int i = 0; i < ring->getNumPoints(); ++i) {
            double x = east + ring->getX(i);
            double y = north + ring->getY(i);
            toDegrees.Transform(1, &x, &y);
            ring->setPoint(i, std::round(x * 1e8) / 1e8, std::round(y * 1e8) / 1e8);
        }
    }
}

OGRLayer *createTable(GDALDataset &file, OGRSpatialReference &world)
{
    const char *const options[] = {"DBF_DATE_LAST_UPDATE=2024-03-01", "ENCODING=UTF-8", nullptr};
    OGRLayer *layer = file.CreateLayer("sample-field", &world, wkbPolygon, const_cast<char **>(options));
    const auto addField = [layer](const char *name, OGRFieldType type, int width, int precision) {
        OGRFieldDefn field(name, type);
        field.SetWidth(width);
        field.SetPrecision(precision);
        layer->CreateField(&field);
    };
    addField("ZONE", OFTInteger, 4, 0);
    addField("SEED_KS_HA", OFTReal, 10, 1);
    addField("FERT_KG_HA", OFTReal, 10, 1);
    addField("HERB_L_HA", OFTReal, 10, 2);
    addField("AREA_HA", OFTReal, 10, 4);
    return layer;
}

/// The pieces into which the lines divide the field, except those that are left out.
std::vector<std::unique_ptr<OGRPolygon>> divide(const OGRPolygon &field, const std::vector<OGRPolygon> &leftOut,
                                                const OGRGeometry &water)
{
    OGRMultiLineString lines;
    addContours(lines, soil, soilLevels);
    addContours(lines, weeds, weedLevels);
    addLines(lines, water);
    for (const OGRPolygon &place : leftOut)
        addLines(lines, place);
    const std::unique_ptr<OGRGeometry> edge(field.Boundary());
    const std::unique_ptr<OGRGeometry> noded(lines.Union(edge.get()));
    const std::unique_ptr<OGRGeometry> faces(noded->Polygonize());
    std::vector<std::unique_ptr<OGRPolygon>> pieces;
    for (const OGRGeometry *face : *faces->toGeometryCollection()) {
        const OGRPoint inside = placeInside(*face);
        bool isKept = field.Contains(&inside);
        for (const OGRPolygon &place : leftOut)
            isKept = isKept && !place.Contains(&inside);
        if (isKept)
            pieces.emplace_back(face->toPolygon()->clone());
    }
    return pieces;
}

bool write(const char *path, const std::vector<std::unique_ptr<OGRPolygon>> &pieces, const OGRGeometry &water)
{
    OGRSpatialReference world;
    OGRSpatialReference grid;
    world.SetWellKnownGeogCS("WGS84");
    world.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    grid.importFromEPSG(32615);
    const std::unique_ptr<OGRCoordinateTransformation> toGrid(OGRCreateCoordinateTransformation(&world, &grid));
    const std::unique_ptr<OGRCoordinateTransformation> toDegrees(OGRCreateCoordinateTransformation(&grid, &world));
    const GDALDatasetUniquePtr file(
        GetGDALDriverManager()->GetDriverByName("ESRI Shapefile")->Create(path, 0, 0, 0, GDT_Unknown, nullptr));
    if (!toGrid || !toDegrees || !file)
        return false;
    double east = middleLongitude;
    double north = middleLatitude;
    toGrid->Transform(1, &east, &north);
    OGRLayer *layer = createTable(*file, world);
    for (const std::unique_ptr<OGRPolygon> &piece : pieces) {
        const OGRPoint inside = placeInside(*piece);
        const bool isWater = water.Contains(&inside);
        const Rates rates = isWater ? Rates() : ratesAt(inside.getX(), inside.getY());
        const size_t zone = isWater ? 0 : 1 + classOf(soil(inside.getX(), inside.getY()), soilLevels);
        OGRFeature feature(layer->GetLayerDefn());
        feature.SetField("ZONE", static_cast<int>(zone));
        feature.SetField("SEED_KS_HA", rates.seed);
        feature.SetField("FERT_KG_HA", rates.fertiliser);
        feature.SetField("HERB_L_HA", rates.herbicide);
        feature.SetField("AREA_HA", piece->get_Area() / 10000.0);
        placeOnEarth(*piece, *toDegrees, east, north);
        feature.SetGeometry(piece.get());
        if (layer->CreateFeature(&feature) != OGRERR_NONE)
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: rxmap-make-sample FILE.shp\n");
        return 1;
    }
    GDALAllRegister();
    const OGRPolygon field = closedCurve(0.0, 0.0, 325.0, 318.0, 9.0, 0.018, 160);
    const std::vector<OGRPolygon> leftOut = {closedCurve(-226.0, -232.0, 33.0, 21.0, 2.0, 0.16, 48),
                                             closedCurve(128.0, -236.0, 27.0, 33.0, 2.4, 0.12, 44)};
    const std::unique_ptr<OGRGeometry> water = waterway();
    if (write(argv[1], divide(field, leftOut, *water), *water))
        return 0;
    std::fprintf(stderr, "rxmap-make-sample: cannot write %s\n", argv[1]);
    return 1;
}
