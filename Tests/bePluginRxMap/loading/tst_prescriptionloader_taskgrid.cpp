#include "loadertest.h"
#include "taskdatasketch.h"

#include <array>
#include <cmath>
#include <random>

namespace {

using Sketch = TaskDataSketch;

constexpr int weight = 6;
constexpr int points = 1000;

/// How the zones of a grid lie.
enum class Pattern { Random, EvenRows, EvenColumns };

/// Rates for each zone and variable, given in steps: a few different ones, or none; the first zone has none at all.
std::vector<std::vector<qint32>> zonesOf(int variables)
{
    std::mt19937 random(unsigned(variables) + 5);
    std::vector<std::vector<qint32>> zones(5, std::vector<qint32>(size_t(variables), -1));
    for (size_t zone = 1; zone < zones.size(); ++zone) {
        for (qint32 &steps : zones[zone])
            steps = std::array<qint32, 4>{-1, 0, 7, 120}[random() % 4];
    }
    zones.back().assign(size_t(variables), 30);
    return zones;
}

/// The zone of each cell. With even rows or columns, every other one consists of a single zone.
std::vector<int> cellsOf(int columns, int rows, int zones, Pattern pattern)
{
    std::mt19937 random(unsigned(columns * rows));
    std::vector<int> cells;
    for (int cell = 0; cell < columns * rows; ++cell) {
        const bool isEven = (pattern == Pattern::EvenRows && cell / columns % 2 == 0)
            || (pattern == Pattern::EvenColumns && cell % columns % 2 == 0);
        const bool isLikeBefore = cell > 0 && random() % 2 == 0;
        cells.push_back(isEven ? zones - 1 : isLikeBefore ? cells.back() : int(random() % unsigned(zones)));
    }
    return cells;
}

/// A grid of those cells, with weights of products A, B and C.
Sketch sketchOf(int type, int columns, int rows, double cellSize, const std::vector<std::vector<qint32>> &zones,
                const std::vector<int> &cells)
{
    const QByteArray products[] = {"A", "B", "C"};
    QByteArray content = Sketch::grid(columns, rows, type, "J=\"0\"")
                             .replace("1.0E-3", QByteArray::number(cellSize, 'g', 12))
                             .replace("0.001", QByteArray::number(cellSize, 'g', 12));
    for (size_t zone = 0; zone < zones.size(); ++zone) {
        QByteArray values;
        for (size_t i = 0; i < zones[zone].size(); ++i)
            values += Sketch::value(weight, zones[zone][i], "C=\"PDT" + products[i] + "\"");
        content += Sketch::zone(int(zone), values);
    }
    QByteArray bytes;
    for (const int zone : cells)
        bytes += type == 1 ? QByteArray(1, char(zone)) : Sketch::steps(zones[size_t(zone)]);
    QByteArray named;
    for (const QByteArray &product : products)
        named += "<PDT A=\"PDT" + product + "\" B=\"" + product + "\"/>";
    return {named + Sketch::task("TSK1", content), 4, {{"GRD00001.BIN", bytes}}};
}

} // namespace

Q_DECLARE_METATYPE(Pattern)

/// Grids of task data, from the file to the rates at field points.
class PrescriptionLoaderTaskGridTest : public LoaderTest {
    Q_OBJECT

private Q_SLOTS:
    void answersInEachCellOfAGrid_data();
    void answersInEachCellOfAGrid();
    void takesWholeNumbersOfJoinedCellsForRates();
    void answersOnAGridAsItsCellsDo();
};

void PrescriptionLoaderTaskGridTest::answersInEachCellOfAGrid_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("variables");
    QTest::addColumn<double>("cellSize"); // Degrees.
    QTest::addColumn<double>("planeLongitude");
    QTest::addColumn<Pattern>("pattern");
    for (int i = 0; i < 6; ++i) {
        const int type = 1 + i % 2;
        QTest::addRow("type %d, small cells, %d", type, i)
            << type << 7 + i << 5 + i << 1 + i % 3 << 2e-5 << 11.0 << Pattern::Random;
        QTest::addRow("type %d, large cells, %d", type, i)
            << type << 9 + i << 4 + i << 3 - i % 3 << 1e-3 << 11.0 << Pattern::Random;
    }
    // Large enough that a whole row, taken as one rectangle, would leave its cells by a third of a metre, and a whole
    // column, on a plane that lies to the east, by five millimetres.
    QTest::newRow("wide") << 2 << 400 << 3 << 1 << 1.3e-4 << 11.0 << Pattern::EvenRows;
    QTest::newRow("tall, on the plane of another map") << 1 << 3 << 1000 << 1 << 9e-5 << 11.25 << Pattern::EvenColumns;
}

void PrescriptionLoaderTaskGridTest::answersInEachCellOfAGrid()
{
    QFETCH(int, type);
    QFETCH(int, columns);
    QFETCH(int, rows);
    QFETCH(int, variables);
    QFETCH(double, cellSize);
    QFETCH(double, planeLongitude);
    QFETCH(Pattern, pattern);
    const std::vector<std::vector<qint32>> zones = zonesOf(variables);
    const std::vector<int> cells = cellsOf(columns, rows, int(zones.size()), pattern);
    QVERIFY(sketchOf(type, columns, rows, cellSize, zones, cells).write(folder.path()));
    LoadRequest request = requestFor(folder.path(), QStringList({"A", "B", "C"}).mid(0, variables));
    for (MachineProduct &product : request.products)
        product.kind = DbGroupProductGroupInfo::WeightRate;
    const auto map = load(request, {LocalPlane(planeLongitude, 48.0)});
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QVERIFY2(map->report.polygons < columns * rows, qPrintable(QString::number(map->report.polygons)));

    constexpr double nearEdge = 0.002 / 111195.0 * 1.5; // Degrees; two millimetres of longitude, too.
    const double inside = nearEdge / cellSize;
    RawPrescription places;
    for (int cell = 0; cell < columns * rows; ++cell) {
        for (const double x : {inside, 0.5, 1.0 - inside}) {
            for (const double y : {inside, 0.5, 1.0 - inside}) {
                places.xs.push_back(11.0 + cellSize * (cell % columns + x));
                places.ys.push_back(48.0 + cellSize * (cell / columns + y));
            }
        }
    }
    std::vector<double> xs;
    std::vector<double> ys;
    QString reason;
    QVERIFY(map->plane.project(places, xs, ys, reason));
    for (size_t i = 0; i < xs.size(); ++i) {
        const std::vector<qint32> &expected = zones[size_t(cells[i / 9])];
        const RateLookup::Answer answer = map->lookup->ratesAt(xs[i], ys[i]);
        for (int variable = 0; variable < variables; ++variable) {
            // Milligrams per square metre, in kg/ha.
            const double rate = 0.01 * expected[size_t(variable)];
            const bool isRight = rate < 0.0
                ? !answer.hasRate(variable)
                : answer.hasRate(variable) && std::fabs(double(answer.rates.at(variable)) - rate) < 1e-6;
            QVERIFY2(isRight,
                     qPrintable(QStringLiteral("point %1 of cell %2, column %3").arg(i % 9).arg(i / 9).arg(variable)));
        }
    }
}

void PrescriptionLoaderTaskGridTest::takesWholeNumbersOfJoinedCellsForRates()
{
    // Joined, they look like three records that are numbered one by one.
    const QByteArray zone = Sketch::zone(7, Sketch::value(0xE000, 0));
    QVERIFY((Sketch{Sketch::task("TSK1", Sketch::grid(2, 3, 2, "J=\"7\"") + zone),
                    4,
                    {{"GRD00001.BIN", Sketch::steps({100, 100, 101, 101, 102, 102})}}}
                 .write(folder.path())));
    const auto map = load(folder.path());
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.polygons, 3);
    QCOMPARE(map->report.columns, QStringList("DDI 57344"));
}

void PrescriptionLoaderTaskGridTest::answersOnAGridAsItsCellsDo()
{
    RXMAP_NEED_REAL_DATA();
    const auto grid = load(usualRequest(realData(QStringLiteral("taskdata-grid"))));
    QVERIFY2(grid->report.isOk(), qPrintable(grid->report.error));
    QVERIFY2(grid->report.polygons < 178 * 236 / 10, qPrintable(QString::number(grid->report.polygons)));
    LoadRequest request = usualRequest(realData(QStringLiteral("cells-17k/cells.shp")));
    const auto cells = load(request, {grid->plane});
    QVERIFY2(cells->report.isOk(), qPrintable(cells->report.error));
    std::mt19937 random(17);
    std::uniform_real_distribution<double> share(0.0, 1.0);
    const QRectF bounds = grid->report.bounds;
    int different = 0;
    int prescribed = 0;
    for (int i = 0; i < points; ++i) {
        const double x = bounds.left() + share(random) * bounds.width();
        const double y = bounds.top() + share(random) * bounds.height();
        const double byGrid = rateAt(*grid, x, y);
        const double byCells = rateAt(*cells, x, y);
        prescribed += byCells > 0.0 ? 1 : 0;
        // The cells leave out the places for which the grid gives a rate of zero.
        different += byGrid == (std::isnan(byCells) ? 0.0 : byCells) ? 0 : 1;
    }
    QVERIFY(prescribed > points / 4);
    QCOMPARE(different, 0);
}

RXMAP_TEST(PrescriptionLoaderTaskGridTest, Core)
#include "tst_prescriptionloader_taskgrid.moc"
