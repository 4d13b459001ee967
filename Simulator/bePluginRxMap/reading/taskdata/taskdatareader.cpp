#include "taskdatareader.h"

#include "Backend/backendtext.h"
#include "gdalsession.h"
#include "gridreader.h"
#include "shapereader.h"
#include "tablecolumns.h"
#include "taskcolumns.h"
#include "taskdataparser.h"

#include <algorithm>
#include <memory>
#include <ogr_geometry.h>

namespace {

std::unique_ptr<OGRLinearRing> closedRing(const TaskRing &ring)
{
    auto result = std::make_unique<OGRLinearRing>();
    result->setPoints(static_cast<int>(ring.longitudes.size()), ring.longitudes.data(), ring.latitudes.data());
    result->closeRings();
    return result;
}

/// Whether most of the hole's vertices lie within the outer ring; some may lie on it.
bool holds(const OGRLinearRing &outer, const OGRLinearRing &hole)
{
    int inside = 0;
    for (const OGRPoint &point : hole)
        inside += outer.isPointInRing(&point) != FALSE ? 1 : 0;
    return 2 * inside > hole.getNumPoints();
}

/// Adds the polygon of one element, which may have several outer rings; the holes need not follow their own.
void addPolygon(const std::vector<TaskRing> &rings, OGRMultiPolygon &shape)
{
    std::vector<std::unique_ptr<OGRPolygon>> polygons;
    for (const TaskRing &ring : rings) {
        if (ring.isHole)
            continue;
        polygons.push_back(std::make_unique<OGRPolygon>());
        polygons.back()->addRingDirectly(closedRing(ring).release());
    }
    for (const TaskRing &ring : rings) {
        if (!ring.isHole || polygons.empty())
            continue;
        std::unique_ptr<OGRLinearRing> hole = closedRing(ring);
        const auto around = std::find_if(polygons.begin(), polygons.end(), [&hole](const auto &polygon) {
            return holds(*polygon->getExteriorRing(), *hole);
        });
        (around == polygons.end() ? polygons.front() : *around)->addRingDirectly(hole.release());
    }
    for (std::unique_ptr<OGRPolygon> &polygon : polygons)
        shape.addGeometryDirectly(polygon.release());
}

QStringList namesOf(const std::vector<SourceColumn> &columns)
{
    QStringList names;
    for (const SourceColumn &column : columns)
        names.append(column.name);
    return names;
}

} // namespace

TaskDataReader::TaskDataReader(const ReadRequest &readRequest, const LoadControl &loadControl)
    : folder(readRequest.path)
    , request(readRequest)
    , control(loadControl)
{
}

bool TaskDataReader::fail(const QString &text)
{
    reason = text;
    return false;
}

bool TaskDataReader::read(RawPrescription &map)
{
    const GdalSession session;
    if (!open(map))
        return false;
    TaskColumns columns(*task, data);
    if (columns.areTooMany())
        return fail(BackendText::tr("task %1 has more than %2 process data variables")
                        .arg(task->name(), QString::number(TaskColumns::most)));
    map.columns = columns.columns();
    map.columnNames = namesOf(map.columns);
    if (!checkColumns(map))
        return false;
    map.lackOfReference.clear();
    if (!readGrids(columns, map) || !readZones(columns, map))
        return false;
    readBoundary(map);
    warnOfMissingZones(map);
    return true;
}

bool TaskDataReader::readColumnNames(QStringList &names)
{
    const GdalSession session;
    RawPrescription map;
    if (!open(map))
        return false;
    names = namesOf(TaskColumns(*task, data).columns());
    return true;
}

bool TaskDataReader::open(RawPrescription &map)
{
    TaskDataParser parser(folder);
    if (!parser.parse(data))
        return fail(parser.error());
    map.warnings += data.warnings;
    return chooseTask(map);
}

bool TaskDataReader::chooseTask(RawPrescription &map)
{
    if (data.tasks.empty())
        return fail(BackendText::tr("%1 holds no task").arg(folder.mainFile()));
    QStringList all;
    for (const Task &any : data.tasks) {
        all.append(any.name());
        if (any.hasPrescription())
            map.tasks.append(any.name());
        const bool isWanted = request.task.isEmpty() ? any.hasPrescription() : any.isNamed(request.task);
        if (isWanted && task == nullptr)
            task = &any;
    }
    if (task == nullptr && !request.task.isEmpty())
        return fail(BackendText::tr("has no task \"%1\"; it has %2").arg(request.task, all.join(QStringLiteral(", "))));
    if (task == nullptr || !task->hasPrescription())
        return fail(BackendText::tr("task %1 holds no prescription: it has neither zones with polygons nor a grid")
                        .arg(task == nullptr ? all.join(QStringLiteral(", ")) : task->name()));
    if (!task->problem.isEmpty())
        return fail(task->problem);
    map.task = task->name();
    QStringList others = map.tasks;
    others.removeOne(map.task);
    if (request.task.isEmpty() && !others.isEmpty())
        map.warnings.append(BackendText::tr("task \"%1\" is loaded; there is a prescription in %2, too")
                                .arg(map.task, others.join(QStringLiteral(", "))));
    return true;
}

bool TaskDataReader::checkColumns(const RawPrescription &map)
{
    if (map.columns.empty())
        return fail(BackendText::tr("task %1 holds no prescription: its zones have no values").arg(task->name()));
    for (const QString &name : qAsConst(request.columns)) {
        if (!name.isEmpty() && TableColumns::find(map.columnNames, name) < 0)
            return fail(BackendText::tr("has no column \"%1\"; it has %2")
                            .arg(name, map.columnNames.join(QStringLiteral(", "))));
    }
    return true;
}

bool TaskDataReader::readGrids(const TaskColumns &columns, RawPrescription &map)
{
    GridReader reader(folder, *task, columns, control);
    for (const TaskGrid &grid : task->grids) {
        if (!reader.read(grid, map))
            return fail(reader.error());
    }
    return true;
}

bool TaskDataReader::readZones(const TaskColumns &columns, RawPrescription &map)
{
    ShapeReader shapes(map);
    for (const TreatmentZone &zone : task->zones) {
        if (zone.polygons.empty())
            continue;
        if (columns.areTooMany(map.records + 1))
            return fail(BackendText::tr("task %1 has too many zones with too many values").arg(task->name()));
        if (control.isCancelled())
            return fail(BackendText::tr("loading was cancelled"));
        OGRMultiPolygon shape;
        for (const std::vector<TaskRing> &rings : zone.polygons)
            addPolygon(rings, shape);
        const std::vector<double> rates = columns.ratesOf(zone);
        for (size_t i = 0; i < rates.size(); ++i)
            map.columns[i].values.push_back(rates[i]);
        shapes.read(&shape);
        ++map.records;
    }
    return true;
}

void TaskDataReader::readBoundary(RawPrescription &map) const
{
    const auto field = data.fields.constFind(task->field);
    if (field == data.fields.constEnd())
        return;
    if (!field->problem.isEmpty()) {
        map.warnings.append(BackendText::tr("the field's boundary is left out: %1").arg(field->problem));
        return;
    }
    SourceBoundary &boundary = map.boundary;
    for (const TaskRing &ring : field->boundary) {
        if (ring.longitudes.empty())
            continue;
        boundary.xs.insert(boundary.xs.end(), ring.longitudes.begin(), ring.longitudes.end());
        boundary.ys.insert(boundary.ys.end(), ring.latitudes.begin(), ring.latitudes.end());
        boundary.ends.push_back(boundary.xs.size());
    }
}

void TaskDataReader::warnOfMissingZones(RawPrescription &map) const
{
    const auto check = [this, &map](int code, const QString &what) {
        if (code != Task::noZone && task->zone(code) == nullptr)
            map.warnings.append(BackendText::tr("task %1 names treatment zone %2 for %3, which is not there")
                                    .arg(task->name(), QString::number(code), what));
    };
    check(task->outOfFieldZone, BackendText::tr("places out of the field"));
    check(task->defaultZone, BackendText::tr("places without a zone"));
    check(task->positionLostZone, BackendText::tr("a lost position"));
}
