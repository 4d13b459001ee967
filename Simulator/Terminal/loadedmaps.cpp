#include "loadedmaps.h"

#include "Backend/prescriptionbackend.h"
#include "fieldplane.h"
#include "machine.h"

namespace {

const QString noMap = QStringLiteral("no map is loaded that says where the field is");

QString tooFar()
{
    return QStringLiteral("is more than %1 km from the field").arg(FieldPlane::reach / 1000.0);
}

} // namespace

LoadedMaps::LoadedMaps(const DataBroker &dataBroker, const PrescriptionBackend &prescriptions,
                       const Machine &machineModel)
    : broker(dataBroker)
    , backend(prescriptions)
    , machine(machineModel)
{
}

ActiveMap LoadedMaps::active() const
{
    return ActiveMap::find(broker, Machine::productGroupName(machine.activeProduct()));
}

LoadReport LoadedMaps::reportOf(const ActiveMap &map) const
{
    const QList<LoadReport> reports = backend.maps();
    for (const LoadReport &report : reports) {
        if (report.group == map.groupName)
            return report;
    }
    return {};
}

std::optional<QRectF> LoadedMaps::bounds() const
{
    const std::optional<QPointF> origin = machine.planeOrigin();
    if (!origin)
        return {};
    QRectF all;
    const QList<LoadReport> maps = backend.maps();
    for (const LoadReport &map : maps) {
        if (map.origin == *origin)
            all |= map.bounds;
    }
    return all;
}

QRectF LoadedMaps::boundsInUse() const
{
    const std::optional<QPointF> origin = machine.planeOrigin();
    QRectF used;
    const QList<LoadReport> maps = backend.maps();
    for (const LoadReport &map : maps) {
        if (map.origin == origin && !machine.columnsOf(map.group).isEmpty())
            used |= map.bounds;
    }
    return used;
}

Result<QPointF> LoadedMaps::toField(const QPointF &degrees) const
{
    const std::optional<QPointF> origin = machine.planeOrigin();
    if (!origin)
        return Result<QPointF>::failure(noMap);
    if (!FieldPlane::areDegrees(degrees))
        return Result<QPointF>::failure(QStringLiteral("is no longitude and latitude"));
    const std::optional<QPointF> field = FieldPlane(*origin).toField(degrees);
    return field ? Result<QPointF>{*field, {}} : Result<QPointF>::failure(tooFar());
}

Result<QPointF> LoadedMaps::toEarth(const QPointF &field) const
{
    const std::optional<QPointF> origin = machine.planeOrigin();
    if (!origin)
        return Result<QPointF>::failure(noMap);
    const std::optional<QPointF> degrees = FieldPlane(*origin).toEarth(field);
    return degrees ? Result<QPointF>{*degrees, {}} : Result<QPointF>::failure(tooFar());
}
